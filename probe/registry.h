#pragma once

#include "platform/event.h"
#include "platform/widget.h"
#include "probe/json.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quill::probe {

class Scene;

/// What a call gives back: its result, if it has one, and what came by reference.
struct CallResult {
    std::optional<Reply> result;
    Reply                out = Reply::object();
};

/// A member of a class, ready to be called with JSON arguments on a widget of that class. A free
/// routine takes no widget.
using Member = std::function<CallResult(const Scene&, platform::Widget*, const Json& args)>;
/// Is handed the events of a control: name and arguments.
using EventSink = std::function<void(const char* event, Reply args)>;

/// A property: with an index its arguments are the index, and the new value comes last.
struct PropertyMember {
    Member get; ///< empty for one that can only be written
    Member set; ///< empty for one that can only be read
    bool   isInDump = true;
};

/// A class or interface of the library: its public members by name.
struct ClassEntry {
    std::string                           name;
    std::map<std::string, Member>         methods;
    std::map<std::string, PropertyMember> properties;
    /// Whether a widget is one.
    std::function<bool(platform::Widget&)> matches;
    /// Empty for interfaces and bases.
    std::function<std::unique_ptr<platform::Widget>(platform::Widget& container,
                                                    const platform::Design&)>
        create;
    std::vector<
        std::function<platform::Subscription(platform::Widget&, const EventSink&, const Scene&)>>
        events;
};

/// Free routines by name.
struct ModuleEntry {
    std::string                   name;
    std::map<std::string, Member> routines;
};

/// All classes, interfaces and modules that lines can name. A member is looked for in the entries
/// that a widget matches, in their order: classes stand before their bases and interfaces.
class Registry {
public:
    [[nodiscard]] static const Registry& instance();

    [[nodiscard]] const std::vector<ClassEntry>& classes() const { return mClasses; }
    /// The class of this name that can be created, or nothing.
    [[nodiscard]] const ClassEntry* findClass(const std::string& name) const;
    /// The module of this name, or nothing.
    [[nodiscard]] const ModuleEntry* findModule(const std::string& name) const;
    [[nodiscard]] const Member* findMethod(platform::Widget& widget, const std::string& name) const;
    [[nodiscard]] const PropertyMember* findProperty(platform::Widget&  widget,
                                                     const std::string& name) const;
    /// The properties of a widget that a dump shows, by name.
    [[nodiscard]] std::map<std::string, const PropertyMember*>
    properties(platform::Widget& widget) const;
    /// Hands all public events of a control to the sink, as long as the subscriptions live.
    [[nodiscard]] std::vector<platform::Subscription>
    listen(platform::Widget& widget, const EventSink& sink, const Scene& scene) const;

private:
    Registry();

    std::vector<ClassEntry>  mClasses;
    std::vector<ModuleEntry> mModules;
};

/// What is registered, one function per file. The order is that of the look-up.
void registerEditors(std::vector<ClassEntry>& classes);
void registerStatus(std::vector<ClassEntry>& classes);
void registerRecords(std::vector<ClassEntry>& classes);
void registerActions(std::vector<ClassEntry>& classes);
void registerGrid(std::vector<ClassEntry>& classes);
void registerWidgets(std::vector<ClassEntry>& classes);
void registerInterfaces(std::vector<ClassEntry>& classes);
void registerModules(std::vector<ModuleEntry>& modules);

} // namespace quill::probe
