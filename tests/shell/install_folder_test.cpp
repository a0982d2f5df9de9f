#include "shell/install_folder.h"

#include "actions/CtrModuleSelection.h"
#include "framework/documents.h"
#include "platform/failure.h"
#include "support/recording_messenger.h"
#include "support/toolkit_scope.h"
#include "temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <charconv>

namespace quill::shell {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

/// The four hexadecimal digits at a place that counts from 1.
std::size_t wordAt(const std::string& text, std::size_t place)
{
    std::size_t number = 0;
    std::from_chars(text.data() + place - 1, text.data() + place + 3, number, 16);
    return number;
}

std::string busConfiguration(const std::string& fdt)
{
    return documents::openText(fdt)
        .selectSingleNode("//param:MasterSlaveBus/@busMasterConfigurationPart")
        .get_text();
}

/// Whether all lengths in a bus configuration are those of its parts.
void expectConsistent(const std::string& configuration, const std::string& module)
{
    EXPECT_EQ(wordAt(configuration, 1) * 2, configuration.size());
    const std::size_t first  = wordAt(configuration, 33);
    const std::size_t second = wordAt(configuration, 33 + 2 * first);
    EXPECT_GE(first, 2U);
    EXPECT_EQ(configuration.substr(32 + 2 * first + 4, 2 * second - 4), module);
    EXPECT_LE(32 + 2 * (first + second), configuration.size());
}

TEST(InstallFolder, HoldsTheModulesWhereDatafilesNameThem)
{
    const TemporaryFolder folder;
    installDocuments(folder.path());
    const auto datafile =
        documents::openFile(QUILL_SOURCE_DIR + std::string("/shell/data/vx4400f.xml"));
    const std::string name = documents::attributeText(
        datafile.selectSingleNode("//typeInfo:internalInfo"), "parameterfile");
    // The controls put the path together with "\", whatever the system's separator is.
    const auto modules = documents::openFile(folder.path() + "Documents\\" + name);
    EXPECT_EQ(modules.selectNodes("//fdt:VersionInformation").get_length(), 4);
}

TEST(InstallFolder, ADocumentThatIsThereIsLeftAloneAndADamagedOneMended)
{
    const TemporaryFolder folder;
    installDocuments(folder.path());
    const std::string path = folder.path("Documents/VX4400F.xml");
    const auto        time = std::filesystem::last_write_time(path) - std::chrono::hours{1};
    std::filesystem::last_write_time(path, time);
    installDocuments(folder.path());
    EXPECT_EQ(std::filesystem::last_write_time(path), time);

    const std::string bytes = folder.read("Documents/VX4400F.xml");
    folder.write("Documents/VX4400F.xml", bytes.substr(0, 100));
    installDocuments(folder.path());
    EXPECT_EQ(folder.read("Documents/VX4400F.xml"), bytes);
}

TEST(InstallFolder, AFolderThatCannotBeMadeIsTold)
{
    const TemporaryFolder folder;
    folder.write("file", "x");
    EXPECT_THROW(installDocuments(folder.path("file/")), platform::Failure);
}

TEST(DefaultFdtDocument, ItsLengthsAgreeWithItsModule)
{
    const auto document = documents::openText(defaultFdtDocument());
    EXPECT_EQ(document.selectNodes("//param:Module").get_length(), 1);
    expectConsistent(busConfiguration(defaultFdtDocument()),
                     document.selectSingleNode("//param:Module/@configurationData").get_text());
}

TEST(DefaultFdtDocument, EveryModuleCanBeChosenInTheView)
{
    const quill::test::ToolkitScope toolkit;
    const TemporaryFolder           folder;
    installDocuments(folder.path());
    quill::test::RecordingMessenger messenger;
    messenger.installPath          = folder.path();
    messenger.hostDocuments["FDT"] = defaultFdtDocument();
    CtrModuleSelection view{{.Name = "modules", .Tag = "moduleSelection"}};
    view.SetMessenger(&messenger);
    view.SetOfflineData(
        documents::openFile(QUILL_SOURCE_DIR + std::string("/shell/data/vx4400f.xml")));
    EXPECT_EQ(view.ModuleSelection.ListCount(), 4);
    EXPECT_EQ(view.ModuleSelection.Text(), "Set point");

    const auto modules = documents::openFile(folder.path("Documents/VX4400F.xml"));
    // There and back, so that each follows one of another length.
    for (const int row : {3, 1, 2, 0}) {
        view.ModuleSelection.choose(row);
        const std::string name = view.ModuleSelection.Text();
        view.cmdSetSelection.click();
        const std::string& fdt = messenger.hostDocuments["FDT"];
        expectConsistent(busConfiguration(fdt),
                         modules
                             .selectSingleNode("//param:Module[fdt:VersionInformation/@name='" +
                                               name + "']/@configurationData")
                             .get_text());
        EXPECT_EQ(documents::openText(fdt)
                      .selectSingleNode("//param:Module/fdt:VersionInformation/@name")
                      .get_text(),
                  name);
    }
    EXPECT_EQ(busConfiguration(messenger.hostDocuments["FDT"]),
              busConfiguration(defaultFdtDocument()));
    EXPECT_THAT(messenger.callsTo("ReportErrorObject"), SizeIs(0));
}

} // namespace
} // namespace quill::shell
