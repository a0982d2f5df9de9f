#include "tests/status/configurable_view_fixture.h"

#include <random>
#include <set>

// `CtrStatusF`: what the user has switched goes to the device or into the datafile.
namespace quill::test {
namespace {

using platform::UserDoor;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

// --- Download ---------------------------------------------------------------------------------

TEST_F(CtrStatusFConfiguration, ADownloadWritesTheMasksToTheDevice)
{
    enter();
    click(2); // off
    click(5); // on
    messenger.clear();
    ASSERT_EQ(view.cmdDownload.click(), UserDoor::done);
    EXPECT_EQ(inFile(), "06");
    EXPECT_THAT(messenger.callsTo("SendCommunicationRequest"),
                ElementsAre("SendCommunicationRequest(<communicationRequest "
                            "name=\"deviceStatusMasks\" access=\"write\"><item "
                            "name=\"statusMask1\" unit=\"noUnit\"><hexVal>06</hexVal></item>"
                            "</communicationRequest>, deviceStatusMasks)"));
    EXPECT_TRUE(view.IsConfiguring()) << "until the device has answered";
    EXPECT_FALSE(view.cmdDownload.Enabled);
    EXPECT_THAT(icons(), ElementsAre("deviceFailure", kOff, "checkEnabled", kOff, ""));
    EXPECT_EQ(view.images().at(1), kOff);
    EXPECT_EQ(view.images().at(4), "");
    EXPECT_EQ(file.selectSingleNode("//data:parameter/@synchronised").get_text(), "0");
}

TEST_F(CtrStatusFConfiguration, WhatWasDownloadedFollowsTheStatusWhileTheAnswerIsAwaited)
{
    enter();
    click(2); // off
    click(5); // on
    (void)view.cmdDownload.click();
    online(statusItem("a", "1") + statusItem("b", "0") + statusItem("c", "1"));
    EXPECT_THAT(icons(), ElementsAre(testing::_, kOff, "checkEnabled", "deviceUnderTest",
                                     "deviceUnderTest"));
    EXPECT_EQ(view.scgStatus.RowDescription(5), "c, deviceUnderTest, statusActive");
}

TEST_F(CtrStatusFConfiguration, ADownloadIsLoggedFromBeginToEnd)
{
    enter();
    messenger.clear();
    (void)view.cmdDownload.click();
    ASSERT_FALSE(messenger.calls.empty());
    EXPECT_EQ(messenger.calls.front(), "WriteLog(69, CtrStatusF cmdDownload_Click entered)");
    EXPECT_EQ(messenger.calls.back(), "WriteLog(69, CtrStatusF cmdDownload_Click leaving)");
    EXPECT_THAT(messenger.callsTo("GetCommunicationMode"), SizeIs(1));
}

TEST_F(CtrStatusFConfiguration, RowsThatWereTakenBackAreNotWritten)
{
    enter();
    click(2);
    click(2);
    messenger.clear();
    (void)view.cmdDownload.click();
    EXPECT_THAT(messenger.callsTo("WriteLog"), Not(Contains(HasSubstr("SetEnabled entered"))));
    EXPECT_EQ(file.selectSingleNode("//data:parameter/@synchronised").get_text(), "1");
    EXPECT_THAT(messenger.callsTo("SendCommunicationRequest"), SizeIs(1))
        << "the masks as they are";
}

TEST_F(CtrStatusFConfiguration, TheAnswerToADownloadEndsTheConfiguration)
{
    enter();
    click(2);
    (void)view.cmdDownload.click();
    messenger.clear();
    masks("02", "0");
    EXPECT_TRUE(view.IsConfiguring()) << "not the last part";
    masks("02");
    EXPECT_FALSE(view.IsConfiguring());
    EXPECT_TRUE(view.cmdDownload.Enabled);
    EXPECT_THAT(messenger.callsTo("NotifyDialog"), ElementsAre("NotifyDialog(53)"));
    EXPECT_EQ(messenger.calls.back(), "WriteLog(68, SetOnlineMask leaving)");
}

TEST_F(CtrStatusFConfiguration, AnAnswerWithinTheDownloadIsTaken)
{
    enter();
    click(2);
    messenger.onCall = [this](const std::string& call) {
        if (call.starts_with("SendCommunicationRequest")) {
            masks("02");
        }
    };
    (void)view.cmdDownload.click();
    EXPECT_FALSE(view.IsConfiguring());
    EXPECT_TRUE(view.cmdDownload.Enabled);
}

TEST_F(CtrStatusFConfiguration, OfflineADownloadGoesIntoTheDatafileAndEndsTheConfiguration)
{
    messenger.communicationMode = kOffline;
    enter();
    click(2);
    click(5);
    messenger.clear();
    (void)view.cmdDownload.click();
    EXPECT_FALSE(view.IsConfiguring());
    EXPECT_EQ(inFile(), "06");
    EXPECT_THAT(messenger.callsTo("SendCommunicationRequest"),
                ElementsAre(HasSubstr("access=\"writeOffline\"><item ")));
    EXPECT_THAT(icons(), Each(""));
    EXPECT_TRUE(view.cmdDownload.Enabled);
}

TEST_F(CtrStatusFConfiguration, WithoutMasksADownloadSendsAnEmptyRequest)
{
    CtrStatusF fresh{page};
    fresh.SetMessenger(&messenger);
    (void)fresh.cmdConfiguration.click();
    messenger.clear();
    (void)fresh.cmdDownload.click();
    EXPECT_THAT(messenger.callsTo("SendCommunicationRequest"),
                ElementsAre("SendCommunicationRequest(<communicationRequest "
                            "name=\"deviceStatusMasks\" access=\"write\"></communicationRequest>, "
                            "deviceStatusMasks)"));
}

TEST_F(CtrStatusFConfiguration, AHostThatRefusesADownloadIsReported)
{
    enter();
    messenger.failOn("SendCommunicationRequest", 75);
    (void)view.cmdDownload.click();
    EXPECT_THAT(messenger.errors(),
                ElementsAre("ReportError(CtrStatusF cmdDownload_Click: , 75, Path/File access "
                            "error)"));
}

TEST_F(CtrStatusFConfiguration, AHostThatThrowsEverywhereStillLetsTheUserInAndOut)
{
    messenger.onCall = [](const std::string&) { throw platform::failure(5); };
    enter();
    EXPECT_TRUE(view.IsConfiguring());
    click(2);
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "checkDisabledmodified");
    (void)view.cmdConfiguration.click();
    EXPECT_FALSE(view.IsConfiguring());
    EXPECT_TRUE(view.cmdDownload.Enabled);
}

TEST_F(CtrStatusFConfiguration, FaultsWhileEnteringAndLeavingAreReportedByPlace)
{
    messenger.failOn("NotifyDialog", 75);
    enter();
    (void)view.cmdConfiguration.click();
    EXPECT_THAT(messenger.errors(),
                ElementsAre(StartsWith("ReportError(CtrStatusF cmdConfiguration_Click: , 75, "),
                            StartsWith("ReportError(CtrStatusF LeaveConfiguration: , 75, ")));
}

// --- The road of a click ----------------------------------------------------------------------

/// A device with random places in three parts of four bytes, a random mask, and a user who clicks
/// at random.
class StatusRoundTrip : public CtrStatusFConfiguration {
protected:
    explicit StatusRoundTrip() = default;

