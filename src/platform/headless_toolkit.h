#pragma once

#include "platform/toolkit.h"

#include <functional>
#include <set>

namespace quill::platform {

/// A toolkit without a screen, for tests and for hosts that replay recordings: the clock stands
/// still until somebody moves it, dialogs answer what was prepared, output is kept.
class HeadlessToolkit : public Toolkit {
public:
    Locale                     localeSettings;
    DateTime                   clock{2024, 5, 6, 7, 8, 9};
    std::int32_t               characterWidth = 100; ///< twips of one character
    std::set<int>              keysDown;
    std::optional<std::string> fileDialogAnswer;
    std::string                clipboardText;
    std::int32_t               pointer = kDefaultPointer;
    std::string                folder;
    std::vector<std::string>   debugLines;
    /// Is handed every debug line, if set.
    std::function<void(const std::string&)> onDebug;
    /// Is called before every operation by its name, if set; it may throw.
    std::function<void(const char* operation)> beforeOperation;

    /// Moves the clock; fractions add up.
    void advance(double seconds);

    std::int32_t               textWidth(const std::string& text) override;
    DateTime                   now() override;
    bool                       keyDown(int code) override;
    std::string                clipboard() override;
    void                       setClipboard(const std::string& text) override;
    std::optional<std::string> askForFile(const FileDialog& dialog) override;
    void                       popUpMenu(Menu& menu) override;
    void                       debugOutput(const std::string& text) override;
    /// A control that waits sees the clock move by 0.1 s.
    void          doEvents() override;
    std::int32_t  mousePointer() override;
    void          setMousePointer(std::int32_t p) override;
    std::string   currentFolder() override;
    void          setCurrentFolder(const std::string& path) override;
    const Locale& locale() override;

private:
    void before(const char* operation) const;

    double mFraction = 0;
};

} // namespace quill::platform
