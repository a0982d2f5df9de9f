#include "platform/list_view.h"

#include <gtest/gtest.h>

namespace quill::platform {
namespace {

TEST(ListViewRows, TheFirstRowThatIsAddedIsTheFirstToBeSeen)
{
    Control  form;
    ListView list{form};
    EXPECT_EQ(list.FirstVisible(), 0);
    list.Add({.Text = "a"});
    list.Add({.Text = "b"});
    EXPECT_EQ(list.FirstVisible(), 1);
    list.setFirstVisible(2);
    list.Add({.Text = "c"});
    EXPECT_EQ(list.FirstVisible(), 2);
    list.Clear();
    EXPECT_EQ(list.FirstVisible(), 0);
}

} // namespace
} // namespace quill::platform
