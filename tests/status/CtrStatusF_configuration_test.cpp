#include "tests/status/status_tree_fixture.h"

#include <random>
#include <set>

// `CtrStatusF` while the user switches conditions on and off.
namespace quill::test {
namespace {

using platform::UserDoor;
using testing::AnyOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

constexpr const char* kOff = "deviceDiagnosisPassiv";

class CtrStatusFConfiguration : public StatusViewTest<CtrStatusF> {
protected:
    CtrStatusFConfiguration() { messenger.communicationMode = kOnline; }

    void SetUp() override
    {
        load(branch("g", condition("a", namur("deviceFailure") + maskAt(0, 0)) +
                             condition("b", namur("deviceInfo") + maskAt(0, 1))) +
             branch("h", condition("c", namur("deviceUnderTest") + maskAt(0, 2))));
        view.Localize(translator);
        file = datafile(maskParameter("statusMask1", "03"));
        view.SetOfflineData(file);
        masks("03");
        online(statusItem("a", "1") + statusItem("b", "0") + statusItem("c", "1"));
        messenger.clear();
    }
    void masks(const std::string& value, const std::string& final = "1")
    {
        view.SetOnlineData(
            response("name=\"deviceStatusMasks\" responseStatus=\"ok\" isFinal=\"" + final + "\"",
                     item("statusMask1", "noUnit", "hexVal", value)));
    }
    void enter() { ASSERT_EQ(view.cmdConfiguration.click(), UserDoor::done); }
    void click(int row) { ASSERT_EQ(view.scgStatus.clickCell(row, 1), UserDoor::done); }
    [[nodiscard]] std::string inFile() const
    {
        return file.selectSingleNode("//data:parameter/@value").get_text();
    }

    IXMLDOMDocument file;
};

// --- Entering and leaving ---------------------------------------------------------------------

TEST_F(CtrStatusFConfiguration, EnteringTurnsTheIconsOfConditionsIntoCheckMarks)
{
    enter();
    EXPECT_TRUE(view.IsConfiguring());
    EXPECT_THAT(icons(), ElementsAre("deviceFailure", "checkEnabled", "checkEnabled", kOff,
                                     "checkDisabled"));
    EXPECT_EQ(view.cmdConfiguration.Caption, "cancel");
    EXPECT_TRUE(view.cmdDownload.Visible);
    EXPECT_TRUE(view.scgStatus.HasFocus());
    EXPECT_THAT(messenger.calls, ElementsAre("NotifyDialog(52)"));
}

TEST_F(CtrStatusFConfiguration, CancellingDropsTheChangesAndTheIcons)
{
    enter();
    click(2);
    click(5);
    messenger.clear();
    ASSERT_EQ(view.cmdConfiguration.click(), UserDoor::done);
    EXPECT_FALSE(view.IsConfiguring());
    EXPECT_THAT(icons(), Each(""));
    EXPECT_EQ(view.cmdConfiguration.Caption, "statusConfiguration");
    EXPECT_EQ(inFile(), "03");
    EXPECT_THAT(messenger.calls,
                ElementsAre("WriteLog(83, CtrStatusF LeaveConfiguration entered)",
                            "NotifyDialog(53)", "GetCommunicationMode()",
                            "WriteLog(83, CtrStatusF LeaveConfiguration leaving)"));
    enter();
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "checkEnabled");
    EXPECT_EQ(view.scgStatus.CellIcon(5, 1), "checkDisabled");
}

TEST_F(CtrStatusFConfiguration, TheNextStatusGivesEveryRowItsIconAgain)
{
    const auto before = icons();
    enter();
    (void)view.cmdConfiguration.click();
    EXPECT_THAT(descriptions(), ElementsAre("g", "a", "b", "h", "c"));
    online(statusItem("a", "1") + statusItem("b", "0") + statusItem("c", "1"));
    EXPECT_EQ(icons(), before);
    EXPECT_EQ(view.scgStatus.RowDescription(2), "a, deviceFailure, statusActive");
}

TEST_F(CtrStatusFConfiguration, RowsThatTheNextStatusLeavesOutGetTheirIconToo)
{
    const auto before = icons();
    enter();
    (void)view.cmdConfiguration.click();
    online(statusItem("c", "1"));
    EXPECT_EQ(icons(), before);
    EXPECT_EQ(view.scgStatus.RowDescription(2), "a, deviceFailure, statusActive");
}

TEST_F(CtrStatusFConfiguration, LeavingTheViewEndsTheConfiguration)
{
    enter();
    EXPECT_TRUE(view.LeaveSelectedView());
    EXPECT_FALSE(view.IsConfiguring());
    messenger.clear();
    EXPECT_TRUE(view.LeaveSelectedView());
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(CtrStatusFConfiguration, GoingOfflineEndsTheConfiguration)
{
    enter();
    click(2);
    messenger.clear();
    messenger.ViewSetCommunicationMode.raise(kOffline);
    EXPECT_FALSE(view.IsConfiguring());
    EXPECT_THAT(icons(), Each(kOff));
    EXPECT_EQ(view.cmdConfiguration.Caption, "statusConfiguration");
    EXPECT_THAT(messenger.callsTo("NotifyDialog"), ElementsAre("NotifyDialog(53)"));
}

TEST_F(CtrStatusFConfiguration, ComingOnlineLeavesTheCheckMarksAlone)
{
    enter();
    click(2);
    const auto before = icons();
    messenger.ViewSetCommunicationMode.raise(kOnline);
    EXPECT_EQ(icons(), before);
    EXPECT_TRUE(view.IsConfiguring());
    EXPECT_EQ(view.cmdConfiguration.Caption, "cancel");
}

TEST_F(CtrStatusFConfiguration, AnotherLanguageKeepsTheMode)
{
    enter();
    translator.prefix = "de:";
    view.Localize(translator);
    EXPECT_EQ(view.cmdConfiguration.Caption, "de:cancel");
    EXPECT_TRUE(view.IsConfiguring());
}

TEST_F(CtrStatusFConfiguration, DuringATransferTheDownloadStaysDisabledBehindTheConfiguration)
{
    enter();
    messenger.ViewSetCommunicationMode.raise(kCommunication);
    messenger.communicationMode = kCommunication;
    (void)view.cmdConfiguration.click();
    EXPECT_FALSE(view.cmdDownload.Enabled);
    messenger.communicationMode = kOnline;
    enter();
    (void)view.cmdConfiguration.click();
    EXPECT_TRUE(view.cmdDownload.Enabled);
}

TEST_F(CtrStatusFConfiguration, ABranchWithoutConditionsIsTakenForOneAndReported)
{
    CtrStatusF fresh{page};
    messenger.deviceTypeInfo = definition(branch("empty", ""));
    fresh.SetMessenger(&messenger);
    (void)fresh.cmdConfiguration.click();
    EXPECT_THAT(iconsOf(fresh), ElementsAre("checkDisabled"));
    EXPECT_THAT(messenger.errors(),
                ElementsAre(StartsWith("ReportError(clsStatusConfiguration IsEnabled, 9, ")));
}

// --- Clicks -----------------------------------------------------------------------------------

TEST_F(CtrStatusFConfiguration, AClickChangesTheMarkAndASecondOneTakesItBack)
{
    enter();
    click(2);
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "checkDisabledmodified");
    click(2);
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "checkEnabled");
    click(5);
    EXPECT_EQ(view.scgStatus.CellIcon(5, 1), "checkEnabledmodified");
    click(5);
    EXPECT_EQ(view.scgStatus.CellIcon(5, 1), "checkDisabled");
}

