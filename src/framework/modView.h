#pragma once

#include "framework/host_contract.h"

#include <cstdint>
#include <string>

/// The free routines that every view calls from its own methods of the host contract. They walk
/// the view's controls, read each `Tag`, fetch the right node and call the control; a child that
/// is itself a view is served recursively. A control that fails costs itself only: the failure is
/// reported by the view's Messenger and the walk goes on.
namespace quill::modView {

/// Sets captions and texts by `Tag`.
void Localize(IQornView& view, Translator& translator);
/// Hands the Messenger (or nothing) to every child that wants one. Failures of a child are dropped.
void setMessenger(IQornView& view, Messenger* messenger);
/// Serves an imported datafile.
void setImportData(IQornView& view, const IXMLDOMNode& datafile);
/// Serves the datafile: value lists, request groups, values.
void setOfflineData(IQornView& view, const IXMLDOMNode& datafile);
/// Serves a response.
void setOnlineData(IQornView& view, const IXMLDOMNode& response);
/// Serves a response with an error: to the child it belongs to, else to the editors it names, with
/// a message for the user.
void setErrorData(IQornView& view, const IXMLDOMNode& response);

/// Moves a synchronisation state after a read that went well or not, and reports a change under
/// `name`.
void forwardSyncChanges(const std::string& name, bool ok, std::string& state, Messenger* messenger);

/// Brings the page `name` to the front and answers the name that is shown, empty if none matched.
/// If `name` is `current` already, the first page comes to the front and its `Tag` is the answer.
/// Pages are a collection or a control array of frames or sub-views; a sub-view is asked first.
[[nodiscard]] std::string ShowViewPage(const std::string& name, const std::string& current,
                                       const platform::WidgetList& pages);
/// The same for plain frames: looks at the `Tag` only.
[[nodiscard]] std::string ShowFramePage(const std::string& name, const std::string& current,
                                        const platform::WidgetList& frames);

/// Where the control that loses the focus stands on its view.
enum class FocusPosition : std::int16_t { first = 0, last = 1, only = 2 };
/// Hands the focus back to the host if the Tab key is down and leads out of the view.
void TransferFocusOnTab(IQornView& view, FocusPosition position);

} // namespace quill::modView
