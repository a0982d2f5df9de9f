#include "probe/convert.h"

namespace quill::probe {

namespace {

[[noreturn]] void refuse(const char* wanted, const Json& value)
{
    throw mismatch(wanted, value);
}

const IXMLDOMDocument& documentNamed(const Scene& scene, const Json& value)
{
    if (!value.is_object() || find(value, "doc") == nullptr) {
        refuse("a document", value);
    }
    return scene.document(textField(value, "doc"));
}

} // namespace

IXMLDOMNode readNode(const Scene& scene, const Json& value)
{
    if (value.is_null()) {
        return {};
    }
    const IXMLDOMDocument& document = documentNamed(scene, value);
    if (boolOr(value, "all", false)) {
        throw platform::Failure{platform::kTypeMismatch, "one node expected, a list given"};
    }
    return find(value, "select") == nullptr ? IXMLDOMNode{document}
                                            : document.selectSingleNode(textField(value, "select"));
}

IXMLDOMDocument readDocument(const Scene& scene, const Json& value)
{
    if (value.is_null()) {
        return {};
    }
    const IXMLDOMDocument& document = documentNamed(scene, value);
    if (find(value, "select") != nullptr) {
        throw platform::Failure{platform::kTypeMismatch, "a document expected, a node given"};
    }
    return document;
}

IXMLDOMNodeList readNodeList(const Scene& scene, const Json& value)
{
    if (value.is_null()) {
        return {};
    }
    const IXMLDOMDocument& document = documentNamed(scene, value);
    if (!boolOr(value, "all", false)) {
        throw platform::Failure{platform::kTypeMismatch, "a node list expected"};
    }
    return document.selectNodes(textField(value, "select"));
}

platform::Widget* readControl(const Scene& scene, const Json& value)
{
    if (value.is_null()) {
        return nullptr;
    }
    if (!value.is_object() || find(value, "control") == nullptr) {
        refuse("a control", value);
    }
    return &scene.widget(textField(value, "control"));
}

bool readHostObject(const Json& value, const char* key)
{
    if (value.is_null()) {
        return false;
    }
    if (!value.is_object() || !boolOr(value, key, false)) {
        refuse(key, value);
    }
    return true;
}

Reply writeNode(const IXMLDOMNode& node)
{
    if (!node) {
        return nullptr;
    }
    return node.get_nodeType() == platform::NodeType::attribute ? node.get_text() : node.get_xml();
}

} // namespace quill::probe
