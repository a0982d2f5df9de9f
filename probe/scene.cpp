#include "probe/scene.h"

#include "platform/grid.h"
#include "platform/label.h"
#include "platform/pictures.h"
#include "probe/registry.h"

#include <algorithm>

namespace quill::probe {

using platform::Control;
using platform::Widget;

namespace {

/// Deepest nesting of pages and frames; views serve their children by recursion.
constexpr int kMaxNesting = 32;
/// Longest name that is looked up.
constexpr std::size_t kMaxName = 1000;

int nestingOf(const Widget* widget)
{
    int depth = 0;
    for (; widget != nullptr; widget = widget->Container()) {
        ++depth;
    }
    return depth;
}

std::string elementName(const std::string& name, int index)
{
    return name + "(" + std::to_string(index) + ")";
}

/// The widget that a control has under a member name; without an index also element 0.
Widget* findInside(const Widget& parent, const std::string& name)
{
    const auto* control = dynamic_cast<const Control*>(&parent);
    if (control == nullptr) {
        return nullptr;
    }
    Widget* first = nullptr;
    for (Widget* widget : control->Widgets()) {
        if (widget->Index < 0 && widget->Name == name) {
            return widget;
        }
        if (widget->Index >= 0 && elementName(widget->Name, widget->Index) == name) {
            return widget;
        }
        if (widget->Index == 0 && widget->Name == name) {
            first = widget;
        }
    }
    return first;
}

} // namespace

Scene::~Scene()
{
    while (!mItems.empty()) {
        mItems.pop_back();
    }
}

std::string Scene::freeName(const Placement& placement) const
{
    if (placement.name.empty()) {
        throw invalid("\"name\" is empty");
    }
    const std::string name =
        placement.index ? elementName(placement.name, *placement.index) : placement.name;
    if (name.size() > kMaxName) {
        throw invalid("\"name\" is too long");
    }
    if (mByName.count(name) != 0) {
        throw invalid("there is a control \"" + name + "\" already");
    }
    return name;
}

Widget* Scene::containerOf(const Placement& placement) const
{
    Widget* page = nullptr;
    if (!placement.on.empty()) {
        page = dynamic_cast<Page*>(&widget(placement.on));
        if (page == nullptr) {
            throw invalid("\"" + placement.on + "\" is no page");
        }
    }
    Widget* container = page;
    if (!placement.frame.empty()) {
        container = dynamic_cast<platform::Frame*>(&widget(placement.frame));
        if (container == nullptr || (page != nullptr && !container->isWithin(*page))) {
            throw invalid("there is no frame \"" + placement.frame + "\" on that page");
        }
    }
    if (nestingOf(container) >= kMaxNesting) {
        throw invalid("pages and frames nest too deep");
    }
    return container;
}

void Scene::addPage(const Placement& placement, const std::string& type)
{
    auto item         = std::make_unique<Item>();
    item->name        = freeName(placement);
    const auto design = platform::Design{
        .Name = placement.name, .Index = placement.index.value_or(-1), .Tag = placement.tag};
    if (Widget* container = containerOf(placement)) {
        item->widget = std::make_unique<Page>(mHost, *container, design, type);
    } else {
        item->widget = std::make_unique<Page>(mHost, design, type);
    }
    adopt(std::move(item), placement.attach);
}

void Scene::add(const ClassEntry& type, const Placement& placement)
{
    auto item         = std::make_unique<Item>();
    item->name        = freeName(placement);
    Widget* container = containerOf(placement);
    if (container == nullptr) {
        item->home = std::make_unique<Page>(mHost, platform::Design{}, "Page");
        item->home->SetMessenger(&mHost);
        container = item->home.get();
    }
    item->widget = type.create(
        *container,
        {.Name = placement.name, .Index = placement.index.value_or(-1), .Tag = placement.tag});
    adopt(std::move(item), placement.attach);
}

void Scene::adopt(std::unique_ptr<Item> item, bool attach)
{
    Item& added                   = *item;
    mByName[added.name]           = &added;
    mByWidget[added.widget.get()] = &added;
    mItems.push_back(std::move(item));
    added.events = Registry::instance().listen(
        *added.widget,
        [this, name = added.name](const char* event, Reply args) {
            Reply report;
            report["raised"] = event;
            report["from"]   = name;
            report["args"]   = std::move(args);
            mOutput.line(report);
        },
        *this);
    auto* component = dynamic_cast<IQornComponent*>(added.widget.get());
    if (attach && component != nullptr) {
        component->SetMessenger(&mHost);
    }
}

void Scene::release(const std::string& name)
{
    Widget&    released = widget(name);
    const auto found    = mByWidget.find(&released);
    if (found == mByWidget.end()) {
        throw invalid("\"" + name + "\" was not created by itself");
    }
    // What lies on it was created later, and goes first.
    for (std::size_t i = mItems.size(); i-- > 0;) {
        const Widget* inner = mItems[i]->widget.get();
        if (!inner->isWithin(released)) {
            continue;
        }
        const auto item = std::move(mItems[i]);
        mItems.erase(mItems.begin() + static_cast<std::ptrdiff_t>(i));
        mByName.erase(item->name);
        mByWidget.erase(inner);
        takeAwayImages(*inner);
        if (inner == &released) {
            break;
        }
    }
}

void Scene::takeAwayImages(const Widget& dying) const
{
    for (const auto& item : mItems) {
        auto* grid = dynamic_cast<platform::Grid*>(item->widget.get());
        if (grid != nullptr && grid->imageList() == &dying) {
            grid->setImageList(nullptr);
        }
    }
}

Widget* Scene::find(const std::string& name) const
{
    if (name.empty() || name.size() > kMaxName) {
        return nullptr;
    }
    // The longest name of a created control that the text begins with; members follow behind dots.
    for (std::size_t end = name.size(); end != std::string::npos && end > 0;
         end             = name.rfind('.', end - 1)) {
        const std::string start = name.substr(0, end);
        auto              item  = mByName.find(start);
        if (item == mByName.end()) {
            item = mByName.find(elementName(start, 0));
        }
        if (item == mByName.end()) {
            continue;
        }
        Widget* widget = item->second->widget.get();
        while (end < name.size() && widget != nullptr) {
            const auto next = std::min(name.find('.', end + 1), name.size());
            widget          = findInside(*widget, name.substr(end + 1, next - end - 1));
            end             = next;
        }
        return widget;
    }
    return nullptr;
}

Widget& Scene::widget(const std::string& name) const
{
    Widget* found = find(name);
    if (found == nullptr) {
        throw invalid("there is no control \"" + name + "\"");
    }
    return *found;
}

std::string Scene::nameOf(const Widget& widget) const
{
    if (const auto item = mByWidget.find(&widget); item != mByWidget.end()) {
        return item->second->name;
    }
    const std::string name =
        widget.Index >= 0 ? elementName(widget.Name, widget.Index) : widget.Name;
    return widget.Owner() != nullptr ? nameOf(*widget.Owner()) + "." + name : name;
}

void Scene::setDocument(const std::string& id, const IXMLDOMDocument& document)
{
    mDocuments[id] = document;
}

const IXMLDOMDocument& Scene::document(const std::string& id) const
{
    const auto found = mDocuments.find(id);
    if (found == mDocuments.end()) {
        throw invalid("there is no document \"" + id + "\"");
    }
    return found->second;
}

ListContainers& Scene::changeRows(const std::string& name) const
{
    return mChangeRows[name];
}

} // namespace quill::probe
