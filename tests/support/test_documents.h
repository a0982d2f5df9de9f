#pragma once

#include "framework/documents.h"

#include <map>
#include <string>

namespace quill::test {

/// Attributes of an element by name.
using Attributes = std::map<std::string, std::string>;

/// `<data:parameter .../>` with these attributes, and the usual ones that they do not name. The
/// value "-" leaves an attribute out.
inline std::string parameterXml(Attributes given, const Attributes& usual)
{
    given.insert(usual.begin(), usual.end());
    std::string xml = "<data:parameter";
    for (const auto& [name, value] : given) {
        if (value != "-") {
            xml += " " + name + "=\"" + value + "\"";
        }
    }
    return xml + "/>";
}

/// A datafile out of its parts: `<data:parameter .../>`, `<data:mappedParam .../>` and
/// `<data:requestGroup .../>` elements as text.
inline documents::IXMLDOMDocument datafile(const std::string& parameters,
                                           const std::string& mappedParams  = {},
                                           const std::string& requestGroups = {})
{
    return documents::openText(std::string("<data:dtm xmlns:data=\"") + documents::kDatafileSchema +
                               "\" xmlns:typeInfo=\"" + documents::kTypeInfoSchema +
                               "\"><data:persistentData><data:parameters>" + parameters +
                               "</data:parameters></data:persistentData><data:mappedParams>" +
                               mappedParams + "</data:mappedParams><data:requestGroups>" +
                               requestGroups + "</data:requestGroups></data:dtm>");
}

/// A response: the attributes of `comm:communicationResponse` and its `<comm:item .../>` elements
/// as text.
inline documents::IXMLDOMDocument response(const std::string& attributes,
                                           const std::string& items = {})
{
    return documents::openText(std::string("<comm:dtm xmlns:comm=\"") +
                               documents::kCommunicationSchema + "\"><comm:communicationResponse " +
                               attributes + ">" + items +
                               "</comm:communicationResponse></comm:dtm>");
}

/// A response that went well.
inline documents::IXMLDOMDocument okResponse(const std::string& name, const std::string& items = {})
{
    return response("name=\"" + name +
                        R"(" access="read" responseStatus="ok" errorCode="" isFinal="1")",
                    items);
}

/// One item of a response, with its value element.
inline std::string item(const std::string& name, const std::string& unit, const std::string& type,
                        const std::string& value)
{
    return "<comm:item name=\"" + name + "\" unit=\"" + unit + "\"><comm:" + type + ">" + value +
           "</comm:" + type + "></comm:item>";
}

} // namespace quill::test
