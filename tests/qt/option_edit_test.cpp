// The option editor and the time editor under real clicks and keys.
#include "editors/CtrOptionEdit.h"
#include "editors/CtrTimeEdit.h"
#include "support/recording_messenger.h"
#include "support/recording_translator.h"
#include "support/test_documents.h"
#include "tests/qt/screen_test_support.h"

#include <QLineEdit>
#include <QRadioButton>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quill::qt::test {
namespace {

using quill::test::RecordingMessenger;
using quill::test::RecordingTranslator;
using testing::Contains;
using testing::ElementsAre;

constexpr const char* kSpeeds = R"(<data:mappedParam name="speed">)"
                                R"(<data:mapping value="0" name="slow"/>)"
                                R"(<data:mapping value="1" name="fast"/>)"
                                R"(<data:mapping value="2" name="reallyVeryFast"/>)"
                                R"(</data:mappedParam>)";

/// A page as a technician meets it: options, a duration, and a box below.
struct EditorsPage : Page {
    platform::Label lblSpeed{*this,
                             {.Name    = "lblSpeed",
                              .Caption = "Speed",
                              .Left    = 300,
                              .Top     = 300,
                              .Width   = 1200,
                              .Height  = 315}};
    CtrOptionEdit   speed{
        *this, {.Name = "speed", .Tag = "ctr_speed", .Left = 1800, .Top = 300, .Width = 1500}};
    platform::Label lblDelay{*this,
                             {.Name    = "lblDelay",
                              .Caption = "Delay",
                              .Left    = 300,
                              .Top     = 1800,
                              .Width   = 1200,
                              .Height  = 315}};
    CtrTimeEdit     delay{*this, {.Name = "delay", .Tag = "ctr_delay", .Left = 1800, .Top = 1800}};
    platform::TextBox txtNext{
        *this, {.Name = "txtNext", .Left = 1800, .Top = 2700, .Width = 1500, .Height = 315}};

    RecordingMessenger  messenger;
    RecordingTranslator translator;
    IXMLDOMDocument     datafile = quill::test::datafile(
            R"(<data:parameter name="speed" type="integerVal" value="1" access="readWrite" )"
                R"(synchronised="1"/><data:parameter name="delay" type="floatVal" value="90" unit="s" )"
                R"(decimals="0" minVal="0" maxVal="100000" access="readWrite" synchronised="1"/>)",
            kSpeeds);

    EditorsPage()
    {
        translator.texts["reallyVeryFast"] = "as fast as the supply air ever permits";
        speed.SetMessenger(&messenger);
        delay.SetMessenger(&messenger);
        speed.SetMappings(documents::findMappedParam(datafile, "speed"));
        speed.setOfflineData(documents::findParameter(datafile, "speed"));
        delay.setOfflineData(documents::findParameter(datafile, "delay"));
        messenger.clear();
    }
    ~EditorsPage() override
    {
        speed.SetMessenger(nullptr);
        delay.SetMessenger(nullptr);
    }
    EditorsPage(const EditorsPage&)            = delete;
    EditorsPage& operator=(const EditorsPage&) = delete;

    [[nodiscard]] std::string stored(const char* parameter) const
    {
        return documents::attributeText(documents::findParameter(datafile, parameter), "value");
    }
};

/// On the mark, as an option takes no clicks behind its text.
void choose(const Shown& screen, const platform::OptionButton& option)
{
    auto* const button = screen.as<QRadioButton>(option);
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(8, button->height() / 2));
    settle();
}

std::vector<bool> checked(const Shown& screen, const CtrOptionEdit& edit)
{
    std::vector<bool> marks;
    for (std::size_t place = 0; place < edit.OptionCount(); ++place) {
        marks.push_back(screen.as<QRadioButton>(edit.Option(place))->isChecked());
    }
    return marks;
}

