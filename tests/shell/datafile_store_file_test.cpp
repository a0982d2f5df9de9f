// How a datafile is read and written: its bytes, its encoding, and failures.

#include "datafile_store_fixture.h"

#include "../support/failure_of.h"
#include "temporary_folder.h"

#include <QStringEncoder>

namespace quill::shell {
namespace {

using documents::findParameter;
using platform::Failure;
using test::failureText;
using testing::ElementsAre;
using testing::StartsWith;

TEST_F(Store, GivesBackTheVeryBytesThatItRead)
{
    EXPECT_EQ(store.bytes(), kFile);
    EXPECT_FALSE(store.hasUnsavedChanges());
    EXPECT_EQ(store.editCount(), 0U);
}

TEST_F(Store, SavesAndGoesOn)
{
    TemporaryFolder folder;
    EXPECT_THROW(store.save(), Failure) << "it has no name yet";
    userEdits("gain", "6");
    store.save(folder.path("a.xml"));
    EXPECT_EQ(store.path(), folder.path("a.xml"));
    EXPECT_FALSE(store.hasUnsavedChanges());
    EXPECT_EQ(folder.read("a.xml"), store.bytes());

    // The editor still knows the value from before: taking the edit back is a change of the file.
    store.setParameterState("gain", "original");
    EXPECT_TRUE(store.hasUnsavedChanges());
    store.save();
    EXPECT_EQ(folder.read("a.xml"), kFile);
}

TEST_F(Store, LoadsAndSavesWithoutAnEditUnchanged)
{
    TemporaryFolder folder;
    store.load(folder.write("a.xml", kFile));
    store.beginLoading();
    editorWrites("gain", "5.00", "noUnit");
    store.endLoading();
    store.save();
    EXPECT_EQ(folder.read("a.xml"), kFile);
}

TEST_F(Store, AFailedSaveLeavesFileAndStoreAsTheyWere)
{
    TemporaryFolder folder;
    store.load(folder.write("a.xml", kFile));
    userEdits("gain", "6");
    EXPECT_THAT(failureText([&] { store.save(folder.path("no/b.xml")); }),
                StartsWith("shell_errNoFolder#"));
    EXPECT_THAT(failureText([&] { store.save(folder.path()); }), StartsWith("shell_errIsFolder#"));
    EXPECT_EQ(store.path(), folder.path("a.xml"));
    EXPECT_EQ(folder.read("a.xml"), kFile);
    EXPECT_TRUE(store.hasUnsavedChanges());
    EXPECT_THAT(folder.names(), ElementsAre("a.xml"));
}

TEST_F(Store, ElementsOfAnotherNamespaceAreLeftAlone)
{
    const std::string mixed =
        with(kFile, "<d:parameters>\n",
             "<d:parameters><x:parameter xmlns:x='urn:x' name='gain' value='8'/>\n");
    store.loadBytes(mixed);
    userEdits("gain", "6");
    EXPECT_EQ(store.bytes(),
              with(with(mixed, "value = \"5\"", "value = \"6\""), "synchronised='1'></d:parameter>",
                   "synchronised='0'></d:parameter>"));
}

TEST_F(Store, AFileThatIsRefusedLeavesTheOldOneOpen)
{
    TemporaryFolder folder;
    EXPECT_THAT(failureText([&] { store.load(folder.path("none.xml")); }),
                StartsWith("shell_errNoFile#"));
    EXPECT_THAT(failureText([&] { store.load(folder.write("x.xml", "no xml")); }),
                StartsWith("shell_errNoDatafile#"));
    EXPECT_THAT(failureText([&] { store.load(folder.write("y.xml", "<dtm/>")); }),
                StartsWith("shell_errNoDatafile#"));
    EXPECT_THAT(failureText([&] {
                    store.load(folder.write("z.xml", "<?xml version='1.0' encoding='EBCDIC'?>"));
                }),
                "shell_errEncoding#EBCDIC");
    EXPECT_EQ(store.bytes(), kFile);
}

TEST_F(Store, KeepsTheEncodingOfAFile)
{
    const std::string latin1 = with(with(kFile, "utf-8", "iso-8859-1"), "K&#228;se", "K\xe4se");
    store.loadBytes(latin1);
    EXPECT_EQ(documents::attributeText(findParameter(store.document(), "text"), "value"),
              "Käse & Brot");
    EXPECT_EQ(store.bytes(), latin1);
    userEdits("bare", "ö€");
    EXPECT_EQ(store.bytes(), with(latin1, "name='bare' type='stringVal' access='readWrite'/>",
                                  "name='bare' type='stringVal' access='readWrite' "
                                  "value=\"&#246;&#8364;\" synchronised=\"0\"/>"));
}

TEST_F(Store, KeepsTheMarkOfAByteOrder)
{
    const std::string marked = "\xef\xbb\xbf" + kFile;
    store.loadBytes(marked);
    EXPECT_EQ(store.bytes(), marked);
    userEdits("gain", "6");
    EXPECT_THAT(store.bytes(), StartsWith("\xef\xbb\xbf<?xml"));

    for (const auto encoding : {QStringConverter::Utf16LE, QStringConverter::Utf16BE}) {
        QStringEncoder   encoder{encoding, QStringConverter::Flag::WriteBom};
        const QByteArray wide =
            encoder.encode(QString::fromStdString(with(kFile, "utf-8", "utf-16")));
        const std::string bytes = wide.toStdString();
        store.loadBytes(bytes);
        EXPECT_EQ(store.bytes(), bytes);
        userEdits("gain", "6");
        EXPECT_EQ(store.bytes().size(), bytes.size());
        EXPECT_NE(store.bytes(), bytes);
    }
}

TEST_F(Store, BytesThatAreNoTextOfTheirEncodingAreRefused)
{
    EXPECT_THAT(
        failureText([&] { store.loadBytes(with(kFile, "K&#228;se", "K\xe4se")); }),
        testing::AnyOf(StartsWith("shell_errNoDatafile#"), StartsWith("shell_errEncoding#")));
    EXPECT_EQ(store.bytes(), kFile);
}

} // namespace
} // namespace quill::shell
