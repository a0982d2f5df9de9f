#pragma once

#include "platform/widget.h"
#include "shell/view_factory.h"

namespace quill::shell {

// What is left to arrange in a view once it has its size: views are designed for a ground of their
// own, and here they stand on a card below its title, beside pages whose rows the shell lays out.

/// The tree takes the whole view.
void fitStatusTree(platform::Control& view, const ViewKind::Blank& blank);
/// The tree takes what the buttons below it leave.
void fitStatusConfiguration(platform::Control& view, const ViewKind::Blank& blank);
/// The list's columns fill it and show their titles whole.
void fitEventLog(platform::Control& view, const ViewKind::Blank& blank);
/// The lists show every entry whole; the button stands behind the first one.
void fitResets(platform::Control& view, const ViewKind::Blank& blank);
/// The button stands on the line of the first row.
void fitHartAddress(platform::Control& view, const ViewKind::Blank& blank);
/// The time of the last answer stands on the line of the card's title.
void fitCalibration(platform::Control& view, const ViewKind::Blank& blank);
/// The button is as high as the box beside it.
void fitModuleSelection(platform::Control& view, const ViewKind::Blank& blank);

} // namespace quill::shell