TEST(OptionEditOnScreen, AClickChoosesAndGoesIntoTheDatafile)
{
    EditorsPage page;
    const Shown screen(page);
    EXPECT_THAT(checked(screen, page.speed), ElementsAre(false, true, false));
    choose(screen, page.speed.Option(2));
    EXPECT_THAT(checked(screen, page.speed), ElementsAre(false, false, true));
    EXPECT_EQ(page.speed.Selected(), "2");
    EXPECT_EQ(page.stored("speed"), "2");
    EXPECT_TRUE(screen[page.speed.lblModified]->isVisible());
    choose(screen, page.speed.Option(1));
    EXPECT_FALSE(screen[page.speed.lblModified]->isVisible());
}

TEST(OptionEditOnScreen, ArrowKeysMoveTheChoiceOneByOne)
{
    EditorsPage page;
    const Shown screen(page);
    screen[page.speed.Option(1)]->setFocus();
    settle();
    screen.key(page.speed.Option(1), Qt::Key_Down);
    EXPECT_THAT(checked(screen, page.speed), ElementsAre(false, false, true));
    EXPECT_TRUE(screen[page.speed.Option(2)]->hasFocus());
    screen.key(page.speed.Option(2), Qt::Key_Right);
    EXPECT_THAT(checked(screen, page.speed), ElementsAre(true, false, false));
    screen.key(page.speed.Option(0), Qt::Key_Up);
    EXPECT_THAT(checked(screen, page.speed), ElementsAre(false, false, true));
    screen.key(page.speed.Option(2), Qt::Key_Left);
    EXPECT_THAT(checked(screen, page.speed), ElementsAre(false, true, false));
    EXPECT_EQ(page.stored("speed"), "1");
}

TEST(OptionEditOnScreen, TabLeavesTheGroup)
{
    EditorsPage page;
    const Shown screen(page);
    screen[page.speed.Option(1)]->setFocus();
    settle();
    screen.key(page.speed.Option(1), Qt::Key_Tab);
    EXPECT_TRUE(screen[page.delay.txtBox[0]]->hasFocus());
    screen.key(page.delay.txtBox[0], Qt::Key_Backtab);
    EXPECT_TRUE(screen[page.speed.Option(1)]->hasFocus());
}

TEST(OptionEditOnScreen, ALockedEditorStaysAsItIs)
{
    EditorsPage page;
    page.speed.setLocked(true);
    const Shown screen(page);
    choose(screen, page.speed.Option(2));
    EXPECT_THAT(checked(screen, page.speed), ElementsAre(false, true, false));
    EXPECT_EQ(page.stored("speed"), "1");
}

TEST(OptionEditOnScreen, OptionsStandBelowEachOtherAndAreReadWhole)
{
    EditorsPage page;
    const Shown screen(page);
    page.speed.Localize(page.translator);
    settle();
    auto* const longest = screen.as<QRadioButton>(page.speed.Option(2));
    EXPECT_EQ(longest->text(), "as fast as the supply air ever permits");
    const auto bottom = [&](std::size_t place) {
        return screen[page.speed.Option(place)]->geometry().bottom();
    };
    EXPECT_LT(bottom(0), bottom(1));
    EXPECT_LT(bottom(1), bottom(2));
    EXPECT_EQ(screen[page.speed.frmOptions]->accessibleName(), "Speed");
    EXPECT_EQ(screen[page.speed.Option(0)]->accessibleName(), "slow");
}

TEST(OptionEditOnScreen, TheGroupTellsItsStateInWords)
{
    EditorsPage page;
    const Shown screen(page);
    auto* const group = screen[page.speed.frmOptions];
    EXPECT_EQ(group->accessibleName(), "Speed");
    choose(screen, page.speed.Option(2));
    EXPECT_EQ(group->accessibleName(), "Speed, modified");
    page.speed.setCorrect(false);
    settle();
    EXPECT_EQ(group->accessibleName(), "Speed, modified, error");
    EXPECT_EQ(group->toolTip(), "modified, error");
    EXPECT_EQ(screen[page.lblSpeed]->accessibleName(), "Speed");
    page.speed.setCorrect(true);
    choose(screen, page.speed.Option(1));
    EXPECT_EQ(group->accessibleName(), "Speed");
}

