// Each view and editor of the status, the event log, the settings and the actions with what can go
// wrong around it: a document that lacks an attribute, a host that fails, a toolkit that refuses.
// Nothing may escape, and one bad node costs one control.
#include "actions/CtrHartAddress.h"
#include "actions/CtrMACalibration.h"
#include "actions/CtrModuleSelection.h"
#include "actions/CtrReset.h"
#include "editors/CtrCheckEdit.h"
#include "editors/CtrOptionEdit.h"
#include "editors/CtrTimeEdit.h"
#include "fault_world.h"
#include "records/CtrEventLog.h"
#include "records/CtrSettings.h"
#include "shell/install_folder.h"
#include "status/CtrStatus.h"
#include "status/CtrStatusF.h"
#include "status/StatusConfiguration.h"
#include "status/StatusNAMUR.h"
#include "status/StatusSeverity.h"
#include "support/widget_dump.h"

#include <stdexcept>

namespace quill::shell {
namespace {

using namespace test;
using quill::test::WidgetDump;

// --- What is played -----------------------------------------------------------------------------

template <class Status>
void playStatusClass(World& world)
{
    Status status;
    for (const IXMLDOMNode& node : world.info.selectNodes("//deviceStatus/*/*")) {
        world.told.push_back("read " + status.ReadClass(node));
        (void)status.ReadClass(IXMLDOMNode{});
    }
    for (const IXMLDOMNode& node : world.info.selectNodes("//deviceStatus/*/*")) {
        const auto name = platform::attributeNode(node, "name");
        world.told.push_back(status.GetClass(name ? name.get_text() : ""));
    }
}

void playMasks(World& world)
{
    StatusConfiguration masks;
    masks.SetMessenger(&world.host);
    masks.SetMaskProperties(255, 12, 3);
    std::int16_t row = 0;
    for (const IXMLDOMNode& node : world.info.selectNodes("//deviceStatus/*/*")) {
        masks.AddBit(row++, node);
    }
    masks.SetOfflineParameters(
        world.datafile.selectNodes("//data:parameter[starts-with(@name,'statusMask')]"));
    masks.SetEnabled("statusCoverOpen", false);
    masks.SetEnabled("statusCavitation", true);
    (void)masks.GetXmlItem(true);
    for (const auto& part : ask(world.device, request("deviceStatusMasks", "read"))) {
        masks.SetOnlineParameters(part.selectNodes("//comm:item"));
    }
    for (std::int16_t place = 0; place < row; ++place) {
        world.told.emplace_back(masks.IsEnabled(std::to_string(place)) ? "on" : "off");
    }
}

void playStatus(World& world)
{
    auto& view = world.add<CtrStatus>("status", "deviceStatus");
    world.begin(view);
    status(world.device).setPresent(world.device, "statusCavitation", true);
    world.exchange(view, request("deviceStatus", "read"));
    world.host.ViewReceiveValue.raise("statusMask1", "7F3F0000");
    world.exchange(view, request("deviceStatus", "read"));
    (void)view.CombinedStatus();
    view.RequestFocus();
    view.resize(8000, 5000);
}

void playConfigurable(World& world)
{
    auto& view = world.add<CtrStatusF>("status", "deviceStatus");
    world.begin(view);
    status(world.device).setPresent(world.device, "statusCavitation", true);
    world.exchange(view, request("deviceStatus", "read"));
    (void)view.cmdConfiguration.click();
    for (int row = 1; row <= view.scgStatus.RowCount(); row += 5) {
        (void)view.scgStatus.clickCell(row, 1);
    }
    (void)view.cmdDownload.click();
    world.host.deliver(view);
    if (view.IsConfiguring()) {
        (void)view.cmdConfiguration.click();
    }
    world.exchange(view, request("deviceStatus", "read"));
    view.RequestFocus();
    (void)view.LeaveSelectedView();
}

template <class Editor>
void playEditor(World& world, const char* parameter, const char* group,
                const std::function<void(Editor&)>& use)
{
    auto& editor   = world.add<Editor>(parameter, std::string("ctr_") + parameter);
    auto& other    = world.add<CtrTimeEdit>("failsafeDelay", "ctr_failsafeDelay");
    world.page.Tag = "page";
    world.begin(world.page);
    world.exchange(world.page, request(group, "read"));
    use(editor);
    (void)other.txtBox[0].type("3");
    world.host.ViewGetChanges.raise(kModifiedEditors);
    (void)editor.GetXmlItem(true);
    world.page.RequestFocus();
    world.exchange(world.page, request(group, "read"));
}

void playOption(World& world)
{
    playEditor<CtrOptionEdit>(world, "failsafeAction", "options", [](CtrOptionEdit& editor) {
        if (editor.OptionCount() > 1) {
            (void)editor.Option(1).click();
            (void)editor.Option(1).press(platform::kKeyDown);
        }
    });
}

void playCheck(World& world)
{
    playEditor<CtrCheckEdit>(world, "alarmMask", "alarms", [](CtrCheckEdit& editor) {
        (void)editor.scgCheck.clickCell(2, 2);
        (void)editor.scgCheck.press(platform::kKeySpace);
    });
}

void playTime(World& world)
{
    playEditor<CtrTimeEdit>(world, "serviceInterval", "options", [](CtrTimeEdit& editor) {
        (void)editor.txtBox[0].type("12");
        (void)editor.txtBox[1].type("x");
        (void)editor.txtBox[1].type("6");
    });
}

void playLog(World& world)
{
    auto& view = world.add<CtrEventLog>("log", "eventLog");
    world.begin(view);
    world.exchange(view, request("eventLog", "read"));
    (void)view.cmdNext.click();
    world.host.deliver(view);
    world.host.ViewReceiveValue.raise("ctr_totalOperationTime", "3307.01");
    world.host.ViewReceiveValue.raise("date_counters", "2024-05-06 07:08:09");
    view.RequestFocus();
    for (const int code :
         {int{platform::kKeyEnd}, int{platform::kKeyPageDown}, int{'A'}, int{'C'}}) {
        (void)view.lsvEventLog.press(code, code > 'A' - 1 ? platform::kControlKey : 0);
    }
    world.host.deliver(view);
    view.resize(8000, 5000);
}

void playSettings(World& world)
{
    auto& view   = world.add<CtrSettings>("settings", "settings");
    view.Visible = false;
    world.page.SetMessenger(&world.host);
    view.SetSupportedLanguages({"English", "Deutsch"});
    view.SetCurrentLanguage("English");
    world.begin(view);
    view.show();
    (void)view.cboSelectLanguage.choose(1);
    (void)view.cboStatusClassification.choose(1);
    (void)view.scgUnits.clickCell(1, 2);
    (void)view.scgUnits.edit(1, 2, 1);
    (void)view.cmdUS.click();
    (void)view.cmdApply.click();
    (void)view.cmdSI.click();
    (void)view.cmdCancel.click();
    view.show();
    (void)view.cmdOK.click();
}

void playReset(World& world)
{
    auto& view = world.add<CtrReset>("reset", "reset");
    world.begin(view);
    for (CtrComboEdit& row : view.cceReset) {
        (void)row.cboBox.choose(1);
    }
    (void)view.cmdReset.click();
    world.host.deliver(view);
    view.RequestFocus();
    view.resize(8000, 5000);
}

void playAddress(World& world)
{
    auto& view = world.add<CtrHartAddress>("address", "hartAddress");
    world.begin(view);
    (void)view.cceMultidrop.cboBox.choose(1);
    (void)view.cceAddress.cboBox.choose(3);
    (void)view.cmdSet.click();
    view.RequestFocus();
    view.resize(8000, 5000);
}

void playCalibration(World& world)
{
    auto& view = world.add<CtrMACalibration>("calibration", "mACalibration");
    world.begin(view);
    const auto next = [&](const char* reading) {
        if (const auto at = view.miCalibrationStep(); *reading != '\0' && at > 0 && at < 4) {
            (void)view.cteMACalibration[static_cast<std::size_t>(at)].txtBox.type(reading);
        }
        (void)view.cmdNext.click();
        world.host.deliver(view);
    };
    next("");
    next("4.104");
    (void)view.cmdBack.click();
    next("4.104");
    next("");
    (void)view.LeaveSelectedView();
    world.host.deliver(view);
    view.RequestFocus();
    view.resize(8000, 5000);
}

void playModules(World& world)
{
    installDocuments(world.folder.path());
    world.host.installPath          = world.folder.path();
    world.host.hostDocuments["FDT"] = defaultFdtDocument();
    auto& view                      = world.add<CtrModuleSelection>("modules", "moduleSelection");
    world.begin(view);
    (void)view.ModuleSelection.choose(2);
    (void)view.cmdSetSelection.click();
    view.RequestFocus();
    view.resize(8000, 5000);
}

struct Play {
    const char* name;
    const char* type;
    void (*run)(World&);
    const char* group; ///< a request of the view's
    /// What of the datafile or the definition it reads: attributes.
    const char* attributes;
    /// How many widgets or rows an attribute that is missing may cost.
    std::size_t most;
};

void PrintTo(const Play& play, std::ostream* out)
{
    *out << play.name << " " << play.type;
}

constexpr const char* kStatuses = "//deviceStatus//@*";
constexpr const char* kMasks    = "//data:parameter[starts-with(@name,'statusMask')]/@*";

#define QUILL_PARAMETER(name)                                                                      \
    "//data:parameter[@name='" name "']/@*|//data:mappedParam[@name='" name "']//@*"

const Play kPlays[] = {
    {"StatusSeverity", "vx4400h", playStatusClass<StatusSeverity>, "deviceStatus", kStatuses, 2},
    {"StatusNAMUR", "vx4400h", playStatusClass<StatusNAMUR>, "deviceStatus", kStatuses, 2},
    {"StatusConfiguration", "vx4400h", playMasks, "deviceStatusMasks", kMasks, 20},
    {"CtrStatus", "vx4400h", playStatus, "deviceStatus", kStatuses, 4},
    {"CtrStatus", "vx4400f", playStatus, "deviceStatus", kMasks, 4},
    {"CtrStatusF", "vx4400h", playConfigurable, "deviceStatus", kStatuses, 4},
    {"CtrStatusF", "vx4400h", playConfigurable, "deviceStatus", kMasks, 24},
    {"CtrOptionEdit", "vx4400h", playOption, "options", QUILL_PARAMETER("failsafeAction"), 7},
    {"CtrCheckEdit", "vx4400h", playCheck, "alarms", QUILL_PARAMETER("alarmMask"), 10},
    {"CtrTimeEdit", "vx4400h", playTime, "options", QUILL_PARAMETER("serviceInterval"), 9},
    {"CtrEventLog", "vx4400h", playLog, "eventLog",
     "//data:parameter[starts-with(@name,'eventLog')]/@*", 4},
    {"CtrEventLog", "vx4400f", playLog, "eventLog",
     "//data:parameter[starts-with(@name,'eventLog')]/@*", 4},
    {"CtrSettings", "vx4400h", playSettings, "settings", "//data:parameter[1]/@*", 0},
    {"CtrReset", "vx4400h", playReset, "reset", QUILL_PARAMETER("resetDiagnosticsCode"), 6},
    {"CtrHartAddress", "vx4400h", playAddress, "hartAddress", QUILL_PARAMETER("pollingAddress"), 6},
    {"CtrMACalibration", "vx4400h", playCalibration, "mACalibration",
     QUILL_PARAMETER("loopCurrentZero"), 8},
    {"CtrModuleSelection", "vx4400f", playModules, "moduleSelection",
     "//*[local-name()='internalInfo']/@*", 4},
};

class FaultRun : public testing::TestWithParam<Play> {
protected:
    /// What is on the screen and in the datafile when everything is well, but for what `prepare`
    /// spoils.
    struct Outcome {
        std::unique_ptr<World>      world;
        std::unique_ptr<WidgetDump> screen;
    };
    static Outcome play(const std::function<void(World&)>& prepare = {})
    {
        Outcome outcome;
        outcome.world = std::make_unique<World>(GetParam().type);
        if (prepare) {
            prepare(*outcome.world);
        }
        EXPECT_NO_THROW(GetParam().run(*outcome.world));
        outcome.world->host.stopFailing();
        outcome.world->host.onCall             = nullptr;
        outcome.world->toolkit.beforeOperation = nullptr;
        outcome.screen                         = std::make_unique<WidgetDump>(outcome.world->page);
        return outcome;
    }
    static void expectSame(const Outcome& one, const Outcome& other)
    {
        EXPECT_THAT(one.screen->differences(*other.screen), testing::IsEmpty());
        EXPECT_EQ(one.world->datafile.get_xml(), other.world->datafile.get_xml());
        EXPECT_EQ(one.world->told, other.world->told);
        EXPECT_EQ(one.world->host.sent, other.world->host.sent);
    }
};

INSTANTIATE_TEST_SUITE_P(Each, FaultRun, testing::ValuesIn(kPlays), [](const auto& play) {
    return std::string(play.param.name) + "_" + play.param.type + "_" + std::to_string(play.index);
});

TEST_P(FaultRun, ThePlayIsTheSameEachTimeAndDoesSomething)
{
    const Outcome one = play();
    expectSame(one, play());
    EXPECT_TRUE(one.screen->lines().size() > 1 || !one.world->told.empty());
}

TEST_P(FaultRun, AMissingAttributeCostsOneControlOrRow)
{
    const Outcome good  = play();
    const auto    count = [&](World& world) -> std::pair<IXMLDOMNodeList, IXMLDOMNode> {
        const std::string     path   = GetParam().attributes;
        const IXMLDOMDocument source = path == kStatuses ? world.info : world.datafile;
        return {source.selectNodes(path), source};
    };
    World      probe{GetParam().type};
    const long all = count(probe).first.get_length();
    ASSERT_GT(all, 0);
    const long step = std::max(1L, all / 40); // the longer ones here and there
    for (long place = 0; place < all; place += step) {
        std::string   lacks;
        const Outcome spoilt = play([&](World& world) {
            const IXMLDOMNode attribute = count(world).first.get_item(place);
            const IXMLDOMNode element   = attribute.selectSingleNode("..");
            const auto        name      = platform::attributeNode(element, "name");
            lacks = (name ? name.get_text() : "?") + " without " + attribute.get_baseName();
            element.get_attributes().removeNamedItem(attribute.get_baseName());
        });
        SCOPED_TRACE(lacks);
        auto lost = good.screen->differences(*spoilt.screen);
        ASSERT_EQ(good.world->told.size(), spoilt.world->told.size());
        for (std::size_t i = 0; i < good.world->told.size(); ++i) {
            if (good.world->told[i] != spoilt.world->told[i]) {
                lost.insert(std::to_string(i) + " " + good.world->told[i]);
            }
        }
        EXPECT_LE(lost.size(), GetParam().most) << testing::PrintToString(lost);
    }
}

TEST_P(FaultRun, AHostThatOnlyFailsToListenCostsNothing)
{
    const Outcome good = play();
    for (const char* operation :
         {"SetParameterState", "ReportError", "ReportErrorObject", "SetCombinedStatus",
          "SetConfigurationChanged", "SetDownloadPhase", "NotifyDialog", "TransferFocus",
          "ShowMessage", "ReportProblem", "SetFixedStatusClassification", "BookChange"}) {
        SCOPED_TRACE(operation);
        expectSame(good, play([&](World& world) { world.host.failOn(operation); }));
    }
}

TEST_P(FaultRun, AHostThatFailsInAnyWayLetsNothingEscape)
{
    for (const char* operation : {"GetAddressService",
                                  "GetUnitConverter",
                                  "GetHostDocument",
                                  "SetHostDocument",
                                  "SendCommunicationRequest",
                                  "ExecuteCommunicationRequest",
                                  "ExecuteNamedRequest",
                                  "GetCommunicationMode",
                                  "GetDeviceTypeInfo",
                                  "GetInstallPath",
                                  "GetUserLevel",
                                  "GetTranslator",
                                  "RequestChanges",
                                  "GetDialogsAllowed",
                                  "IsErrorDialogEnabled",
                                  "GetStatusClassification",
                                  "SetStatusClassification",
                                  "IsStatusClassificationFixed",
                                  "HasConfigurationChangedSign",
                                  "WriteLog",
                                  "AskQuestion",
                                  "RefreshData"}) {
        SCOPED_TRACE(operation);
        (void)play([&](World& world) { world.host.failOn(operation); });
    }
    // All at once, and by an exception that is no failure of ours.
    const Outcome broken = play([](World& world) {
        world.host.onCall = [](const std::string&) { throw std::runtime_error("the host is ill"); };
    });
    // What was asked of the device and done is the same as far as the host lets it be: nobody
    // writes anything that it would not have written.
    EXPECT_GE(broken.screen->lines().size(), 1U);
}

TEST_P(FaultRun, AToolkitThatRefusesCostsLengthsAtMost)
{
    const Outcome good = play();
    for (const char* operation :
         {"textWidth", "keyDown", "clipboard", "setClipboard", "popUpMenu", "debugOutput",
          "doEvents", "mousePointer", "setMousePointer", "currentFolder", "setCurrentFolder"}) {
        SCOPED_TRACE(operation);
        const Outcome refused = play([&](World& world) {
            world.toolkit.beforeOperation = [operation](const char* called) {
                if (std::string(operation) == called) {
                    throw platform::failure(platform::kInvalidCall);
                }
            };
        });
        expectSame(good, refused);
    }
    for (const char* operation : {"now", "locale"}) {
        SCOPED_TRACE(operation);
        (void)play([&](World& world) {
            world.toolkit.beforeOperation = [operation](const char* called) {
                if (std::string(operation) == called) {
                    throw platform::failure(platform::kInvalidCall);
                }
            };
        });
    }
}

TEST_P(FaultRun, DocumentsThatSayNothingLeaveAReportAndNoMore)
{
    World world{GetParam().type};
    EXPECT_NO_THROW(GetParam().run(world));
    for (const auto& view : world.views) {
        if (auto* const user = dynamic_cast<IQornDataUser*>(view.get())) {
            EXPECT_NO_THROW(world.finish(*user, request(GetParam().group, "read")));
        }
    }
    EXPECT_NO_THROW(world.finish(world.page, request(GetParam().group, "read")));
}

} // namespace
} // namespace quill::shell
