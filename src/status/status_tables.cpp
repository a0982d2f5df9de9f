#include "status/status_tables.h"

#include "framework/values.h"

#include <string>

namespace quill {

std::int16_t maskNumber(const platform::IXMLDOMNode& status, const char* attribute)
{
    const auto node = platform::attributeNode(status, attribute);
    if (!node) {
        return kNoMask;
    }
    const std::string text = node.get_text();
    return values::isNumeric(text) ? values::toInt16(values::parseLocal(text)) : kNoMask;
}

} // namespace quill
