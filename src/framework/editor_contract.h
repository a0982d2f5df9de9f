#pragma once

#include "framework/host_contract.h"

#include <string>

/// What the view dispatch needs of the controls it serves, which live above it.
namespace quill {

/// Kind of a data editor, where the dispatch treats kinds differently.
enum class EditorKind { text, combo, date, time, option, check };

/// A control that edits one parameter, bound by its `Tag` "ctr_" + parameter name.
class BoundEditor : public IQornDataEditor {
public:
    [[nodiscard]] virtual EditorKind kind() const = 0;

    /// The request group that the parameter belongs to, empty until the datafile or the page has
    /// told it.
    [[nodiscard]] virtual std::string ContextTag() const                    = 0;
    virtual void                      setContextTag(const std::string& tag) = 0;

    /// A value from an imported datafile: an unsaved edit. False for an empty node.
    virtual bool setImportData(const IXMLDOMNode& parameter) = 0;
    /// The parameter in the datafile. False for an empty node.
    virtual bool setOfflineData(const IXMLDOMNode& parameter) = 0;
    /// The item of a response; nothing if the response does not hold the parameter.
    virtual bool setOnlineData(const IXMLDOMNode& item) = 0;
    /// An item with `responseStatus` "local". Only the text editor tells it from an online value.
    virtual bool setLocalData(const IXMLDOMNode& item) { return setOnlineData(item); }
    /// The device answered with this error code.
    virtual void handleError(const std::string& code) = 0;
};

/// What a `BoundEditor` offers besides when its values form a list.
class MappedEditor {
public:
    virtual ~MappedEditor() = default;
    /// Takes a private copy of a `data:mappedParam`; nothing keeps the old list.
    virtual void SetMappings(const IXMLDOMNode& mappedParam) = 0;
};

/// A label that shows the time of last read of a request group, bound by "date_" + group.
class DateLabel {
public:
    virtual ~DateLabel()                                                  = default;
    [[nodiscard]] virtual std::string Caption() const                     = 0;
    virtual void                      setCaption(const std::string& text) = 0;
};

} // namespace quill
