#pragma once

#include "editors/CtrDateLabel.h"
#include "editors/CtrFocusTransfer.h"
#include "framework/page_view.h"
#include "platform/buttons.h"
#include "platform/label.h"
#include "platform/list_view.h"
#include "records/event_log_paging.h"
#include "records/event_log_rows.h"
#include "records/event_log_times.h"

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace quill {

/// The device's event log: class, text, operation time and estimated date of each event. Pages of
/// the log are read by requests of the view's own and pasted together; the pieces of one event may
/// arrive in different messages, so a row is filled in by parts. An external reset cuts the
/// device's operation time: a separator row follows it, and the dates behind it are marked " *".
///
/// The datafile keeps the last log that was read (parameters `eventLogEvent00`, `eventLogClass00`,
/// `eventLogTime00` and so on), so the same list comes up offline. The device type's name tells the
/// family: one with an "H" in it is a HART device, any other a fieldbus device.
///
/// Needs of the host: the Translator, `ExecuteCommunicationRequest`, `SetParameterState` under the
/// name "eventLog". On fieldbus the total operation time and its date arrive by `ViewReceiveValue`
/// ("ctr_totalOperationTime", "date_counters"); a HART device is asked for it.
class CtrEventLog : public PageView {
public:
    explicit CtrEventLog(const platform::Design& design = {});
    CtrEventLog(platform::Widget& container, const platform::Design& design = {});

    platform::Frame         frmViews{*this, {.Name = "frmViews", .Index = 0, .Tag = "eventLog"}};
    platform::ListView      lsvEventLog{frmViews, {.Name = "lsvEventLog", .Index = 0}};
    platform::CommandButton cmdNext{frmViews,
                                    {.Name    = "cmdNext",
                                     .Tag     = "moreEvents",
                                     .Caption = "More events",
                                     .Height  = 360,
                                     .Enabled = false}};
    CtrDateLabel            ctrDateLabels{
        frmViews, {.Name = "ctrDateLabels", .Index = 0, .Tag = "date_eventLog", .Height = 270}};
    /// Total operation time, its unit, the date of that value.
    std::array<platform::Label, 3> lblOperationTime{
        {{frmViews, {.Name = "lblOperationTime", .Index = 0, .Height = 270}},
         {frmViews, {.Name = "lblOperationTime", .Index = 1, .Height = 270}},
         {frmViews, {.Name = "lblOperationTime", .Index = 2, .Height = 270}}}};
    std::array<platform::Label, 2> lblTitle{{{frmViews,
                                              {.Name    = "lblTitle",
                                               .Index   = 0,
                                               .Tag     = "totalOperationTime",
                                               .Caption = "Total operation time",
                                               .Height  = 270}},
                                             {frmViews,
                                              {.Name    = "lblTitle",
                                               .Index   = 1,
                                               .Tag     = "eventLog",
                                               .Caption = "Event log",
                                               .Height  = 270}}}};
    /// Shown when any date is an estimate.
    platform::Label lblFootnote{frmViews,
                                {.Name    = "lblFootnote",
                                 .Tag     = "dateEstimate",
                                 .Caption = "*) Assuming 0s downtime",
                                 .Height  = 270,
                                 .Visible = false}};
    // Behind everything else in the tab order, so that Tab leaves the view in both directions.
    CtrFocusTransfer CtrFocusTransfer1{frmViews, {.Name = "CtrFocusTransfer1"}};
    CtrFocusTransfer CtrFocusTransfer2{frmViews, {.Name = "CtrFocusTransfer2"}};

    [[nodiscard]] const char* TypeName() const override { return "CtrEventLog"; }

    // IQornComponent
    void SetMessenger(Messenger* messenger) override;
    // ILocalizable
    void Localize(Translator& translator) override;
    // IQornDataUser
    void SetErrorData(const IXMLDOMNode& node) override;
    void SetImportData(const IXMLDOMNode& node) override;
    void SetOfflineData(const IXMLDOMNode& node) override;
    void SetOnlineData(const IXMLDOMNode& node) override;
    // IQornView
    void RequestFocus() override;
    void PrepareToRelease() override;

    /// Hides the class column, and asks the device for events without their class.
    void HideClasses(bool hide);
    /// The index of the event that stands in the first row; 0 and less change nothing.
    void SetTopEventIndex(std::int16_t index);
    /// False takes the button for more events away for good; true does nothing.
    void ShowMoreEvents(bool show);
    /// The two families of devices; `SetOfflineData` chooses by the device type's name.
    void UseFieldbus();
    void UseHART();
    /// Dates the whole list anew: the device had counted `operationTime` hours on `date`. Both are
    /// texts; one that is empty or begins with "00" says nothing, and nothing changes.
    void AddStamps(const std::string& operationTime, const std::string& date);

    // The state, for diagnosis.
    [[nodiscard]] const EventLogPaging& paging() const { return mPaging; }
    [[nodiscard]] const EventLogTimes&  times() const { return mTimes; }
    [[nodiscard]] bool                  classesHidden() const { return mblnHideClasses; }
    [[nodiscard]] const std::string&    syncState() const { return mstrSyncState; }
    [[nodiscard]] const std::string&    externalResetText() const { return mstrExternalResetText; }
    /// The datafile's parameter for a piece of an event: `column` 0 event, 1 class, 2 time; `index`
    /// up to 31. Nothing while there is none, failure 9 outside.
    [[nodiscard]] IXMLDOMNode eventNode(int index, int column) const;

protected:
    void arrange() override;

private:
    /// Pieces of one event: event, class, time.
    using Pieces = std::array<IXMLDOMNode, 3>;

    void UserControl_Initialize();
    void cmdNext_Click();
    void lsvEventLog_KeyUp(const platform::KeyPress& key);
    void mMessenger_ViewSetCommunicationMode(std::int32_t mode);
    void mMessenger_ViewReceiveValue(const std::string& name, const std::string& value);

    /// The unit of the total operation time: attribute `unit` of its item or parameter.
    void showUnit(const Steps& step, const IXMLDOMNode& node);
    /// A list that was filled from its first event on is shown from its top.
    void showFirstRow(const Steps& step);

    // Messages from the device.
    bool takeOperationTime(const Steps& step, const IXMLDOMNode& document);
    void takeEvents(const Steps& step, const IXMLDOMNode& document, const IXMLDOMNode& response,
                    const std::string& name);
    /// Answers the last event that had content.
    std::optional<eventLog::Texts> listEvents(const Steps& step, const IXMLDOMNode& document,
                                              bool newList);
    int                            beginNewList();
    int                            continueList(const Steps& step);
    void                           storePieces(const Steps& step, int index, const Pieces& items);
    void                           drawBreak(const Steps& step, int index, int indexShift);
    void finishRead(const Steps& step, const std::string& name, bool newList);
    void testEndOfLog(const Steps& step, const std::optional<eventLog::Texts>& last);

    // The datafile.
    void               chooseFamily(const Steps& step, const IXMLDOMNode& datafile);
    void               showStoredOperationTime(const Steps& step, const IXMLDOMNode& datafile);
    [[nodiscard]] bool listStoredEvents(const Steps& step, const IXMLDOMNode& datafile);
    void               finishStoredList(const Steps& step, const IXMLDOMNode& datafile, bool known);

    // Rows.
    /// Puts what is not empty of an event into a row, or into a new one at the end. A row that
    /// holds a separator is passed, and `row` with it.
    void AddEventLogEvent(int& row, const eventLog::Texts& texts, const std::string& index);
    int  addRow();
    /// Takes the obsolete events away and numbers the rows.
    void                      RemoveObsoleteEvents();
    [[nodiscard]] std::string Stamp(const std::string& time, int row);
    [[nodiscard]] std::string stampSource(int row, int place, int& obsolete);
    void                      rowsChanged(const platform::WidgetChange& change);

    void placeWidgets(); ///< all but the columns of the list
    void fitColumns();
    void ResizeEvents();
    void ResizeTotalOperationTime();
    void selectAllRows();
    void copySelectedRows();

    void log(const Steps& step, std::int16_t category, const std::string& text);
    /// The Translator's text of a key, or the key where it has none; fails where the Translator
    /// does.
    [[nodiscard]] std::string translated(const std::string& key);
    /// The same for many keys: asks the host for its Translator once. An empty key has an empty
    /// text, and so has one that fails.
    [[nodiscard]] std::function<std::string(const std::string&)> wording(const Steps& step);

    EventLogPaging mPaging;
    EventLogTimes  mTimes;
    bool           mblnHideClasses = false;
    std::string    mstrExternalResetText;
    std::string    mstrSyncState = "notRead";
    /// Datafile parameters of each event index: column 0 event, 1 class, 2 time.
    std::array<Pieces, 32> maEventNodes;

    // A log of thousands of rows is read page by page, and none of the reads may walk all of it:
    // up to here the rows are known to be numbered and not to be obsolete.
    int         mRowsChecked = 0;
    std::string mObsoleteText; ///< as it was when they were checked

    platform::Subscription mOnMode;
    platform::Subscription mOnValue;
    platform::Subscription mOnRows = lsvEventLog.Changed.subscribe(
        [this](const platform::WidgetChange& change) { rowsChanged(change); });
    platform::Subscription mOnNext = cmdNext.Click.subscribe([this] { cmdNext_Click(); });
    platform::Subscription mOnKey =
        lsvEventLog.KeyUp.subscribe([this](platform::KeyPress& key) { lsvEventLog_KeyUp(key); });
};

} // namespace quill
