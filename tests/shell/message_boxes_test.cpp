// What Enter and Escape do in the boxes of the shell.
#include "shell/window_dialogs.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <QtTest>
#include <gtest/gtest.h>

namespace quill::shell {
namespace {

class Boxes : public testing::Test {
protected:
    Boxes() { window.show(); }

    /// Presses the key in the box that comes up.
    void pressSoon(int key)
    {
        QTimer::singleShot(0, &window, [this, key] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            buttons.clear();
            for (QAbstractButton* button : box->buttons()) {
                buttons << button->text();
            }
            QTest::keyClick(box, static_cast<Qt::Key>(key));
        });
    }

    QWidget             window;
    CatalogueTranslator texts;
    MessageBoxes        boxes{window, texts};
    QStringList         buttons;
};

TEST_F(Boxes, EnterDoesNotThrowAnythingAway)
{
    pressSoon(Qt::Key_Return);
    EXPECT_FALSE(boxes.askQuestion("title", "Reset it?"));
    EXPECT_EQ(buttons.size(), 2);
}

TEST_F(Boxes, EscapeIsNo)
{
    pressSoon(Qt::Key_Escape);
    EXPECT_FALSE(boxes.askQuestion("title", "Reset it?"));
}

TEST_F(Boxes, AYesIsAskedForByName)
{
    texts.setLanguage("German");
    QTimer::singleShot(0, &window, [] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        for (QAbstractButton* button : box->buttons()) {
            if (button->text() == "Ja") {
                button->click();
            }
        }
    });
    EXPECT_TRUE(boxes.askQuestion("title", "Zurücksetzen?"));
}

TEST_F(Boxes, EnterSavesAndEscapeStays)
{
    pressSoon(Qt::Key_Return);
    EXPECT_EQ(boxes.askToSave("title", "Save?"), SaveChoice::save);
    pressSoon(Qt::Key_Escape);
    EXPECT_EQ(boxes.askToSave("title", "Save?"), SaveChoice::cancel);
}

} // namespace
} // namespace quill::shell
