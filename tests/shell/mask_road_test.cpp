// One set of bits in four places: what the view shows, the datafile, the items that go out, and the
// device with what it reports by them.
#include "device_host.h"
#include "device_requests.h"
#include "status/CtrStatusF.h"
#include "status/StatusConfiguration.h"
#include "support/toolkit_scope.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <random>

namespace quill::shell {
namespace {

using namespace test;
using platform::UserDoor;

constexpr int kParts = DeviceStatus::kParts;
constexpr int kBytes = DeviceStatus::kBytesInPart;

/// The bits of all parts, kept in a way of its own.
using Bits  = std::vector<bool>;
using Texts = std::array<std::string, kParts>;

Texts textsOf(const Bits& bits)
{
    Texts texts;
    for (std::size_t byte = 0; byte < bits.size() / 8; ++byte) {
        int value = 0;
        for (std::size_t bit = 0; bit < 8; ++bit) {
            value += bits[8 * byte + bit] ? 1 << bit : 0;
        }
        const QString digits = QString::number(value, 16).rightJustified(2, '0').toUpper();
        texts.at(byte / kBytes) += digits.toStdString();
    }
    return texts;
}

std::size_t placeOf(const DeviceCondition& condition)
{
    return static_cast<std::size_t>(8 * condition.maskByte + condition.maskBit);
}

std::string maskName(std::size_t part)
{
    return "statusMask" + std::to_string(part + 1);
}

class MaskRoad : public testing::TestWithParam<unsigned> {
protected:
    MaskRoad() { random.seed(GetParam()); }

    Bits randomBits()
    {
        Bits bits(std::size_t{8} * kParts * kBytes);
        std::generate(bits.begin(), bits.end(), [&] { return random() % 2 == 0; });
        return bits;
    }
    /// A device and a datafile with the same masks, that of the file perhaps in small letters.
    void start(const Bits& bits)
    {
        const Texts texts  = textsOf(bits);
        const bool  small  = random() % 2 == 0;
        std::string writes = {};
        for (std::size_t part = 0; part < kParts; ++part) {
            const QString text = QString::fromStdString(texts.at(part));
            documents::writeAttribute(documents::findParameter(datafile, maskName(part)), "value",
                                      (small ? text.toLower() : text).toStdString());
            writes += maskItem(maskName(part), texts.at(part));
        }
        (void)device.answer(request("deviceStatusMasks", "write", writes));
        for (const DeviceCondition& condition : status(device).conditions()) {
            if (!condition.isMeasured) {
                status(device).setPresent(device, condition.name, true);
            }
        }
    }
    /// The conditions that have a bit, in any order.
    std::vector<DeviceCondition> maskable()
    {
        std::vector<DeviceCondition> found;
        std::ranges::copy_if(status(device).conditions(), std::back_inserter(found),
                             &DeviceCondition::hasMask);
        std::shuffle(found.begin(), found.end(), random);
        return found;
    }

    void expectInDatafile(const Bits& bits)
    {
        for (std::size_t part = 0; part < kParts; ++part) {
            const auto text = documents::attributeText(
                documents::findParameter(datafile, maskName(part)), "value");
            EXPECT_EQ(QString::fromStdString(text).toUpper().toStdString(), textsOf(bits).at(part));
        }
    }
    void expectInDevice(const Bits& bits)
    {
        for (std::size_t part = 0; part < kParts; ++part) {
            EXPECT_EQ(device.find(maskName(part))->value, textsOf(bits).at(part));
        }
        // What is switched off is not reported, and what is switched on is where it is there.
        const auto told = ask(device, request("deviceStatus", "read"));
        for (const DeviceCondition& condition : status(device).conditions()) {
            if (condition.hasMask() && !condition.isMeasured &&
                condition.name != "statusColdStart") {
                EXPECT_EQ(valueIn(told, condition.name), bits[placeOf(condition)] ? "1" : "0")
                    << condition.name;
            }
        }
    }

