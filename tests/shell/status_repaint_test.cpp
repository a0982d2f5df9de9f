// What a pass over the status costs the screen.
#include "status_window_fixture.h"

#include <QPaintEvent>
#include <QScrollBar>
#include <gmock/gmock.h>

namespace quill::shell::test {
namespace {

/// What of a tree is painted.
class Painted : public QObject {
public:
    explicit Painted(QTreeView& tree) : mTree(tree)
    {
        userInput::settle();
        tree.viewport()->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            region += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }
    /// The rows that were painted, in part or whole.
    [[nodiscard]] std::vector<int> rows(int count) const
    {
        std::vector<int> found;
        for (int row = 1; row <= count; ++row) {
            if (region.intersects(mTree.visualRect(userInput::rowNumber(mTree, row)))) {
                found.push_back(row);
            }
        }
        return found;
    }

    QRegion region;

private:
    QTreeView& mTree;
};

class StatusRepaint : public StatusWindowTest, public testing::WithParamInterface<const char*> {
protected:
    void SetUp() override
    {
        window->resize(1300, 2200); // the whole tree is seen
        window->showPage(GetParam());
        userInput::settle();
        readPage();
        readPage(); // the masks have come
    }
    std::vector<int> rowsWith(const std::vector<std::string>& icons)
    {
        const auto&      shown = view<StatusTreeView>(GetParam());
        std::vector<int> rows;
        for (int row = 1; row <= shown.scgStatus.RowCount(); ++row) {
            if (shown.scgStatus.CellIcon(row, 1) != icons.at(static_cast<std::size_t>(row) - 1)) {
                rows.push_back(row);
            }
        }
        return rows;
    }
    std::vector<std::string> icons()
    {
        const auto&              shown = view<StatusTreeView>(GetParam());
        std::vector<std::string> all;
        for (int row = 1; row <= shown.scgStatus.RowCount(); ++row) {
            all.push_back(shown.scgStatus.CellIcon(row, 1));
        }
        return all;
    }
};

INSTANTIATE_TEST_SUITE_P(Pages, StatusRepaint, testing::Values("status", "statusConfiguration"));

TEST_P(StatusRepaint, APassPaintsTheRowsWhoseIconsChangedAndNoOthers)
{
    auto& rows = tree(view<StatusTreeView>(GetParam()));
    ASSERT_EQ(rows.verticalScrollBar()->maximum(), 0) << "all rows are in sight";
    for (const char* condition :
         {"statusSensorDrift", "statusSpringFailure", "statusPackingLeak"}) {
        const auto before = icons();
        diagnosis().setPresent(messenger().device(), condition, true);
        const Painted painted(rows);
        ASSERT_TRUE(messenger().readGroup("deviceStatus"));
        waitForDevice();
        const auto changed = rowsWith(before);
        EXPECT_GE(changed.size(), 1U) << condition;
        EXPECT_LE(changed.size(), 2U) << "the condition, and its branch if it has become worse";
        EXPECT_EQ(painted.rows(static_cast<int>(before.size())), changed) << condition;
    }
}

TEST_P(StatusRepaint, APassThatSaysTheSamePaintsNothing)
{
    const Painted painted(tree(view<StatusTreeView>(GetParam())));
    for (int pass = 0; pass < 3; ++pass) {
        ASSERT_TRUE(messenger().readGroup("deviceStatus"));
        waitForDevice();
    }
    EXPECT_TRUE(painted.region.isEmpty());
}

} // namespace
} // namespace quill::shell::test
