#pragma once

#include "support/grid_events.h"
#include "tests/qt/screen_test_support.h"

#include <QPaintEvent>
#include <QTreeView>

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace quill::qt::test {

/// Remembers what of a view is painted.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QTreeView& tree) : mViewport(tree.viewport())
    {
        settle();
        mViewport->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            painted += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }

    QRegion painted;

private:
    QWidget* mViewport;
};

/// A page with a grid, and somebody who listens to its user.
struct GridPage : Page {
    platform::Grid    scg{*this, {.Name = "scg", .Width = 7500, .Height = 4500}};
    platform::TextBox txt{*this, {.Name = "txt", .Top = 4800, .Width = 1500, .Height = 315}};

    /// Columns "a", "b", ... of 120 pixels, and so many rows with the texts "row 1".
    void fill(int columns, int rows)
    {
        for (int col = 0; col < columns; ++col) {
            const std::string key(1, static_cast<char>('a' + col));
            scg.AddCol({.Key = key, .Text = key, .Width = 120});
        }
        scg.setRowCount(rows);
        for (int row = 1; row <= rows; ++row) {
            scg.setCellText(row, 1, "row " + std::to_string(row));
        }
    }

private:
    quill::test::GridEvents mEvents{scg};

public:
    std::vector<std::string>& heard  = mEvents.heard;
    bool&                     barred = mEvents.barred;
};

/// A grid on screen with a user in front of it. Rows and columns count from 1; `cell` finds them
/// in the tree whatever their parents are.
class GridOnScreen : public ::testing::Test {
protected:
    [[nodiscard]] QTreeView*                tree() const { return screen->as<QTreeView>(page.scg); }
    [[nodiscard]] const QAbstractItemModel& rows() const { return *tree()->model(); }

    /// Shows the page as it is now.
    void show()
    {
        screen = std::make_unique<Shown>(page);
        settle();
    }

    [[nodiscard]] QModelIndex cell(int row, int col) const
    {
        const int parent = page.scg.RowParent(row);
        int       place  = 0;
        for (int other = parent + 1; other < row; ++other) {
            place += page.scg.RowParent(other) == parent ? 1 : 0;
        }
        return rows().index(place, col - 1, parent == 0 ? QModelIndex{} : cell(parent, 1));
    }

    [[nodiscard]] QRect rect(int row, int col) const { return tree()->visualRect(cell(row, col)); }

    void click(int row, int col, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::mouseClick(tree()->viewport(), button, modifiers, rect(row, col).center());
        settle();
    }
    void doubleClick(int row, int col) const
    {
        const QPoint where = rect(row, col).center();
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {}, where);
        QTest::mouseDClick(tree()->viewport(), Qt::LeftButton, {}, where);
        settle();
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        settle();
    }
    void type(const QString& text) const
    {
        for (const QChar character : text) {
            // The first one may open a box that the others go to.
            QTest::keyClick(QApplication::focusWidget(), character.toLatin1());
        }
        settle();
    }
    /// The box over a cell, nothing for none.
    template <class Box>
    [[nodiscard]] Box* box() const
    {
        for (Box* const found : tree()->viewport()->findChildren<Box*>()) {
            if (found->isVisible()) {
                return found;
            }
        }
        return nullptr;
    }

    GridPage               page;
    std::unique_ptr<Shown> screen;
};

} // namespace quill::qt::test
