#pragma once

#include "framework/host_contract.h"
#include "platform/label.h"

namespace quill {

/// An invisible catcher at the end of a form's tab order: whatever focus reaches it goes back to
/// the host.
class CtrFocusTransfer : public platform::Control, public IQornComponent {
public:
    explicit CtrFocusTransfer(const platform::Design& design = {});
    CtrFocusTransfer(platform::Widget& container, const platform::Design& design = {});
    ~CtrFocusTransfer() override;

    /// Tells a page's designer where the catcher lies.
    platform::Label lblGuide{*this, {.Name = "lblGuide", .Visible = false}};

    [[nodiscard]] const char* TypeName() const override { return "CtrFocusTransfer"; }

    /// Shows the guide while a page is being designed, hides it while it runs.
    void setDesignMode(bool designing) { lblGuide.Visible = designing; }

    // IQornComponent
    void SetMessenger(Messenger* messenger) override { mMessenger = messenger; }

private:
    void start();

    Messenger*             mMessenger = nullptr;
    platform::Subscription mOnGotFocus;
    platform::Subscription mOnResize;
};

} // namespace quill
