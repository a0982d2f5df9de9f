#include "probe/host_services.h"

#include "framework/documents.h"
#include "framework/modTools.h"

#include <algorithm>

namespace quill::probe {

namespace {

/// Each step is rounded to single precision: no fused or wider arithmetic in between.
float toSingle(float value)
{
    volatile float single = value;
    return single;
}

IXMLDOMNode newElement(const IXMLDOMDocument& document, const IXMLDOMNode& parent,
                       const std::string& element)
{
    return parent.appendChild(document.createElement(element));
}

} // namespace

std::string HostTranslator::GetLanguage()
{
    mSettings.failIfPrepared("GetLanguage");
    return mSettings.language;
}

std::string HostTranslator::Translate(const std::string& key)
{
    mSettings.failIfPrepared("Translate");
    const std::string* text = known(key);
    return text != nullptr ? *text : unknown(key);
}

std::string HostTranslator::TranslateDelimited(const std::string& text,
                                               const std::string& delimiter)
{
    mSettings.failIfPrepared("TranslateDelimited");
    if (const std::string* whole = known(text)) {
        return *whole;
    }
    const auto        at        = delimiter.empty() ? std::string::npos : text.find(delimiter);
    const std::string key       = text.substr(0, at);
    const std::string parameter = at == std::string::npos ? "" : text.substr(at + delimiter.size());
    const std::string* found    = known(key);
    const std::string  start    = found != nullptr ? *found : unknown(key);
    return parameter.empty() ? start : start + " " + parameter;
}

std::string HostTranslator::TranslateTag(const std::string& tag)
{
    mSettings.failIfPrepared("TranslateTag");
    const std::string* text = known(tag);
    if (text == nullptr) {
        text = known(modTools::RemoveCtrPrefix(tag));
    }
    return text != nullptr ? *text : unknown(tag);
}

const std::string* HostTranslator::known(const std::string& key) const
{
    const auto found = mSettings.translations.find(key);
    return found == mSettings.translations.end() ? nullptr : &found->second;
}

std::string HostTranslator::unknown(const std::string& key) const
{
    return mSettings.echoesUntranslated ? key : "Err:" + key;
}

ConverterSettings& HostConverter::units() const
{
    if (!mSettings.converter) {
        throw platform::failure(platform::kObjectNotSet);
    }
    return *mSettings.converter;
}

std::optional<float> HostConverter::ConvertValue(float value, const std::string& fromUnit,
                                                 const std::string& toUnit)
{
    mSettings.failIfPrepared("ConvertValue");
    if (!mSettings.isAccepted("ConvertValue")) {
        return std::nullopt;
    }
    if (fromUnit == toUnit) {
        return value;
    }
    const auto& ways = units().conversions;
    const auto  find = [&ways](const std::string& from, const std::string& to) {
        return std::find_if(ways.begin(), ways.end(),
                             [&](const auto& way) { return way.from == from && way.to == to; });
    };
    if (const auto way = find(fromUnit, toUnit); way != ways.end()) {
        return toSingle(toSingle(value * way->factor) + way->offset);
    }
    if (const auto back = find(toUnit, fromUnit); back != ways.end() && back->factor != 0) {
        return toSingle(toSingle(value - back->offset) / back->factor);
    }
    return std::nullopt;
}

std::optional<IXMLDOMNodeList> HostConverter::GetUnitChoices(const std::string& quantity)
{
    mSettings.failIfPrepared("GetUnitChoices");
    const auto found = units().choices.find(quantity);
    if (!mSettings.isAccepted("GetUnitChoices") || found == units().choices.end()) {
        return std::nullopt;
    }
    const auto        document = IXMLDOMDocument::create();
    const IXMLDOMNode root     = newElement(document, document, "units");
    for (const auto& unit : found->second) {
        const IXMLDOMNode node = newElement(document, root, "unit");
        if (unit) {
            documents::writeAttribute(node, "name", *unit);
        }
    }
    return root.get_childNodes();
}

std::optional<std::string> HostConverter::GetUnitOfSystem(const IXMLDOMNode& data,
                                                          const std::string& systemName)
{
    mSettings.failIfPrepared("GetUnitOfSystem");
    const auto system = units().systems.find(systemName);
    if (!mSettings.isAccepted("GetUnitOfSystem") || system == units().systems.end()) {
        return std::nullopt;
    }
    const auto unit = system->second.find(documents::attributeText(data, "name"));
    return unit == system->second.end() ? std::nullopt : std::optional{unit->second};
}

std::optional<std::string> HostConverter::GetDisplayUnit(const std::string& name)
{
    mSettings.failIfPrepared("GetDisplayUnit");
    const auto unit = units().displayUnits.find(name);
    if (!mSettings.isAccepted("GetDisplayUnit") || unit == units().displayUnits.end()) {
        return std::nullopt;
    }
    return unit->second;
}

bool HostConverter::SetDisplayUnit(const std::string& quantity, const std::string& unit)
{
    mOutput.call("converter", "SetDisplayUnit", Reply::array({quantity, unit}));
    mSettings.failIfPrepared("SetDisplayUnit");
    if (!mSettings.isAccepted("SetDisplayUnit")) {
        return false;
    }
    units().displayUnits[quantity] = unit;
    return true;
}

std::optional<IXMLDOMNode> HostConverter::GetUnitSystemData(const std::string& quantity)
{
    mSettings.failIfPrepared("GetUnitSystemData");
    const auto& systems = units().systems;
    const bool  isKnown = std::any_of(systems.begin(), systems.end(), [&](const auto& system) {
        return system.second.count(quantity) != 0;
    });
    if (!mSettings.isAccepted("GetUnitSystemData") || !isKnown) {
        return std::nullopt;
    }
    const auto        document = IXMLDOMDocument::create();
    const IXMLDOMNode node     = newElement(document, document, "quantity");
    documents::writeAttribute(node, "name", quantity);
    return node;
}

IXMLDOMNodeList HostConverter::GetQuantities()
{
    mSettings.failIfPrepared("GetQuantities");
    const auto        document = IXMLDOMDocument::create();
    const IXMLDOMNode root     = newElement(document, document, "quantities");
    for (const auto& quantity : units().quantities) {
        newElement(document, root, "quantity").put_text(quantity);
    }
    return root.get_childNodes();
}

AddressSettings& HostAddressService::called(const char* operation, Reply args) const
{
    mOutput.call("addressService", operation, std::move(args));
    mSettings.failIfPrepared(operation);
    if (!mSettings.addressService) {
        throw platform::failure(platform::kObjectNotSet);
    }
    return *mSettings.addressService;
}

std::optional<std::int16_t> HostAddressService::ReadAddress()
{
    const AddressSettings& service = called("ReadAddress", Reply::array());
    return service.readOk && mSettings.isAccepted("ReadAddress") ? std::optional{service.address}
                                                                 : std::nullopt;
}

bool HostAddressService::WriteAddress(std::uint8_t first, std::uint8_t second, std::int32_t third,
                                      std::uint8_t address)
{
    AddressSettings& service =
        called("WriteAddress", Reply::array({first, second, third, address}));
    if (!service.writeOk || !mSettings.isAccepted("WriteAddress")) {
        return false;
    }
    service.address = address;
    return true;
}

} // namespace quill::probe
