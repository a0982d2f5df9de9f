#pragma once

#include "framework/ListTools.h"
#include "framework/host_contract.h"
#include "probe/host.h"
#include "probe/output.h"
#include "probe/page.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quill::probe {

struct ClassEntry;

/// What a `create` or `page` line asks for.
struct Placement {
    std::string        name;
    std::string        tag;
    std::optional<int> index;         ///< place in a control array
    std::string        on;            ///< name of a page, empty for none
    std::string        frame;         ///< name of a frame, empty for none
    bool               attach = true; ///< hand the Messenger over at once
};

/// The controls and documents that lines name.
///
/// A created control is known by its name, with the index in brackets for an element of a control
/// array; what lies inside a control by the member names behind dots.
class Scene {
public:
    Scene(Host& host, const Output& output) : mHost(host), mOutput(output) {}
    ~Scene();
    Scene(const Scene&)            = delete;
    Scene& operator=(const Scene&) = delete;

    [[nodiscard]] Host& host() const { return mHost; }

    /// Makes a page. A name that is taken or a place that is none is failure 5.
    void addPage(const Placement& placement, const std::string& type);
    /// Makes a control or widget. Without a place it gets a page of its own, without name and tag.
    void add(const ClassEntry& type, const Placement& placement);
    /// Destroys a created control and all that was put on it, the inner ones first.
    void release(const std::string& name);

    /// Nothing for a name that nobody has.
    [[nodiscard]] platform::Widget* find(const std::string& name) const;
    /// Failure 5 for a name that nobody has.
    [[nodiscard]] platform::Widget& widget(const std::string& name) const;
    /// By what name a line would reach the widget.
    [[nodiscard]] std::string nameOf(const platform::Widget& widget) const;

    /// Keeps a document under an id, in the place of an older one.
    void setDocument(const std::string& id, const IXMLDOMDocument& document);
    /// Failure 5 for an id that is not known.
    [[nodiscard]] const IXMLDOMDocument& document(const std::string& id) const;

    /// The array of pending changes that `ListTools` works on under this name.
    [[nodiscard]] ListContainers& changeRows(const std::string& name) const;

private:
    struct Item {
        std::string                         name;
        std::unique_ptr<Page>               home; ///< the page of one that stands alone
        std::unique_ptr<platform::Widget>   widget;
        std::vector<platform::Subscription> events;
    };

    [[nodiscard]] std::string       freeName(const Placement& placement) const;
    [[nodiscard]] platform::Widget* containerOf(const Placement& placement) const;
    /// Keeps a widget from now on, listens to it, and hands the Messenger over.
    void adopt(std::unique_ptr<Item> item, bool attach);
    /// A grid that lines have given an image list to may live longer than the list.
    void takeAwayImages(const platform::Widget& dying) const;

    Host&                                          mHost;
    const Output&                                  mOutput;
    std::vector<std::unique_ptr<Item>>             mItems; ///< in order of creation
    std::map<std::string, Item*>                   mByName;
    std::map<std::string, IXMLDOMDocument>         mDocuments;
    mutable std::map<std::string, ListContainers>  mChangeRows;
    std::map<const platform::Widget*, const Item*> mByWidget;
};

} // namespace quill::probe
