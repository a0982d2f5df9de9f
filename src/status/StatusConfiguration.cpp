#include "status/StatusConfiguration.h"

#include "framework/documents.h"
#include "framework/values.h"
#include "platform/failure.h"
#include "platform/utf8.h"
#include "status/row_tables.h"
#include "status/status_masks.h"

#include <optional>
#include <utility>

namespace quill {

namespace utf8 = platform::utf8;

namespace {

/// The row of a key that no condition has.
constexpr std::int16_t kNoRow = -1;

/// Log lines that come with every bit.
constexpr std::int16_t kDetail = kLogStatusMask;

template <class Table>
std::string lastIndexOf(const Table& table)
{
    return std::to_string(static_cast<long>(table.size()) - 1);
}

} // namespace

// --- The host ---------------------------------------------------------------------------------

void StatusConfiguration::SetMessenger(Messenger* messenger)
{
    mMessenger = messenger;
}

void StatusConfiguration::log(std::int16_t category, const std::string& text) const
{
    existing(mMessenger).WriteLog(category, text);
}

IXMLDOMDocument StatusConfiguration::GetXmlItem(bool /*force*/)
{
    const auto document = IXMLDOMDocument::create();
    // The first failure ends it: a download of some masks is better than one of half an item.
    steps("clsStatusConfiguration IQornDataEditor_GetXmlItem ")([&] {
        log(kLogDecision, "clsStatusConfiguration entering IQornDataEditor_GetXmlItem");
        const auto root = document.appendChild(document.createElement("items"));
        log(kDetail, "UBound(maOfflineNode) = " + lastIndexOf(maOfflineNode));
        for (std::size_t place = 0; place < maOfflineNode.size(); ++place) {
            const IXMLDOMNode& parameter = maOfflineNode[place];
            if (!parameter) {
                log(kDetail, std::to_string(place) + " is Nothing");
                continue;
            }
            const auto item = documents::itemDocument(documents::attributeText(parameter, "name"),
                                                      documents::attributeText(parameter, "unit"),
                                                      documents::attributeText(parameter, "type"),
                                                      documents::attributeText(parameter, "value"))
                                  .get_documentElement();
            log(kDetail, item.get_xml());
            root.appendChild(item);
        }
        log(kLogDecision,
            "clsStatusConfiguration leaving IQornDataEditor_GetXmlItem " + document.get_xml());
    });
    return document;
}

// --- Rows -------------------------------------------------------------------------------------

void StatusConfiguration::AddBit(std::int16_t index, const IXMLDOMNode& status)
{
    const Steps step = steps("clsStatusConfiguration AddBit");
    mNames           = {};
    if (index >= 0 && static_cast<std::size_t>(index) >= mRows.size()) {
        mRows.resize(static_cast<std::size_t>(index) + 1);
    }
    statusMasks::Position position;
    if (status) {
        position = statusMasks::readPosition(step, status);
        step([&] { rowAt(index).name = documents::attributeText(status, "name"); });
    }
    step([&] { rowAt(index).maskByte = position.byte; });
    step([&] { rowAt(index).maskBit = position.bit; });
}

bool StatusConfiguration::HasMask(const Row& row)
{
    return row.maskByte != statusMasks::kNone && row.maskBit != statusMasks::kNone;
}

const StatusConfiguration::Row& StatusConfiguration::rowAt(std::int16_t index) const
{
    return entryAt(mRows, index);
}

StatusConfiguration::Row& StatusConfiguration::rowAt(std::int16_t index)
{
    return entryAt(mRows, index);
}

std::int16_t StatusConfiguration::GetIndex(const std::string& key) const
{
    return steps("clsStatusConfiguration GetIndex").value(kNoRow, [&] {
        return values::isNumeric(key) ? values::toInt16(values::parseLocal(key)) : firstRowOf(key);
    });
}

// A pass over the status tree asks for every condition by its name, and no row comes meanwhile.
std::int16_t StatusConfiguration::firstRowOf(const std::string& name) const
{
    if (mNames.size() == 0) {
        for (const Row& row : mRows) {
            mNames.add(row.name);
        }
    }
    const auto place = mNames.find(name);
    return place == NameTable::kNone ? kNoRow : static_cast<std::int16_t>(place);
}

bool StatusConfiguration::IsEnabled(const std::string& key) const
{
    return steps("clsStatusConfiguration IsEnabled").value(false, [&] {
        return rowAt(GetIndex(key)).enabled;
    });
}

void StatusConfiguration::SetEnabled(const std::string& key, bool enabled)
{
    // One step: what cannot be done at the front is not half done behind.
    steps("clsStatusConfiguration SetEnabled")([&] {
        log(kDetail,
            "StatusConfiguration SetEnabled entered " + key + " " + (enabled ? "True" : "False"));
        const std::int16_t row = GetIndex(key);
        rowAt(row).enabled     = enabled;
        StoreBitForExport(row);
        log(kDetail, "StatusConfiguration SetEnabled leaving " + std::to_string(row) + " as " +
                         (enabled ? "1" : "0"));
    });
}

// --- Masks that come in -----------------------------------------------------------------------

void StatusConfiguration::SetMaskProperties(std::uint8_t /*unused*/, std::int16_t maskBytes,
                                            std::int16_t parts)
{
    if (parts < 1) {
        miPartCount  = 1;
        miPartLength = 1;
        return;
    }
    miPartCount = parts;
    steps("clsStatusConfiguration SetMaskProperties")(
        [&] { miPartLength = values::toInt16(maskBytes * 2.0 / parts); });
}

void StatusConfiguration::SetOfflineParameters(const IXMLDOMNodeList& parameters)
{
    const Steps step = steps("clsStatusConfiguration SetOfflineParameters");
    step([&] { log(kLogContract, "StatusConfiguration SetOfflineParameters entered"); });
    const long count = parameters.get_length();
    if (count == 0) {
        return;
    }
    step([&] { log(kDetail, "Number of mask parameters: " + std::to_string(count)); });
    step([&] {
        const auto first = documents::attributeText(parameters.get_item(0), "value");
        miPartLength     = values::toInt16(utf8::length(first));
    });
    step([&] { log(kDetail, "Length of a mask part: " + std::to_string(miPartLength)); });
    mastrMaskParts.assign(static_cast<std::size_t>(count), {});
    maOfflineNode.assign(static_cast<std::size_t>(count), {});
    step([&] { log(kDetail, "Last array index for parameters = " + lastIndexOf(maOfflineNode)); });
    for (long place = 0; place < count; ++place) {
        step([&] { log(kDetail, "SetOfflineParameters node to index " + std::to_string(place)); });
        const auto parameter                           = parameters.get_item(place);
        maOfflineNode[static_cast<std::size_t>(place)] = parameter;
        if (!parameter) {
            continue;
        }
        const auto name  = step.text([&] { return documents::attributeText(parameter, "name"); });
        const auto value = step.text([&] { return documents::attributeText(parameter, "value"); });
        if (!value.empty()) {
            ChangeMask(name, value);
        }
    }
}

void StatusConfiguration::SetOnlineParameters(const IXMLDOMNodeList& items)
{
    const Steps step = steps("clsStatusConfiguration SetParameter");
    for (const IXMLDOMNode& item : items) {
        if (!item) {
            continue;
        }
        const auto name  = step.text([&] { return documents::attributeText(item, "name"); });
        const auto value = step.text([&] { return item.get_firstChild().get_text(); });
        for (const IXMLDOMNode& parameter : maOfflineNode) {
            if (!parameter) {
                continue;
            }
            step([&] {
                if (documents::attributeText(parameter, "name") == name) {
                    parameter.get_attributes().getNamedItem("value").put_text(value);
                }
            });
        }
        if (!value.empty()) {
            ChangeMask(name, value);
        }
    }
}

void StatusConfiguration::ChangeMask(std::string parameterName, const std::string& mask)
{
    const Steps step = steps("clsStatusConfiguration ChangeMask: ");
    step([&] {
        log(kLogContract,
            "clsStatusConfiguration entering ChangeMask " + parameterName + " " + mask);
    });
    const int part = statusMasks::partInName(parameterName).value_or(1);
    parameterName  = utf8::toLower(parameterName);
    std::string oldPart;
    step([&] { oldPart = std::exchange(entryAt(mastrMaskParts, part - 1), mask); });
    step([&] { log(kDetail, "Oldpart was " + oldPart); });
    ParseMask(mask, part);
    step([&] { log(kLogContract, "clsStatusConfiguration leaving ChangeMask " + parameterName); });
}

void StatusConfiguration::ParseMask(const std::string& mask, int part)
{
    const Steps step = steps("clsStatusConfiguration ParseMask: ");
    for (Row& row : mRows) {
        if (HasMask(row)) {
            parseRow(step, row, mask, part);
        }
    }
}

void StatusConfiguration::parseRow(const Steps& step, Row& row, const std::string& mask,
                                   int part) const
{
    int partOfRow = 0;
    int place     = 0;
    if (!step([&] {
            const int bytes = statusMasks::bytesInPart(miPartLength);
            partOfRow       = statusMasks::partOf(row.maskByte, bytes);
            place           = statusMasks::byteInPart(row.maskByte, bytes);
        })) {
        return;
    }
    step([&] {
        log(kDetail, "Byte,bit " + std::to_string(row.maskByte) + "," +
                         std::to_string(row.maskBit) + " are in part " + std::to_string(partOfRow));
    });
    if (part != partOfRow) {
        return;
    }
    const auto byte = GetMaskByte(mask, place);
    if (!byte) {
        return;
    }
    step([&] { log(kDetail, "Value of the mask byte = " + std::to_string(*byte)); });
    unsigned value = 0;
    if (!step([&] { value = *byte & statusMasks::bitValue(row.maskBit); })) {
        return;
    }
    step([&] { log(kDetail, "Value of the status = " + std::to_string(value)); });
    const bool isSet     = value != 0;
    const bool isChanged = std::exchange(row.enabled, isSet) != isSet;
    step([&] { log(kDetail, row.name + (isSet ? " = 1" : " = 0")); });
    if (isChanged) {
        step([&] { log(kDetail, "CHANGING CURRENT BIT MASK"); });
    }
}

std::optional<std::uint8_t> StatusConfiguration::GetMaskByte(const std::string& mask,
                                                             int                place) const
{
    return statusMasks::readByte(steps("clsStatusConfiguration GetMaskByte: "), mask, place);
}

// --- Masks that go out ------------------------------------------------------------------------

void StatusConfiguration::StoreBitForExport(std::int16_t index)
{
    const Steps step = steps("ClsStatusConfiguration StoreBitForExport: ");
    const Row&  row  = rowAt(index);
    step([&] {
        log(kLogContract,
            "CtrStatusConfiguration entering StoreBitForExport on row " + std::to_string(index));
    });
    const int bytes = statusMasks::bytesInPart(miPartLength);
    if (bytes == 0) {
        step([&] { log(kDetail, "Bytes in part = 0"); });
        return;
    }
    const int part  = statusMasks::partOf(row.maskByte, bytes);
    const int place = statusMasks::byteInPart(row.maskByte, bytes);
    step([&] { log(kDetail, "uboundmaofflinenode = " + lastIndexOf(maOfflineNode)); });
    step([&] { log(kDetail, "partIndex = " + std::to_string(part)); });
    step([&] { log(kDetail, "byteIndexInPart = " + std::to_string(place)); });
    step([&] { log(kDetail, "trueIndex = " + std::to_string(part - 1)); });
    const auto parameter =
        step.value(IXMLDOMNode{}, [&] { return entryAt(maOfflineNode, part - 1); });
    if (!parameter) {
        return;
    }
    // The node and not the part as it came: what was changed since stands in the node alone.
    const auto oldPart = step.text([&] { return documents::attributeText(parameter, "value"); });
    const auto changed = step.value(std::optional<std::string>{},
                                    [&] { return changedPart(step, row, place, oldPart); });
    if (changed) {
        step([&] { documents::writeAttribute(parameter, "value", *changed); });
        step([&] { documents::writeAttribute(parameter, "synchronised", "0"); });
    }
    step([&] { log(kLogContract, "ClsStatusConfiguration leaving StoreBitForExport"); });
}

std::optional<std::string> StatusConfiguration::changedPart(const Steps& step, const Row& row,
                                                            int                place,
                                                            const std::string& oldPart) const
{
    step([&] { log(kDetail, "Old mask part " + oldPart); });
    const auto oldByte = GetMaskByte(oldPart, place);
    if (!oldByte) {
        return std::nullopt;
    }
    step([&] { log(kDetail, "Old mask byte " + std::to_string(*oldByte)); });
    const auto bit = statusMasks::bitValue(row.maskBit);
    step([&] { log(kDetail, "Statusbit = " + std::to_string(bit)); });
    step([&] { log(kDetail, "Statusbyte = " + std::to_string(*oldByte)); });
    const auto byte =
        static_cast<std::uint8_t>(row.enabled ? *oldByte | bit : *oldByte & ~unsigned{bit});
    step([&] { log(kDetail, row.enabled ? "Enabled" : "Disabled"); });
    const std::string digits = statusMasks::digitsOf(byte);
    step([&] {
        log(kDetail,
            "Changed Mask Byte = " + (digits.starts_with('0') ? digits.substr(1) : digits));
    });
    const int front = place * 2;
    const int back  = miPartLength - front - 2;
    if (back < 0) {
        throw platform::failure(platform::kInvalidCall);
    }
    // The front by place and the back by length, as the device counts: in a part that is too short
    // they overlap.
    const auto length = utf8::length(oldPart);
    auto       text   = utf8::substring(oldPart, 0, front) + digits +
                utf8::substring(oldPart, length > back ? length - back : 0, back);
    step([&] { log(kDetail, "ChangedMask = " + text); });
    return text;
}

} // namespace quill
