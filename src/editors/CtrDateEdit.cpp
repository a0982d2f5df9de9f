#include "editors/CtrDateEdit.h"

#include "framework/documents.h"
#include "framework/values.h"
#include "platform/failure.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace quill {

using platform::DateTime;

namespace {

constexpr const char* kDateForm = "d.m.yyyy";
constexpr const char* kTimeForm = "h:Nn:Ss";

/// Text of a node that a date may well do without.
std::string textOf(const IXMLDOMNode& found)
{
    return found ? found.get_text() : std::string{};
}

std::string optionalText(const IXMLDOMNode& node, const char* attribute)
{
    return textOf(platform::attributeNode(node, attribute));
}

/// Reads day, month and year with dots between. The three are put together before the date is
/// looked at, so that "31.1.2020" passes whatever month was shown before.
DateTime parseHartDate(const std::string& text)
{
    std::array<int, 3> parts{};
    const auto         blanks = text.find_last_not_of(' ') + 1;
    const char*        at     = text.data() + std::min(text.find_first_not_of(' '), blanks);
    const char* const  end    = text.data() + blanks;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const bool isLast          = i + 1 == parts.size();
        const auto [behind, error] = std::from_chars(at, end, parts[i]);
        if (error != std::errc{} || (isLast ? behind != end : behind == end || *behind != '.')) {
            throw platform::failure(platform::kTypeMismatch);
        }
        at = isLast ? behind : behind + 1;
    }
    const DateTime date{parts[2], parts[1], parts[0]};
    if (!platform::isValid(date)) {
        throw platform::failure(platform::kTypeMismatch);
    }
    return date;
}

} // namespace

CtrDateEdit::CtrDateEdit(const platform::Design& design) : EditorBase(design)
{
    start();
}

CtrDateEdit::CtrDateEdit(platform::Widget& container, const platform::Design& design)
    : EditorBase(container, design)
{
    start();
}

CtrDateEdit::~CtrDateEdit()
{
    SetMessenger(nullptr);
}

void CtrDateEdit::start()
{
    mEmptyAt = datePicker.Value();
    layout(0);
    mOnResize = Resize.subscribe([this] { layout(0); });
    mOnChange = datePicker.Change.subscribe([this] { datePicker_Change(); });
}

// --- Text and value ---------------------------------------------------------------------------

std::string CtrDateEdit::documentText(const DateTime& value) const
{
    return values::formatDate(value, mTimeMode ? kTimeForm : kDateForm);
}

DateTime CtrDateEdit::getDate(const std::string& text) const
{
    const std::string read = mTimeMode ? values::replaceAll(text, ".", ":") : text;
    if (const auto date = values::parseDate(read)) {
        return *date;
    }
    return parseHartDate(read);
}

std::string CtrDateEdit::Text() const
{
    return isEmpty() ? std::string{} : documentText(datePicker.Value());
}

void CtrDateEdit::setText(const std::string& text)
{
    showText(steps("Text"), text);
}

void CtrDateEdit::showText(const Steps& step, const std::string& text)
{
    if (text.empty()) {
        mEmptyAt = datePicker.Value();
        return;
    }
    step([&] {
        datePicker.setValue(getDate(text));
        mEmptyAt.reset();
    });
}

void CtrDateEdit::SetPickerFormat(std::int32_t format)
{
    using platform::PickerFormat;
    const auto time = static_cast<std::int32_t>(PickerFormat::time);
    if (format >= static_cast<std::int32_t>(PickerFormat::longDate) && format <= time) {
        mTimeMode         = format == time;
        datePicker.Format = format;
    }
}

void CtrDateEdit::keepOriginal()
{
    mOriginalDate = isEmpty() ? std::nullopt : std::optional{datePicker.Value()};
}

// --- Values from documents --------------------------------------------------------------------

void CtrDateEdit::takeLimits(const Steps& step, const IXMLDOMNode& parameter)
{
    const auto read = [&](const char* attribute) {
        return step.value(std::optional<DateTime>{}, [&] {
            const std::string text = optionalText(parameter, attribute);
            return text.empty() ? std::nullopt : std::optional{getDate(text)};
        });
    };
    const auto lower    = read("minVal");
    const auto upper    = read("maxVal");
    const bool wasEmpty = isEmpty();

    const auto setLower = [&] {
        if (lower) {
            step([&] { datePicker.setMinDate(*lower); });
        }
    };
    // Limits that both lie above the former ones go up from above.
    const bool lowerFirst = !lower || *lower <= datePicker.MaxDate();
    if (lowerFirst) {
        setLower();
    }
    if (upper) {
        step([&] { datePicker.setMaxDate(*upper); });
    }
    if (!lowerFirst) {
        setLower();
    }
    if (wasEmpty) {
        // A limit may have moved what the picker shows, which is still nobody's value.
        mEmptyAt = datePicker.Value();
    }
}

bool CtrDateEdit::setOfflineData(const IXMLDOMNode& parameter)
{
    if (!parameter) {
        return false;
    }
    const Steps step = steps("setOfflineData");
    bindTo(parameter);
    mValueType = read(step, parameter, "type");
    takeLimits(step, parameter);
    const std::string synchronised = read(step, parameter, "synchronised");
    showText(step, step.text([&] { return optionalText(parameter, "value"); }));
    if (synchronised == "1") {
        forwardSyncChanges();
        SetModifiedForward(false);
    } else if (synchronised == "2") {
        handleError("communicationError");
    } else {
        SetModifiedForward(true);
    }
    takeAccessIfTold(step, parameter);
    step([&] { Change.raise(Text()); });
    return true;
}

bool CtrDateEdit::setOnlineData(const IXMLDOMNode& item)
{
    if (!item) {
        return false;
    }
    const Steps step = steps("setOnlineData");
    showText(step,
             step.text([&] { return textOf(item.selectSingleNode("./comm:" + mValueType)); }));
    SetModifiedForward(false);
    takeAsSynced();
    step([&] { Change.raise(Text()); });
    return true;
}

bool CtrDateEdit::setImportData(const IXMLDOMNode& parameter)
{
    if (!parameter) {
        return false;
    }
    const Steps step = steps("setImportData");
    showText(step, step.text([&] { return optionalText(parameter, "value"); }));
    SetModifiedForward(true);
    step([&] { Change.raise(Text()); });
    return true;
}

IXMLDOMDocument CtrDateEdit::GetXmlItem(bool force)
{
    if (!force && (isEmpty() || !Correct())) {
        return {};
    }
    return itemOf(steps("GetXmlItem"), "stringVal", documentText(datePicker.Value()));
}

// --- What the user does -----------------------------------------------------------------------

void CtrDateEdit::datePicker_Change()
{
    const Steps step = steps("datePicker_Change");
    mEmptyAt.reset();
    if (!Modified()) {
        setModified(true);
    }
    if (mOriginalDate == datePicker.Value()) {
        setModified(false);
    }
    forwardChanges();
    writeValue(step, Text());
    step([&] { Change.raise(Text()); });
}

void CtrDateEdit::ViewGetChanges(std::int16_t scope)
{
    if (mSilent || !isAskedFor(scope)) {
        return;
    }
    const Steps       step    = steps("mMessenger_ViewGetChanges");
    const std::string oldText = mOriginalDate ? documentText(*mOriginalDate) : std::string{};
    step([&] {
        host().BookChange(*this, Tag, mLabelText, oldText, Text(), {}, "dateVal", mContextTag);
    });
}

} // namespace quill
