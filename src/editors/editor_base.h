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

    /// Moves the change state of a value that can be wrong: beside "original" and "edited" there
    /// are "editedError" and "corrected".
    void forwardCheckedChanges();
    /// What an error code says about such a value.
    void handleCheckedError(const std::string& code);
    /// The unit of an item's value. The item's own counts where it has one, else the one of the
    /// datafile; that the two differ is logged, for a local value only where the item's own counts.
    [[nodiscard]] std::string unitOfItem(const Steps& step, const IXMLDOMNode& item,
                                         const std::string& datafileUnit, bool isLocal) const;

    /// Places the signs and what else stands right of the box; `unitWidth` is what lies between.
    void layout(std::int32_t unitWidth);

    /// Colours the value.
    virtual void paintBoxes(platform::Color color);

private:
    void start();
};

} // namespace quill
