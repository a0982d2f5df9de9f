#include "shell/host_documents.h"

#include "platform/failure.h"
#include "shell/install_folder.h"
#include "temporary_folder.h"

#include <gtest/gtest.h>

namespace quill::shell {
namespace {

TEST(HostDocuments, BeginWithTheOneThatComesWithTheProgram)
{
    const HostDocuments documents;
    EXPECT_EQ(documents.get("FDT"), defaultFdtDocument());
    EXPECT_EQ(documents.get("other"), "");
}

TEST(HostDocuments, LastAsLongAsTheyDoWithoutAFolder)
{
    HostDocuments documents;
    documents.set("FDT", "<a/>");
    EXPECT_EQ(documents.get("FDT"), "<a/>");
    EXPECT_EQ(HostDocuments{}.get("FDT"), defaultFdtDocument());
}

TEST(HostDocuments, AreThereAgainInTheirFolder)
{
    const TemporaryFolder folder;
    HostDocuments         documents;
    documents.setFolder(folder.path("new") + "/");
    documents.set("FDT", "<a/>");
    HostDocuments later;
    later.setFolder(folder.path("new") + "/");
    EXPECT_EQ(later.get("FDT"), "<a/>");
}

TEST(HostDocuments, ADamagedOneGivesWayToTheFirst)
{
    TemporaryFolder folder;
    HostDocuments   documents;
    documents.setFolder(folder.path("") + "/");
    folder.write("FDT.xml", "<a>");
    EXPECT_EQ(documents.get("FDT"), defaultFdtDocument());
}

TEST(HostDocuments, ANameLeadsNowhereElse)
{
    const TemporaryFolder folder;
    HostDocuments         documents;
    documents.setFolder(folder.path("") + "/");
    for (const char* name : {"", "../FDT", "a/b", "a.b"}) {
        EXPECT_THROW(documents.set(name, "<a/>"), platform::Failure) << name;
        EXPECT_EQ(documents.get(name), "") << name;
    }
}

} // namespace
} // namespace quill::shell
