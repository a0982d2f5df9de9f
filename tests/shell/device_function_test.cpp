#include "device_requests.h"

#include "platform/failure.h"

#include <functional>
#include <memory>

namespace quill::shell {
namespace {

using documents::responseAttribute;
using test::ask;
using test::item;
using test::itemNames;
using test::outcome;
using test::request;
using testing::ElementsAre;

/// Writes down what it hears, and does what a test has told it.
class Probe : public DeviceFunction {
public:
    std::vector<std::string>                                                     heard;
    std::function<std::optional<std::vector<std::string>>(const DeviceRequest&)> answers;
    std::function<void(SimulatedDevice&)>                                        onWritten;
    std::string                                                                  refused;

    void start(SimulatedDevice& device) override { heard.push_back("start " + device.typeName()); }
    std::optional<std::vector<std::string>> answer(SimulatedDevice&,
                                                   const DeviceRequest& asked) override
    {
        heard.push_back("answer " + asked.name);
        return answers ? answers(asked) : std::nullopt;
    }
    std::string refuses(const SimulatedDevice&, const DeviceRequestItem& asked) override
    {
        return asked.name == refused ? "hartCmdErrInvalidSelection" : "";
    }
    void written(SimulatedDevice& device, const std::vector<std::string>& parameters) override
    {
        for (const std::string& parameter : parameters) {
            heard.push_back("written " + parameter);
        }
        if (onWritten) {
            onWritten(device);
        }
    }
    void advance(SimulatedDevice&, double seconds) override
    {
        heard.push_back("advance " + std::to_string(seconds));
    }
    void conditionChanged(SimulatedDevice&, const std::string& condition, bool active) override
    {
        heard.push_back(condition + (active ? " on" : " off"));
    }
};

class DeviceFunctionTest : public testing::Test {
protected:
    DeviceFunctionTest()
    {
        device.add(std::make_unique<Probe>());
        probe = device.function<Probe>();
        probe->heard.clear();
    }

