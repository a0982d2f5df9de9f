#pragma once

#include "framework/host_contract.h"

#include <QString>
#include <QTranslator>

#include <memory>
#include <string>
#include <vector>

namespace quill::shell {

/// The texts of the shell and of the controls, out of Qt Linguist catalogues that are part of the
/// program. The catalogues are its own and not the application's: switching the language is a call,
/// and who shows texts asks again.
class CatalogueTranslator : public Translator {
public:
    /// Starts in English.
    CatalogueTranslator();
    ~CatalogueTranslator() override;

    /// Names of the languages, each in English as the controls expect: "English", "German",
    /// "Finnish".
    [[nodiscard]] static std::vector<std::string> languages();
    /// False, and nothing changes, for a language that there is no catalogue of.
    bool setLanguage(const std::string& language);

    std::string GetLanguage() override { return mLanguage; }
    /// "en", "de", "fi": as file names and Qt's own catalogues call the language.
    [[nodiscard]] const QString& languageCode() const { return mCode; }
    /// "Err:" and the key if there is no text.
    std::string Translate(const std::string& key) override;
    /// The text of the part before the delimiter, with what follows in the place of "%1", or behind
    /// a blank where the text has no such place.
    std::string TranslateDelimited(const std::string& text, const std::string& delimiter) override;
    /// "ctr_travel" gives the label of the parameter "travel".
    std::string TranslateTag(const std::string& tag) override;

    /// For the shell's own widgets: the text of an id such as "shell_menuFile".
    [[nodiscard]] QString text(const char* id) const;
    /// A text for the user that may be a key, a key with a parameter, or no key at all, which is
    /// shown as it stands.
    [[nodiscard]] QString shown(const std::string& keyOrText);

private:
    [[nodiscard]] QString find(const std::string& key) const;

    std::string                  mLanguage;
    QString                      mCode;
    std::unique_ptr<QTranslator> mCatalogue;
};

} // namespace quill::shell
