#include "editors/value_list.h"

#include "framework/modTools.h"
#include "framework/values.h"

#include <utility>
#include <vector>

namespace quill::valueList {

IXMLDOMNodeList entriesOf(const IXMLDOMNode& mappedParam)
{
    std::vector<IXMLDOMNode> entries;
    for (const IXMLDOMNode& child : mappedParam.get_childNodes()) {
        if (child.get_nodeType() == platform::NodeType::element) {
            entries.push_back(child);
        }
    }
    return IXMLDOMNodeList{std::move(entries)};
}

std::string keyOf(const Steps& step, const std::string& value, const std::string& type)
{
    std::string key = value;
    if (type == "floatVal") {
        step([&] {
            const std::string local = values::replaceAll(value, ".", values::decimalSeparator());
            key                     = values::isNumeric(local)
                                          ? std::to_string(values::toInt32(values::parseLocal(local)))
                                          : value;
        });
    }
    return key;
}

std::string translated(const Steps& step, Translator* translator, const std::string& name)
{
    return step.value(name, [&] { return modTools::textOrKey(existing(translator), name); });
}

} // namespace quill::valueList
