#include "framework/modView_walk.h"

#include "platform/failure.h"
#include "platform/grid.h"
#include "platform/utf8.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>

namespace quill::modView::walk {

namespace {

bool isOneOf(const platform::Widget& widget, std::initializer_list<std::string_view> kinds)
{
    return std::find(kinds.begin(), kinds.end(), widget.TypeName()) != kinds.end();
}

} // namespace

Messenger* messengerOf(IQornView& view)
{
    return silentSteps().value<Messenger*>(nullptr, [&] { return view.GetMessenger(); });
}

platform::WidgetList controlsOf(const Steps& step, IQornView& view)
{
    return step.value(platform::WidgetList{}, [&] { return view.GetControls(); });
}

void announceNext(const platform::WidgetList& controls, std::size_t place) noexcept
{
#if defined(__GNUC__)
    constexpr std::size_t kCacheLine = 64;
    constexpr std::size_t kEditor    = 3072; // what the largest editor holds in one piece
    constexpr std::size_t kAhead     = 2;
    if (place + kAhead < controls.size()) {
        const char* const next = reinterpret_cast<const char*>(controls[place + kAhead]);
        for (std::size_t at = 0; at < kEditor; at += kCacheLine) {
            __builtin_prefetch(next + at); // never fails, whatever lies there
        }
    }
#else
    (void)controls;
    (void)place;
#endif
}

bool isBound(const std::string& tag)
{
    return tag.starts_with(kEditorPrefix);
}

std::string nameIn(const std::string& tag)
{
    return platform::utf8::substring(tag, 4);
}

std::string groupIn(const std::string& tag)
{
    return platform::utf8::substring(tag, 5);
}

platform::Control* objectOf(platform::Widget& widget)
{
    auto* control = dynamic_cast<platform::Control*>(&widget);
    if (control == nullptr && dynamic_cast<platform::Grid*>(&widget) == nullptr) {
        throw platform::failure(platform::kNotSupportedByObject);
    }
    return control;
}

BoundEditor* boundEditor(platform::Widget& widget)
{
    return isBound(widget.Tag) ? dynamic_cast<BoundEditor*>(&widget) : nullptr;
}

// Label, CommandButton, CheckBox, OptionButton, TextBox and ListView are no objects either; there
// `Localize` writes the texts itself.
bool isExcludedFromLocalize(const platform::Widget& widget)
{
    return isOneOf(widget, {"Frame", "ImageList", "Menu", "CtrDateLabel", "PictureBox"}) ||
           dynamic_cast<const DateLabel*>(&widget) != nullptr;
}

bool isExcludedFromMessenger(const platform::Widget& widget)
{
    return isOneOf(widget,
                   {"Frame", "Label", "TextBox", "CheckBox", "OptionButton", "CommandButton",
                    "ListView", "TreeView", "ImageList", "Menu", "CtrDateLabel", "PictureBox"}) ||
           dynamic_cast<const DateLabel*>(&widget) != nullptr;
}

bool isExcludedFromData(const platform::Widget& widget)
{
    return isOneOf(widget, {"Frame", "Label", "TextBox", "CheckBox", "OptionButton",
                            "CommandButton", "ListView", "ImageList", "Menu", "PictureBox"});
}

} // namespace quill::modView::walk
