#include "probe/toolkit_properties.h"

namespace quill::probe {

namespace {

platform::Failure unknown(const std::string& name)
{
    return {platform::kNotSupportedByObject, "the toolkit has no property \"" + name + "\""};
}

} // namespace

Reply getToolkitProperty(const platform::HeadlessToolkit& toolkit, const std::string& name)
{
    if (name == "Clipboard") {
        return toolkit.clipboardText;
    }
    if (name == "MousePointer") {
        return toolkit.pointer;
    }
    if (name == "CurrentFolder") {
        return toolkit.folder;
    }
    throw unknown(name);
}

void setToolkitProperty(platform::HeadlessToolkit& toolkit, const std::string& name,
                        const Json& value)
{
    if (name == "Clipboard") {
        toolkit.clipboardText = asText(value);
    } else if (name == "MousePointer") {
        toolkit.pointer = asInt32(value);
    } else if (name == "CurrentFolder") {
        toolkit.folder = asText(value);
    } else {
        throw unknown(name);
    }
}

} // namespace quill::probe
