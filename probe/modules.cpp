#include "framework/ListTools.h"
#include "framework/modTools.h"
#include "framework/modView.h"
#include "probe/binding.h"
#include "probe/change_rows.h"

namespace quill::probe {

Reply writeRows(const ListContainers& containers)
{
    Reply list = Reply::array();
    for (const auto& row : containers.rows) {
        if (!row) {
            list.push_back(nullptr);
            continue;
        }
        Reply entry;
        entry["key"]          = row->key;
        entry["extra"]        = row->extra;
        entry["oldText"]      = row->oldText;
        entry["newText"]      = row->newText;
        entry["type"]         = row->type;
        entry["tag"]          = row->tag;
        entry["requestGroup"] = row->requestGroup;
        entry["exists"]       = row->exists;
        entry["selected"]     = row->selected;
        list.push_back(std::move(entry));
    }
    return list;
}

namespace {

/// The routines of `ListTools` work on an array that its owner keeps. A line names it by a text,
/// and it comes back by reference.
CallResult resetRows(const Scene& scene, platform::Widget*, const Json& args)
{
    const auto given = detail::completeArguments(args, 2, {});
    auto&      rows  = scene.changeRows(asText(given[0]));
    ListTools::Reset(rows, detail::Argument<platform::ListView&>(scene, given[1]).pass());
    CallResult answer;
    answer.out["rows"] = writeRows(rows);
    return answer;
}

CallResult addChange(const Scene& scene, platform::Widget*, const Json& args)
{
    const auto given = detail::completeArguments(args, 10, {});
    auto&      rows  = scene.changeRows(asText(given[0]));
    auto&      list  = detail::Argument<platform::ListView&>(scene, given[1]).pass();
    ListTools::AddChange(rows, list,
                         {read<IQornDataEditor*>(scene, given[2]), asText(given[3]),
                          asText(given[4]), asText(given[5]), asText(given[6]), asText(given[7]),
                          asText(given[8]), asText(given[9])});
    CallResult answer;
    answer.out["rows"] = writeRows(rows);
    return answer;
}

} // namespace

void registerModules(std::vector<ModuleEntry>& modules)
{
    Module{"modTools"}
        .routine("ParseNumber", &modTools::ParseNumber)
        .routine("FormatNumber", &modTools::FormatNumber)
        .routine("MakePath", &modTools::MakePath)
        .routine("GetHomeRequestGroup", &modTools::GetHomeRequestGroup)
        .routine("IsNotErrorText", &modTools::IsNotErrorText)
        .routine("StandardizeDatafileDate", &modTools::StandardizeDatafileDate)
        .routine("LocalizeDatafileDate", &modTools::LocalizeDatafileDate)
        .routine("RemoveCtrPrefix", &modTools::RemoveCtrPrefix)
        .routine("WriteDebugError", &modTools::WriteDebugError)
        .into(modules);
    Module{"modView"}
        .routine("Localize", &modView::Localize)
        .routine("setMessenger", &modView::setMessenger)
        .routine("setImportData", &modView::setImportData)
        .routine("setOfflineData", &modView::setOfflineData)
        .routine("setOnlineData", &modView::setOnlineData)
        .routine("setErrorData", &modView::setErrorData)
        .routine("forwardSyncChanges", &modView::forwardSyncChanges,
                 {.defaults = {}, .outs = {"state"}})
        .routine("ShowViewPage", &modView::ShowViewPage)
        .routine("ShowFramePage", &modView::ShowFramePage)
        .routine("TransferFocusOnTab", &modView::TransferFocusOnTab)
        .into(modules);
    Module{"ListTools"}.member("Reset", resetRows).member("AddChange", addChange).into(modules);
}

} // namespace quill::probe
