#pragma once

#include "editors/editor_base.h"
#include "editors/number_rules.h"

#include <cstdint>
#include <string>

namespace quill {

/// The editor of a value that the user types, which can be wrong: beside "original" and "edited"
/// its change state knows "editedError" and "corrected". A number is bound by the limits, the form
/// and the unit that its parameter tells.
class TypedEditor : public EditorBase {
public:
    /// The value as it is typed and booked.
    [[nodiscard]] virtual std::string Text() const = 0;

    // BoundEditor
    void handleError(const std::string& code) override;

    /// Below 0, 0 or above 0 for a below, equal to or above b, equal within a tolerance of 0.9 of
    /// the second decimal place behind those shown, without decimals of 0.9. "No limit" is beyond
    /// everything.
    [[nodiscard]] double dblAComparedToB(double a, double b) const;

    // What the host's developer wants to see while he looks for an error: the text that edits are
    // compared with, the parameter's unit, and what the datafile says of form, access and limits.
    [[nodiscard]] const std::string& originalText() const { return mOriginalText; }
    [[nodiscard]] const std::string& messageUnit() const { return mMessageUnit; }
    [[nodiscard]] const std::string& numberFormat() const { return mFormat.pattern; }
    [[nodiscard]] const std::string& accessText() const { return mAccessText; }
    [[nodiscard]] std::int16_t       decimalCount() const { return mFormat.decimals; }
    [[nodiscard]] double             limitMin() const { return mLimits.min; }
    [[nodiscard]] double             limitMax() const { return mLimits.max; }
    [[nodiscard]] bool               allowEmpty() const { return mAllowEmpty; }

protected:
    using EditorBase::EditorBase;

    void keepOriginal() override { mOriginalText = Text(); }
    void forwardChanges() override;
    void ViewGetChanges(std::int16_t scope) override;

    /// Limits, form and unit of a number.
    void takeNumberForm(const Steps& step, const IXMLDOMNode& parameter);
    /// The states after a parameter of the datafile is shown, by its mark `synchronised`.
    void takeMark(const std::string& synchronised);
    /// The device has a value: one that can be written must not be emptied from now on.
    void forbidEmpty();

    /// Whether an item's text is a quantity that a unit belongs to.
    [[nodiscard]] bool hasUnit(const std::string& text) const;
    /// The unit of an item's value. The item's own counts where it has one, else the parameter's;
    /// that the two differ is logged, for a local value only where the item's own counts.
    [[nodiscard]] std::string unitOfItem(const Steps& step, const IXMLDOMNode& item,
                                         bool isLocal) const;

    std::string         mOriginalText; ///< edits are compared with it
    std::string         mMessageUnit = documents::kNoUnit;
    numberRules::Limits mLimits;
    numberRules::Format mFormat;
    bool                mAllowEmpty = true;
};

} // namespace quill
