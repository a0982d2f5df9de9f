#include "tests/qt/screen_test_support.h"

#include <QDateTimeEdit>
#include <QLineEdit>

#include <gtest/gtest.h>

namespace quill::qt::test {
namespace {

TEST(DatePickerOnScreen, ALockedPickerShowsItsDateAndTakesNoKey)
{
    struct : Page {
        platform::DatePicker date{*this, {.Name = "date", .Width = 1800, .Height = 315}};
    } page;
    page.date.setValue({2024, 5, 6});
    page.date.Locked = true;
    const Shown screen(page);
    auto* const edit = screen.as<QDateTimeEdit>(page.date);
    EXPECT_TRUE(edit->isReadOnly());
    edit->setFocus();
    screen.key(page.date, Qt::Key_Up);
    EXPECT_EQ(platform::toIso(page.date.Value()), "2024-05-06 00:00:00");
    EXPECT_EQ(edit->date(), QDate(2024, 5, 6));

    page.date.Locked = false;
    settle();
    EXPECT_FALSE(edit->isReadOnly());
    screen.key(page.date, Qt::Key_Up);
    EXPECT_NE(platform::toIso(page.date.Value()), "2024-05-06 00:00:00");
}

TEST(DatePickerOnScreen, NothingStaysMarkedOnceTheFocusHasGone)
{
    struct : Page {
        platform::DatePicker date{*this, {.Name = "date", .Width = 1800, .Height = 315}};
        platform::TextBox    txt{*this, {.Name = "txt", .Top = 600, .Width = 1800, .Height = 315}};
    } page;
    page.date.setValue({2024, 5, 6});
    const Shown screen(page);
    auto* const line = screen[page.date]->findChild<QLineEdit*>();
    screen[page.date]->setFocus(Qt::TabFocusReason);
    settle();
    EXPECT_TRUE(line->hasSelectedText());
    screen[page.txt]->setFocus(Qt::TabFocusReason);
    settle();
    EXPECT_FALSE(line->hasSelectedText());
}

} // namespace
} // namespace quill::qt::test
