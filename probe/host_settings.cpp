#include "probe/host_settings.h"

#include "framework/documents.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <string_view>

namespace quill::probe {

namespace {

/// Widest character that a line may ask for, in twips.
constexpr std::int64_t kMaxTextWidth = 10000;

template <class Read>
auto mapOf(const Json& value, Read read)
{
    std::map<std::string, decltype(read(value))> result;
    for (const auto& [key, element] : asObject(value).items()) {
        result.emplace(key, read(element));
    }
    return result;
}

template <class Read>
auto listOf(const Json& value, Read read)
{
    std::vector<decltype(read(value))> result;
    for (const Json& element : asArray(value)) {
        result.push_back(read(element));
    }
    return result;
}

std::int16_t asInt16(const Json& value)
{
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(asInteger(value, Limits::min(), Limits::max()));
}

std::optional<std::string> asTextOrNull(const Json& value)
{
    return value.is_null() ? std::nullopt : std::optional{asText(value)};
}

ConverterSettings::Conversion asConversion(const Json& value)
{
    const Json& object = asObject(value);
    const auto  number = [&object](const char* key, double fallback) {
        const Json* found = find(object, key);
        return static_cast<float>(found == nullptr ? fallback : asDouble(*found));
    };
    return {textField(object, "from"), textField(object, "to"), number("factor", 1),
            number("offset", 0)};
}

std::optional<ConverterSettings> asConverter(const Json& value)
{
    if (value.is_null()) {
        return std::nullopt;
    }
    ConverterSettings result;
    for (const auto& [key, part] : asObject(value).items()) {
        if (key == "conversions") {
            result.conversions = listOf(part, asConversion);
        } else if (key == "displayUnits") {
            result.displayUnits = mapOf(part, asText);
        } else if (key == "quantities") {
            result.quantities = listOf(part, asText);
        } else if (key == "choices") {
            result.choices =
                mapOf(part, [](const Json& units) { return listOf(units, asTextOrNull); });
        } else if (key == "systems") {
            result.systems = mapOf(part, [](const Json& units) { return mapOf(units, asText); });
        } else {
            throw invalid("a converter has no \"" + key + "\"");
        }
    }
    return result;
}

std::optional<AddressSettings> asAddressService(const Json& value)
{
    if (value.is_null()) {
        return std::nullopt;
    }
    AddressSettings result;
    for (const auto& [key, part] : asObject(value).items()) {
        if (key == "address") {
            result.address = asInt16(part);
        } else if (key == "readOk") {
            result.readOk = asBool(part);
        } else if (key == "writeOk") {
            result.writeOk = asBool(part);
        } else {
            throw invalid("an address service has no \"" + key + "\"");
        }
    }
    return result;
}

platform::DateTime asClock(const Json& value)
{
    const auto clock = platform::fromIso(asText(value));
    if (!clock) {
        throw platform::Failure{platform::kTypeMismatch, "the clock is no ISO date and time"};
    }
    return *clock;
}

platform::Locale asLocale(const Json& value)
{
    const Json&      object = asObject(value);
    platform::Locale locale;
    locale.decimal   = textOr(object, "decimal", locale.decimal);
    locale.shortDate = textOr(object, "shortDate", locale.shortDate);
    locale.longTime  = textOr(object, "longTime", locale.longTime);
    // Recordings write the half of the day as the system does that they were made on.
    for (const std::string_view mark : {"AM/PM", "tt"}) {
        if (const auto place = locale.longTime.find(mark); place != std::string::npos) {
            locale.longTime.replace(place, mark.size(), "AP");
        }
    }
    return locale;
}

platform::IXMLDOMDocument asDocument(const Json& value)
{
    const std::string xml = value.is_null() ? std::string{} : asText(value);
    return xml.empty() ? platform::IXMLDOMDocument{} : documents::openText(xml);
}

bool asEcho(const Json& value)
{
    const std::string text = asText(value);
    if (text != "echo" && text != "err") {
        throw invalid("\"untranslated\" is \"echo\" or \"err\"");
    }
    return text == "echo";
}

std::set<int> asKeys(const Json& value)
{
    const auto codes = listOf(value, asInt32);
    return {codes.begin(), codes.end()};
}

void takeNothing(const std::string& key, const Json& value)
{
    if (!value.is_null()) {
        throw platform::Failure{platform::kNotSupportedByObject,
                                "\"" + key + "\" takes nothing but null yet"};
    }
}

using Setter = std::function<void(HostSettings&, const Json&)>;

/// A setting: where it lies and how its JSON value is read.
template <class T, class Read>
Setter into(T HostSettings::*member, Read read)
{
    return [member, read](HostSettings& settings, const Json& value) {
        settings.*member = read(value);
    };
}

const std::map<std::string, Setter>& setters()
{
    using S = HostSettings;
    static const std::map<std::string, Setter> table{
        {"communicationMode", into(&S::communicationMode, asInt32)},
        {"userLevel", into(&S::userLevel, asInt16)},
        {"statusClassification", into(&S::statusClassification, asInt16)},
        {"statusClassificationFixed", into(&S::statusClassificationFixed, asBool)},
        {"configurationChangedSign", into(&S::configurationChangedSign, asBool)},
        {"dialogsAllowed", into(&S::dialogsAllowed, asBool)},
        {"errorDialogEnabled", into(&S::errorDialogEnabled, asBool)},
        {"installPath", into(&S::installPath, asTextOrNull)},
        {"workPath", into(&S::workPath, asTextOrNull)},
        {"userDataPath", into(&S::userDataPath, asTextOrNull)},
        {"deviceTypeInfo", into(&S::deviceTypeInfo, asDocument)},
        {"dataset", into(&S::dataset, asText)},
        {"hostDocuments", into(&S::hostDocuments, [](const Json& v) { return mapOf(v, asText); })},
        {"answers", into(&S::answers, [](const Json& v) { return mapOf(v, asInt32); })},
        {"accepts", into(&S::accepts, [](const Json& v) { return mapOf(v, asBool); })},
        {"fails", into(&S::fails, [](const Json& v) { return mapOf(v, asInt32); })},
        {"translations", into(&S::translations, [](const Json& v) { return mapOf(v, asText); })},
        {"untranslated", into(&S::echoesUntranslated, asEcho)},
        {"language", into(&S::language, asText)},
        {"converter", into(&S::converter, asConverter)},
        {"addressService", into(&S::addressService, asAddressService)},
        {"clock", into(&S::clock, asClock)},
        {"locale", into(&S::locale, asLocale)},
        {"textWidth", into(&S::textWidth,
                           [](const Json& v) {
                               return static_cast<std::int32_t>(asInteger(v, 0, kMaxTextWidth));
                           })},
        {"keysDown", into(&S::keysDown, asKeys)},
        {"fileDialog", into(&S::fileDialog, asTextOrNull)},
    };
    return table;
}

} // namespace

void HostSettings::take(const Json& line)
{
    HostSettings changed = *this;
    for (const auto& [key, value] : line.items()) {
        if (key == "op") {
            continue;
        }
        if (key == "store" || key == "printer") {
            takeNothing(key, value);
            continue;
        }
        const auto found = setters().find(key);
        if (found == setters().end()) {
            throw invalid("the host has no setting \"" + key + "\"");
        }
        try {
            found->second(changed, value);
        } catch (const platform::Failure& failure) {
            throw platform::Failure{failure.number(), key + ": " + failure.description()};
        }
    }
    *this = std::move(changed);
}

bool HostSettings::isAccepted(const std::string& operation) const
{
    const auto found = accepts.find(operation);
    return found == accepts.end() || found->second;
}

void HostSettings::failIfPrepared(const std::string& operation) const
{
    const auto found = fails.find(operation);
    if (found != fails.end()) {
        throw platform::Failure{found->second, "prepared failure"};
    }
}

void HostSettings::failToolkitIfPrepared(const std::string& operation) const
{
    const auto lower = [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    };
    const auto isSame = [&](const auto& prepared) {
        return std::equal(prepared.first.begin(), prepared.first.end(), operation.begin(),
                          operation.end(), [&](char a, char b) { return lower(a) == lower(b); });
    };
    const auto found = std::find_if(fails.begin(), fails.end(), isSame);
    if (found != fails.end()) {
        throw platform::Failure{found->second, "prepared failure"};
    }
}

} // namespace quill::probe
