#include "platform/utf8.h"

#include <algorithm>
#include <cwctype>

namespace quill::platform::utf8 {

namespace {

struct Step {
    char32_t    code;
    std::size_t bytes;
    bool        valid;
};

Step decode(std::string_view text, std::size_t at)
{
    const auto byte = [&](std::size_t place) { return static_cast<unsigned char>(text[place]); };
    const unsigned char lead = byte(at);
    if (lead < 0x80) {
        return {lead, 1, true};
    }
    std::size_t count = 0;
    char32_t    code  = 0;
    char32_t    least = 0;
    if ((lead & 0xE0U) == 0xC0) {
        count = 2;
        code  = lead & 0x1FU;
        least = 0x80;
    } else if ((lead & 0xF0U) == 0xE0) {
        count = 3;
        code  = lead & 0x0FU;
        least = 0x800;
    } else if ((lead & 0xF8U) == 0xF0) {
        count = 4;
        code  = lead & 0x07U;
        least = 0x10000;
    } else {
        return {lead, 1, false};
    }
    if (at + count > text.size()) {
        return {lead, 1, false};
    }
    for (std::size_t i = 1; i < count; ++i) {
        if ((byte(at + i) & 0xC0U) != 0x80) {
            return {lead, 1, false};
        }
        code = (code << 6U) | (byte(at + i) & 0x3FU);
    }
    if (code < least || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF)) {
        return {lead, 1, false};
    }
    return {code, count, true};
}

/// Walks the text; `visit(step, place)` answers whether to go on.
template <class Visit>
void walk(std::string_view text, Visit&& visit)
{
    for (std::size_t at = 0; at < text.size();) {
        const Step step = decode(text, at);
        if (!visit(step, at)) {
            return;
        }
        at += step.bytes;
    }
}

char32_t upper(char32_t c)
{
    if (c < 0x80) {
        return c >= 'a' && c <= 'z' ? c - 32 : c;
    }
    if (c == 0xFF) {
        return 0x178;
    }
    if (c == 0xB5) {
        return 0x39C;
    }
    if (c >= 0xE0 && c <= 0xFE && c != 0xF7) {
        return c - 32;
    }
    if ((c >= 0x100 && c <= 0x137 && c != 0x131) || (c >= 0x14A && c <= 0x177)) {
        return c % 2 == 1 ? c - 1 : c;
    }
    if ((c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E)) {
        return c % 2 == 0 ? c - 1 : c;
    }
    if (c == 0x3C2) {
        return 0x3A3;
    }
    if (c >= 0x3B1 && c <= 0x3C9) {
        return c - 32;
    }
    if (c >= 0x430 && c <= 0x44F) {
        return c - 32;
    }
    if (c >= 0x450 && c <= 0x45F) {
        return c - 80;
    }
    return c;
}

char32_t lower(char32_t c)
{
    if (c < 0x80) {
        return c >= 'A' && c <= 'Z' ? c + 32 : c;
    }
    if (c == 0x178) {
        return 0xFF;
    }
    if (c >= 0xC0 && c <= 0xDE && c != 0xD7) {
        return c + 32;
    }
    if ((c >= 0x100 && c <= 0x137 && c != 0x130) || (c >= 0x14A && c <= 0x177)) {
        return c % 2 == 0 ? c + 1 : c;
    }
    if ((c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E)) {
        return c % 2 == 1 ? c + 1 : c;
    }
    if (c >= 0x391 && c <= 0x3A9 && c != 0x3A2) {
        return c + 32;
    }
    if (c >= 0x410 && c <= 0x42F) {
        return c + 32;
    }
    if (c >= 0x400 && c <= 0x40F) {
        return c + 80;
    }
    return c;
}

template <class Map>
std::string mapped(std::string_view text, Map&& map)
{
    std::string result;
    result.reserve(text.size());
    walk(text, [&](const Step& step, std::size_t at) {
        if (step.valid) {
            result += fromCodePoint(map(step.code));
        } else {
            result += text[at];
        }
        return true;
    });
    return result;
}

bool isAscii(std::string_view text)
{
    constexpr unsigned kHighBit = 0x80;
    unsigned           bits     = 0;
    for (const char byte : text) {
        bits |= static_cast<unsigned char>(byte);
    }
    return (bits & kHighBit) == 0;
}

} // namespace

bool isValid(std::string_view text)
{
    bool valid = true;
    walk(text, [&](const Step& step, std::size_t) {
        valid = step.valid;
        return valid;
    });
    return valid;
}

std::int32_t length(std::string_view text)
{
    std::int32_t count = 0;
    walk(text, [&](const Step&, std::size_t) {
        ++count;
        return true;
    });
    return count;
}

std::string substring(std::string_view text, std::int32_t start, std::int32_t count)
{
    const std::int64_t begin = std::max(start, 0);
    const std::int64_t end   = std::int64_t{start} + count;
    if (end <= begin) {
        return {};
    }
    // Where all characters up to the end have one byte, the place need not be walked to.
    const auto bytes = static_cast<std::int64_t>(text.size());
    const auto head  = static_cast<std::size_t>(std::min(end, bytes));
    if (isAscii(text.substr(0, head))) {
        return std::string{
            text.substr(0, head).substr(std::min(static_cast<std::size_t>(begin), head))};
    }
    std::int64_t place = 0;
    std::size_t  from  = text.size();
    std::size_t  to    = text.size();
    walk(text, [&](const Step&, std::size_t at) {
        if (place == begin) {
            from = at;
        }
        if (place == end) {
            to = at;
            return false;
        }
        ++place;
        return true;
    });
    return std::string{text.substr(from, to - from)};
}

std::vector<std::string> characters(std::string_view text)
{
    std::vector<std::string> result;
    walk(text, [&](const Step& step, std::size_t at) {
        result.emplace_back(text.substr(at, step.bytes));
        return true;
    });
    return result;
}

char32_t codePoint(std::string_view character)
{
    return character.empty() ? 0 : decode(character, 0).code;
}

std::string fromCodePoint(char32_t code)
{
    std::string result;
    const auto  put = [&](char32_t byte) { result += static_cast<char>(byte); };
    if (code < 0x80) {
        put(code);
    } else if (code < 0x800) {
        put(0xC0U | (code >> 6U));
        put(0x80U | (code & 0x3FU));
    } else if (code < 0x10000) {
        put(0xE0U | (code >> 12U));
        put(0x80U | ((code >> 6U) & 0x3FU));
        put(0x80U | (code & 0x3FU));
    } else {
        put(0xF0U | (code >> 18U));
        put(0x80U | ((code >> 12U) & 0x3FU));
        put(0x80U | ((code >> 6U) & 0x3FU));
        put(0x80U | (code & 0x3FU));
    }
    return result;
}

std::string toUpper(std::string_view text)
{
    return mapped(text, upper);
}

std::string toLower(std::string_view text)
{
    return mapped(text, lower);
}

} // namespace quill::platform::utf8
