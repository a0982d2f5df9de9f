// How the text editor gives its value back, and what faults cost.

#include "text_editor_fixture.h"

namespace quill::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class TextEditDataCommaTest : public TextEditDataTest {
protected:
    TextEditDataCommaTest() : TextEditDataTest(",") {}
    CtrTextEdit commaEditor{page, {.Name = "comma", .Tag = "ctr_travel"}};
};

// --- Giving values back -----------------------------------------------------------------------

TEST_F(TextEditDataTest, TheItemCarriesNameUnitAndValueInDocumentForm)
{
    useConverter("kPa");
    load();
    type("250");
    EXPECT_EQ(editor.GetXmlItem(false).get_xml(),
              R"(<item name="travel" unit="bar"><floatVal>2.5</floatVal></item>)");
}

TEST_F(TextEditDataTest, AnEmptyOrWrongTextGivesAnItemByForceOnly)
{
    load();
    type("");
    EXPECT_FALSE(editor.GetXmlItem(false));
    EXPECT_EQ(editor.GetXmlItem(true).get_xml(),
              R"(<item name="travel" unit="bar"><floatVal/></item>)");
    type("x");
    EXPECT_FALSE(editor.GetXmlItem(false));
    EXPECT_EQ(editor.GetXmlItem(true).get_xml(),
              R"(<item name="travel" unit="bar"><floatVal>x</floatVal></item>)");
}

TEST_F(TextEditDataTest, WithoutTypeOrTagTheItemDocumentIsEmpty)
{
    EXPECT_TRUE(editor.getXmlItem());
    EXPECT_FALSE(editor.getXmlItem().get_documentElement());
    load();
    editor.Tag = "";
    EXPECT_FALSE(editor.getXmlItem().get_documentElement());
}

TEST_F(TextEditDataTest, AUnitThatCannotBeConvertedBecomesTheUnitOfTheMessage)
{
    useConverter("bar");
    load();
    editor.lblUnit.Caption = "furlong";
    messenger.clear();
    EXPECT_EQ(editor.FormatForCommunication("3"), "3");
    EXPECT_EQ(editor.messageUnit(), "furlong");
    EXPECT_THAT(messenger.callsTo("WriteLog"),
                ElementsAre("WriteLog(84, CtrTextEdit ctr_travel unable to convert furlong to bar)",
                            "WriteLog(84, CtrTextEdit ctr_travel changing GUI unit into message  "
                            "furlong)"));
    EXPECT_THAT(editor.getXmlItem().get_xml(), HasSubstr("unit=\"furlong\""));
}

TEST_F(TextEditDataTest, AVisiblePercentageGoesOutUnconverted)
{
    useConverter("bar");
    load();
    editor.lblUnit.Caption = "% of range";
    EXPECT_EQ(editor.FormatForCommunication("3"), "3");
    EXPECT_EQ(editor.messageUnit(), "bar");
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(TextEditDataTest, InfIsReportedAndStays)
{
    useConverter("kPa");
    load();
    EXPECT_EQ(editor.FormatForCommunication("-Inf"), "-Inf");
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("TextEdit ctr_travel FormatForCommunication, 13")));
    messenger.clear();
    EXPECT_EQ(editor.FormatForCommunication("NaN"), "NaN");
    EXPECT_THAT(messenger.errors(), IsEmpty());
    EXPECT_EQ(editor.FormatForCommunication(""), "");
    EXPECT_EQ(editor.messageUnit(), "bar");
}

TEST_F(TextEditDataTest, BooksItselfByScope)
{
    translator.texts["ctr_travel"] = "Travel";
    editor.Localize(translator);
    load();
    editor.setContextTag("limits");
    messenger.RequestChanges(kModifiedEditors);
    EXPECT_THAT(messenger.bookings, IsEmpty());
    messenger.RequestChanges(kAllEditors);
    type("7");
    messenger.RequestChanges(kModifiedEditors);
    EXPECT_THAT(messenger.callsTo("BookChange"),
                ElementsAre("BookChange(ctr_travel, Travel, 5.0, 5.0, , floatVal, limits)",
                            "BookChange(ctr_travel, Travel, 5.0, 7, , floatVal, limits)"));
    editor.setContextTag("");
    messenger.clear();
    messenger.RequestChanges(kAllEditors);
    EXPECT_THAT(messenger.bookings, IsEmpty());
}

