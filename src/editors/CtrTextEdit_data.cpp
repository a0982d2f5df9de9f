// How the text editor takes values from documents and gives its own back.

#include "editors/CtrTextEdit.h"
#include "framework/documents.h"
#include "framework/modTools.h"
#include "framework/values.h"
#include "platform/utf8.h"

namespace quill {

using documents::kNoUnit;

bool CtrTextEdit::setOfflineData(const IXMLDOMNode& parameter)
{
    if (!parameter) {
        return false;
    }
    const Steps step = steps("setOfflineData");
    bindTo(parameter);
    mValueType        = read(step, parameter, "type");
    std::string value = read(step, parameter, "value");

    if (values::isNumericType(mValueType)) {
        txtBox.Alignment = static_cast<std::int32_t>(platform::TextAlignment::right);
        takeNumberForm(step, parameter);
        if (values::isFloatType(mValueType)) {
            value = values::replaceAll(value, ".", mDecimalSeparator);
        }
        showLimits();
        value = toDisplayUnit(step, parameter, value);
    } else {
        const std::string longest = read(step, parameter, "maxVal");
        if (values::isNumeric(longest)) {
            step([&] { txtBox.MaxLength = values::toInt32(values::parseLocal(longest)); });
        }
    }

    // Read before the text is written, which turns the mark to "not in step".
    const std::string synchronised = read(step, parameter, "synchronised");
    setText(value);
    takeMark(synchronised);
    takeAccess(read(step, parameter, "access"));
    step([&] { Change.raise(txtBox.Text); });
    return true;
}

std::string CtrTextEdit::inVisibleUnit(const Steps& step, const IXMLDOMNode& item,
                                       const std::string& text, bool isLocal)
{
    const std::string unit    = unitOfItem(step, item, isLocal);
    const std::string visible = visibleUnit();
    if (unit == visible) {
        return text;
    }
    double value = 0;
    if (step([&] { value = modTools::ParseNumber(text); })) {
        if (const auto converted = convert(step, value, unit, visible)) {
            return values::numberText(*converted);
        }
        if (UnitConverter* const units = converter(step)) {
            const auto second = step.value(std::optional<std::string>{},
                                           [&] { return units->GetDisplayUnit(Tag); });
            const auto converted =
                second ? convert(step, value, unit, *second) : std::optional<float>{};
            if (converted && *second != visible) {
                setVisibleUnit(*second);
                return values::numberText(*converted);
            }
        }
    }
    setVisibleUnit(unit);
    return text;
}

bool CtrTextEdit::setOnlineData(const IXMLDOMNode& item)
{
    if (!item) {
        return false;
    }
    const Steps step = steps("setOnlineData");
    forbidEmpty();
    std::string text = step.text([&] { return documents::itemValue(item, mValueType); });
    if (hasUnit(text)) {
        text = inVisibleUnit(step, item, text, false);
    }
    setText(text);
    setModified(false);
    forwardChanges();
    takeAsSynced();
    step([&] { Change.raise(txtBox.Text); });
    return true;
}

bool CtrTextEdit::setLocalData(const IXMLDOMNode& item)
{
    if (!item) {
        return false;
    }
    const Steps step = steps("setLocalData");
    std::string text = step.text([&] { return documents::itemValue(item, mValueType); });
    if (hasUnit(text)) {
        text = inVisibleUnit(step, item, text, true);
    }
    EditText(text);
    setModified(true);
    forwardChanges();
    step([&] { Change.raise(txtBox.Text); });
    return true;
}

bool CtrTextEdit::setImportData(const IXMLDOMNode& parameter)
{
    if (!parameter) {
        return false;
    }
    const Steps step  = steps("setImportData");
    std::string value = read(step, parameter, "value");
    if (values::isNumericType(mValueType)) {
        value                     = values::replaceAll(value, ".", mDecimalSeparator);
        const std::string visible = visibleUnit();
        if (visible != kNoUnit && hasConvertibleUnit() && converter(step) != nullptr) {
            if (mMessageUnit != visible && values::isNumeric(value)) {
                const auto converted = convert(step, value, mMessageUnit, visible);
                if (converted) {
                    value = values::numberText(*converted);
                } else {
                    // The number stays in the parameter's unit, so that unit must stand beside it.
                    setVisibleUnit(mMessageUnit);
                }
            }
        } else {
            setVisibleUnit(mMessageUnit);
        }
        step([&] { value = formatted(value); });
    }
    txtBox.Text = value;
    setModified(true);
    forwardChanges();
    step([&] { Change.raise(txtBox.Text); });
    return true;
}

IXMLDOMDocument CtrTextEdit::GetXmlItem(bool force)
{
    if (!force && (txtBox.Text.get().empty() || !Correct())) {
        return {};
    }
    return getXmlItem();
}

IXMLDOMDocument CtrTextEdit::getXmlItem()
{
    const Steps step = steps("getXmlItem");
    mItemDocument    = IXMLDOMDocument::create();
    if (!Tag.get().empty() && !mValueType.empty()) {
        step([&] {
            // The formatting comes first: it may change the unit.
            const std::string value = FormatForCommunication(txtBox.Text);
            mItemDocument = documents::itemDocument(platform::utf8::substring(Tag.get(), 4),
                                                    mMessageUnit, mValueType, value);
        });
    }
    return mItemDocument;
}

} // namespace quill
