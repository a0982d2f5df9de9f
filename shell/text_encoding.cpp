#include "shell/text_encoding.h"

#include "platform/failure.h"

#include <QByteArray>
#include <QString>

namespace quill::shell {

namespace {

/// The mark of the byte order in UTF-8.
constexpr const char* kMark = "\xef\xbb\xbf";

/// The name in `<?xml ... encoding="..."?>`; "UTF-8" if there is none.
std::string declaredEncoding(const std::string& xmlBytes)
{
    std::size_t at = xmlBytes.starts_with(kMark) ? 3 : 0;
    if (xmlBytes.compare(at, 5, "<?xml") != 0) {
        return "UTF-8";
    }
    const std::string declaration = xmlBytes.substr(at, xmlBytes.find("?>", at) - at);
    at                            = declaration.find("encoding");
    const auto open               = declaration.find_first_of("\"'", at);
    if (at == std::string::npos || open == std::string::npos) {
        return "UTF-8";
    }
    return declaration.substr(open + 1, declaration.find(declaration[open], open + 1) - open - 1);
}

} // namespace

TextEncoding::TextEncoding(const std::string& xmlBytes)
{
    std::string name;
    if (xmlBytes.starts_with("\xff\xfe")) {
        mEncoding = QStringConverter::Utf16LE;
        name      = "UTF-16";
    } else if (xmlBytes.starts_with("\xfe\xff")) {
        mEncoding = QStringConverter::Utf16BE;
        name      = "UTF-16";
    } else {
        name             = declaredEncoding(xmlBytes);
        const auto known = QStringConverter::encodingForName(name.c_str());
        // Every ASCII text is UTF-8 as well; the other names that are known need their mark.
        if (QByteArray::fromStdString(name).toUpper() == "US-ASCII") {
            mEncoding = QStringConverter::Latin1;
        } else if (known == QStringConverter::Utf8 || known == QStringConverter::Latin1) {
            mEncoding = *known;
        } else {
            throw platform::Failure(platform::kInvalidCall, "shell_errEncoding#" + name);
        }
    }
    if (encode(decode(xmlBytes)) != xmlBytes) {
        throw platform::Failure(platform::kInvalidCall, "shell_errEncoding#" + name);
    }
}

std::string TextEncoding::decode(const std::string& bytes) const
{
    if (mEncoding == QStringConverter::Utf8) {
        return bytes;
    }
    QStringDecoder decoder{mEncoding, QStringConverter::Flag::ConvertInitialBom};
    const QString  text = decoder.decode(QByteArray::fromStdString(bytes));
    return text.toStdString();
}

std::string TextEncoding::encode(const std::string& text) const
{
    if (mEncoding == QStringConverter::Utf8) {
        return text;
    }
    // A QString made of UTF-8 has lost the mark, so it is written anew.
    const bool       marked = text.starts_with(kMark);
    QStringEncoder   encoder{mEncoding, marked ? QStringConverter::Flag::WriteBom
                                               : QStringConverter::Flag::Default};
    const QByteArray bytes = encoder.encode(QString::fromStdString(text));
    return bytes.toStdString();
}

} // namespace quill::shell
