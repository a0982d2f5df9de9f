#include "records/CtrEventLog.h"

#include "framework/documents.h"
#include "framework/modTools.h"
#include "framework/modView.h"
#include "framework/values.h"
#include "platform/failure.h"

namespace quill {

namespace {

platform::Design withSize(platform::Design design)
{
    if (design.Width == 0 && design.Height == 0) {
        design.Width  = 9000;
        design.Height = 6000;
    }
    return design;
}

/// What is no number stays as it is: the date may arrive before the time.
std::string inOperationTimeFormat(const std::string& time)
{
    const std::string local = values::replaceAll(time, ".", values::decimalSeparator());
    return values::isNumeric(local) ? eventLog::operationTimeText(time) : time;
}

const char* flagText(bool flag)
{
    return flag ? "True" : "False";
}

} // namespace

CtrEventLog::CtrEventLog(const platform::Design& design) : PageView("CtrEventLog", withSize(design))
{
    UserControl_Initialize();
}

CtrEventLog::CtrEventLog(platform::Widget& container, const platform::Design& design)
    : PageView("CtrEventLog", container, withSize(design))
{
    UserControl_Initialize();
}

void CtrEventLog::UserControl_Initialize()
{
    lsvEventLog.MultiSelect = true;
    lsvEventLog.setColumnHeaders({{"Class", "class", 0},
                                  {"Event", "event", 0},
                                  {"Time [h]", "eventLogTimeHeader", 0},
                                  {"Date", "date", 0},
                                  {"Index", "channelIndex", 0},
                                  {"Row", "row", 0}});
    paintFrames();
    Resize.raise();
}

void CtrEventLog::log(const Steps& step, std::int16_t category, const std::string& text)
{
    step([&] { host().WriteLog(category, text); });
}

std::string CtrEventLog::translated(const std::string& key)
{
    return modTools::textOrKey(existing(host().GetTranslator()), key);
}

std::function<std::string(const std::string&)> CtrEventLog::wording(const Steps& step)
{
    auto* const translator =
        step.value<Translator*>(nullptr, [&] { return host().GetTranslator(); });
    return [&step, translator](const std::string& key) {
        return key.empty()
                   ? std::string{}
                   : step.text([&] { return modTools::textOrKey(existing(translator), key); });
    };
}

// --- The contract -----------------------------------------------------------------------------

void CtrEventLog::SetMessenger(Messenger* messenger)
{
    mOnMode.drop();
    mOnValue.drop();
    PageView::SetMessenger(messenger);
    if (messenger == nullptr) {
        return;
    }
    mOnMode = messenger->ViewSetCommunicationMode.subscribe(
        [this](std::int32_t mode) { mMessenger_ViewSetCommunicationMode(mode); });
    mOnValue = messenger->ViewReceiveValue.subscribe(
        [this](const std::string& name, const std::string& value) {
            mMessenger_ViewReceiveValue(name, value);
        });
}

void CtrEventLog::Localize(Translator& translator)
{
    const Steps step = steps("Localize");
    step([&] { modView::Localize(*this, translator); });
    for (int column = 1; column <= static_cast<int>(lsvEventLog.ColumnHeaders().size()); ++column) {
        step([&] {
            const auto& header = lsvEventLog.ColumnHeaders()[static_cast<std::size_t>(column) - 1];
            lsvEventLog.setColumnText(column, modTools::textOrKey(translator, header.Tag));
        });
    }
    step([&] { cmdNext.Caption = modTools::textOrKey(translator, cmdNext.Tag); });
    // The columns stay as wide as the user or a read has made them.
    placeWidgets();
}

void CtrEventLog::RequestFocus()
{
    const Steps step = steps("IQornView_RequestFocus");
    if (lsvEventLog.Count() == 0) {
        step([&] { modView::TransferFocusOnTab(*this, modView::FocusPosition::only); });
        return;
    }
    step([&] { lsvEventLog.SetFocus(); });
    const int row = lsvEventLog.SelectedItem();
    if (row != 0) {
        step(
            [&] { lsvEventLog.edit(row, [](platform::ListItem& item) { item.Selected = true; }); });
    }
}

void CtrEventLog::PrepareToRelease()
{
    maEventNodes = {};
    PageView::PrepareToRelease();
}

void CtrEventLog::SetImportData(const IXMLDOMNode& node)
{
    steps("IQornDataUser_setImportData")([&] { SetOfflineData(node); });
}

void CtrEventLog::SetErrorData(const IXMLDOMNode& node)
{
    const Steps step = steps("IQornDataUser_setErrorData");
    step([&] { host().WriteLog(kLogFlow, "CtrEventLog SetErrorData " + node.get_xml()); });
    const std::string name = step.text([&] { return documents::responseAttribute(node, "name"); });
    if (!values::contains(name, eventLog::kGroup)) {
        return;
    }
    if (name == "eventLogOperationTime") {
        step([&] { modView::setErrorData(*this, node); });
        return;
    }
    if (mPaging.mblnIsHART && mPaging.mblnIsMoreEventsClicked && mPaging.mblnReadOk) {
        step([&] { mPaging.keepWhatArrived(); });
    }
    if (step.text([&] { return documents::responseAttribute(node, "isFinal"); }) == "1") {
        mPaging.endRead();
    } else {
        mPaging.mblnReadOk = false;
    }
    step([&] { modView::setErrorData(*this, node); });
    step([&] {
        modView::forwardSyncChanges(eventLog::kGroup, false, mstrSyncState, GetMessenger());
    });
}

// --- What a page tells the view ---------------------------------------------------------------

void CtrEventLog::HideClasses(bool hide)
{
    mblnHideClasses = hide;
    fitColumns();
}

void CtrEventLog::SetTopEventIndex(std::int16_t index)
{
    if (index > 0) {
        mPaging.miTopEventIndex = index;
    }
}

void CtrEventLog::ShowMoreEvents(bool show)
{
    if (!show) {
        cmdNext.Visible = false;
    }
}

void CtrEventLog::UseFieldbus()
{
    mPaging.UseFieldbus();
}

void CtrEventLog::UseHART()
{
    mPaging.UseHART();
}

IXMLDOMNode CtrEventLog::eventNode(int index, int column) const
{
    if (index < 0 || index >= static_cast<int>(maEventNodes.size()) || column < 0 ||
        column >= static_cast<int>(Pieces{}.size())) {
        throw platform::failure(platform::kSubscriptOutOfRange);
    }
    return maEventNodes[static_cast<std::size_t>(index)][static_cast<std::size_t>(column)];
}

// --- Requests and events ----------------------------------------------------------------------

void CtrEventLog::cmdNext_Click()
{
    const Steps step = steps("cmdNext_Click");
    if (mPaging.mblnIsHART) {
        log(step, kLogFlow,
            "MoreEvents requesting events from " + std::to_string(mPaging.nextEvent()));
    }
    const bool accepted = step.value(false, [&] {
        return host().ExecuteCommunicationRequest(mPaging.moreEventsRequest(mblnHideClasses),
                                                  "reading", 2, 2);
    });
    if (accepted) {
        step([&] { mPaging.countRead(); });
    }
    mPaging.mblnIsMoreEventsClicked = true;
}

void CtrEventLog::mMessenger_ViewSetCommunicationMode(std::int32_t mode)
{
    if (mode == kOffline || mode == kCommunication) {
        cmdNext.Enabled = false;
    } else if (mode == kOnline) {
        const Steps step = steps("mMessenger_ViewSetCommunicationMode");
        log(step, kLogContract,
            "CtrEventLog ViewSetCommunicationMode " + std::to_string(mode) +
                " mblnIsNextAllowed = " + flagText(mPaging.mblnIsNextAllowed) +
                " mblnIsMoreEventsClicked = " + flagText(mPaging.mblnIsMoreEventsClicked));
        if (mPaging.mblnIsNextAllowed && !mPaging.mblnIsMoreEventsClicked) {
            cmdNext.Enabled = true;
        }
    }
}

void CtrEventLog::mMessenger_ViewReceiveValue(const std::string& name, const std::string& value)
{
    const bool isTime = name == "ctr_totalOperationTime";
    const bool isDate = name == "date_counters";
    if (!mPaging.mstrOperationTimeRequest.empty() || (!isTime && !isDate)) {
        return;
    }
    // The first failure ends the procedure.
    const Steps step{GetMessenger(), "CtrEventLog mMessenger_ViewReceiveValue"};
    step([&] {
        lblOperationTime[isTime ? 0 : 2].Caption = value;
        ResizeTotalOperationTime();
        const std::string time = lblOperationTime[0].Caption;
        const std::string date = lblOperationTime[2].Caption;
        if (eventLog::isKnown(time) && eventLog::isKnown(date)) {
            AddStamps(time, date);
        }
        if (isDate) {
            lblOperationTime[0].Caption = inOperationTimeFormat(time);
            ResizeTotalOperationTime();
        }
    });
}

} // namespace quill
