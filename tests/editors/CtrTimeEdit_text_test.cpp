// The duration in the boxes as one number.

#include "time_editor_fixture.h"

#include <functional>

namespace quill {
namespace {

using namespace test;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class TimeEditText : public TimeEditTest {};
class TimeEditTextWithComma : public TimeEditTestWithComma {};

// --- `Text` and `EditText` --------------------------------------------------------------------

TEST_F(TimeEditText, TextIsOneNumberInTheUnitOfTheParameter)
{
    load();
    EXPECT_THAT(boxes(), ElementsAre("0", "0", "1", "30"));
    EXPECT_EQ(edit.Text(), "1.5");
    edit.setText("1501.5");
    EXPECT_THAT(boxes(), ElementsAre("1", "1", "1", "30"));
    EXPECT_EQ(edit.Text(), "1501.5");
    EXPECT_EQ(edit.originalText(), "1501.5");
}

TEST_F(TimeEditText, TextIsFormattedBeforeItIsShown)
{
    load({{"unit", "h"}, {"decimals", "2"}, {"value", "1.2549"}});
    // 1.25 hours
    EXPECT_THAT(boxes(), ElementsAre("0", "1", "15", "0"));
    EXPECT_EQ(edit.Text(), "1.25");
}

TEST_F(TimeEditText, TheLastBoxShowsWholeSeconds)
{
    load({{"unit", "s"}, {"value", "90.6"}});
    EXPECT_THAT(boxes(), ElementsAre("0", "0", "1", "31"));
    EXPECT_EQ(edit.Text(), "91.0");
    EXPECT_EQ(edit.originalText(), "91.0");
    load({{"unit", "s"}, {"value", "90.5"}}); // a tie goes to the even one
    EXPECT_THAT(boxes(), ElementsAre("0", "0", "1", "30"));
}

TEST_F(TimeEditText, ATextThatIsNoNumberIsNothingAtAll)
{
    load();
    for (const char* text : {"NaN", "-Inf", "soon", " "}) {
        edit.EditText(text);
        EXPECT_THAT(boxes(), ElementsAre("0", "0", "0", "0")) << text;
    }
    EXPECT_EQ(edit.Text(), "0.0");
}

TEST_F(TimeEditText, AnEmptyTextClearsTheBoxes)
{
    load();
    edit.EditText("");
    EXPECT_THAT(boxes(), ElementsAre("", "", "", ""));
    EXPECT_EQ(edit.originalText(), "1.5");
    edit.setText("");
    EXPECT_EQ(edit.originalText(), "");
    EXPECT_EQ(edit.Text(), "");
}

TEST_F(TimeEditText, ANegativeDurationHasNegativeParts)
{
    load();
    edit.EditText("-1.5");
    EXPECT_THAT(boxes(), ElementsAre("0", "0", "-1", "-30"));
    EXPECT_EQ(edit.Text(), "-1.5");
}

TEST_F(TimeEditText, WhatTheProgramShowsIsNoEditAndIsNotChecked)
{
    load();
    forget();
    edit.EditText("5000"); // above the limit
    EXPECT_FALSE(edit.Modified());
    EXPECT_TRUE(edit.Correct());
    EXPECT_EQ(edit.originalText(), "1.5");
    EXPECT_THAT(changes, IsEmpty());
    EXPECT_THAT(states(), IsEmpty());
    EXPECT_EQ(attribute("value"), "1.5");
}

TEST_F(TimeEditText, WhatTheProgramShowsEndsAWrongState)
{
    loadQuietly();
    type(0, "x");
    EXPECT_FALSE(edit.Correct());
    forget();
    edit.EditText("2");
    EXPECT_TRUE(edit.Correct());
    EXPECT_TRUE(edit.Modified());
    EXPECT_EQ(edit.changeState(), "corrected");
    EXPECT_THAT(messenger.actions(), SizeIs(1)) << "the host hears of it";
    EXPECT_EQ(edit.txtBox[0].ForeColor, editorColors::kBlue);
    EXPECT_EQ(edit.originalText(), "1.5");
}

TEST_F(TimeEditText, ANumberThatIsTooLargeIsReportedAndNotShown)
{
    loadQuietly({{"unit", "s"}});
    edit.EditText("1e20");
    EXPECT_THAT(boxes(), ElementsAre("0", "0", "0", "2"));
    EXPECT_THAT(messenger.errors(), ElementsAre(HasSubstr("ReportError(CtrTimeEdit EditText, 6,")));
    forget();
    edit.EditText("1e39"); // no single
    EXPECT_THAT(messenger.errors(), ElementsAre(HasSubstr("ReportError(CtrTimeEdit EditText, 6,")));
}

TEST_F(TimeEditText, SecondsThatAreTooManyAreReportedAndWrong)
{
    loadQuietly();
    type(0, "30000");
    EXPECT_EQ(edit.Text(), "");
    EXPECT_FALSE(edit.Correct());
    EXPECT_THAT(messenger.errors(),
                Contains(HasSubstr("ReportError(CtrTimeEdit Text Get Error, 6,")));
    EXPECT_EQ(attribute("value"), "1.5");
}

TEST_F(TimeEditText, ConvertsInSinglePrecision)
{
    load({{"unit", "s"}, {"decimals", "0"}, {"maxVal", ""}, {"value", "0"}});
    type(3, "16777217");
    EXPECT_EQ(edit.Text(), "16777216");
    EXPECT_GT(converter.conversions, 0);
}

TEST_F(TimeEditText, WithoutAConverterOnlySecondsAreShown)
{
    messenger.converter = nullptr;
    load({{"unit", "s"}, {"value", "3661"}});
    EXPECT_THAT(boxes(), ElementsAre("0", "1", "1", "1"));
    EXPECT_EQ(edit.Text(), "3661.0");
    load({{"unit", "min"}, {"value", "3661"}});
    EXPECT_THAT(boxes(), ElementsAre("", "", "", ""));
    EXPECT_EQ(edit.Text(), "");
    EXPECT_THAT(messenger.errors(), IsEmpty());
    type(2, "1");
    EXPECT_EQ(edit.Text(), "");
    EXPECT_FALSE(edit.Correct()); // there is no telling what the parameter would get
}

TEST_F(TimeEditText, AUnitThatTheHostDoesNotKnowLeavesTheBoxesEmpty)
{
    load();
    load({{"unit", "fortnight"}, {"value", "2"}});
    EXPECT_THAT(boxes(), ElementsAre("", "", "", ""));
    EXPECT_FALSE(edit.Modified());
    EXPECT_THAT(messenger.errors(), IsEmpty());
    load({{"unit", ""}, {"value", "2"}});
    EXPECT_EQ(edit.messageUnit(), "noUnit");
    EXPECT_THAT(boxes(), ElementsAre("", "", "", ""));
}

TEST_F(TimeEditText, AConverterThatFailsIsReported)
{
    loadQuietly();
    converter.failing = true;
    EXPECT_EQ(edit.Text(), "");
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(CtrTimeEdit Text Get Error, 5,")));
    forget();
    edit.EditText("2");
    EXPECT_THAT(boxes(), ElementsAre("0", "0", "1", "30"));
    EXPECT_THAT(messenger.errors(), Contains(HasSubstr("ReportError(CtrTimeEdit EditText, 5,")));
}

TEST_F(TimeEditText, ANumberThatTheHostDoesNotConvertLeavesTheBoxesAsTheyAre)
{
    loadQuietly();
    messenger.converter = nullptr;
    for (const auto& show : {std::function<void()>{[this] { edit.EditText("2"); }},
                             std::function<void()>{[this] { edit.setText("2"); }}}) {
        show();
        EXPECT_THAT(boxes(), ElementsAre("0", "0", "1", "30"));
    }
    edit.EditText("");
    EXPECT_THAT(boxes(), ElementsAre("", "", "", ""));
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(TimeEditText, ANumberThatIsNotShownLeavesAWrongEditWrong)
{
    loadQuietly();
    type(0, "x");
    messenger.converter = nullptr;
    edit.EditText("2");
    EXPECT_THAT(boxes(), ElementsAre("x", "0", "1", "30"));
    EXPECT_FALSE(edit.Correct());
}

TEST_F(TimeEditTextWithComma, ReadsAndWritesTheLocalesForm)
{
    load({{"value", "1.5"}});
    EXPECT_THAT(boxes(), ElementsAre("0", "0", "1", "30"));
    EXPECT_EQ(edit.Text(), "1,5");
    EXPECT_EQ(edit.originalText(), "1,5");
    edit.EditText("2.5");
    EXPECT_EQ(edit.Text(), "2,5");
    edit.EditText("3,5");
    EXPECT_EQ(edit.Text(), "3,5");
    type(3, "0");
    EXPECT_EQ(edit.Text(), "3,0");
    EXPECT_EQ(attribute("value"), "3.0");
    EXPECT_EQ(edit.GetXmlItem(false).get_xml(),
              R"(<item name="delay" unit="min"><floatVal>3.0</floatVal></item>)");
}

TEST_F(TimeEditTextWithComma, OnlyAFloatIsWrittenWithAPoint)
{
    load({{"type", "floatOther"}});
    EXPECT_EQ(edit.FormatForCommunication("1,5"), "1,5");
    load();
    EXPECT_EQ(edit.FormatForCommunication("1,5"), "1.5");
    EXPECT_EQ(edit.FormatForCommunication(""), "");
}

} // namespace
} // namespace quill
