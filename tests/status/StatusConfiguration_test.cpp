#include "tests/status/status_configuration_fixture.h"

#include "support/some_and_each.h"

namespace quill::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

// --- Rows and keys ----------------------------------------------------------------------------

TEST_F(StatusConfigurationTest, AConditionIsSwitchedOffUntilAMaskComes)
{
    addBit(0, "a", 0, 0);
    EXPECT_FALSE(masks.IsEnabled("a"));
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(StatusConfigurationTest, AKeyIsANameOrARowNumber)
{
    addBits(1);
    setMasks({"08000000"});
    EXPECT_TRUE(masks.IsEnabled("s3"));
    EXPECT_TRUE(masks.IsEnabled("3"));
    EXPECT_TRUE(masks.IsEnabled(" 3 "));
    EXPECT_TRUE(masks.IsEnabled("2.6"));
    EXPECT_FALSE(masks.IsEnabled("4"));
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(StatusConfigurationTest, ANumberIsARowEvenIfAConditionHasItForAName)
{
    addBit(0, "1", 0, 0);
    addBit(1, "0", 0, 1);
    setMasks({"01"});
    EXPECT_TRUE(masks.IsEnabled("0"));
    EXPECT_FALSE(masks.IsEnabled("1"));
}

TEST_F(StatusConfigurationTest, NamesAreComparedExactly)
{
    addBits(1);
    setMasks({"FF"});
    EXPECT_TRUE(masks.IsEnabled("s3"));
    EXPECT_FALSE(masks.IsEnabled("S3"));
    EXPECT_FALSE(masks.IsEnabled("s3 "));
}

TEST_F(StatusConfigurationTest, OfEqualNamesTheFirstRowCounts)
{
    addBit(0, "a", 0, 0);
    addBit(1, "a", 0, 1);
    setMasks({"02"});
    EXPECT_FALSE(masks.IsEnabled("a"));
    masks.SetEnabled("a", true);
    EXPECT_EQ(inFile("statusMask1"), "03");
}

TEST_F(StatusConfigurationTest, AKeyOfNoConditionIsReportedAndChangesNothing)
{
    addBit(0, "a", 0, 0);
    setMasks({"00"});
    messenger.clear();
    EXPECT_FALSE(masks.IsEnabled("b"));
    EXPECT_THAT(messenger.errors(), ElementsAre("ReportError(clsStatusConfiguration IsEnabled, 9, "
                                                "Subscript out of range)"));
    messenger.clear();
    masks.SetEnabled("b", true);
    EXPECT_THAT(messenger.calls,
                ElementsAre("WriteLog(83, StatusConfiguration SetEnabled entered b True)",
                            "ReportError(clsStatusConfiguration SetEnabled, 9, "
                            "Subscript out of range)"));
    EXPECT_EQ(inFile("statusMask1"), "00");
    EXPECT_EQ(inFile("statusMask1", "synchronised"), "1");
}

TEST_F(StatusConfigurationTest, ARowNumberOutsideIsReported)
{
    addBits(1);
    for (const char* key : {"8", "-1", "32767", "-32768"}) {
        messenger.clear();
        EXPECT_FALSE(masks.IsEnabled(key));
        EXPECT_THAT(messenger.errors(),
                    ElementsAre("ReportError(clsStatusConfiguration IsEnabled, 9, "
                                "Subscript out of range)"));
    }
}

TEST_F(StatusConfigurationTest, ANumberThatNoRowCanHaveIsAnOverflow)
{
    addBits(1);
    setMasks({"FF"});
    messenger.clear();
    EXPECT_FALSE(masks.IsEnabled("32768"));
    EXPECT_THAT(messenger.errors(),
                ElementsAre("ReportError(clsStatusConfiguration GetIndex, 6, Overflow)",
                            "ReportError(clsStatusConfiguration IsEnabled, 9, "
                            "Subscript out of range)"));
}

TEST_F(StatusConfigurationTest, WithoutRowsEveryKeyIsOutside)
{
    EXPECT_FALSE(masks.IsEnabled("0"));
    EXPECT_FALSE(masks.IsEnabled(""));
    EXPECT_THAT(messenger.errors(), SizeIs(2));
}

TEST_F(StatusConfigurationTest, RowsThatWereLeftOutHaveNoNameAndTheFirstBit)
{
    addBit(2, "a", 0, 5);
    setMasks({"01"});
    EXPECT_TRUE(masks.IsEnabled("0"));
    EXPECT_TRUE(masks.IsEnabled("1"));
    EXPECT_FALSE(masks.IsEnabled("2"));
    EXPECT_TRUE(masks.IsEnabled("")); // the first row without a name
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(StatusConfigurationTest, ARowIsDescribedAnewAndKeepsItsFlag)
{
    addBit(0, "a", 0, 0);
    setMasks({"01"});
    addBit(0, "b", 0, 1);
    EXPECT_TRUE(masks.IsEnabled("b"));
    EXPECT_FALSE(masks.IsEnabled("a"));
    setMasks({"01"});
    EXPECT_FALSE(masks.IsEnabled("b"));
}

TEST_F(StatusConfigurationTest, RowsMayComeInAnyOrder)
{
    addBit(5, "e", 0, 5);
    addBit(1, "a", 0, 1);
    setMasks({"22"});
    EXPECT_TRUE(masks.IsEnabled("e"));
    EXPECT_TRUE(masks.IsEnabled("a"));
    EXPECT_FALSE(masks.IsEnabled("3"));
}

TEST_F(StatusConfigurationTest, ARowWithoutADefinitionHasNoMask)
{
    masks.AddBit(0, {});
    setMasks({"FFFFFFFF"});
    EXPECT_FALSE(masks.IsEnabled("0"));
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(StatusConfigurationTest, AByteOrABitAloneIsNoMask)
{
    addBit(0, "a", 0, 0);
    addBit(1, "b", 0, 1);
    setMasks({"03"});
    masks.AddBit(0, definition(R"(name="a" maskByte="0")"));
    masks.AddBit(1, definition(R"(name="b" maskBit="1")"));
    setMasks({"00"});
    EXPECT_TRUE(masks.IsEnabled("a"));
    EXPECT_TRUE(masks.IsEnabled("b"));
}

TEST_F(StatusConfigurationTest, ABitThatIsNoNumberIsNone)
{
    masks.AddBit(0, definition(R"(name="a" maskByte="zero" maskBit="0")"));
    masks.AddBit(1, definition(R"(name="b" maskByte="0" maskBit="")"));
    masks.AddBit(2, definition(R"(name="c" maskByte=" 0 " maskBit="1")"));
    setMasks({"FF"});
    EXPECT_FALSE(masks.IsEnabled("a"));
    EXPECT_FALSE(masks.IsEnabled("b"));
    EXPECT_TRUE(masks.IsEnabled("c"));
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(StatusConfigurationTest, AByteThatIsTooLargeIsReportedAndIsNone)
{
    masks.AddBit(0, definition(R"(name="a" maskByte="32768" maskBit="0")"));
    EXPECT_THAT(messenger.errors(),
                ElementsAre("ReportError(clsStatusConfiguration AddBit, 6, Overflow)"));
    setMasks({"FF"});
    EXPECT_FALSE(masks.IsEnabled("a"));
}

TEST_F(StatusConfigurationTest, ADefinitionWithoutANameIsReportedAndHasItsBitAllTheSame)
{
    masks.AddBit(0, definition(R"(maskByte="0" maskBit="1")"));
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(clsStatusConfiguration AddBit, 91,")));
    setMasks({"02"});
    EXPECT_TRUE(masks.IsEnabled("0"));
}

TEST_F(StatusConfigurationTest, ARowBelowZeroIsReportedAndAddsNothing)
{
    masks.AddBit(-1, definition(R"(name="a" maskByte="0" maskBit="0")"));
    EXPECT_THAT(
        messenger.errors(),
        SomeAndEach("ReportError(clsStatusConfiguration AddBit, 9, Subscript out of range)"));
    EXPECT_THAT(messenger.errors(), Not(IsEmpty()));
    messenger.clear();
    EXPECT_FALSE(masks.IsEnabled("a"));
    EXPECT_THAT(messenger.errors(), SizeIs(1));
}

TEST_F(StatusConfigurationTest, TheLargestRowIsTaken)
{
    addBit(32767, "last", 0, 0);
    setMasks({"01"});
    EXPECT_TRUE(masks.IsEnabled("last"));
    EXPECT_TRUE(masks.IsEnabled("32767"));
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

// --- Masks of the datafile --------------------------------------------------------------------

TEST_F(StatusConfigurationTest, ASetBitSwitchesOnAndAClearOneOff)
{
    addBits(12);
    setMasks({"01000080", "00020000", "00000040"});
    EXPECT_THAT(enabled(96), ElementsAre("s0", "s31", "s41", "s94"));
    setMasks({"00000000", "00020000", "00000000"});
    EXPECT_THAT(enabled(96), ElementsAre("s41"));
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(StatusConfigurationTest, TheFirstMaskTellsTheLengthOfAPart)
{
    addBits(4);
    setMasks({"01", "02", "04", "08"});
    EXPECT_THAT(enabled(32), ElementsAre("s0", "s9", "s18", "s27"));
}

TEST_F(StatusConfigurationTest, ALongerMaskThanTheFirstIsReadAsFarAsAPartGoes)
{
    addBits(2);
    setMasks({"00", "0001"});
    EXPECT_THAT(enabled(16), IsEmpty());
}

TEST_F(StatusConfigurationTest, TheLastDigitOfTheNameTellsThePart)
{
    addBits(3);
    setOffline(parameter("statusMaskOnOff3", "04") + parameter("statusMask12", "02") +
               parameter("statusMask1", "01"));
    EXPECT_THAT(enabled(24), ElementsAre("s0", "s9", "s18"));
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(StatusConfigurationTest, ANameWithoutADigitAtTheEndIsTheFirstPart)
{
    addBits(2);
    setOffline(parameter("statusMask2x", "01"));
    EXPECT_THAT(enabled(16), ElementsAre("s0"));
}

TEST_F(StatusConfigurationTest, ANameThatEndsInZeroIsReportedAndSwitchesNothing)
{
    addBits(1);
    setOffline(parameter("statusMask0", "FF"));
    EXPECT_THAT(messenger.errors(), ElementsAre("ReportError(clsStatusConfiguration ChangeMask: , "
                                                "9, Subscript out of range)"));
    EXPECT_THAT(enabled(8), IsEmpty());
    EXPECT_THAT(logs(), Contains("WriteLog(83, Oldpart was )"));
    EXPECT_THAT(logs(), Contains("WriteLog(69, clsStatusConfiguration leaving ChangeMask "
                                 "statusmask0)"));
}

TEST_F(StatusConfigurationTest, APartBehindTheLastParameterIsReportedButSwitchesItsRows)
{
    addBits(4);
    setOffline(parameter("statusMask4", "80"));
    EXPECT_THAT(messenger.errors(), ElementsAre("ReportError(clsStatusConfiguration ChangeMask: , "
                                                "9, Subscript out of range)"));
    EXPECT_THAT(enabled(32), ElementsAre("s31"));
}

TEST_F(StatusConfigurationTest, AnEmptyMaskSwitchesNothing)
{
    addBits(2);
    setMasks({"FF", "FF"});
    setMasks({"00", ""});
    EXPECT_THAT(enabled(16), ElementsAre("s8", "s9", "s10", "s11", "s12", "s13", "s14", "s15"));
}

TEST_F(StatusConfigurationTest, BytesThatAShortMaskLacksAreSwitchedOn)
{
    addBits(4);
    setMasks({"0000", "00"});
    EXPECT_THAT(enabled(32), ElementsAre("s24", "s25", "s26", "s27", "s28", "s29", "s30", "s31"));
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(StatusConfigurationTest, AnOddLengthIsRoundedToTheEvenNumberOfBytes)
{
    addBits(4);
    setMasks({"00001"}); // two bytes, as five digits make two and a half
    EXPECT_THAT(enabled(32), IsEmpty());
    setMasks({"0000001"}); // four bytes, the last of one digit
    EXPECT_THAT(enabled(32), ElementsAre("s24"));
}

TEST_F(StatusConfigurationTest, AMaskThatIsNotHexadecimalIsReportedAndHasNoBitSet)
{
    addBit(0, "a", 0, 0);
    addBit(1, "b", 1, 0);
    setMasks({"FFFF"});
    messenger.clear();
    setMasks({"G1FF"});
    EXPECT_THAT(messenger.errors(),
                ElementsAre("ReportError(clsStatusConfiguration GetMaskByte: , 13, "
                            "Type mismatch)"));
    EXPECT_FALSE(masks.IsEnabled("a"));
    EXPECT_TRUE(masks.IsEnabled("b"));
}

TEST_F(StatusConfigurationTest, APartOfOneDigitIsReportedForEachRowWithAMask)
{
    addBit(0, "a", 0, 0);
    masks.AddBit(1, definition(R"(name="none")"));
    addBit(2, "b", 0, 1);
    setMasks({"F"});
    EXPECT_THAT(messenger.errors(),
                ElementsAre("ReportError(clsStatusConfiguration ParseMask: , 11, Division by zero)",
                            "ReportError(clsStatusConfiguration ParseMask: , 11, "
                            "Division by zero)"));
    EXPECT_FALSE(masks.IsEnabled("a"));
}

TEST_F(StatusConfigurationTest, ABitThatAByteDoesNotHaveIsReportedAndLeavesTheRow)
{
    addBit(0, "a", 0, 0);
    setMasks({"FF"});
    addBit(0, "a", 0, 8);
    addBit(1, "b", 0, 1);
    messenger.clear();
    setMasks({"02"});
    EXPECT_THAT(messenger.errors(), ElementsAre("ReportError(clsStatusConfiguration ParseMask: , "
                                                "9, Subscript out of range)"));
    EXPECT_TRUE(masks.IsEnabled("a"));
    EXPECT_TRUE(masks.IsEnabled("b"));
}

TEST_F(StatusConfigurationTest, AByteBelowZeroIsReportedAndLeavesTheRow)
{
    addBit(0, "a", -2, 0);
    setMasks({"FFFFFFFF"});
    EXPECT_THAT(messenger.errors(), ElementsAre("ReportError(clsStatusConfiguration GetMaskByte: , "
                                                "5, Invalid procedure call or argument)"));
    EXPECT_FALSE(masks.IsEnabled("a"));
}

TEST_F(StatusConfigurationTest, AnEmptyListLeavesTheEarlierParametersInForce)
{
    addBits(1);
    setMasks({"00"});
    messenger.clear();
    masks.SetOfflineParameters({});
    EXPECT_THAT(messenger.calls,
                ElementsAre("WriteLog(69, StatusConfiguration SetOfflineParameters entered)"));
    masks.SetEnabled("s0", true);
    EXPECT_EQ(inFile("statusMask1"), "01");
}

TEST_F(StatusConfigurationTest, AFurtherDatafileReplacesTheParameters)
{
    addBits(1);
    setMasks({"00"});
    const auto before = file;
    setMasks({"00"});
    masks.SetEnabled("s0", true);
    EXPECT_EQ(inFile("statusMask1"), "01");
    EXPECT_EQ(before.selectSingleNode("//data:parameter/@value").get_text(), "00");
}

TEST_F(StatusConfigurationTest, LoadingADatafileChangesNothingInIt)
{
    addBits(4);
    setMasks({"0a", "F"});
    EXPECT_EQ(inFile("statusMask1"), "0a");
    EXPECT_EQ(inFile("statusMask2"), "F");
    EXPECT_EQ(inFile("statusMask1", "synchronised"), "1");
}

TEST_F(StatusConfigurationTest, AParameterWithoutANameIsReportedAndIsTheFirstPart)
{
    addBits(1);
    setOffline(R"(<data:parameter value="04"/>)");
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("clsStatusConfiguration SetOfflineParameters, 91,")));
    EXPECT_THAT(enabled(8), ElementsAre("s2"));
}

TEST_F(StatusConfigurationTest, AFirstParameterWithoutAValueKeepsTheLengthOfAPart)
{
    addBits(8);
    setOffline(R"(<data:parameter name="statusMask1"/>)" + parameter("statusMask2", "01000000"));
    EXPECT_THAT(messenger.errors(), // once for the length and once for the value
                ElementsAre(HasSubstr("clsStatusConfiguration SetOfflineParameters, 91,"),
                            HasSubstr("clsStatusConfiguration SetOfflineParameters, 91,")));
    EXPECT_THAT(enabled(64), ElementsAre("s32"));
}

TEST_F(StatusConfigurationTest, EveryStepOfLoadingIsLogged)
{
    addBit(0, "a", 0, 3);
    setMasks({"08"});
    EXPECT_THAT(
        messenger.calls,
        ElementsAre(
            "WriteLog(69, StatusConfiguration SetOfflineParameters entered)",
            "WriteLog(83, Number of mask parameters: 1)", "WriteLog(83, Length of a mask part: 2)",
            "WriteLog(83, Last array index for parameters = 0)",
            "WriteLog(83, SetOfflineParameters node to index 0)",
            "WriteLog(69, clsStatusConfiguration entering ChangeMask statusMask1 08)",
            "WriteLog(83, Oldpart was )", "WriteLog(83, Byte,bit 0,3 are in part 1)",
            "WriteLog(83, Value of the mask byte = 8)", "WriteLog(83, Value of the status = 8)",
            "WriteLog(83, a = 1)", "WriteLog(83, CHANGING CURRENT BIT MASK)",
            "WriteLog(69, clsStatusConfiguration leaving ChangeMask statusmask1)"));
}

TEST_F(StatusConfigurationTest, AFlagThatStaysIsNotLoggedAsAChange)
{
    addBit(0, "a", 0, 3);
    setMasks({"00"});
    EXPECT_THAT(logs(), Contains("WriteLog(83, a = 0)"));
    EXPECT_THAT(logs(), Not(Contains("WriteLog(83, CHANGING CURRENT BIT MASK)")));
    setMasks({"08"});
    EXPECT_THAT(logs(), Contains("WriteLog(83, CHANGING CURRENT BIT MASK)"));
    messenger.clear();
    setMasks({"F8"});
    EXPECT_THAT(logs(), Not(Contains("WriteLog(83, CHANGING CURRENT BIT MASK)")));
    setMasks({"00"});
    EXPECT_THAT(logs(), Contains("WriteLog(83, CHANGING CURRENT BIT MASK)"));
}

// --- Mask properties --------------------------------------------------------------------------

/// The bytes in a part that a model takes from its properties, seen by where a mask from the device
/// goes before any datafile came.
class MaskProperties : public testing::Test {
protected:
    static bool isByteInPart(int maskByte, int part, std::int16_t bytes, std::int16_t parts,
                             std::uint8_t unused = 255)
    {
        StatusConfiguration masks;
        masks.SetMaskProperties(unused, bytes, parts);
        masks.AddBit(0, documents::openText(R"(<s name="a" maskBit="0" maskByte=")" +
                                            std::to_string(maskByte) + "\"/>")
                            .get_documentElement());
        masks.SetOnlineParameters(okResponse("masks", item("statusMask" + std::to_string(part), "",
                                                           "hexVal", "FFFFFFFFFFFFFFFF"))
                                      .selectNodes("//comm:item"));
        return masks.IsEnabled("a");
    }
    ToolkitScope toolkit;
};

TEST_F(MaskProperties, BytesAreSharedByTheParts)
{
    EXPECT_TRUE(isByteInPart(3, 1, 12, 3));
    EXPECT_TRUE(isByteInPart(4, 2, 12, 3));
    EXPECT_TRUE(isByteInPart(11, 3, 12, 3));
    EXPECT_FALSE(isByteInPart(4, 1, 12, 3));
}

TEST_F(MaskProperties, TheDigitsOfAPartAreRoundedToEven)
{
    EXPECT_TRUE(isByteInPart(1, 2, 5, 4)); // 2.5 digits are 2: one byte
    EXPECT_TRUE(isByteInPart(1, 1, 7, 4)); // 3.5 digits are 4: two bytes
}

TEST_F(MaskProperties, TheFirstArgumentHasNoEffect)
{
    EXPECT_TRUE(isByteInPart(4, 2, 12, 3, 0));
    EXPECT_TRUE(isByteInPart(4, 2, 12, 3, 7));
}

TEST_F(MaskProperties, LessThanOnePartMakesPartsWithoutBytes)
{
    EXPECT_FALSE(isByteInPart(0, 1, 12, 0));
    EXPECT_FALSE(isByteInPart(0, 1, 12, -3));
}

TEST_F(StatusConfigurationTest, APartThatIsTooLongIsReportedAndKeepsTheLength)
{
    masks.SetMaskProperties(255, 20000, 1);
    EXPECT_THAT(messenger.errors(),
                ElementsAre("ReportError(clsStatusConfiguration SetMaskProperties, 6, Overflow)"));
    masks.SetMaskProperties(255, 32767, 2);
    EXPECT_THAT(messenger.errors(), SizeIs(1));
}

} // namespace
} // namespace quill::test
