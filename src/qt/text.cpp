#include "qt/text.h"

#include <algorithm>

namespace quill::qt {

int toQtPosition(const QString& text, std::int32_t characters)
{
    int place = 0;
    for (; characters > 0 && place < text.size(); --characters) {
        const bool pair = text.at(place).isHighSurrogate() && place + 1 < text.size() &&
                          text.at(place + 1).isLowSurrogate();
        place += pair ? 2 : 1;
    }
    return place;
}

std::int32_t fromQtPosition(const QString& text, int position)
{
    const auto end        = std::min<qsizetype>(position, text.size());
    int        characters = 0;
    for (qsizetype place = 0; place < end; ++place) {
        const bool second =
            place > 0 && text.at(place).isLowSurrogate() && text.at(place - 1).isHighSurrogate();
        characters += second ? 0 : 1;
    }
    return characters;
}

} // namespace quill::qt
