#include "status/StatusSeverity.h"

#include "framework/documents.h"
#include "platform/failure.h"
#include "tests/support/toolkit_scope.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quill {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class StatusSeverityTest : public testing::Test {
protected:
    /// What the class answers for a definition with these attributes.
    std::string read(const std::string& attributes)
    {
        return severity.ReadClass(
            documents::openText("<status " + attributes + "/>").get_documentElement());
    }

    test::ToolkitScope toolkit;
    StatusSeverity     severity;
};

TEST_F(StatusSeverityTest, NamesTheImagesOfItsScheme)
{
    EXPECT_EQ(severity.ImageOk(), "ok");
    EXPECT_EQ(severity.ImageDisabled(), "inactive");
    EXPECT_EQ(severity.ImageNotRead(), "notMonitored");
    EXPECT_EQ(severity.ImageUnknown(), "unknown");
}

TEST_F(StatusSeverityTest, TheWorseOfTwoClassesIsTheOneOfHigherRankInEitherOrder)
{
    const std::vector<std::string> ranks{"failsafe", "alarm",    "warning", "info",
                                         "ok",       "inactive", "unknown"};
    for (std::size_t worse = 0; worse < ranks.size(); ++worse) {
        for (std::size_t better = worse; better < ranks.size(); ++better) {
            EXPECT_EQ(severity.GetWorst(ranks[worse], ranks[better]), ranks[worse]);
            EXPECT_EQ(severity.GetWorst(ranks[better], ranks[worse]), ranks[worse]);
        }
    }
}

TEST_F(StatusSeverityTest, AClassThatIsNoneCountsAsTheLowest)
{
    EXPECT_EQ(severity.GetWorst("notMonitored", "notMonitored"), "unknown");
    EXPECT_EQ(severity.GetWorst("notMonitored", "inactive"), "inactive");
    EXPECT_EQ(severity.GetWorst("", ""), "unknown");
    EXPECT_EQ(severity.GetWorst("", "ok"), "ok");
    EXPECT_EQ(severity.GetWorst("deviceFailure", "info"), "info");
}

TEST_F(StatusSeverityTest, ClassesAreComparedExactly)
{
    EXPECT_EQ(severity.GetWorst("Failsafe", "ok"), "ok");
    EXPECT_EQ(severity.GetWorst("failsafe ", " alarm"), "unknown");
}

TEST_F(StatusSeverityTest, TakesNameAndClassOfADefinition)
{
    EXPECT_EQ(read(R"(name="lowSupply" class="warning")"), "warning");
    EXPECT_EQ(severity.GetClass("lowSupply"), "warning");
    EXPECT_EQ(severity.GetClass("LowSupply"), "");
    EXPECT_EQ(severity.GetClass("lowSupply "), "");
    EXPECT_EQ(severity.GetClass("other"), "");
    EXPECT_THAT(toolkit.debugLines, IsEmpty());
}

TEST_F(StatusSeverityTest, AClassIsTakenWhateverItSays)
{
    EXPECT_EQ(read(R"(name="" class="never heard of")"), "never heard of");
    EXPECT_EQ(read(R"(name="a" class="")"), "");
    EXPECT_EQ(severity.GetClass("a"), "");
}

TEST_F(StatusSeverityTest, ADefinitionThatLacksNameOrClassIsNotTaken)
{
    EXPECT_EQ(read(R"(name="a")"), "");
    EXPECT_EQ(read(R"(class="alarm")"), "");
    EXPECT_EQ(read(R"(name="a" classNAMUR="deviceFailure")"), "");
    severity.SetClass("a", "alarm");
    EXPECT_EQ(severity.GetClass("a"), "");
    EXPECT_THAT(toolkit.debugLines, IsEmpty());
}

TEST_F(StatusSeverityTest, OfTwoDefinitionsOfOneNameTheFirstCounts)
{
    EXPECT_EQ(read(R"(name="a" class="info")"), "info");
    EXPECT_EQ(read(R"(name="a" class="alarm")"), "alarm");
    EXPECT_EQ(severity.GetClass("a"), "info");
    severity.SetClass("a", "warning");
    EXPECT_EQ(severity.GetClass("a"), "warning");
}

TEST_F(StatusSeverityTest, ADefinitionWithoutANameStaysBehindTheBlankEntry)
{
    EXPECT_EQ(severity.GetClass(""), "");
    EXPECT_EQ(read(R"(name="" class="alarm")"), "alarm");
    EXPECT_EQ(severity.GetClass(""), "");
    severity.SetClass("", "info");
    EXPECT_EQ(severity.GetClass(""), "info");
}

TEST_F(StatusSeverityTest, AnUnknownConditionCannotBeGivenAClass)
{
    severity.SetClass("a", "alarm");
    EXPECT_EQ(severity.GetClass("a"), "");
}

TEST_F(StatusSeverityTest, AChangedConditionLeavesTheOthersAlone)
{
    read(R"(name="a" class="info")");
    read(R"(name="b" class="alarm")");
    severity.SetClass("a", "failsafe");
    EXPECT_EQ(severity.GetClass("a"), "failsafe");
    EXPECT_EQ(severity.GetClass("b"), "alarm");
}

TEST_F(StatusSeverityTest, NoNodeGoesToTheDebugOutputForEachAttribute)
{
    EXPECT_EQ(severity.ReadClass({}), "");
    EXPECT_THAT(
        toolkit.debugLines,
        ElementsAre(
            "StatusSeverity ReadClass error 91: Object variable or With block variable not set",
            "StatusSeverity ReadClass error 91: Object variable or With block variable not set"));
}

TEST_F(StatusSeverityTest, ANodeThatHasNoAttributesIsSurvived)
{
    const auto document = documents::openText("<a>text</a>");
    EXPECT_EQ(severity.ReadClass(document), "");
    EXPECT_EQ(severity.ReadClass(document.get_documentElement().get_firstChild()), "");
    EXPECT_THAT(toolkit.debugLines, SizeIs(4));
}

TEST_F(StatusSeverityTest, AToolkitThatRefusesDebugOutputIsSurvived)
{
    toolkit.beforeOperation = [](const char*) { throw platform::failure(platform::kInvalidCall); };
    EXPECT_EQ(severity.ReadClass({}), "");
}

} // namespace
} // namespace quill
