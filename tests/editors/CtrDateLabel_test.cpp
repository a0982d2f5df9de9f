#include "editors/CtrDateLabel.h"

#include "support/toolkit_scope.h"

#include "platform/failure.h"
#include "platform/text_box.h"

#include <gmock/gmock.h>

namespace quill {
namespace {

using test::ToolkitScope;

TEST(DateLabel, ShowsADateInTheLocalesForm)
{
    ToolkitScope toolkit;
    toolkit.localeSettings.shortDate = "dd.MM.yyyy";
    toolkit.localeSettings.longTime  = "H:mm:ss";
    CtrDateLabel label;
    label.setCaption("2024-03-09 08:07:06");
    EXPECT_EQ(label.lblDate.Caption, "09.03.2024 8:07:06");
    EXPECT_EQ(label.Caption(), "09.03.2024 8:07:06");
    label.setCaption(label.Caption()); // what is shown is a date as well
    EXPECT_EQ(label.Caption(), "09.03.2024 8:07:06");
    label.setCaption("09.03.2024");
    EXPECT_EQ(label.Caption(), "09.03.2024 0:00:00");
}

TEST(DateLabel, ShowsAnyOtherTextAsItStands)
{
    ToolkitScope toolkit;
    CtrDateLabel label;
    for (const char* text : {"never", "", "32.01.2024", "2024-02-30 10:00:00", " x "}) {
        label.setCaption(text);
        EXPECT_EQ(label.Caption(), text);
    }
}

TEST(DateLabel, PassesItsBackgroundOn)
{
    platform::Control form;
    CtrDateLabel      label{form, {.Name = "date"}};
    EXPECT_EQ(label.lblDate.BackColor, label.BackColor.get());
    label.BackColor = 0x123456;
    EXPECT_EQ(label.lblDate.BackColor, 0x123456U);
}

TEST(DateLabel, FillsItsArea)
{
    CtrDateLabel label{{.Width = 1000, .Height = 200}};
    EXPECT_EQ(label.lblDate.Width, 1000);
    label.resize(1500, 250);
    EXPECT_EQ(label.lblDate.Width, 1500);
    EXPECT_EQ(label.lblDate.Height, 250);
}

TEST(DateLabel, IsPassedOverWhereAFormHandsOutTheFocus)
{
    platform::Control form;
    CtrDateLabel      label{form};
    platform::TextBox box{form};
    form.focus();
    EXPECT_TRUE(box.HasFocus());
}

/// A toolkit that cannot say what a date looks like.
class BrokenToolkit : public platform::HeadlessToolkit {
public:
    BrokenToolkit() { setCurrent(this); }
    ~BrokenToolkit() override { setCurrent(nullptr); }
    BrokenToolkit(const BrokenToolkit&)            = delete;
    BrokenToolkit& operator=(const BrokenToolkit&) = delete;

    const platform::Locale& locale() override { throw platform::failure(5); }
};

TEST(DateLabel, ShowsTheTextWhereTheLocaleFails)
{
    BrokenToolkit toolkit;
    CtrDateLabel  label;
    EXPECT_NO_THROW(label.setCaption("2024-03-09 08:07:06"));
    EXPECT_EQ(label.Caption(), "2024-03-09 08:07:06");
    EXPECT_EQ(toolkit.debugLines.size(), 1U);
}

} // namespace
} // namespace quill
