#pragma once

#include "platform/date_time.h"
#include "platform/toolkit.h"
#include "platform/xml_dom.h"
#include "probe/json.h"

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace quill::probe {

using TextByKey = std::map<std::string, std::string>;

/// What the unit converter knows.
struct ConverterSettings {
    struct Conversion {
        std::string from;
        std::string to;
        float       factor = 1;
        float       offset = 0;
    };
    std::vector<Conversion>  conversions;
    TextByKey                displayUnits;
    std::vector<std::string> quantities;
    /// Units by quantity; nothing stands for a node without a name.
    std::map<std::string, std::vector<std::optional<std::string>>> choices;
    /// Unit by quantity, by the name of a system of units.
    std::map<std::string, TextByKey> systems;
};

/// What the address service answers.
struct AddressSettings {
    std::int16_t address = 0;
    bool         readOk  = true;
    bool         writeOk = true;
};

/// What the host answers, as the `host` lines have set it.
struct HostSettings {
    std::int32_t communicationMode         = 10;
    std::int16_t userLevel                 = 3;
    std::int16_t statusClassification      = 0;
    bool         statusClassificationFixed = false;
    bool         configurationChangedSign  = false;
    bool         dialogsAllowed            = true;
    bool         errorDialogEnabled        = true;

    /// Nothing stands for a fresh temporary folder.
    std::optional<std::string> installPath;
    std::optional<std::string> workPath;
    std::optional<std::string> userDataPath;

    platform::IXMLDOMDocument           deviceTypeInfo;
    std::string                         dataset;
    TextByKey                           hostDocuments;
    std::map<std::string, std::int32_t> answers; ///< button by question key, or "*"
    std::map<std::string, bool>         accepts; ///< ok by operation
    std::map<std::string, int>          fails;   ///< failure number by operation

    TextByKey   translations;
    bool        echoesUntranslated = true; ///< else "Err:" and the key
    std::string language           = "English";

    std::optional<ConverterSettings> converter;
    std::optional<AddressSettings>   addressService;

    platform::DateTime         clock{2024, 5, 6, 7, 8, 9};
    platform::Locale           locale;
    std::int32_t               textWidth = 100;
    std::set<int>              keysDown;
    std::optional<std::string> fileDialog;

    /// Takes over the keys of a line, whole: a line with a key that is unknown or of the wrong type
    /// changes nothing and is a failure with the reason.
    void take(const Json& line);

    /// The ok of an operation.
    [[nodiscard]] bool isAccepted(const std::string& operation) const;
    /// The failure that an operation of this name was prepared with, if any.
    void failIfPrepared(const std::string& operation) const;
    /// The same for the toolkit, whose operations are known in any letter case.
    void failToolkitIfPrepared(const std::string& operation) const;
};

} // namespace quill::probe
