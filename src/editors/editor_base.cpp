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
    lblModified.Left         = box().Width + unitWidth + kGap;
    lblError.Left            = lblModified.Left + lblModified.Width;
    lblModified.Height       = Height.get();
    lblError.Height          = Height.get();
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

void EditorBase::forwardCheckedChanges()
{
    if (messenger() == nullptr) {
        return;
    }
    const Steps step = steps("forwardChanges");
    const auto  move = [&](const char* state) {
        mChangeState = state;
        step([&] { reportState(state); });
    };
    if (mChangeState == "original" && Modified()) {
        move("edited");
    } else if (mChangeState == "editedError" && Correct()) {
        move("corrected");
    }
    if (mChangeState == "edited" || mChangeState == "corrected") {
        if (!Correct()) {
            move("editedError");
        } else if (!Modified()) {
            move("original");
        }
    }
}

void EditorBase::handleCheckedError(const std::string& code)
{
    if (code == "missingItems" || code == "commandIsNotImplemented") {
        setModified(true);
        setCorrect(false);
        forwardChanges();
    } else if (code == "communicationError") {
        takeAsSyncError();
    } else if (isRefusal(code)) {
        takeAsRefused();
    }
}

std::string EditorBase::unitOfItem(const Steps& step, const IXMLDOMNode& item,
                                   const std::string& datafileUnit, bool isLocal) const
{
    const std::string unit = read(step, item, "unit");
    if (unit == datafileUnit) {
        return unit;
    }
    const std::string mismatch =
        Tag.get() + " viestin yksikkö " + unit + " <> " + datafileUnit + " Datafilessä!\r\n";
    if (unit != documents::kNoUnit && !unit.empty()) {
        step([&] { host().WriteLog(kLogUnit, mismatch + "Käytän VIESTIN yksikköä " + unit); });
        return unit;
    }
    if (!isLocal) {
        step([&] {
            host().WriteLog(kLogUnit, mismatch + "Käytän Datafilen yksikköä " + datafileUnit);
        });
    }
    return datafileUnit;
}

} // namespace quill
