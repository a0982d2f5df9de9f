#pragma once

#include "framework/host_contract.h"
#include "probe/json.h"
#include "probe/scene.h"

#include <charconv>
#include <limits>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

/// Between the JSON values of lines and the types of the library.
namespace quill::probe {

namespace detail {
template <class T>
struct IsOptional : std::false_type {
};
template <class T>
struct IsOptional<std::optional<T>> : std::true_type {
};
template <class T>
struct IsVector : std::false_type {
};
template <class T>
struct IsVector<std::vector<T>> : std::true_type {
};
template <class T>
constexpr bool kNever = false;
} // namespace detail

/// `{"doc": id}`, with `"select"` its first matching node; null is nothing.
[[nodiscard]] IXMLDOMNode     readNode(const Scene& scene, const Json& value);
[[nodiscard]] IXMLDOMDocument readDocument(const Scene& scene, const Json& value);
/// The same with `"all": true`.
[[nodiscard]] IXMLDOMNodeList readNodeList(const Scene& scene, const Json& value);
/// `{"control": name}`; null is nothing.
[[nodiscard]] platform::Widget* readControl(const Scene& scene, const Json& value);
/// Whether the value is `{key: true}` (else it must be null): the host's object of that name.
[[nodiscard]] bool readHostObject(const Json& value, const char* key);

/// XML of a node, the text of an attribute, null for nothing.
[[nodiscard]] Reply writeNode(const IXMLDOMNode& node);

/// A JSON value as an argument of type `T`. Wrong types are failure 13, numbers out of range 6.
template <class T>
[[nodiscard]] T read(const Scene& scene, const Json& value)
{
    if constexpr (std::is_same_v<T, Json>) {
        return value;
    } else if constexpr (std::is_same_v<T, bool>) {
        return asBool(value);
    } else if constexpr (std::is_enum_v<T>) {
        return static_cast<T>(read<std::underlying_type_t<T>>(scene, value));
    } else if constexpr (std::is_integral_v<T>) {
        using Limits = std::numeric_limits<T>;
        return static_cast<T>(asInteger(value, static_cast<std::int64_t>(Limits::min()),
                                        static_cast<std::int64_t>(Limits::max())));
    } else if constexpr (std::is_floating_point_v<T>) {
        return static_cast<T>(asDouble(value));
    } else if constexpr (std::is_same_v<T, std::string>) {
        return asText(value);
    } else if constexpr (std::is_same_v<T, IXMLDOMDocument>) {
        return readDocument(scene, value);
    } else if constexpr (std::is_same_v<T, IXMLDOMNode>) {
        return readNode(scene, value);
    } else if constexpr (std::is_same_v<T, IXMLDOMNodeList>) {
        return readNodeList(scene, value);
    } else if constexpr (std::is_same_v<T, Messenger*>) {
        return readHostObject(value, "messenger") ? &scene.host() : nullptr;
    } else if constexpr (std::is_same_v<T, Translator*>) {
        return readHostObject(value, "translator") ? &scene.host().translator() : nullptr;
    } else if constexpr (detail::IsOptional<T>::value) {
        return value.is_null() ? T{} : T{read<typename T::value_type>(scene, value)};
    } else if constexpr (detail::IsVector<T>::value) {
        T result;
        for (const Json& element : asArray(value)) {
            result.push_back(read<typename T::value_type>(scene, element));
        }
        return result;
    } else if constexpr (std::is_pointer_v<T>) {
        platform::Widget* control = readControl(scene, value);
        T                 object  = dynamic_cast<T>(control);
        if (control != nullptr && object == nullptr) {
            throw platform::Failure{platform::kTypeMismatch, "type mismatch: \"" +
                                                                 scene.nameOf(*control) +
                                                                 "\" is another kind of control"};
        }
        return object;
    } else {
        static_assert(detail::kNever<T>, "no JSON form for this argument");
    }
}

/// A value of the library as JSON.
template <class T>
[[nodiscard]] Reply write(const Scene& scene, const T& value)
{
    if constexpr (std::is_same_v<T, Reply>) {
        return value;
    } else if constexpr (std::is_same_v<T, float>) {
        // The shortest decimal text, not the digits that the wider type would show.
        char       digits[32];
        const auto end  = std::to_chars(digits, digits + sizeof digits, value).ptr;
        double     wide = 0;
        (void)std::from_chars(digits, end, wide);
        return wide;
    } else if constexpr (std::is_arithmetic_v<T> || std::is_convertible_v<T, std::string>) {
        return Reply(value);
    } else if constexpr (std::is_enum_v<T>) {
        return Reply(static_cast<std::underlying_type_t<T>>(value));
    } else if constexpr (std::is_base_of_v<IXMLDOMNode, T>) {
        return writeNode(value);
    } else if constexpr (std::is_same_v<T, IXMLDOMNodeList>) {
        Reply list = Reply::array();
        for (const IXMLDOMNode& node : value) {
            list.push_back(writeNode(node));
        }
        return list;
    } else if constexpr (std::is_same_v<T, platform::DateTime>) {
        return Reply(platform::toIso(value));
    } else if constexpr (detail::IsOptional<T>::value) {
        return value ? write(scene, *value) : Reply{};
    } else if constexpr (detail::IsVector<T>::value) {
        Reply list = Reply::array();
        for (const auto& element : value) {
            list.push_back(write(scene, element));
        }
        return list;
    } else if constexpr (std::is_pointer_v<T>) {
        if (value == nullptr) {
            return nullptr;
        }
        using Object = std::remove_pointer_t<T>;
        if constexpr (std::is_base_of_v<Messenger, Object>) {
            return "messenger";
        } else if constexpr (std::is_base_of_v<Translator, Object>) {
            return "translator";
        } else {
            const auto* widget = dynamic_cast<const platform::Widget*>(value);
            return widget != nullptr ? Reply(scene.nameOf(*widget)) : Reply{};
        }
    } else {
        static_assert(detail::kNever<T>, "no JSON form for this result");
    }
}

} // namespace quill::probe