    std::mt19937              random;
    quill::test::ToolkitScope toolkit;
    SimulatedDevice           device   = fullDevice("vx4400h");
    IXMLDOMDocument           datafile = documents::openText(sampleText("vx4400h.xml"));
};

INSTANTIATE_TEST_SUITE_P(Random, MaskRoad, testing::Range(0U, 25U));

TEST_P(MaskRoad, SwitchedInAnyOrderTheSameBitsStandInModelDatafileItemsAndDevice)
{
    Bits bits = randomBits();
    start(bits);
    quill::test::RecordingMessenger host;
    StatusConfiguration             masks;
    masks.SetMessenger(&host);
    masks.SetMaskProperties(255, kParts * kBytes, kParts);
    const auto definition = typeInfo("vx4400h");
    const auto statuses   = definition.selectNodes("//deviceStatus/*/*");
    for (long row = 0; row < statuses.get_length(); ++row) {
        masks.AddBit(static_cast<std::int16_t>(row), statuses.get_item(row));
    }
    masks.SetOfflineParameters(
        datafile.selectNodes("./data:dtm/data:persistentData/data:parameters/"
                             "data:parameter[starts-with(@name,'statusMask')]"));

    for (int round = 0; round < 3; ++round) {
        for (const DeviceCondition& condition : maskable()) {
            if (random() % 3 == 0) {
                continue; // stays as it is
            }
            const bool on = random() % 2 == 0;
            masks.SetEnabled(condition.name, on);
            bits[placeOf(condition)] = on;
        }
        for (const DeviceCondition& condition : maskable()) {
            EXPECT_EQ(masks.IsEnabled(condition.name), bits[placeOf(condition)]) << condition.name;
        }
        expectInDatafile(bits);
        std::string items;
        std::size_t part = 0;
        const auto  xml  = masks.GetXmlItem(true);
        for (const IXMLDOMNode& entry : xml.selectNodes("//item")) {
            ASSERT_LT(part, static_cast<std::size_t>(kParts));
            EXPECT_EQ(documents::attributeText(entry, "name"), maskName(part));
            EXPECT_EQ(QString::fromStdString(entry.get_text()).toUpper().toStdString(),
                      textsOf(bits).at(part++));
            items += entry.get_xml();
        }
        ASSERT_EQ(part, static_cast<std::size_t>(kParts));
        (void)device.answer(request("deviceStatusMasks", "write", items));
        expectInDevice(bits);
        // Somebody changes the device meanwhile: what it says counts.
        if (round == 1) {
            bits = randomBits();
            std::string others;
            for (std::size_t i = 0; i < kParts; ++i) {
                others += maskItem(maskName(i), textsOf(bits).at(i));
            }
            (void)device.answer(request("deviceStatusMasks", "write", others));
        }
        for (const auto& answer : ask(device, request("deviceStatusMasks", "read"))) {
            masks.SetOnlineParameters(answer.selectNodes("//comm:item"));
        }
        for (const DeviceCondition& condition : maskable()) {
            EXPECT_EQ(masks.IsEnabled(condition.name), bits[placeOf(condition)]) << condition.name;
        }
        expectInDatafile(bits);
    }
    EXPECT_THAT(host.errors(), testing::IsEmpty());
}

TEST_P(MaskRoad, ClicksOnCheckMarksGoThroughTheDeviceAndBack)
{
    Bits bits = randomBits();
    start(bits);
    DeviceHost host{device};
    host.deviceTypeInfo = typeInfo("vx4400h");
    CtrStatusF view{platform::Design{.Name = "status", .Tag = "deviceStatus"}};
    view.SetMessenger(&host);
    view.SetOfflineData(datafile);
    host.ViewSetCommunicationMode.raise(kOnline);
    host.send(request("deviceStatus", "read"));
    host.send(request("deviceStatusMasks", "read"));
    host.deliver(view);
    const auto rowOf = [&](const std::string& name) {
        for (int row = 1; row <= view.scgStatusKey.RowCount(); ++row) {
            if (view.scgStatusKey.cell(row, 1).Text == name) {
                return row;
            }
        }
        ADD_FAILURE() << name;
        return 1;
    };
    const auto expectMarks = [&] {
        for (const DeviceCondition& condition : maskable()) {
            EXPECT_EQ(view.scgStatus.CellIcon(rowOf(condition.name), 1),
                      bits[placeOf(condition)] ? "checkEnabled" : "checkDisabled")
                << condition.name;
        }
    };
    for (int session = 0; session < 3; ++session) {
        ASSERT_EQ(view.cmdConfiguration.click(), UserDoor::done);
        expectMarks();
        Bits changed = bits;
        for (const DeviceCondition& condition : maskable()) {
            for (auto clicks = random() % 3; clicks > 0; --clicks) {
                ASSERT_EQ(view.scgStatus.clickCell(rowOf(condition.name), 1), UserDoor::done);
                changed[placeOf(condition)] = !changed[placeOf(condition)];
            }
        }
        if (session == 1) {
            ASSERT_EQ(view.cmdConfiguration.click(), UserDoor::done); // thinks better of it
            expectInDevice(bits);
            expectInDatafile(bits);
            continue;
        }
        bits = changed;
        ASSERT_EQ(view.cmdDownload.click(), UserDoor::done);
        host.deliver(view);
        EXPECT_FALSE(view.IsConfiguring());
        expectInDevice(bits);
        expectInDatafile(bits);
    }
    EXPECT_THAT(host.errors(), testing::IsEmpty());
    view.PrepareToRelease();
}

} // namespace
} // namespace quill::shell
