#pragma once

#include "framework/host_contract.h"
#include "framework/steps.h"

#include <string>

/// What the editors of parameters with a value list (`data:mappedParam`) have in common.
namespace quill::valueList {

/// The entries of a list: its child elements, in document order.
[[nodiscard]] IXMLDOMNodeList entriesOf(const IXMLDOMNode& mappedParam);

/// The text by which a value is looked for among the entries. For type "floatVal" a number is
/// rounded first, so that "1.0" finds the entry "1"; one that is too large is reported and stays.
[[nodiscard]] std::string keyOf(const Steps& step, const std::string& value,
                                const std::string& type);

/// The name of an entry in the user's language; the name itself, with a report, where there is no
/// Translator or it fails, and without one where it knows no translation.
[[nodiscard]] std::string translated(const Steps& step, Translator* translator,
                                     const std::string& name);

} // namespace quill::valueList
