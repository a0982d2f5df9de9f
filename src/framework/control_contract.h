#pragma once

#include "platform/widget.h"
#include "platform/xml_dom.h"

#include <memory>
#include <string>

/// What the controls implement for their host.
namespace quill {

using platform::IXMLDOMDocument;
using platform::IXMLDOMNode;

class Messenger;
class Translator;

/// An editor or a mask model that can be sent to the device.
class IQornDataEditor {
public:
    virtual ~IQornDataEditor() = default;
    /// The item to send, a small document of its own: element `item` with `name` and `unit` and one
    /// child that carries the value. Without `force` nothing while the editor has no text or its
    /// value is not correct.
    virtual IXMLDOMDocument GetXmlItem(bool force) = 0;

    /// Expires with the editor. Whoever keeps an editor beyond a call asks this first: a page may
    /// go while its changes are still listed.
    [[nodiscard]] std::weak_ptr<const void> lifetime() const { return mLifetime; }

private:
    std::shared_ptr<const void> mLifetime = std::make_shared<char>();
};

/// Implemented by every control that needs the host.
class IQornComponent {
public:
    virtual ~IQornComponent() = default;
    /// Stores the Messenger and subscribes to its events; nothing detaches. The host owns it and
    /// keeps it until it has detached every control.
    virtual void SetMessenger(Messenger* messenger) = 0;
};

/// Implemented by every control with visible text.
class ILocalizable {
public:
    virtual ~ILocalizable() = default;
    /// Sets all captions and texts.
    virtual void Localize(Translator& translator) = 0;
};

/// Implemented by every view. The host owns the documents; a control may keep nodes of them.
class IQornDataUser {
public:
    virtual ~IQornDataUser() = default;
    /// A communication response with an error.
    virtual void SetErrorData(const IXMLDOMNode& node) = 0;
    /// A datafile that was imported: its values come up as unsaved edits.
    virtual void SetImportData(const IXMLDOMNode& node) = 0;
    /// The datafile. Editors keep their nodes in it and write edits through them.
    virtual void SetOfflineData(const IXMLDOMNode& node) = 0;
    /// A communication response.
    virtual void SetOnlineData(const IXMLDOMNode& node) = 0;
};

/// Implemented by every view, a page of the host.
class IQornView {
public:
    virtual ~IQornView() = default;
    /// The child controls in form order.
    virtual platform::WidgetList GetControls() = 0;
    /// The stored Messenger, if any.
    virtual Messenger* GetMessenger() = 0;
    /// Name of the sub-page that is shown.
    virtual std::string GetSelectedView() = 0;
    /// Shows a sub-page.
    virtual void SetSelectedView(const std::string& name) = 0;
    /// Whether the view may be left; false keeps the user on it.
    virtual bool LeaveSelectedView() = 0;
    /// Puts the keyboard focus on the first enabled control.
    virtual void RequestFocus() = 0;
    /// The view lets go of its Messenger and its nodes.
    virtual void PrepareToRelease() = 0;
};

} // namespace quill