TEST_F(CtrStatusFConfiguration, BranchesHaveNoCheckMark)
{
    enter();
    click(1);
    EXPECT_EQ(view.scgStatus.CellIcon(1, 1), "deviceFailure");
}

TEST_F(CtrStatusFConfiguration, OutsideTheConfigurationAClickDoesNothing)
{
    const auto before = icons();
    for (int row = 1; row <= 5; ++row) {
        click(row);
    }
    EXPECT_EQ(icons(), before);
}

TEST_F(CtrStatusFConfiguration, ClicksBesideTheRowsDoNothing)
{
    enter();
    const auto before = icons();
    for (const auto& [row, col] :
         std::vector<std::pair<int, int>>{{0, 1}, {1, 0}, {6, 1}, {2, 2}, {-1, 1}}) {
        view.scgStatus.Click.raise(row, col);
    }
    EXPECT_EQ(icons(), before);
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(CtrStatusFConfiguration, CheckMarksAreToldInWords)
{
    translator.texts = {{"checkEnabled", "on"}, {"checkDisabledmodified", "off, changed"}};
    view.Localize(translator);
    enter();
    EXPECT_EQ(view.scgStatus.RowDescription(2), "a, on");
    click(2);
    EXPECT_EQ(view.scgStatus.RowDescription(2), "a, off, changed");
}

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

// --- Data while configuring -------------------------------------------------------------------

TEST_F(CtrStatusFConfiguration, AStatusWhileConfiguringLeavesTheCheckMarksAlone)
{
    enter();
    click(2);
    online(statusItem("a", "0") + statusItem("b", "1") + statusItem("c", "1"));
    EXPECT_THAT(icons(), ElementsAre("deviceFailure", "checkDisabledmodified", "checkEnabled", kOff,
                                     "checkDisabled"));
    EXPECT_EQ(view.images().at(2), "deviceInfo");
    EXPECT_EQ(view.scgStatus.RowDescription(3), "b, checkEnabled");
}

TEST_F(CtrStatusFConfiguration, AnErrorWhileConfiguringLeavesTheCheckMarksAlone)
{
    enter();
    click(2);
    view.SetErrorData(errorResponse("deviceStatus"));
    EXPECT_THAT(icons(),
                ElementsAre(kOff, "checkDisabledmodified", "checkEnabled", kOff, "checkDisabled"));
    EXPECT_THAT(view.images(), Each(kOff));
    EXPECT_EQ(view.CombinedStatus(), kOff);
}

TEST_F(CtrStatusFConfiguration, MasksThatAreReadForTheFirstTimeRenewTheCheckMarks)
{
    view.SetOfflineData(file);
    enter();
    click(2);
    masks("04", "0");
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "checkDisabledmodified") << "not the last part";
    masks("04");
    EXPECT_TRUE(view.IsConfiguring());
    EXPECT_THAT(icons(), ElementsAre("deviceFailure", "checkDisabled", "checkDisabled", kOff,
                                     "checkEnabled"));
    masks("04");
    EXPECT_FALSE(view.IsConfiguring()) << "they had been read";
}

