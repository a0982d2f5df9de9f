#include "editors/CtrTextEdit.h"

#include "framework/documents.h"
#include "framework/values.h"
#include "platform/failure.h"
#include "platform/toolkit.h"
#include "platform/utf8.h"

namespace quill {

namespace utf8 = platform::utf8;

CtrTextEdit::CtrTextEdit(const platform::Design& design) : TypedEditor(design)
{
    start();
}

CtrTextEdit::CtrTextEdit(platform::Widget& container, const platform::Design& design)
    : TypedEditor(container, design)
{
    start();
}

CtrTextEdit::~CtrTextEdit()
{
    if (mPairMinPartner != nullptr) {
        mPairMinPartner->mPairMaxPartner = nullptr;
    }
    if (mPairMaxPartner != nullptr) {
        mPairMaxPartner->mPairMinPartner = nullptr;
    }
}

void CtrTextEdit::start()
{
    const Steps step  = steps("UserControl_Initialize");
    mDecimalSeparator = step.value(std::string{"."}, [] { return values::decimalSeparator(); });
    mOriginalText     = txtBox.Text.get();
    arrange();

    mOnResize = Resize.subscribe([this] { arrange(); });
    mOnChange = txtBox.Change.subscribe([this] { txtBox_Change(); });
    mOnKey    = txtBox.KeyDown.subscribe([this](platform::KeyPress& key) {
        if (key.code == platform::kKeyReturn) {
            key.handled          = true;
            const Steps onReturn = steps("txtBox_KeyPress");
            onReturn([&] { host().TransferFocus(); });
        }
    });

    mOnGotFocus  = txtBox.GotFocus.subscribe([this] {
        txtBox.SelStart  = 0;
        txtBox.SelLength = utf8::length(txtBox.Text.get());
    });
    mOnLostFocus = txtBox.LostFocus.subscribe([this] {
        if (Correct() && values::isNumericType(mValueType)) {
            const Steps onLeave = steps("txtBox_LostFocus");
            onLeave([&] { txtBox.Text = formatted(txtBox.Text); });
        }
    });
}

void CtrTextEdit::arrange()
{
    const Steps        step      = steps("UserControl_Resize");
    const std::int32_t unitWidth = step.value(std::int32_t{lblUnit.Width}, [&] {
        return platform::Toolkit::current().textWidth(lblUnit.Caption);
    });
    layout(unitWidth);
    lblUnit.Left =
        txtBox.Width + (Width - txtBox.Width - unitWidth - lblModified.Width - lblError.Width) / 2;
    lblUnit.Width  = unitWidth;
    lblUnit.Height = Height.get();
}

void CtrTextEdit::messengerChanged(Messenger* messenger)
{
    mOnUnits.drop();
    if (messenger != nullptr) {
        mOnUnits = messenger->ViewSetUnits.subscribe([this] { ViewSetUnits(); });
    }
}

std::string CtrTextEdit::formatted(const std::string& text) const
{
    return numberRules::formatted(text, mFormat.pattern);
}

void CtrTextEdit::setText(const std::string& text)
{
    const Steps step = steps("Text");
    mOriginalText    = text;
    if (values::isNumericType(mValueType)) {
        mOriginalText = values::replaceAll(mOriginalText, ".", mDecimalSeparator);
        step([&] { mOriginalText = formatted(mOriginalText); });
    }
    // A copy, because the change of the box may set the original anew.
    const std::string shown = mOriginalText;
    txtBox.Text             = shown;
}

void CtrTextEdit::Uninitialize()
{
    mDataNode = nullptr;
    mWriter   = {};
    setText({});
}

void CtrTextEdit::txtBox_Change()
{
    const Steps step = steps("txtBox_Change");
    if (!Modified()) {
        setModified(true);
    }
    if (txtBox.Text == mOriginalText) {
        setModified(false);
    }

    if (txtBox.Text.get().empty()) {
        setCorrect(mAllowEmpty);
    } else if (values::isNumericType(mValueType)) {
        if (values::isNumeric(txtBox.Text)) {
            checkNumber(step);
        } else {
            setCorrect(false);
            replaceSeparator();
        }
    } else if (mPackedAscii) {
        forcePackedAscii();
    }

    forwardChanges();
    step([&] { Change.raise(txtBox.Text); });
    if (Correct() && mDataNode) {
        writeBack(step);
    }
}

void CtrTextEdit::checkNumber(const Steps& step)
{
    double value = 0;
    if (!step([&] { value = values::parseLocal(txtBox.Text); })) {
        setCorrect(false);
        return;
    }
    const double compareValue = compareValueOf(step, value);
    if (!numberRules::isInside(compareValue, mLimits, mFormat.decimals)) {
        setCorrect(false);
    } else if (values::isIntegerType(mValueType) && value != values::roundToEven(value)) {
        setCorrect(false);
        step([&] {
            host().ShowMessage("Inappropriate input",
                               mLabelText + " not correct: " + values::numberText(value) +
                                   " should be integer");
        });
        step([&] { txtBox.SetFocus(); });
    } else {
        setCorrect(true);
    }
    checkAgainstPartners(step, compareValue);
}

void CtrTextEdit::checkAgainstPartners(const Steps& step, double compareValue)
{
    if (mPairMinPartner != nullptr) {
        if (dblAComparedToB(compareValue, mPairLowerLimit) < 0 && mPairMinPartner->Enabled()) {
            setCorrect(false);
        }
        step([&] { mPairMinPartner->setPairLimit(compareValue, "max"); });
    }
    if (mPairMaxPartner != nullptr) {
        if (dblAComparedToB(compareValue, mPairUpperLimit) > 0 && mPairMaxPartner->Enabled()) {
            setCorrect(false);
        }
        step([&] { mPairMaxPartner->setPairLimit(compareValue, "min"); });
    }
}

void CtrTextEdit::replaceSeparator()
{
    const bool        hasPoint = mDecimalSeparator == ".";
    const std::string text =
        values::replaceAll(txtBox.Text, hasPoint ? "," : ".", mDecimalSeparator);
    const std::int32_t cursor = txtBox.SelStart;
    txtBox.Text               = text; // comes back here, and then the text may pass
    txtBox.SelStart           = cursor;
}

void CtrTextEdit::forcePackedAscii()
{
    std::string text;
    for (const auto& character : utf8::characters(utf8::toUpper(txtBox.Text.get()))) {
        const char32_t code = utf8::codePoint(character);
        text += code < 32 || code > 95 ? "?" : character;
    }
    const std::int32_t cursor = txtBox.SelStart;
    txtBox.Text               = text;
    txtBox.SelStart           = cursor;
}

void CtrTextEdit::writeBack(const Steps& step)
{
    step([&] { mWriter.writeValue(mDataNode, FormatForCommunication(txtBox.Text)); });
    step([&] { mWriter.writeUnit(mDataNode, mMessageUnit); });
    step([&] { mWriter.markOutOfStep(mDataNode); });
}

// --- The pair ---------------------------------------------------------------------------------

void CtrTextEdit::setParameterPair(CtrTextEdit* pair, const std::string& pairLimitingWhat,
                                   double minDifference)
{
    const bool        isMin                           = pairLimitingWhat == "min";
    const std::string other                           = isMin ? "max" : "min";
    (isMin ? mPairDifferenceMin : mPairDifferenceMax) = minDifference;
    CtrTextEdit* const present                        = partner(isMin);
    if (pair == present) {
        return;
    }
    if (present != nullptr) {
        present->unsetParameterPair(other);
    }
    partner(isMin)   = pair;
    const Steps step = steps("setParameterPair");
    step([&] {
        if (pair == nullptr) {
            throw platform::failure(platform::kObjectNotSet);
        }
        pair->setParameterPair(this, other, minDifference);
    });
}

void CtrTextEdit::unsetParameterPair(const std::string& pairLimitingWhat)
{
    for (const bool isMin : {true, false}) {
        if (pairLimitingWhat == (isMin ? "max" : "min")) {
            continue;
        }
        if (CtrTextEdit* const old = partner(isMin)) {
            partner(isMin) = nullptr;
            old->unsetParameterPair();
        }
    }
}

void CtrTextEdit::setPairLimit(double limit, const std::string& pairLimitingWhat)
{
    if (pairLimitingWhat == "min") {
        mPairLowerLimit = limit + mPairDifferenceMin;
    } else if (pairLimitingWhat == "max") {
        mPairUpperLimit = limit - mPairDifferenceMax;
    }
    const Steps step    = steps("setPairLimit");
    bool        correct = false;
    if (values::isNumeric(txtBox.Text)) {
        step([&] {
            const double value = compareValueOf(step, values::parseLocal(txtBox.Text));
            correct            = numberRules::isInside(value, {mPairLowerLimit, mPairUpperLimit},
                                                       mFormat.decimals) &&
                      numberRules::isInside(value, mLimits, mFormat.decimals);
        });
    }
    setCorrect(correct);
    forwardChanges();
}

} // namespace quill
