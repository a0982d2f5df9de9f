#include "platform/headless_toolkit.h"

#include "platform/utf8.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace quill::platform {

namespace {

Toolkit* gToolkit = nullptr;

/// In twips: about 1.7 kilometres.
constexpr std::int64_t kWidestText = 100'000'000;

} // namespace

Toolkit::~Toolkit()
{
    if (gToolkit == this) {
        gToolkit = nullptr;
    }
}

Toolkit& Toolkit::current()
{
    static HeadlessToolkit headless;
    return gToolkit != nullptr ? *gToolkit : headless;
}

void Toolkit::setCurrent(Toolkit* toolkit) noexcept
{
    gToolkit = toolkit;
}

void HeadlessToolkit::before(const char* operation) const
{
    if (beforeOperation) {
        beforeOperation(operation);
    }
}

void HeadlessToolkit::advance(double seconds)
{
    mFraction += seconds;
    const double whole = std::floor(mFraction + 1e-9);
    clock              = addSeconds(clock, static_cast<long long>(whole));
    mFraction -= whole;
}

std::int32_t HeadlessToolkit::textWidth(const std::string& text)
{
    before("textWidth");
    // A text of any length has a width that a form can be laid out with.
    const auto width = std::int64_t{utf8::length(text)} * characterWidth;
    return static_cast<std::int32_t>(std::clamp(width, -kWidestText, kWidestText));
}

DateTime HeadlessToolkit::now()
{
    before("now");
    return clock;
}

bool HeadlessToolkit::keyDown(int code)
{
    before("keyDown");
    return keysDown.count(code) != 0;
}

std::string HeadlessToolkit::clipboard()
{
    before("clipboard");
    return clipboardText;
}

void HeadlessToolkit::setClipboard(const std::string& text)
{
    before("setClipboard");
    clipboardText = text;
}

std::optional<std::string> HeadlessToolkit::askForFile(const FileDialog&)
{
    before("askForFile");
    return fileDialogAnswer;
}

void HeadlessToolkit::popUpMenu(Menu&)
{
    before("popUpMenu");
}

void HeadlessToolkit::debugOutput(const std::string& text)
{
    debugLines.push_back(text);
    if (onDebug) {
        onDebug(text);
    }
}

void HeadlessToolkit::doEvents()
{
    before("doEvents");
    advance(0.1);
}

std::int32_t HeadlessToolkit::mousePointer()
{
    return pointer;
}

void HeadlessToolkit::setMousePointer(std::int32_t p)
{
    before("setMousePointer");
    pointer = p;
}

std::string HeadlessToolkit::currentFolder()
{
    return folder;
}

void HeadlessToolkit::setCurrentFolder(const std::string& path)
{
    before("setCurrentFolder");
    folder = path;
}

const Locale& HeadlessToolkit::locale()
{
    return localeSettings;
}

} // namespace quill::platform
