#include "probe/registry.h"

#include <algorithm>

namespace quill::probe {

Registry::Registry()
{
    registerEditors(mClasses);
    registerStatus(mClasses);
    registerRecords(mClasses);
    registerActions(mClasses);
    registerGrid(mClasses);
    registerWidgets(mClasses);
    registerInterfaces(mClasses);
    registerModules(mModules);
}

const Registry& Registry::instance()
{
    static const Registry registry;
    return registry;
}

const ClassEntry* Registry::findClass(const std::string& name) const
{
    const auto found = std::find_if(mClasses.begin(), mClasses.end(), [&](const auto& entry) {
        return entry.create && entry.name == name;
    });
    return found == mClasses.end() ? nullptr : &*found;
}

const ModuleEntry* Registry::findModule(const std::string& name) const
{
    const auto found = std::find_if(mModules.begin(), mModules.end(),
                                    [&](const auto& module) { return module.name == name; });
    return found == mModules.end() ? nullptr : &*found;
}

const Member* Registry::findMethod(platform::Widget& widget, const std::string& name) const
{
    for (const auto& entry : mClasses) {
        const auto found = entry.methods.find(name);
        if (found != entry.methods.end() && entry.matches(widget)) {
            return &found->second;
        }
    }
    return nullptr;
}

const PropertyMember* Registry::findProperty(platform::Widget&  widget,
                                             const std::string& name) const
{
    for (const auto& entry : mClasses) {
        const auto found = entry.properties.find(name);
        if (found != entry.properties.end() && entry.matches(widget)) {
            return &found->second;
        }
    }
    return nullptr;
}

std::map<std::string, const PropertyMember*> Registry::properties(platform::Widget& widget) const
{
    std::map<std::string, const PropertyMember*> result;
    for (const auto& entry : mClasses) {
        if (!entry.properties.empty() && entry.matches(widget)) {
            for (const auto& [name, property] : entry.properties) {
                if (property.isInDump && property.get) {
                    result.emplace(name, &property);
                }
            }
        }
    }
    return result;
}

std::vector<platform::Subscription>
Registry::listen(platform::Widget& widget, const EventSink& sink, const Scene& scene) const
{
    std::vector<platform::Subscription> subscriptions;
    for (const auto& entry : mClasses) {
        if (!entry.events.empty() && entry.matches(widget)) {
            for (const auto& subscribe : entry.events) {
                subscriptions.push_back(subscribe(widget, sink, scene));
            }
        }
    }
    return subscriptions;
}

} // namespace quill::probe
