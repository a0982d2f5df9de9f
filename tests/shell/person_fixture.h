#pragma once

#include "action_window_fixture.h"
#include "status_rows.h"

#include "editors/CtrCheckEdit.h"
#include "editors/CtrOptionEdit.h"
#include "editors/CtrTimeEdit.h"
#include "shell/device_status.h"
#include "shell/view_page.h"
#include "status/CtrStatusF.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QTreeWidget>
#include <QtTest>

namespace quill::shell::test {

/// The shell's window with a person in front of it who has a keyboard, a mouse, or both: nothing
/// here sets the focus, turns a page or runs a command but by events that those would send. The
/// keyboard comes with the shortcuts, which a key that is sent to a widget does not.
class PersonTest : public ActionWindowTest {
protected:
    // --- The keyboard ---------------------------------------------------------------------------

    void key(Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWidget* const at = QApplication::focusWidget();
        QTest::keyClick(at != nullptr ? at : QApplication::activeWindow(), code, modifiers);
        userInput::settle();
    }
    void keys(const QString& text)
    {
        for (const QChar character : text) {
            QTest::keyClick(QApplication::focusWidget(), character.toLatin1());
        }
        userInput::settle();
    }
    /// Presses Tab until the widget has the focus; false if that never happens.
    bool tabTo(const QWidget& wanted, Qt::Key tab = Qt::Key_Tab)
    {
        constexpr int kMost = 80;
        for (int presses = 0; presses < kMost; ++presses) {
            const QWidget* const at = QApplication::focusWidget();
            if (at == &wanted || (at != nullptr && at->focusProxy() == &wanted) ||
                (at != nullptr && wanted.focusProxy() == at)) {
                return true;
            }
            key(tab);
        }
        return false;
    }
    bool tabTo(const platform::Widget& wanted, Qt::Key tab = Qt::Key_Tab)
    {
        return tabTo(shown(wanted), tab);
    }
    /// Walks the tree of pages and enters one.
    void walkToPage(const char* tag)
    {
        auto* const pages = window->findChild<QTreeWidget*>("pages");
        ASSERT_TRUE(tabTo(*pages));
        key(Qt::Key_Home);
        const int count = 40;
        for (int steps = 0; steps < count && shownPage() != tag; ++steps) {
            key(Qt::Key_Down);
        }
        ASSERT_EQ(shownPage(), tag);
        key(Qt::Key_Return);
        ASSERT_FALSE(pages->hasFocus()) << "the focus is in the page";
    }
    /// Waits for the device, as a person does who sees that it is at work.
    void await()
    {
        ASSERT_TRUE(userInput::wait([this] { return !messenger().isWaiting(); }));
        userInput::settle();
    }
    void connectByKey()
    {
        key(Qt::Key_L, Qt::ControlModifier);
        ASSERT_TRUE(messenger().isOnline());
        await();
    }
    void readByKey()
    {
        key(Qt::Key_F5);
        await();
    }

    // --- The mouse ------------------------------------------------------------------------------

    void mouse(QWidget& widget, QPoint where, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mouseClick(&widget, Qt::LeftButton, modifiers, where);
        userInput::settle();
    }
    void mouse(QWidget& widget)
    {
        ASSERT_TRUE(widget.isVisible()) << widget.accessibleName().toStdString();
        // An option takes no clicks behind its text.
        const bool isOption = qobject_cast<QRadioButton*>(&widget) != nullptr;
        mouse(widget, isOption ? QPoint(8, widget.height() / 2) : widget.rect().center());
    }
    void mouse(const platform::Widget& widget)
    {
        mouse(shown(widget));
        await();
    }
    /// Opens the list of a combo box and takes an entry.
    void pick(QComboBox& box, int entry)
    {
        QTest::mouseClick(&box, Qt::LeftButton, {},
                          QPoint(box.width() - 8, box.height() / 2)); // on the arrow
        userInput::settle();
        QAbstractItemView* const list = box.view();
        ASSERT_TRUE(list->isVisible());
        // A list that has just opened takes no release for a while.
        QTest::qWait(QApplication::doubleClickInterval());
        const QModelIndex row = box.model()->index(entry, 0);
        list->scrollTo(row);
        QTest::mouseMove(list->viewport(), list->visualRect(row).center());
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(row).center());
        userInput::settle();
        EXPECT_FALSE(list->isVisible());
    }
    void pick(const platform::ComboBox& box, int entry)
    {
        pick(dynamic_cast<QComboBox&>(shown(box)), entry);
    }
    /// A click on a page in the tree.
    void clickPage(const char* tag)
    {
        auto& pages = *window->findChild<QTreeWidget*>("pages");
        for (QTreeWidgetItemIterator item(&pages); *item != nullptr; ++item) {
            if ((*item)->data(0, Qt::UserRole).toString() == tag) {
                pages.scrollToItem(*item);
                mouse(*pages.viewport(), pages.visualItemRect(*item).center());
            }
        }
        ASSERT_EQ(shownPage(), tag);
    }
    void clickCommand(const char* name)
    {
        mouse(toolButton(name));
        await();
    }
    /// A click into a cell of a grid or list, rows and columns from 1.
    void clickCell(const platform::Widget& grid, int row, int col, int fromLeft = -1)
    {
        auto& tree = dynamic_cast<QTreeView&>(shown(grid));
        auto  at   = userInput::rowNumber(tree, row);
        at         = at.siblingAtColumn(col - 1);
        tree.scrollTo(at);
        userInput::settle();
        const QRect place = tree.visualRect(at);
        mouse(*tree.viewport(),
              fromLeft < 0 ? place.center() : QPoint(place.left() + fromLeft, place.center().y()));
    }

    // --- What comes of it -----------------------------------------------------------------------

    DeviceModel&  model() { return messenger().device().function<DevicePhysics>()->model(); }
    DeviceStatus& diagnosis() { return *messenger().device().function<DeviceStatus>(); }
    [[nodiscard]] const LoopCurrent& loop()
    {
        return messenger().device().function<CurrentOutput>()->loop();
    }
};

} // namespace quill::shell::test
