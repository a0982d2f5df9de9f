#include "shell/file_operations.h"

#include "../support/failure_of.h"
#include "temporary_folder.h"
#include "watched_operations.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <sys/stat.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace quill::shell {
namespace {

using test::failureText;
using testing::ElementsAre;
using testing::StartsWith;

TEST(ReplaceFile, SyncsTheNewFileBeforeItTakesTheName)
{
    TemporaryFolder   folder;
    WatchedOperations operations;
    replaceFile(folder.path("a.xml"), "text", operations);
    EXPECT_THAT(operations.names,
                ElementsAre("open folder", "create", "write half", "write the rest", "sync file",
                            "rename", "sync folder"));
    EXPECT_EQ(folder.read("a.xml"), "text");
    EXPECT_THAT(folder.names(), ElementsAre("a.xml"));
}

class FailingStep : public testing::TestWithParam<const char*> {};

TEST_P(FailingStep, LeavesTheOldFileAndNothingBesideIt)
{
    TemporaryFolder folder;
    folder.write("a.xml", "old");
    WatchedOperations operations;
    operations.before = [](const std::string& name) {
        if (name == GetParam()) {
            throw std::system_error(ENOSPC, std::generic_category());
        }
    };
    EXPECT_THAT(failureText([&] { replaceFile(folder.path("a.xml"), "new text", operations); }),
                StartsWith("shell_errWrite#" + folder.path("a.xml") + ": "));
    EXPECT_EQ(folder.read("a.xml"), "old");
    EXPECT_THAT(folder.names(), ElementsAre("a.xml"));
}

INSTANTIATE_TEST_SUITE_P(All, FailingStep,
                         testing::Values("open folder", "create", "write half", "write the rest",
                                         "sync file", "rename"));

TEST(ReplaceFile, AFolderThatCannotBeSyncedIsNoFailure)
{
    TemporaryFolder   folder;
    WatchedOperations operations;
    operations.before = [](const std::string& name) {
        if (name == "sync folder") {
            throw std::system_error(EINVAL, std::generic_category());
        }
    };
    replaceFile(folder.path("a.xml"), "new", operations);
    EXPECT_EQ(folder.read("a.xml"), "new");
}

class KilledAt : public testing::TestWithParam<const char*> {};

TEST_P(KilledAt, LeavesTheOldOrTheNewFileWhole)
{
    TemporaryFolder folder;
    folder.write("a.xml", "old");
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        WatchedOperations operations;
        operations.before = [](const std::string& name) {
            if (name == GetParam()) {
                ::_exit(7);
            }
        };
        replaceFile(folder.path("a.xml"), "new text", operations);
        ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 7);
    EXPECT_EQ(folder.read("a.xml"), GetParam() == std::string{"sync folder"} ? "new text" : "old");

    // What was left beside it does not stand in the way of the next save.
    replaceFile(folder.path("a.xml"), "newer", FileOperations::system());
    EXPECT_EQ(folder.read("a.xml"), "newer");
}

INSTANTIATE_TEST_SUITE_P(All, KilledAt,
                         testing::Values("create", "write half", "write the rest", "sync file",
                                         "rename", "sync folder"));

TEST(ReplaceFile, TellsWhatToDoAboutAWrongName)
{
    TemporaryFolder folder;
    EXPECT_EQ(failureText([&] { replaceFile(folder.path("no/a.xml"), "x"); }),
              "shell_errNoFolder#" + std::filesystem::canonical(folder.path()).string() + "/no");
    std::filesystem::create_directory(folder.path("sub"));
    EXPECT_EQ(failureText([&] { replaceFile(folder.path("sub"), "x"); }),
              "shell_errIsFolder#" + folder.path("sub"));
    folder.write("file", "x");
    EXPECT_THAT(failureText([&] { replaceFile(folder.path("file/a.xml"), "x"); }),
                StartsWith("shell_errNoFolder#"));
}

TEST(ReplaceFile, KeepsTheRightsOfTheOldFile)
{
    TemporaryFolder folder;
    folder.write("a.xml", "old");
    ::chmod(folder.path("a.xml").c_str(), 0640);
    replaceFile(folder.path("a.xml"), "new");
    struct stat of {};
    ASSERT_EQ(::stat(folder.path("a.xml").c_str(), &of), 0);
    EXPECT_EQ(of.st_mode & 0777U, 0640U);
}

TEST(ReplaceFile, FollowsALink)
{
    TemporaryFolder folder;
    folder.write("real.xml", "old");
    std::filesystem::create_symlink(folder.path("real.xml"), folder.path("link.xml"));
    replaceFile(folder.path("link.xml"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(folder.path("link.xml")));
    EXPECT_EQ(folder.read("real.xml"), "new");
}

TEST(ReadFile, TellsWhatToDoAboutAWrongName)
{
    TemporaryFolder folder;
    EXPECT_EQ(failureText([&] { (void)readFile(folder.path("none")); }),
              "shell_errNoFile#" + folder.path("none"));
    EXPECT_EQ(failureText([&] { (void)readFile(folder.path()); }),
              "shell_errIsFolder#" + folder.path());
    folder.write("bytes", std::string{"a\0\r\n", 4});
    EXPECT_EQ(readFile(folder.path("bytes")), (std::string{"a\0\r\n", 4}));
}

} // namespace
} // namespace quill::shell
