#include "tests/status/status_configuration_fixture.h"

#include <algorithm>
#include <numeric>
#include <random>

namespace quill::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

/// The items of a document of items, one text each.
std::vector<std::string> itemsOf(const IXMLDOMDocument& document)
{
    std::vector<std::string> items;
    for (const auto& item : document.selectNodes("//item")) {
        items.push_back(item.get_xml());
    }
    return items;
}

// --- Items for a download ---------------------------------------------------------------------

TEST_F(StatusConfigurationTest, BeforeTheDatafileThereAreNoItems)
{
    EXPECT_EQ(masks.GetXmlItem(true).get_xml(), "<items/>");
    EXPECT_THAT(
        messenger.calls,
        ElementsAre("WriteLog(68, clsStatusConfiguration entering IQornDataEditor_GetXmlItem)",
                    "WriteLog(83, UBound(maOfflineNode) = 1)", "WriteLog(83, 0 is Nothing)",
                    "WriteLog(83, 1 is Nothing)",
                    "WriteLog(68, clsStatusConfiguration leaving IQornDataEditor_GetXmlItem "
                    "<items/>)"));
}

TEST_F(StatusConfigurationTest, EachMaskParameterIsAnItem)
{
    addBits(2);
    setMasks({"0a", "00"});
    masks.SetEnabled("s8", true);
    messenger.clear();
    const std::string first =
        R"(<item name="statusMask1" unit="noUnit"><hexVal>0a</hexVal></item>)";
    const std::string second =
        R"(<item name="statusMask2" unit="noUnit"><hexVal>01</hexVal></item>)";
    EXPECT_EQ(masks.GetXmlItem(false).get_xml(), "<items>" + first + second + "</items>");
    EXPECT_THAT(logs(), Contains("WriteLog(83, UBound(maOfflineNode) = 1)"));
    EXPECT_THAT(logs(), Contains("WriteLog(83, " + first + ")"));
    EXPECT_THAT(logs(), Contains("WriteLog(68, clsStatusConfiguration leaving "
                                 "IQornDataEditor_GetXmlItem <items>" +
                                 first + second + "</items>)"));
}

TEST_F(StatusConfigurationTest, ItemsAreTheSameWithAndWithoutForceAndEachTimeAnew)
{
    setMasks({"0a"});
    const auto one = masks.GetXmlItem(true);
    const auto two = masks.GetXmlItem(false);
    EXPECT_EQ(one.get_xml(), two.get_xml());
    EXPECT_FALSE(one == two);
}

TEST_F(StatusConfigurationTest, TheChildOfAnItemIsNamedAfterTheType)
{
    setOffline(R"(<data:parameter name="m" type="stringVal" value="&lt;" unit=""/>)");
    EXPECT_THAT(itemsOf(masks.GetXmlItem(true)),
                ElementsAre(R"(<item name="m" unit=""><stringVal>&lt;</stringVal></item>)"));
}

TEST_F(StatusConfigurationTest, AnItemThatCannotBeMadeEndsTheList)
{
    setOffline(parameter("statusMask1", "01") +
               R"(<data:parameter name="statusMask2" type="hexVal" value="02"/>)" +
               parameter("statusMask3", "03"));
    messenger.clear();
    EXPECT_THAT(itemsOf(masks.GetXmlItem(true)), ElementsAre(HasSubstr(R"(name="statusMask1")")));
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("clsStatusConfiguration IQornDataEditor_GetXmlItem , 91,")));
    EXPECT_THAT(logs(), Not(Contains(HasSubstr("leaving"))));
}

TEST_F(StatusConfigurationTest, ATypeThatNamesNoElementEndsTheList)
{
    setOffline(R"(<data:parameter name="m" type="" value="" unit=""/>)");
    EXPECT_EQ(masks.GetXmlItem(true).get_xml(), "<items/>");
    EXPECT_THAT(messenger.errors(), SizeIs(1));
}

// --- Any order gives the same mask ------------------------------------------------------------

