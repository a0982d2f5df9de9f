#include "qt/keys.h"

#include "platform/widget.h"

#include <QKeyEvent>

namespace quill::qt {

int keyCode(int qtKey)
{
    switch (qtKey) {
    case Qt::Key_Backspace: return 8;
    case Qt::Key_Tab:
    case Qt::Key_Backtab: return platform::kKeyTab;
    case Qt::Key_Return:
    case Qt::Key_Enter: return platform::kKeyReturn;
    case Qt::Key_Escape: return platform::kKeyEscape;
    case Qt::Key_Space: return platform::kKeySpace;
    case Qt::Key_PageUp: return platform::kKeyPageUp;
    case Qt::Key_PageDown: return platform::kKeyPageDown;
    case Qt::Key_End: return platform::kKeyEnd;
    case Qt::Key_Home: return platform::kKeyHome;
    case Qt::Key_Left: return platform::kKeyLeft;
    case Qt::Key_Up: return platform::kKeyUp;
    case Qt::Key_Right: return platform::kKeyRight;
    case Qt::Key_Down: return platform::kKeyDown;
    case Qt::Key_Insert: return 45;
    case Qt::Key_Delete: return platform::kKeyDelete;
    default: break;
    }
    // Digits and letters have the codes of their capital characters, as in Qt.
    if ((qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9) || (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z)) {
        return qtKey;
    }
    constexpr int kF1 = 112;
    if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F16) {
        return kF1 + (qtKey - Qt::Key_F1);
    }
    return 0;
}

int shiftState(Qt::KeyboardModifiers modifiers)
{
    return (modifiers.testFlag(Qt::ShiftModifier) ? platform::kShift : 0) +
           (modifiers.testFlag(Qt::ControlModifier) ? platform::kControlKey : 0) +
           (modifiers.testFlag(Qt::AltModifier) ? platform::kAlt : 0);
}

bool writesText(const QKeyEvent& event)
{
    const bool command = event.modifiers().testFlag(Qt::ControlModifier) ||
                         event.modifiers().testFlag(Qt::AltModifier);
    return !command && !event.text().isEmpty() && event.text().at(0).isPrint();
}

} // namespace quill::qt
