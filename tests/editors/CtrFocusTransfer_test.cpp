#include "editors/CtrFocusTransfer.h"

#include "platform/text_box.h"
#include "support/recording_messenger.h"

#include <gmock/gmock.h>

#include <memory>

namespace quill {
namespace {

using platform::UserDoor;
using test::RecordingMessenger;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct FocusTransfer : testing::Test {
    RecordingMessenger messenger;
    platform::Control  form;
    platform::TextBox  txtBox{form, {.Name = "txtBox"}};
    CtrFocusTransfer   catcher{form, {.Name = "CtrFocusTransfer1"}};
};

TEST_F(FocusTransfer, HandsTheFocusOnWheneverItGetsIt)
{
    catcher.SetMessenger(&messenger);
    EXPECT_EQ(catcher.focus(), UserDoor::done);
    EXPECT_THAT(messenger.calls, ElementsAre("TransferFocus()"));
    txtBox.focus();
    catcher.SetFocus();
    EXPECT_EQ(messenger.calls.size(), 2U);
}

TEST_F(FocusTransfer, DoesNothingWithoutAMessenger)
{
    catcher.focus();
    txtBox.focus();
    catcher.SetMessenger(&messenger);
    catcher.SetMessenger(nullptr);
    catcher.focus();
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(FocusTransfer, ReportsAHostThatRefuses)
{
    messenger.failOn("TransferFocus");
    catcher.SetMessenger(&messenger);
    EXPECT_NO_THROW(catcher.focus());
    EXPECT_THAT(messenger.errors(), ElementsAre(HasSubstr("ReportError(CtrFocusTransfer ")));
    messenger.failOn("ReportError");
    txtBox.focus();
    EXPECT_NO_THROW(catcher.focus());
}

TEST_F(FocusTransfer, ShowsItsGuideToTheDesignerOnly)
{
    EXPECT_FALSE(catcher.lblGuide.Visible);
    EXPECT_EQ(catcher.lblGuide.BackColor, 0xe3ffffU);
    catcher.setDesignMode(true);
    EXPECT_TRUE(catcher.lblGuide.Visible);
    catcher.setDesignMode(false);
    EXPECT_FALSE(catcher.lblGuide.Visible);
}

TEST_F(FocusTransfer, MayDieWhileItHasTheFocus)
{
    auto other = std::make_unique<CtrFocusTransfer>(form);
    other->SetMessenger(&messenger);
    other->focus();
    messenger.clear();
    other.reset();
    EXPECT_EQ(platform::Widget::focused(), nullptr);
    EXPECT_THAT(messenger.calls, IsEmpty());
}

} // namespace
} // namespace quill
