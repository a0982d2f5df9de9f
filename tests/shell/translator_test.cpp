#include "shell/translator.h"

#include "framework/documents.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

namespace quill::shell {
namespace {

using testing::ElementsAre;

const QString kSource = QStringLiteral(QUILL_SOURCE_DIR "/shell/");

/// Texts of a catalogue by id.
std::map<QString, QString> catalogue(const QString& language)
{
    QFile file{kSource + "translations/quill_" + language + ".ts"};
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    QXmlStreamReader           xml{&file};
    std::map<QString, QString> texts;
    QString                    id;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String{"message"}) {
            id = xml.attributes().value("id").toString();
            EXPECT_FALSE(id.isEmpty());
            EXPECT_FALSE(texts.contains(id)) << id.toStdString() << " stands twice";
        } else if (xml.name() == QLatin1String{"translation"}) {
            EXPECT_FALSE(xml.attributes().hasAttribute("type"))
                << id.toStdString() << " is not finished";
            texts[id] = xml.readElementText();
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return texts;
}

class Catalogues : public testing::TestWithParam<const char*> {};

TEST_P(Catalogues, HoldEveryIdWithAText)
{
    const auto english = catalogue("en");
    const auto other   = catalogue(GetParam());
    EXPECT_FALSE(english.empty());
    for (const auto& [id, text] : english) {
        ASSERT_TRUE(other.contains(id)) << id.toStdString() << " is missing";
        EXPECT_FALSE(other.at(id).trimmed().isEmpty()) << id.toStdString() << " has no text";
        EXPECT_EQ(other.at(id).contains("%1"), text.contains("%1")) << id.toStdString();
    }
    for (const auto& [id, text] : other) {
        EXPECT_TRUE(english.contains(id)) << id.toStdString() << " is nowhere else";
    }
}

INSTANTIATE_TEST_SUITE_P(All, Catalogues, testing::Values("en", "de", "fi"));

TEST(Catalogue, HoldsEveryIdThatTheShellUses)
{
    const auto               texts = catalogue("en");
    const QRegularExpression literal{QStringLiteral("\"(shell_[A-Za-z0-9_]+)[\"#]")};
    QDirIterator             files{
        kSource, {"*.cpp", "*.h", "*.json"}, QDir::Files, QDirIterator::Subdirectories};
    int used = 0;
    while (files.hasNext()) {
        QFile file{files.next()};
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        auto match = literal.globalMatch(QString::fromUtf8(file.readAll()));
        while (match.hasNext()) {
            const QString id = match.next().captured(1);
            ++used;
            // An id that is put together of parts is there if something begins with it.
            const auto next = texts.lower_bound(id);
            EXPECT_TRUE(next != texts.end() && next->first.startsWith(id))
                << id.toStdString() << " of " << file.fileName().toStdString();
        }
    }
    EXPECT_GT(used, 10);
}

TEST(Catalogue, HoldsNoIdThatNobodyUses)
{
    QString      sources;
    QDirIterator files{
        kSource, {"*.cpp", "*.h", "*.json"}, QDir::Files, QDirIterator::Subdirectories};
    while (files.hasNext()) {
        QFile file{files.next()};
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        sources += QString::fromUtf8(file.readAll());
    }
    for (const auto& [id, text] : catalogue("en")) {
        if (!id.startsWith("shell_")) {
            continue; // of the controls
        }
        const bool whole = sources.contains('"' + id + '"') || sources.contains('"' + id + '#');
        bool       parts = false; // put together of a beginning and what is counted or named
        for (const char* beginning : {"shell_userLevel", "shell_units", "shell_state_"}) {
            parts = parts ||
                    (id.startsWith(beginning) && sources.contains('"' + QString{beginning} + '"'));
        }
        EXPECT_TRUE(whole || parts) << id.toStdString();
    }
}

TEST(Catalogue, HoldsEveryTextOfTheSampleDatafile)
{
    QFile file{kSource + "data/vx4400h.xml"};
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const auto          datafile = documents::openText(file.readAll().toStdString());
    CatalogueTranslator texts;
    for (const std::string& language : CatalogueTranslator::languages()) {
        ASSERT_TRUE(texts.setLanguage(language));
        for (const char* path :
             {"//data:parameter/@name", "//data:mapping/@name", "//data:requestGroup/@name"}) {
            for (const IXMLDOMNode& name : datafile.selectNodes(path)) {
                EXPECT_FALSE(texts.TranslateTag("ctr_" + name.get_text()).starts_with("Err:"))
                    << name.get_text() << " in " << language;
            }
        }
    }
}

TEST(CatalogueTranslator, SwitchesTheLanguageAtRunTime)
{
    CatalogueTranslator texts;
    EXPECT_THAT(CatalogueTranslator::languages(), ElementsAre("English", "German", "Finnish"));
    EXPECT_EQ(texts.GetLanguage(), "English");
    EXPECT_EQ(texts.Translate("supplyPressure"), "Supply pressure");
    EXPECT_TRUE(texts.setLanguage("Finnish"));
    EXPECT_EQ(texts.GetLanguage(), "Finnish");
    EXPECT_EQ(texts.Translate("supplyPressure"), "Syöttöpaine");
    EXPECT_TRUE(texts.setLanguage("German"));
    EXPECT_EQ(texts.Translate("supplyPressure"), "Zuluftdruck");
    EXPECT_FALSE(texts.setLanguage("Latin"));
    EXPECT_EQ(texts.Translate("supplyPressure"), "Zuluftdruck");
}

TEST(CatalogueTranslator, TwoOfThemDoNotShareTheirLanguage)
{
    CatalogueTranslator one;
    CatalogueTranslator other;
    one.setLanguage("German");
    EXPECT_EQ(other.Translate("close"), "Close");
}

TEST(CatalogueTranslator, TakesATagWithItsPrefix)
{
    CatalogueTranslator texts;
    EXPECT_EQ(texts.TranslateTag("ctr_tag"), "Tag");
    EXPECT_EQ(texts.TranslateTag("changeConfirm"), "Confirm changes");
    EXPECT_EQ(texts.TranslateTag("ctr_nothing"), "Err:nothing");
}

TEST(CatalogueTranslator, AnUnknownKeyIsAnErrorText)
{
    CatalogueTranslator texts;
    EXPECT_EQ(texts.Translate("noSuchKey"), "Err:noSuchKey");
    EXPECT_EQ(texts.Translate(""), "Err:");
    EXPECT_EQ(texts.TranslateDelimited("noSuchKey#5", "#"), "Err:noSuchKey#5");
    EXPECT_EQ(texts.text("shell_noSuchText"), "Err:shell_noSuchText");
}

TEST(CatalogueTranslator, PutsTheParameterIntoTheText)
{
    CatalogueTranslator texts;
    EXPECT_EQ(texts.TranslateDelimited("shell_saved#/a#b", "#"), "Saved: /a#b");
    EXPECT_EQ(texts.TranslateDelimited("close#x", "#"), "Close x");
    EXPECT_EQ(texts.TranslateDelimited("close", "#"), "Close");
    EXPECT_EQ(texts.TranslateDelimited("close", ""), "Close");
}

TEST(CatalogueTranslator, ShowsATextThatIsNoKeyAsItStands)
{
    CatalogueTranslator texts;
    EXPECT_EQ(texts.shown("Tag #5 is \"odd\"").toStdString(), "Tag #5 is \"odd\"");
    EXPECT_EQ(texts.shown("shell_errNoFolder#/x").toStdString(),
              "The folder /x does not exist. Choose another folder.");
    EXPECT_EQ(texts.shown("").toStdString(), "");
}

TEST(CatalogueTranslator, KeepsTheWordsOfTheFixedEntryByWhichAnEditorKnowsIt)
{
    CatalogueTranslator texts;
    EXPECT_EQ(texts.Translate("Not In Use"), "Not In Use");
    texts.setLanguage("German");
    EXPECT_EQ(texts.Translate("Not In Use"), "Nicht in Gebrauch");
    texts.setLanguage("Finnish");
    EXPECT_EQ(texts.Translate("Not In Use"), "Ei käytössä");
}

} // namespace
} // namespace quill::shell
