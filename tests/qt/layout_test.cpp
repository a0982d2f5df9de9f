#include "qt/geometry.h"
#include "tests/qt/screen_test_support.h"

#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>

#include <gmock/gmock.h>

namespace quill::qt::test {

namespace {

TEST(Geometry, FifteenTwipsAreOnePixelAndEdgesMeet)
{
    EXPECT_EQ(toPixels(3000), 200);
    EXPECT_EQ(toPixels(7), 0);
    EXPECT_EQ(toPixels(-23), -2);
    const platform::Label left({.Left = 100, .Width = 307});
    const platform::Label right({.Left = 407, .Width = 100});
    EXPECT_EQ(designRect(left).right() + 1, designRect(right).left());
}

TEST(Geometry, AWidgetOfAnySizeHasItsPlace)
{
    constexpr std::int32_t kMost = 2147483647;
    const platform::Label  wide({.Left = 100, .Top = 100, .Width = kMost, .Height = kMost});
    EXPECT_EQ(designRect(wide), QRect(QPoint(7, 7), QPoint(kMost / 15 + 6, kMost / 15 + 6)));
    EXPECT_EQ(toTwips(10), 150);
    EXPECT_EQ(toTwips(kMost), kMost);
}

TEST(Geometry, ARowThatIsTooLowGrowsEvenlyUpAndDown)
{
    const Fit   fit{QSize(50, 27), 315, false, true};
    const QRect place = seat(QRect(10, 100, 80, 21), fit);
    EXPECT_EQ(place, QRect(10, 97, 80, 27));
    EXPECT_EQ(seat(QRect(10, 100, 80, 40), fit), QRect(10, 100, 80, 40));
    // What the design leaves open is the natural width and the usual height of the kind.
    EXPECT_EQ(seat(QRect(10, 100, 0, 0), fit), QRect(10, 97, 50, 27));
}

TEST(Geometry, AWideTextTakesTheRoomThatIsFree)
{
    const QRect place(100, 10, 50, 20);
    const QRect area(0, 0, 400, 100);
    EXPECT_EQ(grown(place, 90, {}, area), QRect(100, 10, 90, 20));
    EXPECT_EQ(grown(place, 40, {}, area), place);
    // To the right up to the neighbour, the rest to the left.
    const QRect neighbour(171, 12, 50, 20);
    EXPECT_EQ(grown(place, 90, {neighbour}, area).right(), 166);
    EXPECT_EQ(grown(place, 90, {neighbour}, area).width(), 90);
    // Half a text to the left helps nobody.
    EXPECT_EQ(grown(place, 200, {neighbour}, area).left(), 100);
    // Another row is no neighbour, neither is what lies under it all.
    EXPECT_EQ(grown(place, 90, {QRect(171, 40, 50, 20), QRect(0, 0, 300, 90)}, area),
              QRect(100, 10, 90, 20));
    EXPECT_EQ(grown(place, 900, {}, {}).width(), 900);
}

struct Editor : platform::Control {
    using Control::Control;
    platform::TextBox txtBox{*this, {.Name = "txtBox", .Width = 1500, .Height = 315}};
    platform::Label lblUnit{*this, {.Name = "lblUnit", .Caption = "m³/h", .Left = 1560, .Top = 45}};
};

struct LayoutPage : Page {
    platform::Label         lblName{*this,
                            {.Name    = "lblName",
                                     .Caption = "A caption that is wider than its design",
                                     .Left    = 300,
                                     .Top     = 345,
                                     .Width   = 900,
                                     .Height  = 255}};
    Editor                  editor{*this,
                  {.Name = "editor", .Left = 6000, .Top = 300, .Width = 1600, .Height = 315}};
    platform::CommandButton cmd{*this,
                                {.Name    = "cmd",
                                 .Caption = "Auf Werkseinstellung zurücksetzen",
                                 .Left    = 300,
                                 .Top     = 1500,
                                 .Width   = 900,
                                 .Height  = 375}};
    platform::Label         lblTight{*this,
                             {.Name    = "lblTight",
                                      .Caption = "Also wider than it was designed",
                                      .Left    = 300,
                                      .Top     = 3000,
                                      .Width   = 900,
                                      .Height  = 255}};
    platform::TextBox       txtNear{
        *this, {.Name = "txtNear", .Left = 1300, .Top = 2970, .Width = 900, .Height = 315}};
};

TEST(LayoutOnScreen, LabelBoxAndUnitOfARowAreOnOneLine)
{
    LayoutPage  page;
    const Shown screen(page);
    const auto  middle = [&](const platform::Widget& widget) {
        const QWidget* const shown = screen[widget];
        return shown->mapTo(screen.view.get(), shown->rect().center()).y();
    };
    EXPECT_NEAR(middle(page.lblName), middle(page.editor.txtBox), 1);
    EXPECT_NEAR(middle(page.editor.lblUnit), middle(page.editor.txtBox), 1);
}

TEST(LayoutOnScreen, NoTextIsCutWhereThereIsRoom)
{
    LayoutPage  page;
    const Shown screen(page);
    auto* const label = screen.as<QLabel>(page.lblName);
    EXPECT_EQ(label->text(), "A caption that is wider than its design");
    EXPECT_GE(label->width(), label->fontMetrics().horizontalAdvance(label->text()));
    auto* const button = screen.as<QPushButton>(page.cmd);
    EXPECT_GT(button->width(), button->fontMetrics().horizontalAdvance(button->text()) + 8);
    // A unit without a width, and a box that is higher than its control: the control holds both.
    auto* const unit = screen.as<QLabel>(page.editor.lblUnit);
    EXPECT_EQ(unit->text(), QString::fromUtf8("m³/h"));
    EXPECT_TRUE(screen[page.editor]->rect().contains(unit->geometry()));
    EXPECT_TRUE(screen[page.editor]->rect().contains(screen[page.editor.txtBox]->geometry()));
    EXPECT_GE(screen[page.editor.txtBox]->height(),
              screen[page.editor.txtBox]->minimumSizeHint().height());
}

TEST(LayoutOnScreen, ATextWithoutRoomIsInItsToolTip)
{
    LayoutPage  page;
    const Shown screen(page);
    auto* const label = screen.as<QLabel>(page.lblTight);
    EXPECT_NE(label->text(), "Also wider than it was designed");
    EXPECT_EQ(label->toolTip(), "Also wider than it was designed");
    EXPECT_EQ(label->accessibleName(), "Also wider than it was designed");
    EXPECT_LT(label->geometry().right(), screen[page.txtNear]->geometry().left());
    page.lblTight.Caption = "Short";
    settle();
    EXPECT_EQ(label->text(), "Short");
    EXPECT_TRUE(label->toolTip().isEmpty());
}

TEST(LayoutOnScreen, FollowsTheModel)
{
    LayoutPage  page;
    const Shown screen(page);
    page.cmd.Left  = 3000;
    page.cmd.Width = 6000;
    settle();
    EXPECT_EQ(screen[page.cmd]->x(), 200);
    EXPECT_EQ(screen[page.cmd]->width(), 400);
}

TEST(LayoutOnScreen, ChangesAreAppliedOncePerTurn)
{
    LayoutPage  page;
    const Shown screen(page);
    page.cmd.Left = 3000;
    EXPECT_EQ(screen[page.cmd]->x(), 20);
    screen.view->flush();
    EXPECT_EQ(screen[page.cmd]->x(), 200);
}

TEST(LayoutOnScreen, TheUserResizesTheFormAndTheFormItself)
{
    LayoutPage  page;
    const Shown screen(page);
    EXPECT_EQ(screen.view->size(), QSize(600, 400));
    EXPECT_EQ(page.Width.get(), 9000);
    screen.view->resize(800, 500);
    settle();
    EXPECT_EQ(page.Width.get(), 12000);
    EXPECT_EQ(page.Height.get(), 7500);
    EXPECT_EQ(screen.view->sizeHint(), QSize(600, 400));
    page.Width = 15000;
    EXPECT_EQ(screen.view->sizeHint().width(), 1000);
}

// The scale is fixed when a program starts, so other scales need other programs: this one.
TEST(LayoutOnScreen, IsTheSameAtEveryScale)
{
    for (const char* scale : {"1.5", "2"}) {
        QProcess            again;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_SCALE_FACTOR", scale);
        again.setProcessEnvironment(environment);
        again.start(QCoreApplication::applicationFilePath(),
                    {"--gtest_filter=LayoutOnScreen.*-*EveryScale:Geometry.*"});
        ASSERT_TRUE(again.waitForFinished(60000));
        EXPECT_EQ(again.exitCode(), 0) << scale << again.readAllStandardOutput().toStdString();
    }
}

} // namespace

} // namespace quill::qt::test
