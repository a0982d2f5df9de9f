#include "tests/status/status_tree_fixture.h"

#include "support/some_and_each.h"

// How the status masks of the datafile and of the device work on `CtrStatus`.
namespace quill::test {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

class CtrStatusMasks : public StatusViewTest<CtrStatus> {
protected:
    /// One branch with a condition "s0", "s1", ... at each of these places.
    void loadAt(const std::vector<std::pair<int, int>>& places)
    {
        std::string conditions;
        int         number = 0;
        for (const auto& [byte, bit] : places) {
            conditions += condition("s" + std::to_string(number++),
                                    severity("failsafe") + namur("deviceInfo") + maskAt(byte, bit));
        }
        load(branch("g", conditions));
    }
    void offline(const std::string& parameters) { view.SetOfflineData(datafile(parameters)); }
    void receive(const std::string& name, const std::string& value)
    {
        messenger.ViewReceiveValue.raise(name, value);
    }
    /// What an active condition shows.
    std::string classOf(int number)
    {
        online(statusItem("s" + std::to_string(number), "1"));
        return view.images().at(static_cast<std::size_t>(number) + 1);
    }
    /// The flags of the conditions, without the branch.
    [[nodiscard]] std::vector<int> flags() const
    {
        return {view.enabled().begin() + 1, view.enabled().end()};
    }
};

// --- On and off -------------------------------------------------------------------------------

TEST_F(CtrStatusMasks, AnOnOffMaskSwitchesConditionsOnAndOff)
{
    loadAt({{0, 0}, {0, 7}, {1, 0}, {1, 1}});
    offline(maskParameter("statusMaskOnOff", "8002"));
    EXPECT_THAT(flags(), ElementsAre(0, 1, 0, 1));
    EXPECT_THAT(view.masks(), ElementsAre("8002", ""));
    EXPECT_THAT(messenger.errors(), IsEmpty());
    EXPECT_THAT(icons(), Each("notMonitored")) << "icons wait for the next response";
}

TEST_F(CtrStatusMasks, ABranchIsNeverSwitchedOff)
{
    loadAt({{0, 0}});
    offline(maskParameter("statusMaskOnOff", "00"));
    EXPECT_EQ(view.enabled().front(), 1);
}

TEST_F(CtrStatusMasks, AConditionWithoutAPlaceIsNeverSwitchedOff)
{
    load(branch("g", condition("a", severity("info") + "maskByte=\"0\"") +
                         condition("b", severity("info") + "maskBit=\"0\"")));
    offline(maskParameter("statusMaskOnOff", "00"));
    EXPECT_THAT(flags(), ElementsAre(1, 1));
}

TEST_F(CtrStatusMasks, TheLastDigitOfTheNameIsThePart)
{
    loadAt({{0, 0}, {3, 0}, {4, 0}, {7, 0}, {8, 0}, {11, 0}});
    offline(maskParameter("statusMaskOnOff1", "01000000") +
            maskParameter("statusMaskOnOff2", "00000001") +
            maskParameter("statusMaskOnOff3", "01000001"));
    EXPECT_THAT(flags(), ElementsAre(1, 0, 0, 1, 1, 1));
    EXPECT_THAT(view.masks(), ElementsAre("01000000", "00000001", "01000001", ""));
}

TEST_F(CtrStatusMasks, TheOrderOfThePartsInTheDatafileDoesNotMatter)
{
    loadAt({{0, 0}, {1, 0}});
    offline(maskParameter("statusMaskOnOff2", "00") + maskParameter("statusMaskOnOff1", "01"));
    EXPECT_THAT(flags(), ElementsAre(1, 0));
}

TEST_F(CtrStatusMasks, AnotherDatafileSwitchesBackOn)
{
    loadAt({{0, 0}});
    offline(maskParameter("statusMaskOnOff", "00"));
    offline(maskParameter("statusMaskOnOff", "01"));
    EXPECT_THAT(flags(), ElementsAre(1));
}

TEST_F(CtrStatusMasks, ADatafileWithoutMasksChangesNothing)
{
    loadAt({{0, 0}});
    offline(maskParameter("statusMaskOnOff", "00"));
    messenger.clear();
    offline("<data:parameter name=\"other\" value=\"FF\"/>");
    EXPECT_THAT(flags(), ElementsAre(0));
    EXPECT_THAT(view.masks(), ElementsAre("00", ""));
    EXPECT_THAT(messenger.calls,
                ElementsAre("WriteLog(68, CtrStatus entering IQornDataUser_SetOfflineData)",
                            "WriteLog(68, CtrStatus leaving IQornDataUser_SetOfflineData)"));
}

TEST_F(CtrStatusMasks, EachMaskIsWrittenDownWithItsNameBeforeAndAfter)
{
    loadAt({{0, 0}});
    offline(maskParameter("statusMaskOnOff1", "aF"));
    EXPECT_THAT(messenger.calls,
                ElementsAre("WriteLog(68, CtrStatus entering IQornDataUser_SetOfflineData)",
                            "WriteLog(69, CtrStatus entering ChangeMask statusMaskOnOff1 aF)",
                            "WriteLog(69, CtrStatus leaving ChangeMask statusmaskonoff1)",
                            "WriteLog(68, CtrStatus leaving IQornDataUser_SetOfflineData)"));
    EXPECT_THAT(view.masks(), ElementsAre("aF", ""));
}

// --- Odd texts --------------------------------------------------------------------------------

TEST_F(CtrStatusMasks, DigitsOfEitherCaseAreHexadecimal)
{
    loadAt({{0, 1}, {0, 3}, {1, 1}, {1, 2}});
    offline(maskParameter("statusMaskOnOff", "0aA4"));
    EXPECT_THAT(flags(), ElementsAre(1, 1, 0, 1));
}

TEST_F(CtrStatusMasks, BytesBehindTheEndOfAShortMaskAreAllOn)
{
    loadAt({{0, 0}, {1, 0}, {2, 0}, {3, 0}});
    offline(maskParameter("statusMaskOnOff1", "00000000") + maskParameter("statusMaskOnOff2", ""));
    EXPECT_THAT(flags(), Each(0));
    receive("statusMaskOnOff1", "0000");
    EXPECT_THAT(flags(), ElementsAre(0, 0, 1, 1));
}

TEST_F(CtrStatusMasks, OneDigitAloneIsAByte)
{
    loadAt({{0, 0}, {1, 0}, {1, 1}});
    offline(maskParameter("statusMaskOnOff", "002")); // 1.5 bytes: 2
    EXPECT_THAT(flags(), ElementsAre(0, 0, 1));
}

TEST_F(CtrStatusMasks, HalfAByteRoundsToTheEvenNumberOfBytes)
{
    // Five digits are 2.5 bytes: 2, so that byte 2 is in part 2.
    loadAt({{1, 0}, {2, 0}});
    offline(maskParameter("statusMaskOnOff1", "00000") +
            maskParameter("statusMaskOnOff2", "FFFFF"));
    EXPECT_THAT(flags(), ElementsAre(0, 1));
}

TEST_F(CtrStatusMasks, AMaskOfOneDigitHasNoBytesAndEachRowSaysSo)
{
    loadAt({{0, 0}, {0, 1}});
    offline(maskParameter("statusMaskOnOff", "0"));
    EXPECT_THAT(messenger.errors(),
                ElementsAre("ReportError(CtrStatus SetImage: , 11, Division by zero)",
                            "ReportError(CtrStatus SetImage: , 11, Division by zero)"));
    EXPECT_THAT(flags(), ElementsAre(1, 1));
}

TEST_F(CtrStatusMasks, WhatIsNotHexadecimalIsReportedAndCountsAsZero)
{
    loadAt({{0, 0}, {1, 0}});
    offline(maskParameter("statusMaskOnOff", "ZZ01"));
    EXPECT_THAT(flags(), ElementsAre(0, 1));
    EXPECT_THAT(messenger.errors(),
                ElementsAre("ReportError(CtrStatus GetMaskByte: , 13, Type mismatch)"));
}

TEST_F(CtrStatusMasks, BitEightIsInNoByte)
{
    loadAt({{0, 8}});
    offline(maskParameter("statusMaskOnOff", "FF"));
    EXPECT_THAT(flags(), ElementsAre(0));
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(CtrStatusMasks, ABitThatCannotBeIsReportedAndChangesNothing)
{
    loadAt({{0, 9}, {0, -2}, {0, 0}});
    offline(maskParameter("statusMaskOnOff", "00"));
    EXPECT_THAT(flags(), ElementsAre(1, 1, 0));
    EXPECT_THAT(messenger.errors(),
                ElementsAre("ReportError(CtrStatus SetImage: , 9, Subscript out of range)",
                            "ReportError(CtrStatus SetImage: , 9, Subscript out of range)"));
}

TEST_F(CtrStatusMasks, AByteInFrontOfTheMaskIsReportedAndChangesNothing)
{
    loadAt({{-2, 0}, {0, 0}});
    offline(maskParameter("statusMaskOnOff", "0000000000000000"));
    EXPECT_THAT(flags(), ElementsAre(1, 0));
    EXPECT_THAT(messenger.errors(),
                ElementsAre(StartsWith("ReportError(CtrStatus GetMaskByte: , 5, ")));
}

TEST_F(CtrStatusMasks, PartZeroHasNoPlace)
{
    loadAt({{0, 0}});
    offline(maskParameter("statusMaskOnOff0", "00"));
    EXPECT_THAT(messenger.errors(),
                ElementsAre("ReportError(CtrStatus ChangeMask: , 9, Subscript out of range)"));
    EXPECT_THAT(flags(), ElementsAre(1));
}

TEST_F(CtrStatusMasks, AMaskWithoutAValueIsReportedAndTheOthersAreTaken)
{
    loadAt({{0, 0}});
    offline(maskParameter("statusMaskOnOff1", "00") +
            "<data:parameter name=\"statusMaskOnOff2\"/>");
    EXPECT_THAT(
        messenger.errors(),
        ElementsAre(StartsWith("ReportError(CtrStatus IQornDataUser_SetOfflineData: , 91, ")));
    EXPECT_THAT(flags(), ElementsAre(0));
}

TEST_F(CtrStatusMasks, AFirstMaskWithoutAValueLeavesTheLength)
{
    loadAt({{0, 0}, {1, 0}});
    offline(maskParameter("statusMaskOnOff", "0000"));
    messenger.clear();
    offline("<data:parameter name=\"statusMaskOnOff1\"/>" +
            maskParameter("statusMaskOnOff2", "FFFF"));
    EXPECT_THAT(flags(), ElementsAre(0, 0)) << "both bytes are in part 1";
    EXPECT_THAT(messenger.errors(), SizeIs(2));
}

TEST_F(CtrStatusMasks, ADocumentThatIsNoDatafileIsReported)
{
    view.SetMessenger(&messenger);
    messenger.clear();
    view.SetOfflineData({});
    EXPECT_THAT(
        messenger.errors(),
        ElementsAre(StartsWith("ReportError(CtrStatus IQornDataUser_SetOfflineData: , 91, ")));
    EXPECT_THAT(messenger.calls,
                Contains("WriteLog(68, CtrStatus leaving IQornDataUser_SetOfflineData)"));
}

// --- Severity masks ---------------------------------------------------------------------------

TEST_F(CtrStatusMasks, ASeverityMaskMovesConditionsIntoItsSeverity)
{
    loadAt({{0, 0}, {0, 1}, {0, 2}, {0, 3}});
    offline(maskParameter("statusMaskInfo", "01") + maskParameter("statusMaskWarning", "02") +
            maskParameter("statusMaskAlarm", "04"));
    EXPECT_EQ(classOf(0), "info");
    EXPECT_EQ(classOf(1), "warning");
    EXPECT_EQ(classOf(2), "alarm");
    EXPECT_EQ(classOf(3), "failsafe") << "in none of them: as it was";
    EXPECT_THAT(flags(), Each(1)) << "loading switches nothing off";
}

TEST_F(CtrStatusMasks, MasksByPartAndClassStandInOneTable)
{
    loadAt({{0, 0}});
    offline(maskParameter("statusMaskInfo1", "11") + maskParameter("statusMaskInfo2", "12") +
            maskParameter("statusMaskInfo3", "13") + maskParameter("statusMaskWarning1", "21") +
            maskParameter("statusMaskWarning2", "22") + maskParameter("statusMaskWarning3", "23") +
            maskParameter("statusMaskAlarm1", "41") + maskParameter("statusMaskAlarm2", "42") +
            maskParameter("statusMaskAlarm3", "43"));
    EXPECT_THAT(view.masks(), ElementsAre("71", "72", "73", "11", "12", "13", "21", "22", "23",
                                          "41", "42", "43", "00", ""));
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(CtrStatusMasks, MasksWithoutAPartNumberUseTheFirstFourPlaces)
{
    loadAt({{0, 0}});
    offline(maskParameter("statusMaskInfo", "01") + maskParameter("statusMaskWarning", "02") +
            maskParameter("statusMaskAlarm", "80"));
    EXPECT_THAT(view.masks(), ElementsAre("83", "01", "02", "80", "00", "00", "00", ""));
}

TEST_F(CtrStatusMasks, EmptySeverityMasksHaveAsManyDigitsAsTheFirstOne)
{
    loadAt({{0, 0}});
    offline(maskParameter("statusMaskInfo1", "0000"));
    EXPECT_THAT(view.masks(), ElementsAre("0000", "0000", "0000", "0000", "0000", ""));
}

TEST_F(CtrStatusMasks, EmptySeverityMasksHaveNoMoreThan32Digits)
{
    loadAt({{0, 0}});
    offline(maskParameter("statusMaskInfo1", std::string(40, '0')));
    EXPECT_EQ(view.masks().at(4), std::string(32, '0'));
}

TEST_F(CtrStatusMasks, AlarmIsMoreThanWarningInAName)
{
    loadAt({{0, 0}});
    offline(maskParameter("statusMaskInfoWarningAlarm", "01"));
    EXPECT_EQ(classOf(0), "alarm");
    offline(maskParameter("statusMaskInfoWARNING", "01"));
    EXPECT_EQ(classOf(0), "warning");
}

TEST_F(CtrStatusMasks, TheOnOffMaskIsMadeOfTheThreeSeverities)
{
    loadAt({{0, 0}});
    offline(maskParameter("statusMaskInfo", "0102") + maskParameter("statusMaskWarning", "0480") +
            maskParameter("statusMaskAlarm", "1008"));
    EXPECT_EQ(view.masks().at(0), "158A");
}

TEST_F(CtrStatusMasks, AConditionInNoSeverityIsSwitchedOffByTheNextReceivedValue)
{
    loadAt({{0, 0}, {0, 1}});
    offline(maskParameter("statusMaskInfo", "03") + maskParameter("statusMaskWarning", "00") +
            maskParameter("statusMaskAlarm", "00"));
    receive("statusMaskInfo", "01");
    EXPECT_THAT(flags(), ElementsAre(1, 0));
    EXPECT_EQ(view.masks().at(0), "01");
    receive("statusMaskAlarm", "02");
    EXPECT_THAT(flags(), ElementsAre(1, 1));
    EXPECT_EQ(classOf(0), "info");
    EXPECT_EQ(classOf(1), "alarm");
}

TEST_F(CtrStatusMasks, SeverityMasksWorkOnSeverityWhileNAMURIsShown)
{
    messenger.classification = kClassNAMUR;
    loadAt({{0, 0}});
    offline(maskParameter("statusMaskAlarm", "01"));
    EXPECT_EQ(classOf(0), "deviceInfo");
    messenger.classification = kClassSeverity;
    EXPECT_EQ(classOf(0), "alarm");
}

TEST_F(CtrStatusMasks, ATextThatStaysRebuildsNothingButIsAppliedAgain)
{
    loadAt({{0, 0}, {0, 1}});
    offline(maskParameter("statusMaskAlarm", "02") + maskParameter("statusMaskInfo", "00") +
            maskParameter("statusMaskWarning", "00"));
    receive("statusMaskOnOff", "00"); // every condition off, and the on/off mask with it
    EXPECT_THAT(flags(), ElementsAre(0, 0));
    receive("statusMaskAlarm", "02");
    EXPECT_EQ(view.masks().at(0), "00") << "not made anew";
    EXPECT_THAT(flags(), ElementsAre(0, 0)) << "on by the alarm mask, off by the on/off mask";
    EXPECT_EQ(classOf(1), "inactive");
}

TEST_F(CtrStatusMasks, WhatIsNotHexadecimalCostsOnlyItsOwnByteOfTheOnOffMask)
{
    loadAt({{0, 0}});
    offline(maskParameter("statusMaskInfo", "ZZ02") + maskParameter("statusMaskWarning", "0100") +
            maskParameter("statusMaskAlarm", "0000"));
    EXPECT_EQ(view.masks().at(0), "0102");
    EXPECT_THAT(messenger.errors(),
                SomeAndEach("ReportError(CtrStatus GetMaskByte: , 13, Type mismatch)"));
}

TEST_F(CtrStatusMasks, NumberedSeveritiesWithoutTheirOtherPartsHaveNoPlaceForTheAlarms)
{
    loadAt({{0, 0}, {0, 1}});
    offline(maskParameter("statusMaskInfo1", "01") + maskParameter("statusMaskAlarm1", "02"));
    EXPECT_THAT(view.masks(), SizeIs(7)); // an alarm mask of part 1 would be number 9
    EXPECT_THAT(messenger.errors(),
                SomeAndEach("ReportError(CtrStatus ChangeMask: , 9, Subscript out of range)"));
    EXPECT_EQ(classOf(1), "alarm") << "the conditions are moved all the same";
}

TEST_F(CtrStatusMasks, AMissingSeverityInTheTableIsReportedAndChangesNothing)
{
    loadAt({{0, 0}});
    // On/off first: the table has two places, too few for severities.
    offline(maskParameter("statusMaskOnOff", "01") + maskParameter("statusMaskInfo", "01"));
    EXPECT_THAT(view.masks(), ElementsAre("01", "01", ""));
    EXPECT_THAT(messenger.errors(),
                ElementsAre("ReportError(CtrStatus ChangeMask: , 9, Subscript out of range)"));
    EXPECT_EQ(classOf(0), "info");
}

TEST_F(CtrStatusMasks, ANonHexadecimalMaskOfASeverityMovesNothing)
{
    loadAt({{0, 0}});
    offline(maskParameter("statusMaskAlarm", "xx"));
    EXPECT_EQ(classOf(0), "failsafe");
}

// --- Received values --------------------------------------------------------------------------

TEST_F(CtrStatusMasks, AReceivedMaskIsAppliedAtOnce)
{
    loadAt({{0, 0}});
    offline(maskParameter("statusMaskOnOff1", "01"));
    messenger.clear();
    receive("statusMaskOnOff1", "00");
    EXPECT_THAT(flags(), ElementsAre(0));
    EXPECT_THAT(messenger.calls,
                ElementsAre("WriteLog(69, CtrStatus entering ChangeMask statusMaskOnOff1 00)",
                            "WriteLog(69, CtrStatus leaving ChangeMask statusmaskonoff1)"));
    receive("xstatusmaskonoff1", "01");
    EXPECT_THAT(flags(), ElementsAre(1));
}

TEST_F(CtrStatusMasks, OtherReceivedValuesAreNotTheViews)
{
    loadAt({{0, 0}});
    offline(maskParameter("statusMaskOnOff1", "01"));
    messenger.clear();
    receive("StatusMaskOnOff1", "00");
    receive("travel", "00");
    EXPECT_THAT(flags(), ElementsAre(1));
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(CtrStatusMasks, AReceivedEmptyMaskIsTakenAndSwitchesEverythingOn)
{
    loadAt({{0, 0}});
    offline(maskParameter("statusMaskOnOff1", "00"));
    receive("statusMaskOnOff1", "");
    EXPECT_THAT(flags(), ElementsAre(1));
    EXPECT_EQ(view.masks().at(0), "");
}

TEST_F(CtrStatusMasks, AReceivedMaskBeforeADatafileIsReported)
{
    loadAt({{0, 0}});
    receive("statusMaskOnOff1", "00");
    EXPECT_THAT(messenger.errors(),
                ElementsAre("ReportError(CtrStatus ChangeMask: , 9, Subscript out of range)",
                            "ReportError(CtrStatus SetImage: , 11, Division by zero)",
                            "ReportError(CtrStatus IQornView_ViewReceiveValue: , 9, Subscript out "
                            "of range)"));
    EXPECT_THAT(flags(), ElementsAre(1));
}

TEST_F(CtrStatusMasks, AReceivedPartThatTheDatafileLacksIsReported)
{
    loadAt({{0, 0}});
    offline(maskParameter("statusMaskOnOff1", "01"));
    messenger.clear();
    receive("statusMaskOnOff9", "00");
    EXPECT_THAT(messenger.errors(),
                ElementsAre("ReportError(CtrStatus ChangeMask: , 9, Subscript out of range)",
                            "ReportError(CtrStatus IQornView_ViewReceiveValue: , 9, Subscript out "
                            "of range)"));
    EXPECT_THAT(flags(), ElementsAre(1));
}

TEST_F(CtrStatusMasks, AHostThatThrowsCostsNoMask)
{
    loadAt({{0, 0}, {0, 1}});
    messenger.onCall = [](const std::string&) { throw platform::failure(5); };
    offline(maskParameter("statusMaskOnOff", "02"));
    EXPECT_THAT(flags(), ElementsAre(0, 1));
}

} // namespace
} // namespace quill::test
