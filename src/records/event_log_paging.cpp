#include "records/event_log_paging.h"

#include "framework/values.h"
#include "platform/failure.h"

#include <limits>

namespace quill {

namespace {

constexpr const char* kHead =
    "<?xml version=\"1.0\"?><dtm xmlns=\"x-schema:QVXCommunicationSchema.xml\">"
    "<communicationRequest ";
constexpr const char* kEnd = "</communicationRequest></dtm>";

/// The class that goes with the index in a request for more events, unless classes are hidden.
constexpr int kRequestedClass = 9;

} // namespace

void EventLogPaging::UseFieldbus()
{
    mblnIsHART        = false;
    miEventsInMessage = 25;
    miMessagesInParts = 2;
    miMessagesPerRead = 1;
    miEventsPerRead   = 25;
    miTopEventIndex   = 1;
    mstrOperationTimeRequest.clear();
}

void EventLogPaging::UseHART()
{
    mblnIsHART               = true;
    miEventsInMessage        = 10;
    miMessagesInParts        = 1;
    miMessagesPerRead        = 3;
    miEventsPerRead          = 30;
    mstrOperationTimeRequest = std::string(kHead) +
                               "name=\"eventLogOperationTime\" access=\"read\">\r\n"
                               "<item name=\"eventLogTotalOperationTime\" unit=\"h\"><floatVal/>"
                               "</item>\r\n" +
                               kEnd;
}

int EventLogPaging::nextIndexShift(int rows) const
{
    return rows - miEventsInMessage * (miMessageCount - 1) - miResetEvents;
}

int EventLogPaging::lastIndex(bool newList) const
{
    return newList ? miEventsPerRead : miEventsInMessage * miMessagesPerRead;
}

int EventLogPaging::nextEvent() const
{
    return miEventsPerRead + miEventsInMessage * miMessagesPerRead * miReadsDone + 1;
}

std::string EventLogPaging::moreEventsRequest(bool hideClasses) const
{
    if (!mblnIsHART) {
        return std::string(kHead) +
               "name=\"eventLog\" access=\"read\" datasetSave=\"0\">"
               "<item name=\"eventLogNextEvent01\" unit=\"noUnit\"><stringVal/></item>"
               "<item name=\"eventLogNextTime01\" unit=\"noUnit\"><stringVal/></item>" +
               kEnd;
    }
    const auto item = [](const char* name, std::int64_t value) {
        return std::string("<item name=\"") + name + "\" unit=\"noUnit\"><integerVal>" +
               std::to_string(value) + "</integerVal></item>";
    };
    return std::string(kHead) + "name=\"eventLogContinued\" access=\"write\" datasetSave=\"0\">" +
           item("eventLogIndex", std::int64_t{miEventsInMessage} * mlngMessagesRead) +
           (hideClasses ? std::string{} : item("eventLogClass", kRequestedClass)) + kEnd;
}

void EventLogPaging::countMessage()
{
    if (miMessageCount == std::numeric_limits<std::uint8_t>::max()) {
        throw platform::failure(platform::kOverflow);
    }
    ++miMessageCount;
}

void EventLogPaging::startList()
{
    miResetEvents    = 0;
    mvarIndexBase    = 0;
    miReadsDone      = 0;
    mlngMessagesRead = 1;
}

void EventLogPaging::countResetEvent()
{
    miResetEvents = values::toInt16(miResetEvents + 1);
}

void EventLogPaging::countRead()
{
    miReadsDone = values::toInt16(miReadsDone + miMessagesPerRead);
}

void EventLogPaging::moveIndexBase(bool newList)
{
    if (newList) {
        mvarIndexBase = miEventsPerRead;
    } else {
        mvarIndexBase += miEventsInMessage * miMessagesPerRead;
    }
}

void EventLogPaging::endRead()
{
    mblnReadOk              = true;
    miMessageCount          = 0;
    mblnIsMoreEventsClicked = false;
}

void EventLogPaging::keepWhatArrived()
{
    miReadsDone = values::toInt16(miReadsDone - miMessagesPerRead + miMessageCount);
    mvarIndexBase += miMessageCount * miEventsInMessage;
}

} // namespace quill
