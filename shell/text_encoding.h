#pragma once

#include <QStringConverter>

#include <string>

namespace quill::shell {

/// The encoding of an XML file, as its first bytes and its declaration tell it.
class TextEncoding {
public:
    /// UTF-8
    TextEncoding() = default;
    /// An encoding that is not known here, or one that does not give these very bytes back, is a
    /// `Failure` with the key "shell_errEncoding" and the encoding's name.
    explicit TextEncoding(const std::string& xmlBytes);

    /// The text as UTF-8; a mark of the byte order stays in front of it.
    [[nodiscard]] std::string decode(const std::string& bytes) const;
    /// The reverse.
    [[nodiscard]] std::string encode(const std::string& text) const;
    /// Whether it can write every character.
    [[nodiscard]] bool isUnicode() const { return mEncoding != QStringConverter::Latin1; }

private:
    QStringConverter::Encoding mEncoding = QStringConverter::Utf8;
};

} // namespace quill::shell
