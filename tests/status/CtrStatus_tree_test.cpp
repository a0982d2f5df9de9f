#include "tests/status/status_tree_fixture.h"

#include "support/some_and_each.h"

// How `CtrStatus` builds its tree out of the device's definition.
namespace quill::test {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

class CtrStatusTree : public StatusViewTest<CtrStatus> {
protected:
    const std::string both = severity("alarm") + namur("deviceFailure");

    void attach(const std::string& branches)
    {
        messenger.deviceTypeInfo = definition(branches);
        view.SetMessenger(&messenger);
    }
    /// Log lines and what the host is told, in order.
    [[nodiscard]] std::vector<std::string> decisions() const
    {
        std::vector<std::string> found;
        for (const auto& call : messenger.calls) {
            if (call.starts_with("WriteLog") || call.starts_with("SetFixed")) {
                found.push_back(call);
            }
        }
        return found;
    }
};

TEST_F(CtrStatusTree, BranchesAndConditionsBecomeRowsOfATree)
{
    attach(branch("sensors", condition("s1", both) + condition("s2", both)) +
           branch("valve", condition("v1", both)));
    EXPECT_THAT(textsOf(view.scgStatus), ElementsAre("sensors", "s1", "s2", "valve", "v1"));
    EXPECT_THAT(textsOf(view.scgStatusKey), ElementsAre("sensors", "s1", "s2", "valve", "v1"));
    EXPECT_EQ(view.scgStatus.RowParent(1), 0);
    EXPECT_EQ(view.scgStatus.RowParent(3), 1);
    EXPECT_EQ(view.scgStatus.RowParent(5), 4);
    EXPECT_TRUE(view.scgStatus.RowHasChildren(4));
    EXPECT_FALSE(view.scgStatus.RowHasChildren(5));
    EXPECT_EQ(view.scgStatusKey.RowParent(5), 4);
    EXPECT_EQ(view.lastRow(), 4);
}

TEST_F(CtrStatusTree, TheGridHasOneWideColumnAndNoHeaderAndItsTwinIsNotSeen)
{
    attach(branch("b", condition("s", both)));
    EXPECT_FALSE(view.scgStatus.HeaderVisible);
    EXPECT_FALSE(view.scgStatus.Editable);
    ASSERT_EQ(view.scgStatus.ColCount(), 1);
    EXPECT_EQ(view.scgStatus.column(1).Width, 600);
    EXPECT_EQ(view.scgStatus.imageList(), &view.imlStatusIcons);
    EXPECT_EQ(view.scgStatusKey.ColCount(), 1);
    EXPECT_FALSE(view.scgStatusKey.Visible);
}

TEST_F(CtrStatusTree, TheImageListHasAKeyForEachClassOfBothClassifications)
{
    EXPECT_THAT(view.imlStatusIcons.Keys(),
                ElementsAre("deviceUnderTest", "deviceInfo", "deviceDiagnosisPassiv",
                            "deviceFailure", "deviceMaintenanceRequired", "deviceOffSpecification",
                            "deviceOk", "notMonitored", "unknown", "ok", "warning", "alarm",
                            "failsafe", "info", "inactive"));
}

TEST_F(CtrStatusTree, RowsComeUpAsNotRead)
{
    attach(branch("b", condition("s", both)));
    EXPECT_THAT(icons(), Each("notMonitored"));
    EXPECT_THAT(view.images(), ElementsAre("notMonitored", "notMonitored"));
    EXPECT_THAT(view.enabled(), ElementsAre(1, 1));
}

TEST_F(CtrStatusTree, RowsComeUpAsNotReadUnderNAMURToo)
{
    messenger.classification = kClassNAMUR;
    attach(branch("b", condition("s", both)));
    EXPECT_THAT(icons(), Each("deviceDiagnosisPassiv"));
}

TEST_F(CtrStatusTree, AnyOtherClassificationThanSeverityIsNAMUR)
{
    messenger.classification = 7;
    attach(branch("b", condition("s", both)));
    EXPECT_THAT(icons(), Each("deviceDiagnosisPassiv"));
    EXPECT_EQ(view.classification(), 7);
}

TEST_F(CtrStatusTree, TheHostIsAskedInOrder)
{
    messenger.configurationChanged = true;
    attach(branch("b", condition("s", both)));
    EXPECT_THAT(messenger.calls, ElementsAre("GetDeviceTypeInfo()",
                                             "WriteLog(68, CtrStatus entering LoadStatusTree)",
                                             "GetStatusClassification()",
                                             "WriteLog(68, CtrStatus leaving LoadStatusTree)",
                                             "HasConfigurationChangedSign()"));
}

// --- Which classification ---------------------------------------------------------------------

TEST_F(CtrStatusTree, ADefinitionWithBothClassesLeavesTheChoiceToTheUser)
{
    attach(branch("b", condition("s", both)));
    EXPECT_FALSE(view.isClassificationFixed());
    EXPECT_FALSE(messenger.wasCalled("SetFixedStatusClassification"));
}

TEST_F(CtrStatusTree, ADefinitionWithSeverityClassesOnlyIsFixedToSeverity)
{
    attach(branch("b", condition("s", severity("alarm"))));
    EXPECT_TRUE(view.isClassificationFixed());
    EXPECT_THAT(decisions(), ElementsAre("WriteLog(68, CtrStatus entering LoadStatusTree)",
                                         "WriteLog(68, LoadStatusTree using fixed classificaiton)",
                                         "SetFixedStatusClassification(0)",
                                         "WriteLog(68, CtrStatus leaving LoadStatusTree)"));
}

TEST_F(CtrStatusTree, SeverityClassesOnlyOverruleAUserWhoChoseNAMUR)
{
    messenger.classification = kClassNAMUR;
    attach(branch("b", condition("s", severity("alarm"))));
    EXPECT_THAT(decisions(), ElementsAre("WriteLog(68, CtrStatus entering LoadStatusTree)",
                                         "WriteLog(68, LoadStatusTree using fixed classificaiton)",
                                         "SetFixedStatusClassification(0)",
                                         "WriteLog(68, LoadStatusTree exceptionally using Severity "
                                         "classification)",
                                         "WriteLog(68, CtrStatus leaving LoadStatusTree)"));
    EXPECT_EQ(view.classification(), kClassSeverity);
    EXPECT_THAT(icons(), Each("notMonitored"));
    online(statusItem("s", "1"));
    EXPECT_THAT(icons(), ElementsAre("alarm", "alarm"));
}

TEST_F(CtrStatusTree, ADefinitionWithNAMURClassesOnlyIsFixedToNAMUR)
{
    attach(branch("b", condition("s", namur("deviceFailure"))));
    EXPECT_THAT(decisions(),
                ElementsAre("WriteLog(68, CtrStatus entering LoadStatusTree)",
                            "WriteLog(68, LoadStatusTree using fixed classificaiton)",
                            "SetFixedStatusClassification(1)",
                            "WriteLog(68, LoadStatusTree exceptionally using NAMUR classification)",
                            "WriteLog(68, CtrStatus leaving LoadStatusTree)"));
    EXPECT_EQ(view.classification(), kClassNAMUR);
    online(statusItem("s", "1"));
    EXPECT_THAT(icons(), ElementsAre("deviceFailure", "deviceFailure"));
}

TEST_F(CtrStatusTree, NAMURClassesOnlyAreNoExceptionForAUserWhoChoseThem)
{
    messenger.classification = kClassNAMUR;
    attach(branch("b", condition("s", namur("deviceFailure"))));
    EXPECT_THAT(decisions(), Not(Contains(HasSubstr("exceptionally"))));
    EXPECT_THAT(messenger.callsTo("SetFixedStatusClassification"),
                ElementsAre("SetFixedStatusClassification(1)"));
}

TEST_F(CtrStatusTree, ADefinitionWithoutClassesEndsWithNAMUR)
{
    attach(branch("b", condition("s")));
    EXPECT_THAT(decisions(),
                ElementsAre("WriteLog(68, CtrStatus entering LoadStatusTree)",
                            "WriteLog(68, LoadStatusTree using fixed classificaiton)",
                            "SetFixedStatusClassification(0)",
                            "WriteLog(68, LoadStatusTree using fixed classificaiton)",
                            "SetFixedStatusClassification(1)",
                            "WriteLog(68, LoadStatusTree exceptionally using NAMUR classification)",
                            "WriteLog(68, CtrStatus leaving LoadStatusTree)"));
    EXPECT_THAT(icons(), Each("deviceDiagnosisPassiv"));
}

TEST_F(CtrStatusTree, ADefinitionWithoutClassesComesByBothExceptionsForAUserOfNAMUR)
{
    messenger.classification = kClassNAMUR;
    attach(branch("b", condition("s")));
    EXPECT_THAT(decisions(),
                AllOf(Contains("WriteLog(68, LoadStatusTree exceptionally using Severity "
                               "classification)"),
                      Contains("WriteLog(68, LoadStatusTree exceptionally using NAMUR "
                               "classification)")));
    EXPECT_EQ(view.classification(), kClassNAMUR);
}

TEST_F(CtrStatusTree, AFixedClassificationStaysForTheLifeOfTheView)
{
    attach(branch("b", condition("s", severity("alarm"))));
    view.UpdateStatusTree(definition(branch("b", condition("s", both))), translator);
    messenger.classification = kClassNAMUR;
    online(statusItem("s", "1"));
    EXPECT_TRUE(view.isClassificationFixed());
    EXPECT_THAT(icons(), ElementsAre("alarm", "alarm"));
}

TEST_F(CtrStatusTree, AFixedClassificationIsNotAskedForAgain)
{
    attach(branch("b", condition("s", severity("alarm"))));
    messenger.clear();
    view.Localize(translator);
    online(statusItem("s", "1"));
    EXPECT_FALSE(messenger.wasCalled("GetStatusClassification"));
}

TEST_F(CtrStatusTree, AnotherChoiceOfTheUserNeedsNoOtherTree)
{
    load(branch("b", condition("s", both)));
    messenger.classification = kClassNAMUR;
    online(statusItem("s", "1"));
    EXPECT_THAT(icons(), ElementsAre("deviceFailure", "deviceFailure"));
    messenger.classification = kClassSeverity;
    online(statusItem("s", "1"));
    EXPECT_THAT(icons(), ElementsAre("alarm", "alarm"));
    EXPECT_FALSE(messenger.wasCalled("GetDeviceTypeInfo"));
}

TEST_F(CtrStatusTree, AnUnknownChoiceLeavesTheClassificationInForce)
{
    load(branch("b", condition("s", both)));
    messenger.classification = 5;
    online(statusItem("s", "1"));
    EXPECT_THAT(icons(), ElementsAre("alarm", "alarm"));
}

// --- Odd definitions --------------------------------------------------------------------------

TEST_F(CtrStatusTree, CommentsBetweenBranchesDoNotCount)
{
    attach("<!-- a -->" + branch("b", condition("s", both)) + "<!-- b -->" +
           branch("c", condition("t", both)));
    EXPECT_THAT(textsOf(view.scgStatus), ElementsAre("b", "s", "c", "t"));
    EXPECT_EQ(view.lastRow(), 3);
}

TEST_F(CtrStatusTree, ACommentInTheLastBranchIsTakenOffOnce)
{
    attach(branch("b", condition("s", both) + "<!-- x -->" + condition("t", both)));
    EXPECT_THAT(textsOf(view.scgStatus), ElementsAre("b", "s", "t"));
    EXPECT_EQ(view.lastRow(), 2);
    EXPECT_THAT(view.images(), SizeIs(3));
}

TEST_F(CtrStatusTree, TextAmongTheConditionsIsSkippedLikeAComment)
{
    attach(branch("b", condition("s", both) + "text" + condition("t", both)));
    EXPECT_THAT(textsOf(view.scgStatus), ElementsAre("b", "s", "t"));
    EXPECT_EQ(view.lastRow(), 2);
}

TEST_F(CtrStatusTree, WhatWasSkippedIsTakenOffAgainByEachBranch)
{
    // One comment in the first of four branches. Rows 0-1, 2-3, 4-5, 6-7. The first branch counts
    // one too much: last 2. Second: base 1, last 3. Third: base 2, last 4. Fourth: base 3, last 5.
    // At the end one is taken off: 4.
    attach(branch("a", "<!-- x -->" + condition("a1", both + maskAt(0, 0))) +
           branch("b", condition("b1", both + maskAt(0, 1))) +
           branch("c", condition("c1", both + maskAt(0, 2))) +
           branch("d", condition("d1", both + maskAt(0, 3))));
    EXPECT_EQ(view.scgStatus.RowCount(), 8);
    EXPECT_EQ(view.lastRow(), 4);
    EXPECT_THAT(view.images(), SizeIs(5));
    // The rows behind the last one are never looked at.
    online(statusItem("a1", "1") + statusItem("c1", "1") + statusItem("d1", "1"));
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "alarm");
    EXPECT_EQ(view.scgStatus.CellIcon(6, 1), "notMonitored");
    EXPECT_EQ(view.scgStatus.CellIcon(8, 1), "notMonitored");
}

