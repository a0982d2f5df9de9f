#include "device_requests.h"

#include <array>
#include <random>

namespace quill::shell {
namespace {

using documents::responseAttribute;
using test::ask;
using test::fullDevice;
using test::itemNames;
using test::maskItem;
using test::model;
using test::outcome;
using test::reported;
using test::request;
using test::status;
using testing::ElementsAre;

const std::vector<std::string> kKinds{"Info", "Warning", "Alarm"};

std::string randomPart(std::mt19937& random)
{
    constexpr const char* kDigits = "0123456789ABCDEF";
    std::string           part;
    for (int i = 0; i < 2 * DeviceStatus::kBytesInPart; ++i) {
        part += kDigits[random() % 16];
    }
    return part;
}

/// The bit of a condition in three parts.
bool isSet(const DeviceCondition& condition, const std::array<std::string, 3>& parts)
{
    const auto part = static_cast<std::size_t>(condition.maskByte / DeviceStatus::kBytesInPart);
    return isMaskBitSet(parts.at(part), condition.maskByte % DeviceStatus::kBytesInPart,
                        condition.maskBit);
}

/// All that can be switched is there.
void makeAllPresent(SimulatedDevice& device)
{
    const auto conditions = status(device).conditions();
    for (const DeviceCondition& condition : conditions) {
        if (!condition.isMeasured) {
            status(device).setPresent(device, condition.name, true);
        }
    }
}

TEST(Masks, HaveTwoDigitsForEachByte)
{
    EXPECT_TRUE(isMaskPart("00ff7F3a"));
    EXPECT_FALSE(isMaskPart("00FF7F3"));
    EXPECT_FALSE(isMaskPart("00FF7F3A0"));
    EXPECT_FALSE(isMaskPart("00FF7F3G"));
    EXPECT_FALSE(isMaskPart(""));
    EXPECT_TRUE(isMaskBitSet("01800000", 0, 0));
    EXPECT_TRUE(isMaskBitSet("01800000", 1, 7));
    EXPECT_FALSE(isMaskBitSet("01800000", 0, 1));
    EXPECT_FALSE(isMaskBitSet("01800000", 3, 0));
}

TEST(Masks, BytesThatAreMissingAreFull)
{
    EXPECT_TRUE(isMaskBitSet("0000", 2, 5));
    EXPECT_TRUE(isMaskBitSet("", 0, 0));
}

TEST(Masks, UniteByteByByte)
{
    EXPECT_EQ(uniteMasks("0102F0", "10020f"), "1102FF");
    EXPECT_EQ(uniteMasks("01", "0204"), "03FF");
    EXPECT_EQ(uniteMasks("", ""), "");
}

class HartMasks : public testing::Test {
protected:
    SimulatedDevice device = fullDevice("vx4400h");
};

TEST_F(HartMasks, AreReadInThreeParts)
{
    const auto parts = ask(device, request("deviceStatusMasks", "read"));
    ASSERT_EQ(parts.size(), 3U);
    for (std::size_t i = 0; i < 3; ++i) {
        const std::string name = "statusMask" + std::to_string(i + 1);
        EXPECT_THAT(outcome(parts[i]), ElementsAre("", name));
        EXPECT_EQ(responseAttribute(parts[i], "isFinal"), i == 2 ? "1" : "0");
        const auto found = documents::findItem(parts[i], name);
        EXPECT_EQ(documents::attributeText(found, "unit"), "noUnit");
        EXPECT_EQ(documents::itemValue(found, "stringVal"), device.find(name)->value);
    }
    EXPECT_EQ(test::valueIn(parts, "statusMask2"), "7F7F1700");
}

TEST_F(HartMasks, AreWrittenInThreeParts)
{
    const auto parts = ask(device, request("deviceStatusMasks", "write",
                                           maskItem("statusMask1", "00000001") +
                                               maskItem("statusMask2", "abcdef09") +
                                               maskItem("statusMask3", "00000000")));
    ASSERT_EQ(parts.size(), 3U);
    EXPECT_EQ(responseAttribute(parts[2], "access"), "write");
    EXPECT_EQ(responseAttribute(parts[1], "isFinal"), "0");
    EXPECT_EQ(responseAttribute(parts[2], "isFinal"), "1");
    EXPECT_EQ(test::valueIn(parts, "statusMask2"), "ABCDEF09");
    EXPECT_EQ(device.find("statusMask2")->value, "ABCDEF09");
}

TEST_F(HartMasks, MayBeWrittenOneByOneAndInAnyRequest)
{
    EXPECT_EQ(
        ask(device, request("deviceStatusMasks", "write", maskItem("statusMask2", "00000000")))
            .size(),
        1U);
    EXPECT_EQ(device.find("statusMask2")->value, "00000000");
    EXPECT_EQ(
        responseAttribute(ask(device, request("x", "write", maskItem("statusMask3", "12"))).at(0),
                          "errorCode"),
        "hartCmdErrInvalidSelection");
}

TEST_F(HartMasks, RefusesWhatIsNoMask)
{
    const std::string before = device.find("statusMask1")->value;
    for (const char* wrong : {"", "1", "3F3F00", "3F3F0000 ", "3F3F00000", "3F3F000G", "true"}) {
        const auto parts =
            ask(device, request("deviceStatusMasks", "write", maskItem("statusMask1", wrong)));
        ASSERT_EQ(parts.size(), 1U);
        EXPECT_THAT(outcome(parts[0]), ElementsAre("hartCmdErrInvalidSelection", "statusMask1"))
            << wrong;
    }
    EXPECT_EQ(device.find("statusMask1")->value, before);
    EXPECT_THAT(outcome(ask(device, request("deviceStatusMasks", "write",
                                            maskItem("statusMask4", "00000000")))[0]),
                ElementsAre("missingItems", "statusMask4"));
}

TEST_F(HartMasks, ARefusedPartDoesNotHinderTheOthers)
{
    const auto parts =
        ask(device, request("deviceStatusMasks", "write",
                            maskItem("statusMask1", "zz") + maskItem("statusMask2", "11111111")));
    ASSERT_EQ(parts.size(), 2U);
    EXPECT_THAT(outcome(parts[0]), ElementsAre("", "statusMask2"));
    EXPECT_EQ(responseAttribute(parts[0], "isFinal"), "0");
    EXPECT_THAT(outcome(parts[1]), ElementsAre("hartCmdErrInvalidSelection", "statusMask1"));
    EXPECT_EQ(responseAttribute(parts[1], "isFinal"), "1");
}

TEST_F(HartMasks, AMaskedConditionIsReportedAsAbsent)
{
    status(device).setPresent(device, "statusSeatWear", true); // masked in this device
    EXPECT_TRUE(status(device).find("statusSeatWear")->isPresent);
    EXPECT_EQ(reported(device, "statusSeatWear"), "0");
    (void)device.answer(request("deviceStatusMasks", "write", maskItem("statusMask2", "7F7F1F00")));
    EXPECT_EQ(reported(device, "statusSeatWear"), "1");
    (void)device.answer(request("deviceStatusMasks", "write", maskItem("statusMask2", "7F7F1700")));
    EXPECT_EQ(reported(device, "statusSeatWear"), "0");
}

TEST_F(HartMasks, ConditionsWithoutAMaskCannotBeMasked)
{
    status(device).setPresent(device, "statusMemoryFailure", true);
    (void)device.answer(request("deviceStatusMasks", "write",
                                maskItem("statusMask1", "00000000") +
                                    maskItem("statusMask2", "00000000") +
                                    maskItem("statusMask3", "00000000")));
    EXPECT_EQ(reported(device, "statusMemoryFailure"), "1");
    EXPECT_EQ(reported(device, "statusHARTConfigurationChanged"), "1");
}

TEST_F(HartMasks, RandomMasksComeBackAndRule)
{
    std::mt19937 random{20};
    makeAllPresent(device);
    for (int round = 0; round < 40; ++round) {
        std::array<std::string, 3> masks;
        std::string                items;
        for (std::size_t i = 0; i < 3; ++i) {
            masks.at(i) = randomPart(random);
            items += maskItem("statusMask" + std::to_string(i + 1), masks.at(i));
        }
        (void)device.answer(request("deviceStatusMasks", "write", items));
        const auto read = ask(device, request("deviceStatusMasks", "read"));
        for (std::size_t i = 0; i < 3; ++i) {
            ASSERT_EQ(test::valueIn(read, "statusMask" + std::to_string(i + 1)), masks.at(i));
        }
        const auto told = ask(device, request("deviceStatus", "read"));
        for (const DeviceCondition& condition : status(device).conditions()) {
            if (!condition.isMeasured && condition.hasMask() &&
                condition.name != "statusColdStart") {
                ASSERT_EQ(test::valueIn(told, condition.name), isSet(condition, masks) ? "1" : "0")
                    << condition.name;
            }
        }
    }
}

class FieldbusMasks : public testing::Test {
protected:
    SimulatedDevice device = fullDevice("vx4400f");
};

TEST_F(FieldbusMasks, AreReadInOnePartForEachSet)
{
    const auto parts = ask(device, request("deviceStatusMasks", "read"));
    ASSERT_EQ(parts.size(), 4U);
    EXPECT_THAT(itemNames(parts[0]),
                ElementsAre("statusMaskInfo1", "statusMaskInfo2", "statusMaskInfo3"));
    EXPECT_THAT(itemNames(parts[3]),
                ElementsAre("statusMaskOnOff1", "statusMaskOnOff2", "statusMaskOnOff3"));
    EXPECT_EQ(responseAttribute(parts[2], "isFinal"), "0");
    EXPECT_EQ(responseAttribute(parts[3], "isFinal"), "1");
}

TEST_F(FieldbusMasks, TellInWhichOfThemAConditionStandsAtAll)
{
    for (const char* part : {"1", "2", "3"}) {
        std::string united;
        for (const std::string& kind : kKinds) {
            united = uniteMasks(united.empty() ? "00000000" : united,
                                device.find("statusMask" + kind + part)->value);
        }
        EXPECT_EQ(device.find(std::string{"statusMaskOnOff"} + part)->value, united);
    }
    EXPECT_EQ(device.find("statusMaskOnOff2")->value, "7F7D1700"); // without seat wear
}

TEST_F(FieldbusMasks, AnAnswerToAWriteTellsWhatIsSwitchedOnNow)
{
    const auto parts = ask(device, request("deviceStatusMasks", "write",
                                           maskItem("statusMaskInfo2", "00000000") +
                                               maskItem("statusMaskAlarm2", "0000000f")));
    EXPECT_EQ(test::valueIn(parts, "statusMaskInfo2"), "00000000");
    EXPECT_EQ(test::valueIn(parts, "statusMaskAlarm2"), "0000000F");
    EXPECT_EQ(test::valueIn(parts, "statusMaskOnOff2"), "5A14100F");
    EXPECT_EQ(test::valueIn(parts, "statusMaskOnOff1"), "?");
    EXPECT_EQ(device.find("statusMaskOnOff2")->value, "5A14100F");
}

TEST_F(FieldbusMasks, WhatIsSwitchedOnCannotBeWritten)
{
    EXPECT_THAT(outcome(ask(device, request("deviceStatusMasks", "write",
                                            maskItem("statusMaskOnOff1", "00000000")))[0]),
                ElementsAre("hartCmdErrAccessRestricted", "statusMaskOnOff1"));
}

TEST_F(FieldbusMasks, AConditionInNoneOfThemIsReportedAsAbsent)
{
    status(device).setPresent(device, "statusSeatWear", true);
    EXPECT_EQ(reported(device, "statusSeatWear"), "0");
    (void)device.answer(
        request("deviceStatusMasks", "write", maskItem("statusMaskAlarm2", "21010C00")));
    EXPECT_EQ(reported(device, "statusSeatWear"), "1");
    (void)device.answer(request("deviceStatusMasks", "write",
                                maskItem("statusMaskAlarm2", "21010400") +
                                    maskItem("statusMaskInfo2", "04680B00")));
    EXPECT_EQ(reported(device, "statusSeatWear"), "1");
}

TEST_F(FieldbusMasks, RandomMasksComeBackAndRule)
{
    std::mt19937 random{21};
    makeAllPresent(device);
    for (int round = 0; round < 40; ++round) {
        std::array<std::string, 3> united{"00000000", "00000000", "00000000"};
        std::string                items;
        for (const std::string& kind : kKinds) {
            for (std::size_t i = 0; i < 3; ++i) {
                const std::string part = randomPart(random);
                united.at(i)           = uniteMasks(united.at(i), part);
                items += maskItem("statusMask" + kind + std::to_string(i + 1), part);
            }
        }
        (void)device.answer(request("deviceStatusMasks", "write", items));
        const auto read = ask(device, request("deviceStatusMasks", "read"));
        for (std::size_t i = 0; i < 3; ++i) {
            ASSERT_EQ(test::valueIn(read, "statusMaskOnOff" + std::to_string(i + 1)), united.at(i));
        }
        const auto told = ask(device, request("deviceStatus", "read"));
        for (const DeviceCondition& condition : status(device).conditions()) {
            if (!condition.isMeasured && condition.hasMask() &&
                condition.name != "statusColdStart") {
                ASSERT_EQ(test::valueIn(told, condition.name), isSet(condition, united) ? "1" : "0")
                    << condition.name;
            }
        }
    }
}

TEST(DeviceMasks, WithoutMasksAllIsDiagnosed)
{
    std::string text = test::sampleText("vx4400h.xml");
    for (std::size_t at = text.find("name=\"statusMask"); at != std::string::npos;
         at             = text.find("name=\"statusMask")) {
        text.replace(at, 16, "name=\"stumm");
    }
    SimulatedDevice device = buildDevice(documents::openText(text));
    status(device).setPresent(device, "statusSeatWear", true);
    EXPECT_EQ(reported(device, "statusSeatWear"), "1");
    EXPECT_EQ(ask(device, request("deviceStatusMasks", "read")).size(), 3U);
}

} // namespace
} // namespace quill::shell
