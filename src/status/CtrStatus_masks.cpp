#include "framework/documents.h"
#include "framework/values.h"
#include "platform/utf8.h"
#include "status/CtrStatus.h"
#include "status/row_tables.h"
#include "status/status_masks.h"

#include <utility>

namespace quill {

namespace utf8 = platform::utf8;

namespace {

/// The classes of masks, by which the masks are ordered.
enum MaskClass : int { kOnOff = 0, kInfo = 1, kWarning = 2, kAlarm = 3 };

/// The severity of the conditions in a mask, by its class.
constexpr const char* kSeverityNames[] = {"inactive", "info", "warning", "alarm"};

int classIn(const std::string& name)
{
    if (values::contains(name, "alarm")) {
        return kAlarm;
    }
    if (values::contains(name, "warning")) {
        return kWarning;
    }
    return values::contains(name, "info") ? kInfo : kOnOff;
}

/// The value of a bit; 0 for bit 8, which is in no byte and so never set.
std::uint8_t bitValue(int bit)
{
    constexpr int kNoBit = 8;
    return bit == kNoBit ? std::uint8_t{0} : statusMasks::bitValue(bit);
}

} // namespace

void CtrStatus::SetOfflineData(const IXMLDOMNode& node)
{
    const Steps step = steps("IQornDataUser_SetOfflineData");
    log(step, kLogDecision, "CtrStatus entering IQornDataUser_SetOfflineData");
    const auto parameters = step.value(IXMLDOMNodeList{}, [&] {
        return documents::findParametersByPrefix(node, statusMasks::kNamePrefix);
    });
    if (parameters.get_length() > 0) {
        allocateMasks(step, parameters);
    }
    for (const IXMLDOMNode& parameter : parameters) {
        auto name  = step.text([&] { return documents::attributeText(parameter, "name"); });
        auto value = step.text([&] { return documents::attributeText(parameter, "value"); });
        if (!value.empty()) {
            ChangeMask(name, value);
        }
    }
    log(step, kLogDecision, "CtrStatus leaving IQornDataUser_SetOfflineData");
}

void CtrStatus::allocateMasks(const Steps& step, const IXMLDOMNodeList& parameters)
{
    const IXMLDOMNode first = parameters.get_item(0);
    step([&] {
        miMaskLength = values::toInt16(utf8::length(documents::attributeText(first, "value")));
    });
    const auto name  = step.text([&] { return documents::attributeText(first, "name"); });
    const auto count = static_cast<std::size_t>(parameters.get_length());
    if (values::contains(name, "OnOff")) {
        mastrMasks.assign(count + 1, {});
    } else {
        // Severity masks: there is no on/off mask in the datafile, it is made out of them.
        const std::string none = utf8::substring(std::string(32, '0'), 0, miMaskLength);
        mastrMasks.assign(count + 5, none);
        mastrMasks.back().clear();
    }
}

void CtrStatus::mMessenger_ViewReceiveValue(std::string name, const std::string& value)
{
    if (!values::contains(name, "statusMask") && !values::contains(name, "statusmask")) {
        return;
    }
    const Steps step = steps("IQornView_ViewReceiveValue");
    ChangeMask(name, value);
    const int part = partIn(name).part;
    step([&] {
        const std::string mask = entryAt(mastrMasks, part - 1);
        SetImage(mask, kOnOff, part);
    });
}

CtrStatus::MaskPart CtrStatus::partIn(const std::string& name)
{
    const auto part = statusMasks::partInName(name);
    return part ? MaskPart{*part, 3} : MaskPart{};
}

void CtrStatus::ChangeMask(std::string& name, const std::string& value)
{
    const Steps step = steps("ChangeMask");
    log(step, kLogContract, "CtrStatus entering ChangeMask " + name + " " + value);
    const MaskPart place  = partIn(name);
    name                  = utf8::toLower(name);
    const int   maskClass = classIn(name);
    std::string old;
    step([&] {
        old = std::exchange(entryAt(mastrMasks, place.part + maskClass * place.count - 1), value);
    });
    if (value != old && maskClass != kOnOff) {
        rebuildOnOffMask(step, place);
    }
    SetImage(value, maskClass, place.part);
    log(step, kLogContract, "CtrStatus leaving ChangeMask " + name);
}

void CtrStatus::rebuildOnOffMask(const Steps& step, MaskPart place)
{
    const auto byteOf = [&](int maskClass, int position) {
        return GetMaskByte(entryAt(mastrMasks, place.part + maskClass * place.count - 1), position)
            .value_or(0);
    };
    // Written at once: byte by byte, a long mask would be copied for each of its bytes. A table
    // that one byte lacks is lacked by all, each with its report.
    const int   bytes = statusMasks::bytesInPart(miMaskLength);
    std::string fresh;
    for (int position = 0; position < bytes; ++position) {
        step([&] {
            const auto byte = static_cast<std::uint8_t>(
                byteOf(kInfo, position) | byteOf(kWarning, position) | byteOf(kAlarm, position));
            (void)entryAt(mastrMasks, place.part - 1); // where it goes
            fresh += statusMasks::digitsOf(byte);
        });
    }
    if (!fresh.empty()) {
        std::string& mask = entryAt(mastrMasks, place.part - 1);
        mask              = fresh + utf8::substring(mask, static_cast<std::int32_t>(fresh.size()));
    }
}

void CtrStatus::SetImage(const std::string& mask, int maskClass, int part)
{
    const Steps step = steps("SetImage");
    for (int index = 0; index <= miLastRow; ++index) {
        if (HasMask(index)) {
            applyMask(step, index, mask, maskClass, part);
        }
    }
}

void CtrStatus::applyMask(const Steps& step, int index, const std::string& mask, int maskClass,
                          int part)
{
    constexpr int kAllParts = -1;
    const int     maskByte  = entryAt(maiMaskByte, index);
    const int     bytes     = statusMasks::bytesInPart(miMaskLength);
    const int     ownPart   = step.value(0, [&] { return statusMasks::partOf(maskByte, bytes); });
    if (part != kAllParts && part != ownPart) {
        return;
    }
    step([&] {
        const int  place = part == kAllParts ? maskByte : statusMasks::byteInPart(maskByte, bytes);
        const auto byte  = GetMaskByte(mask, place);
        if (!byte) {
            return; // reported already
        }
        const bool isSet = (*byte & bitValue(entryAt(maiMaskBit, index))) != 0;
        if (isSet && maskClass != kOnOff) {
            // Severity is what these masks tell, also while the user looks at NAMUR classes.
            step([&] {
                existing(mobjSeverity.get()).SetClass(keyAt(index), kSeverityNames[maskClass]);
            });
        }
        if (isSet || maskClass == kOnOff) {
            entryAt(maiEnabled, index) = isSet ? 1 : 0;
        }
    });
}

// --- Bytes of a mask --------------------------------------------------------------------------

bool CtrStatus::HasMask(int index)
{
    return steps("HasMask").value(false, [&] {
        return entryAt(maiMaskByte, index) != statusMasks::kNone &&
               entryAt(maiMaskBit, index) != statusMasks::kNone;
    });
}

std::optional<std::uint8_t> CtrStatus::GetMaskByte(const std::string& mask, int position)
{
    return statusMasks::readByte(steps("GetMaskByte"), mask, position);
}

} // namespace quill
