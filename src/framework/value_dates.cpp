#include "framework/values.h"

#include "platform/toolkit.h"
#include "platform/utf8.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace quill::values {

using platform::DateTime;
using platform::Toolkit;
namespace utf8 = platform::utf8;

namespace {

/// One piece of a date pattern. Patterns come in two dialects, that of `formatDate` and that of
/// the toolkit's locale; both are taken apart into these.
struct Piece {
    enum class Kind {
        literal,
        day,
        month,
        year,
        yearOfCentury,
        hour,
        hour12,
        minute,
        second,
        half
    };
    Kind        kind   = Kind::literal;
    std::size_t digits = 0; ///< as many as the pattern has letters
    std::string text;       ///< as it stands in the pattern
};
using Pieces = std::vector<Piece>;

constexpr int kFirstYearOfWindow = 1930; ///< a year of two digits lies in the 100 years from here

/// The letters of a dialect for what `kFields` lists.
struct Dialect {
    std::string_view letters;
    bool             anyCase;
};
constexpr std::array kFields{Piece::Kind::day,   Piece::Kind::month, Piece::Kind::year,
                             Piece::Kind::hour,  Piece::Kind::hour,  Piece::Kind::minute,
                             Piece::Kind::second};
constexpr Dialect    kLocaleDialect{"dMyhHms", false};
constexpr Dialect    kFormatDialect{"dmyhhns", true};

char fold(char c, const Dialect& dialect)
{
    return dialect.anyCase && c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// The meaning of a letter that stands `run` times in a row; a run of no meaning is a literal.
Piece::Kind meaning(char letter, std::size_t run, const Dialect& dialect)
{
    const auto place = dialect.letters.find(letter);
    if (place == std::string_view::npos) {
        return Piece::Kind::literal;
    }
    const Piece::Kind kind = kFields[place];
    if (kind == Piece::Kind::year) {
        return run == 4   ? Piece::Kind::year
               : run == 2 ? Piece::Kind::yearOfCentury
                          : Piece::Kind::literal;
    }
    return run <= 2 ? kind : Piece::Kind::literal;
}

/// Takes the run at the front of a pattern, which is not empty, off it.
Piece takeRun(std::string_view& pattern, const Dialect& dialect)
{
    const char letter = fold(pattern.front(), dialect);
    const auto end    = std::find_if(pattern.begin(), pattern.end(),
                                     [&](char c) { return fold(c, dialect) != letter; });
    const auto run    = static_cast<std::size_t>(end - pattern.begin());
    Piece      piece{meaning(letter, run, dialect), run, std::string{pattern.substr(0, run)}};
    pattern.remove_prefix(run);
    return piece;
}

void addLocalePattern(Pieces& pieces, std::string_view pattern)
{
    constexpr std::string_view kHalf    = "AP";
    const bool                 halfDays = pattern.find(kHalf) != std::string_view::npos;
    while (!pattern.empty()) {
        if (pattern.starts_with(kHalf)) {
            pieces.push_back({Piece::Kind::half, kHalf.size(), std::string{kHalf}});
            pattern.remove_prefix(kHalf.size());
            continue;
        }
        Piece piece = takeRun(pattern, kLocaleDialect);
        if (halfDays && piece.kind == Piece::Kind::hour && piece.text.front() == 'h') {
            piece.kind = Piece::Kind::hour12;
        }
        pieces.push_back(std::move(piece));
    }
}

Pieces formatPieces(std::string_view pattern)
{
    const platform::Locale& locale = Toolkit::current().locale();
    Pieces                  pieces;
    while (!pattern.empty()) {
        Piece      piece  = takeRun(pattern, kFormatDialect);
        const char letter = fold(piece.text.front(), kFormatDialect);
        if (piece.digits == 5 && letter == 'd') {
            addLocalePattern(pieces, locale.shortDate);
        } else if (piece.digits == 5 && letter == 't') {
            addLocalePattern(pieces, locale.longTime);
        } else {
            pieces.push_back(std::move(piece));
        }
    }
    return pieces;
}

std::string padded(int number, std::size_t digits)
{
    const std::string text = std::to_string(number);
    return std::string(digits - std::min(digits, text.size()), '0') + text;
}

std::string write(const Piece& piece, const DateTime& value)
{
    switch (piece.kind) {
    case Piece::Kind::literal: return piece.text;
    case Piece::Kind::day: return padded(value.day, piece.digits);
    case Piece::Kind::month: return padded(value.month, piece.digits);
    case Piece::Kind::year: return padded(value.year, piece.digits);
    case Piece::Kind::yearOfCentury: return padded(value.year % 100, piece.digits);
    case Piece::Kind::hour: return padded(value.hour, piece.digits);
    case Piece::Kind::hour12: return padded((value.hour + 11) % 12 + 1, piece.digits);
    case Piece::Kind::minute: return padded(value.minute, piece.digits);
    case Piece::Kind::second: return padded(value.second, piece.digits);
    case Piece::Kind::half: return value.hour < 12 ? "AM" : "PM";
    }
    return {};
}

/// Takes a number of `least` to `most` digits off the front of `rest`.
bool takeNumber(std::string_view& rest, std::size_t least, std::size_t most, int& into)
{
    std::size_t count = 0;
    into              = 0;
    while (count < most && count < rest.size() && rest[count] >= '0' && rest[count] <= '9') {
        into = into * 10 + (rest[count] - '0');
        ++count;
    }
    rest.remove_prefix(count);
    return count >= least;
}

/// What the pieces leave open until all of them are read.
struct Clock12 {
    std::optional<int> hour;
    bool               afternoon = false;
};

bool take(const Piece& piece, std::string_view& rest, DateTime& value, Clock12& clock)
{
    switch (piece.kind) {
    case Piece::Kind::literal:
        if (!rest.starts_with(piece.text)) {
            return false;
        }
        rest.remove_prefix(piece.text.size());
        return true;
    case Piece::Kind::day: return takeNumber(rest, 1, 2, value.day);
    case Piece::Kind::month: return takeNumber(rest, 1, 2, value.month);
    case Piece::Kind::year: return takeNumber(rest, 4, 4, value.year);
    case Piece::Kind::yearOfCentury:
        if (!takeNumber(rest, 2, 2, value.year)) {
            return false;
        }
        value.year += value.year < kFirstYearOfWindow % 100 ? 2000 : 1900;
        return true;
    case Piece::Kind::hour: return takeNumber(rest, 1, 2, value.hour);
    case Piece::Kind::hour12:
        clock.hour = 0;
        return takeNumber(rest, 1, 2, *clock.hour) && *clock.hour >= 1 && *clock.hour <= 12;
    case Piece::Kind::minute: return takeNumber(rest, 2, 2, value.minute);
    case Piece::Kind::second: return takeNumber(rest, 2, 2, value.second);
    case Piece::Kind::half: {
        const std::string half = utf8::toLower(rest.substr(0, 2));
        clock.afternoon        = half == "pm";
        rest.remove_prefix(std::min<std::size_t>(rest.size(), 2));
        return half == "am" || half == "pm";
    }
    }
    return false;
}

std::optional<DateTime> readAs(std::string_view pattern, std::string_view text)
{
    Pieces pieces;
    addLocalePattern(pieces, pattern);
    DateTime   value;
    Clock12    clock;
    const bool fits = std::all_of(pieces.begin(), pieces.end(), [&](const Piece& piece) {
        return take(piece, text, value, clock);
    });
    if (clock.hour) {
        value.hour = *clock.hour % 12 + (clock.afternoon ? 12 : 0);
    }
    if (!fits || !text.empty() || !isValid(value)) {
        return std::nullopt;
    }
    return value;
}

} // namespace

bool isDate(const std::string& text)
{
    return parseDate(text).has_value();
}

std::optional<DateTime> parseDate(const std::string& text)
{
    std::string_view rest = text;
    while (rest.starts_with(' ')) {
        rest.remove_prefix(1);
    }
    while (rest.ends_with(' ')) {
        rest.remove_suffix(1);
    }
    if (const auto iso = platform::fromIso(rest)) {
        return iso;
    }
    const platform::Locale& locale = Toolkit::current().locale();
    if (rest.empty()) {
        return std::nullopt; // which an empty pattern would fit
    }
    for (const std::string& pattern :
         {locale.shortDate, locale.longTime, locale.shortDate + ' ' + locale.longTime}) {
        if (const auto value = readAs(pattern, rest)) {
            return value;
        }
    }
    return std::nullopt;
}

std::string formatDate(const DateTime& value, const std::string& pattern)
{
    std::string text;
    for (const Piece& piece : formatPieces(pattern)) {
        text += write(piece, value);
    }
    return text;
}

} // namespace quill::values
