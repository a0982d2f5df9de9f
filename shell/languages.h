#pragma once

#include <array>
#include <string>

namespace quill::shell {

/// A language by the name that the controls know, and as it is written in itself.
struct Language {
    const char* name;
    const char* written;
};

inline constexpr std::array<Language, 3> kLanguages{
    {{"English", "English"}, {"German", "Deutsch"}, {"Finnish", "Suomi"}}};

/// The name that the controls know, by the written one; empty for any other text.
[[nodiscard]] inline std::string languageByWritten(const std::string& written)
{
    for (const Language& language : kLanguages) {
        if (written == language.written) {
            return language.name;
        }
    }
    return {};
}

/// The other way round.
[[nodiscard]] inline std::string writtenLanguage(const std::string& name)
{
    for (const Language& language : kLanguages) {
        if (name == language.name) {
            return language.written;
        }
    }
    return {};
}

} // namespace quill::shell