TEST_F(CtrStatusTree, ABranchThatBeginsTooEarlyTakesTheMaskOfTheRowBeforeIt)
{
    // Third branch: base 2, so that row 3, the condition of the second branch, starts anew.
    attach(branch("a", "<!-- x -->" + condition("a1", both + maskAt(0, 0))) +
           branch("b", condition("b1", both + maskAt(0, 1))) +
           branch("c", condition("c1", both + maskAt(0, 2))));
    ASSERT_EQ(view.lastRow(), 3);
    view.SetOfflineData(datafile(maskParameter("statusMaskOnOff", "00")));
    EXPECT_THAT(view.enabled(), ElementsAre(1, 0, 1, 1));
}

TEST_F(CtrStatusTree, ARowBehindItsTablesIsWrittenDownAndLeftOut)
{
    // Two comments: the third branch ends at 3, its condition is row 5.
    attach(branch("a", "<!-- x --><!-- y -->" + condition("a1", both)) +
           branch("b", condition("b1", both)) + branch("c", condition("c1", both + maskAt(0, 2))));
    EXPECT_EQ(view.scgStatus.RowCount(), 6);
    EXPECT_EQ(view.lastRow(), 1);
    EXPECT_THAT(toolkit.debugLines,
                SomeAndEach("CtrStatus LoadStatusTree 9: Subscript out of range"));
    EXPECT_THAT(toolkit.debugLines, SizeIs(2)); // byte and bit
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(CtrStatusTree, ArithmeticBelowZeroChangesNothing)
{
    std::string comments;
    for (int i = 0; i < 10; ++i) {
        comments += "<!-- x -->";
    }
    attach(branch("a", comments) + branch("b", "") + branch("c", ""));
    EXPECT_LT(view.lastRow(), -1);
    EXPECT_THAT(textsOf(view.scgStatus), ElementsAre("a", "b", "c"));
    EXPECT_THAT(toolkit.debugLines, SomeAndEach(StartsWith("CtrStatus LoadStatusTree 9: ")));
    online(statusItem("a", "1")); // no row is walked
    EXPECT_EQ(view.CombinedStatus(), "deviceDiagnosisPassiv");
}

TEST_F(CtrStatusTree, AConditionWithoutANameComesWithAnEmptyKey)
{
    attach(branch("b", "<status " + both + "/>" + condition("t", both)));
    EXPECT_THAT(textsOf(view.scgStatusKey), ElementsAre("b", "", "t"));
    EXPECT_THAT(toolkit.debugLines, SomeAndEach(StartsWith("CtrStatus LoadStatusTree 91: ")));
    EXPECT_THAT(toolkit.debugLines, SizeIs(1));
}

TEST_F(CtrStatusTree, TextBetweenBranchesBecomesARowWithoutAName)
{
    attach(branch("b", condition("s", both)) + "text");
    EXPECT_THAT(textsOf(view.scgStatus), ElementsAre("b", "s", ""));
}

TEST_F(CtrStatusTree, OnlyNumbersArePlacesInAMask)
{
    attach(branch("b", condition("s", both + "maskByte=\"one\" maskBit=\"0\"") +
                           condition("t", both + "maskByte=\"0\"") +
                           condition("u", both + "maskByte=\"0\" maskBit=\"70000\"") +
                           condition("v", both + "maskByte=\"0\" maskBit=\"0\"")));
    EXPECT_THAT(toolkit.debugLines, ElementsAre("CtrStatus LoadStatusTree 6: Overflow"));
    view.SetOfflineData(datafile(maskParameter("statusMaskOnOff", "00")));
    EXPECT_THAT(view.enabled(), ElementsAre(1, 1, 1, 1, 0));
}

TEST_F(CtrStatusTree, AHostWithoutADefinitionGetsAnEmptyTree)
{
    view.SetMessenger(&messenger);
    EXPECT_EQ(view.scgStatus.RowCount(), 0);
    EXPECT_EQ(view.lastRow(), -1);
    EXPECT_THAT(messenger.errors(), IsEmpty());
    EXPECT_THAT(toolkit.debugLines, SomeAndEach(StartsWith("CtrStatus LoadStatusTree 91: ")));
    online(statusItem("s", "1"));
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(CtrStatusTree, ADocumentWithoutAStatusTreeGivesAnEmptyTree)
{
    messenger.deviceTypeInfo = documents::openText("<device/>");
    view.SetMessenger(&messenger);
    EXPECT_EQ(view.scgStatus.RowCount(), 0);
    EXPECT_TRUE(view.isClassificationFixed());
}

TEST_F(CtrStatusTree, AHostThatFailsIsReportedAndTheRestIsDone)
{
    messenger.configurationChanged = true;
    messenger.failOn("GetDeviceTypeInfo", 75);
    messenger.failOn("GetStatusClassification", 76);
    view.SetMessenger(&messenger);
    EXPECT_THAT(messenger.errors(),
                ElementsAre("ReportError(CtrStatus IQornComponent_SetMessenger: , 75, Path/File "
                            "access error)"));
    EXPECT_THAT(toolkit.debugLines, Contains("CtrStatus LoadStatusTree 76: Path not found"));
    EXPECT_TRUE(messenger.wasCalled("HasConfigurationChangedSign"));
}

TEST_F(CtrStatusTree, ALogThatFailsDoesNotStopTheTree)
{
    messenger.failOn("WriteLog");
    attach(branch("b", condition("s", both)));
    EXPECT_EQ(view.scgStatus.RowCount(), 2);
    EXPECT_THAT(toolkit.debugLines,
                SomeAndEach(StartsWith("CtrStatus LoadStatusTree 5: Invalid procedure call")));
    EXPECT_THAT(toolkit.debugLines, SizeIs(2));
}

TEST_F(CtrStatusTree, AnotherDefinitionReplacesTheTree)
{
    load(branch("b", condition("s", both)) + branch("c", condition("t", both)));
    translator.prefix = "de:";
    view.UpdateStatusTree(definition(branch("n", condition("m", both))), translator);
    EXPECT_THAT(textsOf(view.scgStatus), ElementsAre("de:n", "de:m"));
    EXPECT_THAT(textsOf(view.scgStatusKey), ElementsAre("n", "m"));
    EXPECT_EQ(view.lastRow(), 1);
    EXPECT_EQ(view.scgStatus.ColCount(), 1);
    online(statusItem("m", "1"));
    EXPECT_THAT(icons(), ElementsAre("alarm", "alarm"));
    // Conditions that only the old definition has are gone.
    EXPECT_EQ(view.images().at(1), "alarm");
}

TEST_F(CtrStatusTree, AnotherDefinitionReadsTheClassificationOnceMoreForTheTexts)
{
    load(branch("b", condition("s", both)));
    view.UpdateStatusTree(definition(branch("n", condition("m", both))), translator);
    EXPECT_THAT(messenger.calls, ElementsAre("WriteLog(68, CtrStatus entering LoadStatusTree)",
                                             "GetStatusClassification()",
                                             "WriteLog(68, CtrStatus leaving LoadStatusTree)",
                                             "GetStatusClassification()"));
}

} // namespace
} // namespace quill::test
