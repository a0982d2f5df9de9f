#include "records/CtrSettings.h"

#include "framework/named_callbacks.h"
#include "support/recording_messenger.h"
#include "support/recording_translator.h"
#include "support/simple_converter.h"
#include "support/test_page.h"
#include "support/toolkit_scope.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quill::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A page that hears what the dialog calls by name.
class CalledPage : public TestPage, public NamedCallbacks {
public:
    std::vector<std::string> heard;

    void callByName(const std::string& method, const std::vector<std::string>& args) override
    {
        std::string line = method;
        for (const std::string& argument : args) {
            line += " " + argument;
        }
        heard.push_back(line);
    }
};

/// One of its units has no name.
class GappyConverter : public SimpleConverter {
public:
    std::optional<IXMLDOMNodeList> GetUnitChoices(const std::string&) override
    {
        auto document = IXMLDOMDocument::create();
        document.loadXML(R"(<units><unit name="bar"/><unit/></units>)");
        return document.selectNodes("/units/unit");
    }
};

class CtrSettingsTest : public testing::Test {
protected:
    ToolkitScope        toolkit;
    RecordingMessenger  messenger;
    RecordingTranslator translator;
    SimpleConverter     converter;
    CalledPage          page;
    CtrSettings         view{page, {.Name = "settings", .Visible = false}};

    void SetUp() override
    {
        translator.prefix      = "T-";
        messenger.translator   = &translator;
        messenger.converter    = &converter;
        converter.quantities   = {{"pressure", {"bar", "psi"}}, {"temperature", {"degC", "degF"}}};
        converter.displayUnits = {{"pressure", "bar"}};
        converter.unitOfSystem = {
            {{"SI", "pressure"}, "kPa"}, {{"SI", "temperature"}, "K"}, {{"US", "pressure"}, "psi"}};
        view.SetMessenger(&messenger);
        view.SetSupportedLanguages({"English", "German", "Finnish", "German"});
        view.SetCurrentLanguage("English");
    }
    void show()
    {
        view.Localize(translator);
        view.show();
        messenger.clear();
        page.heard.clear();
    }
    [[nodiscard]] std::vector<std::string> shownUnits() const
    {
        std::vector<std::string> units;
        for (int row = 1; row <= view.scgUnits.RowCount(); ++row) {
            units.push_back(view.scgUnits.cell(row, 2).Text);
        }
        return units;
    }
};

TEST_F(CtrSettingsTest, OffersTheLanguagesInTheirOrder)
{
    EXPECT_THAT(view.cboSelectLanguage.List(),
                ElementsAre("English", "German", "Finnish", "German"));
    EXPECT_EQ(view.cboSelectLanguage.Text(), "English");
}

TEST_F(CtrSettingsTest, OfEqualLanguagesTheLastIsSelected)
{
    view.SetCurrentLanguage("German");
    EXPECT_EQ(view.cboSelectLanguage.ListIndex(), 3);
}

TEST_F(CtrSettingsTest, AnUnknownLanguageLeavesTheBoxWithoutASelection)
{
    view.SetCurrentLanguage("german");
    EXPECT_EQ(view.cboSelectLanguage.ListIndex(), -1);
    EXPECT_EQ(view.language(), "german");
}

TEST_F(CtrSettingsTest, ComesUpWithTheFocusOnTheLanguage)
{
    view.Localize(translator);
    messenger.clear();
    view.show();
    EXPECT_EQ(messenger.actions().front(), "NotifyDialog(50)");
    EXPECT_TRUE(view.cboSelectLanguage.HasFocus());
    EXPECT_FALSE(view.cmdApply.Enabled);
}

TEST_F(CtrSettingsTest, TheQuantitiesAreReadOnceAtTheFirstShowing)
{
    show();
    ASSERT_EQ(view.scgUnits.RowCount(), 2);
    EXPECT_EQ(view.scgUnits.cell(1, 1).Text, "T-pressure");
    EXPECT_FALSE(view.scgUnits.cell(1, 1).Editable);
    EXPECT_EQ(view.scgUnitsKey.cell(2, 1).Text, "temperature");
    EXPECT_THAT(shownUnits(), ElementsAre("bar", ""));
    converter.quantities.clear();
    view.hide();
    view.show();
    EXPECT_EQ(view.scgUnits.RowCount(), 2);
}

