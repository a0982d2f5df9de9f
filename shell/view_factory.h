#pragma once

#include "platform/buttons.h"
#include "platform/widget.h"

#include <cstdint>
#include <memory>
#include <string>

namespace quill::shell {

/// A view of the library, by the name of its class.
struct ViewKind {
    const char* name;
    std::unique_ptr<platform::Control> (*make)(platform::Widget&       container,
                                               const platform::Design& design);
    /// Below this size, in twips, it gets scroll bars.
    std::int32_t leastWidth;
    std::int32_t leastHeight;

    /// What its design leaves free at its edges, in twips: a margin, the place of a title. The card
    /// that it stands on has all that.
    struct Blank {
        std::int32_t left   = 0;
        std::int32_t top    = 0;
        std::int32_t right  = 0;
        std::int32_t bottom = 0;
    };
    Blank blank = {};
    /// Whether it has a use for all the room of the page; a form has its size.
    bool fills = true;
    /// Deals with the device by itself: what its editors write is no edit of the datafile, so it
    /// gets documents of its own, and what they hold is no pending change.
    bool actsByItself = false;
    /// Whether it hears of the communication mode. The end of a transfer opens editors, also those
    /// that a wizard keeps shut.
    bool hearsModes = true;
    /// Whether it keeps the texts that it has listed in the language in which they came. A switch
    /// of the language makes it anew, with what the datafile has.
    bool keepsTexts = false;
    /// Whether it lets the device drive a test current, which must end with the page whatever the
    /// view remembers of it.
    bool drivesCurrent = false;
    /// The button that sends something, where the view leaves it to the host when it may.
    platform::CommandButton* (*sendButton)(platform::Control& view) = nullptr;
    /// Lets it ask for what it shows, where no response brings that, unless it holds an edit.
    void (*refresh)(platform::Control& view) = nullptr;
    /// What is left to arrange once it has its size; the first row begins where `blank` ends.
    void (*arrange)(platform::Control& view, const Blank& blank) = nullptr;
};

/// The views that a page description can name; nothing for any other name.
[[nodiscard]] const ViewKind* findView(const std::string& name);

} // namespace quill::shell
