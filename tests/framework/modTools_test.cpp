#include "framework/modTools.h"

#include "platform/failure.h"
#include "support/test_documents.h"
#include "support/toolkit_scope.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include <unistd.h>

namespace quill {
namespace {

namespace fs = std::filesystem;
using test::ToolkitScope;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(ModTools, ANumberOfADocumentIsReadInEveryLocale)
{
    for (const char* separator : {".", ","}) {
        const ToolkitScope toolkit{separator};
        EXPECT_DOUBLE_EQ(modTools::ParseNumber("4.5"), 4.5);
        EXPECT_DOUBLE_EQ(modTools::ParseNumber("-1.5E-07"), -1.5e-7);
        for (const char* text : {"", "NaN", "4.5.6", "x"}) {
            try {
                (void)modTools::ParseNumber(text);
                ADD_FAILURE() << text << " is no number";
            } catch (const platform::Failure& failure) {
                EXPECT_EQ(failure.number(), platform::kTypeMismatch);
            }
        }
    }
}

TEST(ModTools, ANumberOfTheScreenIsReadToo)
{
    const ToolkitScope toolkit{","};
    EXPECT_DOUBLE_EQ(modTools::ParseNumber("4,5"), 4.5);
}

TEST(ModTools, ANumberIsWrittenWithAPointInEveryLocale)
{
    for (const char* separator : {".", ","}) {
        const ToolkitScope toolkit{separator};
        EXPECT_EQ(modTools::FormatNumber(4.5), "4.5");
        EXPECT_EQ(modTools::FormatNumber(-0.25), "-0.25");
        EXPECT_EQ(modTools::FormatNumber(3), "3");
        EXPECT_EQ(modTools::FormatNumber(1.5e20), "1.5E+20");
    }
}

/// A fresh folder as long as the test runs.
class MakePath : public testing::Test {
protected:
    MakePath()
    {
        std::string name = (fs::temp_directory_path() / "quill-makepath-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) {
            throw std::runtime_error("no temporary folder");
        }
        mRoot = name;
    }
    ~MakePath() override
    {
        std::error_code ignored;
        fs::remove_all(mRoot, ignored);
    }
    fs::path mRoot;
};

TEST_F(MakePath, CreatesMissingParentsWithEitherSeparator)
{
    for (const char* path : {"/a/b/c", "/d/e/f/", "\\g\\h\\i", "\\j\\k\\", "/l\\m/n", "//o//p"}) {
        modTools::MakePath(mRoot.string() + path);
    }
    for (const char* folder : {"a/b/c", "d/e/f", "g/h/i", "j/k", "l/m/n", "o/p"}) {
        EXPECT_TRUE(fs::is_directory(mRoot / folder)) << folder;
    }
}

TEST_F(MakePath, LeavesAFolderThatIsThereAlone)
{
    fs::create_directory(mRoot / "a");
    std::ofstream{mRoot / "a" / "kept.txt"} << "text";
    modTools::MakePath((mRoot / "a").string());
    modTools::MakePath((mRoot / "a").string() + "\\");
    EXPECT_TRUE(fs::exists(mRoot / "a" / "kept.txt"));
}

TEST_F(MakePath, WorksFromTheCurrentFolder)
{
    const fs::path before = fs::current_path();
    fs::current_path(mRoot);
    modTools::MakePath("x\\y");
    modTools::MakePath("z");
    fs::current_path(before);
    EXPECT_TRUE(fs::is_directory(mRoot / "x" / "y"));
    EXPECT_TRUE(fs::is_directory(mRoot / "z"));
}

TEST_F(MakePath, DropsFailures)
{
    std::ofstream{mRoot / "file"} << "text";
    modTools::MakePath((mRoot / "file" / "below").string());
    EXPECT_TRUE(fs::is_regular_file(mRoot / "file"));
    for (const std::string& path : {std::string{}, std::string{"/"}, std::string{"\\"},
                                    std::string{"//"}, std::string{"\\\\\\"}}) {
        EXPECT_NO_THROW(modTools::MakePath(path)) << path;
    }
    std::string tooLong = mRoot.string();
    for (int i = 0; i < 100; ++i) {
        tooLong += "\\" + std::string(300, 'x');
    }
    EXPECT_NO_THROW(modTools::MakePath(tooLong));
}

TEST(ModTools, TheHomeGroupOfAParameterIsThatOfItsRealListing)
{
    const ToolkitScope toolkit;
    const auto         datafile =
        test::datafile("", "",
                       R"(<data:requestGroup name="one"><data:includedParam name="p" clone="1"/>
                           <data:includedParam name="nameless" clone="1"/></data:requestGroup>
                           <data:requestGroup name="two"><data:includedParam name="p"/>
                           </data:requestGroup>)");
    EXPECT_EQ(modTools::GetHomeRequestGroup(datafile, "p"), "two");
    EXPECT_EQ(modTools::GetHomeRequestGroup(datafile, "missing"), "");
    EXPECT_THAT(toolkit.debugLines, IsEmpty());
}

TEST(ModTools, AFailedSearchForTheHomeGroupIsSilentAndEmpty)
{
    const ToolkitScope toolkit;
    const auto         datafile = test::datafile(
                "", "", R"(<data:requestGroup><data:includedParam name="p"/></data:requestGroup>)");
    EXPECT_EQ(modTools::GetHomeRequestGroup(datafile, "p"), "");
    EXPECT_EQ(modTools::GetHomeRequestGroup({}, "p"), "");
    EXPECT_EQ(modTools::GetHomeRequestGroup(datafile, "a\"b"), "");
    EXPECT_THAT(toolkit.debugLines, IsEmpty());
}

TEST(ModTools, OnlyATextThatBeginsWithErrIsAnErrorText)
{
    EXPECT_FALSE(modTools::IsNotErrorText("Err:"));
    EXPECT_FALSE(modTools::IsNotErrorText("Err:missing key"));
    for (const char* text : {"", "Err", "err:", "ERR:", " Err:", "x Err:", "Error"}) {
        EXPECT_TRUE(modTools::IsNotErrorText(text)) << text;
    }
}

TEST(ModTools, ADatafileDateIsReorderedByItsPositions)
{
    const ToolkitScope toolkit;
    struct Case {
        const char* text;
        const char* standard;
    };
    for (const Case& c :
         {Case{"05.04.2019 07:08:09", "2019-04-05 07:08:09"},
          Case{"05/04/2019T07:08:09", "2019-04-05 07:08:09"},
          Case{"05\xC3\xA4"
               "04\xC3\xA4"
               "2019 07:08:09",
               "2019-04-05 07:08:09"},
          Case{"ab.cd.efgh ijklmnop", "efgh-cd-ab ijklmnop"}, Case{"5.4.2019", "19-.2-5. 5.4.2019"},
          Case{"12", "--12 12"}, Case{"", "-- "}}) {
        EXPECT_EQ(modTools::StandardizeDatafileDate(c.text), c.standard);
    }
    EXPECT_THAT(toolkit.debugLines, IsEmpty());
}

TEST(ModTools, ADatafileDateIsShownInTheLocale)
{
    ToolkitScope toolkit;
    EXPECT_EQ(modTools::LocalizeDatafileDate("05.04.2019 07:08:09"), "2019-04-05 07:08:09");
    toolkit.localeSettings = {",", "d.M.yyyy", "H.mm.ss"};
    EXPECT_EQ(modTools::LocalizeDatafileDate("05.04.2019 07:08:09"), "5.4.2019 7.08.09");
    EXPECT_EQ(modTools::LocalizeDatafileDate("05.04.2019 00:00:00"), "5.4.2019 0.00.00");
    EXPECT_THAT(toolkit.debugLines, IsEmpty());
}

TEST(ModTools, ATextThatIsNoDateLocalizesToNothingAndIsReported)
{
    for (const char* text : {"", "00.00.0000 00:00:00", "2019-04-05 07:08:09", "never"}) {
        const ToolkitScope toolkit;
        EXPECT_EQ(modTools::LocalizeDatafileDate(text), "");
        EXPECT_THAT(toolkit.debugLines,
                    ElementsAre("Quill GUI modTools LocalizeDatafileDate error 13: Type mismatch"))
            << text;
    }
}

TEST(ModTools, TheControlsPrefixIsTakenOffOnce)
{
    EXPECT_EQ(modTools::RemoveCtrPrefix("ctr_travel"), "travel");
    EXPECT_EQ(modTools::RemoveCtrPrefix("ctr_"), "");
    EXPECT_EQ(modTools::RemoveCtrPrefix("ctr_ctr_x"), "ctr_x");
    for (const char* text : {"", "ctr", "travel", "Ctr_x", "x_ctr_y", " ctr_x"}) {
        EXPECT_EQ(modTools::RemoveCtrPrefix(text), text);
    }
}

TEST(ModTools, ADebugErrorIsOneLine)
{
    const ToolkitScope toolkit;
    modTools::WriteDebugError("Quill GUI", "Somewhere", -5, "no luck");
    EXPECT_THAT(toolkit.debugLines, ElementsAre("Quill GUI Somewhere error -5: no luck"));
}

} // namespace
} // namespace quill
