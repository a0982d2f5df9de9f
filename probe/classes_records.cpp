#include "probe/binding.h"
#include "probe/change_rows.h"
#include "records/CtrChanges.h"
#include "records/CtrEventLog.h"
#include "records/CtrSettings.h"

namespace quill::probe {

namespace {

void registerEventLog(std::vector<ClassEntry>& classes)
{
    using C           = CtrEventLog;
    const auto paging = [](auto field) {
        return [field](const C& log) { return log.paging().*field; };
    };
    const auto times = [](auto field) {
        return [field](const C& log) { return log.times().*field; };
    };
    using P = EventLogPaging;
    using T = EventLogTimes;
    Class<C>{"CtrEventLog"}
        .creatable()
        .method("HideClasses", &C::HideClasses)
        .method("SetTopEventIndex", &C::SetTopEventIndex)
        .method("ShowMoreEvents", &C::ShowMoreEvents)
        .method("UseFieldbus", &C::UseFieldbus)
        .method("UseHART", &C::UseHART)
        .method("AddStamps", &C::AddStamps)
        .state("mblnIsHART", paging(&P::mblnIsHART))
        .state("miEventsInMessage", paging(&P::miEventsInMessage))
        .state("miMessagesInParts", paging(&P::miMessagesInParts))
        .state("miMessagesPerRead", paging(&P::miMessagesPerRead))
        .state("miEventsPerRead", paging(&P::miEventsPerRead))
        .state("mstrOperationTimeRequest", paging(&P::mstrOperationTimeRequest))
        .state("miTopEventIndex", paging(&P::miTopEventIndex))
        .state("mblnReadOk", paging(&P::mblnReadOk))
        .state("miMessageCount", paging(&P::miMessageCount))
        .state("mlngMessagesRead", paging(&P::mlngMessagesRead))
        .state("miReadsDone", paging(&P::miReadsDone))
        .state("mblnIsNextAllowed", paging(&P::mblnIsNextAllowed))
        .state("mblnIsMoreEventsClicked", paging(&P::mblnIsMoreEventsClicked))
        .state("miResetEvents", paging(&P::miResetEvents))
        .state("mvarIndexBase", paging(&P::mvarIndexBase))
        .state("mblnHasTimeReference", times(&T::mblnHasTimeReference))
        .state("mdblOperationTime", times(&T::mdblOperationTime))
        .state("mdblUpdateDate", times(&T::mdblUpdateDate))
        .state("miFirstResetRow", times(&T::miFirstResetRow))
        .state("mblnHideClasses", &C::classesHidden)
        .state("mstrExternalResetText", &C::externalResetText)
        .state("mstrSyncState", &C::syncState)
        .state("maEventNodes", &C::eventNode)
        .into(classes);
}

} // namespace

void registerRecords(std::vector<ClassEntry>& classes)
{
    Class<CtrChanges>{"CtrChanges"}
        .creatable()
        .state("maChanges", [](CtrChanges& dialog) { return writeRows(dialog.changes()); })
        .state("mobjCaptions", [](CtrChanges& dialog) { return Reply(dialog.captions()); })
        .state("mstrAccess", &CtrChanges::access)
        .into(classes);
    registerEventLog(classes);
    Class<CtrSettings>{"CtrSettings"}
        .creatable()
        .method("SetCurrentLanguage", &CtrSettings::SetCurrentLanguage)
        .method("SetSupportedLanguages", &CtrSettings::SetSupportedLanguages)
        .state("mstrLanguage", &CtrSettings::language)
        .state("mblnModified", &CtrSettings::isModified)
        .state("miUnitRow", &CtrSettings::unitRow)
        .state("mastrLanguages", &CtrSettings::languages)
        .state("mblnUnitsLoaded", &CtrSettings::areUnitsLoaded)
        .into(classes);
}

} // namespace quill::probe
