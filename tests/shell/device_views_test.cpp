#include "device_requests.h"

#include "status/CtrStatus.h"
#include "status/CtrStatusF.h"
#include "status/StatusConfiguration.h"
#include "support/recording_messenger.h"
#include "support/toolkit_scope.h"

#include <random>

namespace quill::shell {
namespace {

using test::ask;
using test::fullDevice;
using test::model;
using test::request;
using test::status;

/// A status view on a page of the host, with the sample device on the other side of the wire.
template <class View>
class StatusPage {
public:
    explicit StatusPage(const std::string& type, std::int16_t classification = kClassSeverity)
        : device(fullDevice(type)), datafile(documents::openText(test::sampleText(type + ".xml")))
    {
        model(device).setDemand(12);
        device.advance(30);
        host.deviceTypeInfo    = test::typeInfo(type);
        host.classification    = classification;
        host.communicationMode = kOnline;
        view.SetMessenger(&host);
        view.SetOfflineData(datafile);
    }
    ~StatusPage() { view.PrepareToRelease(); }
    StatusPage(const StatusPage&)            = delete;
    StatusPage& operator=(const StatusPage&) = delete;

    void exchange(const std::string& message)
    {
        for (const IXMLDOMDocument& part : ask(device, message)) {
            view.SetOnlineData(part);
            for (const IXMLDOMNode& item :
                 part.selectNodes("//comm:item[starts-with(@name,'statusMask')]")) {
                host.ViewReceiveValue.raise(documents::attributeText(item, "name"),
                                            item.get_text());
            }
        }
    }
    void readStatus() { exchange(request("deviceStatus", "read")); }
    void readMasks() { exchange(request("deviceStatusMasks", "read")); }

    [[nodiscard]] std::string image(const std::string& condition)
    {
        for (int row = 1; row <= view.lastRow() + 1; ++row) {
            if (view.scgStatusKey.cell(row, 1).Text == condition) {
                return view.images().at(static_cast<std::size_t>(row) - 1);
            }
        }
        return "no row";
    }

