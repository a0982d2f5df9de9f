#pragma once

#include "framework/steps.h"
#include "platform/xml_dom.h"

#include <optional>
#include <span>
#include <string>

/// What the classifications have in common.
namespace quill::statusClasses {

/// The first of `ranks`, worst first, that is one of the two classes, or else `rest`.
[[nodiscard]] std::string worst(std::span<const char* const> ranks, const char* rest,
                                const std::string& a, const std::string& b);
/// The text of an attribute of a condition's definition; nothing if it is missing, or if `status`
/// can have no attributes, which fails its step.
[[nodiscard]] std::optional<std::string>
attribute(const Steps& step, const platform::IXMLDOMNode& status, const char* name);
/// Reports to the debug output, as a classification knows no Messenger: `where`, number, ": " and
/// description.
[[nodiscard]] Steps debugSteps(const char* where);

} // namespace quill::statusClasses
