#pragma once

#include "framework/host_contract.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quill::shell {

/// @name Error codes of the device's responses.
///@{
inline constexpr const char* kErrMissingItems   = "missingItems";
inline constexpr const char* kErrUnknownCommand = "commandIsNotImplemented";
inline constexpr const char* kErrWrongValue     = "hartCmdErrInvalidSelection";
inline constexpr const char* kErrNotWritable    = "hartCmdErrAccessRestricted";
inline constexpr const char* kErrNotUnderstood  = "communicationError";
///@}

/// The text of an attribute, empty for one that is missing.
[[nodiscard]] std::string optionalAttribute(const IXMLDOMNode& element, std::string_view name);
/// The number that is the whole text, in the form of documents; nothing where there is none or it
/// is not finite.
[[nodiscard]] std::optional<double> numberIn(const std::string& text);

/// One item of a request: a parameter, and in a write its value in `unit`.
struct DeviceRequestItem {
    std::string name;
    std::string unit;  ///< empty or "noUnit" for none
    std::string value; ///< empty if the request only names what it wants
};

/// A `communicationRequest` as a device takes it apart.
struct DeviceRequest {
    std::string                    name;
    std::string                    access; ///< "read", "write", "act"
    std::vector<DeviceRequestItem> items;

    /// Reads the request alone or in its `dtm`, in the messages' namespace or in none. Failure for
    /// a text that is no request, and for an item without a name.
    static DeviceRequest parse(const std::string& xml);

    [[nodiscard]] bool isRead() const { return access == "read"; }
    [[nodiscard]] bool isWrite() const { return access == "write"; }
    [[nodiscard]] bool isAct() const { return access == "act"; }
    /// The item of this name, null if the request has none.
    [[nodiscard]] const DeviceRequestItem* find(const std::string& item) const;
};

/// A `communicationResponse` under construction. It starts as one part of several.
class DeviceResponse {
public:
    /// Repeats the request's name and access. An empty error code makes it a good one.
    explicit DeviceResponse(const DeviceRequest& request, const std::string& errorCode = {});
    DeviceResponse(const std::string& name, const std::string& access,
                   const std::string& errorCode);

    /// An item with a value; an empty unit goes out as "noUnit". `type` names the value element.
    void addItem(const std::string& name, const std::string& unit, const std::string& type,
                 const std::string& value);
    /// An item without a value, as error responses name what has failed.
    void addItem(const std::string& name);
    void makeFinal();

    [[nodiscard]] bool        isEmpty() const { return !mResponse.get_firstChild(); }
    [[nodiscard]] std::string xml() const { return mDocument.get_xml(); }

private:
    IXMLDOMNode               appendItem(const std::string& name);
    [[nodiscard]] IXMLDOMNode element(const std::string& name) const;

    IXMLDOMDocument mDocument;
    IXMLDOMNode     mResponse;
};

/// What the device says: the texts of the parts, of which the last is made final.
std::vector<std::string> messageTexts(std::vector<DeviceResponse> parts);
/// The one-part error response to a request; it names all items of the request.
std::vector<std::string> refusal(const DeviceRequest& request, const std::string& errorCode);

/// What a request asked for in vain: error codes in the order of their first item, with the items.
class Refusals {
public:
    void add(const std::string& errorCode, const std::string& item);
    /// One error response for each code.
    void appendTo(std::vector<DeviceResponse>& parts, const DeviceRequest& request) const;

    [[nodiscard]] bool isEmpty() const { return mByCode.empty(); }

private:
    std::vector<std::pair<std::string, std::vector<std::string>>> mByCode;
};

} // namespace quill::shell
