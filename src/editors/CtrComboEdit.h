#pragma once

#include "editors/list_editor.h"
#include "platform/combo_box.h"

#include <cstdint>
#include <string>

namespace quill {

/// The editor of one parameter whose values form a list, in a combo box with a sign that opens help
/// on the chosen entry. Entries can be hidden. What the user chooses goes into the datafile at
/// once.
///
/// Each entry of the copy gets the attributes `comboIndex` and `visible`.
class CtrComboEdit : public ListEditor {
public:
    explicit CtrComboEdit(const platform::Design& design = {});
    CtrComboEdit(platform::Widget& container, const platform::Design& design = {});
    ~CtrComboEdit() override;

    platform::ComboBox cboBox{*this, {.Name = "cboBox"}};
    platform::Label    lblInfo{*this, {.Name = "lblInfo", .Caption = "?", .Visible = false}};

    /// The user has chosen an entry that differs from the original one; the argument is true. Known
    /// to hosts as `Modified`.
    platform::Event<bool> ModifiedEvent;

    [[nodiscard]] const char* TypeName() const override { return "CtrComboEdit"; }
    [[nodiscard]] EditorKind  kind() const override { return EditorKind::combo; }

    /// Whether the user can look but not edit.
    [[nodiscard]] bool Locked() const { return cboBox.Locked; }
    void               setLocked(bool locked) override { cboBox.Locked = locked; }

    /// Keeps the editor from booking, beside `Silent` and untouched by what the datafile says.
    [[nodiscard]] bool SilentAlltoghether() const { return mSilentAlltoghether; }
    void               setSilentAlltoghether(bool silent) { mSilentAlltoghether = silent; }

    /// The text in the box.
    [[nodiscard]] std::string Text() const { return cboBox.Text(); }
    /// Chooses the entry that `GetIndex` finds for the text, or none. `Change` is raised if that is
    /// another one than before; nothing else moves.
    void setText(const std::string& text);

    /// Fills the box anew with the visible entries, in the language of the host's Translator; the
    /// chosen row is chosen again. Without a Translator the entries are shown by name.
    void RefreshItemList();
    /// Hides or shows the entry with the name `key`, from the next `RefreshItemList` or `Localize`.
    void SetItemVisibility(const std::string& key, bool visibility);
    void SetItemVisibilityAll(bool visibility);
    /// Shows or hides the sign that opens help. `infoTag` is the key of the help's heading and the
    /// stem of the keys of its texts; without one the former stays.
    void ShowInfo(bool visibility, const std::string& infoTag = {});

    /// Whether a value list has been taken; one of a parameter that the datafile lacks has none.
    [[nodiscard]] bool HasMappings() const { return mMappings.has_value(); }
    /// The `value` of the chosen entry as a number; -1 for no entry or one without a number.
    [[nodiscard]] std::int32_t getSelectedValue() const;
    /// Correct and not empty.
    [[nodiscard]] bool downloadable() const { return Correct() && !Text().empty(); }

    /// The row of the first entry whose `value` or `name` is the text; -1 for none, -2 for one that
    /// is hidden. For type "floatVal" a number is rounded first: "1.0" finds the entry "1".
    [[nodiscard]] std::int16_t GetIndex(const std::string& value) const;
    /// The `name` of the entry in a row, empty for none.
    [[nodiscard]] std::string GetComboText(std::int32_t index) const;

    // BoundEditor
    bool setOfflineData(const IXMLDOMNode& parameter) override;
    void handleError(const std::string& code) override { handleRefusableError(code); }
    // IQornDataEditor: the item carries the chosen entry's `value`.
    IXMLDOMDocument GetXmlItem(bool force) override;
    // ILocalizable
    void Localize(Translator& translator) override;

    // What the host's developer wants to see while he looks for an error: the row that counts as
    // chosen, and the heading of the help.
    [[nodiscard]] std::int32_t       selectedIndex() const { return mSelectedIndex; }
    [[nodiscard]] const std::string& infoTag() const { return mInfoTag; }

protected:
    [[nodiscard]] const char*             word() const override { return "Combo"; }
    [[nodiscard]] platform::Widget&       box() override { return cboBox; }
    [[nodiscard]] const platform::Widget& box() const override { return cboBox; }
    [[nodiscard]] bool                    isLocked() const override { return cboBox.Locked; }
    /// The original entry is known by its `name`.
    void keepOriginal() override { mOriginalText = GetComboText(cboBox.ListIndex()); }
    void offerEntries(const Steps& step) override;
    /// The value is one that later choices are compared with.
    void showValue(const Steps& step, const std::string& value) override;
    void showEdit(const Steps& step, const std::string& value) override;
    void ViewGetChanges(std::int16_t scope) override;

private:
    void start();
    void arrange();
    void cboBox_Click();
    void lblInfo_Click();

    /// Gives every visible entry its row, hidden ones none; an entry that cannot be
    /// translated, or none without a Translator, is shown by name with a report.
    void fillList(const Steps& step, Translator* translator);
    /// The entry in a row, nothing for none.
    [[nodiscard]] IXMLDOMNode entryAt(const Steps& step, std::int32_t row) const;
    /// The `value` of the chosen entry, empty for none.
    [[nodiscard]] std::string chosenValue(const Steps& step) const;
    /// The row for a value, where an entry that is hidden counts as none.
    [[nodiscard]] std::int32_t rowOf(const std::string& value) const;
    /// Shows what came from outside and tells it.
    void showRow(const Steps& step, std::int32_t row);

    std::string  mInfoTag;
    std::int32_t mSelectedIndex      = -1;
    bool         mSilentAlltoghether = false;

    platform::Subscription mOnClick;
    platform::Subscription mOnInfo;
    platform::Subscription mOnResize;
};

} // namespace quill
