#include "editors/CtrCheckEdit.h"

#include "editors/value_list.h"
#include "framework/caption_width.h"
#include "framework/documents.h"
#include "framework/values.h"
#include "platform/failure.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace quill {

namespace {

constexpr int kSignColumn  = 1;
constexpr int kCheckColumn = 2;

constexpr const char* kModifiedKey = "modified";

constexpr std::int32_t kTwipsPerPixel = 15;
/// Some more than a row of text needs: a scroll bar would take the signs out of sight.
constexpr std::int32_t kRowHeight = 360;
constexpr std::int32_t kBorder    = 60;
constexpr std::int32_t kSignWidth = 20; // pixels, as the next one
constexpr std::int32_t kMarkWidth = 24;

} // namespace

std::uint8_t byteOf(const std::string& text)
{
    const std::int32_t number = values::toInt32(values::parseDocument(text));
    if (number < 0 || number > std::numeric_limits<std::uint8_t>::max()) {
        throw platform::failure(platform::kOverflow);
    }
    return static_cast<std::uint8_t>(number);
}

CtrCheckEdit::CtrCheckEdit(const platform::Design& design) : EditorCore(design)
{
    start();
}

CtrCheckEdit::CtrCheckEdit(platform::Widget& container, const platform::Design& design)
    : EditorCore(container, design)
{
    start();
}

CtrCheckEdit::~CtrCheckEdit()
{
    SetMessenger(nullptr);
}

void CtrCheckEdit::start()
{
    imlCheck.Add(kModifiedKey);
    imlCheck.Add("error");
    scgCheck.setImageList(&imlCheck);
    scgCheck.HeaderVisible = false;
    scgCheck.AddCol({.Key = "sign", .Width = kSignWidth});
    scgCheck.AddCol({.Key = "check"});
    arrange();
    mOnResize = Resize.subscribe([this] { arrange(); });
    mOnTextChange =
        scgCheck.TextChange.subscribe([this](int row, int col) { scgCheck_TextChange(row, col); });
    mOnGotFocus = scgCheck.GotFocus.subscribe([this] { scgCheck_GotFocus(); });
    mOnGrid     = scgCheck.Changed.subscribe([this](const platform::WidgetChange& change) {
        if (change.property == &scgCheck.BackColor) {
            paintCells();
        }
    });
}

void CtrCheckEdit::arrange()
{
    std::int32_t widest = 0;
    for (int row = 1; row <= scgCheck.RowCount(); ++row) {
        widest = std::max(widest, captionWidth(scgCheck.cell(row, kCheckColumn).Text));
    }
    const std::int32_t rows = scgCheck.RowCount();
    if (rows > 0) {
        const std::int32_t beside = (kSignWidth + kMarkWidth) * kTwipsPerPixel + kBorder;
        Width                     = std::max(Width.get(), widest + beside);
        Height                    = std::max(Height.get(), rows * kRowHeight + kBorder);
    }
    scgCheck.Width  = Width.get();
    scgCheck.Height = Height.get();
    scgCheck.setColumnWidth(kCheckColumn,
                            std::max(0, (Width - kBorder) / kTwipsPerPixel - kSignWidth));
}

/// Cells cover the grid, so that its own colour alone would not be seen.
void CtrCheckEdit::paintCells()
{
    const bool grey = scgCheck.BackColor == editorColors::kGrey;
    for (int row = 1; row <= scgCheck.RowCount(); ++row) {
        for (const int col : {kSignColumn, kCheckColumn}) {
            scgCheck.setCellBackColor(row, col,
                                      grey ? editorColors::kGrey : platform::kWindowBackground);
        }
    }
}

// --- The rows ---------------------------------------------------------------------------------

void CtrCheckEdit::SetMappings(const IXMLDOMNode& mappedParam)
{
    if (!mappedParam) {
        return;
    }
    const Steps step{messenger(), "CtrCheckEdit SetMappings"};
    const auto  entries =
        step.value(IXMLDOMNodeList{}, [&] { return valueList::entriesOf(mappedParam); });
    std::vector<Row> rows;
    for (const IXMLDOMNode& entry : entries) {
        Row row;
        row.name = read(step, entry, "name");
        step([&] {
            row.mask =
                values::toInt32(values::parseDocument(documents::attributeText(entry, "value")));
        });
        rows.push_back(row);
    }
    // The same list again leaves the rows with their signs, which the next value judges.
    if (rows != mRows) {
        mRows = std::move(rows);
        // No row says any more what the last value said, so it must not go out behind them.
        mByte.reset();
        mOriginalValue.clear();
        fillRows();
    }
    showTexts(step);
}

