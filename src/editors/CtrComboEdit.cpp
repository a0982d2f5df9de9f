#include "editors/CtrComboEdit.h"

#include "editors/value_list.h"
#include "framework/documents.h"
#include "framework/modTools.h"
#include "framework/values.h"

#include <algorithm>
#include <utility>

namespace quill {

namespace {

constexpr std::int16_t kNoRow     = -1;
constexpr std::int16_t kHiddenRow = -2;

constexpr std::int32_t kInfoWidth = 180;
constexpr std::int32_t kInfoGap   = 50;

/// Entries that the device fixes: an editor that shows one of them is not edited.
constexpr const char* kFixedEntries[] = {"Not In Use", "Nicht in Gebrauch", "Ei käytössä"};

std::int16_t comboIndexOf(const IXMLDOMNode& entry)
{
    return values::toInt16(values::parseDocument(documents::attributeText(entry, "comboIndex")));
}

void setComboIndex(const IXMLDOMNode& entry, std::int32_t row)
{
    documents::writeAttribute(entry, "comboIndex", std::to_string(row));
}

void setVisible(const IXMLDOMNode& entry, bool visible)
{
    documents::writeAttribute(entry, "visible", visible ? "true" : "false");
}

} // namespace

CtrComboEdit::CtrComboEdit(const platform::Design& design) : ListEditor(design)
{
    start();
}

CtrComboEdit::CtrComboEdit(platform::Widget& container, const platform::Design& design)
    : ListEditor(container, design)
{
    start();
}

CtrComboEdit::~CtrComboEdit()
{
    SetMessenger(nullptr);
}

void CtrComboEdit::start()
{
    lblInfo.Width = kInfoWidth;
    arrange();
    mOnResize = Resize.subscribe([this] { arrange(); });
    mOnClick  = cboBox.Click.subscribe([this] { cboBox_Click(); });
    mOnInfo   = lblInfo.Click.subscribe([this] { lblInfo_Click(); });
}

void CtrComboEdit::arrange()
{
    layout(lblInfo.Visible ? lblInfo.Width.get() : 0);
    lblInfo.Left   = cboBox.Width + kInfoGap;
    lblInfo.Height = Height.get();
}

// --- The list ---------------------------------------------------------------------------------

void CtrComboEdit::offerEntries(const Steps& step)
{
    cboBox.Clear();
    std::int32_t row = 0;
    for (const IXMLDOMNode& entry : *mMappings) {
        cboBox.AddItem(read(step, entry, "name"));
        step([&] { setComboIndex(entry, row); });
        step([&] { setVisible(entry, true); });
        ++row;
    }
}

void CtrComboEdit::fillList(const Steps& step, Translator* translator)
{
    if (!mMappings) {
        return;
    }
    const std::int32_t chosen = cboBox.ListIndex();
    cboBox.Clear();
    std::int32_t row = 0;
    for (const IXMLDOMNode& entry : *mMappings) {
        step([&] { setComboIndex(entry, kHiddenRow); });
        if (read(step, entry, "visible") != "true") {
            continue;
        }
        step([&] { setComboIndex(entry, row); });
        std::string text = read(step, entry, "name");
        // An entry that cannot be translated keeps its place under its name.
        step([&] { text = existing(translator).Translate(text); });
        cboBox.AddItem(text);
        ++row;
    }
    if (chosen >= 0) {
        step([&] { cboBox.setListIndex(chosen); });
    }
}

void CtrComboEdit::Localize(Translator& translator)
{
    EditorBase::Localize(translator);
    fillList(steps("Localize"), &translator);
}

void CtrComboEdit::RefreshItemList()
{
    const Steps step = steps("RefreshItemList");
    fillList(step, hostTexts(step));
}

void CtrComboEdit::SetItemVisibility(const std::string& key, bool visibility)
{
    if (!mMappings) {
        return;
    }
    const Steps step = steps("SetItemVisibility");
    for (const IXMLDOMNode& entry : *mMappings) {
        if (read(step, entry, "name") == key) {
            step([&] { setVisible(entry, visibility); });
        }
    }
}

void CtrComboEdit::SetItemVisibilityAll(bool visibility)
{
    if (!mMappings) {
        return;
    }
    const Steps step = steps("SetItemVisibilityAll");
    for (const IXMLDOMNode& entry : *mMappings) {
        step([&] { setVisible(entry, visibility); });
    }
}

std::int16_t CtrComboEdit::GetIndex(const std::string& value) const
{
    const Steps       step = steps("GetIndex");
    const std::string text = valueList::keyOf(step, value, mValueType);
    if (!mMappings) {
        step([&] {
            host().WriteLog(kLogConfiguration, "Error: Combo " + Tag.get() +
                                                   " GetIndex has no mappings. Check Datafile.");
        });
        return kNoRow;
    }
    for (const IXMLDOMNode& entry : *mMappings) {
        if (read(step, entry, "value") == text || read(step, entry, "name") == text) {
            return step.value(kNoRow, [&] { return comboIndexOf(entry); });
        }
    }
    return kNoRow;
}

std::int32_t CtrComboEdit::rowOf(const std::string& value) const
{
    return std::max(GetIndex(value), kNoRow);
}

IXMLDOMNode CtrComboEdit::entryAt(const Steps& step, std::int32_t row) const
{
    if (mMappings) {
        for (const IXMLDOMNode& entry : *mMappings) {
            if (step.value(kNoRow, [&] { return comboIndexOf(entry); }) == row) {
                return entry;
            }
        }
    }
    return nullptr;
}

std::string CtrComboEdit::GetComboText(std::int32_t index) const
{
    const Steps       step  = steps("GetComboText");
    const IXMLDOMNode entry = index == kNoRow ? IXMLDOMNode{} : entryAt(step, index);
    return entry ? read(step, entry, "name") : std::string{};
}

std::string CtrComboEdit::chosenValue(const Steps& step) const
{
    const std::int32_t row   = cboBox.ListIndex();
    const IXMLDOMNode  entry = row == kNoRow ? IXMLDOMNode{} : entryAt(step, row);
    return entry ? read(step, entry, "value") : std::string{};
}

std::int32_t CtrComboEdit::getSelectedValue() const
{
    const Steps       step  = steps("getSelectedValue");
    const std::string value = chosenValue(step);
    return value.empty() ? -1 : step.value(std::int32_t{-1}, [&] {
        return values::toInt32(values::parseDocument(value));
    });
}

void CtrComboEdit::setText(const std::string& text)
{
    const Steps        step = steps("Text");
    const std::int32_t row  = rowOf(text);
    step([&] { cboBox.setListIndex(row); });
    if (std::exchange(mSelectedIndex, row) != row) {
        step([&] { Change.raise(GetComboText(row)); });
    }
}

// --- Values from documents --------------------------------------------------------------------

void CtrComboEdit::showRow(const Steps& step, std::int32_t row)
{
    step([&] { cboBox.setListIndex(row); });
    step([&] { Change.raise(GetComboText(row)); });
}

void CtrComboEdit::showValue(const Steps& step, const std::string& value)
{
    mSelectedIndex = rowOf(value);
    showRow(step, mSelectedIndex);
}

void CtrComboEdit::showEdit(const Steps& step, const std::string& value)
{
    // The row that a choice is compared with is still the one before.
    showRow(step, rowOf(value));
}

bool CtrComboEdit::setOfflineData(const IXMLDOMNode& parameter)
{
    if (!parameter) {
        return false;
    }
    const Steps step = steps("setOfflineData");
    bindTo(parameter);
    mValueType                     = read(step, parameter, "type");
    const std::string synchronised = read(step, parameter, "synchronised");
    showValue(step, read(step, parameter, "value"));
    if (synchronised == "1") {
        takeAsSynced();
        SetModifiedForward(false);
    } else if (synchronised == "2") {
        handleError("communicationError");
    } else {
        SetModifiedForward(cboBox.ListIndex() != kNoRow);
    }
    takeAccess(read(step, parameter, "access"));
    return true;
}

IXMLDOMDocument CtrComboEdit::GetXmlItem(bool force)
{
    if (!force && (Text().empty() || !Correct())) {
        return {};
    }
    const Steps step = steps("GetXmlItem");
    return itemOf(step, mValueType, chosenValue(step));
}

// --- What the user does -----------------------------------------------------------------------

void CtrComboEdit::cboBox_Click()
{
    const Steps        step = steps("cboBox_Click");
    const std::int32_t row  = cboBox.ListIndex();

    const std::string text = cboBox.Text();
    setWritable(
        std::none_of(std::begin(kFixedEntries), std::end(kFixedEntries),
                     [&](const char* fixed) { return values::containsNoCase(text, fixed); }));

    setModified(rowOf(mOriginalText) != row);
    if (Modified()) {
        step([&] { ModifiedEvent.raise(true); });
    }
    // Stored first, so that a handler that chooses another entry has the last word.
    if (std::exchange(mSelectedIndex, row) != row) {
        step([&] { Change.raise(GetComboText(row)); });
    }
    forwardChanges();
    // The entry's own value, which for a whole number is what `getSelectedValue` says; an entry
    // with any other value must be found again at the next load.
    writeValue(step, chosenValue(step));
}

void CtrComboEdit::ShowInfo(bool visibility, const std::string& infoTag)
{
    if (!infoTag.empty()) {
        mInfoTag = infoTag;
    }
    lblInfo.Visible = visibility;
    arrange();
}

void CtrComboEdit::lblInfo_Click()
{
    const Steps       step       = steps("lblInfo_Click");
    const std::string key        = mInfoTag + "_" + GetComboText(cboBox.ListIndex());
    Translator* const translator = hostTexts(step);
    const std::string label   = step.text([&] { return existing(translator).TranslateTag(Tag); });
    const std::string heading = step.text([&] { return existing(translator).Translate(mInfoTag); });
    const std::string help    = step.text([&] { return existing(translator).Translate(key); });
    step([&] { host().WriteLog(kLogUserInformation, "CtrComboEdit info from " + mInfoTag); });
    step([&] { host().WriteLog(kLogUserInformation, key); });

    std::string text;
    for (const std::string& part : {heading, help}) {
        if (!part.empty() && modTools::IsNotErrorText(part)) {
            text += (text.empty() ? "" : "\r\n") + part;
        }
    }
    if (!text.empty()) {
        step([&] { host().ShowMessage("Info " + label, text); });
    }
}

void CtrComboEdit::ViewGetChanges(std::int16_t scope)
{
    if (!Correct() || mSilent || mSilentAlltoghether || !isAskedFor(scope)) {
        return;
    }
    const Steps step = steps("mMessenger_ViewGetChanges");
    std::string oldText;
    if (mMappings) {
        for (const IXMLDOMNode& entry : *mMappings) {
            if (read(step, entry, "name") == mOriginalText) {
                const std::int32_t row = step.value(kNoRow, [&] { return comboIndexOf(entry); });
                if (row >= 0 && row < cboBox.ListCount()) {
                    oldText = cboBox.List()[static_cast<std::size_t>(row)];
                }
                break;
            }
        }
    }
    const std::string value = chosenValue(step);
    step([&] {
        host().BookChange(*this, Tag, mLabelText, oldText, cboBox.Text(), value, mValueType,
                          mContextTag);
    });
}

} // namespace quill