    SimulatedDevice device{documents::openText(test::sampleText("vx4400h.xml"))};
    Probe*          probe = nullptr;
};

TEST_F(DeviceFunctionTest, StartsWhenItIsAdded)
{
    device.add(std::make_unique<Probe>());
    SimulatedDevice moved = std::move(device);
    EXPECT_EQ(moved.function<Probe>(), probe);
    EXPECT_EQ(moved.function<DeviceStatus>(), nullptr);
    moved.tellCondition("c", true);
    EXPECT_THAT(probe->heard, ElementsAre("c on"));
}

TEST_F(DeviceFunctionTest, AnswersBeforeTheParameters)
{
    probe->answers = [](const DeviceRequest& asked) -> std::optional<std::vector<std::string>> {
        if (asked.name != "mine") {
            return std::nullopt;
        }
        return refusal(asked, "busy");
    };
    const auto mine = ask(device, request("mine", "act", item("a", "s", "floatVal", "1")));
    ASSERT_EQ(mine.size(), 1U);
    EXPECT_THAT(outcome(mine[0]), ElementsAre("busy", "a"));
    EXPECT_EQ(responseAttribute(mine[0], "access"), "act");
    EXPECT_EQ(responseAttribute(mine[0], "isFinal"), "1");
    const auto others = ask(device, request("tuning", "read"));
    EXPECT_EQ(itemNames(others[0]).size(), 5U);
}

TEST_F(DeviceFunctionTest, SeesTheItemsOfTheRequestGroup)
{
    std::vector<std::string> items;
    probe->answers = [&](const DeviceRequest& asked) {
        for (const auto& listed : asked.items) {
            items.push_back(listed.name);
        }
        return std::optional<std::vector<std::string>>{};
    };
    (void)device.answer(request("deviceStatusMasks", "read"));
    EXPECT_THAT(items, ElementsAre("statusMask1", "statusMask2", "statusMask3"));
}

TEST_F(DeviceFunctionTest, IsNotAskedWhenTheDeviceWasToldToFail)
{
    device.failNext("communicationError");
    (void)device.answer(request("tuning", "read"));
    EXPECT_TRUE(probe->heard.empty());
}

TEST_F(DeviceFunctionTest, HearsWhatWasWritten)
{
    (void)device.answer(request("x", "write",
                                item("tag", "noUnit", "stringVal", "A") +
                                    item("serialNumber", "noUnit", "integerVal", "1") +
                                    item("message", "noUnit", "stringVal", "B")));
    EXPECT_THAT(probe->heard, ElementsAre("answer x", "written tag", "written message"));
    probe->heard.clear();
    (void)device.answer(request("x", "read", item("tag", "noUnit", "stringVal", "")));
    EXPECT_THAT(probe->heard, ElementsAre("answer x"));
}

TEST_F(DeviceFunctionTest, WhatItMakesOfAWrittenValueGoesIntoTheAnswer)
{
    probe->onWritten = [](SimulatedDevice& written) { written.set("tag", "CHANGED"); };
    const auto parts =
        ask(device, request("x", "write", item("tag", "noUnit", "stringVal", "ASKED")));
    EXPECT_EQ(test::valueIn(parts, "tag"), "CHANGED");
}

TEST_F(DeviceFunctionTest, MayRefuseAValue)
{
    probe->refused   = "tag";
    const auto parts = ask(device, request("x", "write",
                                           item("tag", "noUnit", "stringVal", "A") +
                                               item("message", "noUnit", "stringVal", "B")));
    ASSERT_EQ(parts.size(), 2U);
    EXPECT_THAT(outcome(parts[0]), ElementsAre("", "message"));
    EXPECT_THAT(outcome(parts[1]), ElementsAre("hartCmdErrInvalidSelection", "tag"));
    EXPECT_NE(device.find("tag")->value, "A");
    EXPECT_EQ(device.write({"tag", "noUnit", "A"}), "hartCmdErrInvalidSelection");
    EXPECT_EQ(device.write({"message", "noUnit", "C"}), "");
    EXPECT_EQ(device.write({"nothing", "noUnit", "C"}), "missingItems");
    EXPECT_EQ(device.write({"serialNumber", "noUnit", "1"}), "hartCmdErrAccessRestricted");
}

TEST_F(DeviceFunctionTest, TimePassesInPiecesOfASecond)
{
    device.advance(2.5);
    EXPECT_THAT(probe->heard,
                ElementsAre("advance 1.000000", "advance 1.000000", "advance 0.500000"));
    probe->heard.clear();
    device.advance(0);
    device.advance(-1);
    EXPECT_TRUE(probe->heard.empty());
}

TEST_F(DeviceFunctionTest, AnswersCanBeCutIntoParts)
{
    const auto asked =
        DeviceRequest::parse(request("x", "read",
                                     "<item name='tag'/><item name='message'/>"
                                     "<item name='nothing'/><item name='longTag'/>"));
    const auto served = device.serve(asked);
    const auto texts  = device.compose(asked, served, 2);
    ASSERT_EQ(texts.size(), 3U);
    std::vector<std::string> finals;
    for (const std::string& text : texts) {
        finals.push_back(responseAttribute(documents::openText(text), "isFinal"));
    }
    EXPECT_THAT(finals, ElementsAre("0", "0", "1"));
    EXPECT_THAT(outcome(documents::openText(texts[0])), ElementsAre("", "tag", "message"));
    EXPECT_THAT(outcome(documents::openText(texts[1])), ElementsAre("", "longTag"));
    EXPECT_THAT(outcome(documents::openText(texts[2])), ElementsAre("missingItems", "nothing"));
    EXPECT_EQ(device.compose(asked, served).size(), 2U);
}

TEST_F(DeviceFunctionTest, NothingServedIsNoPart)
{
    const auto asked = DeviceRequest::parse(request("x", "read", "<item name='a'/>"));
    const auto texts = device.compose(asked, device.serve(asked), 1);
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_THAT(outcome(documents::openText(texts[0])), ElementsAre("missingItems", "a"));
}

TEST(DeviceRequest, IsTakenApart)
{
    const auto parsed = DeviceRequest::parse(
        request("x", "write", item("a", "s", "floatVal", "1.5") + "<item name='b'/>"));
    EXPECT_EQ(parsed.name, "x");
    EXPECT_TRUE(parsed.isWrite());
    EXPECT_FALSE(parsed.isRead());
    EXPECT_FALSE(parsed.isAct());
    ASSERT_TRUE(parsed.find("a"));
    EXPECT_EQ(parsed.find("a")->unit, "s");
    EXPECT_EQ(parsed.find("a")->value, "1.5");
    EXPECT_EQ(parsed.find("b")->value, "");
    EXPECT_EQ(parsed.find("c"), nullptr);
    EXPECT_THROW(DeviceRequest::parse("<item/>"), platform::Failure);
    EXPECT_THROW(DeviceRequest::parse("<communicationRequest name='x' access='read'><item/>"
                                      "</communicationRequest>"),
                 platform::Failure);
}

TEST(DeviceResponse, AnEmptyAnswerHasNoParts)
{
    EXPECT_TRUE(messageTexts({}).empty());
}

TEST(SimulatedDevice, KnowsItsFamilyByTheNameOfItsType)
{
    const SimulatedDevice hart{documents::openText(test::sampleText("vx4400h.xml"))};
    EXPECT_EQ(hart.typeName(), "VX4400H");
    EXPECT_TRUE(hart.isHart());
    const SimulatedDevice fieldbus{documents::openText(test::sampleText("vx4400f.xml"))};
    EXPECT_EQ(fieldbus.typeName(), "VX4400F");
    EXPECT_FALSE(fieldbus.isHart());
    EXPECT_EQ(SimulatedDevice{}.typeName(), "");
}

TEST(SimulatedDevice, ADatafileOfAnUnknownTypeMakesADeviceOfParametersOnly)
{
    std::string text = test::sampleText("vx4400h.xml");
    text.replace(text.find("internalInfo name=\"VX4400H\""), 27, "internalInfo name=\"ZZ9\"");
    SimulatedDevice device = buildDevice(documents::openText(text));
    EXPECT_EQ(device.typeName(), "ZZ9");
    EXPECT_EQ(device.find("supplyPressure")->value, "5.60");
    EXPECT_EQ(device.function<DevicePhysics>(), nullptr);
    EXPECT_EQ(device.function<DeviceStatus>(), nullptr);
    EXPECT_THAT(outcome(ask(device, request("deviceStatusClearConfigurationChanged", "act"))[0]),
                ElementsAre("commandIsNotImplemented"));
}

} // namespace
} // namespace quill::shell
