#include "shell/address_service.h"

#include "actions/CtrHartAddress.h"
#include "device_requests.h"
#include "shell/device_events.h"
#include "support/recording_messenger.h"
#include "support/toolkit_scope.h"

namespace quill::shell {
namespace {

using namespace test;
using testing::ElementsAre;

std::string valueOf(const SimulatedDevice& device, const std::string& parameter)
{
    return device.find(parameter)->value;
}

std::string written(SimulatedDevice& device, const std::string& items)
{
    const auto parts = ask(device, request("hartAddress", "write", items));
    return documents::responseAttribute(parts.at(0), "errorCode");
}

std::string addressItem(const std::string& address)
{
    return item("pollingAddress", "noUnit", "integerVal", address);
}

std::string multidropItem(const std::string& value)
{
    return item("multidrop", "noUnit", "integerVal", value);
}

TEST(HartAddress, AnAddressSwitchesMultidropOnAndZeroOff)
{
    auto device = fullDevice("vx4400h");
    EXPECT_EQ(valueOf(device, "multidrop"), "0");
    EXPECT_EQ(written(device, addressItem("7")), "");
    EXPECT_EQ(valueOf(device, "multidrop"), "1");
    EXPECT_EQ(written(device, addressItem("0")), "");
    EXPECT_EQ(valueOf(device, "multidrop"), "0");
}

TEST(HartAddress, MultidropWithoutAnAddressTakesTheFirst)
{
    auto device = fullDevice("vx4400h");
    EXPECT_EQ(written(device, multidropItem("1")), "");
    EXPECT_EQ(valueOf(device, "pollingAddress"), "1");
    EXPECT_EQ(written(device, addressItem("9")), "");
    EXPECT_EQ(written(device, multidropItem("1")), "");
    EXPECT_EQ(valueOf(device, "pollingAddress"), "9") << "it has one already";
    EXPECT_EQ(written(device, multidropItem("0")), "");
    EXPECT_EQ(valueOf(device, "pollingAddress"), "0");
    EXPECT_EQ(written(device, multidropItem("0") + addressItem("3")), "");
    EXPECT_EQ(valueOf(device, "multidrop"), "1") << "who writes both means the address";
}

TEST(HartAddress, TheAnswerHoldsBothAsTheyAreNow)
{
    auto       device = fullDevice("vx4400h");
    const auto parts =
        ask(device, request("hartAddress", "write", multidropItem("1") + addressItem("0")));
    EXPECT_EQ(valueIn(parts, "multidrop"), "0");
    EXPECT_EQ(valueIn(parts, "pollingAddress"), "0");
}

TEST(HartAddress, ADeviceStartsWithBothInStep)
{
    auto device = fullDevice("vx4400h");
    device.set("pollingAddress", "5");
    device.add(std::make_unique<HartAddress>());
    EXPECT_EQ(valueOf(device, "multidrop"), "1");
}

TEST(HartAddress, OnlyAnotherAddressIsAnEvent)
{
    auto        device = fullDevice("vx4400h");
    const auto& ring   = device.function<DeviceEvents>()->ring();
    const auto  before = ring.next();
    EXPECT_EQ(written(device, addressItem("0")), "");
    EXPECT_EQ(ring.next(), before);
    EXPECT_EQ(written(device, addressItem("2")), "");
    ASSERT_EQ(ring.next(), before + 1);
    EXPECT_EQ(ring.find(before)->key, "vx4400eventAddressChanged");
}

TEST(HartAddress, ADeviceWithoutAnAddressIsLeftAlone)
{
    auto device = fullDevice("vx4400f");
    device.add(std::make_unique<HartAddress>());
    EXPECT_EQ(
        documents::responseAttribute(
            ask(device, request("x", "write", item("filterTime", "s", "floatVal", "1"))).at(0),
            "errorCode"),
        "");
}

class AddressServiceTest : public testing::Test {
protected:
    SimulatedDevice      device    = fullDevice("vx4400h");
    bool                 reachable = true;
    DeviceAddressService service{device, [this] { return reachable; }};
};

TEST_F(AddressServiceTest, ReadsAndSetsTheAddressOfTheDevice)
{
    EXPECT_EQ(service.ReadAddress(), 0);
    EXPECT_TRUE(service.WriteAddress(0, 0, 0, 12));
    EXPECT_EQ(valueOf(device, "pollingAddress"), "12");
    EXPECT_EQ(service.ReadAddress(), 12);
    device.set("pollingAddress", "4");
    EXPECT_EQ(service.ReadAddress(), 4) << "it keeps none of its own";
}

TEST_F(AddressServiceTest, WithoutAConnectionThereIsNoAddress)
{
    reachable = false;
    EXPECT_EQ(service.ReadAddress(), std::nullopt);
    EXPECT_FALSE(service.WriteAddress(0, 0, 0, 12));
    EXPECT_EQ(valueOf(device, "pollingAddress"), "0");
    DeviceAddressService always{device};
    EXPECT_EQ(always.ReadAddress(), 0);
}

TEST_F(AddressServiceTest, AnAddressBeyondTheDevicesLimitIsRefused)
{
    EXPECT_FALSE(service.WriteAddress(0, 0, 0, 64));
    EXPECT_EQ(valueOf(device, "pollingAddress"), "0") << "and not taken to the limit";
    EXPECT_TRUE(service.WriteAddress(0, 0, 0, 63));
}

TEST_F(AddressServiceTest, WhatFailsInTheDeviceFailsHere)
{
    device.failAlways("pollingAddress", "hartCmdErrAccessRestricted");
    EXPECT_EQ(service.ReadAddress(), std::nullopt);
    EXPECT_FALSE(service.WriteAddress(0, 0, 0, 2));
    device.failAlways("pollingAddress", "");
    device.failNext("communicationError");
    EXPECT_FALSE(service.WriteAddress(0, 0, 0, 2));
    EXPECT_TRUE(service.WriteAddress(0, 0, 0, 2));
}

TEST_F(AddressServiceTest, AFieldbusDeviceHasNoPollingAddress)
{
    auto                 fieldbus = fullDevice("vx4400f");
    DeviceAddressService other{fieldbus};
    EXPECT_EQ(other.ReadAddress(), std::nullopt);
    EXPECT_FALSE(other.WriteAddress(0, 0, 0, 2));
}

/// The view sets the address of the device.
TEST_F(AddressServiceTest, TheViewSetsTheAddressThroughIt)
{
    const quill::test::ToolkitScope toolkit;
    quill::test::RecordingMessenger messenger;
    messenger.addressService = &service;
    CtrHartAddress view{{.Name = "address", .Tag = "hartAddress"}};
    view.SetMessenger(&messenger);
    view.SetOfflineData(documents::openText(sampleText("vx4400h.xml")));
    view.UpdateHartAddress();
    EXPECT_EQ(view.cceAddress.Text(), "0");

    // The list of the datafile: 0 "disabled", 1 "enabled".
    view.cceMultidrop.cboBox.choose(1);
    EXPECT_EQ(view.cceAddress.Text(), "1");
    view.cceAddress.cboBox.choose(4);
    view.cmdSet.click();
    EXPECT_EQ(valueOf(device, "pollingAddress"), "5");
    EXPECT_EQ(valueOf(device, "multidrop"), "1");
    EXPECT_THAT(messenger.callsTo("SetParameterState"),
                testing::Contains("SetParameterState(hartAddress, sync)"));

    reachable = false;
    view.cceMultidrop.cboBox.choose(0);
    messenger.clear();
    view.cmdSet.click();
    EXPECT_EQ(valueOf(device, "pollingAddress"), "5");
    EXPECT_THAT(messenger.callsTo("SetParameterState"),
                testing::Not(testing::Contains("SetParameterState(hartAddress, sync)")));
}

} // namespace
} // namespace quill::shell