TEST_F(CtrSettingsTest, WithoutAUnitConverterTheGridStaysEmptyAndTheRestWorks)
{
    messenger.converter = nullptr;
    show();
    EXPECT_EQ(view.scgUnits.RowCount(), 0);
    view.cboSelectLanguage.choose(1);
    view.cboStatusClassification.choose(1);
    view.cmdApply.click();
    EXPECT_THAT(page.heard, ElementsAre("QuillTranslateTexts German", "QuillInformUnitChanges"));
    EXPECT_THAT(messenger.actions(), ElementsAre("SetStatusClassification(1)"));
}

TEST_F(CtrSettingsTest, AFixedClassificationHidesItsChoiceButItsValueIsSentAllTheSame)
{
    messenger.classificationFixed = true;
    show();
    EXPECT_FALSE(view.lblStatusClassification.Visible);
    EXPECT_FALSE(view.cboStatusClassification.Visible);
    view.cmdSI.click();
    view.cmdApply.click();
    EXPECT_THAT(messenger.callsTo("SetStatusClassification"),
                ElementsAre("SetStatusClassification(0)"));
}

TEST_F(CtrSettingsTest, TextsFollowTheLanguageAndChoicesStay)
{
    messenger.classification = kClassNAMUR;
    show();
    view.cboSelectLanguage.choose(2);
    translator.prefix = "U-";
    view.Localize(translator);
    EXPECT_EQ(view.lblTitle.Caption.get(), "U-settings");
    EXPECT_EQ(view.cmdOK.Caption.get(), "U-ok");
    EXPECT_EQ(view.lblSelectUnits.Caption.get(), "U-selectUnits");
    EXPECT_EQ(view.cboSelectLanguage.ListIndex(), 2);
    EXPECT_THAT(view.cboStatusClassification.List(),
                ElementsAre("U-statusSeverity", "U-statusNAMUR"));
    EXPECT_THAT(view.cboStatusClassification.ItemData(), ElementsAre(0, 1));
    EXPECT_EQ(view.cboStatusClassification.ListIndex(), 1);
    EXPECT_EQ(view.scgUnits.cell(2, 1).Text, "U-temperature");
}

TEST_F(CtrSettingsTest, ALabelWithoutATagKeepsItsTextWhereThereIsNoTranslation)
{
    translator.texts["selectUnits"] = "Err:selectUnits";
    view.Localize(translator);
    EXPECT_EQ(view.lblSelectUnits.Caption.get(), "Select units");
}

TEST_F(CtrSettingsTest, ATextWithoutATranslationIsTheOneOfTheFormOrTheKey)
{
    for (const char* key : {"settings", "apply", "statusNAMUR", "temperature"}) {
        translator.texts[key] = std::string("Err:") + key;
    }
    show();
    EXPECT_EQ(view.lblTitle.Caption.get(), "Settings");
    EXPECT_EQ(view.cmdApply.Caption.get(), "Apply");
    EXPECT_THAT(view.cboStatusClassification.List(),
                ElementsAre("T-statusSeverity", "statusNAMUR"));
    EXPECT_EQ(view.scgUnits.cell(2, 1).Text, "temperature");
    view.scgUnits.setCellText(2, 1, {});
    view.Localize(translator);
    EXPECT_EQ(view.scgUnits.cell(2, 1).Text, "temperature");
}

TEST_F(CtrSettingsTest, AClassificationWithoutATextKeepsItsRow)
{
    translator.failingKey = "statusSeverity";
    show();
    EXPECT_THAT(view.cboStatusClassification.List(), ElementsAre("", "T-statusNAMUR"));
    EXPECT_EQ(view.cboStatusClassification.ListIndex(), 0);
    view.cmdOK.click();
    EXPECT_THAT(messenger.callsTo("SetStatusClassification"),
                ElementsAre("SetStatusClassification(0)"));
}

