#pragma once

#include "framework/editor_contract.h"
#include "platform/label.h"

#include <string>

namespace quill {

/// A label for the time of last read of a request group; the view dispatch sets its caption.
class CtrDateLabel : public platform::Control, public DateLabel {
public:
    explicit CtrDateLabel(const platform::Design& design = {});
    CtrDateLabel(platform::Widget& container, const platform::Design& design = {});

    platform::Label lblDate{*this, {.Name = "lblDate"}};

    [[nodiscard]] const char* TypeName() const override { return "CtrDateLabel"; }

    /// The text that is shown.
    [[nodiscard]] std::string Caption() const override { return lblDate.Caption; }
    /// A date is shown in the locale's short date and long time, any other text as it stands.
    void setCaption(const std::string& text) override;

    /// The label takes the background of the control.
    void propertyChanged(const void* property) override;

private:
    void start();

    platform::Subscription mOnResize;
};

} // namespace quill
