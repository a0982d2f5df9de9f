#pragma once

#include "editors/editor_core.h"
#include "platform/label.h"

#include <string>

namespace quill {

/// An editor with the two signs.
///
/// `Modified` is the visibility of `lblModified` and `Correct` the absence of `lblError`; there is
/// no other flag.
class EditorBase : public EditorCore {
public:
    platform::Label lblModified{*this, {.Name = "lblModified", .Caption = "*", .Visible = false}};
    platform::Label lblError{*this, {.Name = "lblError", .Caption = "!", .Visible = false}};

    ~EditorBase() override = default;

    /// Whether the text or choice can go to the device.
    [[nodiscard]] bool Correct() const { return !lblError.Visible; }
    /// True hides the sign "!" and brings the colour back, False shows it and turns the text red.
    virtual void setCorrect(bool correct);

    [[nodiscard]] bool Modified() const override { return lblModified.Visible; }
    void               setModified(bool modified) override;

    /// Background of the control. Reading it gives 0.
    [[nodiscard]] platform::Color SignBackColor() const { return 0; }
    void                          setSignBackColor(platform::Color color) { BackColor = color; }

protected:
    explicit EditorBase(const platform::Design& design);
    EditorBase(platform::Widget& container, const platform::Design& design);

    /// The present value becomes the one that edits are compared with.
    virtual void keepOriginal() = 0;
    void         paintText() override;

    /// Gives the box the room that is left of the signs and of `unitWidth`, which lies between.
    void layout(std::int32_t unitWidth);
    /// Places the signs beside each other.
    void placeSigns(std::int32_t left, std::int32_t height);

    /// Colours the value.
    virtual void paintBoxes(platform::Color color);

private:
    void start();
};

} // namespace quill
