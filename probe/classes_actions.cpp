#include "actions/CtrHartAddress.h"
#include "actions/CtrMACalibration.h"
#include "actions/CtrModuleSelection.h"
#include "actions/CtrReset.h"
#include "probe/binding.h"

namespace quill::probe {

void registerActions(std::vector<ClassEntry>& classes)
{
    Class<CtrReset>{"CtrReset"}.creatable().into(classes);
    Class<CtrHartAddress>{"CtrHartAddress"}
        .creatable()
        .method("UpdateHartAddress", &CtrHartAddress::UpdateHartAddress)
        .into(classes);
    Class<CtrMACalibration>{"CtrMACalibration"}
        .creatable()
        .state("miCalibrationStep", &CtrMACalibration::miCalibrationStep)
        .into(classes);
    Class<CtrModuleSelection>{"CtrModuleSelection"}
        .creatable()
        .state("communicationMode", &CtrModuleSelection::communicationMode)
        .into(classes);
}

} // namespace quill::probe
