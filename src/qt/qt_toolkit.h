#pragma once

#include "platform/toolkit.h"

#include <memory>

class QLocale;

namespace quill::qt {

/// The forms of a locale as the controls want them: numbers only, four digits of the year, the time
/// with its seconds and without its zone. What a locale writes in letters falls back to ISO.
[[nodiscard]] platform::Locale localeForms(const QLocale& locale);

/// The toolkit of a program with a Qt screen. Lengths in twips go by the screen's logical
/// resolution of 96 dpi: 15 twips are one device-independent pixel.
class QtToolkit : public platform::Toolkit {
public:
    /// Takes number and date forms from the Qt locale. The application object must exist.
    QtToolkit();
    ~QtToolkit() override;

    /// Other forms than the Qt locale's, for a host that lets the user choose.
    void setLocale(const platform::Locale& locale);

    std::int32_t               textWidth(const std::string& text) override;
    platform::DateTime         now() override;
    bool                       keyDown(int code) override;
    std::string                clipboard() override;
    void                       setClipboard(const std::string& text) override;
    std::optional<std::string> askForFile(const platform::FileDialog& dialog) override;
    void                       popUpMenu(platform::Menu& menu) override;
    void                       debugOutput(const std::string& text) override;
    void                       doEvents() override;
    std::int32_t               mousePointer() override;
    void                       setMousePointer(std::int32_t pointer) override;
    std::string                currentFolder() override;
    void                       setCurrentFolder(const std::string& path) override;
    const platform::Locale&    locale() override;

private:
    class Keys;

    platform::Locale      mLocale;
    std::int32_t          mPointer = platform::kDefaultPointer;
    std::unique_ptr<Keys> mKeys;
};

} // namespace quill::qt
