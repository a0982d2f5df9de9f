#pragma once

#include "platform/failure.h"
#include "probe/convert.h"
#include "probe/registry.h"

#include <functional>
#include <tuple>
#include <type_traits>
#include <utility>

/// Turns C++ members and routines into `Member`s: the types of arguments and results follow from
/// their signatures. A lambda whose first argument is the object serves where a member does not
/// fit.
namespace quill::probe {

/// What a signature does not tell.
struct CallOptions {
    /// Values for the last arguments where a line leaves them out.
    std::vector<Json> defaults;
    /// Names of the by-reference arguments, in their order.
    std::vector<std::string> outs;
};

namespace detail {

template <class... A>
struct Types {
};

/// The argument types of a member function, a routine or a lambda, as declared.
template <class F>
struct Signature : Signature<decltype(&F::operator())> {
};
template <class R, class... A>
struct Signature<R (*)(A...)> {
    using Arguments = Types<A...>;
};
template <class R, class C, class... A>
struct Signature<R (C::*)(A...)> {
    using Arguments = Types<A...>;
};
template <class R, class C, class... A>
struct Signature<R (C::*)(A...) const> : Signature<R (C::*)(A...)> {
};
template <class R, class C, class... A>
struct Signature<R (C::*)(A...) noexcept> : Signature<R (C::*)(A...)> {
};
template <class R, class C, class... A>
struct Signature<R (C::*)(A...) const noexcept> : Signature<R (C::*)(A...)> {
};

/// One argument of a call, held while it runs. A value, or a reference to a constant one.
template <class P>
struct Argument {
    using Value = std::remove_cvref_t<P>;
    Argument(const Scene& scene, const Json& json) : value(read<Value>(scene, json)) {}
    [[nodiscard]] const Value& pass() const { return value; }
    static constexpr bool      isOut = false;
    Value                      value;
};
/// A reference: to a text that the call may change, or to an object that must be there.
template <class U>
requires(!std::is_const_v<U>) struct Argument<U&> {
    static constexpr bool isOut = std::is_same_v<U, std::string>;
    using Value                 = std::conditional_t<isOut, std::string, U*>;
    Argument(const Scene& scene, const Json& json) : value(read<Value>(scene, json)) {}
    [[nodiscard]] U& pass()
    {
        if constexpr (isOut) {
            return value;
        } else {
            if (value == nullptr) {
                throw platform::failure(platform::kObjectNotSet);
            }
            return *value;
        }
    }
    Value value;
};

/// The arguments of a line, made up with the defaults; a wrong number is failure 5.
[[nodiscard]] std::vector<Json> completeArguments(const Json& args, std::size_t wanted,
                                                  const std::vector<Json>& defaults);

template <class Call, class... A, std::size_t... I>
CallResult invoke(const Scene& scene, const Json& args, const CallOptions& options, Call&& call,
                  Types<A...>, std::index_sequence<I...>)
{
    const auto given = completeArguments(args, sizeof...(A), options.defaults);
    [[maybe_unused]] std::tuple<Argument<A>...> held{Argument<A>(scene, given[I])...};
    CallResult                                  answer;
    using Result = decltype(call(std::get<I>(held).pass()...));
    if constexpr (std::is_void_v<Result>) {
        call(std::get<I>(held).pass()...);
    } else {
        answer.result =
            write<std::remove_cvref_t<Result>>(scene, call(std::get<I>(held).pass()...));
    }
    [[maybe_unused]] std::size_t out  = 0;
    [[maybe_unused]] const auto  keep = [&](const auto& argument) {
        if constexpr (std::remove_cvref_t<decltype(argument)>::isOut) {
            answer.out[options.outs.at(out++)] = argument.value;
        }
    };
    (keep(std::get<I>(held)), ...);
    return answer;
}

/// The object of a call, which the look-up has found to be one.
template <class T>
T& objectOf(platform::Widget* widget)
{
    return dynamic_cast<T&>(*widget);
}

template <class T, class F, class... A>
Member bindObject(F function, CallOptions options, Types<A...> types)
{
    return [=](const Scene& scene, platform::Widget* widget, const Json& args) {
        T&         object = objectOf<T>(widget);
        const auto call   = [&](auto&&... values) -> decltype(auto) {
            return std::invoke(function, object, std::forward<decltype(values)>(values)...);
        };
        return invoke(scene, args, options, call, types, std::index_sequence_for<A...>{});
    };
}
template <class T, class F, class Self, class... A>
Member bindLambda(F function, CallOptions options, Types<Self, A...>)
{
    return bindObject<T>(function, std::move(options), Types<A...>{});
}

/// A member function, a data member (read), or a lambda that takes the object first.
template <class T, class F>
Member bindMember(F function, CallOptions options = {})
{
    if constexpr (std::is_member_object_pointer_v<F>) {
        return bindObject<T>(function, std::move(options), Types<>{});
    } else if constexpr (std::is_member_function_pointer_v<F>) {
        return bindObject<T>(function, std::move(options), typename Signature<F>::Arguments{});
    } else {
        return bindLambda<T>(function, std::move(options), typename Signature<F>::Arguments{});
    }
}

template <class F, class... A>
Member bindFree(F function, CallOptions options, Types<A...> types)
{
    return [=](const Scene& scene, platform::Widget*, const Json& args) {
        return invoke(scene, args, options, function, types, std::index_sequence_for<A...>{});
    };
}

template <class C, class... A>
auto bindEvent(platform::Event<A...> C::*event, const char* name)
{
    return [=](platform::Widget& widget, const EventSink& sink, const Scene& scene) {
        C& object = dynamic_cast<C&>(widget);
        return (object.*event)
            .subscribe([&scene, sink, name](const std::remove_cvref_t<A>&... args) {
                sink(name, Reply::array({write(scene, args)...}));
            });
    };
}

} // namespace detail

} // namespace quill::probe
