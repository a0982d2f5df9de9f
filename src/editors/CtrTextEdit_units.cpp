// Units of the text editor: what is shown, what goes into documents, and the limits as tool tip.

#include "editors/CtrTextEdit.h"
#include "framework/display_unit.h"
#include "framework/modTools.h"
#include "framework/values.h"
#include "platform/toolkit.h"

#include <cmath>

namespace quill {

using documents::kNoUnit;

UnitConverter* CtrTextEdit::converter(const Steps& step) const
{
    if (messenger() == nullptr) {
        return nullptr;
    }
    return step.value(static_cast<UnitConverter*>(nullptr),
                      [&] { return messenger()->GetUnitConverter(); });
}

std::string CtrTextEdit::visibleUnit() const
{
    return lblUnit.Caption.get().empty() ? kNoUnit : lblUnit.Caption.get();
}

void CtrTextEdit::setVisibleUnit(const std::string& unit)
{
    if (unit == visibleUnit()) {
        return;
    }
    const Steps step      = steps("setVisibleUnit");
    const auto  textWidth = [&] {
        return step.value(std::int32_t{0},
                           [&] { return platform::Toolkit::current().textWidth(lblUnit.Caption); });
    };
    const std::int32_t before = textWidth();
    lblUnit.Caption           = unit == kNoUnit ? std::string{} : unit;
    const std::int32_t after  = textWidth();
    Width                     = values::sum(Width, after - before);
}

std::optional<float> CtrTextEdit::convert(const Steps& step, double value, const std::string& from,
                                          const std::string& to) const
{
    UnitConverter* const units = converter(step);
    if (units == nullptr) {
        return std::nullopt;
    }
    return step.value(std::optional<float>{},
                      [&] { return units->ConvertValue(values::toSingle(value), from, to); });
}

std::optional<float> CtrTextEdit::convert(const Steps& step, const std::string& number,
                                          const std::string& from, const std::string& to) const
{
    // A text can be a number and yet be too large for one.
    double value = 0;
    return step([&] { value = values::parseLocal(number); }) ? convert(step, value, from, to)
                                                             : std::nullopt;
}

double CtrTextEdit::compareValueOf(const Steps& step, double value) const
{
    const std::string visible = visibleUnit();
    if (mMessageUnit == visible || mMessageUnit == kNoUnit) {
        return value;
    }
    const auto converted = convert(step, value, visible, mMessageUnit);
    return converted ? static_cast<double>(*converted) : value;
}

bool CtrTextEdit::hasConvertibleUnit() const
{
    return mMessageUnit != kNoUnit && !values::contains(mMessageUnit, "%");
}

bool CtrTextEdit::hasLimitMin() const
{
    return mLimits.min != kLowerSentinel && mLimits.min != kUpperSentinel &&
           mLimits.min != -kIntegerSentinel;
}

bool CtrTextEdit::hasLimitMax() const
{
    return mLimits.max != kLowerSentinel && mLimits.max != kUpperSentinel &&
           mLimits.max != kIntegerSentinel;
}

void CtrTextEdit::showLimits()
{
    const std::string unit = mMessageUnit == kNoUnit ? std::string{} : mMessageUnit;
    const std::string min  = values::numberText(mLimits.min);
    const std::string max  = values::numberText(mLimits.max);
    if (hasLimitMin()) {
        txtBox.ToolTipText = " >= " + min + " " + unit;
    }
    if (hasLimitMax()) {
        txtBox.ToolTipText =
            (hasLimitMin() ? min + ".." + max : " <= " + max) + std::string{" "} + unit;
    }
}

void CtrTextEdit::showLimitsIn(const Steps& step, const std::string& unit)
{
    std::optional<float> min;
    if (hasLimitMin()) {
        min = convert(step, mLimits.min, mMessageUnit, unit);
        if (min) {
            txtBox.ToolTipText = " > " + values::numberText(*min) + " " + unit;
        }
    }
    if (hasLimitMax()) {
        if (const auto max = convert(step, mLimits.max, mMessageUnit, unit)) {
            const std::string text = values::numberText(*max) + " " + unit;
            txtBox.ToolTipText     = min ? values::numberText(*min) + ".." + text : " < " + text;
        }
    }
}

std::string CtrTextEdit::FormatForCommunication(const std::string& text)
{
    if (text.empty()) {
        return text;
    }
    std::string result = text;
    if (mValueType == "floatVal") {
        result = values::replaceAll(result, mDecimalSeparator, ".");
    }
    const std::string visible = visibleUnit();
    if (visible == mMessageUnit || values::contains(visible, "%") || result == "NaN") {
        return result;
    }
    const Steps step  = steps("FormatForCommunication");
    double      value = 0;
    if (!step([&] { value = modTools::ParseNumber(result); })) {
        return result;
    }
    if (const auto converted = convert(step, value, visible, mMessageUnit)) {
        return values::documentText(*converted);
    }
    step([&] {
        host().WriteLog(kLogUnit, "CtrTextEdit " + Tag.get() + " unable to convert " + visible +
                                      " to " + mMessageUnit);
    });
    step([&] {
        host().WriteLog(kLogUnit,
                        "CtrTextEdit " + Tag.get() + " changing GUI unit into message  " + visible);
    });
    mMessageUnit = visible;
    return result;
}

std::string CtrTextEdit::toDisplayUnit(const Steps& step, const IXMLDOMNode& parameter,
                                       const std::string& text)
{
    std::string    result  = text;
    std::string    display = mMessageUnit;
    UnitConverter* units   = nullptr;
    if (hasConvertibleUnit() && hasUnit(text)) {
        units = converter(step);
    }
    if (units != nullptr) {
        const std::string name = read(step, parameter, "name");
        display                = findDisplayUnit(step, *units, name).value_or(mMessageUnit);
    }
    if (display != mMessageUnit) {
        if (values::isNumeric(text)) {
            const auto converted = convert(step, text, mMessageUnit, display);
            if (converted) {
                result = values::numberText(*converted);
            } else {
                step([&] {
                    host().WriteLog(kLogDecision,
                                    " TextEdit setOfflineData: using Datafile units, because "
                                    "unable to convert " +
                                        Tag.get() + " " + text + " " + mMessageUnit + " to " +
                                        display);
                });
                display = mMessageUnit;
            }
        }
        showLimitsIn(step, display);
    }
    setVisibleUnit(display);
    return result;
}

void CtrTextEdit::ViewSetUnits()
{
    const Steps step = steps("mMessenger_ViewSetUnits");
    if (!hasConvertibleUnit()) {
        return;
    }
    UnitConverter* const units = converter(step);
    if (units == nullptr) {
        return;
    }
    const std::string name = modTools::RemoveCtrPrefix(Tag);
    const auto        found =
        findDisplayUnit(step, *units, name, values::contains(name, "Burst") ? 1 : kAllTails);
    if (!found && values::contains(name, "Burst")) {
        return;
    }
    const std::string unit    = found.value_or(mMessageUnit);
    const std::string visible = visibleUnit();
    if (visible != unit) {
        if (!values::isNumeric(txtBox.Text)) {
            setVisibleUnit(unit);
        } else if (const auto converted = convert(step, txtBox.Text.get(), visible, unit)) {
            setVisibleUnit(unit);
            const bool        wasModified = Modified();
            const std::string original    = mOriginalText;
            setText(values::documentText(*converted));
            if (Modified() != wasModified) {
                // The edit stays an edit, and the host is told so again.
                setModified(wasModified);
                mOriginalText = original;
                if (values::isNumeric(original)) {
                    if (const auto old = convert(step, original, visible, unit)) {
                        mOriginalText =
                            values::formatNumber(static_cast<double>(*old), mFormat.pattern);
                    }
                }
                forwardChanges();
            }
        }
    }
    showLimitsIn(step, unit);
}

} // namespace quill
