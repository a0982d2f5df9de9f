#include "status/StatusNAMUR.h"

#include "framework/documents.h"
#include "tests/support/toolkit_scope.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quill {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class StatusNAMURTest : public testing::Test {
protected:
    /// What the class answers for a definition with these attributes.
    std::string read(const std::string& attributes)
    {
        return namur.ReadClass(
            documents::openText("<status " + attributes + "/>").get_documentElement());
    }

    test::ToolkitScope toolkit;
    StatusNAMUR        namur;
};

TEST_F(StatusNAMURTest, OneImageStandsForAllInWhichNothingIsKnown)
{
    EXPECT_EQ(namur.ImageOk(), "deviceOk");
    EXPECT_EQ(namur.ImageDisabled(), "deviceDiagnosisPassiv");
    EXPECT_EQ(namur.ImageNotRead(), "deviceDiagnosisPassiv");
    EXPECT_EQ(namur.ImageUnknown(), "deviceDiagnosisPassiv");
}

TEST_F(StatusNAMURTest, TheWorseOfTwoClassesIsTheOneOfHigherRankInEitherOrder)
{
    const std::vector<std::string> ranks{
        "deviceFailure", "deviceUnderTest", "deviceOffSpecification", "deviceMaintenanceRequired",
        "deviceInfo",    "deviceOk",        "deviceDiagnosisPassiv"};
    for (std::size_t worse = 0; worse < ranks.size(); ++worse) {
        for (std::size_t better = worse; better < ranks.size(); ++better) {
            EXPECT_EQ(namur.GetWorst(ranks[worse], ranks[better]), ranks[worse]);
            EXPECT_EQ(namur.GetWorst(ranks[better], ranks[worse]), ranks[worse]);
        }
    }
}

TEST_F(StatusNAMURTest, AClassThatIsNoneCountsAsTheLowest)
{
    EXPECT_EQ(namur.GetWorst("", ""), "deviceDiagnosisPassiv");
    EXPECT_EQ(namur.GetWorst("failsafe", "alarm"), "deviceDiagnosisPassiv");
    EXPECT_EQ(namur.GetWorst("devicefailure", "deviceOk"), "deviceOk");
}

TEST_F(StatusNAMURTest, TakesNameAndClassOfADefinition)
{
    EXPECT_EQ(read(R"(name="a" class="alarm" classNAMUR="deviceInfo")"), "deviceInfo");
    EXPECT_EQ(namur.GetClass("a"), "deviceInfo");
    EXPECT_EQ(namur.GetClass("A"), "");
}

TEST_F(StatusNAMURTest, ADefinitionWithoutANameIsNotTaken)
{
    EXPECT_EQ(read(R"(classNAMUR="deviceInfo")"), "");
    EXPECT_EQ(namur.GetClass(""), "");
    EXPECT_THAT(toolkit.debugLines, IsEmpty());
}

TEST_F(StatusNAMURTest, TheSeverityClassIsNoneHere)
{
    EXPECT_EQ(read(R"(name="a" class="alarm")"), "");
    EXPECT_EQ(namur.GetClass("a"), "");
}

TEST_F(StatusNAMURTest, WithoutAClassTheEndOfTheNameTellsIt)
{
    EXPECT_EQ(read(R"(name="pump_Maint")"), "deviceMaintenanceRequired");
    EXPECT_EQ(read(R"(name="pump_Offspec")"), "deviceOffSpecification");
    EXPECT_EQ(read(R"(name="pump_Check")"), "deviceUnderTest");
    EXPECT_EQ(read(R"(name="pump_Fail")"), "deviceFailure");
    EXPECT_EQ(read(R"(name="_Fail")"), "deviceFailure");
    EXPECT_EQ(read(R"(name="a_b_Fail")"), "deviceFailure");
}

TEST_F(StatusNAMURTest, TheEndOfTheNameIsComparedAsAWhole)
{
    EXPECT_EQ(read(R"(name="pump_fail")"), "");
    EXPECT_EQ(read(R"(name="pump_Fail_")"), "");
    EXPECT_EQ(read(R"(name="pump_Fail_2")"), "");
    EXPECT_EQ(read(R"(name="pump_Failure")"), "");
    EXPECT_EQ(read(R"(name="pump_Fail ")"), "");
    EXPECT_EQ(read(R"(name="Fail")"), "");
    EXPECT_EQ(read(R"(name="")"), "");
}

TEST_F(StatusNAMURTest, AClassOutOfTheNameIsNotKept)
{
    read(R"(name="pump_Fail")");
    EXPECT_EQ(namur.GetClass("pump_Fail"), "");
}

TEST_F(StatusNAMURTest, AnEmptyClassIsAClass)
{
    EXPECT_EQ(read(R"(name="pump_Fail" classNAMUR="")"), "");
    EXPECT_EQ(read(R"(name="pump_Fail" classNAMUR="deviceInfo")"), "deviceInfo");
    EXPECT_EQ(namur.GetClass("pump_Fail"), "");
}

TEST_F(StatusNAMURTest, OfTwoDefinitionsOfOneNameTheFirstCounts)
{
    read(R"(name="a" classNAMUR="deviceInfo")");
    EXPECT_EQ(read(R"(name="a" classNAMUR="deviceFailure")"), "deviceFailure");
    EXPECT_EQ(namur.GetClass("a"), "deviceInfo");
    namur.SetClass("a", "deviceOk");
    EXPECT_EQ(namur.GetClass("a"), "deviceOk");
}

TEST_F(StatusNAMURTest, AnUnknownConditionIsAddedWithTheClassThatItIsGiven)
{
    namur.SetClass("a", "deviceFailure");
    EXPECT_EQ(namur.GetClass("a"), "deviceFailure");
    namur.SetClass("a", "deviceOk");
    EXPECT_EQ(namur.GetClass("a"), "deviceOk");
    EXPECT_EQ(namur.GetClass(""), "");
}

TEST_F(StatusNAMURTest, TheEmptyNameIsTheBlankEntry)
{
    namur.SetClass("", "deviceInfo");
    EXPECT_EQ(namur.GetClass(""), "deviceInfo");
    EXPECT_EQ(namur.GetClass("a"), "");
}

TEST_F(StatusNAMURTest, NoNodeGoesToTheDebugOutputForEachAttribute)
{
    EXPECT_EQ(namur.ReadClass({}), "");
    EXPECT_THAT(
        toolkit.debugLines,
        ElementsAre(
            "StatusNAMUR ReadClass error 91: Object variable or With block variable not set",
            "StatusNAMUR ReadClass error 91: Object variable or With block variable not set"));
}

TEST_F(StatusNAMURTest, ANodeThatHasNoAttributesIsSurvived)
{
    EXPECT_EQ(namur.ReadClass(documents::openText("<a/>")), "");
    EXPECT_THAT(toolkit.debugLines, SizeIs(2));
}

TEST_F(StatusNAMURTest, TwoThousandConditionsAreAllFound)
{
    constexpr int kCount = 2000;
    for (int i = 0; i < kCount; ++i) {
        namur.SetClass("status" + std::to_string(i), std::to_string(i));
    }
    for (int i = 0; i < kCount; ++i) {
        ASSERT_EQ(namur.GetClass("status" + std::to_string(i)), std::to_string(i));
    }
}

} // namespace
} // namespace quill
