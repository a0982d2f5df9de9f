#include "probe/bind_member.h"

namespace quill::probe::detail {

std::vector<Json> completeArguments(const Json& args, std::size_t wanted,
                                    const std::vector<Json>& defaults)
{
    std::vector<Json> result{args.begin(), args.end()};
    if (result.size() > wanted || result.size() + defaults.size() < wanted) {
        throw invalid("wrong number of arguments: " + std::to_string(wanted) + " expected, " +
                      std::to_string(result.size()) + " given");
    }
    result.insert(result.end(),
                  defaults.end() - static_cast<std::ptrdiff_t>(wanted - result.size()),
                  defaults.end());
    return result;
}

} // namespace quill::probe::detail
