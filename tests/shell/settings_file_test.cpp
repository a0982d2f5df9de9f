#include "shell/settings_file.h"

#include "framework/host_contract.h"
#include "platform/failure.h"
#include "temporary_folder.h"
#include "watched_operations.h"

#include <QJsonDocument>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace quill::shell {
namespace {

using testing::ElementsAre;

const Settings kChosen{
    "Finnish", {{"pressure", "psi"}, {"temperature", "degF"}}, kClassNAMUR, 2, ColorScheme::dark};

class SettingsFileTest : public testing::Test {
protected:
    /// What a program finds that starts now.
    Settings loaded() { return SettingsFile{path}.load(); }
    Settings loaded(const std::string& bytes)
    {
        folder.write("settings.json", bytes);
        return loaded();
    }
    std::string problem()
    {
        SettingsFile file{path};
        (void)file.load();
        return file.problem();
    }

    TemporaryFolder folder;
    std::string     path = folder.path("settings.json");
};

TEST_F(SettingsFileTest, TheFirstStartHasTheUsualSettingsAndNoProblem)
{
    EXPECT_EQ(loaded(), Settings{});
    EXPECT_EQ(problem(), "");
    EXPECT_THAT(folder.names(), ElementsAre()) << "reading writes nothing";
}

TEST_F(SettingsFileTest, WhatWasSavedIsFoundAgain)
{
    SettingsFile{path}.save(kChosen);
    EXPECT_EQ(loaded(), kChosen);
    EXPECT_EQ(problem(), "");

    Settings light = kChosen;
    light.scheme   = ColorScheme::light;
    SettingsFile{path}.save(light);
    EXPECT_EQ(loaded(), light);

    SettingsFile{path}.save(Settings{});
    EXPECT_EQ(loaded().scheme, std::nullopt) << "the desktop's again";
    EXPECT_EQ(loaded().language, "English");
}

TEST_F(SettingsFileTest, TheFolderIsMadeWhereItIsMissing)
{
    path = folder.path("quill/shell/settings.json");
    SettingsFile{path}.save(kChosen);
    EXPECT_EQ(loaded(), kChosen);
}

TEST_F(SettingsFileTest, WhatANewerProgramWroteStays)
{
    folder.write("settings.json", R"({"language": "German", "sidebar": {"width": 240},
                                      "units": {"pressure": "psi", "radiation": "Sv"}})");
    SettingsFile file{path};
    Settings     settings = file.load();
    EXPECT_EQ(settings.language, "German");
    EXPECT_THAT(settings.units, ElementsAre(testing::Pair("pressure", "psi")));

    settings.userLevel = 1;
    file.save(settings);
    settings.userLevel = 2;
    file.save(settings);
    const QJsonObject content =
        QJsonDocument::fromJson(QByteArray::fromStdString(folder.read("settings.json"))).object();
    EXPECT_EQ(content["sidebar"].toObject()["width"].toInt(), 240);
    EXPECT_EQ(content["units"].toObject()["radiation"].toString(), "Sv");
    EXPECT_EQ(content["userLevel"].toInt(), 2);
}

TEST_F(SettingsFileTest, EveryPieceOfAHalfFileGivesTheUsualSettingsAndAMessage)
{
    SettingsFile{path}.save(kChosen);
    std::string whole = folder.read("settings.json");
    whole.resize(whole.find_last_of('}')); // what stands behind it is white space
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        EXPECT_EQ(loaded(whole.substr(0, length)), Settings{}) << length;
        EXPECT_EQ(problem(), "shell_settingsUnreadable#" + path) << length;
    }
}

class DamagedFile : public SettingsFileTest, public testing::WithParamInterface<const char*> {};

TEST_P(DamagedFile, GivesTheUsualSettingsAndAMessage)
{
    EXPECT_EQ(loaded(GetParam()), Settings{});
    EXPECT_EQ(problem(), "shell_settingsUnreadable#" + path);
    // The next save makes it whole.
    SettingsFile{path}.save(kChosen);
    EXPECT_EQ(loaded(), kChosen);
}