TEST_F(StatusConfigurationTest, RandomSwitchingInAnyOrderGivesTheSameMaskEverywhere)
{
    constexpr int kRows = 96;
    addBits(kRows / 8);
    std::mt19937 random{4711}; // NOLINT(bugprone-random-generator-seed,cert-msc51-cpp)
    const auto   randomBits = [&] {
        std::vector<bool> bits(kRows);
        std::generate(bits.begin(), bits.end(), [&] { return random() % 2 == 0; });
        return bits;
    };
    const auto partsOf = [](const std::vector<bool>& bits) {
        std::vector<std::string> parts(3);
        for (std::size_t byte = 0; byte < kRows / 8; ++byte) {
            unsigned value = 0;
            for (std::size_t bit = 0; bit < 8; ++bit) {
                value |= bits[byte * 8 + bit] ? 1U << bit : 0U;
            }
            parts[byte / 4] += "0123456789ABCDEF"[value / 16];
            parts[byte / 4] += "0123456789ABCDEF"[value % 16];
        }
        return parts;
    };
    const auto isEnabled = [&](StatusConfiguration& model) {
        std::vector<bool> bits;
        for (int row = 0; row < kRows; ++row) {
            bits.push_back(model.IsEnabled(nameOf(row)));
        }
        return bits;
    };
    for (int round = 0; round < 20; ++round) {
        const auto before = randomBits();
        const auto after  = randomBits();
        setMasks(partsOf(before));
        ASSERT_EQ(isEnabled(masks), before);

        std::vector<int> order(kRows);
        std::iota(order.begin(), order.end(), 0);
        std::shuffle(order.begin(), order.end(), random);
        for (const int row : order) {
            if (before[static_cast<std::size_t>(row)] != after[static_cast<std::size_t>(row)]) {
                masks.SetEnabled(random() % 2 == 0 ? nameOf(row) : std::to_string(row),
                                 after[static_cast<std::size_t>(row)]);
            }
        }
        const auto expected = partsOf(after);
        ASSERT_EQ(isEnabled(masks), after);
        const auto items = masks.GetXmlItem(true).selectNodes("//item");
        ASSERT_EQ(items.get_length(), 3);
        for (long part = 0; part < 3; ++part) {
            const auto& text = expected[static_cast<std::size_t>(part)];
            ASSERT_EQ(inFile("statusMask" + std::to_string(part + 1)), text);
            ASSERT_EQ(items.get_item(part).get_text(), text);
        }

        // What goes to the device and comes back says the same to one that knew nothing of it.
        StatusConfiguration other;
        other.SetMaskProperties(255, 12, 3);
        for (int row = 0; row < kRows; ++row) {
            other.AddBit(static_cast<std::int16_t>(row),
                         definition("name=\"" + nameOf(row) + "\" maskByte=\"" +
                                    std::to_string(row / 8) + "\" maskBit=\"" +
                                    std::to_string(row % 8) + "\""));
        }
        other.SetOnlineParameters(items);
        ASSERT_EQ(isEnabled(other), after);
        masks.SetOnlineParameters(items);
        ASSERT_EQ(isEnabled(masks), after);
        ASSERT_EQ(inFile("statusMask3"), expected[2]);
    }
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

// --- Fault runs -------------------------------------------------------------------------------

TEST_F(StatusConfigurationTest, WithoutAMessengerMasksComeInAndReportsGoToTheDebugOutput)
{
    masks.SetMessenger(nullptr);
    addBits(1);
    setMasks({"01"});
    EXPECT_TRUE(masks.IsEnabled("s0"));
    EXPECT_THAT(toolkit.debugLines,
                Contains(HasSubstr("clsStatusConfiguration SetOfflineParameters error 91:")));
}

TEST_F(StatusConfigurationTest, ALogThatFailsDoesNotStopLoading)
{
    addBits(2);
    messenger.failOn("WriteLog");
    setMasks({"01", "80"});
    setOnline(item("statusMask2", "noUnit", "hexVal", "01"));
    EXPECT_THAT(enabled(16), ElementsAre("s0", "s8"));
    EXPECT_EQ(inFile("statusMask2"), "01");
    EXPECT_THAT(messenger.errors(), Contains("ReportError(clsStatusConfiguration "
                                             "SetOfflineParameters, 5, "
                                             "Invalid procedure call or argument)"));
}

TEST_F(StatusConfigurationTest, ALogThatFailsLeavesTheSwitchingUndone)
{
    addBits(1);
    setMasks({"00"});
    messenger.clear();
    messenger.failOn("WriteLog");
    masks.SetEnabled("s0", true);
    EXPECT_FALSE(masks.IsEnabled("s0"));
    EXPECT_EQ(inFile("statusMask1"), "00");
    EXPECT_THAT(messenger.errors(), SizeIs(1));
}

TEST_F(StatusConfigurationTest, ALogThatFailsGivesADocumentWithoutItems)
{
    setMasks({"00"});
    messenger.clear();
    messenger.failOn("WriteLog");
    EXPECT_THAT(itemsOf(masks.GetXmlItem(true)), IsEmpty());
    EXPECT_THAT(messenger.errors(), SizeIs(1));
}

TEST_F(StatusConfigurationTest, AMessengerThatRefusesReportsTooIsSurvived)
{
    messenger.failOn("WriteLog");
    messenger.failOn("ReportError");
    addBits(1);
    setMasks({"01"});
    EXPECT_TRUE(masks.IsEnabled("s0"));
    EXPECT_FALSE(masks.IsEnabled("none"));
    masks.SetEnabled("none", true);
    EXPECT_THAT(itemsOf(masks.GetXmlItem(true)), IsEmpty());
}

TEST_F(StatusConfigurationTest, TheNodesOfADatafileLiveAsLongAsTheyAreNeeded)
{
    addBits(1);
    setMasks({"00"});
    const auto parameterNode = file.selectSingleNode("//data:parameter");
    parameterNode.get_parentNode().removeChild(parameterNode);
    file = {};
    masks.SetEnabled("s0", true);
    EXPECT_THAT(itemsOf(masks.GetXmlItem(true)), ElementsAre(HasSubstr("<hexVal>01</hexVal>")));
}

} // namespace
} // namespace quill::test
