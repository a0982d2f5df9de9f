#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <variant>

namespace quill::platform {

class Widget;

/// A colour of the form 0x00BBGGRR, or a system colour of the form 0x800000NN.
using Color = std::uint32_t;

constexpr Color kWindowBackground = 0x80000005;
constexpr Color kWindowText       = 0x80000008;
constexpr Color kButtonFace       = 0x8000000F;
constexpr Color kWhite            = 0xFFFFFF; ///< the ground of a page
constexpr Color kButtonText       = 0x80000012;

/// A property's value on its way to or from somebody who knows the property by name only.
using PropertyValue = std::variant<bool, std::int32_t, Color, double, std::string>;

namespace detail {
void propertyChanged(Widget& owner, const void* property);
} // namespace detail

/// A value of a widget. An assignment compares, stores, and then tells the widget, which tells
/// whoever shows it; assigning the value that already stands there does nothing. Reading is a
/// plain conversion, or `get()` where C++ wants help.
template <class T>
class Property {
public:
    /// The property must be a member of its owner.
    explicit Property(Widget& owner, T initial = T{})
        : mPlace(static_cast<std::int32_t>(reinterpret_cast<char*>(this) -
                                           reinterpret_cast<char*>(&owner))),
          mValue(std::move(initial))
    {
    }
    Property(const Property&) = delete;
    Property& operator=(const Property& other) { return *this = other.mValue; }
    Property& operator=(const T& value)
    {
        if (!(mValue == value)) {
            mValue = value;
            detail::propertyChanged(owner(), this);
        }
        return *this;
    }

    operator const T&() const noexcept { return mValue; } // NOLINT(google-explicit-constructor)
    [[nodiscard]] const T& get() const noexcept { return mValue; }

    friend bool operator==(const Property& a, const T& b) { return a.mValue == b; }

private:
    [[nodiscard]] Widget& owner()
    {
        return *reinterpret_cast<Widget*>(reinterpret_cast<char*>(this) - mPlace);
    }

    // A widget has a dozen properties and a page thousands of widgets: the place in the owner takes
    // half of what a reference to it would.
    std::int32_t mPlace;
    T            mValue;
};

/// Is shown the properties of a widget one after the other, each with the name that the controls
/// use for it.
class PropertyVisitor {
public:
    virtual ~PropertyVisitor() = default;

    virtual void visit(const char* name, Property<bool>& property)         = 0;
    virtual void visit(const char* name, Property<std::int32_t>& property) = 0;
    virtual void visit(const char* name, Property<Color>& property)        = 0;
    virtual void visit(const char* name, Property<double>& property)       = 0;
    virtual void visit(const char* name, Property<std::string>& property)  = 0;

    using Getter = std::function<PropertyValue()>;
    using Setter = std::function<void(const PropertyValue&)>;
    /// A property that is worked out or checked; without `set` it can only be read.
    virtual void visit(const char* name, const Getter& get, const Setter& set) = 0;
};

} // namespace quill::platform
