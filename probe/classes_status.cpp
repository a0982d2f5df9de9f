#include "probe/binding.h"
#include "status/CtrStatus.h"
#include "status/CtrStatusF.h"
#include "status/StatusConfiguration.h"
#include "status/StatusNAMUR.h"
#include "status/StatusSeverity.h"

namespace quill::probe {

namespace {

void registerStatusViews(std::vector<ClassEntry>& classes)
{
    using C = CtrStatus;
    Class<C>{"CtrStatus"}
        .creatable()
        .method("UpdateStatusTree", &C::UpdateStatusTree)
        .state("miClassification", &C::classification)
        .state("mblnFixedClassification", &C::isClassificationFixed)
        .state("mastrMasks", &C::masks)
        .state("maiEnabled", &C::enabled)
        .state("maiMaskByte", &C::maskBytes)
        .state("maiMaskBit", &C::maskBits)
        .state("miMaskLength", &C::maskLength)
        .state("mblnConfigurationSign", &C::hasConfigurationSign)
        .into(classes);
    Class<CtrStatusF>{"CtrStatusF"}
        .creatable()
        .method("Sleep", &CtrStatusF::Sleep)
        .method("IsConfiguring", &CtrStatusF::IsConfiguring)
        .state("IsConfiguring", &CtrStatusF::IsConfiguring)
        .state("mblnSleeping", &CtrStatusF::isSleeping)
        .state("mblnMasksUnread", &CtrStatusF::areMasksUnread)
        .state("mblnImported", &CtrStatusF::isImported)
        .into(classes);
    using V = StatusTreeView;
    Class<V>{"StatusTreeView"}
        .property("CombinedStatus", &V::CombinedStatus, &V::setCombinedStatus)
        .method("ShowNode", &V::ShowNode)
        .state("mastrImages", &V::images)
        .state("miLastRow", &V::lastRow)
        .state("mstrSyncState", &V::syncState)
        .state("mstrCombinedStatus", &V::CombinedStatus)
        .into(classes);
}

void registerStatusClasses(std::vector<ClassEntry>& classes)
{
    Class<StatusSeverity>{"StatusSeverity"}.creatable().into(classes);
    Class<StatusNAMUR>{"StatusNAMUR"}.creatable().into(classes);
    using S = IQornStatusClass;
    Class<S>{"IQornStatusClass"}
        .method("ImageOk", &S::ImageOk)
        .method("ImageDisabled", &S::ImageDisabled)
        .method("ImageNotRead", &S::ImageNotRead)
        .method("ImageUnknown", &S::ImageUnknown)
        .method("GetClass", &S::GetClass)
        .method("SetClass", &S::SetClass)
        .method("GetWorst", &S::GetWorst)
        .method("ReadClass", &S::ReadClass)
        .into(classes);
}

/// One field of all rows, in their order.
template <class Field>
auto ofRows(Field field)
{
    return [field](const StatusConfiguration& masks) {
        Reply list = Reply::array();
        for (const StatusConfiguration::Row& row : masks.rows()) {
            list.push_back(field(row));
        }
        return list;
    };
}

void registerStatusConfiguration(std::vector<ClassEntry>& classes)
{
    using C   = StatusConfiguration;
    using Row = C::Row;
    Class<C>{"StatusConfiguration"}
        .creatable()
        .method("AddBit", &C::AddBit)
        .method("IsEnabled", &C::IsEnabled)
        .method("SetEnabled", &C::SetEnabled)
        .method("SetOfflineParameters", &C::SetOfflineParameters)
        .method("SetOnlineParameters", &C::SetOnlineParameters)
        .method("SetMaskProperties", &C::SetMaskProperties)
        .state("maOfflineNode", &C::parameters)
        .state("mastrMaskParts", &C::parts)
        .state("miPartLength", &C::partLength)
        .state("miPartCount", &C::partCount)
        .state("miLastBit",
               [](const C& masks) { return static_cast<std::int64_t>(masks.rows().size()) - 1; })
        .state("mastrBitNames", ofRows([](const Row& row) { return row.name; }))
        .state("maiMaskBit", ofRows([](const Row& row) { return row.maskBit; }))
        .state("maiMaskByte", ofRows([](const Row& row) { return row.maskByte; }))
        .state("maiEnabled", ofRows([](const Row& row) { return row.enabled ? 1 : 0; }))
        .into(classes);
}

} // namespace

void registerStatus(std::vector<ClassEntry>& classes)
{
    registerStatusViews(classes);
    registerStatusClasses(classes);
    registerStatusConfiguration(classes);
}

} // namespace quill::probe
