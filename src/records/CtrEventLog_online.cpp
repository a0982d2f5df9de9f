// What comes from the device: pages of events, and the total operation time.
#include "records/CtrEventLog.h"

#include "framework/documents.h"
#include "framework/modView.h"
#include "framework/values.h"
#include "platform/toolkit.h"

namespace quill {

using eventLog::Texts;

namespace {

constexpr const char* kItems = "comm:dtm/comm:communicationResponse/comm:item";

/// The first of the items with either name.
IXMLDOMNode findPiece(const IXMLDOMNode& document, const eventLog::PieceName& name,
                      const std::string& suffix)
{
    const auto first = documents::findItem(document, name.first + suffix);
    const auto next  = documents::findItem(document, name.next + suffix);
    if (first && next) {
        return document.selectSingleNode(std::string(kItems) + "[@name = \"" + name.first + suffix +
                                         "\" or @name = \"" + name.next + suffix + "\"]");
    }
    return first ? first : next;
}

std::string textOf(const IXMLDOMNode& item)
{
    return item ? item.get_text() : std::string{};
}

std::string presentDate()
{
    return eventLog::dateText(platform::Toolkit::current().now());
}

} // namespace

void CtrEventLog::SetOnlineData(const IXMLDOMNode& node)
{
    const Steps step = steps("IQornDataUser_setOnlineData");
    log(step, kLogContract, "CtrEventLog SetOnlineData entering");
    const auto response = step.value(
        IXMLDOMNode{}, [&] { return node.selectSingleNode("//comm:communicationResponse"); });
    if (!response) {
        return;
    }
    const std::string name = step.text([&] { return documents::attributeText(response, "name"); });
    if (!mPaging.mstrOperationTimeRequest.empty() && takeOperationTime(step, node)) {
        return;
    }
    if (values::contains(name, eventLog::kGroup)) {
        takeEvents(step, node, response, name);
    }
    log(step, kLogContract, "CtrEventLog SetOnlineData leaving");
}

/// Answers whether the message carries the total operation time: then it is about nothing else.
bool CtrEventLog::takeOperationTime(const Steps& step, const IXMLDOMNode& document)
{
    const auto item = step.value(IXMLDOMNode{}, [&] {
        return document.selectSingleNode(std::string(kItems) +
                                         "[contains(@name, 'eventLogTotalOperationTime')]");
    });
    if (!item) {
        return false;
    }
    showUnit(step, item);
    const std::string value = step.text([&] { return textOf(item.get_firstChild()); });
    if (value.empty()) {
        return true;
    }
    const std::string date      = step.text([] { return presentDate(); });
    lblOperationTime[2].Caption = date;
    step([&] { lblOperationTime[0].Caption = eventLog::operationTimeText(value); });
    ResizeTotalOperationTime();
    AddStamps(value, date);
    return true;
}

void CtrEventLog::takeEvents(const Steps& step, const IXMLDOMNode& document,
                             const IXMLDOMNode& response, const std::string& name)
{
    step([&] { host().WriteLog(kLogFlow, document.get_xml()); });
    step([&] { mPaging.countMessage(); });
    ++mPaging.mlngMessagesRead;
    // Behind a failed part the rows of a read would stand in the wrong places: the rest of it is
    // counted but not listed.
    const bool           isListed = mPaging.mblnReadOk;
    const bool           newList  = isListed && !mPaging.mblnIsMoreEventsClicked;
    std::optional<Texts> last;
    if (isListed) {
        last = listEvents(step, document, newList);
    }
    if (step.text([&] { return documents::attributeText(response, "isFinal"); }) == "1") {
        finishRead(step, name, newList);
    }
    testEndOfLog(step, last);
}

int CtrEventLog::beginNewList()
{
    lblFootnote.Visible = false;
    if (mPaging.miMessageCount == 1) {
        lsvEventLog.Clear();
        mPaging.startList();
        mTimes.miFirstResetRow = EventLogTimes::kNoResetRow;
    }
    return mPaging.firstIndexShift();
}

int CtrEventLog::continueList(const Steps& step)
{
    const auto tell = [&](const char* text, int number) {
        log(step, kLogDetail, text + std::to_string(number));
    };
    tell("lsvEventLog(0).ListItems.Count ", lsvEventLog.Count());
    tell(" - miEventsInMessage ", mPaging.miEventsInMessage);
    tell("* (miMessageCount -1) ", mPaging.miMessageCount - 1);
    tell(" - miResetEvents ", mPaging.miResetEvents);
    return mPaging.nextIndexShift(lsvEventLog.Count());
}

std::optional<Texts> CtrEventLog::listEvents(const Steps& step, const IXMLDOMNode& document,
                                             bool newList)
{
    std::optional<Texts> last;
    const int            indexShift = newList ? beginNewList() : continueList(step);
    const int            lastIndex  = mPaging.lastIndex(newList);
    log(step, kLogFlow, "indexShift = " + std::to_string(indexShift));
    if (mPaging.partsFillTheSameRows()) {
        mPaging.miResetEvents = 0;
        log(step, kLogFlow, "miResetEvents = 0 in miMessagesInParts > 1");
    }
    const auto translation = wording(step);
    for (int index = 0; index <= lastIndex; ++index) {
        log(step, kLogFlow, "Onlinedata iIndex = " + std::to_string(index));
        const std::string          suffix = eventLog::suffix(index);
        Pieces                     items;
        std::array<std::string, 3> raw;
        for (std::size_t piece = 0; piece < items.size(); ++piece) {
            step([&] { items[piece] = findPiece(document, eventLog::kPieces[piece], suffix); });
            raw[piece] = step.text([&] { return textOf(items[piece]); });
        }
        const Texts texts{translation(raw[0]), translation(raw[1]), raw[2]};
        if (newList) {
            storePieces(step, index, items);
        }
        if (texts.isEmpty()) {
            continue;
        }
        last = texts;
        log(step, kLogFlow,
            "Online Listing: indexShift " + std::to_string(indexShift) + " + index " +
                std::to_string(index) + " + reset events" + std::to_string(mPaging.miResetEvents) +
                " = row " + std::to_string(mPaging.rowOf(index, indexShift)));
        int row = mPaging.mblnIsHART ? lsvEventLog.Count() + 1 : mPaging.rowOf(index, indexShift);
        AddEventLogEvent(row, texts, std::to_string(index + mPaging.mvarIndexBase));
        if (!texts.event.empty() && raw[0] == eventLog::kExternalReset) {
            drawBreak(step, index, indexShift);
        }
    }
    return last;
}

void CtrEventLog::storePieces(const Steps& step, int index, const Pieces& items)
{
    const Pieces& nodes = maEventNodes[static_cast<std::size_t>(index)];
    for (std::size_t piece = 0; piece < items.size(); ++piece) {
        if (items[piece] && nodes[piece]) {
            step(
                [&] { documents::writeAttribute(nodes[piece], "value", items[piece].get_text()); });
        }
    }
}

void CtrEventLog::drawBreak(const Steps& step, int index, int indexShift)
{
    step([&] { mTimes.noteReset(mPaging.rowOf(index, indexShift)); });
    lblFootnote.Visible = true;
    step([&] { mPaging.countResetEvent(); });
    log(step, kLogFlow, "miResetEvents =+ 1");
    const int row = mPaging.rowOf(index, indexShift);
    log(step, kLogFlow, "Online Listing Break " + std::to_string(row));
    int separator = mPaging.mblnIsHART ? lsvEventLog.Count() + 1 : row;
    AddEventLogEvent(separator, {.event = eventLog::kSeparator}, {});
}

void CtrEventLog::finishRead(const Steps& step, const std::string& name, bool newList)
{
    step([&] { RemoveObsoleteEvents(); });
    if (mPaging.mblnReadOk) {
        if (ctrDateLabels.Tag == "date_" + name && (name != eventLog::kGroup || newList)) {
            step([&] { ctrDateLabels.setCaption(presentDate()); });
        }
        cmdNext.Enabled           = true;
        mPaging.mblnIsNextAllowed = true;
        mPaging.moveIndexBase(newList);
    }
    step([&] {
        modView::forwardSyncChanges(eventLog::kGroup, mPaging.mblnReadOk, mstrSyncState,
                                    GetMessenger());
    });
    step([&] { host().SetParameterState(eventLog::kGroup, "original"); });
    mPaging.endRead();
    if (mPaging.miResetEvents > 0) {
        lblFootnote.Visible = true;
    }
    mPaging.miResetEvents = 0;
    mstrExternalResetText = step.text([&] { return translated(eventLog::kExternalReset); });
    ResizeEvents();
    if (!newList) {
        return;
    }
    showFirstRow(step);
    if (!mPaging.mstrOperationTimeRequest.empty()) {
        step([&] {
            (void)host().ExecuteCommunicationRequest(mPaging.mstrOperationTimeRequest, "reading", 2,
                                                     1);
        });
    }
}

/// The log has no more events once a device sends empty ones.
void CtrEventLog::testEndOfLog(const Steps& step, const std::optional<Texts>& last)
{
    constexpr const char* kNoTime = "0.";
    log(step, kLogFlow, "Online iLast = " + std::to_string(lsvEventLog.Count()));
    if (lsvEventLog.Count() == 0) {
        return;
    }
    const auto        translation = wording(step);
    const std::string noClass     = translation(eventLog::kNoClass);
    const std::string noEvent     = translation(eventLog::kNoEvent);
    // Without words for it a row that has no texts says nothing about the end.
    const bool canTell = !noClass.empty() && !noEvent.empty();
    const auto isEnd   = [&](const Texts& texts) {
        return (canTell && texts.eventClass == noClass && texts.event == noEvent) ||
               texts.time == kNoTime;
    };
    const bool isOver = step.value(false, [&] {
        const platform::ListItem& item = lsvEventLog.Item(lsvEventLog.Count());
        return (last && isEnd(*last)) || isEnd({eventLog::column(item, eventLog::kEvent), item.Text,
                                                eventLog::column(item, eventLog::kTime)});
    });
    if (isOver) {
        cmdNext.Enabled           = false;
        mPaging.mblnIsNextAllowed = false;
    }
}

} // namespace quill
