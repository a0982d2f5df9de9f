#pragma once

#include "framework/host_contract.h"
#include "framework/steps.h"

#include <string>
#include <vector>

namespace quill::modView {

/// Many parameters share one value list, which is named by the last word or words of the parameter:
/// the names under which the list of `tag` ("ctr_" + parameter) is looked for, in order. Each word
/// begins with a character that equals its upper-case form; what stands behind an underscore is a
/// suffix and left out.
[[nodiscard]] std::vector<std::string> sharedListCandidates(const std::string& tag);

/// The first `data:mappedParam` that one of the candidates names, or nothing. The search is logged.
[[nodiscard]] IXMLDOMNode findSharedValueList(const Steps& step, Messenger* messenger,
                                              const std::string& tag, const IXMLDOMNode& datafile);

} // namespace quill::modView