TEST_F(TextEditDataTest, AWrongOrSilentEditorBooksNothing)
{
    load();
    editor.setContextTag("limits");
    type("x");
    messenger.RequestChanges(kModifiedEditors);
    type("7");
    editor.setSilent(true);
    messenger.RequestChanges(kModifiedEditors);
    messenger.RequestChanges(kAllEditors);
    EXPECT_THAT(messenger.bookings, IsEmpty());
}

// --- Faults -----------------------------------------------------------------------------------

TEST_F(TextEditDataTest, EachMissingAttributeIsReportedAndTheRestIsAsWithoutTheFault)
{
    for (const char* missing :
         {"type", "value", "minVal", "maxVal", "decimals", "unit", "synchronised", "access"}) {
        SCOPED_TRACE(missing);
        CtrTextEdit victim{page, {.Name = "victim", .Tag = "ctr_travel"}};
        CtrTextEdit bystander{page, {.Name = "bystander", .Tag = "ctr_other"}};
        victim.SetMessenger(&messenger);
        bystander.SetMessenger(&messenger);
        document = datafile(parameterXml({{missing, "-"}}) + parameterXml({{"name", "other"}}));
        messenger.clear();
        page.SetMessenger(&messenger);
        messenger.clear();
        page.SetOfflineData(document);
        EXPECT_THAT(messenger.errors(),
                    Contains(HasSubstr("TextEdit ctr_travel setOfflineData, 91")));
        EXPECT_EQ(bystander.Text(), "5.0");
        EXPECT_EQ(bystander.Unit(), "bar");
        EXPECT_FALSE(bystander.Modified());
        victim.txtBox.type("6");
        EXPECT_EQ(victim.Locked(), std::string(missing) == "access");
    }
}

TEST_F(TextEditDataTest, AMessengerThatThrowsCostsNoValueAndNoEdit)
{
    for (const char* operation :
         {"SetParameterState", "GetUnitConverter", "WriteLog", "ReportError"}) {
        SCOPED_TRACE(operation);
        messenger.stopFailing();
        messenger.failOn(operation);
        load();
        EXPECT_EQ(editor.Text(), "5.0");
        type("7");
        EXPECT_EQ(stored("value"), "7");
        editor.setOnlineData(itemNode("noUnit", "8"));
        EXPECT_EQ(editor.Text(), "8.0");
        EXPECT_FALSE(editor.Modified());
    }
}

TEST_F(TextEditDataTest, AConverterThatThrowsLeavesTheDatafilesUnit)
{
    useConverter("kPa");
    converter.failing = true;
    load();
    EXPECT_EQ(editor.Text(), "5.0");
    EXPECT_EQ(editor.Unit(), "bar");
}

TEST_F(TextEditDataCommaTest, NumbersAreShownWithTheLocalesSeparatorAndKeptWithAPoint)
{
    commaEditor.SetMessenger(&messenger);
    messenger.converter              = &converter;
    converter.displayUnits["travel"] = "kPa";
    document                         = datafile(parameterXml({{"value", "1.234"}}));
    commaEditor.setOfflineData(parameter());
    EXPECT_EQ(commaEditor.Text(), "123,4");
    commaEditor.setOnlineData(itemNode("kPa", "150.5"));
    EXPECT_EQ(commaEditor.Text(), "150,5");
    EXPECT_EQ(stored("value"), "1.505");
    commaEditor.setLocalData(itemNode("kPa", "99.5"));
    EXPECT_EQ(commaEditor.Text(), "99,5");
    EXPECT_TRUE(commaEditor.Correct());
    EXPECT_THAT(commaEditor.getXmlItem().get_xml(), HasSubstr("<floatVal>0.995</floatVal>"));
}

} // namespace
} // namespace quill::test
