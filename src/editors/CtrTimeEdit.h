#pragma once

#include "editors/duration.h"
#include "editors/typed_editor.h"
#include "platform/text_box.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace quill {

/// The editor of one parameter that is a duration, in boxes for days, hours, minutes and seconds.
/// The parameter holds one number in a unit of its own, which is what `Text`, limits, bookings and
/// items carry. Without a converter of the host only the unit "s" can be shown.
class CtrTimeEdit : public TypedEditor {
public:
    explicit CtrTimeEdit(const platform::Design& design = {});
    CtrTimeEdit(platform::Widget& container, const platform::Design& design = {});
    ~CtrTimeEdit() override;

    std::array<platform::TextBox, duration::kParts> txtBox{
        {{*this, {.Name = "txtBox", .Index = 0}},
         {*this, {.Name = "txtBox", .Index = 1}},
         {*this, {.Name = "txtBox", .Index = 2}},
         {*this, {.Name = "txtBox", .Index = 3}}}};
    std::array<platform::Label, duration::kParts> lblUnit{
        {{*this, {.Name = "lblUnit", .Index = 0, .Caption = "d"}},
         {*this, {.Name = "lblUnit", .Index = 1, .Caption = "h"}},
         {*this, {.Name = "lblUnit", .Index = 2, .Caption = "min"}},
         {*this, {.Name = "lblUnit", .Index = 3, .Caption = "s"}}}};

    /// After the user has changed a box and at the end of every data setter, with `Text`.
    platform::Event<const std::string&> Change;

    [[nodiscard]] const char* TypeName() const override { return "CtrTimeEdit"; }
    [[nodiscard]] EditorKind  kind() const override { return EditorKind::time; }

    /// Whether the user can look but not edit.
    [[nodiscard]] bool Locked() const { return txtBox[0].Locked; }
    void               setLocked(bool locked) override;

    /// The duration as one number in the parameter's unit, in the form of the parameter; empty if
    /// no box holds a number or the host cannot convert it. A box that holds anything else does not
    /// count.
    [[nodiscard]] std::string Text() const override;
    /// A number in the parameter's unit, which becomes the one that edits are compared with.
    void setText(const std::string& text);
    /// Shows a number in the parameter's unit in the boxes. What is no number is 0, and an empty
    /// text empties the boxes. A number that the host cannot convert leaves them as they are; only
    /// where it is the value of a document are they emptied, as the old one must not pass for it.
    /// What the program shows is not checked and not written into the datafile.
    void EditText(const std::string& text);

    // BoundEditor
    bool setImportData(const IXMLDOMNode& parameter) override;
    bool setOfflineData(const IXMLDOMNode& parameter) override;
    bool setOnlineData(const IXMLDOMNode& item) override;
    // IQornDataEditor
    IXMLDOMDocument GetXmlItem(bool force) override;

    /// The form of a text in documents: "." as separator.
    [[nodiscard]] std::string FormatForCommunication(const std::string& text) const;

protected:
    [[nodiscard]] const char*             word() const override { return "TimeEdit"; }
    [[nodiscard]] platform::Widget&       box() override { return txtBox[0]; }
    [[nodiscard]] const platform::Widget& box() const override { return txtBox[0]; }
    [[nodiscard]] std::size_t             boxCount() const override { return txtBox.size(); }
    [[nodiscard]] platform::Widget& boxAt(std::size_t place) override { return txtBox[place]; }
    [[nodiscard]] bool              isLocked() const override { return Locked(); }

private:
    void start(const platform::Design& design);
    void arrange();
    void txtBox_Change();

    [[nodiscard]] std::array<std::string, duration::kParts> texts() const;
    /// Nothing where the host knows no way. Single precision.
    [[nodiscard]] std::optional<double> convert(double value, const std::string& from,
                                                const std::string& to) const;
    /// A number with the locale's separator and the parameter's decimals.
    [[nodiscard]] std::string inNumberForm(const Steps& step, const std::string& text) const;
    /// What `setText` does; answers whether the boxes show the number.
    bool letText(const std::string& text);
    /// Shows a number in any unit; the same answer.
    bool show(const std::string& text, const std::string& unit);
    /// Whether every box that holds something holds a number that a user may enter.
    [[nodiscard]] bool isPlain() const;
    [[nodiscard]] bool isEmpty() const;
    /// Whether the parameter can take a text.
    [[nodiscard]] bool isAllowed(const Steps& step, const std::string& text) const;

    bool mIsShowing = false; ///< the program writes the boxes

    std::array<platform::Subscription, duration::kParts> mOnChange;
    std::array<platform::Subscription, duration::kParts> mOnKey;
    std::array<platform::Subscription, duration::kParts> mOnGotFocus;
    platform::Subscription                               mOnResize;
};

} // namespace quill