void CtrCheckEdit::fillRows()
{
    scgCheck.Redraw = false;
    scgCheck.setRowCount(0);
    scgCheck.setRowCount(static_cast<int>(mRows.size()));
    for (int row = 1; row <= scgCheck.RowCount(); ++row) {
        scgCheck.setCellEditable(row, kSignColumn, false);
        scgCheck.setCellKind(row, kCheckColumn, platform::Grid::CellKind::check);
        scgCheck.setCellValue(row, kCheckColumn, 0);
    }
    paintCells();
    scgCheck.Redraw = true;
}

void CtrCheckEdit::showTexts(const Steps& step)
{
    if (mIsLocalized) {
        translateRows(step, hostTexts(step));
        return;
    }
    for (int row = 1; row <= scgCheck.RowCount(); ++row) {
        scgCheck.setCellText(row, kCheckColumn, rowAt(row).name);
    }
    arrange();
}

void CtrCheckEdit::translateRows(const Steps& step, Translator* translator)
{
    for (int row = 1; row <= scgCheck.RowCount(); ++row) {
        const std::string& name = rowAt(row).name;
        scgCheck.setCellText(row, kCheckColumn, valueList::translated(step, translator, name));
    }
    arrange();
}

void CtrCheckEdit::Localize(Translator& translator)
{
    EditorCore::Localize(translator);
    const Steps step = steps("Localize");
    mIsLocalized     = true;
    mSignText        = valueList::translated(step, &translator, kModifiedKey);
    for (int row = 1; row <= scgCheck.RowCount(); ++row) {
        scgCheck.setRowDescription(row, hasSign(row) ? mSignText : std::string{});
    }
    translateRows(step, &translator);
}

CtrCheckEdit::Row& CtrCheckEdit::rowAt(int row)
{
    return mRows[static_cast<std::size_t>(row) - 1];
}

const CtrCheckEdit::Row& CtrCheckEdit::rowAt(int row) const
{
    return mRows[static_cast<std::size_t>(row) - 1];
}

bool CtrCheckEdit::isChecked(int row) const
{
    return scgCheck.cell(row, kCheckColumn).Value == 1;
}

bool CtrCheckEdit::hasSign(int row) const
{
    return scgCheck.cell(row, kSignColumn).icon >= 0;
}

bool CtrCheckEdit::setSign(int row, bool on)
{
    if (hasSign(row) == on) {
        return false;
    }
    scgCheck.setCellIcon(row, kSignColumn, on ? kModifiedKey : "");
    scgCheck.setRowDescription(row, on ? mSignText : std::string{});
    return true;
}

void CtrCheckEdit::markRow(const Steps& step, int row, bool changed)
{
    if (setSign(row, changed)) {
        step([&] { reportState(changed ? "edited" : "original"); });
    }
}

void CtrCheckEdit::compareRow(const Steps& step, int row)
{
    markRow(step, row, isChecked(row) != rowAt(row).isOriginal);
}

bool CtrCheckEdit::Modified() const
{
    for (int row = 1; row <= scgCheck.RowCount(); ++row) {
        if (hasSign(row)) {
            return true;
        }
    }
    return false;
}

void CtrCheckEdit::setModified(bool modified)
{
    for (int row = 1; row <= scgCheck.RowCount(); ++row) {
        setSign(row, modified);
        if (!modified) {
            rowAt(row).isOriginal = isChecked(row);
        }
    }
    if (!modified) {
        mOriginalValue = mByte ? std::to_string(*mByte) : std::string{};
    }
}

std::uint8_t CtrCheckEdit::withRow(std::uint8_t byte, int row) const
{
    const auto mask = static_cast<unsigned>(rowAt(row).mask);
    return static_cast<std::uint8_t>(isChecked(row) ? byte | mask : byte & ~mask);
}

// --- Values -----------------------------------------------------------------------------------

void CtrCheckEdit::ShowChecks(const std::string& value, std::int16_t mode)
{
    if (value.empty()) {
        return;
    }
    const Steps step{messenger(), "CtrCheckEdit ShowChecks"};
    if (!step([&] { mByte = byteOf(value); })) {
        return;
    }
    if (mode == kInStep) {
        mOriginalValue = value;
    }
    for (int row = 1; row <= scgCheck.RowCount(); ++row) {
        Row& entry = rowAt(row);
        scgCheck.setCellValue(row, kCheckColumn, (*mByte & entry.mask) != 0 ? 1 : 0);
        switch (mode) {
        case kOutOfStep: markRow(step, row, true); break;
        case kInStep:
            entry.isOriginal = isChecked(row);
            markRow(step, row, false);
            break;
        case kCompare: compareRow(step, row); break;
        default: break;
        }
    }
}

