#pragma once

#include "editors/editor_core.h"
#include "platform/grid.h"
#include "platform/pictures.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quill {

/// The editor of one parameter that is a bit field of up to eight bits: a list of check boxes, one
/// for each entry of its `data:mappedParam`, whose `value` is the mask of its bits. A row that was
/// changed shows a sign in front and reports for itself; the editor's own state is that of its
/// rows. What the user checks goes into the datafile at once.
class CtrCheckEdit : public EditorCore, public MappedEditor {
public:
    explicit CtrCheckEdit(const platform::Design& design = {});
    CtrCheckEdit(platform::Widget& container, const platform::Design& design = {});
    ~CtrCheckEdit() override;

    /// The signs, "modified" and "error".
    platform::ImageList imlCheck{*this, {.Name = "imlCheck"}};
    /// A row for each entry: its sign in column 1, its check box and text in column 2.
    platform::Grid scgCheck{*this, {.Name = "scgCheck"}};

    [[nodiscard]] const char* TypeName() const override { return "CtrCheckEdit"; }
    [[nodiscard]] EditorKind  kind() const override { return EditorKind::check; }

    /// Whether some row shows a sign.
    [[nodiscard]] bool Modified() const override;
    /// Gives every row a sign, or takes all away, without a report of the rows.
    void setModified(bool modified) override;

    /// What `ShowChecks` does besides checking the rows.
    enum Mode : std::int16_t {
        kOutOfStep  = 0, ///< a value that the device does not have: every row is marked as changed
        kInStep     = 1, ///< the device's value: rows are compared with it from now on
        kChecksOnly = 2, ///< nothing
        kCompare    = 3, ///< rows are marked by comparison with the device's value
    };
    /// Shows a value, a `Mode` tells how; any other number is as `kChecksOnly`. An empty value
    /// changes nothing, one that is no byte is reported and leaves the rows.
    void ShowChecks(const std::string& value, std::int16_t mode);
    /// Writes the bits of one row, from 0, into the parameter of the datafile. Nothing while the
    /// editor is not bound.
    void StoreBitForExport(std::int32_t row);

    // MappedEditor
    void SetMappings(const IXMLDOMNode& mappedParam) override;
    // BoundEditor
    bool setImportData(const IXMLDOMNode& parameter) override;
    bool setOfflineData(const IXMLDOMNode& parameter) override;
    bool setOnlineData(const IXMLDOMNode& item) override;
    /// The check boxes know no errors.
    void handleError(const std::string&) override {}
    // IQornDataEditor: the byte that is shown; bits that no row has are those of the last value.
    IXMLDOMDocument GetXmlItem(bool force) override;
    // ILocalizable
    void Localize(Translator& translator) override;

    /// The last value in step with the device, as it came.
    [[nodiscard]] const std::string& originalValue() const { return mOriginalValue; }

protected:
    [[nodiscard]] const char*             word() const override { return "Check"; }
    [[nodiscard]] platform::Widget&       box() override { return scgCheck; }
    [[nodiscard]] const platform::Widget& box() const override { return scgCheck; }
    [[nodiscard]] bool                    isLocked() const override { return !scgCheck.Editable; }
    void setLocked(bool locked) override { scgCheck.Editable = !locked; }
    void ViewGetChanges(std::int16_t scope) override;

private:
    struct Row {
        std::string  name;
        std::int32_t mask       = 0;
        bool         isOriginal = false; ///< checked in the value of the device

        friend bool operator==(const Row& a, const Row& b)
        {
            return a.name == b.name && a.mask == b.mask;
        }
    };

    void start();
    void arrange();
    void paintCells();
    void scgCheck_TextChange(int row, int col);
    void scgCheck_GotFocus();

    // `row` is the one of the grid, from 1.
    [[nodiscard]] Row&       rowAt(int row);
    [[nodiscard]] const Row& rowAt(int row) const;
    [[nodiscard]] bool       isChecked(int row) const;
    [[nodiscard]] bool       hasSign(int row) const;
    /// Sets or takes away the sign; answers whether that was a change.
    bool setSign(int row, bool on);
    /// The same with the row's report, for a change.
    void markRow(const Steps& step, int row, bool changed);
    void compareRow(const Steps& step, int row);
    /// The rows with their texts, fresh.
    void fillRows();
    void showTexts(const Steps& step);
    void translateRows(const Steps& step, Translator* translator);
    /// The bits of a row in the byte, by its check box.
    [[nodiscard]] std::uint8_t withRow(std::uint8_t byte, int row) const;

    std::vector<Row>            mRows;
    std::optional<std::uint8_t> mByte; ///< what is shown, once there is something
    std::string                 mOriginalValue;
    std::string                 mSignText    = "modified";
    bool                        mIsLocalized = false;

    platform::Subscription mOnTextChange;
    platform::Subscription mOnGotFocus;
    platform::Subscription mOnResize;
    platform::Subscription mOnGrid;
};

/// The byte that a document text says, rounded to the nearest whole number. Failure 13 for a text
/// that is no number, 6 outside 0 to 255.
[[nodiscard]] std::uint8_t byteOf(const std::string& text);

} // namespace quill
