#pragma once

#include "framework/editor_contract.h"
#include "framework/host_contract.h"
#include "framework/steps.h"

#include <string>

/// What the routines of `modView` share: the walk over a view's controls and the grammar of `Tag`.
namespace quill::modView::walk {

inline constexpr const char* kEditorPrefix = "ctr_";
inline constexpr const char* kDatePrefix   = "date_";

/// The view's Messenger; nothing also if the view fails to tell.
[[nodiscard]] Messenger* messengerOf(IQornView& view);
/// A copy of the list of controls, so that it may change during the walk; empty with a report if
/// the view fails to give it.
[[nodiscard]] platform::WidgetList controlsOf(const Steps& step, IQornView& view);

/// Asks the memory for the control two behind the one at `place`, so that it is there when the walk
/// comes to it: on a page of thousands the walk waits for little else.
void announceNext(const platform::WidgetList& controls, std::size_t place) noexcept;

/// Whether the tag is "ctr_" + parameter name.
[[nodiscard]] bool isBound(const std::string& tag);
/// The name behind the first four characters.
[[nodiscard]] std::string nameIn(const std::string& tag);
/// The group behind the first five characters.
[[nodiscard]] std::string groupIn(const std::string& tag);

/// The control inside a child; nothing for a grid, which has an object that is none of ours. A
/// plain widget has none at all: failure 438.
[[nodiscard]] platform::Control* objectOf(platform::Widget& widget);
/// The child as an editor that is bound to a parameter, else nothing.
[[nodiscard]] BoundEditor* boundEditor(platform::Widget& widget);

/// The kinds that a routine never asks for their object.
[[nodiscard]] bool isExcludedFromLocalize(const platform::Widget& widget);
[[nodiscard]] bool isExcludedFromMessenger(const platform::Widget& widget);
[[nodiscard]] bool isExcludedFromData(const platform::Widget& widget); ///< import and offline

} // namespace quill::modView::walk