TEST_F(CtrSettingsTest, TheConverterIsAskedForOnceInEachProcedure)
{
    show();
    const auto asked = [&] {
        const auto count = messenger.callsTo("GetUnitConverter").size();
        messenger.clear();
        return count;
    };
    view.scgUnits.clickCell(1, 2);
    EXPECT_EQ(asked(), 1U);
    view.cmdSI.click();
    EXPECT_EQ(asked(), 1U);
    view.cmdOK.click();
    EXPECT_EQ(asked(), 1U);
    view.cmdCancel.click();
    EXPECT_EQ(asked(), 0U); // the dialog is gone
    view.show();
    view.cmdCancel.click();
    EXPECT_EQ(asked(), 1U);
}

TEST_F(CtrSettingsTest, AConverterThatIsGoneIsReportedForEveryRow)
{
    show();
    messenger.converter = nullptr;
    view.cmdOK.click();
    EXPECT_THAT(messenger.errors(), ElementsAre(HasSubstr("CtrSettings ConvertUnits , 91"),
                                                HasSubstr("CtrSettings ConvertUnits , 91")));
    EXPECT_THAT(page.heard, ElementsAre("QuillInformUnitChanges"));
}

TEST_F(CtrSettingsTest, AListThatCannotBeReadAgainStaysAsItWas)
{
    show();
    view.scgUnits.clickCell(1, 2);
    view.scgUnits.clickCell(2, 2);
    converter.failing = true;
    view.scgUnits.clickCell(1, 2);
    EXPECT_EQ(view.scgUnits.Combo("pressure").size(), 2U);
    EXPECT_THAT(messenger.errors(), ElementsAre(HasSubstr("scgUnits_CellSelectionChange , 2, 5")));
}

TEST_F(CtrSettingsTest, AUnitCellOpensWithTheChoicesOfItsQuantity)
{
    show();
    view.scgUnits.clickCell(2, 2);
    EXPECT_EQ(view.unitRow(), 2);
    EXPECT_EQ(view.scgUnits.CellList(2, 2), "temperature");
    ASSERT_EQ(view.scgUnits.Combo("temperature").size(), 2U);
    EXPECT_EQ(view.scgUnits.Combo("temperature")[1].Text, "degF");
    EXPECT_FALSE(view.isModified());
}

TEST_F(CtrSettingsTest, ACellThatIsOpenedAgainHasEachUnitOnce)
{
    show();
    view.scgUnits.clickCell(1, 2);
    view.scgUnits.clickCell(2, 2);
    view.scgUnits.clickCell(1, 2);
    EXPECT_EQ(view.scgUnits.Combo("pressure").size(), 2U);
}

TEST_F(CtrSettingsTest, TheQuantityCannotBeEdited)
{
    show();
    EXPECT_EQ(view.scgUnits.edit(1, 1, "x"), platform::UserDoor::refused);
    view.scgUnits.setCellEditable(1, 1, true);
    EXPECT_EQ(view.scgUnits.edit(1, 1, "x"), platform::UserDoor::refused);
}

TEST_F(CtrSettingsTest, AChosenUnitWaitsForApply)
{
    show();
    EXPECT_EQ(view.scgUnits.edit(1, 2, "psi"), platform::UserDoor::done);
    EXPECT_TRUE(view.isModified());
    EXPECT_TRUE(view.cmdApply.Enabled);
    EXPECT_EQ(converter.displayUnits["pressure"], "bar");
    view.cmdApply.click();
    EXPECT_EQ(converter.displayUnits["pressure"], "psi");
    EXPECT_FALSE(view.cmdApply.Enabled);
    EXPECT_THAT(page.heard, ElementsAre("QuillInformUnitChanges"));
    EXPECT_TRUE(view.Visible);
}

