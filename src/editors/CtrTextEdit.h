#pragma once

#include "editors/number_rules.h"
#include "editors/typed_editor.h"
#include "platform/text_box.h"

#include <cstdint>
#include <string>

namespace quill {

/// The editor of one parameter in a text box, with its unit and the signs "*" (modified) and "!"
/// (not correct). It checks what is typed against type, limits and a partner, shows numbers in the
/// user's unit, and writes every correct text back into the datafile in the parameter's own unit.
class CtrTextEdit : public TypedEditor {
public:
    explicit CtrTextEdit(const platform::Design& design = {});
    CtrTextEdit(platform::Widget& container, const platform::Design& design = {});
    ~CtrTextEdit() override;

    platform::TextBox txtBox{*this, {.Name = "txtBox"}};
    platform::Label   lblUnit{*this, {.Name = "lblUnit"}};

    /// After every change of the text, whoever made it, and at the end of every data setter.
    platform::Event<const std::string&> Change;

    [[nodiscard]] const char* TypeName() const override { return "CtrTextEdit"; }
    [[nodiscard]] EditorKind  kind() const override { return EditorKind::text; }

    /// Whether the user can look but not edit.
    [[nodiscard]] bool Locked() const { return txtBox.Locked; }
    void               setLocked(bool locked) override { txtBox.Locked = locked; }

    [[nodiscard]] std::string Text() const override { return txtBox.Text; }
    /// A value in document form, which becomes the text that edits are compared with.
    void setText(const std::string& text);
    /// Writes the box as if typed.
    void EditText(const std::string& toText) { txtBox.Text = toText; }

    /// The unit beside the box, empty for a plain number.
    [[nodiscard]] std::string Unit() const { return lblUnit.Caption; }
    void                      setUnit(const std::string& unit) { setVisibleUnit(unit); }
    /// Shows another unit; the control grows or shrinks so that the box keeps its size.
    void setVisibleUnit(const std::string& unit);

    /// Limits the text to the HART packed ASCII characters: codes 32 to 95, upper case.
    void ForceHartPackedAscii(bool limit) { mPackedAscii = limit; }
    /// Forgets the parameter and empties the box.
    void Uninitialize();
    /// Correct and not empty.
    [[nodiscard]] bool downloadable() const { return Correct() && !txtBox.Text.get().empty(); }
    /// The same as `SetMessenger`.
    void setMessenger(Messenger* messenger) { SetMessenger(messenger); }

    // BoundEditor
    bool setImportData(const IXMLDOMNode& parameter) override;
    bool setOfflineData(const IXMLDOMNode& parameter) override;
    bool setOnlineData(const IXMLDOMNode& item) override;
    bool setLocalData(const IXMLDOMNode& item) override;
    // IQornDataEditor
    IXMLDOMDocument GetXmlItem(bool force) override;
    /// The item whatever the text is; an empty document while `Tag` or type are empty.
    IXMLDOMDocument getXmlItem();

    /// Makes `pair` the partner that limits this editor, with a least distance in the parameter's
    /// unit: as "min" the partner's value is the lower limit, as "max" the upper one. The link is
    /// symmetric; former partners are let go. A partner that dies lets go by itself.
    void setParameterPair(CtrTextEdit* pair, const std::string& pairLimitingWhat,
                          double minDifference);
    /// Lets go of the partner for "min" or "max", or of both.
    void unsetParameterPair(const std::string& pairLimitingWhat = {});
    /// The partner's value in the parameter's unit has moved.
    void setPairLimit(double limit, const std::string& pairLimitingWhat);

    /// The form of a text in documents: "." as separator, in the parameter's unit. Where the unit
    /// on screen cannot be converted it becomes the parameter's unit for good.
    [[nodiscard]] std::string FormatForCommunication(const std::string& text);

