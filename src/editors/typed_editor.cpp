#include "editors/typed_editor.h"

#include "framework/values.h"

namespace quill {

double TypedEditor::dblAComparedToB(double a, double b) const
{
    return numberRules::compare(a, b, mFormat.decimals);
}

void TypedEditor::forwardChanges()
{
    if (messenger() == nullptr) {
        return;
    }
    const Steps step = steps("forwardChanges");
    const auto  move = [&](const char* state) {
        mChangeState = state;
        step([&] { reportState(state); });
    };
    if (mChangeState == "original" && Modified()) {
        move("edited");
    } else if (mChangeState == "editedError" && Correct()) {
        move("corrected");
    }
    if (mChangeState == "edited" || mChangeState == "corrected") {
        if (!Correct()) {
            move("editedError");
        } else if (!Modified()) {
            move("original");
        }
    }
}

void TypedEditor::handleError(const std::string& code)
{
    if (code == "missingItems" || code == "commandIsNotImplemented") {
        setModified(true);
        setCorrect(false);
        forwardChanges();
    } else {
        handleRefusableError(code);
    }
}

void TypedEditor::takeNumberForm(const Steps& step, const IXMLDOMNode& parameter)
{
    mLimits = numberRules::readLimits(step, parameter, mValueType, mLimits);
    if (values::isFloatType(mValueType)) {
        mFormat = numberRules::readFormat(step, parameter, mFormat);
    }
    const std::string unit = read(step, parameter, "unit");
    mMessageUnit           = unit.empty() ? documents::kNoUnit : unit;
}

void TypedEditor::takeMark(const std::string& synchronised)
{
    if (synchronised == "1") {
        setModified(false);
        takeAsSynced();
        forwardChanges();
    } else if (synchronised == "2") {
        handleError("communicationError");
    } else {
        if (Text().empty()) {
            setModified(false);
        } else {
            setModified(true);
            mOriginalText.clear();
        }
        forwardChanges();
    }
}

void TypedEditor::forbidEmpty()
{
    if (values::isNumericType(mValueType) && values::contains(mAccessText, "readWrite")) {
        mAllowEmpty = false;
    }
}

bool TypedEditor::hasUnit(const std::string& text) const
{
    return mMessageUnit != documents::kNoUnit && text != "NaN" && text != "-Inf";
}

std::string TypedEditor::unitOfItem(const Steps& step, const IXMLDOMNode& item, bool isLocal) const
{
    const std::string unit = read(step, item, "unit");
    if (unit == mMessageUnit) {
        return unit;
    }
    const std::string mismatch =
        Tag.get() + " viestin yksikkö " + unit + " <> " + mMessageUnit + " Datafilessä!\r\n";
    if (unit != documents::kNoUnit && !unit.empty()) {
        step([&] { host().WriteLog(kLogUnit, mismatch + "Käytän VIESTIN yksikköä " + unit); });
        return unit;
    }
    if (!isLocal) {
        step([&] {
            host().WriteLog(kLogUnit, mismatch + "Käytän Datafilen yksikköä " + mMessageUnit);
        });
    }
    return mMessageUnit;
}

void TypedEditor::ViewGetChanges(std::int16_t scope)
{
    if (!Correct() || mSilent || !isAskedFor(scope)) {
        return;
    }
    const Steps step = steps("mMessenger_ViewGetChanges");
    step([&] {
        host().BookChange(*this, Tag, mLabelText, mOriginalText, Text(), {}, mValueType,
                          mContextTag);
    });
}

} // namespace quill
