#pragma once

#include "shell/shell_messenger.h"

#include <QString>
#include <QStringList>

#include <deque>
#include <functional>
#include <optional>

class QWidget;

namespace quill::shell {

/// What to do with changes that would be lost.
enum class SaveChoice { save, discard, cancel };

/// Everything that the window asks the user in a box of its own: a person answers, or a script.
class WindowDialogs : public UserDialogs {
public:
    /// Whether changes are to be saved before they are lost. All texts here are translated.
    virtual SaveChoice askToSave(const QString& title, const QString& text) = 0;
    /// A file to open, or one to save to; nothing if the user thought better of it.
    virtual std::optional<QString> askForFile(bool save, const QString& title,
                                              const QString& filter) = 0;
};

/// Boxes over the window, with buttons in the language of the texts.
class MessageBoxes : public WindowDialogs {
public:
    MessageBoxes(QWidget& window, CatalogueTranslator& texts) : mWindow(window), mTexts(texts) {}

    void                   showMessage(const QString& title, const QString& text) override;
    bool                   askQuestion(const QString& title, const QString& text) override;
    SaveChoice             askToSave(const QString& title, const QString& text) override;
    std::optional<QString> askForFile(bool save, const QString& title,
                                      const QString& filter) override;

private:
    QWidget&             mWindow;
    CatalogueTranslator& mTexts;
};

/// Stands between the messenger and whoever shows boxes: every page that takes an error tells the
/// user, who wants to hear it once.
class OncePerResponse : public UserDialogs {
public:
    explicit OncePerResponse(UserDialogs& dialogs) : mDialogs(dialogs) {}

    /// From here to `end` a message is shown only once.
    void               begin() { mTold.emplace(); }
    void               end() { mTold.reset(); }
    [[nodiscard]] bool hasTold() const { return mTold && !mTold->isEmpty(); }

    void showMessage(const QString& title, const QString& text) override
    {
        if (mTold && mTold->contains(text)) {
            return;
        }
        if (mTold) {
            mTold->append(text);
        }
        mDialogs.showMessage(title, text);
    }
    bool askQuestion(const QString& title, const QString& text) override
    {
        return mDialogs.askQuestion(title, text);
    }

private:
    UserDialogs&               mDialogs;
    std::optional<QStringList> mTold;
};

/// Answers what was prepared and keeps what was asked.
class ScriptedDialogs : public WindowDialogs {
public:
    struct Box {
        QString title;
        QString text;
    };
    /// All boxes so far, in order.
    std::deque<Box> boxes;
    /// Answers of the next questions; without one a question is declined, a box cancelled.
    std::deque<bool>       answers;
    std::deque<SaveChoice> saveChoices;
    std::deque<QString>    files;

    void showMessage(const QString& title, const QString& text) override
    {
        boxes.push_back({title, text});
    }
    bool                   askQuestion(const QString& title, const QString& text) override;
    SaveChoice             askToSave(const QString& title, const QString& text) override;
    std::optional<QString> askForFile(bool save, const QString& title,
                                      const QString& filter) override;
};

} // namespace quill::shell