// --- Import -----------------------------------------------------------------------------------

TEST_F(CtrStatusFConfiguration, AnImportMakesEveryCheckMarkAChange)
{
    const auto imported = datafile(maskParameter("statusMask1", "05"));
    view.SetImportData(imported);
    enter();
    EXPECT_THAT(icons(), ElementsAre("deviceFailure", "checkEnabledmodified",
                                     "checkDisabledmodified", kOff, "checkEnabledmodified"));
    messenger.clear();
    (void)view.cmdDownload.click();
    EXPECT_THAT(messenger.callsTo("WriteLog"),
                Contains(HasSubstr("StatusConfiguration SetEnabled entered ")).Times(3));
    EXPECT_EQ(imported.selectSingleNode("//data:parameter/@value").get_text(), "05");
}

TEST_F(CtrStatusFConfiguration, AClickOnAnImportedMarkTakesTheChangeBack)
{
    view.SetImportData(file);
    enter();
    click(2);
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "checkDisabled");
}

TEST_F(CtrStatusFConfiguration, MasksFromTheDeviceEndTheImport)
{
    view.SetImportData(file);
    masks("03", "0");
    enter();
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "checkEnabledmodified");
    (void)view.cmdConfiguration.click();
    masks("03");
    enter();
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "checkEnabled");
}

TEST_F(CtrStatusFConfiguration, AnImportWhileSleepingIsForgotten)
{
    view.Sleep(true);
    view.SetImportData(file);
    view.Sleep(false);
    enter();
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "checkEnabled");
}

// --- Keyboard ---------------------------------------------------------------------------------

TEST_F(CtrStatusFConfiguration, WhileConfiguringTheFocusStaysInside)
{
    enter();
    (void)view.cmdConfiguration.focus();
    (void)view.cmdConfiguration.blur();
    EXPECT_TRUE(view.scgStatus.HasFocus());
    (void)view.cmdConfiguration.focus();
    toolkit.keysDown = {platform::kKeyShift, platform::kKeyTab};
    (void)view.cmdConfiguration.blur();
    EXPECT_TRUE(view.cmdDownload.HasFocus());
    EXPECT_FALSE(messenger.wasCalled("TransferFocus"));
}

TEST_F(CtrStatusFConfiguration, AClickReachesTheDownloadFromTheConfigurationButton)
{
    enter();
    (void)view.cmdConfiguration.focus();
    messenger.clear();
    EXPECT_EQ(view.cmdDownload.click(), UserDoor::done);
    EXPECT_TRUE(messenger.wasCalled("SendCommunicationRequest"));
}

TEST_F(CtrStatusFConfiguration, OtherwiseTabHandsTheFocusToTheHost)
{
    (void)view.cmdConfiguration.focus();
    toolkit.keysDown = {platform::kKeyTab};
    (void)view.cmdConfiguration.blur();
    EXPECT_THAT(messenger.callsTo("TransferFocus"), SizeIs(1));
    (void)view.cmdConfiguration.focus();
    toolkit.keysDown = {platform::kKeyTab, platform::kKeyShift};
    (void)view.cmdConfiguration.blur();
    EXPECT_THAT(messenger.callsTo("TransferFocus"), SizeIs(1)) << "backwards stays in the view";
}

TEST_F(CtrStatusFConfiguration, AFocusThatCannotGoWhereItShouldIsReported)
{
    enter();
    (void)view.cmdConfiguration.focus();
    toolkit.keysDown         = {platform::kKeyShift};
    view.cmdDownload.Enabled = false;
    (void)view.cmdConfiguration.blur();
    EXPECT_THAT(
        messenger.errors(),
        ElementsAre(StartsWith("ReportError(CtrStatusF cmdConfiguration_LostFocus: , 5, ")));
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
