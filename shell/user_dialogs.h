#pragma once

#include <QString>

namespace quill::shell {

/// Who shows messages and asks questions: a window, or a script.
class UserDialogs {
public:
    virtual ~UserDialogs() = default;
    /// Both texts are translated.
    virtual void showMessage(const QString& title, const QString& text) = 0;
    /// Whether the user said yes.
    virtual bool askQuestion(const QString& title, const QString& text) = 0;
};

} // namespace quill::shell
