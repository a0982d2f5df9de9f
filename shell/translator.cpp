#include "shell/translator.h"

#include "framework/modTools.h"

#include <algorithm>
#include <array>

// Resources of a static library are linked only where somebody asks for them.
static void initCatalogues()
{
    Q_INIT_RESOURCE(quill_shell_texts);
}

namespace quill::shell {

namespace {

struct Catalogue {
    const char* language;
    const char* code;
};

constexpr std::array kCatalogues{
    Catalogue{"English", "en"},
    Catalogue{"German", "de"},
    Catalogue{"Finnish", "fi"},
};

} // namespace

CatalogueTranslator::CatalogueTranslator()
{
    initCatalogues();
    setLanguage(kCatalogues.front().language);
}

CatalogueTranslator::~CatalogueTranslator() = default;

std::vector<std::string> CatalogueTranslator::languages()
{
    std::vector<std::string> names;
    for (const Catalogue& catalogue : kCatalogues) {
        names.emplace_back(catalogue.language);
    }
    return names;
}

bool CatalogueTranslator::setLanguage(const std::string& language)
{
    const auto found = std::ranges::find(kCatalogues, language, &Catalogue::language);
    if (found == kCatalogues.end()) {
        return false;
    }
    auto catalogue = std::make_unique<QTranslator>();
    if (!catalogue->load(QStringLiteral(":/quill/translations/quill_%1.qm").arg(found->code))) {
        return false;
    }
    mCatalogue = std::move(catalogue);
    mLanguage  = language;
    mCode      = found->code;
    return true;
}

QString CatalogueTranslator::find(const std::string& key) const
{
    // The empty id would find the head of the catalogue.
    return key.empty() || !mCatalogue ? QString{} : mCatalogue->translate("", key.c_str());
}

std::string CatalogueTranslator::Translate(const std::string& key)
{
    const QString text = find(key);
    return text.isEmpty() ? "Err:" + key : text.toStdString();
}

std::string CatalogueTranslator::TranslateDelimited(const std::string& text,
                                                    const std::string& delimiter)
{
    const auto at = delimiter.empty() ? std::string::npos : text.find(delimiter);
    if (at == std::string::npos) {
        return Translate(text);
    }
    const QString pattern = find(text.substr(0, at));
    if (pattern.isEmpty()) {
        return "Err:" + text;
    }
    const QString parameter = QString::fromStdString(text.substr(at + delimiter.size()));
    return (pattern.contains("%1") ? QString{pattern}.replace("%1", parameter)
                                   : pattern + ' ' + parameter)
        .toStdString();
}

std::string CatalogueTranslator::TranslateTag(const std::string& tag)
{
    return Translate(modTools::RemoveCtrPrefix(tag));
}

QString CatalogueTranslator::text(const char* id) const
{
    const QString found = find(id);
    return found.isEmpty() ? QStringLiteral("Err:") + id : found;
}

QString CatalogueTranslator::shown(const std::string& keyOrText)
{
    const std::string translated = TranslateDelimited(keyOrText, "#");
    return QString::fromStdString(modTools::IsNotErrorText(translated) ? translated : keyOrText);
}

} // namespace quill::shell
