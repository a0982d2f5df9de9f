#include "editors/CtrTBLaunchedPanel.h"
#include "qt/images.h"
#include "tests/qt/screen_test_support.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QWheelEvent>

#include <gmock/gmock.h>

namespace quill::qt::test {

namespace {

TEST(ButtonsOnScreen, AClickReachesTheModelAndTheFocusCameBefore)
{
    struct : Page {
        platform::CommandButton cmd{
            *this, {.Name = "cmd", .Caption = "&Go", .Width = 1200, .Height = 375}};
    } page;
    std::vector<std::string> heard;
    const auto  got     = page.cmd.GotFocus.subscribe([&] { heard.emplace_back("focus"); });
    const auto  clicked = page.cmd.Click.subscribe([&] { heard.emplace_back("click"); });
    const Shown screen(page);
    screen.click(page.cmd);
    EXPECT_THAT(heard, ::testing::ElementsAre("focus", "click"));
    screen.key(page.cmd, Qt::Key_Space);
    EXPECT_THAT(heard, ::testing::ElementsAre("focus", "click", "click"));

    page.cmd.Enabled = false;
    settle();
    screen.click(page.cmd);
    EXPECT_EQ(heard.size(), 3U);
}

TEST(ButtonsOnScreen, PicturesComeByKey)
{
    struct : Page {
        platform::CommandButton cmd{*this, {.Name = "cmd", .Width = 1200, .Height = 375}};
        platform::Image img{*this, {.Name = "img", .Top = 900, .Width = 300, .Height = 300}};
    } page;
    QPixmap red(16, 16);
    red.fill(Qt::red);
    Images::put("red", red);
    page.cmd.Picture    = "red";
    page.img.Picture    = "red";
    int         clicks  = 0;
    const auto  clicked = page.img.Click.subscribe([&] { ++clicks; });
    const Shown screen(page);
    EXPECT_FALSE(screen.as<QPushButton>(page.cmd)->icon().isNull());
    const QImage image = screen.as<QLabel>(page.img)->pixmap().toImage();
    EXPECT_EQ(image.pixelColor(image.rect().center()), QColor(Qt::red));
    screen.click(page.img);
    EXPECT_EQ(clicks, 1);
    page.img.Picture = "nobody put this there";
    settle();
    EXPECT_TRUE(screen.as<QLabel>(page.img)->pixmap().isNull());
}

TEST(ButtonsOnScreen, ACheckBoxShowsWhatTheModelSaysAfterTheClick)
{
    struct : Page {
        platform::CheckBox chk{*this,
                               {.Name = "chk", .Caption = "On", .Width = 1500, .Height = 255}};
    } page;
    const Shown screen(page);
    auto* const box = screen.as<QCheckBox>(page.chk);
    screen.key(page.chk, Qt::Key_Space);
    EXPECT_EQ(page.chk.Value.get(), 1);
    EXPECT_TRUE(box->isChecked());
    // A handler that does not agree wins.
    const auto back = page.chk.Click.subscribe([&] { page.chk.Value = 1; });
    screen.key(page.chk, Qt::Key_Space);
    EXPECT_EQ(page.chk.Value.get(), 1);
    EXPECT_TRUE(box->isChecked());
}

TEST(ButtonsOnScreen, OptionsFollowTheirContainersAndTheArrowKeys)
{
    struct : Page {
        platform::Frame frame{*this, {.Name = "frame", .Top = 900, .Width = 5000, .Height = 900}};
        platform::OptionButton first{*this, {.Name = "first", .Caption = "A", .Width = 900}};
        platform::OptionButton second{
            *this, {.Name = "second", .Caption = "B", .Left = 1500, .Width = 900}};
        platform::OptionButton other{frame, {.Name = "other", .Caption = "C", .Width = 900}};
    } page;
    page.other.Value = true;
    const Shown screen(page);
    QTest::mouseClick(screen[page.first], Qt::LeftButton, {}, QPoint(6, 8));
    settle();
    EXPECT_TRUE(page.first.Value);
    screen.key(page.first, Qt::Key_Down);
    EXPECT_TRUE(page.second.Value);
    EXPECT_FALSE(page.first.Value);
    EXPECT_TRUE(page.other.Value);
    EXPECT_TRUE(screen.as<QRadioButton>(page.second)->isChecked());
    EXPECT_FALSE(screen.as<QRadioButton>(page.first)->isChecked());
    EXPECT_TRUE(screen.as<QRadioButton>(page.other)->isChecked());
    EXPECT_TRUE(screen[page.second]->hasFocus());
    // The program may leave none chosen.
    page.second.Value = false;
    settle();
    EXPECT_FALSE(screen.as<QRadioButton>(page.second)->isChecked());
}

TEST(LabelsOnScreen, AClickCountsOnlyWhereTheLabelIsEnabled)
{
    struct : Page {
        platform::Label lbl{*this, {.Name = "lbl", .Caption = "info", .Width = 900, .Height = 255}};
    } page;
    int         clicks  = 0;
    const auto  clicked = page.lbl.Click.subscribe([&] { ++clicks; });
    const Shown screen(page);
    screen.click(page.lbl);
    EXPECT_EQ(clicks, 1);
    page.lbl.Enabled = false;
    settle();
    screen.click(page.lbl);
    EXPECT_EQ(clicks, 1);
}

struct ComboPage : Page {
    platform::ComboBox cbo{*this, {.Name = "cbo", .Width = 1500, .Height = 315}};
    ComboPage()
    {
        for (const char* text : {"zero", "one", "two"}) {
            cbo.AddItem(text);
        }
    }
};

TEST(LabelsOnScreen, ATitleIsBoldAndWholeAllTheSame)
{
    struct Titled : Page {
        platform::Label lbl{
            *this, {.Name = "lbl", .Caption = "Minimum closing time", .Width = 900, .Height = 270}};
    } page;
    const Shown screen(page);
    const auto& shown = *screen.as<QLabel>(page.lbl);
    const QFont plain = shown.font();
    const int   width = shown.width();
    page.lbl.Bold     = true;
    settle();
    EXPECT_TRUE(shown.font().bold());
    EXPECT_EQ(shown.font().pointSizeF(), plain.pointSizeF());
    EXPECT_GT(shown.width(), width) << "bold letters are wider";
    EXPECT_EQ(shown.text(), "Minimum closing time");
    page.lbl.Bold = false;
    settle();
    EXPECT_EQ(shown.font(), plain);
}

TEST(ComboBoxOnScreen, AChoiceByKeyAndByMouseIsTheUsers)
{
    ComboPage   page;
    int         clicks  = 0;
    const auto  clicked = page.cbo.Click.subscribe([&] { ++clicks; });
    const Shown screen(page);
    auto* const box = screen.as<QComboBox>(page.cbo);
    EXPECT_EQ(box->currentIndex(), -1);
    EXPECT_EQ(box->count(), 3);
    box->setFocus();
    screen.key(page.cbo, Qt::Key_Down);
    EXPECT_EQ(page.cbo.ListIndex(), 0);
    EXPECT_EQ(clicks, 1);

    box->showPopup();
    settle();
    const QRect row = box->view()->visualRect(box->model()->index(2, 0));
    QTest::mouseMove(box->view()->viewport(), row.center());
    QTest::mouseClick(box->view()->viewport(), Qt::LeftButton, {}, row.center());
    settle();
    EXPECT_EQ(page.cbo.ListIndex(), 2);
    EXPECT_EQ(clicks, 2);

    page.cbo.setListIndex(1);
    page.cbo.AddItem("three");
    settle();
    EXPECT_EQ(box->currentIndex(), 1);
    EXPECT_EQ(box->count(), 4);
    EXPECT_EQ(clicks, 2);

    page.cbo.Clear();
    page.cbo.AddItem("new");
    settle();
    EXPECT_EQ(box->count(), 1);
    EXPECT_EQ(box->currentIndex(), -1);
}

TEST(ComboBoxOnScreen, ALockedBoxTakesTheChoiceBack)
{
    ComboPage page;
    page.cbo.setListIndex(1);
    page.cbo.Locked = true;
    const Shown screen(page);
    screen[page.cbo]->setFocus();
    screen.key(page.cbo, Qt::Key_Down);
    EXPECT_EQ(page.cbo.ListIndex(), 1);
    EXPECT_EQ(screen.as<QComboBox>(page.cbo)->currentIndex(), 1);
}

TEST(ComboBoxOnScreen, ALockedBoxKeepsItsListClosed)
{
    ComboPage page;
    page.cbo.Locked = true;
    const Shown screen(page);
    auto* const box = screen.as<QComboBox>(page.cbo);
    screen.click(page.cbo);
    EXPECT_FALSE(box->view()->isVisible());
    screen.key(page.cbo, Qt::Key_F4);
    EXPECT_FALSE(box->view()->isVisible());
    page.cbo.Locked = false;
    settle();
    box->showPopup();
    EXPECT_TRUE(box->view()->isVisible());
    box->hidePopup();
}

TEST(ComboBoxOnScreen, AnEditableBoxTakesATextOfItsOwn)
{
    ComboPage page;
    page.cbo.Editable   = true;
    int         changes = 0;
    const auto  changed = page.cbo.Change.subscribe([&] { ++changes; });
    const Shown screen(page);
    auto* const box = screen.as<QComboBox>(page.cbo);
    box->setFocus();
    QTest::keyClicks(box, "x");
    EXPECT_EQ(page.cbo.Text(), "x");
    EXPECT_EQ(page.cbo.ListIndex(), -1);
    EXPECT_EQ(changes, 1);
    QTest::keyClick(box, Qt::Key_Backspace);
    QTest::keyClicks(box, "two");
    settle();
    EXPECT_EQ(page.cbo.ListIndex(), 2);
    EXPECT_EQ(box->currentIndex(), 2);
    EXPECT_EQ(box->currentText(), "two");
}

TEST(ComboBoxOnScreen, TheWheelChangesNothingInPassing)
{
    ComboPage page;
    page.cbo.setListIndex(0);
    const Shown    screen(page);
    QWidget* const box = screen[page.cbo];
    box->clearFocus();
    QWheelEvent turn(QPointF(5, 5), box->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120),
                     Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(box, &turn);
    settle();
    EXPECT_EQ(page.cbo.ListIndex(), 0);
}

TEST(DatePickerOnScreen, TypedAndSteppedDatesArrive)
{
    struct : Page {
        platform::DatePicker date{*this, {.Name = "date", .Width = 1800, .Height = 315}};
    } page;
    page.date.setValue({2024, 5, 6, 7, 8, 9});
    const Shown screen(page);
    auto* const edit = screen.as<QDateTimeEdit>(page.date);
    EXPECT_EQ(edit->text(), "2024-05-06");
    edit->setFocus();
    edit->setCurrentSection(QDateTimeEdit::DaySection);
    screen.key(page.date, Qt::Key_Up);
    EXPECT_EQ(platform::toIso(page.date.Value()), "2024-05-07 07:08:09");

    page.date.setMaxDate({2024, 5, 8});
    settle();
    screen.key(page.date, Qt::Key_Up);
    screen.key(page.date, Qt::Key_Up);
    EXPECT_LE(page.date.Value(), (platform::DateTime{2024, 5, 8}));
    EXPECT_EQ(edit->date(),
              QDate(page.date.Value().year, page.date.Value().month, page.date.Value().day));

    page.date.Format = 2;
    settle();
    EXPECT_EQ(edit->displayFormat(), "HH:mm:ss");
    EXPECT_FALSE(edit->calendarPopup());
}

TEST(DatePickerOnScreen, DatesOfOtherCenturiesAreShown)
{
    struct : Page {
        platform::DatePicker date{*this, {.Name = "date", .Width = 1800, .Height = 315}};
    } page;
    page.date.setValue({1700, 2, 3});
    const Shown screen(page);
    EXPECT_EQ(screen.as<QDateTimeEdit>(page.date)->text(), "1700-02-03");
    EXPECT_EQ(page.date.Value().year, 1700);
}

TEST(FramesOnScreen, TheirContentsMoveHideAndGoGreyWithThem)
{
    struct : Page {
        platform::Frame   frame{*this,
                              {.Name    = "frame",
                                 .Caption = "Group",
                                 .Left    = 300,
                                 .Top     = 300,
                                 .Width   = 5000,
                                 .Height  = 2000}};
        platform::TextBox txt{
            frame, {.Name = "txt", .Left = 150, .Top = 600, .Width = 900, .Height = 315}};
    } page;
    const Shown screen(page);
    EXPECT_EQ(screen.as<QGroupBox>(page.frame)->title(), "Group");
    EXPECT_EQ(screen[page.txt]->parentWidget(), screen[page.frame]);
    page.frame.Enabled = false;
    settle();
    EXPECT_FALSE(screen[page.txt]->isEnabled());
    EXPECT_TRUE(screen[page.txt]->isEnabledTo(screen[page.frame]));
    page.frame.Visible = false;
    settle();
    EXPECT_FALSE(screen[page.txt]->isVisible());
}

TEST(PanelOnScreen, TheBackdropIsBehindWhateverWasMadeBefore)
{
    struct : Page {
        platform::CommandButton cmd{
            *this, {.Name = "cmd", .Left = 300, .Top = 300, .Width = 900, .Height = 375}};
        CtrTBLaunchedPanel panel{*this, {.Name = "panel", .Width = 6000, .Height = 3000}};
    } page;
    const Shown screen(page);
    EXPECT_EQ(screen.view->childAt(40, 30), screen[page.cmd]);
    const QImage image = screen.view->grab().toImage();
    // The slide gets lighter downwards.
    EXPECT_LT(image.pixelColor(300, 10).lightness(), image.pixelColor(300, 190).lightness());
}

TEST(ZOrderOnScreen, TheWidgetInFrontIsTheOneThatIsHit)
{
    struct : Page {
        platform::CommandButton first{*this, {.Name = "first", .Width = 1500, .Height = 600}};
        platform::CommandButton second{*this, {.Name = "second", .Width = 1500, .Height = 600}};
    } page;
    const Shown screen(page);
    EXPECT_EQ(screen.view->childAt(20, 20), screen[page.second]);
    page.first.ZOrder();
    settle();
    EXPECT_EQ(screen.view->childAt(20, 20), screen[page.first]);
}

} // namespace

} // namespace quill::qt::test
