#pragma once

#include "platform/xml_dom.h"

#include <optional>
#include <string>

namespace quill {

using platform::IXMLDOMNode;
using platform::IXMLDOMNodeList;

/// Texts in the user's language. Owned by the host. An answer that begins with "Err:" counts as no
/// translation.
class Translator {
public:
    virtual ~Translator() = default;
    /// The current language, such as "English".
    virtual std::string GetLanguage() = 0;
    /// Text of a key.
    virtual std::string Translate(const std::string& key) = 0;
    /// Text of a "key#parameter" text; `delimiter` is "#".
    virtual std::string TranslateDelimited(const std::string& text,
                                           const std::string& delimiter) = 0;
    /// Caption for a widget's `Tag`; takes a "ctr_" tag as it stands.
    virtual std::string TranslateTag(const std::string& tag) = 0;
};

/// Units of measurement. Owned by the host. Works in single precision.
class UnitConverter {
public:
    virtual ~UnitConverter() = default;
    /// The value in the other unit; nothing if there is no way.
    virtual std::optional<float> ConvertValue(float value, const std::string& fromUnit,
                                              const std::string& toUnit) = 0;
    /// The units of a quantity, one node each, with the attribute `name`.
    virtual std::optional<IXMLDOMNodeList> GetUnitChoices(const std::string& quantity) = 0;
    /// The unit that a system of units ("SI") uses, given the data of `GetUnitSystemData`.
    virtual std::optional<std::string> GetUnitOfSystem(const IXMLDOMNode& data,
                                                       const std::string& systemName) = 0;
    /// The unit in which the user wants to see a quantity.
    virtual std::optional<std::string> GetDisplayUnit(const std::string& name) = 0;
    /// Stores the user's choice; false if there is no such quantity or unit.
    virtual bool SetDisplayUnit(const std::string& quantity, const std::string& unit) = 0;
    /// What `GetUnitOfSystem` takes first.
    virtual std::optional<IXMLDOMNode> GetUnitSystemData(const std::string& quantity) = 0;
    /// All quantities; the text of a node is the key.
    virtual IXMLDOMNodeList GetQuantities() = 0;
};

} // namespace quill
