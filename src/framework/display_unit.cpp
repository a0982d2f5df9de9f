#include "framework/display_unit.h"

#include "platform/utf8.h"

namespace quill {

namespace utf8 = platform::utf8;

std::optional<std::string> findDisplayUnit(const Steps& step, UnitConverter& units,
                                           const std::string& name, int mostTails)
{
    const auto lookUp = [&](const std::string& key) {
        return step.value(std::optional<std::string>{}, [&] { return units.GetDisplayUnit(key); });
    };
    auto                   unit       = lookUp(name);
    const auto             characters = utf8::characters(name);
    std::string::size_type at         = 0;
    for (const auto& character : characters) {
        at += character.size();
        if (unit || mostTails <= 0) {
            break;
        }
        if (character == utf8::toUpper(character)) {
            unit = lookUp(utf8::toLower(character) + name.substr(at));
            --mostTails;
        }
    }
    return unit;
}

} // namespace quill
