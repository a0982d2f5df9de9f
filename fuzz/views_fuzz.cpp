#include "actions/CtrHartAddress.h"
#include "actions/CtrMACalibration.h"
#include "actions/CtrModuleSelection.h"
#include "actions/CtrReset.h"
#include "fuzz/fuzz_page.h"
#include "records/CtrEventLog.h"
#include "status/CtrStatus.h"
#include "status/CtrStatusF.h"

using namespace quill;

namespace {

/// Answers with what was thought up, wherever a host hands out a document.
struct ViewsHost : fuzz::Host {
    IXMLDOMDocument GetDeviceTypeInfo() override { return document; }
    std::string     GetHostDocument(const std::string&) override { return text; }
    bool            SetHostDocument(const std::string&, const std::string& xml) override
    {
        (void)documents::openText(xml);
        return true;
    }
    void SendCommunicationRequest(const std::string& xml, const std::string&) override
    {
        (void)documents::openText(xml);
    }
    std::int32_t AskQuestion(const std::string&, const std::string&) override
    {
        return kPositiveAnswer;
    }
    std::int16_t GetStatusClassification() override { return classification; }

    IXMLDOMDocument document;
    std::string     text;
    std::int16_t    classification = kClassSeverity;
};

/// Every view on one page, as a host would have them on many.
struct Views : ViewBase {
    CtrStatus          status{*this, {.Name = "status", .Tag = "deviceStatus"}};
    CtrStatusF         masks{*this, {.Name = "masks", .Tag = "deviceStatus"}};
    CtrEventLog        events{*this, {.Name = "events", .Tag = "eventLog"}};
    CtrReset           reset{*this, {.Name = "reset", .Tag = "reset"}};
    CtrHartAddress     address{*this, {.Name = "address", .Tag = "address"}};
    CtrMACalibration   calibration{*this, {.Name = "calibration"}};
    CtrModuleSelection modules{*this, {.Name = "modules", .Tag = "modules"}};

    void use()
    {
        masks.cmdConfiguration.click();
        for (int row = 1; row <= masks.scgStatus.RowCount() && row <= 8; ++row) {
            masks.scgStatus.clickCell(row, 1);
        }
        masks.cmdDownload.click();
        events.cmdNext.click();
        reset.cceReset[0].cboBox.choose(0);
        reset.cmdReset.click();
        calibration.cmdNext.click();
        modules.cmdSetSelection.click();
    }
};

} // namespace

/// The bytes as the device definition, the datafile and the responses, for every view.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto document = fuzz::read(data, size);
    if (!document) {
        return 0;
    }
    ViewsHost host;
    host.document       = *document;
    host.text           = std::string(reinterpret_cast<const char*>(data), size);
    host.classification = static_cast<std::int16_t>(size % 2);
    Views views;
    views.SetMessenger(&host);
    views.SetOfflineData(*document);
    host.ViewSetCommunicationMode.raise(kOnline);
    views.SetOnlineData(*document);
    views.use();
    for (const char* mask : {"statusMask1", "statusMaskAlarm2", "statusMaskOnOff0"}) {
        host.ViewReceiveValue.raise(mask, "0F1");
    }
    views.SetOnlineData(*document);
    views.SetErrorData(*document);
    views.SetImportData(*document);
    host.ViewSetCommunicationMode.raise(kOffline);
    views.use();
    (void)views.LeaveSelectedView();
    views.PrepareToRelease();
    return 0;
}
