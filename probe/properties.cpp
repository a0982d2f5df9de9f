#include "probe/properties.h"

#include "probe/convert.h"
#include "probe/registry.h"

#include <cstdlib>
#include <functional>
#include <map>
#include <variant>
#include <vector>

namespace quill::probe {

using platform::Property;
using platform::PropertyValue;
using platform::Widget;

namespace {

platform::Failure unknownProperty(const Widget& widget, const std::string& name)
{
    return {platform::kNotSupportedByObject,
            std::string{widget.TypeName()} + " has no property \"" + name + "\""};
}

Reply toReply(const PropertyValue& value)
{
    return std::visit([](const auto& alternative) { return Reply(alternative); }, value);
}

/// Farthest that a line may put or stretch a widget, in twips. Forms add lengths up.
constexpr std::int32_t kMaxLength = 100'000'000;

void checkLength(const std::string& name, const PropertyValue& value)
{
    for (const char* length : {"Left", "Top", "Width", "Height", "ZPosition"}) {
        if (name == length && std::abs(std::int64_t{std::get<std::int32_t>(value)}) > kMaxLength) {
            throw platform::failure(platform::kOverflow);
        }
    }
}

/// One property that a widget lists.
struct Listed {
    const char*                       name = nullptr;
    platform::PropertyVisitor::Getter get;
    platform::PropertyVisitor::Setter set;
};

/// Hands every property of a widget on, whatever its type.
class Lister : public platform::PropertyVisitor {
public:
    explicit Lister(std::function<void(const Listed&)> take) : mTake(std::move(take)) {}

    void visit(const char* name, Property<bool>& property) override { take(name, property); }
    void visit(const char* name, Property<std::int32_t>& property) override
    {
        take(name, property);
    }
    void visit(const char* name, Property<platform::Color>& property) override
    {
        take(name, property);
    }
    void visit(const char* name, Property<double>& property) override { take(name, property); }
    void visit(const char* name, Property<std::string>& property) override { take(name, property); }
    void visit(const char* name, const Getter& get, const Setter& set) override
    {
        mTake({name, get, set});
    }

private:
    template <class T>
    void take(const char* name, Property<T>& property)
    {
        mTake({name, [&property] { return PropertyValue{property.get()}; },
               [&property](const PropertyValue& value) { property = std::get<T>(value); }});
    }

    std::function<void(const Listed&)> mTake;
};

/// The property of this name that the widget lists; without a getter if there is none.
Listed findListed(Widget& widget, const std::string& name)
{
    Listed found;
    Lister lister{[&](const Listed& property) {
        if (name == property.name) {
            found = property;
        }
    }};
    widget.visit(lister);
    return found;
}

Reply children(const Scene& scene, Widget& container,
               const std::multimap<const Widget*, Widget*>& inside);

Reply describe(const Scene& scene, Widget& widget,
               const std::multimap<const Widget*, Widget*>& inside)
{
    Reply  properties = Reply::object();
    Lister lister{
        [&](const Listed& property) { properties[property.name] = toReply(property.get()); }};
    widget.visit(lister);
    for (const auto& [name, property] : Registry::instance().properties(widget)) {
        properties[name] = property->get(scene, &widget, Json::array()).result.value_or(nullptr);
    }
    Reply tree;
    tree["name"]       = scene.nameOf(widget);
    tree["class"]      = widget.TypeName();
    tree["properties"] = std::move(properties);
    tree["children"]   = children(scene, widget, inside);
    return tree;
}

std::multimap<const Widget*, Widget*> byContainer(const platform::Control& control)
{
    std::multimap<const Widget*, Widget*> inside;
    for (Widget* widget : control.Widgets()) {
        inside.emplace(widget->Container(), widget);
    }
    return inside;
}

Reply children(const Scene& scene, Widget& container,
               const std::multimap<const Widget*, Widget*>& inside)
{
    // A control has a form of its own; a frame shares the one that it is on.
    const auto* control = dynamic_cast<const platform::Control*>(&container);
    const auto  own =
        control != nullptr ? byContainer(*control) : std::multimap<const Widget*, Widget*>{};
    const auto& form         = control != nullptr ? own : inside;
    Reply       list         = Reply::array();
    const auto [first, last] = form.equal_range(&container);
    for (auto child = first; child != last; ++child) {
        list.push_back(describe(scene, *child->second, form));
    }
    return list;
}

} // namespace

Reply getProperty(const Scene& scene, Widget& widget, const std::string& name, const Json& index)
{
    if (const auto* property = Registry::instance().findProperty(widget, name)) {
        return property->get(scene, &widget, index).result.value_or(nullptr);
    }
    const Listed listed = findListed(widget, name);
    if (!listed.get) {
        throw unknownProperty(widget, name);
    }
    if (!index.empty()) {
        throw invalid("\"" + name + "\" has no index");
    }
    return toReply(listed.get());
}

void setProperty(const Scene& scene, Widget& widget, const std::string& name, const Json& index,
                 const Json& value)
{
    const auto readOnly = [&] {
        return platform::Failure{platform::kNotSupportedByObject,
                                 "\"" + name + "\" can only be read"};
    };
    if (const auto* property = Registry::instance().findProperty(widget, name)) {
        if (!property->set) {
            throw readOnly();
        }
        Json args = index;
        args.push_back(value);
        property->set(scene, &widget, args);
        return;
    }
    const Listed listed = findListed(widget, name);
    if (!listed.get) {
        throw unknownProperty(widget, name);
    }
    if (!index.empty()) {
        throw invalid("\"" + name + "\" has no index");
    }
    if (!listed.set) {
        throw readOnly();
    }
    // The present value tells the type.
    const auto converted = std::visit(
        [&](const auto& present) {
            return PropertyValue{read<std::remove_cvref_t<decltype(present)>>(scene, value)};
        },
        listed.get());
    checkLength(name, converted);
    listed.set(converted);
}

Reply dump(const Scene& scene, Widget& widget)
{
    std::multimap<const Widget*, Widget*> inside;
    if (widget.Owner() != nullptr) {
        inside = byContainer(*widget.Owner());
    }
    return describe(scene, widget, inside);
}

} // namespace quill::probe