TEST_F(CtrSettingsTest, AUnitWithoutANameIsReportedAndLeavesAnEmptyEntry)
{
    GappyConverter gappy;
    gappy.quantities    = converter.quantities;
    messenger.converter = &gappy;
    show();
    view.scgUnits.clickCell(1, 2);
    EXPECT_EQ(view.scgUnits.Combo("pressure").size(), 2U);
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(CtrSettings getText , 91, Missing value ")));
}

TEST_F(CtrSettingsTest, ASystemOfUnitsKeepsWhatItDoesNotKnow)
{
    show();
    view.cmdUS.click();
    EXPECT_THAT(shownUnits(), ElementsAre("psi", ""));
    view.cmdSI.click();
    EXPECT_THAT(shownUnits(), ElementsAre("kPa", "K"));
    view.cmdUS.click();
    EXPECT_THAT(shownUnits(), ElementsAre("psi", "K"));
    EXPECT_TRUE(view.isModified());
}

TEST_F(CtrSettingsTest, OkHidesTheDialogThenSendsAndGivesTheFocusBack)
{
    show();
    view.cboSelectLanguage.choose(1);
    bool wasHidden   = false;
    messenger.onCall = [&](const std::string& call) {
        wasHidden |= call.starts_with("SetStatusClassification") && !view.Visible;
    };
    view.cmdOK.click();
    EXPECT_TRUE(wasHidden);
    EXPECT_THAT(page.heard, ElementsAre("QuillTranslateTexts German", "QuillInformUnitChanges"));
    EXPECT_THAT(messenger.actions(),
                ElementsAre("SetStatusClassification(0)", "NotifyDialog(51)", "TransferFocus()"));
    EXPECT_EQ(view.language(), "German");
}

TEST_F(CtrSettingsTest, TheSameLanguageIsNotSetAgainNorIsNone)
{
    show();
    view.cmdOK.click();
    EXPECT_THAT(page.heard, ElementsAre("QuillInformUnitChanges"));
    view.SetSupportedLanguages({"English"});
    view.show();
    view.cmdOK.click();
    EXPECT_EQ(view.language(), "English");
}

TEST_F(CtrSettingsTest, CancelPutsLanguageAndUnitsBackButNotTheClassification)
{
    show();
    view.cboSelectLanguage.choose(2);
    view.cboStatusClassification.choose(1);
    view.cmdSI.click();
    view.cmdCancel.click();
    EXPECT_FALSE(view.Visible);
    EXPECT_EQ(view.cboSelectLanguage.Text(), "English");
    EXPECT_THAT(shownUnits(), ElementsAre("bar", "K")); // no display unit to go back to
    EXPECT_EQ(view.cboStatusClassification.ListIndex(), 1);
    EXPECT_FALSE(view.isModified());
    EXPECT_THAT(messenger.actions(), ElementsAre("NotifyDialog(51)", "TransferFocus()"));
    EXPECT_THAT(page.heard, IsEmpty());
    view.Localize(translator);
    EXPECT_EQ(view.cboStatusClassification.ListIndex(), 0);
}

TEST_F(CtrSettingsTest, CancelDropsAUnitThatIsStillBeingEntered)
{
    show();
    view.scgUnits.clickCell(1, 2);
    ASSERT_EQ(view.scgUnits.typeCell(1, 2, "psi"), platform::UserDoor::done);
    view.cmdCancel.click();
    EXPECT_EQ(view.scgUnits.EditRow(), 0);
    EXPECT_THAT(shownUnits(), ElementsAre("bar", ""));
}

TEST_F(CtrSettingsTest, TheButtonsHaveThePictureOfThePanelInEveryState)
{
    for (const platform::CommandButton* button :
         {&view.cmdSI, &view.cmdUS, &view.cmdOK, &view.cmdCancel, &view.cmdApply}) {
        EXPECT_EQ(button->Picture.get(), view.ctrTBLaunchedPanel.imlPanel.first());
    }
    show();
    EXPECT_EQ(view.cmdApply.DisabledPicture, view.ctrTBLaunchedPanel.imlPanel.first());
    EXPECT_EQ(view.cmdApply.DownPicture, view.ctrTBLaunchedPanel.imlPanel.first());
}

TEST_F(CtrSettingsTest, AUnitThatIsStillBeingEnteredCountsAtOK)
{
    show();
    ASSERT_EQ(view.scgUnits.typeCell(1, 2, "psi"), platform::UserDoor::done);
    (void)view.cmdOK.click();
    EXPECT_THAT(shownUnits(), ElementsAre("psi", ""));
    EXPECT_EQ(converter.displayUnits["pressure"], "psi");
    EXPECT_FALSE(view.isModified());
}

TEST_F(CtrSettingsTest, ASystemOfUnitsTakesThePlaceOfWhatIsStillBeingEntered)
{
    show();
    ASSERT_EQ(view.scgUnits.typeCell(1, 2, "psi"), platform::UserDoor::done);
    (void)view.cmdSI.click();
    ASSERT_EQ(view.scgUnits.edit(2, 2, "degF"), platform::UserDoor::done);
    EXPECT_THAT(shownUnits(), ElementsAre("kPa", "degF"));
}

TEST_F(CtrSettingsTest, ARowThatIsNotOfTheViewIsReported)
{
    show();
    view.scgUnits.setRowCount(3);
    ASSERT_EQ(view.scgUnits.clickCell(3, 2), platform::UserDoor::done);
    EXPECT_THAT(messenger.errors(),
                testing::Contains("ReportError(scgUnits_CellSelectionChange , 2, 9, Subscript out "
                                  "of range)"));
    EXPECT_EQ(view.unitRow(), 3);
}

TEST_F(CtrSettingsTest, EscapeCancels)
{
    show();
    view.scgUnits.focus();
    view.scgUnits.press(platform::kKeyEscape);
    EXPECT_FALSE(view.Visible);
    EXPECT_THAT(messenger.actions(), ElementsAre("NotifyDialog(51)", "TransferFocus()"));
}

TEST_F(CtrSettingsTest, SelectionsByTheProgramAreNoChange)
{
    show();
    view.SetCurrentLanguage("Finnish");
    view.Localize(translator);
    view.scgUnits.setCurCell(1, 2);
    EXPECT_FALSE(view.isModified());
}

TEST_F(CtrSettingsTest, APageThatTakesNoCallsIsReported)
{
    TestPage    plain;
    CtrSettings other{plain, {.Name = "settings"}};
    other.SetMessenger(&messenger);
    other.cmdOK.click();
    EXPECT_THAT(messenger.errors(), testing::Contains(HasSubstr("CtrSettings ConvertUnits , 438")));
}

TEST_F(CtrSettingsTest, AConverterThatFailsCostsItsRowsOnly)
{
    show();
    converter.failing = true;
    view.cmdSI.click();
    view.cmdOK.click();
    EXPECT_THAT(messenger.errors(), ElementsAre(HasSubstr("CtrSettings showBaseUnits "),
                                                HasSubstr("CtrSettings showBaseUnits "),
                                                HasSubstr("CtrSettings ConvertUnits "),
                                                HasSubstr("CtrSettings ConvertUnits ")));
    EXPECT_THAT(page.heard, ElementsAre("QuillInformUnitChanges"));
    EXPECT_FALSE(view.Visible);
}

TEST_F(CtrSettingsTest, ALargerDialogGivesTheGridMoreRoom)
{
    view.resize(12000, 8000);
    EXPECT_EQ(view.scgUnits.Width, 12000 - 360);
    EXPECT_EQ(view.cmdApply.Left + view.cmdApply.Width, 12000 - 180);
    EXPECT_LT(view.scgUnits.Top + view.scgUnits.Height, view.cmdSI.Top);
    EXPECT_EQ(view.scgUnits.column(1).Width, 560);
    EXPECT_EQ(view.scgUnits.column(2).Width, 180);
}

TEST_F(CtrSettingsTest, LongTextsFindRoom)
{
    for (const char* key : {"statusClassificationSelection", "changeAllUnits", "siUnits", "usUnits",
                            "ok", "cancel", "apply"}) {
        translator.texts[key] = std::string(60, 'x');
    }
    view.Localize(translator);
    const auto endOf = [](const platform::Widget& widget) { return widget.Left + widget.Width; };
    const std::int32_t text = toolkit.textWidth(std::string(60, 'x'));
    EXPECT_GE(view.lblStatusClassification.Width, text);
    EXPECT_GE(view.lblChangeAll.Width, text);
    for (const platform::CommandButton* button :
         {&view.cmdSI, &view.cmdUS, &view.cmdOK, &view.cmdCancel, &view.cmdApply}) {
        EXPECT_GT(button->Width, text) << button->Name;
        EXPECT_LE(endOf(*button), view.ctrTBLaunchedPanel.Width) << button->Name;
    }
    EXPECT_LE(endOf(view.lblChangeAll), view.cmdSI.Left);
    EXPECT_LE(endOf(view.cmdSI), view.cmdUS.Left);
    EXPECT_GE(view.cmdOK.Left, 0);
    EXPECT_LE(endOf(view.cmdOK), view.cmdCancel.Left);
    EXPECT_LE(endOf(view.lblSelectLanguage), view.lblStatusClassification.Left);
}

} // namespace
} // namespace quill::test
