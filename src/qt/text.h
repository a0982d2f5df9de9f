#pragma once

#include <QString>

#include <cstdint>
#include <string>

namespace quill::qt {

/// Models hold UTF-8 and count code points, Qt holds UTF-16 and counts its units.
[[nodiscard]] inline QString toQt(const std::string& text)
{
    return QString::fromStdString(text);
}

[[nodiscard]] inline std::string fromQt(const QString& text)
{
    return text.toStdString();
}

/// The place in `text` behind that many characters; the end for more than there are.
[[nodiscard]] int toQtPosition(const QString& text, std::int32_t characters);
/// How many characters stand before a place in `text`.
[[nodiscard]] std::int32_t fromQtPosition(const QString& text, int position);

} // namespace quill::qt
