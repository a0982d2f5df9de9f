#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

namespace {

struct Outcome {
    int         status = -1;
    std::string output;
};

/// Runs the program with arguments and, as the shell writes it, its input.
Outcome runProbe(const std::string& arguments, const std::string& input = "</dev/null")
{
    const std::string command =
        std::string{"'"} + QUILL_PROBE_PATH + "' " + arguments + " " + input + " 2>&1";
    Outcome outcome;
    FILE*   pipe = popen(command.c_str(), "r");
    if (pipe == nullptr) {
        return outcome;
    }
    std::array<char, 4096> buffer{};
    while (const auto count = fread(buffer.data(), 1, buffer.size(), pipe)) {
        outcome.output.append(buffer.data(), count);
    }
    const int status = pclose(pipe);
    outcome.status   = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return outcome;
}

/// A recording on disk as long as the test runs.
class Recording {
public:
    explicit Recording(const std::string& text)
        : mPath(std::filesystem::temp_directory_path() /
                ("probe-" + std::to_string(getpid()) + "-" + std::to_string(++sCount)))
    {
        std::ofstream{mPath} << text;
    }
    ~Recording() { std::filesystem::remove(mPath); }
    [[nodiscard]] std::string path() const { return mPath.string(); }

private:
    static int            sCount;
    std::filesystem::path mPath;
};

int Recording::sCount = 0;

const char* const kCreate = R"({"op":"create","class":"Label","name":"a","tag":"t"})"
                            "\n";
const char* const kGet    = R"({"op":"get","on":"a","property":"Tag"})"
                            "\n";

} // namespace

TEST(ProbeProgram, EndsWithZeroWhenEveryLineWasDone)
{
    const Recording recording{kCreate + std::string{kGet}};
    const auto      outcome = runProbe("", "<" + recording.path());
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "{\"ok\":true}\n{\"ok\":true,\"result\":\"t\"}\n");
}

TEST(ProbeProgram, EndsWithOneWhenALineWasNotDone)
{
    const Recording recording{"nonsense\n" + std::string{kCreate}};
    const auto      outcome = runProbe("", "<" + recording.path());
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.output.find("\n{\"ok\":true}\n"), std::string::npos);
}

TEST(ProbeProgram, RunsItsFilesInOrderAsOneSession)
{
    const Recording first{kCreate};
    const Recording second{kGet};
    EXPECT_EQ(runProbe(first.path() + " " + second.path()).status, 0);
    EXPECT_EQ(runProbe(second.path() + " " + first.path()).status, 1);
}

TEST(ProbeProgram, ALastLineWithoutLineBreakIsDoneToo)
{
    const Recording recording{R"({"op":"host"})"};
    EXPECT_EQ(runProbe(recording.path()).output, "{\"ok\":true}\n");
}

TEST(ProbeProgram, EndsWithTwoForWrongUsage)
{
    const Recording recording{kCreate};
    EXPECT_EQ(runProbe("--nonsense").status, 2);
    EXPECT_EQ(runProbe("/no/such/file").status, 2);
    EXPECT_EQ(runProbe("/").status, 2);
    const auto outcome = runProbe(recording.path() + " /no/such/file");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output.find("ok"), std::string::npos);
}

TEST(ProbeProgram, TellsItsUsageAndVersion)
{
    const auto help = runProbe("--help");
    EXPECT_EQ(help.status, 0);
    EXPECT_NE(help.output.find("Usage: quill-probe [FILE...]"), std::string::npos);
    const auto version = runProbe("--version");
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.output.rfind("quill-probe ", 0), 0U);
}
