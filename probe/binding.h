#pragma once

#include "probe/bind_member.h"
#include "probe/free_standing.h"
#include "probe/registry.h"

#include <type_traits>
#include <utility>

/// The few words in which a class is registered:
///
///     Class<CtrTextEdit>{"CtrTextEdit"}
///         .creatable()
///         .property("Text", &CtrTextEdit::Text, &CtrTextEdit::setText)
///         .method("setPairLimit", &CtrTextEdit::setPairLimit)
///         .event("Change", &CtrTextEdit::Change)
///         .into(classes);
namespace quill::probe {

/// A class under registration.
template <class T>
class Class {
public:
    explicit Class(std::string name)
    {
        mEntry.name    = std::move(name);
        mEntry.matches = []([[maybe_unused]] platform::Widget& widget) {
            if constexpr (std::is_base_of_v<T, platform::Widget>) {
                return true; // a cast upwards never fails, and g++ says so
            } else {
                return dynamic_cast<T*>(&widget) != nullptr;
            }
        };
    }

    /// Lines may create objects of this class, which need not be widgets.
    Class& creatable()
    {
        mEntry.create = [type = mEntry.name](platform::Widget&       container,
                                             const platform::Design& design) {
            if constexpr (std::is_base_of_v<platform::Widget, T>) {
                return std::make_unique<T>(container, design);
            } else {
                return std::make_unique<FreeStanding<T>>(container, design, type);
            }
        };
        return *this;
    }
    template <class F>
    Class& method(const std::string& name, F function, CallOptions options = {})
    {
        mEntry.methods[name] = detail::bindMember<T>(function, std::move(options));
        return *this;
    }
    /// A property that can be read and written.
    template <class Get, class Set>
    Class& property(const std::string& name, Get get, Set set)
    {
        mEntry.properties[name] = {detail::bindMember<T>(get), detail::bindMember<T>(set)};
        return *this;
    }
    /// A property that can only be read.
    template <class Get>
    Class& property(const std::string& name, Get get)
    {
        mEntry.properties[name] = {detail::bindMember<T>(get), nullptr};
        return *this;
    }
    /// A part of the state that can be read for diagnosis but is no part of a dump.
    template <class Get>
    Class& state(const std::string& name, Get get)
    {
        mEntry.properties[name] = {detail::bindMember<T>(get), nullptr, false};
        return *this;
    }
    template <class C, class... A>
    Class& event(const char* name, platform::Event<A...> C::*event)
    {
        mEntry.events.push_back(detail::bindEvent(event, name));
        return *this;
    }
    void into(std::vector<ClassEntry>& classes) { classes.push_back(std::move(mEntry)); }

private:
    ClassEntry mEntry;
};

/// A module of free routines under registration.
class Module {
public:
    explicit Module(std::string name) { mEntry.name = std::move(name); }

    template <class F>
    Module& routine(const std::string& name, F function, CallOptions options = {})
    {
        mEntry.routines[name] = detail::bindFree(function, std::move(options),
                                                 typename detail::Signature<F>::Arguments{});
        return *this;
    }
    /// A routine that needs more than its arguments.
    Module& member(const std::string& name, Member member)
    {
        mEntry.routines[name] = std::move(member);
        return *this;
    }
    void into(std::vector<ModuleEntry>& modules) { modules.push_back(std::move(mEntry)); }

private:
    ModuleEntry mEntry;
};

} // namespace quill::probe
