#include "editors/editor_base.h"

#include <algorithm>

namespace quill {

using namespace editorColors;

namespace {

constexpr std::int32_t kSignWidth = 120;
constexpr std::int32_t kGap       = 100;

} // namespace

EditorBase::EditorBase(const platform::Design& design) : EditorCore(design)
{
    start();
}

EditorBase::EditorBase(platform::Widget& container, const platform::Design& design)
    : EditorCore(container, design)
{
    start();
}

void EditorBase::start()
{
    lblModified.ForeColor = kBlue;
    lblError.ForeColor    = kRed;
    lblModified.Width     = kSignWidth;
    lblError.Width        = kSignWidth;
}

void EditorBase::layout(std::int32_t unitWidth)
{
    const std::int32_t signs = lblModified.Width + lblError.Width;
    box().Width              = std::max(0, Width - signs - unitWidth - kGap);
    box().Height             = Height.get();
    placeSigns(box().Width + unitWidth + kGap, Height);
}

void EditorBase::placeSigns(std::int32_t left, std::int32_t height)
{
    lblModified.Left   = left;
    lblError.Left      = left + lblModified.Width;
    lblModified.Height = height;
    lblError.Height    = height;
}

void EditorBase::paintBoxes(platform::Color color)
{
    for (std::size_t i = 0; i < boxCount(); ++i) {
        boxAt(i).ForeColor = color;
    }
}

void EditorBase::setCorrect(bool correct)
{
    lblError.Visible = !correct;
    if (correct) {
        setModified(Modified());
    } else {
        paintBoxes(kRed);
    }
}

void EditorBase::setModified(bool modified)
{
    lblModified.Visible = modified;
    if (modified) {
        paintBoxes(kBlue);
    } else {
        keepOriginal();
        paintBoxes(Correct() ? platform::kWindowText : kRed);
    }
}

void EditorBase::paintText()
{
    paintBoxes(!Correct() ? kRed : Modified() ? kBlue : platform::kWindowText);
}

} // namespace quill
