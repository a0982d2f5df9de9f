#include "editors/CtrOptionEdit.h"

#include "editors/value_list.h"
#include "framework/caption_width.h"
#include "framework/documents.h"

#include <algorithm>
#include <utility>

namespace quill {

namespace {

constexpr std::int32_t kRowHeight = 315;
/// What an option needs beside its text: the mark and the gap behind it.
constexpr std::int32_t kMarkWidth = 450;
constexpr std::int32_t kGap       = 100;

constexpr const char* kLocalization = "localization";

} // namespace

CtrOptionEdit::CtrOptionEdit(const platform::Design& design) : ListEditor(design)
{
    start();
}

CtrOptionEdit::CtrOptionEdit(platform::Widget& container, const platform::Design& design)
    : ListEditor(container, design)
{
    start();
}

CtrOptionEdit::~CtrOptionEdit()
{
    SetMessenger(nullptr);
}

void CtrOptionEdit::start()
{
    arrange();
    mOnResize = Resize.subscribe([this] { arrange(); });
}

void CtrOptionEdit::arrange()
{
    std::int32_t widest = 0;
    for (const OptionOnForm& option : mOptions) {
        widest = std::max(widest, captionWidth(option.button->Caption));
    }
    const auto         rows   = static_cast<std::int32_t>(mOptions.size());
    const std::int32_t beside = lblModified.Width + lblError.Width + kGap;
    Height                    = std::max(Height.get(), rows * kRowHeight);
    if (rows > 0) {
        Width = std::max(Width.get(), widest + kMarkWidth + beside);
    }
    layout(0);
    placeSigns(lblModified.Left, kRowHeight);
    std::int32_t top = 0;
    for (const OptionOnForm& option : mOptions) {
        option.button->Top    = top;
        option.button->Width  = frmOptions.Width.get();
        option.button->Height = kRowHeight;
        top += kRowHeight;
    }
}

void CtrOptionEdit::paintBoxes(platform::Color color)
{
    mColor = color;
    paintOptions();
}

void CtrOptionEdit::paintOptions()
{
    for (std::size_t place = 0; place < mOptions.size(); ++place) {
        mOptions[place].button->ForeColor = place == mChosen ? mColor : platform::kWindowText;
    }
}

void CtrOptionEdit::setLocked(bool locked)
{
    mLocked = locked;
    for (const OptionOnForm& option : mOptions) {
        option.button->Enabled = !locked;
    }
}

// --- The options ------------------------------------------------------------------------------

void CtrOptionEdit::offerEntries(const Steps& step)
{
    const bool hadOriginal = mOriginal != kNone || !mOriginalText.empty();
    mEntries.clear();
    for (const IXMLDOMNode& node : *mMappings) {
        mEntries.push_back({node, read(step, node, "name"), read(step, node, "value")});
    }
    fillOptions();
    show(kNone);
    // The original is the same entry of the new list, also after one in between that lacked it.
    mOriginal = hadOriginal ? placeOfValue(step, mOriginalText) : kNone;
    showTexts(step);
}

void CtrOptionEdit::addOption(const std::string& tag)
{
    mAddedTags.push_back(tag);
    fillOptions();
    show(mChosen);
    showTexts(steps("addOption"));
}

void CtrOptionEdit::fillOptions()
{
    std::vector<std::string> tags;
    for (const Entry& entry : mEntries) {
        tags.push_back(entry.name);
    }
    for (const std::string& tag : mAddedTags) {
        if (std::find(tags.begin(), tags.end(), tag) == tags.end()) {
            tags.push_back(tag);
        }
    }
    // Options that are there stay, so that a page that is fed anew keeps its focus.
    while (mOptions.size() > tags.size()) {
        mOptions.pop_back();
    }
    while (mOptions.size() < tags.size()) {
        const std::size_t place  = mOptions.size();
        OptionOnForm&     option = mOptions.emplace_back();
        option.button            = std::make_unique<platform::OptionButton>(
            frmOptions, platform::Design{.Name    = "optValue",
                                                    .Index   = static_cast<int>(place),
                                                    .Enabled = !mLocked});
        option.onClick = option.button->Click.subscribe([this, place] { optValue_Click(place); });
        option.onKey   = option.button->KeyDown.subscribe(
            [this, place](platform::KeyPress& key) { optValue_KeyDown(place, key); });
    }
    for (std::size_t place = 0; place < tags.size(); ++place) {
        platform::OptionButton& button = *mOptions[place].button;
        if (button.Tag != tags[place]) {
            button.Tag     = tags[place];
            button.Caption = tags[place];
        }
    }
    arrange();
}

void CtrOptionEdit::showTexts(const Steps& step)
{
    if (mIsLocalized) {
        translateEntries(step, hostTexts(step));
        return;
    }
    for (const Entry& entry : mEntries) {
        step([&] { documents::writeAttribute(entry.node, kLocalization, entry.name); });
    }
}

void CtrOptionEdit::translateEntries(const Steps& step, Translator* translator)
{
    for (std::size_t place = 0; place < mOptions.size(); ++place) {
        platform::OptionButton& button = *mOptions[place].button;
        button.Caption                 = valueList::translated(step, translator, button.Tag);
        if (place < mEntries.size()) {
            step([&] {
                documents::writeAttribute(mEntries[place].node, kLocalization, button.Caption);
            });
        }
    }
    arrange();
}

void CtrOptionEdit::Localize(Translator& translator)
{
    EditorBase::Localize(translator);
    mIsLocalized = true;
    translateEntries(steps("Localize"), &translator);
}

std::string CtrOptionEdit::nameAt(std::size_t place) const
{
    return place < mOptions.size() ? mOptions[place].button->Tag.get() : std::string{};
}

std::string CtrOptionEdit::valueAt(std::size_t place) const
{
    return place < mEntries.size() ? mEntries[place].value : std::string{};
}

std::string CtrOptionEdit::textAt(const Steps& step, std::size_t place) const
{
    if (place < mEntries.size()) {
        return read(step, mEntries[place].node, kLocalization);
    }
    return place < mOptions.size() ? mOptions[place].button->Caption.get() : std::string{};
}

std::size_t CtrOptionEdit::placeOfKey(const std::string& key) const
{
    for (std::size_t place = 0; place < mEntries.size(); ++place) {
        if (mEntries[place].value == key) {
            return place;
        }
    }
    return kNone;
}

std::size_t CtrOptionEdit::placeOfValue(const Steps& step, const std::string& value) const
{
    return placeOfKey(valueList::keyOf(step, value, mValueType));
}

std::size_t CtrOptionEdit::placeOf(const Steps& step, const std::string& value) const
{
    const std::string key   = valueList::keyOf(step, value, mValueType);
    std::size_t       place = placeOfKey(key);
    for (std::size_t i = 0; place == kNone && i < mOptions.size(); ++i) {
        if (nameAt(i) == key) {
            place = i;
        }
    }
    return place;
}

std::string CtrOptionEdit::mapText(const std::string& value) const
{
    return nameAt(placeOfValue(steps("mapText"), value));
}

// --- The choice -------------------------------------------------------------------------------

std::string CtrOptionEdit::Selected() const
{
    return mSelectedValue;
}

void CtrOptionEdit::show(std::size_t place)
{
    mChosen        = place;
    mSelectedValue = valueAt(place);
    for (std::size_t i = 0; i < mOptions.size(); ++i) {
        platform::OptionButton& button = *mOptions[i].button;
        button.Value                   = i == place;
        // The group is one stop on the way of the Tab key.
        button.TabStop = place < mOptions.size() ? i == place : i == 0;
    }
    paintOptions();
}

void CtrOptionEdit::keepOriginal()
{
    mOriginal     = mChosen;
    mOriginalText = mSelectedValue;
}

void CtrOptionEdit::choose(const Steps& step, std::size_t place, const std::string& value,
                           const std::string& text)
{
    const auto log = [&](const std::string& line) {
        step([&] { host().WriteLog(kLogFlow, line); });
    };
    log("CtrOptionEdit Selected originally " + mSelectedValue);
    if (!text.empty()) {
        log("CtrOptionEdit Selected changing to " + value);
        log("and to " + text);
    }
    show(place);
    // A value that no option has is none of the originals either.
    setModified(mChosen != mOriginal || (mChosen == kNone && !value.empty()));
    forwardChanges();
}

void CtrOptionEdit::setSelected(const std::string& value)
{
    const Steps       step  = steps("Selected");
    const std::size_t place = placeOf(step, value);
    choose(step, place, value, mapText(value));
}

std::string CtrOptionEdit::Text() const
{
    return textAt(steps("Text"), mChosen);
}

void CtrOptionEdit::setText(const std::string& text)
{
    const Steps       step   = steps("Text");
    const std::size_t before = mChosen;
    show(placeOf(step, text));
    if (mChosen != before) {
        step([&] { Change.raise(nameAt(mChosen)); });
    }
}

void CtrOptionEdit::optValue_Click(std::size_t place)
{
    const Steps       step   = steps("optValue_Click");
    const std::size_t before = mChosen;
    const std::string value  = valueAt(place);
    const bool        hasOne = place < mEntries.size();
    choose(step, place, hasOne ? value : nameAt(place), hasOne ? nameAt(place) : std::string{});
    if (hasOne) {
        writeValue(step, value);
    }
    // Last, as a handler may load another list.
    if (place != before) {
        step([&] { Change.raise(nameAt(place)); });
    }
}

void CtrOptionEdit::optValue_KeyDown(std::size_t place, platform::KeyPress& key)
{
    const bool back = key.code == platform::kKeyUp || key.code == platform::kKeyLeft;
    const bool on   = key.code == platform::kKeyDown || key.code == platform::kKeyRight;
    if ((!back && !on) || key.shift != platform::kNoShift) {
        return;
    }
    key.handled              = true;
    const std::size_t count  = mOptions.size();
    const std::size_t stride = back ? count - 1 : 1;
    (void)mOptions[(place + stride) % count].button->click();
}

// --- Values from documents --------------------------------------------------------------------

void CtrOptionEdit::showValue(const Steps& step, const std::string& value)
{
    show(placeOf(step, value));
    step([&] { Change.raise(nameAt(mChosen)); });
}

bool CtrOptionEdit::setOfflineData(const IXMLDOMNode& parameter)
{
    if (!parameter) {
        return false;
    }
    const Steps step = steps("setOfflineData");
    bindTo(parameter);
    mValueType                     = read(step, parameter, "type");
    const std::string value        = read(step, parameter, "value");
    const std::string synchronised = read(step, parameter, "synchronised");
    showValue(step, value);
    if (synchronised == "1") {
        forwardSyncChanges();
        SetModifiedForward(false);
    } else if (synchronised == "2") {
        handleError("communicationError");
    } else {
        SetModifiedForward(!value.empty());
    }
    takeAccessIfTold(step, parameter);
    return true;
}

IXMLDOMDocument CtrOptionEdit::GetXmlItem(bool force)
{
    if (!force && (mSelectedValue.empty() || !Correct())) {
        return {};
    }
    return itemOf(steps("GetXmlItem"), mValueType, mSelectedValue);
}

void CtrOptionEdit::ViewGetChanges(std::int16_t scope)
{
    if (!Correct() || mSilent || !isAskedFor(scope)) {
        return;
    }
    const Steps       step    = steps("mobjChangeBooker_RequiredChanges");
    const std::string oldText = textAt(step, mOriginal);
    const std::string newText = textAt(step, mChosen);
    step([&] {
        host().BookChange(*this, Tag, mLabelText, oldText, newText, mSelectedValue, mValueType,
                          mContextTag);
    });
}

} // namespace quill