    // What the host's developer wants to see while he looks for an error. A pair's limits are in
    // the parameter's unit, and there is no partner without a pair.
    [[nodiscard]] const std::string& decimalSeparator() const { return mDecimalSeparator; }
    [[nodiscard]] bool               packedAscii() const { return mPackedAscii; }
    [[nodiscard]] double             pairUpperLimit() const { return mPairUpperLimit; }
    [[nodiscard]] double             pairLowerLimit() const { return mPairLowerLimit; }
    [[nodiscard]] double             pairDifferenceMin() const { return mPairDifferenceMin; }
    [[nodiscard]] double             pairDifferenceMax() const { return mPairDifferenceMax; }
    [[nodiscard]] CtrTextEdit*       pairMinPartner() const { return mPairMinPartner; }
    [[nodiscard]] CtrTextEdit*       pairMaxPartner() const { return mPairMaxPartner; }

    /// "No limit" of a double: the doubles of these bit patterns, not the largest ones.
    static constexpr double kUpperSentinel = numberRules::kUpperSentinel;
    static constexpr double kLowerSentinel = numberRules::kLowerSentinel;
    /// "No limit" of an integer, with either sign.
    static constexpr double kIntegerSentinel = numberRules::kIntegerSentinel;

protected:
    [[nodiscard]] const char*             word() const override { return "TextEdit"; }
    [[nodiscard]] platform::Widget&       box() override { return txtBox; }
    [[nodiscard]] const platform::Widget& box() const override { return txtBox; }
    [[nodiscard]] bool                    isLocked() const override { return txtBox.Locked; }
    void                                  messengerChanged(Messenger* messenger) override;

private:
    void start();
    void arrange();

    // What the user does.
    void txtBox_Change();
    void checkNumber(const Steps& step);
    void checkAgainstPartners(const Steps& step, double compareValue);
    void replaceSeparator();
    void forcePackedAscii();
    void writeBack(const Steps& step);
    void ViewSetUnits();

    // Units and limits.
    [[nodiscard]] UnitConverter* converter(const Steps& step) const;
    [[nodiscard]] std::string    visibleUnit() const;
    /// Nothing without a converter or where it knows no way. Single precision.
    [[nodiscard]] std::optional<float>
    convert(const Steps& step, double value, const std::string& from, const std::string& to) const;
    /// The same for a text that is a number; nothing, with a report, for one too large.
    [[nodiscard]] std::optional<float> convert(const Steps& step, const std::string& number,
                                               const std::string& from,
                                               const std::string& to) const;
    [[nodiscard]] double               compareValueOf(const Steps& step, double value) const;
    [[nodiscard]] bool                 hasConvertibleUnit() const;
    [[nodiscard]] bool                 hasLimitMin() const;
    [[nodiscard]] bool                 hasLimitMax() const;
    void                               showLimits();
    void                               showLimitsIn(const Steps& step, const std::string& unit);
    /// An item's text in the visible unit; the visible unit follows where it cannot be converted.
    [[nodiscard]] std::string inVisibleUnit(const Steps& step, const IXMLDOMNode& item,
                                            const std::string& text, bool isLocal);
    [[nodiscard]] std::string toDisplayUnit(const Steps& step, const IXMLDOMNode& parameter,
                                            const std::string& text);
    [[nodiscard]] std::string formatted(const std::string& text) const;
    CtrTextEdit*& partner(bool isMin) { return isMin ? mPairMinPartner : mPairMaxPartner; }

    std::string  mDecimalSeparator;
    double       mPairUpperLimit    = kUpperSentinel;
    double       mPairLowerLimit    = kLowerSentinel;
    double       mPairDifferenceMin = 0;
    double       mPairDifferenceMax = 0;
    CtrTextEdit* mPairMinPartner    = nullptr;
    CtrTextEdit* mPairMaxPartner    = nullptr;

    IXMLDOMDocument mItemDocument;
    bool            mPackedAscii = false;

    platform::Subscription mOnUnits;
    platform::Subscription mOnChange;
    platform::Subscription mOnKey;
    platform::Subscription mOnGotFocus;
    platform::Subscription mOnLostFocus;
    platform::Subscription mOnResize;
};

} // namespace quill
