#pragma once

#include "platform/date_time.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quill::platform {

class Menu;

/// How numbers and dates look on screen. Date patterns use "d", "dd", "M", "MM", "yy", "yyyy",
/// time patterns "h", "hh", "H", "HH", "mm", "ss" and "AP"; anything else stands for itself.
struct Locale {
    std::string decimal   = ".";
    std::string shortDate = "yyyy-MM-dd";
    std::string longTime  = "HH:mm:ss";
};

/// What the user is asked to name: a file to read or one to write.
struct FileDialog {
    enum class Purpose { open, save };
    Purpose     purpose = Purpose::open;
    std::string title;
    std::string folder;
    std::string fileName;
    /// Pairs of a description and a pattern, such as {"Test files", "*.tst"}.
    std::vector<std::pair<std::string, std::string>> filters;
};

/// Shape of the mouse pointer, by the number that the controls use.
enum MousePointer : std::int32_t { kDefaultPointer = 0, kArrowAndHourglass = 13 };

/// What a control asks of the screen and the machine. One is current per process, as there is one
/// user-interface thread; it must outlive every widget. All operations may throw a `Failure`.
class Toolkit {
public:
    virtual ~Toolkit();

    /// The toolkit in use; while none was set, a `HeadlessToolkit`.
    [[nodiscard]] static Toolkit& current();
    /// Sets the toolkit in use; nothing goes back to the headless one. The caller keeps it.
    static void setCurrent(Toolkit* toolkit) noexcept;

    /// Width of a text in the form's font, in twips.
    [[nodiscard]] virtual std::int32_t textWidth(const std::string& text) = 0;
    /// The wall clock.
    [[nodiscard]] virtual DateTime now() = 0;
    /// Whether a key (a `KeyCode`) is down at this moment.
    [[nodiscard]] virtual bool        keyDown(int code)                     = 0;
    [[nodiscard]] virtual std::string clipboard()                           = 0;
    virtual void                      setClipboard(const std::string& text) = 0;
    /// The path that the user chose; nothing if the dialog was cancelled.
    [[nodiscard]] virtual std::optional<std::string> askForFile(const FileDialog& dialog) = 0;
    /// Shows a pop-up menu at the mouse pointer; the choice comes back as the menu's `Click`.
    virtual void popUpMenu(Menu& menu) = 0;
    /// A line for the developer, not for the user.
    virtual void debugOutput(const std::string& text) = 0;
    /// Lets what waits on the user-interface thread run.
    virtual void                        doEvents()                                = 0;
    [[nodiscard]] virtual std::int32_t  mousePointer()                            = 0;
    virtual void                        setMousePointer(std::int32_t p)           = 0;
    [[nodiscard]] virtual std::string   currentFolder()                           = 0;
    virtual void                        setCurrentFolder(const std::string& path) = 0;
    [[nodiscard]] virtual const Locale& locale()                                  = 0;
};

} // namespace quill::platform
