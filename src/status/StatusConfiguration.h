#pragma once

#include "framework/host_contract.h"
#include "framework/name_table.h"
#include "framework/steps.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quill {

/// Which status conditions of a device are switched on. The device and the datafile keep that as a
/// mask of one bit per condition, cut into parts, each part a parameter of hexadecimal text whose
/// name starts with "statusMask" and ends with the number of the part. A bit that is set means that
/// the condition is on.
///
/// Rows are conditions, numbered as the view numbers them. Only a row with a byte and a bit takes
/// part in mask work. Order of use: `SetMaskProperties`, `SetMessenger`, `AddBit` for each
/// condition, `SetOfflineParameters`, and then the others as things happen. Failures are reported
/// to the Messenger; a step that fails changes nothing.
class StatusConfiguration : public IQornComponent, public IQornDataEditor {
public:
    // IQornComponent
    void SetMessenger(Messenger* messenger) override;
    // IQornDataEditor
    /// A document `items` with one `item` for each mask parameter of the datafile, as it stands
    /// there now. An item that cannot be made ends the list. `force` makes no difference.
    IXMLDOMDocument GetXmlItem(bool force) override;

    /// Adds the row `index`, or describes it anew: `name`, `maskByte` (counted over the whole mask)
    /// and `maskBit` (0 to 7) of `status`. Without a byte or a bit, or without a node, the row has
    /// no mask. Rows below `index` that were never added come with byte 0, bit 0, no name, off.
    void AddBit(std::int16_t index, const IXMLDOMNode& status);

    /// Whether a condition is switched on. The key is the condition's name, of several equal ones
    /// the first, or a row number as text ("3"). False, and a report, for a key that is neither.
    [[nodiscard]] bool IsEnabled(const std::string& key) const;
    /// Switches a condition on or off, and writes the bit into the datafile's mask, which is then
    /// marked as out of step with the device.
    void SetEnabled(const std::string& key, bool enabled);

    /// Takes over the datafile's mask parameters, in the order of the parts, and keeps the nodes to
    /// write to. The length of the first one's value is the length of a part from now on. An empty
    /// list changes nothing.
    void SetOfflineParameters(const IXMLDOMNodeList& parameters);
    /// Takes over masks that came from the device, items of a response: into the rows, and into the
    /// datafile's parameters of the same name. An empty mask only goes into the datafile.
    void SetOnlineParameters(const IXMLDOMNodeList& items);

    /// How many bytes the whole mask has, and how many parts. Until the datafile comes, this tells
    /// the length of a part; less than one part means parts of one digit. `unused` has no effect.
    void SetMaskProperties(std::uint8_t unused, std::int16_t maskBytes, std::int16_t parts);

    struct Row {
        std::string  name;
        std::int16_t maskBit  = 0; ///< -1 for none
        std::int16_t maskByte = 0; ///< -1 for none
        bool         enabled  = false;
    };

    // State, for diagnosis.
    [[nodiscard]] const std::vector<Row>&         rows() const noexcept { return mRows; }
    [[nodiscard]] const std::vector<IXMLDOMNode>& parameters() const noexcept
    {
        return maOfflineNode;
    }
    /// The parts as they last came in, which an edit does not change.
    [[nodiscard]] const std::vector<std::string>& parts() const noexcept { return mastrMaskParts; }
    /// In digits.
    [[nodiscard]] std::int16_t partLength() const noexcept { return miPartLength; }
    /// As the properties told it; nothing depends on it.
    [[nodiscard]] std::int16_t partCount() const noexcept { return miPartCount; }

private:
    [[nodiscard]] static bool HasMask(const Row& row);
    [[nodiscard]] const Row&  rowAt(std::int16_t index) const;
    [[nodiscard]] Row&        rowAt(std::int16_t index);

    [[nodiscard]] Steps steps(const char* where) const { return {mMessenger, where}; }
    /// For the inside of a step.
    void log(std::int16_t category, const std::string& text) const;

    [[nodiscard]] std::int16_t GetIndex(const std::string& key) const;
    [[nodiscard]] std::int16_t firstRowOf(const std::string& name) const;

    [[nodiscard]] std::optional<std::uint8_t> GetMaskByte(const std::string& mask, int place) const;

    void ChangeMask(std::string parameterName, const std::string& mask);
    void ParseMask(const std::string& mask, int part);
    void parseRow(const Steps& step, Row& row, const std::string& mask, int part) const;
    void StoreBitForExport(std::int16_t index);
    /// The text of a mask part with the row's bit as it is now; a failure, or nothing when it
    /// was reported already, where there is no way.
    [[nodiscard]] std::optional<std::string>
    changedPart(const Steps& step, const Row& row, int place, const std::string& oldPart) const;

    Messenger* mMessenger = nullptr;
    /// The mask parameters of the datafile; before one came there are two places without a
    /// node.
    std::vector<IXMLDOMNode> maOfflineNode = std::vector<IXMLDOMNode>(2);
    std::int16_t             miPartLength  = 1;
    std::int16_t             miPartCount   = 1;
    std::vector<std::string> mastrMaskParts;
    std::vector<Row>         mRows;
    /// The names of the rows; empty while rows are being added.
    mutable NameTable mNames;
};

} // namespace quill