    static constexpr int kParts = 3, kBytes = 4, kPlaces = kParts * kBytes * 8;

    std::mt19937 random;

    std::size_t below(std::size_t end) { return random() % end; }

    /// The bits of mask parameters or items by their number in the whole mask.
    static std::set<int> bitsOf(const IXMLDOMNodeList&                                parts,
                                const std::function<std::string(const IXMLDOMNode&)>& textOf)
    {
        std::set<int> bits;
        for (const IXMLDOMNode& part : parts) {
            const std::string text   = textOf(part);
            const int         number = documents::attributeText(part, "name").back() - '1';
            EXPECT_EQ(text.size(), 2U * kBytes);
            for (int byte = 0; byte < kBytes; ++byte) {
                const int value =
                    std::stoi(text.substr(2U * static_cast<unsigned>(byte), 2), nullptr, 16);
                for (int bit = 0; bit < 8; ++bit) {
                    if ((value & (1 << bit)) != 0) {
                        bits.insert((number * kBytes + byte) * 8 + bit);
                    }
                }
            }
        }
        return bits;
    }
};

TEST_F(StatusRoundTrip, WhatTheUserClicksIsWhatTheDeviceGets)
{
    for (unsigned seed = 0; seed < 150; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        random.seed(seed);
        // The device.
        std::vector<int> places(kPlaces);
        for (int place = 0; place < kPlaces; ++place) {
            places[static_cast<std::size_t>(place)] = place;
        }
        std::shuffle(places.begin(), places.end(), random);
        places.resize(1 + below(30));
        std::string      tree;
        std::vector<int> placeOfRow; // by row index; -1 for a branch
        for (std::size_t next = 0; next < places.size();) {
            std::string conditions;
            placeOfRow.push_back(-1);
            for (auto count = 1 + below(5); count > 0 && next < places.size(); --count, ++next) {
                conditions +=
                    condition("c" + std::to_string(next),
                              namur("deviceFailure") + maskAt(places[next] / 8, places[next] % 8));
                placeOfRow.push_back(places[next]);
            }
            tree += branch("g" + std::to_string(next), conditions);
        }
        std::set<int> expected;
        std::string   parameters;
        for (int part = 0; part < kParts; ++part) {
            std::string text;
            for (int byte = 0; byte < kBytes; ++byte) {
                const int value = static_cast<int>(below(256));
                char      digits[3];
                (void)std::snprintf(digits, sizeof digits, "%02X", static_cast<unsigned>(value));
                text += digits;
                for (int bit = 0; bit < 8; ++bit) {
                    if ((value & (1 << bit)) != 0) {
                        expected.insert((part * kBytes + byte) * 8 + bit);
                    }
                }
            }
            parameters += maskParameter("statusMask" + std::to_string(part + 1), text);
        }
        RecordingMessenger host;
        host.communicationMode = below(2) == 0 ? kOnline : kOffline;
        host.deviceTypeInfo    = definition(tree);
        const auto datafile_   = datafile(parameters);
        CtrStatusF status{page};
        status.SetMessenger(&host);
        status.SetOfflineData(datafile_);

        // The user, in as many sessions as he likes; he drops some of them.
        for (auto sessions = 1 + below(3); sessions > 0; --sessions) {
            ASSERT_EQ(status.cmdConfiguration.click(), UserDoor::done);
            std::set<int> toggled;
            for (auto clicks = below(60); clicks > 0; --clicks) {
                const auto row = below(placeOfRow.size());
                ASSERT_EQ(status.scgStatus.clickCell(static_cast<int>(row) + 1, 1), UserDoor::done);
                const int place = placeOfRow[row];
                if (place >= 0 && !toggled.insert(place).second) {
                    toggled.erase(place);
                }
            }
            if (below(4) == 0) {
                ASSERT_EQ(status.cmdConfiguration.click(), UserDoor::done);
                ASSERT_FALSE(status.IsConfiguring());
                continue;
            }
            host.clear();
            ASSERT_EQ(status.cmdDownload.click(), UserDoor::done);
            for (const int place : toggled) {
                if (!expected.insert(place).second) {
                    expected.erase(place);
                }
            }
            // The datafile.
            const auto value = [](const IXMLDOMNode& n) {
                return documents::attributeText(n, "value");
            };
            const auto nodes = datafile_.selectNodes("//data:parameter");
            ASSERT_EQ(bitsOf(nodes, value), expected);
            // The request.
            const auto sent = host.callsTo("SendCommunicationRequest");
            ASSERT_THAT(sent, SizeIs(1));
            const auto begin   = sent[0].find('<');
            const auto request = documents::openText(
                sent[0].substr(begin, sent[0].rfind(", deviceStatusMasks") - begin));
            const auto items = request.selectNodes("//item");
            ASSERT_EQ(items.get_length(), kParts);
            ASSERT_EQ(bitsOf(items, [](const IXMLDOMNode& n) { return n.get_text(); }), expected);
            // Another view of the same datafile.
            CtrStatusF other{page};
            other.SetMessenger(&host);
            other.SetOfflineData(datafile_);
            (void)other.cmdConfiguration.click();
            // The device answers with what it got.
            if (status.IsConfiguring()) {
                std::string answer;
                for (const IXMLDOMNode& n : items) {
                    answer +=
                        item(documents::attributeText(n, "name"), "noUnit", "hexVal", n.get_text());
                }
                const auto masks = okResponse("deviceStatusMasks", answer);
                status.SetOnlineData(masks);
                if (status.IsConfiguring()) {
                    status.SetOnlineData(masks); // the first one was the first reading
                }
            }
            ASSERT_FALSE(status.IsConfiguring());
            (void)status.cmdConfiguration.click();
            for (std::size_t row = 0; row < placeOfRow.size(); ++row) {
                if (placeOfRow[row] < 0) {
                    continue;
                }
                const std::string mark =
                    expected.contains(placeOfRow[row]) ? "checkEnabled" : "checkDisabled";
                const int number = static_cast<int>(row) + 1;
                ASSERT_EQ(status.scgStatus.CellIcon(number, 1), mark) << "row " << number;
                ASSERT_EQ(other.scgStatus.CellIcon(number, 1), mark) << "row " << number;
            }
            (void)status.cmdConfiguration.click();
            ASSERT_THAT(host.errors(), IsEmpty());
        }
    }
}

} // namespace
} // namespace quill::test