INSTANTIATE_TEST_SUITE_P(All, DamagedFile,
                         testing::Values("", " \n", "[]", "\"English\"", "null", "{\"language\":",
                                         "\x7f"
                                         "ELF\x02",
                                         "{\"language\": \"Ger\xff\xfe"));

TEST_F(SettingsFileTest, AFileOfUnreasonableLengthIsNotRead)
{
    std::string bytes = R"({"language": "German", "x": ")";
    bytes += std::string(1U << 20U, 'x') + "\"}";
    EXPECT_EQ(loaded(bytes), Settings{});
    EXPECT_NE(problem(), "");
}

TEST_F(SettingsFileTest, AFolderOfThatNameIsAProblemAndNoFailure)
{
    std::filesystem::create_directory(path);
    EXPECT_EQ(loaded(), Settings{});
    EXPECT_EQ(problem(), "shell_settingsUnreadable#" + path);
}

TEST_F(SettingsFileTest, AnEntryThatMakesNoSenseIsLeftOutAlone)
{
    const Settings settings = loaded(R"({"language": "Latin", "userLevel": 2.5,
        "statusClassification": 2, "scheme": 7,
        "units": {"pressure": "degC", "temperature": "degF", "length": 5}})");
    EXPECT_EQ(settings.language, "English");
    EXPECT_EQ(settings.userLevel, 3);
    EXPECT_EQ(settings.classification, kClassSeverity);
    EXPECT_EQ(settings.scheme, std::nullopt);
    EXPECT_THAT(settings.units, ElementsAre(testing::Pair("temperature", "degF")));
    EXPECT_EQ(problem(), "");

    EXPECT_EQ(loaded(R"({"userLevel": 0})").userLevel, 3);
    EXPECT_EQ(loaded(R"({"userLevel": 5})").userLevel, 3);
    EXPECT_EQ(loaded(R"({"userLevel": 1e300})").userLevel, 3);
    EXPECT_EQ(loaded(R"({"userLevel": "1"})").userLevel, 3);
    EXPECT_EQ(loaded(R"({"userLevel": 4})").userLevel, 4);
    EXPECT_EQ(loaded(R"({"units": []})").units.size(), 0U);
}

class SavingIsKilledAt : public SettingsFileTest,
                         public testing::WithParamInterface<const char*> {};

TEST_P(SavingIsKilledAt, AndTheNextStartFindsTheOldOrTheNewSettings)
{
    Settings old = kChosen;
    old.language = "German";
    SettingsFile{path}.save(old);

    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        WatchedOperations operations;
        operations.before = [](const std::string& name) {
            if (name == GetParam()) {
                ::_exit(7);
            }
        };
        SettingsFile file{path, operations};
        (void)file.load();
        file.save(kChosen);
        ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    ASSERT_EQ(WEXITSTATUS(status), 7);

    EXPECT_EQ(loaded(), GetParam() == std::string{"sync folder"} ? kChosen : old);
    EXPECT_EQ(problem(), "");
    SettingsFile{path}.save(kChosen);
    EXPECT_EQ(loaded(), kChosen) << "what is left of the crash does not stand in the way";
}

INSTANTIATE_TEST_SUITE_P(All, SavingIsKilledAt,
                         testing::Values("open folder", "create", "write half", "write the rest",
                                         "sync file", "rename", "sync folder"));

TEST_F(SettingsFileTest, ASaveThatFailsIsToldAndLeavesTheOldSettings)
{
    SettingsFile{path}.save(kChosen);
    WatchedOperations operations;
    operations.before = [](const std::string& name) {
        if (name == "write the rest") {
            throw std::system_error(ENOSPC, std::generic_category());
        }
    };
    SettingsFile file{path, operations};
    EXPECT_THROW(file.save(Settings{}), platform::Failure);
    EXPECT_EQ(loaded(), kChosen);
}

} // namespace
} // namespace quill::shell
