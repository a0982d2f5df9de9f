#include "qt/colors.h"
#include "tests/qt/screen_test_support.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include <gmock/gmock.h>

namespace quill::qt::test {

namespace {

constexpr platform::Color kRed   = 255;
constexpr platform::Color kBlue  = 0xff0000;
constexpr platform::Color kWhite = 0xffffff;
constexpr platform::Color kGrey  = 0xe0e0e0;

QPalette light()
{
    QPalette palette(QColor(239, 239, 239));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}

QPalette dark()
{
    QPalette palette(QColor(45, 45, 48));
    palette.setColor(QPalette::Window, QColor(45, 45, 48));
    palette.setColor(QPalette::Base, QColor(30, 30, 32));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        palette.setColor(role, QColor(235, 235, 235));
    }
    return palette;
}

TEST(Colors, SystemColorsAreThePalettes)
{
    for (const QPalette& palette : {light(), dark()}) {
        EXPECT_EQ(shownColor(platform::kWindowText, QPalette::Text, palette),
                  palette.color(QPalette::Text));
        EXPECT_EQ(shownColor(platform::kWindowText, QPalette::WindowText, palette),
                  palette.color(QPalette::WindowText));
        EXPECT_EQ(shownColor(platform::kWindowBackground, QPalette::Base, palette),
                  palette.color(QPalette::Base));
        EXPECT_EQ(shownColor(platform::kButtonFace, QPalette::Window, palette),
                  palette.color(QPalette::Window));
    }
}

TEST(Colors, ALightPaletteDarkensATextOnlyAsFarAsItMust)
{
    const QColor red = shownColor(kRed, QPalette::Text, light());
    EXPECT_GE(contrast(red, light().color(QPalette::Base)), kReadableContrast);
    EXPECT_GT(red.red(), 220); // still red, pure red is too light on white
    EXPECT_EQ(red.green(), 0);
    EXPECT_GE(contrast(shownColor(kRed, QPalette::Text, light(), QColor(0xe0, 0xe0, 0xe0)),
                       QColor(0xe0, 0xe0, 0xe0)),
              kReadableContrast);
}

TEST(Colors, ALightPaletteShowsTheOthersAsTheyAre)
{
    EXPECT_EQ(shownColor(kBlue, QPalette::Text, light()), QColor(0, 0, 255));
    EXPECT_EQ(shownColor(kGrey, QPalette::Base, light()), QColor(0xe0, 0xe0, 0xe0));
    EXPECT_EQ(shownColor(kWhite, QPalette::Base, light()), QColor(Qt::white));
}

TEST(Colors, ADarkPaletteKeepsTheMeaning)
{
    const QColor base = dark().color(QPalette::Base);
    EXPECT_EQ(shownColor(kWhite, QPalette::Base, dark()), base);
    const QColor grey = shownColor(kGrey, QPalette::Base, dark());
    EXPECT_LT(grey.lightness(), base.lightness());
    for (const QColor& ground : {base, grey}) {
        const QColor red  = shownColor(kRed, QPalette::Text, dark(), ground);
        const QColor blue = shownColor(kBlue, QPalette::Text, dark(), ground);
        EXPECT_GE(contrast(red, ground), kReadableContrast);
        EXPECT_GE(contrast(blue, ground), kReadableContrast);
        EXPECT_GT(red.red(), red.blue() + 60);
        EXPECT_GT(blue.blue(), blue.red() + 60);
    }
    // A tint stays a tint and can be written on.
    const QColor tint = shownColor(0xe3ffff, QPalette::Window, dark());
    EXPECT_GE(contrast(tint, QColor(235, 235, 235)), kReadableContrast);
    EXPECT_GE(contrast(shownColor(0, QPalette::Text, dark()), base), kReadableContrast);
}

TEST(Colors, ContrastIsThatOfTheGuidelines)
{
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21.0, 1e-6);
    EXPECT_NEAR(contrast(Qt::white, Qt::white), 1.0, 1e-6);
    EXPECT_NEAR(contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
}

TEST(Colors, ADisabledValueCanBeRead)
{
    for (const QPalette& palette : {light(), dark()}) {
        const QColor grey  = shownColor(kGrey, QPalette::Base, palette);
        const QColor faint = faintColor(palette.color(QPalette::Text), grey);
        EXPECT_GE(contrast(faint, grey), kReadableContrast);
        EXPECT_NE(faint, palette.color(QPalette::Text));
    }
}

struct ColorPage : Page {
    platform::TextBox  txt{*this, {.Name = "txt", .Width = 1500, .Height = 315}};
    platform::ComboBox cbo{*this, {.Name = "cbo", .Top = 600, .Width = 1500, .Height = 315}};
};

TEST(Colors, AnEdgeIsToldFromTheGroundsOnBothSidesOfIt)
{
    for (const QPalette& palette : {light(), dark()}) {
        // What the stock style makes of it.
        const QColor edge = outlineColor(palette).darker(140);
        EXPECT_GE(contrast(edge, palette.color(QPalette::Base)), kEdgeContrast - 0.1);
        EXPECT_GE(contrast(edge, palette.color(QPalette::Window)), kEdgeContrast - 0.1);
    }
}

TEST(ColorsOnScreen, ABoxHasItsEdgeInBothPalettes)
{
    ColorPage   page;
    const Shown screen(page);
    for (const QPalette& palette : {light(), dark()}) {
        screen.view->setPalette(palette);
        settle();
        for (const platform::Widget* box : {static_cast<platform::Widget*>(&page.txt),
                                            static_cast<platform::Widget*>(&page.cbo)}) {
            EXPECT_EQ(screen[*box]->palette().color(QPalette::Window), outlineColor(palette));
        }
    }
}

TEST(ColorsOnScreen, AWhiteFrameIsThePageThatItStandsOnWhereThatIsDark)
{
    struct FramedPage : Page {
        platform::Frame white{*this, {.Name = "white", .Width = 3000, .Height = 900}};
        platform::Frame grey{*this, {.Name = "grey", .Top = 900, .Width = 3000, .Height = 900}};
    } page;
    page.white.BackColor = kWhite;
    page.grey.BackColor  = kGrey;
    const Shown screen(page);
    screen.view->setPalette(light());
    settle();
    EXPECT_TRUE(screen[page.white]->autoFillBackground());
    EXPECT_EQ(screen[page.white]->palette().color(QPalette::Window), QColor(Qt::white));
    screen.view->setPalette(dark());
    settle();
    EXPECT_FALSE(screen[page.white]->autoFillBackground());
    EXPECT_EQ(screen[page.white]->palette().color(QPalette::Window), QColor(45, 45, 48));
    EXPECT_TRUE(screen[page.grey]->autoFillBackground()) << "a grey one still says something";
}

TEST(ColorsOnScreen, FollowTheModelAndThePalette)
{
    ColorPage page;
    page.txt.BackColor = kGrey;
    page.txt.ForeColor = kRed;
    page.cbo.ForeColor = kBlue;
    const Shown screen(page);
    screen.view->setPalette(light());
    settle();
    EXPECT_EQ(screen[page.txt]->palette().color(QPalette::Base), QColor(0xe0, 0xe0, 0xe0));
    EXPECT_EQ(screen[page.txt]->palette().color(QPalette::Text),
              shownColor(kRed, QPalette::Text, screen[page.txt]->palette()));
    EXPECT_EQ(screen[page.cbo]->palette().color(QPalette::ButtonText), QColor(0, 0, 255));

    screen.view->setPalette(dark());
    settle();
    const QPalette shown = screen[page.txt]->palette();
    EXPECT_GE(contrast(shown.color(QPalette::Text), shown.color(QPalette::Base)),
              kReadableContrast);

    page.txt.ForeColor = platform::kWindowText;
    page.txt.BackColor = kWhite;
    settle();
    EXPECT_EQ(screen[page.txt]->palette().color(QPalette::Text), QColor(235, 235, 235));
    EXPECT_EQ(screen[page.txt]->palette().color(QPalette::Base), QColor(30, 30, 32));
}

} // namespace

} // namespace quill::qt::test
