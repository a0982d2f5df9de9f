#include "probe/binding.h"
#include "probe/change_rows.h"
#include "records/CtrChanges.h"

namespace quill::probe {

void registerRecords(std::vector<ClassEntry>& classes)
{
    Class<CtrChanges>{"CtrChanges"}
        .creatable()
        .state("maChanges", [](CtrChanges& dialog) { return writeRows(dialog.changes()); })
        .state("mobjCaptions", [](CtrChanges& dialog) { return Reply(dialog.captions()); })
        .state("mstrAccess", &CtrChanges::access)
        .into(classes);
}

} // namespace quill::probe
