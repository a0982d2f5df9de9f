#include "probe/host_events.h"

#include "probe/binding.h"

#include <map>

namespace quill::probe {

namespace {

using Raise = void (*)(const Scene& scene, const Json& args);

/// An event's arguments are read as those of a routine are.
template <auto event, class... A>
void raiseTyped(const Scene& scene, const Json& args, detail::Types<A...> types)
{
    const auto call = [&](const auto&... values) { (scene.host().*event).raise(values...); };
    (void)detail::invoke(scene, args, {}, call, types, std::index_sequence_for<A...>{});
}

template <class... A>
detail::Types<A...> argumentsOf(platform::Event<A...> Messenger::*);

template <auto event>
void raise(const Scene& scene, const Json& args)
{
    raiseTyped<event>(scene, args, decltype(argumentsOf(event)){});
}

} // namespace

void raiseEvent(const Scene& scene, const std::string& event, const Json& args)
{
    static const std::map<std::string, Raise> events{
        {"ViewSetCommunicationMode", raise<&Messenger::ViewSetCommunicationMode>},
        {"ViewGetChanges", raise<&Messenger::ViewGetChanges>},
        {"ViewSetUnits", raise<&Messenger::ViewSetUnits>},
        {"ViewReceiveValue", raise<&Messenger::ViewReceiveValue>},
        {"DialogSetChanges", raise<&Messenger::DialogSetChanges>},
    };
    const auto found = events.find(event);
    if (found == events.end()) {
        throw platform::Failure{platform::kNotSupportedByObject,
                                "the Messenger has no event \"" + event + "\""};
    }
    found->second(scene, args);
}

} // namespace quill::probe
