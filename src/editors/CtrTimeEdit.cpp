#include "editors/CtrTimeEdit.h"

#include "framework/caption_width.h"
#include "framework/documents.h"
#include "framework/values.h"
#include "platform/utf8.h"

#include <algorithm>
#include <utility>

namespace quill {

namespace {

constexpr const char* kSeconds = "s";

/// Room for days of five digits and two digits in each of the others.
constexpr std::int32_t kDefaultWidth = 4200;
constexpr std::int32_t kGap          = 60;
constexpr std::int32_t kSignGap      = 100;

} // namespace

CtrTimeEdit::CtrTimeEdit(const platform::Design& design) : TypedEditor(design)
{
    start(design);
}

CtrTimeEdit::CtrTimeEdit(platform::Widget& container, const platform::Design& design)
    : TypedEditor(container, design)
{
    start(design);
}

CtrTimeEdit::~CtrTimeEdit()
{
    SetMessenger(nullptr);
}

void CtrTimeEdit::start(const platform::Design& design)
{
    if (design.Width == 0) {
        Width = kDefaultWidth;
    }
    arrange();
    mOnResize = Resize.subscribe([this] { arrange(); });
    for (std::size_t i = 0; i < txtBox.size(); ++i) {
        platform::TextBox& box = txtBox[i];
        box.Alignment          = static_cast<std::int32_t>(platform::TextAlignment::right);
        mOnChange[i]           = box.Change.subscribe([this] { txtBox_Change(); });
        mOnKey[i]              = box.KeyDown.subscribe([this](platform::KeyPress& key) {
            if (key.code == platform::kKeyReturn) {
                key.handled      = true;
                const Steps step = steps("txtBox_KeyPress");
                step([&] { host().TransferFocus(); });
            }
        });
        mOnGotFocus[i]         = box.GotFocus.subscribe([&box] {
            box.SelStart  = 0;
            box.SelLength = platform::utf8::length(box.Text.get());
        });
    }
}

void CtrTimeEdit::arrange()
{
    const std::int32_t signs = lblModified.Width + lblError.Width;
    std::int32_t       units = 0;
    for (platform::Label& unit : lblUnit) {
        unit.Width  = captionWidth(unit.Caption);
        unit.Height = Height.get();
        units += unit.Width + 2 * kGap;
    }
    const auto         parts    = static_cast<std::int32_t>(txtBox.size());
    const std::int32_t boxWidth = std::max(0, Width - signs - kSignGap - units) / parts;
    std::int32_t       left     = 0;
    for (std::size_t i = 0; i < txtBox.size(); ++i) {
        txtBox[i].Left   = left;
        txtBox[i].Width  = boxWidth;
        txtBox[i].Height = Height.get();
        lblUnit[i].Left  = left + boxWidth + kGap;
        left += boxWidth + lblUnit[i].Width + 2 * kGap;
    }
    placeSigns(left + kSignGap, Height);
}

void CtrTimeEdit::setLocked(bool locked)
{
    for (platform::TextBox& box : txtBox) {
        box.Locked = locked;
    }
}

// --- Text and boxes ---------------------------------------------------------------------------

std::array<std::string, duration::kParts> CtrTimeEdit::texts() const
{
    std::array<std::string, duration::kParts> result;
    for (std::size_t i = 0; i < txtBox.size(); ++i) {
        result[i] = txtBox[i].Text;
    }
    return result;
}

std::optional<double> CtrTimeEdit::convert(double value, const std::string& from,
                                           const std::string& to) const
{
    UnitConverter* const units = messenger() == nullptr ? nullptr : messenger()->GetUnitConverter();
    if (units == nullptr) {
        return from == to ? std::optional{value} : std::nullopt;
    }
    const auto converted = units->ConvertValue(values::toSingle(value), from, to);
    return converted ? std::optional{static_cast<double>(*converted)} : std::nullopt;
}

std::string CtrTimeEdit::Text() const
{
    const Steps step{messenger(), "CtrTimeEdit Text Get Error"};
    return step.text([&] {
        const auto seconds = duration::total(texts());
        const auto value   = seconds ? convert(*seconds, kSeconds, mMessageUnit) : std::nullopt;
        return value ? values::formatNumber(*value, mFormat.pattern) : std::string{};
    });
}

bool CtrTimeEdit::letText(const std::string& text)
{
    const bool isShown = show(inNumberForm(steps("Text"), text), mMessageUnit);
    mOriginalText      = Text();
    return isShown;
}

std::string CtrTimeEdit::inNumberForm(const Steps& step, const std::string& text) const
{
    std::string form = text;
    step([&] { form = values::replaceAll(text, ".", values::decimalSeparator()); });
    step([&] { form = numberRules::formatted(form, mFormat.pattern); });
    return form;
}

void CtrTimeEdit::setText(const std::string& text)
{
    (void)letText(text);
}

void CtrTimeEdit::EditText(const std::string& text)
{
    const bool wasCorrect = Correct();
    (void)show(text, mMessageUnit);
    if (Correct() != wasCorrect) {
        forwardChanges();
    }
}

bool CtrTimeEdit::show(const std::string& text, const std::string& unit)
{
    const Steps step{messenger(), "CtrTimeEdit EditText"};
    std::optional<std::array<std::string, duration::kParts>> shown;
    if (text.empty()) {
        shown.emplace();
    } else {
        step([&] {
            const std::string local = values::replaceAll(text, ".", values::decimalSeparator());
            const float       value =
                values::isNumeric(local) ? values::toSingle(values::parseLocal(local)) : 0.0F;
            const auto seconds = convert(static_cast<double>(value), unit, kSeconds);
            if (!seconds) {
                return;
            }
            const auto parts = duration::split(values::toInt32(*seconds));
            std::transform(parts.begin(), parts.end(), shown.emplace().begin(),
                           [](std::int32_t part) { return std::to_string(part); });
        });
    }
    if (!shown) {
        return false;
    }
    const bool outer = std::exchange(mIsShowing, true);
    for (std::size_t i = 0; i < txtBox.size(); ++i) {
        txtBox[i].Text = (*shown)[i];
    }
    mIsShowing = outer;
    // Whatever wrong stood there is gone.
    lblError.Visible = false;
    paintText();
    return true;
}

bool CtrTimeEdit::isPlain() const
{
    return std::all_of(txtBox.begin(), txtBox.end(), [](const platform::TextBox& box) {
        return box.Text.get().empty() || duration::isPlain(box.Text);
    });
}

bool CtrTimeEdit::isEmpty() const
{
    return std::all_of(txtBox.begin(), txtBox.end(),
                       [](const platform::TextBox& box) { return box.Text.get().empty(); });
}

bool CtrTimeEdit::isAllowed(const Steps& step, const std::string& text) const
{
    return text.empty() ? mAllowEmpty : step.value(false, [&] {
        return numberRules::isInside(values::parseLocal(text), mLimits, mFormat.decimals);
    });
}

void CtrTimeEdit::txtBox_Change()
{
    if (mIsShowing) {
        return;
    }
    const Steps step = steps("txtBox_Change");
    if (!Modified()) {
        setModified(true);
    }
    const bool        plain = step.value(false, [&] { return isPlain(); });
    const std::string text  = Text();
    const bool        known = !text.empty() || isEmpty();
    if (plain && known && text == mOriginalText) {
        setModified(false);
    }
    // Boxes that say something, and no number for it: it cannot be told to the device.
    setCorrect(plain && known && isAllowed(step, text));
    forwardChanges();
    step([&] { Change.raise(text); });
    // What the datafile holds is shown without a check when it is loaded again: a duration that is
    // wrong now would come back as a right one and could be sent.
    if (Correct()) {
        writeValue(step, FormatForCommunication(text));
    }
}

std::string CtrTimeEdit::FormatForCommunication(const std::string& text) const
{
    if (mValueType != "floatVal") {
        return text;
    }
    const Steps step = steps("FormatForCommunication");
    return step.value(text,
                      [&] { return values::replaceAll(text, values::decimalSeparator(), "."); });
}

// --- Values from documents --------------------------------------------------------------------

bool CtrTimeEdit::setOfflineData(const IXMLDOMNode& parameter)
{
    if (!parameter) {
        return false;
    }
    const Steps step = steps("setOfflineData");
    bindTo(parameter);
    mValueType = read(step, parameter, "type");
    takeNumberForm(step, parameter);
    const std::string value        = read(step, parameter, "value");
    const std::string synchronised = read(step, parameter, "synchronised");
    if (!letText(value)) {
        setText({});
    }
    takeMark(synchronised);
    takeAccessIfTold(step, parameter);
    step([&] { Change.raise(Text()); });
    return true;
}

bool CtrTimeEdit::setOnlineData(const IXMLDOMNode& item)
{
    if (!item) {
        return false;
    }
    const Steps step = steps("setOnlineData");
    forbidEmpty();
    const std::string text = step.text([&] { return documents::itemValue(item, mValueType); });
    const std::string unit = hasUnit(text) ? unitOfItem(step, item, false) : mMessageUnit;
    // A unit of the message's own is not rounded to the parameter's decimals, which mean another.
    if (!(unit == mMessageUnit ? letText(text) : show(text, unit))) {
        setText({});
    }
    setModified(false);
    forwardChanges();
    takeAsSynced();
    step([&] { Change.raise(Text()); });
    return true;
}

bool CtrTimeEdit::setImportData(const IXMLDOMNode& parameter)
{
    if (!parameter) {
        return false;
    }
    const Steps step = steps("setImportData");
    // In the parameter's own decimals, so that what is sent is what is seen.
    if (!show(inNumberForm(step, read(step, parameter, "value")), mMessageUnit)) {
        (void)show({}, mMessageUnit);
    }
    setModified(true);
    forwardChanges();
    step([&] { Change.raise(Text()); });
    return true;
}

IXMLDOMDocument CtrTimeEdit::GetXmlItem(bool force)
{
    const std::string text = Text();
    if (!force && (text.empty() || !Correct())) {
        return {};
    }
    return itemOf(steps("getXmlItem"), mValueType, FormatForCommunication(text), mMessageUnit);
}

} // namespace quill
