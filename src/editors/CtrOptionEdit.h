#pragma once

#include "editors/list_editor.h"
#include "platform/buttons.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace quill {

/// The editor of one parameter whose values form a list, with one option for each entry below the
/// other. What the user chooses goes into the datafile at once. The arrow keys move the choice, Tab
/// leaves the group.
///
/// The control grows where its options need more room than the form has given it. Each entry of the
/// copy gets the attribute `localization`, the text that is shown: the translation of its name,
/// which `Localize` brings.
class CtrOptionEdit : public ListEditor {
public:
    explicit CtrOptionEdit(const platform::Design& design = {});
    CtrOptionEdit(platform::Widget& container, const platform::Design& design = {});
    ~CtrOptionEdit() override;

    /// Holds the options, which are `optValue` from 0 on, each with its entry's `name` as `Tag`.
    platform::Frame frmOptions{*this, {.Name = "frmOptions"}};

    [[nodiscard]] const char* TypeName() const override { return "CtrOptionEdit"; }
    [[nodiscard]] EditorKind  kind() const override { return EditorKind::option; }

    /// A locked editor shows its choice; the user cannot change it.
    [[nodiscard]] bool Locked() const { return mLocked; }
    void               setLocked(bool locked) override;

    /// The `value` of the chosen entry, empty for none.
    [[nodiscard]] std::string Selected() const;
    /// Chooses the entry with this `value`, else the one with this `name`, else none. It counts as
    /// an edit unless it is the original one.
    void setSelected(const std::string& value);

    /// The text beside the chosen option, empty for none.
    [[nodiscard]] std::string Text() const;
    /// Chooses as `Selected` does; `Change` is raised if that is another option than before, and
    /// nothing else moves.
    void setText(const std::string& text);

    /// Adds an option behind those of the list. If the list has an entry of this name, now or
    /// later, that entry's option is the one that is meant. An option without an entry has no value
    /// that could be sent.
    void addOption(const std::string& tag);
    /// The `name` of the first entry with this `value`, empty if there is none. For type "floatVal"
    /// a number is rounded first: "1.0" finds the entry "1".
    [[nodiscard]] std::string mapText(const std::string& value) const;

    // BoundEditor
    bool setOfflineData(const IXMLDOMNode& parameter) override;
    // IQornDataEditor: the item carries the chosen entry's `value`.
    IXMLDOMDocument GetXmlItem(bool force) override;
    // ILocalizable
    void Localize(Translator& translator) override;

    /// The options by place, those of the list first.
    [[nodiscard]] std::size_t             OptionCount() const { return mOptions.size(); }
    [[nodiscard]] platform::OptionButton& Option(std::size_t place) const
    {
        return *mOptions.at(place).button;
    }

    /// What the next booking and item carry: the chosen entry's `value`, empty for none.
    [[nodiscard]] const std::string& selectedValue() const { return mSelectedValue; }

protected:
    [[nodiscard]] const char*             word() const override { return "Options"; }
    [[nodiscard]] platform::Widget&       box() override { return frmOptions; }
    [[nodiscard]] const platform::Widget& box() const override { return frmOptions; }
    [[nodiscard]] bool                    isLocked() const override { return mLocked; }
    [[nodiscard]] bool isTabStop() const override { return EditorBase::isTabStop() && !mLocked; }
    /// The original entry is known by its `value`.
    void keepOriginal() override;
    void offerEntries(const Steps& step) override;
    void showValue(const Steps& step, const std::string& value) override;
    void paintBoxes(platform::Color color) override;
    /// Options stay usable whatever the communication mode.
    void ViewSetCommunicationMode(std::int32_t) override {}
    void ViewGetChanges(std::int16_t scope) override;

private:
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    /// An entry of the list as it was read.
    struct Entry {
        IXMLDOMNode node;
        std::string name;
        std::string value;
    };
    /// The option of the entry at the same place, or, behind these, one that was added.
    struct OptionOnForm {
        std::unique_ptr<platform::OptionButton> button;
        platform::Subscription                  onClick;
        platform::Subscription                  onKey;
    };

    void start();
    void arrange();
    void optValue_Click(std::size_t place);
    void optValue_KeyDown(std::size_t place, platform::KeyPress& key);

    /// Gives every entry and every added tag its option.
    void fillOptions();
    /// Writes the text of every entry into `localization` and shows it: by name until the editor
    /// has been localized, from then on in the language of the host.
    void showTexts(const Steps& step);
    void translateEntries(const Steps& step, Translator* translator);
    void paintOptions();

    /// The place of the first entry whose `value` is this text; `kNone` for none.
    [[nodiscard]] std::size_t placeOfKey(const std::string& key) const;
    /// The same for a value of the parameter, a number in the form of a whole one.
    [[nodiscard]] std::size_t placeOfValue(const Steps& step, const std::string& value) const;
    /// The same, else that of the first option with this name, as the combo editor finds them.
    [[nodiscard]] std::size_t placeOf(const Steps& step, const std::string& value) const;
    [[nodiscard]] std::string nameAt(std::size_t place) const;
    [[nodiscard]] std::string valueAt(std::size_t place) const;
    [[nodiscard]] std::string textAt(const Steps& step, std::size_t place) const;

    /// Shows a choice; nobody is told.
    void show(std::size_t place);
    /// A choice that is compared with the original one. `text` is what the value was mapped to,
    /// empty if it was not.
    void choose(const Steps& step, std::size_t place, const std::string& value,
                const std::string& text);

    std::vector<Entry>        mEntries;
    std::vector<std::string>  mAddedTags;
    std::vector<OptionOnForm> mOptions;

    std::string mSelectedValue;
    std::size_t mChosen      = kNone;
    std::size_t mOriginal    = kNone;
    bool        mLocked      = false;
    bool        mIsLocalized = false;

    platform::Color        mColor = platform::kWindowText; ///< of the chosen option
    platform::Subscription mOnResize;
};

} // namespace quill