void CtrCheckEdit::StoreBitForExport(std::int32_t row)
{
    if (!mDataNode) {
        return;
    }
    const Steps step{messenger(), "CtrCheckEdit StoreBitForExport:"};
    const bool  isThere = step([&] {
        if (row < 0 || row >= scgCheck.RowCount()) {
            throw platform::failure(platform::kSubscriptOutOfRange);
        }
    });
    if (!isThere) {
        return;
    }
    const std::string text = read(step, mDataNode, "value");
    // A parameter that was never read, or holds no byte, gets what is on screen.
    const std::uint8_t shown = mByte.value_or(0);
    const std::uint8_t byte =
        text.empty() ? shown : step.value(shown, [&] { return byteOf(text); });
    writeValue(step, std::to_string(withRow(byte, row + 1)));
}

bool CtrCheckEdit::setOfflineData(const IXMLDOMNode& parameter)
{
    if (!parameter) {
        return false;
    }
    const Steps step = steps("setOfflineData");
    bindTo(parameter);
    mValueType                     = read(step, parameter, "type");
    const std::string synchronised = read(step, parameter, "synchronised");
    const std::string value        = read(step, parameter, "value");
    if (synchronised == "1") {
        ShowChecks(value, kInStep);
        forwardSyncChanges();
        forwardChanges();
    } else if (synchronised == "2") {
        ShowChecks(value, kChecksOnly);
    } else {
        ShowChecks(value, kOutOfStep);
        forwardChanges();
    }
    takeAccess(read(step, parameter, "access"));
    return true;
}

bool CtrCheckEdit::setOnlineData(const IXMLDOMNode& item)
{
    if (!item) {
        return false;
    }
    const Steps step = steps("setOnlineData");
    ShowChecks(step.text([&] { return documents::itemValue(item, mValueType); }), kInStep);
    forwardChanges();
    takeAsSynced();
    return true;
}

bool CtrCheckEdit::setImportData(const IXMLDOMNode& parameter)
{
    if (!parameter) {
        return false;
    }
    const Steps step = steps("setImportData");
    ShowChecks(read(step, parameter, "value"), kOutOfStep);
    forwardChanges();
    return true;
}

IXMLDOMDocument CtrCheckEdit::GetXmlItem(bool force)
{
    if (!force && !mByte) {
        return {};
    }
    return itemOf(steps("GetXmlItem"), mValueType, mByte ? std::to_string(*mByte) : std::string{});
}

// --- What the user does -----------------------------------------------------------------------

void CtrCheckEdit::scgCheck_TextChange(int row, int col)
{
    if (row < 1 || col < 1 || row > scgCheck.RowCount() || col > scgCheck.ColCount()) {
        return;
    }
    const Steps step{messenger(), "CtrCheckEdit TextChange"};
    mByte = withRow(mByte.value_or(0), row);
    StoreBitForExport(row - 1);
    compareRow(step, row);
    forwardChanges();
}

void CtrCheckEdit::scgCheck_GotFocus()
{
    // Whoever comes by keyboard is to see where he is.
    const Steps step{messenger(), "CtrCheckEdit scgCheck_GotFocus - Error"};
    if (scgCheck.CurRow() == 0 && scgCheck.RowCount() > 0) {
        step([&] { scgCheck.setCurCell(1, kCheckColumn); });
    }
}

void CtrCheckEdit::ViewGetChanges(std::int16_t scope)
{
    if (mSilent || !isAskedFor(scope)) {
        return;
    }
    const Steps       step       = steps("mMessenger_ViewGetChanges");
    Translator* const translator = hostTexts(step);
    const std::string label =
        step.value(mLabelText, [&] { return existing(translator).TranslateTag(Tag); });
    const auto translate = [&](const std::string& key) {
        return translator == nullptr ? key : valueList::translated(step, translator, key);
    };
    const auto join = [&](const auto& counts) {
        std::string joined;
        for (int row = 1; row <= scgCheck.RowCount(); ++row) {
            if (counts(row)) {
                joined += (joined.empty() ? "" : ", ") + translate(rowAt(row).name);
            }
        }
        return joined.empty() ? translate("none") : joined;
    };
    const std::string oldText = join([&](int row) { return rowAt(row).isOriginal; });
    const std::string newText = join([&](int row) { return isChecked(row); });
    step([&] {
        host().BookChange(*this, Tag, label, oldText, newText, {}, mValueType, mContextTag);
    });
}

} // namespace quill
