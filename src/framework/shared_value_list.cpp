#include "framework/shared_value_list.h"

#include "framework/documents.h"
#include "platform/utf8.h"

namespace quill::modView {

namespace utf8 = platform::utf8;

std::vector<std::string> sharedListCandidates(const std::string& tag)
{
    constexpr std::size_t    kFirst = 5; // the first character behind "ctr_", counted from 1
    std::vector<std::string> candidates;
    const auto               characters = utf8::characters(tag);
    std::size_t              end        = characters.size(); // where the suffix begins
    std::string              behind; // the characters behind the i-th one, without the suffix
    for (std::size_t i = characters.size(); i >= kFirst; --i) {
        const std::string& c = characters[i - 1];
        if (c == "_") {
            end = i - 1;
            behind.clear();
            continue;
        }
        if ((i == kFirst || c == utf8::toUpper(c)) && i < end) {
            candidates.push_back(utf8::toLower(c) + behind);
        }
        behind.insert(0, c);
    }
    return candidates;
}

IXMLDOMNode findSharedValueList(const Steps& step, Messenger* messenger, const std::string& tag,
                                const IXMLDOMNode& datafile)
{
    const auto log = [&](const std::string& line) {
        if (messenger != nullptr) {
            step([&] { messenger->WriteLog(kLogMapping, line); });
        }
    };
    log("Parsing " + tag);
    IXMLDOMNode list;
    std::string last;
    for (const auto& candidate : sharedListCandidates(tag)) {
        last = candidate;
        list = step.value(IXMLDOMNode{},
                          [&] { return documents::findMappedParam(datafile, candidate); });
        if (list) {
            break;
        }
    }
    log(last + " working");
    return list;
}

} // namespace quill::modView