TEST(OptionEditOnScreen, AListThatComesLaterIsShown)
{
    EditorsPage page;
    const Shown screen(page);
    const auto  shorter =
        quill::test::datafile({}, R"(<data:mappedParam name="speed"><data:mapping value="1" )"
                                  R"(name="only"/></data:mappedParam>)");
    page.speed.SetMappings(documents::findMappedParam(shorter, "speed"));
    page.speed.setOfflineData(documents::findParameter(page.datafile, "speed"));
    settle();
    ASSERT_EQ(page.speed.OptionCount(), 1U);
    EXPECT_THAT(checked(screen, page.speed), ElementsAre(true));
    EXPECT_EQ(screen.as<QRadioButton>(page.speed.Option(0))->text(), "only");
    EXPECT_EQ(screen.view->findChildren<QRadioButton*>().size(), 1);
    page.speed.SetMappings(documents::findMappedParam(page.datafile, "speed"));
    settle();
    EXPECT_EQ(screen.view->findChildren<QRadioButton*>().size(), 3);
}

TEST(TimeEditOnScreen, TypedPartsAreOneDuration)
{
    EditorsPage page;
    const Shown screen(page);
    auto* const hours = screen.as<QLineEdit>(page.delay.txtBox[1]);
    EXPECT_EQ(screen.as<QLineEdit>(page.delay.txtBox[3])->text(), "30");
    hours->setFocus();
    settle();
    QTest::keyClicks(hours, "2"); // replaces the text, which the focus has selected
    settle();
    EXPECT_EQ(hours->text(), "2");
    EXPECT_EQ(page.delay.Text(), "7290");
    EXPECT_EQ(page.stored("delay"), "7290");
    EXPECT_TRUE(screen[page.delay.lblModified]->isVisible());
    QTest::keyClicks(hours, "x");
    settle();
    EXPECT_TRUE(screen[page.delay.lblError]->isVisible());
    EXPECT_EQ(page.stored("delay"), "7290");
}

TEST(TimeEditOnScreen, TabGoesFromPartToPartAndEnterLeaves)
{
    EditorsPage page;
    const Shown screen(page);
    screen[page.delay.txtBox[0]]->setFocus();
    settle();
    for (std::size_t box = 0; box < 3; ++box) {
        screen.key(page.delay.txtBox[box], Qt::Key_Tab);
        EXPECT_TRUE(screen[page.delay.txtBox[box + 1]]->hasFocus());
    }
    screen.key(page.delay.txtBox[3], Qt::Key_Return);
    EXPECT_THAT(page.messenger.calls, Contains("TransferFocus()"));
    screen.key(page.delay.txtBox[3], Qt::Key_Tab);
    EXPECT_TRUE(screen[page.txtNext]->hasFocus());
}

TEST(TimeEditOnScreen, BoxesAndUnitsStandInOneRow)
{
    EditorsPage page;
    const Shown screen(page);
    page.delay.setModified(true);
    settle();
    int right = -1;
    for (std::size_t part = 0; part < 4; ++part) {
        const QRect box  = screen[page.delay.txtBox[part]]->geometry();
        const QRect unit = screen[page.delay.lblUnit[part]]->geometry();
        EXPECT_GT(box.left(), right);
        EXPECT_GT(unit.left(), box.right());
        EXPECT_GT(box.width(), 20);
        right = unit.right();
    }
    EXPECT_GT(screen[page.delay.lblModified]->geometry().left(), right);
}

TEST(TimeEditOnScreen, EachBoxIsCalledByItsOwnUnit)
{
    EditorsPage page;
    const Shown screen(page);
    const auto  names = [&] {
        std::vector<std::string> result;
        for (const platform::TextBox& box : page.delay.txtBox) {
            result.push_back(screen[box]->accessibleName().toStdString());
        }
        return result;
    };
    EXPECT_THAT(names(), ElementsAre("Delay, d", "Delay, h", "Delay, min", "Delay, s"));
    page.delay.setModified(true);
    page.delay.setCorrect(false);
    settle();
    EXPECT_THAT(names(), ElementsAre("Delay, d, modified, error", "Delay, h, modified, error",
                                     "Delay, min, modified, error", "Delay, s, modified, error"));
}

} // namespace
} // namespace quill::qt::test
