// The last log that was read, as the datafile keeps it.
#include "records/CtrEventLog.h"

#include "framework/documents.h"
#include "framework/modTools.h"
#include "framework/modView.h"
#include "framework/values.h"
#include "platform/failure.h"

namespace quill {

using eventLog::Texts;

namespace {

/// When a group was read last, on screen; a group that never was has an empty one.
std::string localDate(const std::string& lastUpdate)
{
    return lastUpdate.empty() ? std::string{} : modTools::LocalizeDatafileDate(lastUpdate);
}

} // namespace

void CtrEventLog::SetOfflineData(const IXMLDOMNode& node)
{
    const Steps step = steps("IQornDataUser_setOfflineData");
    step([&] { modView::setOfflineData(*this, node); });
    lsvEventLog.Clear();
    const bool known = static_cast<bool>(maEventNodes[1][0]);
    chooseFamily(step, node);
    mTimes.mblnHasTimeReference = false;
    mTimes.miFirstResetRow      = EventLogTimes::kNoResetRow;
    if (!known) {
        showStoredOperationTime(step, node);
    }
    if (listStoredEvents(step, node)) {
        finishStoredList(step, node, known);
    }
}

void CtrEventLog::chooseFamily(const Steps& step, const IXMLDOMNode& datafile)
{
    const auto info = step.value(IXMLDOMNode{}, [&] {
        return datafile.selectSingleNode(
            "data:dtm/data:persistentData/typeInfo:device/typeInfo:internalInfo");
    });
    if (!info) {
        return;
    }
    const std::string name = step.text([&] { return documents::attributeText(info, "name"); });
    if (values::contains(name, "H")) {
        UseHART();
    } else {
        UseFieldbus();
    }
}

void CtrEventLog::showStoredOperationTime(const Steps& step, const IXMLDOMNode& datafile)
{
    IXMLDOMNode parameter;
    for (const char* name : {"eventLogTotalOperationTime", "totalOperationTime"}) {
        if (!parameter) {
            step([&] { parameter = documents::findParameter(datafile, name); });
        }
    }
    if (!parameter) {
        return;
    }
    showUnit(step, parameter);
    const std::string value =
        step.text([&] { return documents::attributeText(parameter, "value"); });
    if (!eventLog::isKnown(value)) {
        return;
    }
    step([&] { lblOperationTime[0].Caption = eventLog::operationTimeText(value); });
    const std::string lastUpdate = step.text([&] {
        const auto listing = datafile.selectSingleNode(
            "./data:dtm/data:requestGroups/data:requestGroup/data:includedParam[@name=\"" +
            documents::attributeText(parameter, "name") + "\"]");
        return documents::attributeText(listing.get_parentNode(), "lastUpdate");
    });
    lblOperationTime[2].Caption  = step.text([&] { return localDate(lastUpdate); });
    ResizeTotalOperationTime();
    if (!eventLog::isKnown(lblOperationTime[2].Caption)) {
        return;
    }
    step([&] {
        const auto date = values::parseDate(modTools::StandardizeDatafileDate(lastUpdate));
        if (!date) {
            throw platform::failure(platform::kTypeMismatch);
        }
        mTimes.setReference(modTools::ParseNumber(value), *date);
    });
}

/// Answers whether there is any event. A parameter of a datafile that comes up again, or of an
/// imported one, goes into the parameter that is kept from the first.
bool CtrEventLog::listStoredEvents(const Steps& step, const IXMLDOMNode& datafile)
{
    const auto translation = wording(step);
    int        indexShift  = mPaging.firstIndexShift();
    bool       hasRows     = false;
    for (int index = 0; index <= mPaging.miEventsPerRead; ++index) {
        const std::string          suffix = eventLog::suffix(index);
        Pieces&                    nodes  = maEventNodes.at(static_cast<std::size_t>(index));
        std::array<std::string, 3> raw;
        for (std::size_t piece = 0; piece < raw.size(); ++piece) {
            const auto parameter = step.value(IXMLDOMNode{}, [&] {
                return documents::findParameter(datafile, eventLog::kPieces[piece].first + suffix);
            });
            if (!parameter) {
                continue;
            }
            raw[piece] = step.text([&] { return documents::attributeText(parameter, "value"); });
            if (nodes[piece]) {
                step([&] { documents::writeAttribute(nodes[piece], "value", raw[piece]); });
            } else {
                nodes[piece] = parameter;
            }
        }
        const Texts texts{translation(raw[0]), translation(raw[1]), raw[2]};
        if (texts.isEmpty()) {
            continue;
        }
        hasRows = true;
        int row = index + indexShift;
        AddEventLogEvent(row, texts, std::to_string(index));
        if (raw[0] == eventLog::kExternalReset) {
            step([&] { mPaging.countResetEvent(); });
            ++indexShift;
            int separator = index + indexShift;
            AddEventLogEvent(separator, {.event = eventLog::kSeparator}, {});
            step([&] { mTimes.noteReset(separator); });
            lblFootnote.Visible = true;
        }
    }
    return hasRows;
}

void CtrEventLog::finishStoredList(const Steps& step, const IXMLDOMNode& datafile, bool known)
{
    step([&] { RemoveObsoleteEvents(); });
    const std::string lastUpdate = step.text([&] {
        return documents::attributeText(
            datafile.selectSingleNode("//data:requestGroup[@name = \"eventLog\"]"), "lastUpdate");
    });
    step([&] { ctrDateLabels.setCaption(known ? lastUpdate : localDate(lastUpdate)); });
    if (known) {
        step([&] { host().SetParameterState(eventLog::kGroup, "edited"); });
    }
    ResizeEvents();
    showFirstRow(step);
    mstrExternalResetText = step.text([&] { return translated(eventLog::kExternalReset); });
}

} // namespace quill
