#include "tests/status/status_configuration_fixture.h"

namespace quill::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

// --- Masks from the device --------------------------------------------------------------------

TEST_F(StatusConfigurationTest, AMaskFromTheDeviceGoesIntoTheRowsAndIntoTheDatafile)
{
    addBits(2);
    setMasks({"00", "00"});
    setOnline(item("statusMask2", "noUnit", "hexVal", "80"));
    EXPECT_THAT(enabled(16), ElementsAre("s15"));
    EXPECT_EQ(inFile("statusMask1"), "00");
    EXPECT_EQ(inFile("statusMask2"), "80");
    EXPECT_EQ(inFile("statusMask2", "synchronised"), "1");
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(StatusConfigurationTest, AMaskGoesIntoEveryParameterOfItsName)
{
    addBits(1);
    setOffline(parameter("statusMask1", "00") + parameter("statusMask1", "00"));
    setOnline(item("statusMask1", "noUnit", "hexVal", "01"));
    EXPECT_THAT(file.selectNodes("//data:parameter[@value=\"01\"]").get_length(), 2);
}

TEST_F(StatusConfigurationTest, ParameterNamesAreComparedExactly)
{
    addBits(1);
    setMasks({"00"});
    setOnline(item("StatusMask1", "noUnit", "hexVal", "01"));
    EXPECT_EQ(inFile("statusMask1"), "00");
    EXPECT_THAT(enabled(8), ElementsAre("s0")); // the digit alone tells the part
}

TEST_F(StatusConfigurationTest, AnEmptyMaskFromTheDeviceBlanksTheParameterAndLeavesTheRows)
{
    addBits(1);
    setMasks({"05"});
    setOnline(item("statusMask1", "noUnit", "hexVal", ""));
    EXPECT_EQ(inFile("statusMask1"), "");
    EXPECT_THAT(enabled(8), ElementsAre("s0", "s2"));
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(StatusConfigurationTest, AnItemWithoutAValueIsReportedAndReadAsEmpty)
{
    addBits(1);
    setMasks({"05"});
    setOnline(R"(<comm:item name="statusMask1"/>)");
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(clsStatusConfiguration SetParameter, 91,")));
    EXPECT_EQ(inFile("statusMask1"), "");
    EXPECT_THAT(enabled(8), ElementsAre("s0", "s2"));
}

TEST_F(StatusConfigurationTest, AnItemWithoutANameIsReportedAndTheNextOneIsTaken)
{
    addBits(2);
    setMasks({"00", "00"});
    setOnline("<comm:item><comm:hexVal>01</comm:hexVal></comm:item>" +
              item("statusMask2", "noUnit", "hexVal", "01"));
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(clsStatusConfiguration SetParameter, 91,")));
    EXPECT_THAT(enabled(16), ElementsAre("s0", "s8"));
    EXPECT_EQ(inFile("statusMask1"), "00");
}

TEST_F(StatusConfigurationTest, AParameterThatCannotTakeAValueIsReportedAndTheNextOneIsServed)
{
    addBits(1);
    setOffline(parameter("statusMask1", "00") + R"(<data:parameter/>)" +
               R"(<data:parameter name="statusMask1"/>)" + parameter("statusMask1", "00"));
    messenger.clear();
    setOnline(item("statusMask1", "noUnit", "hexVal", "01"));
    EXPECT_THAT(messenger.errors(), SizeIs(2));
    EXPECT_THAT(file.selectNodes("//data:parameter[@value=\"01\"]").get_length(), 2);
}

TEST_F(StatusConfigurationTest, AMaskBeforeTheDatafileIsReportedAndSwitchesItsRows)
{
    addBits(8);
    setOnline(item("statusMask2", "noUnit", "hexVal", "01000000"));
    EXPECT_THAT(messenger.errors(), ElementsAre("ReportError(clsStatusConfiguration ChangeMask: , "
                                                "9, Subscript out of range)"));
    EXPECT_THAT(enabled(64), ElementsAre("s32"));
}

TEST_F(StatusConfigurationTest, AMaskFromTheDeviceLeavesTheLengthOfAPart)
{
    addBits(2);
    setMasks({"00", "00"});
    setOnline(item("statusMask1", "noUnit", "hexVal", "0001"));
    EXPECT_THAT(enabled(16), IsEmpty());
}

TEST_F(StatusConfigurationTest, NoItemsDoNothing)
{
    addBits(1);
    setMasks({"01"});
    messenger.clear();
    masks.SetOnlineParameters({});
    EXPECT_THAT(messenger.calls, IsEmpty());
    EXPECT_EQ(inFile("statusMask1"), "01");
}

TEST_F(StatusConfigurationTest, TheOldPartIsTheLastOneThatCameIn)
{
    addBits(1);
    setMasks({"01"});
    masks.SetEnabled("s1", true);
    messenger.clear();
    setOnline(item("statusMask1", "noUnit", "hexVal", "0F"));
    EXPECT_THAT(logs(), Contains("WriteLog(83, Oldpart was 01)"));
}

// --- Switching --------------------------------------------------------------------------------

TEST_F(StatusConfigurationTest, SwitchingWritesTheBitIntoTheDatafileAndMarksItAsOutOfStep)
{
    addBits(12);
    setMasks({"00000000", "00000000", "FFFFFFFF"});
    masks.SetEnabled("s41", true);
    masks.SetEnabled("s95", false);
    EXPECT_EQ(inFile("statusMask1"), "00000000");
    EXPECT_EQ(inFile("statusMask2"), "00020000");
    EXPECT_EQ(inFile("statusMask3"), "FFFFFF7F");
    EXPECT_EQ(inFile("statusMask1", "synchronised"), "1");
    EXPECT_EQ(inFile("statusMask2", "synchronised"), "0");
    EXPECT_EQ(inFile("statusMask3", "synchronised"), "0");
    EXPECT_TRUE(masks.IsEnabled("s41"));
    EXPECT_FALSE(masks.IsEnabled("s95"));
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(StatusConfigurationTest, TwoBitsOfOneByteBothSurvive)
{
    addBits(1);
    setMasks({"00"});
    masks.SetEnabled("s3", true);
    masks.SetEnabled("s4", true);
    EXPECT_EQ(inFile("statusMask1"), "18");
}

TEST_F(StatusConfigurationTest, SwitchingBackLeavesTheParameterOutOfStep)
{
    addBits(1);
    setMasks({"00"});
    masks.SetEnabled("s3", true);
    masks.SetEnabled("s3", false);
    EXPECT_EQ(inFile("statusMask1"), "00");
    EXPECT_EQ(inFile("statusMask1", "synchronised"), "0");
}

TEST_F(StatusConfigurationTest, SwitchingToWhatItWasMarksTheParameterToo)
{
    addBits(1);
    setMasks({"ff"});
    masks.SetEnabled("s3", true);
    EXPECT_EQ(inFile("statusMask1"), "FF");
    EXPECT_EQ(inFile("statusMask1", "synchronised"), "0");
}

TEST_F(StatusConfigurationTest, OnlyTheByteOfTheBitIsWrittenInUpperCase)
{
    addBits(4);
    setMasks({"abcdefab"});
    masks.SetEnabled("s8", false);
    EXPECT_EQ(inFile("statusMask1"), "abCCefab");
}

TEST_F(StatusConfigurationTest, AMissingMarkIsAdded)
{
    addBits(1);
    setOffline(R"(<data:parameter name="statusMask1" value="00"/>)");
    masks.SetEnabled("s0", true);
    EXPECT_EQ(inFile("statusMask1", "synchronised"), "0");
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(StatusConfigurationTest, TheMaskIsReadFromTheDatafileAsItStandsNow)
{
    addBits(1);
    setMasks({"00"});
    file.selectSingleNode("//data:parameter/@value").put_text("F0");
    masks.SetEnabled("s0", true);
    EXPECT_EQ(inFile("statusMask1"), "F1");
}

TEST_F(StatusConfigurationTest, APartOfOneDigitIsNotWritten)
{
    addBits(1);
    setMasks({"F"});
    messenger.clear();
    masks.SetEnabled("s0", true);
    EXPECT_THAT(
        messenger.calls,
        ElementsAre("WriteLog(83, StatusConfiguration SetEnabled entered s0 True)",
                    "WriteLog(69, CtrStatusConfiguration entering StoreBitForExport on row 0)",
                    "WriteLog(83, Bytes in part = 0)",
                    "WriteLog(83, StatusConfiguration SetEnabled leaving 0 as 1)"));
    EXPECT_TRUE(masks.IsEnabled("s0"));
    EXPECT_EQ(inFile("statusMask1"), "F");
    EXPECT_EQ(inFile("statusMask1", "synchronised"), "1");
}

TEST_F(StatusConfigurationTest, BeforeTheDatafileOnlyTheFlagChanges)
{
    addBits(12);
    masks.SetEnabled("s40", true);
    EXPECT_TRUE(masks.IsEnabled("s40"));
    EXPECT_THAT(messenger.errors(), IsEmpty()); // two places are there, without a node
    EXPECT_THAT(logs(), Contains("WriteLog(83, uboundmaofflinenode = 1)"));
    messenger.clear();
    masks.SetEnabled("s90", true);
    EXPECT_TRUE(masks.IsEnabled("s90"));
    EXPECT_THAT(messenger.errors(),
                ElementsAre("ReportError(ClsStatusConfiguration StoreBitForExport: , 9, "
                            "Subscript out of range)"));
}

TEST_F(StatusConfigurationTest, ARowWithoutAMaskKeepsItsFlagAloneAndIsReported)
{
    masks.AddBit(0, definition(R"(name="a")"));
    setMasks({"12345678"});
    messenger.clear();
    masks.SetEnabled("a", true);
    EXPECT_TRUE(masks.IsEnabled("a"));
    EXPECT_THAT(messenger.errors(), ElementsAre("ReportError(clsStatusConfiguration GetMaskByte: , "
                                                "5, Invalid procedure call or argument)"));
    EXPECT_EQ(inFile("statusMask1"), "12345678");
    EXPECT_EQ(inFile("statusMask1", "synchronised"), "1");
}

TEST_F(StatusConfigurationTest, ABitThatAByteDoesNotHaveIsReportedAndNotWritten)
{
    addBit(0, "a", 0, 8);
    setMasks({"00"});
    messenger.clear();
    masks.SetEnabled("a", true);
    EXPECT_THAT(messenger.errors(),
                ElementsAre("ReportError(ClsStatusConfiguration StoreBitForExport: , 9, "
                            "Subscript out of range)"));
    EXPECT_EQ(inFile("statusMask1"), "00");
    EXPECT_EQ(inFile("statusMask1", "synchronised"), "1");
}

TEST_F(StatusConfigurationTest, AParameterWithoutAValueIsReportedAndTakenAsAnEmptyMask)
{
    addBits(1);
    setMasks({"00"});
    file.selectSingleNode("//data:parameter").get_attributes().removeNamedItem("value");
    messenger.clear();
    masks.SetEnabled("s0", false);
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ClsStatusConfiguration StoreBitForExport: , 91,")));
    EXPECT_EQ(inFile("statusMask1"), "FE");
    EXPECT_EQ(inFile("statusMask1", "synchronised"), "0");
}

TEST_F(StatusConfigurationTest, AnEmptyMaskCountsAsSwitchedOn)
{
    addBits(1);
    setMasks({"00"});
    file.selectSingleNode("//data:parameter/@value").put_text("");
    masks.SetEnabled("s0", false);
    EXPECT_EQ(inFile("statusMask1"), "FE");
}

TEST_F(StatusConfigurationTest, AByteThatIsNotHexadecimalIsReportedAndReplaced)
{
    addBits(2);
    setMasks({"GG00"});
    messenger.clear();
    masks.SetEnabled("s1", true);
    EXPECT_THAT(messenger.errors(), ElementsAre("ReportError(clsStatusConfiguration GetMaskByte: , "
                                                "13, Type mismatch)"));
    EXPECT_EQ(inFile("statusMask1"), "0200");
}

TEST_F(StatusConfigurationTest, AShortPartIsPutTogetherFromItsFrontAndItsBack)
{
    addBits(4);
    setMasks({"00000000"});
    file.selectSingleNode("//data:parameter/@value").put_text("AB");
    masks.SetEnabled("s16", false); // byte 2: two digits in front, what two behind there are
    EXPECT_EQ(inFile("statusMask1"), "ABFEAB");
}

TEST_F(StatusConfigurationTest, ALongPartLosesWhatIsTooMuchInTheMiddle)
{
    addBits(2);
    setMasks({"0000"});
    file.selectSingleNode("//data:parameter/@value").put_text("00112233");
    masks.SetEnabled("s0", true);
    EXPECT_EQ(inFile("statusMask1"), "0133");
}

TEST_F(StatusConfigurationTest, TheLastHalfByteOfAnOddPartCannotBeWritten)
{
    addBits(4);
    setMasks({"0000000"});
    messenger.clear();
    masks.SetEnabled("s24", true);
    EXPECT_THAT(messenger.errors(),
                ElementsAre("ReportError(ClsStatusConfiguration StoreBitForExport: , 5, "
                            "Invalid procedure call or argument)"));
    EXPECT_EQ(inFile("statusMask1"), "0000000");
}

TEST_F(StatusConfigurationTest, EveryStepOfSwitchingIsLogged)
{
    addBit(0, "a", 5, 1);
    setMasks({"00000000", "0003ff00"});
    messenger.clear();
    masks.SetEnabled("a", false);
    EXPECT_THAT(
        messenger.calls,
        ElementsAre("WriteLog(83, StatusConfiguration SetEnabled entered a False)",
                    "WriteLog(69, CtrStatusConfiguration entering StoreBitForExport on row 0)",
                    "WriteLog(83, uboundmaofflinenode = 1)", "WriteLog(83, partIndex = 2)",
                    "WriteLog(83, byteIndexInPart = 1)", "WriteLog(83, trueIndex = 1)",
                    "WriteLog(83, Old mask part 0003ff00)", "WriteLog(83, Old mask byte 3)",
                    "WriteLog(83, Statusbit = 2)", "WriteLog(83, Statusbyte = 3)",
                    "WriteLog(83, Disabled)", "WriteLog(83, Changed Mask Byte = 1)",
                    "WriteLog(83, ChangedMask = 0001ff00)",
                    "WriteLog(69, ClsStatusConfiguration leaving StoreBitForExport)",
                    "WriteLog(83, StatusConfiguration SetEnabled leaving 0 as 0)"));
    messenger.clear();
    masks.SetEnabled("0", true);
    EXPECT_THAT(logs(), Contains("WriteLog(83, StatusConfiguration SetEnabled entered 0 True)"));
    EXPECT_THAT(logs(), Contains("WriteLog(83, Enabled)"));
    EXPECT_THAT(logs(), Contains("WriteLog(83, StatusConfiguration SetEnabled leaving 0 as 1)"));
}

} // namespace
} // namespace quill::test
