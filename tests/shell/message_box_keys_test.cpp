// Boxes of the shell by keyboard and by mouse: what is there for each button, and what comes after.
#include "shell/window_dialogs.h"

#include "shell/user_input.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <QtTest>
#include <gtest/gtest.h>

namespace quill::shell {
namespace {

class BoxKeys : public testing::TestWithParam<const char*> {
protected:
    BoxKeys()
    {
        texts.setLanguage(GetParam());
        window.show();
        window.activateWindow();
        edit.setFocus();
        userInput::settle();
    }

    /// Does something with the box that comes up, once it is there.
    void soon(const std::function<void(QMessageBox&)>& act)
    {
        QTimer::singleShot(0, &window, [this, act] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            ++mBoxes;
            box->activateWindow();
            userInput::settle();
            const QPointer<QMessageBox> there(box);
            act(*box);
            if (there && there->isVisible()) {
                ADD_FAILURE() << "still there";
                there->done(QDialog::Rejected);
            }
        });
    }
    static void press(QMessageBox& box, const std::vector<Qt::Key>& keys)
    {
        for (const Qt::Key key : keys) {
            QWidget* const at = QApplication::focusWidget();
            QTest::keyClick(at != nullptr ? at : &box, key);
        }
    }
    static void clickButton(QMessageBox& box, const QString& text)
    {
        for (QAbstractButton* const button : box.buttons()) {
            if (button->text() == text) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        ADD_FAILURE() << text.toStdString();
    }
    QMessageBox* shown()
    {
        userInput::settle();
        for (auto* const box : window.findChildren<QMessageBox*>()) {
            if (box->isVisible()) {
                return box;
            }
        }
        return nullptr;
    }

    QWidget             window;
    QLineEdit           edit{&window};
    CatalogueTranslator texts;
    MessageBoxes        boxes{window, texts};
    int                 mBoxes = 0;
};

INSTANTIATE_TEST_SUITE_P(Languages, BoxKeys, testing::Values("English", "German", "Finnish"));

TEST_P(BoxKeys, AMessageGoesWithEnterSpaceOrEscapeAndTheFocusComesBack)
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape}) {
        boxes.showMessage("title", "The device does not answer.");
        QMessageBox* const box = shown();
        ASSERT_NE(box, nullptr);
        ASSERT_EQ(box->buttons().size(), 1);
        EXPECT_EQ(box->buttons().front()->text(), texts.text("ok"));
        EXPECT_EQ(box->text(), "The device does not answer.");
        press(*box, {key});
        EXPECT_EQ(shown(), nullptr) << key;
        // Here nobody but the program activates a window.
        window.activateWindow();
        userInput::settle();
        EXPECT_TRUE(edit.hasFocus()) << key;
    }
}

TEST_P(BoxKeys, AMessageDoesNotWait)
{
    boxes.showMessage("title", "first");
    boxes.showMessage("title", "second");
    int count = 0;
    while (QMessageBox* const box = shown()) {
        ++count;
        clickButton(*box, texts.text("ok"));
    }
    EXPECT_EQ(count, 2);
}

TEST_P(BoxKeys, AnErrorLooksLikeOne)
{
    boxes.showMessage(texts.text("error"), "x");
    ASSERT_NE(shown(), nullptr);
    EXPECT_EQ(shown()->icon(), QMessageBox::Warning);
    press(*shown(), {Qt::Key_Escape});
    boxes.showMessage("Valve", "x");
    ASSERT_NE(shown(), nullptr);
    EXPECT_EQ(shown()->icon(), QMessageBox::Information);
}

TEST_P(BoxKeys, AQuestionIsAnsweredWithYesByTabAndEnterOrTheMouse)
{
    soon([](QMessageBox& box) { press(box, {Qt::Key_Tab, Qt::Key_Return}); });
    EXPECT_TRUE(boxes.askQuestion("title", "Reset it?"));
    soon([](QMessageBox& box) { press(box, {Qt::Key_Left, Qt::Key_Space}); });
    EXPECT_TRUE(boxes.askQuestion("title", "Reset it?"));
    soon([this](QMessageBox& box) { clickButton(box, texts.text("yes")); });
    EXPECT_TRUE(boxes.askQuestion("title", "Reset it?"));
    soon([this](QMessageBox& box) { clickButton(box, texts.text("no")); });
    EXPECT_FALSE(boxes.askQuestion("title", "Reset it?"));
    soon([](QMessageBox& box) { box.close(); });
    EXPECT_FALSE(boxes.askQuestion("title", "Reset it?")) << "closing it is no yes";
    EXPECT_EQ(mBoxes, 5);
}

TEST_P(BoxKeys, WhatIsToBeSavedHasThreeAnswers)
{
    soon([this](QMessageBox& box) { clickButton(box, texts.text("shell_answerDiscard")); });
    EXPECT_EQ(boxes.askToSave("title", "Save?"), SaveChoice::discard);
    soon([this](QMessageBox& box) { clickButton(box, texts.text("shell_answerSave")); });
    EXPECT_EQ(boxes.askToSave("title", "Save?"), SaveChoice::save);
    soon([this](QMessageBox& box) { clickButton(box, texts.text("cancel")); });
    EXPECT_EQ(boxes.askToSave("title", "Save?"), SaveChoice::cancel);
    soon([](QMessageBox& box) { box.close(); });
    EXPECT_EQ(boxes.askToSave("title", "Save?"), SaveChoice::cancel);
    EXPECT_EQ(mBoxes, 4);
}

} // namespace
} // namespace quill::shell
