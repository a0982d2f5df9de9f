#pragma once

#include "editors/editor_base.h"
#include "platform/date_picker.h"

#include <cstdint>
#include <optional>
#include <string>

namespace quill {

/// The editor of one parameter that is a date, or a time of day, in a date picker. Documents and
/// bookings carry "d.m.yyyy" or "h:Nn:Ss".
///
/// A picker always shows some date. Until a value has been taken, and after an empty one, the
/// editor counts as empty as long as the picker shows what it showed then: its `Text` is empty and
/// it has no item to send.
class CtrDateEdit : public EditorBase {
public:
    explicit CtrDateEdit(const platform::Design& design = {});
    CtrDateEdit(platform::Widget& container, const platform::Design& design = {});
    ~CtrDateEdit() override;

    platform::DatePicker datePicker{*this, {.Name = "datePicker"}};

    /// After the user has picked a value and at the end of every data setter, with `Text`.
    platform::Event<const std::string&> Change;

    [[nodiscard]] const char* TypeName() const override { return "CtrDateEdit"; }
    [[nodiscard]] EditorKind  kind() const override { return EditorKind::date; }

    /// The date or time in document form, empty while the editor is empty.
    [[nodiscard]] std::string Text() const;
    /// Shows a date or time: a date in the locale's form, in ISO form, or as day, month and year
    /// with dots; a time also with dots in place of the colons. Any other text is a failure 13, a
    /// value outside the limits a failure 5; both are reported and the picker stays. An empty text
    /// leaves the picker too and empties the editor.
    void setText(const std::string& text);

    /// Long date (0), short date (1) or time of day (2); anything else is ignored.
    void SetPickerFormat(std::int32_t format);
    /// Whether the picker shows the time of day.
    [[nodiscard]] bool timeMode() const { return mTimeMode; }

    // BoundEditor
    bool setImportData(const IXMLDOMNode& parameter) override;
    bool setOfflineData(const IXMLDOMNode& parameter) override;
    bool setOnlineData(const IXMLDOMNode& item) override;
    // IQornDataEditor. With `force` an empty editor gives what the picker shows.
    IXMLDOMDocument GetXmlItem(bool force) override;

    /// The value that edits are compared with; nothing for an editor that was empty.
    [[nodiscard]] const std::optional<platform::DateTime>& originalDate() const
    {
        return mOriginalDate;
    }

protected:
    [[nodiscard]] const char*             word() const override { return "CtrDateEdit"; }
    [[nodiscard]] platform::Widget&       box() override { return datePicker; }
    [[nodiscard]] const platform::Widget& box() const override { return datePicker; }
    [[nodiscard]] bool                    isLocked() const override { return datePicker.Locked; }
    void setLocked(bool locked) override { datePicker.Locked = locked; }
    void keepOriginal() override;
    void ViewGetChanges(std::int16_t scope) override;

private:
    void start();
    void datePicker_Change();

    [[nodiscard]] bool        isEmpty() const { return mEmptyAt == datePicker.Value(); }
    [[nodiscard]] std::string documentText(const platform::DateTime& value) const;
    /// The moment that a text names; failure 13 for one that names none.
    [[nodiscard]] platform::DateTime getDate(const std::string& text) const;
    void                             showText(const Steps& step, const std::string& text);
    void                             takeLimits(const Steps& step, const IXMLDOMNode& parameter);

    std::optional<platform::DateTime> mOriginalDate;
    /// What the picker showed when the editor became empty.
    std::optional<platform::DateTime> mEmptyAt;
    bool                              mTimeMode = false;

    platform::Subscription mOnChange;
    platform::Subscription mOnResize;
};

} // namespace quill
