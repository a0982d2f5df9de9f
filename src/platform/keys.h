#pragma once

namespace quill::platform {

/// Shift state of a key: a sum of these.
enum ShiftState : int { kNoShift = 0, kShift = 1, kControlKey = 2, kAlt = 4 };

/// Codes of the keys that the controls know.
enum KeyCode : int {
    kKeyTab      = 9,
    kKeyReturn   = 13,
    kKeyShift    = 16,
    kKeyEscape   = 27,
    kKeySpace    = 32,
    kKeyPageUp   = 33,
    kKeyPageDown = 34,
    kKeyEnd      = 35,
    kKeyHome     = 36,
    kKeyLeft     = 37,
    kKeyUp       = 38,
    kKeyRight    = 39,
    kKeyDown     = 40,
    kKeyDelete   = 46,
};

/// A key on its way through a widget and its containers; a handler that sets `handled` ends it.
struct KeyPress {
    int  code    = 0;
    int  shift   = kNoShift;
    bool handled = false;
};

} // namespace quill::platform