    quill::test::ToolkitScope       toolkit;
    quill::test::RecordingMessenger host;
    SimulatedDevice                 device;
    IXMLDOMDocument                 datafile;
    View                            view{platform::Design{.Name = "status", .Tag = "deviceStatus"}};
};

TEST(StatusViewsOfADevice, TheTreeShowsWhatTheDeviceReports)
{
    StatusPage<CtrStatus> page{"vx4400h"};
    page.readStatus();
    EXPECT_EQ(page.view.CombinedStatus(), "ok");
    model(page.device).setFault(Fault::supplyFailure, true);
    page.device.advance(20);
    page.readStatus();
    EXPECT_EQ(page.image("statusSupplyPressureLow"), "alarm");
    EXPECT_EQ(page.image("statusDriveSaturated"), "warning");
    EXPECT_EQ(page.image("statusGroupPneumatics"), "alarm");
    EXPECT_EQ(page.image("statusGroupSensors"), "ok");
    EXPECT_EQ(page.view.CombinedStatus(), "alarm");
    model(page.device).setFault(Fault::supplyFailure, false);
    page.device.advance(60);
    page.readStatus();
    EXPECT_EQ(page.view.CombinedStatus(), "ok");
}

TEST(StatusViewsOfADevice, AStatusThatCannotBeReadIsUnknown)
{
    StatusPage<CtrStatus> page{"vx4400h"};
    page.readStatus();
    page.device.failAlways("statusSeatWear", "hartCmdErrNoDataAvailable");
    const auto parts = ask(page.device, request("deviceStatus", "read"));
    page.view.SetErrorData(parts.back());
    EXPECT_EQ(page.image("statusSeatWear"), "unknown");
    EXPECT_EQ(page.image("statusFrictionHigh"), "ok");
    EXPECT_EQ(page.view.CombinedStatus(), "ok");
    page.device.failNext("communicationError", {"statusDiagnosisExtensionPart1"});
    page.view.SetErrorData(ask(page.device, request("deviceStatus", "read")).front());
    EXPECT_EQ(page.image("statusFrictionHigh"), "unknown");
    EXPECT_EQ(page.view.CombinedStatus(), "unknown");
}

TEST(StatusViewsOfADevice, TheHartDeviceHasBothClassifications)
{
    StatusPage<CtrStatus> page{"vx4400h", kClassNAMUR};
    EXPECT_FALSE(page.view.isClassificationFixed());
    model(page.device).setFault(Fault::supplyFailure, true);
    page.device.advance(20);
    page.readStatus();
    EXPECT_EQ(page.image("statusSupplyPressureLow"), "deviceOffSpecification");
    EXPECT_EQ(page.view.CombinedStatus(), "deviceOffSpecification");
}

TEST(StatusViewsOfADevice, TheFieldbusDeviceHasSeveritiesOnly)
{
    StatusPage<CtrStatus> page{"vx4400f", kClassNAMUR};
    EXPECT_TRUE(page.view.isClassificationFixed());
    EXPECT_EQ(page.view.classification(), kClassSeverity);
    page.readStatus();
    EXPECT_EQ(page.view.CombinedStatus(), "ok");
}

TEST(StatusViewsOfADevice, MasksOfTheFieldbusDeviceMoveAConditionToAnotherSeverity)
{
    StatusPage<CtrStatus> page{"vx4400f"};
    status(page.device).setPresent(page.device, "statusCavitation", true);
    page.readStatus();
    EXPECT_EQ(page.image("statusCavitation"), "warning");
    page.readMasks();
    page.readStatus();
    EXPECT_EQ(page.image("statusCavitation"), "alarm");
    EXPECT_EQ(page.image("statusSeatWear"), "inactive");
    page.exchange(request("deviceStatusMasks", "write",
                          test::maskItem("statusMaskAlarm3", "10010C00") +
                              test::maskItem("statusMaskInfo3", "08023007")));
    page.readStatus();
    EXPECT_EQ(page.image("statusCavitation"), "info");
    page.exchange(
        request("deviceStatusMasks", "write", test::maskItem("statusMaskInfo3", "00023007")));
    page.readStatus();
    EXPECT_EQ(page.image("statusCavitation"), "inactive");
}

/// As the text of a small device that knows the diagnostic categories and no severities.
constexpr const char* kNamurOnly =
    "<deviceTypeInfo><deviceStatus><branch name='statusGroupValve'>"
    "<status name='statusTravelDeviation' classNAMUR='deviceOffSpecification' maskByte='5'"
    " maskBit='0'/><status name='statusSeatWear' classNAMUR='deviceMaintenanceRequired'"
    " maskByte='6' maskBit='3'/></branch></deviceStatus></deviceTypeInfo>";

TEST(StatusViewsOfADevice, ADeviceMayHaveDiagnosticCategoriesOnly)
{
    SimulatedDevice device{documents::openText(test::sampleText("vx4400h.xml"))};
    device.add(std::make_unique<DeviceStatus>(documents::openText(kNamurOnly)));
    EXPECT_EQ(status(device).find("statusSeatWear")->severity, "");
    status(device).setPresent(device, "statusSeatWear", true);

    const quill::test::ToolkitScope toolkit;
    quill::test::RecordingMessenger host;
    host.deviceTypeInfo = documents::openText(kNamurOnly);
    host.classification = kClassSeverity;
    CtrStatus view{platform::Design{.Name = "status", .Tag = "deviceStatus"}};
    view.SetMessenger(&host);
    EXPECT_TRUE(view.isClassificationFixed());
    EXPECT_EQ(view.classification(), kClassNAMUR);
    // All of its conditions stand in the second part of the mask.
    const auto parts = ask(device, request("deviceStatus", "read"));
    ASSERT_EQ(parts.size(), 1U);
    EXPECT_EQ(documents::responseAttribute(parts[0], "isFinal"), "1");
    view.SetOnlineData(parts[0]);
    EXPECT_EQ(view.CombinedStatus(), "deviceMaintenanceRequired");
    view.PrepareToRelease();
}

TEST(StatusViewsOfADevice, TheConfigurableViewAsksForTheMasksAndShowsThem)
{
    StatusPage<CtrStatusF> page{"vx4400h"};
    status(page.device).setPresent(page.device, "statusSeatWear", true);
    page.readStatus();
    EXPECT_THAT(page.host.calls, testing::Contains(testing::HasSubstr("deviceStatusMasks")));
    page.readMasks();
    page.readStatus();
    EXPECT_EQ(page.image("statusSeatWear"), "deviceDiagnosisPassiv");
    EXPECT_EQ(page.image("statusTravelDeviation"), "deviceOk");
    EXPECT_EQ(
        documents::attributeText(documents::findParameter(page.datafile, "statusMask2"), "value"),
        "7F7F1700");
}

TEST(StatusViewsOfADevice, RandomSwitchesGoThroughTheDeviceAndBack)
{
    SimulatedDevice device   = fullDevice("vx4400h");
    const auto      datafile = documents::openText(test::sampleText("vx4400h.xml"));
    std::mt19937    random{9};
    const auto      masksOf = [](const IXMLDOMNode& file) {
        return file.selectNodes("./data:dtm/data:persistentData/data:parameters/"
                                          "data:parameter[starts-with(@name,'statusMask')]");
    };
    quill::test::RecordingMessenger host;
    StatusConfiguration             edited;
    StatusConfiguration             read;
    const auto                      definition = test::typeInfo("vx4400h");
    const auto                      statuses   = definition.selectNodes("//deviceStatus/*/*");
    const auto                      other = documents::openText(test::sampleText("vx4400h.xml"));
    for (StatusConfiguration* configuration : {&edited, &read}) {
        configuration->SetMessenger(&host);
        configuration->SetMaskProperties(255, 12, 3);
        for (int i = 0; i < statuses.get_length(); ++i) {
            configuration->AddBit(static_cast<std::int16_t>(i + 1), statuses.get_item(i));
        }
    }
    edited.SetOfflineParameters(masksOf(datafile));
    read.SetOfflineParameters(masksOf(other));

    for (int round = 0; round < 25; ++round) {
        for (const DeviceCondition& condition : status(device).conditions()) {
            if (condition.hasMask()) {
                edited.SetEnabled(condition.name, random() % 2 == 0);
            }
        }
        std::string           items;
        const IXMLDOMDocument download = edited.GetXmlItem(true);
        for (const IXMLDOMNode& entry : download.selectNodes("//item")) {
            items += entry.get_xml();
        }
        ASSERT_NE(items, "");
        (void)device.answer(request("deviceStatusMasks", "write", items));
        for (const auto& part : ask(device, request("deviceStatusMasks", "read"))) {
            read.SetOnlineParameters(part.selectNodes("//comm:item"));
        }
        for (const DeviceCondition& condition : status(device).conditions()) {
            if (condition.hasMask()) {
                ASSERT_EQ(read.IsEnabled(condition.name), edited.IsEnabled(condition.name))
                    << condition.name;
            }
        }
    }
}

} // namespace
} // namespace quill::shell
