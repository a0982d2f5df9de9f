#include "tests/qt/screen_test_support.h"

#include <QAccessible>

#include <gmock/gmock.h>

namespace quill::qt::test {

namespace {

struct Editor : platform::Control {
    using Control::Control;
    platform::TextBox txtBox{*this, {.Name = "txtBox", .Width = 1500, .Height = 315}};
    platform::Label lblUnit{*this, {.Name = "lblUnit", .Caption = "mbar", .Left = 1900, .Top = 45}};
    platform::Label lblModified{
        *this, {.Name = "lblModified", .Caption = "*", .Left = 1560, .Top = 45, .Visible = false}};
    platform::Label lblError{
        *this, {.Name = "lblError", .Caption = "!", .Left = 1700, .Top = 45, .Visible = false}};
};

struct NamePage : Page {
    platform::Label    lblRange{*this,
                             {.Name    = "lblRange",
                                 .Caption = "Range",
                                 .Left    = 300,
                                 .Top     = 345,
                                 .Width   = 900,
                                 .Height  = 255}};
    platform::Label    lblList{*this,
                            {.Name    = "lblList",
                                .Caption = "Changes",
                                .Left    = 300,
                                .Top     = 1200,
                                .Width   = 900,
                                .Height  = 255}};
    Editor             editor{*this,
                  {.Name = "editor", .Left = 1500, .Top = 300, .Width = 2400, .Height = 315}};
    platform::ListView lst{*this,
                           {.Name = "lst", .Left = 300, .Top = 1500, .Width = 3000, .Height = 900}};
    platform::CheckBox chk{*this,
                           {.Name = "chk", .Caption = "&Enabled", .Left = 4500, .Top = 1500}};
};

TEST(AccessibleNames, AListTellsWhatItIsCalledBesidesItsValue)
{
    struct ListPage : Page {
        platform::Label    lbl{*this,
                            {.Name = "lbl", .Caption = "Valve type", .Width = 900, .Height = 255}};
        platform::ComboBox cbo{*this, {.Name = "cbo", .Left = 1500, .Width = 1500, .Height = 315}};
    } page;
    page.cbo.AddItem("Globe valve");
    page.cbo.ToolTipText = "What is fitted";
    const Shown screen(page);
    settle();
    (void)page.cbo.choose(0);
    settle();
    const QAccessibleInterface& told = *QAccessible::queryAccessibleInterface(screen[page.cbo]);
    EXPECT_EQ(told.text(QAccessible::Value), "Globe valve");
    const QString all = told.text(QAccessible::Name) + u'\n' + told.text(QAccessible::Description);
    EXPECT_TRUE(all.contains("Valve type")) << all.toStdString();
    EXPECT_TRUE(all.contains("What is fitted"));
}

TEST(AccessibleNames, ComeFromTheLabelsAroundAndTellTheState)
{
    NamePage    page;
    const Shown screen(page);
    const auto  name = [&](const platform::Widget& widget) {
        return screen[widget]->accessibleName().toStdString();
    };
    EXPECT_EQ(name(page.editor.txtBox), "Range, mbar");
    EXPECT_EQ(name(page.lst), "Changes");
    EXPECT_EQ(name(page.chk), "Enabled");

    page.editor.lblError.Visible    = true;
    page.editor.lblModified.Visible = true;
    page.editor.lblUnit.Caption     = "bar";
    page.editor.txtBox.ToolTipText  = "0 to 10";
    settle();
    EXPECT_EQ(name(page.editor.txtBox), "Range, bar, modified, error");
    EXPECT_EQ(screen[page.editor.txtBox]->toolTip(), "0 to 10\nmodified, error");
    EXPECT_EQ(screen[page.editor.txtBox]->accessibleDescription(), "0 to 10\nmodified, error");
    EXPECT_EQ(screen[page.editor.lblError]->toolTip(), "error");

    screen.view->setStateWords({.modified = "geändert", .error = "Fehler"});
    settle();
    EXPECT_EQ(name(page.editor.txtBox), "Range, bar, geändert, Fehler");
    EXPECT_EQ(screen[page.editor.lblError]->toolTip(), "Fehler");

    page.lblRange.Caption = "Bereich";
    settle();
    EXPECT_EQ(name(page.editor.txtBox), "Bereich, bar, geändert, Fehler");
}

TEST(AccessibleNames, ACheckBoxWithoutACaptionIsCalledAsTheTextBehindIt)
{
    struct : Page {
        platform::Label lblBefore{
            *this, {.Name = "lblBefore", .Caption = "Mode", .Width = 900, .Height = 255}};
        platform::CheckBox chk{*this, {.Name = "chk", .Left = 1000, .Width = 255, .Height = 255}};
        platform::Label    lblBehind{*this,
                                  {.Name    = "lblBehind",
                                      .Caption = "Show all",
                                      .Left    = 1350,
                                      .Width   = 1500,
                                      .Height  = 255}};
    } page;
    page.chk.Caption = "";
    const Shown screen(page);
    EXPECT_EQ(screen[page.chk]->accessibleName(), "Show all");
    page.lblBehind.Visible = false;
    settle();
    EXPECT_EQ(screen[page.chk]->accessibleName(), "Mode");
}

TEST(AccessibleNames, AHostKnowsBetter)
{
    NamePage    page;
    const Shown screen(page);
    screen.view->setAccessibleLabel(page.editor, "Upper range value");
    settle();
    EXPECT_EQ(screen[page.editor.txtBox]->accessibleName(), "Upper range value, mbar");
    screen.view->setAccessibleLabel(page.editor, {});
    settle();
    EXPECT_EQ(screen[page.editor.txtBox]->accessibleName(), "Range, mbar");
}

TEST(AccessibleNames, NothingThatTakesTheFocusIsWithoutOne)
{
    NamePage    page;
    const Shown screen(page);
    for (const QWidget* widget : screen.view->findChildren<QWidget*>()) {
        if (widget->focusPolicy() & Qt::TabFocus && !widget->objectName().startsWith("qt_")) {
            EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
        }
    }
}

} // namespace

} // namespace quill::qt::test
