#pragma once

#include "platform/xml_dom.h"

#include <string>
#include <string_view>

/// The two kinds of documents that all controls share, the datafile and the communication
/// messages, and every path expression that more than one control uses. A look-up by name answers
/// exactly what its expression selects, out of an index that the document carries.
namespace quill::documents {

using platform::IXMLDOMDocument;
using platform::IXMLDOMNode;
using platform::IXMLDOMNodeList;

inline constexpr const char* kDatafileSchema      = "x-schema:QVXDatafileSchema.xml";
inline constexpr const char* kTypeInfoSchema      = "x-schema:QVXDeviceTypeInfoSchema.xml";
inline constexpr const char* kCommunicationSchema = "x-schema:QVXCommunicationSchema.xml";
inline constexpr const char* kParameterSchema     = "x-schema:DTMParameterSchema.xml";
inline constexpr const char* kFDTSchema           = "x-schema:FDTDataTypesSchema.xml";

/// Value of `unit` for a plain number.
inline constexpr const char* kNoUnit = "noUnit";

/// Opens a document as a host delivers it: prefixes `data`, `typeInfo` and `comm` are usable. A
/// text that is refused is failure 5 with the reason.
[[nodiscard]] IXMLDOMDocument openText(std::string_view xml);
/// The same from a file.
[[nodiscard]] IXMLDOMDocument openFile(const std::string& path);

/// A document that a control composes: `<?xml version="1.0"?><dtm></dtm>`, without prefixes.
[[nodiscard]] IXMLDOMDocument openEmptyRequest();

// --- The datafile -----------------------------------------------------------------------------
//
// `datafile` is the document node; from any other node the expression is evaluated as it stands.
// Failure 91 for no node. A name with a double quote or a control character breaks its expression,
// and a document that was opened without the prefixes does not understand it: failure 5.

/// `./data:dtm/data:persistentData/data:parameters/data:parameter[@name="NAME"]`
[[nodiscard]] IXMLDOMNode findParameter(const IXMLDOMNode& datafile, const std::string& name);
/// `./data:dtm/data:persistentData/data:parameters/data:parameter[starts-with(@name,'PREFIX')]`; a
/// prefix with a single quote is failure 5.
[[nodiscard]] IXMLDOMNodeList findParametersByPrefix(const IXMLDOMNode& datafile,
                                                     const std::string& prefix);
/// `./data:dtm/data:mappedParams/data:mappedParam[@name="NAME"]`
[[nodiscard]] IXMLDOMNode findMappedParam(const IXMLDOMNode& datafile, const std::string& name);
/// `./data:dtm/data:requestGroups/data:requestGroup[@name="NAME"]`
[[nodiscard]] IXMLDOMNode findRequestGroup(const IXMLDOMNode& datafile, const std::string& name);
/// The group's path followed by `/@lastUpdate`
[[nodiscard]] IXMLDOMNode findLastUpdate(const IXMLDOMNode& datafile, const std::string& group);
/// The `name` of the request group that a parameter belongs to, empty for none. Of its listings
/// `./data:dtm/data:requestGroups/data:requestGroup/data:includedParam[@name="NAME"]` the only one
/// decides, of several the first whose `clone` is missing or "0". A group without a `name` is
/// failure 91.
[[nodiscard]] std::string homeRequestGroup(const IXMLDOMNode& datafile, const std::string& name);

// --- Responses. `response` is the document node, as above. ------------------------------------

/// `comm:dtm/comm:communicationResponse/comm:item[@name = "NAME"]`
[[nodiscard]] IXMLDOMNode findItem(const IXMLDOMNode& response, const std::string& name);
/// `comm:dtm/comm:communicationResponse/comm:item[starts-with(@name,'PREFIX')]`: an empty prefix
/// finds the first item, one with a single quote is a failure 5.
[[nodiscard]] IXMLDOMNode findItemByPrefix(const IXMLDOMNode& response, const std::string& prefix);
/// All that the expression of `findItemByPrefix` selects.
[[nodiscard]] IXMLDOMNodeList findItemsByPrefix(const IXMLDOMNode& response,
                                                const std::string& prefix);
/// Text of `comm:dtm/comm:communicationResponse/@NAME`; failure 91 if it is missing.
[[nodiscard]] std::string responseAttribute(const IXMLDOMNode& response, const std::string& name);
/// `//comm:item[@name!="testStatus"]`
[[nodiscard]] IXMLDOMNodeList errorItems(const IXMLDOMNode& response);

// --- The node in hand. ------------------------------------------------------------------------

/// Text of `./@NAME`; failure 91 if the node or the attribute is missing.
[[nodiscard]] std::string attributeText(const IXMLDOMNode& node, const std::string& name);
/// Text of `./comm:TYPE`; failure 91 if the item or its value element is missing, failure 5 for a
/// type that is no name.
[[nodiscard]] std::string itemValue(const IXMLDOMNode& item, const std::string& type);
/// Writes an attribute, which is added if it is missing. Failure 91 for no node.
void writeAttribute(const IXMLDOMNode& node, const std::string& name, const std::string& value);

/// Writes value, unit and mark of one parameter again and again, as an editor does with every
/// keystroke, without touching more of the document than has to change. Whoever changes, replaces
/// or removes an attribute meanwhile is heeded.
class ParameterWriter {
public:
    /// Attribute `value`. As `writeAttribute`, like the others.
    void writeValue(const IXMLDOMNode& parameter, const std::string& value);
    /// Attribute `unit`.
    void writeUnit(const IXMLDOMNode& parameter, const std::string& unit);
    /// Attribute `synchronised`, to "0": not in step with the device.
    void markOutOfStep(const IXMLDOMNode& parameter);

private:
    void look(const IXMLDOMNode& parameter);

    IXMLDOMNode mParameter;
    IXMLDOMNode mValue; ///< the attribute
    std::size_t mVersion = 0;
    std::string mUnit; ///< as it stands there while `mIsUnitKnown`
    bool        mIsUnitKnown = false;
    bool        mIsMarked    = false;
};

// --- Items that a control gives back. ---------------------------------------------------------

/// The small document of one item: `<item name= unit=><TYPE>value</TYPE></item>`, in no namespace.
/// A type that cannot name an element is failure 5.
[[nodiscard]] IXMLDOMDocument itemDocument(const std::string& name, const std::string& unit,
                                           const std::string& type, const std::string& value);

} // namespace quill::documents
