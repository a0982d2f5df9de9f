#include "status/status_classes.h"

#include "platform/toolkit.h"

#include <algorithm>

namespace quill::statusClasses {

std::string worst(std::span<const char* const> ranks, const char* rest, const std::string& a,
                  const std::string& b)
{
    const auto found = std::find_if(ranks.begin(), ranks.end(),
                                    [&](const char* rank) { return a == rank || b == rank; });
    return found == ranks.end() ? rest : *found;
}

std::optional<std::string> attribute(const Steps& step, const platform::IXMLDOMNode& status,
                                     const char* name)
{
    return step.value(std::optional<std::string>{}, [&]() -> std::optional<std::string> {
        const auto found = status.get_attributes().getNamedItem(name);
        return found ? std::optional{found.get_text()} : std::nullopt;
    });
}

Steps debugSteps(const char* where)
{
    return Steps{[where](int number, const std::string& description) {
        platform::Toolkit::current().debugOutput(where + std::to_string(number) + ": " +
                                                 description);
    }};
}

} // namespace quill::statusClasses
