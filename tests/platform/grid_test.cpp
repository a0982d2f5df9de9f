#include "platform/grid.h"

#include "platform/failure.h"
#include "platform/pictures.h"

#include <gmock/gmock.h>

#include <functional>

namespace quill::platform {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using What = WidgetChange::What;

/// The number of the failure that something ends with, 0 for none.
int failureOf(const std::function<void()>& what)
{
    try {
        what();
    } catch (const Failure& failed) {
        return failed.number();
    }
    return 0;
}

/// What a renderer is told, as words: "changed 2-3 col 1".
class Told {
public:
    explicit Told(Widget& widget)
        : mSubscription(widget.Changed.subscribe(
              [this](const WidgetChange& change) { lines.push_back(line(change)); }))
    {
    }
    std::vector<std::string> lines;

private:
    static std::string line(const WidgetChange& change)
    {
        const std::string range = std::to_string(change.first) + "-" + std::to_string(change.last);
        switch (change.what) {
        case What::rowsChanged:
            return "changed " + range +
                   (change.column < 0 ? "" : " col " + std::to_string(change.column));
        case What::rowsInserted: return "inserted " + range;
        case What::rowsRemoved: return "removed " + range;
        case What::reset: return "reset";
        default: return "property";
        }
    }
    Subscription mSubscription;
};

/// A form with a grid of three columns and five rows: 1, 2 under 1, 3 under 1, 4, 5.
class AGrid : public ::testing::Test {
protected:
    AGrid()
    {
        for (const char* key : {"a", "b", "c"}) {
            grid.AddCol({.Key = key, .Text = key, .Width = 50});
        }
        grid.AddRow();
        grid.AddRow(1);
        grid.AddRow(1);
        grid.AddRow();
        grid.AddRow();
        for (int row = 1; row <= 5; ++row) {
            grid.setCellText(row, 1, "row " + std::to_string(row));
        }
    }

    [[nodiscard]] std::vector<int> parents() const
    {
        std::vector<int> all;
        for (int row = 1; row <= grid.RowCount(); ++row) {
            all.push_back(grid.RowParent(row));
        }
        return all;
    }

    [[nodiscard]] std::vector<std::string> texts() const
    {
        std::vector<std::string> all;
        for (int row = 1; row <= grid.RowCount(); ++row) {
            all.push_back(grid.cell(row, 1).Text);
        }
        return all;
    }

    Control form{{.Name = "form", .Width = 5000, .Height = 5000}};
    Grid    grid{form, {.Name = "scg", .Width = 4000, .Height = 3000}};
};

/// Its user's events, as words: "click 2,1".
class AGridInUse : public AGrid {
protected:
    AGridInUse()
    {
        hear(grid.Click, "click");
        hear(grid.RightClick, "right");
        hear(grid.Hover, "hover");
        hear(grid.CurCellChange, "cursor");
        hear(grid.TextEditChange, "typing");
        hear(grid.TextChange, "changed");
        hear(grid.AfterCommitEdit, "committed");
        mHeld.push_back(grid.RequestEdit.subscribe([this](Grid::EditRequest& request) {
            heard.push_back(line("request", request.row, request.col));
            request.cancel = barred;
        }));
    }

    std::vector<std::string> heard;
    bool                     barred = false;

private:
    static std::string line(const std::string& what, int row, int col)
    {
        return what + " " + std::to_string(row) + "," + std::to_string(col);
    }
    void hear(Event<int, int>& event, const char* what)
    {
        mHeld.push_back(event.subscribe(
            [this, what](int row, int col) { heard.push_back(line(what, row, col)); }));
    }
    std::vector<Subscription> mHeld;
};

// --- Structure -----------------------------------------------------------------------------------

TEST(ANewGrid, IsEmptyAndOnTheGroundOfAWindow)
{
    const Grid grid;
    EXPECT_EQ(grid.RowCount(), 0);
    EXPECT_EQ(grid.ColCount(), 0);
    EXPECT_EQ(grid.CurRow(), 0);
    EXPECT_EQ(grid.EditRow(), 0);
    EXPECT_EQ(grid.BackColor.get(), kWindowBackground);
    EXPECT_TRUE(grid.HeaderVisible);
    EXPECT_TRUE(grid.Editable);
    EXPECT_FALSE(grid.RowMode);
    EXPECT_FALSE(grid.MultiSelect);
    EXPECT_STREQ(grid.TypeName(), "Grid");
}

TEST_F(AGrid, CountsFromOneAndANumberOutsideIsAFailure)
{
    EXPECT_EQ(grid.cell(5, 3).Text, "");
    EXPECT_EQ(grid.column(3).Key, "c");
    const std::vector<std::function<void()>> outside = {
        [&] { (void)grid.cell(0, 1); },
        [&] { (void)grid.cell(6, 1); },
        [&] { (void)grid.cell(1, 0); },
        [&] { (void)grid.cell(1, 4); },
        [&] { (void)grid.column(0); },
        [&] { (void)grid.column(4); },
        [&] { grid.setColumnWidth(4, 1); },
        [&] { grid.setColumnVisible(0, true); },
        [&] { grid.setColumnText(-1, ""); },
        [&] { grid.AddRow(6); },
        [&] { grid.AddRow(-1); },
        [&] { (void)grid.RowParent(6); },
        [&] { (void)grid.RowHasChildren(0); },
        [&] { (void)grid.RowVisible(6); },
        [&] { grid.setRowVisible(6, false); },
        [&] { (void)grid.RowExpanded(6); },
        [&] { grid.setRowExpanded(0, false); },
        [&] { (void)grid.RowDescription(6); },
        [&] { grid.setRowDescription(6, ""); },
        [&] { grid.setCellText(6, 1, ""); },
        [&] { grid.setCellValue(1, 4, 1); },
        [&] { grid.setCellBackColor(6, 1, 0); },
        [&] { grid.setCellEditable(6, 1, true); },
        [&] { grid.setCellKind(6, 1, Grid::CellKind::check); },
        [&] { grid.setCellIcon(6, 1, ""); },
        [&] { (void)grid.CellIcon(6, 1); },
        [&] { grid.setCellList(6, 1, ""); },
        [&] { (void)grid.CellList(1, 4); },
        [&] { grid.setCurCell(6, 1); },
        [&] { grid.setCurCell(1, 0); },
        [&] { grid.setCurCell(0, 1); },
        [&] {
            grid.setSelectedRows({1, 6});
        },
    };
    for (std::size_t place = 0; place < outside.size(); ++place) {
        EXPECT_EQ(failureOf(outside[place]), kSubscriptOutOfRange) << "operation " << place;
    }
    EXPECT_EQ(grid.RowCount(), 5);
    EXPECT_THAT(grid.SelectedRows(), IsEmpty());
}

TEST_F(AGrid, ANewRowComesBehindTheLastDescendantOfItsParent)
{
    EXPECT_THAT(parents(), ElementsAre(0, 1, 1, 0, 0));
    EXPECT_EQ(grid.AddRow(2), 3) << "a child of the child";
    EXPECT_THAT(parents(), ElementsAre(0, 1, 2, 1, 0, 0));
    EXPECT_EQ(grid.AddRow(1), 5) << "behind the whole branch";
    EXPECT_EQ(grid.AddRow(2), 4);
    EXPECT_THAT(parents(), ElementsAre(0, 1, 2, 2, 1, 1, 0, 0));
    EXPECT_THAT(texts(), ElementsAre("row 1", "row 2", "", "", "row 3", "", "row 4", "row 5"));
    EXPECT_EQ(grid.AddRow(8), 9) << "a child of the last row";
    EXPECT_EQ(grid.AddRow(8), 10);
    EXPECT_EQ(grid.AddRow(), 11);
    EXPECT_THAT(parents(), ElementsAre(0, 1, 2, 2, 1, 1, 0, 0, 8, 8, 0));
}

TEST_F(AGrid, RowsThatMoveOnKeepTheirParentsAndWhatPointsAtThem)
{
    grid.AddRow(5);
    grid.MultiSelect = true;
    grid.setSelectedRows({1, 4, 6});
    grid.setCurCell(4, 2);
    ASSERT_EQ(grid.typeCell(6, 1, "half"), UserDoor::done);
    grid.setSelectedRows({1, 4, 6});
    grid.AddRow(1);
    EXPECT_THAT(parents(), ElementsAre(0, 1, 1, 1, 0, 0, 6));
    EXPECT_THAT(grid.SelectedRows(), ElementsAre(1, 5, 7));
    EXPECT_EQ(grid.CurRow(), 7);
    EXPECT_EQ(grid.EditRow(), 7);
    EXPECT_EQ(grid.EditText(), "half");
    ASSERT_EQ(grid.commitEdit(), UserDoor::done);
    EXPECT_EQ(grid.cell(7, 1).Text, "half");
    EXPECT_TRUE(grid.RowHasChildren(6));
    EXPECT_FALSE(grid.RowHasChildren(7));
}

TEST_F(AGrid, CuttingRowsOffLeavesNothingThatPointsAtThem)
{
    grid.MultiSelect = true;
    grid.setSelectedRows({2, 3, 5});
    grid.setCurCell(3, 1);
    ASSERT_EQ(grid.typeCell(3, 1, "half"), UserDoor::done);
    grid.setSelectedRows({2, 3, 5});
    grid.setRowCount(2);
    EXPECT_THAT(parents(), ElementsAre(0, 1));
    EXPECT_TRUE(grid.RowHasChildren(1));
    EXPECT_THAT(grid.SelectedRows(), ElementsAre(2));
    EXPECT_EQ(grid.CurRow(), 0);
    EXPECT_EQ(grid.CurCol(), 0);
    EXPECT_EQ(grid.EditRow(), 0);
    grid.setRowCount(1);
    EXPECT_FALSE(grid.RowHasChildren(1)) << "the last child went";
    grid.setRowCount(3);
    EXPECT_THAT(parents(), ElementsAre(0, 0, 0));
    EXPECT_THAT(texts(), ElementsAre("row 1", "", ""));
    grid.setRowCount(0);
    EXPECT_EQ(grid.RowCount(), 0);
    EXPECT_EQ(failureOf([&] { grid.setRowCount(-1); }), kInvalidCall);
}

TEST_F(AGrid, ACutBeforeTheCursorIsNoneOfItsAffair)
{
    grid.setCurCell(2, 2);
    ASSERT_EQ(grid.typeCell(2, 2, "half"), UserDoor::done);
    grid.setRowCount(2);
    EXPECT_EQ(grid.CurRow(), 2);
    EXPECT_EQ(grid.EditText(), "half");
}

TEST_F(AGrid, ANewColumnGivesEveryRowACell)
{
    EXPECT_EQ(grid.AddCol({.Key = "d", .Width = 20}), 4);
    EXPECT_EQ(grid.ColCount(), 4);
    grid.setCellText(5, 4, "there");
    EXPECT_EQ(grid.cell(5, 4).Text, "there");
    EXPECT_EQ(grid.cell(5, 1).Text, "row 5");
    grid.setColumnText(4, "title");
    grid.setColumnWidth(4, 33);
    grid.setColumnVisible(4, false);
    EXPECT_EQ(grid.column(4).Text, "title");
    EXPECT_EQ(grid.column(4).Width, 33);
    EXPECT_FALSE(grid.column(4).Visible);
}

TEST_F(AGrid, ClearingLeavesTheImagesAlone)
{
    ImageList images;
    images.Add("ok");
    grid.setImageList(&images);
    grid.AddCombo("list");
    grid.setCurCell(2, 1);
    grid.setSelectedRows({2});
    ASSERT_EQ(grid.typeCell(2, 1, "half"), UserDoor::done);
    grid.Clear();
    EXPECT_EQ(grid.RowCount(), 0);
    EXPECT_EQ(grid.ColCount(), 0);
    EXPECT_FALSE(grid.hasCombo("list"));
    EXPECT_EQ(grid.CurRow(), 0);
    EXPECT_THAT(grid.SelectedRows(), IsEmpty());
    EXPECT_EQ(grid.EditRow(), 0);
    EXPECT_EQ(grid.EditText(), "");
    EXPECT_EQ(grid.imageList(), &images);
}

TEST_F(AGrid, RowsRememberWhatTheyAreTold)
{
    EXPECT_TRUE(grid.RowVisible(2));
    EXPECT_TRUE(grid.RowExpanded(1));
    grid.setRowVisible(2, false);
    grid.setRowExpanded(1, false);
    grid.setRowDescription(1, "supply, failure");
    EXPECT_FALSE(grid.RowVisible(2));
    EXPECT_FALSE(grid.RowExpanded(1));
    EXPECT_EQ(grid.RowDescription(1), "supply, failure");
}

TEST_F(AGrid, PropertiesAreShownByName)
{
    struct Names : PropertyVisitor {
        void visit(const char* name, Property<bool>&) override { names.emplace_back(name); }
        void visit(const char* name, Property<std::int32_t>&) override { names.emplace_back(name); }
        void visit(const char* name, Property<Color>&) override { names.emplace_back(name); }
        void visit(const char* name, Property<double>&) override { names.emplace_back(name); }
        void visit(const char* name, Property<std::string>&) override { names.emplace_back(name); }
        void visit(const char* name, const Getter& get, const Setter& set) override
        {
            names.emplace_back(name);
            if (std::string(name) == "RowCount") {
                set(PropertyValue{std::int32_t{7}});
            }
            values[name] = get();
        }
        std::vector<std::string>             names;
        std::map<std::string, PropertyValue> values;
    } seen;
    grid.setCurCell(2, 3);
    grid.visit(seen);
    for (const char* name : {"HeaderVisible", "Editable", "RowMode", "MultiSelect", "Redraw"}) {
        EXPECT_THAT(seen.names, ::testing::Contains(name));
    }
    EXPECT_EQ(std::get<std::int32_t>(seen.values["RowCount"]), 7);
    EXPECT_EQ(std::get<std::int32_t>(seen.values["ColCount"]), 3);
    EXPECT_EQ(std::get<std::int32_t>(seen.values["CurRow"]), 2);
    EXPECT_EQ(std::get<std::int32_t>(seen.values["CurCol"]), 3);
    EXPECT_EQ(grid.RowCount(), 7);
}

// --- What a renderer is told ---------------------------------------------------------------------

TEST_F(AGrid, OneCellIsToldAsOneCellAndOnlyWhenItChanges)
{
    const Told told(grid);
    grid.setCellText(2, 3, "x");
    grid.setCellValue(2, 3, 1);
    grid.setCellBackColor(2, 3, 0xff);
    grid.setCellEditable(2, 3, false);
    grid.setCellKind(2, 3, Grid::CellKind::check);
    EXPECT_EQ(told.lines, std::vector<std::string>(5, "changed 1-1 col 2"));
    grid.setCellText(2, 3, "x");
    grid.setCellValue(2, 3, 1);
    grid.setCellBackColor(2, 3, 0xff);
    grid.setCellEditable(2, 3, false);
    grid.setCellKind(2, 3, Grid::CellKind::check);
    EXPECT_EQ(told.lines.size(), 5U);
}

TEST_F(AGrid, RowsAreToldByRanges)
{
    const Told told(grid);
    grid.AddRow(1);
    grid.setRowCount(5000);
    grid.setRowCount(4);
    grid.setRowCount(4);
    grid.setRowVisible(2, false);
    grid.setRowVisible(2, false);
    grid.setRowExpanded(1, false);
    grid.setRowExpanded(1, false);
    grid.setRowDescription(3, "d");
    grid.setRowDescription(3, "d");
    grid.AddCol({});
    grid.Clear();
    EXPECT_THAT(told.lines,
                ElementsAre("inserted 3-3", "inserted 6-4999", "removed 4-4999", "changed 1-1",
                            "changed 0-0", "changed 2-2", "reset", "reset"));
}

TEST_F(AGrid, HeldBackChangesAreToldAtOnce)
{
    const Told told(grid);
    grid.Redraw = false;
    EXPECT_THAT(told.lines, ElementsAre("property"));
    grid.setCellText(1, 1, "x");
    grid.AddRow();
    grid.setRowCount(2);
    grid.setCurCell(1, 1);
    EXPECT_THAT(told.lines, ElementsAre("property"));
    grid.Redraw = true;
    EXPECT_THAT(told.lines, ElementsAre("property", "property", "reset"));
    grid.Redraw = false;
    grid.Redraw = true;
    EXPECT_EQ(told.lines.size(), 5U) << "nothing was held back";
}

// --- Icons and drop-down lists -------------------------------------------------------------------

TEST_F(AGrid, IconsComeFromTheImageListByKey)
{
    EXPECT_EQ(failureOf([&] { grid.setCellIcon(1, 1, "ok"); }), kInvalidCall) << "no list yet";
    grid.setCellIcon(1, 1, "");
    ImageList images;
    images.Add("ok");
    images.Add("alarm");
    grid.setImageList(&images);
    grid.setCellIcon(1, 1, "alarm");
    EXPECT_EQ(grid.CellIcon(1, 1), "alarm");
    EXPECT_EQ(failureOf([&] { grid.setCellIcon(1, 1, "other"); }), kInvalidCall);
    EXPECT_EQ(grid.CellIcon(1, 1), "alarm") << "the old one stays";
    const Told told(grid);
    grid.setCellIcon(1, 1, "alarm");
    EXPECT_THAT(told.lines, IsEmpty());
    grid.setCellIcon(1, 1, "ok");
    grid.setCellIcon(1, 1, "");
    EXPECT_THAT(told.lines, ElementsAre("changed 0-0 col 0", "changed 0-0 col 0"));
    EXPECT_EQ(grid.CellIcon(1, 1), "");
}

TEST_F(AGrid, AnIconThatTheNewImageListLacksIsNone)
{
    ImageList two;
    two.Add("a");
    two.Add("b");
    ImageList one;
    one.Add("c");
    grid.setImageList(&two);
    grid.setCellIcon(1, 1, "b");
    grid.setCellIcon(2, 1, "a");
    grid.setImageList(&one);
    EXPECT_EQ(grid.CellIcon(1, 1), "");
    EXPECT_EQ(grid.CellIcon(2, 1), "c");
    grid.setImageList(nullptr);
    EXPECT_EQ(grid.CellIcon(2, 1), "");
}

TEST_F(AGrid, DropDownListsAreKeptByKey)
{
    grid.AddCombo("units");
    EXPECT_TRUE(grid.hasCombo("units"));
    EXPECT_FALSE(grid.hasCombo("other"));
    EXPECT_EQ(failureOf([&] { grid.AddCombo("units"); }), kInvalidCall);
    grid.AddComboItem("units", {"bar", 1});
    grid.AddComboItem("units", {"psi", 2});
    ASSERT_EQ(grid.Combo("units").size(), 2U);
    EXPECT_EQ(grid.Combo("units")[1].Text, "psi");
    EXPECT_EQ(failureOf([&] { grid.AddComboItem("other", {"x", 1}); }), kInvalidCall);
    EXPECT_EQ(failureOf([&] { (void)grid.Combo("other"); }), kInvalidCall);

    grid.setCellList(2, 2, "units");
    EXPECT_EQ(grid.CellList(2, 2), "units");
    EXPECT_EQ(failureOf([&] { grid.setCellList(2, 2, "other"); }), kInvalidCall);
    EXPECT_EQ(grid.CellList(2, 2), "units");
    grid.ClearCombo("units");
    EXPECT_THAT(grid.Combo("units"), IsEmpty());
    EXPECT_EQ(grid.CellList(2, 2), "units") << "empty, but still there";
    grid.ClearCombo("new");
    EXPECT_TRUE(grid.hasCombo("new"));
    grid.setCellList(2, 2, "");
    EXPECT_EQ(grid.CellList(2, 2), "");
}

// --- Selection by the program --------------------------------------------------------------------

TEST_F(AGridInUse, TheProgramMovesTheCursorWithoutAnEvent)
{
    grid.setCurCell(3, 2);
    EXPECT_EQ(grid.CurRow(), 3);
    EXPECT_EQ(grid.CurCol(), 2);
    grid.setSelectedRows({5, 2, 5});
    EXPECT_THAT(grid.SelectedRows(), ElementsAre(2, 5)) << "in order, each one once";
    grid.setCurCell(0, 0);
    EXPECT_EQ(grid.CurRow(), 0);
    EXPECT_THAT(heard, IsEmpty());
    const Told told(grid);
    grid.setCurCell(0, 0);
    grid.setSelectedRows({2, 5});
    EXPECT_THAT(told.lines, IsEmpty());
}

// --- User's door: clicks and the cursor ----------------------------------------------------------

TEST_F(AGridInUse, AClickBringsTheFocusTheCursorAndTheSelection)
{
    EXPECT_EQ(grid.clickCell(2, 1), UserDoor::done);
    EXPECT_TRUE(grid.HasFocus());
    EXPECT_EQ(grid.CurRow(), 2);
    EXPECT_EQ(grid.CurCol(), 1);
    EXPECT_THAT(grid.SelectedRows(), ElementsAre(2));
    EXPECT_EQ(grid.clickCell(2, 1), UserDoor::done);
    EXPECT_THAT(heard, ElementsAre("cursor 2,1", "click 2,1", "click 2,1"));
    grid.blur();
}

TEST_F(AGridInUse, RightClicksAndTheMouseLeaveTheCursorAlone)
{
    EXPECT_EQ(grid.rightClickCell(3, 2), UserDoor::done);
    EXPECT_EQ(grid.hoverCell(4, 1), UserDoor::done);
    EXPECT_THAT(heard, ElementsAre("right 3,2", "hover 4,1"));
    EXPECT_EQ(grid.CurRow(), 0);
    EXPECT_FALSE(grid.HasFocus());
}

TEST_F(AGridInUse, WhatIsNotToBeSeenRefuses)
{
    grid.setRowVisible(4, false);
    grid.setColumnVisible(3, false);
    grid.setRowExpanded(1, false);
    const std::vector<std::pair<int, int>> hidden = {{0, 1},  {6, 1}, {1, 0}, {1, 4},
                                                     {-1, 1}, {4, 1}, {1, 3}, {2, 1}};
    for (const auto& [row, col] : hidden) {
        EXPECT_EQ(grid.clickCell(row, col), UserDoor::refused) << row << "," << col;
        EXPECT_EQ(grid.rightClickCell(row, col), UserDoor::refused) << row << "," << col;
        EXPECT_EQ(grid.hoverCell(row, col), UserDoor::refused) << row << "," << col;
        EXPECT_EQ(grid.moveTo(row, col), UserDoor::refused) << row << "," << col;
        EXPECT_EQ(grid.beginEdit(row, col), UserDoor::refused) << row << "," << col;
        EXPECT_EQ(grid.typeCell(row, col, "x"), UserDoor::refused) << row << "," << col;
        EXPECT_EQ(grid.edit(row, col, "x"), UserDoor::refused) << row << "," << col;
        EXPECT_EQ(grid.edit(row, col, 1), UserDoor::refused) << row << "," << col;
    }
    EXPECT_EQ(grid.select({1, 4}), UserDoor::refused);
    EXPECT_THAT(heard, IsEmpty());
    EXPECT_EQ(grid.CurRow(), 0);
    EXPECT_FALSE(grid.HasFocus());

    grid.setRowExpanded(1, true);
    grid.setRowVisible(1, false);
    EXPECT_EQ(grid.clickCell(2, 1), UserDoor::refused) << "under a hidden row";
}

TEST_F(AGridInUse, ADisabledGridOrOneInAHiddenFormRefuses)
{
    const auto everythingRefuses = [&] {
        EXPECT_EQ(grid.clickCell(1, 1), UserDoor::refused);
        EXPECT_EQ(grid.rightClickCell(1, 1), UserDoor::refused);
        EXPECT_EQ(grid.hoverCell(1, 1), UserDoor::refused);
        EXPECT_EQ(grid.moveTo(1, 1), UserDoor::refused);
        EXPECT_EQ(grid.select({1}), UserDoor::refused);
        EXPECT_EQ(grid.select({}), UserDoor::refused);
        EXPECT_EQ(grid.expand(1, false), UserDoor::refused);
        EXPECT_EQ(grid.beginEdit(1, 1), UserDoor::refused);
        EXPECT_EQ(grid.typeCell(1, 1, "x"), UserDoor::refused);
        EXPECT_EQ(grid.edit(1, 1, "x"), UserDoor::refused);
        EXPECT_EQ(grid.edit(1, 1, 1), UserDoor::refused);
        EXPECT_EQ(grid.commitEdit(), UserDoor::refused);
    };
    grid.Enabled = false;
    everythingRefuses();
    grid.Enabled = true;
    form.Visible = false;
    everythingRefuses();
    EXPECT_THAT(heard, IsEmpty());
    EXPECT_TRUE(grid.RowExpanded(1));
}

TEST_F(AGridInUse, SeveralRowsAreSelectedOnlyWhereTheGridAllowsIt)
{
    EXPECT_EQ(grid.select({2, 4}), UserDoor::refused);
    grid.MultiSelect = true;
    EXPECT_EQ(grid.select({4, 2}), UserDoor::done);
    EXPECT_THAT(grid.SelectedRows(), ElementsAre(2, 4));
    EXPECT_EQ(grid.CurRow(), 4) << "the first that was named";
    EXPECT_EQ(grid.CurCol(), 1);
    grid.setCurCell(4, 2);
    EXPECT_EQ(grid.select({5}), UserDoor::done);
    EXPECT_EQ(grid.CurCol(), 2) << "the column stays";
    EXPECT_EQ(grid.select({}), UserDoor::done);
    EXPECT_THAT(grid.SelectedRows(), IsEmpty());
    EXPECT_EQ(grid.CurRow(), 5);
    EXPECT_EQ(grid.select({1, 9}), UserDoor::refused);
    EXPECT_THAT(heard, ElementsAre("cursor 4,1", "cursor 5,2"));
}

TEST_F(AGridInUse, RowsAreSelectedAlsoWhereTheFirstColumnIsHidden)
{
    grid.setColumnVisible(1, false);
    EXPECT_EQ(grid.select({3}), UserDoor::done);
    EXPECT_EQ(grid.CurRow(), 3);
    EXPECT_EQ(grid.CurCol(), 2);
    for (int col = 2; col <= 3; ++col) {
        grid.setColumnVisible(col, false);
    }
    EXPECT_EQ(grid.select({4}), UserDoor::refused);
}

TEST_F(AGridInUse, AHandlerOfTheCursorMayTakeTheRowsAway)
{
    grid.MultiSelect = true;
    const auto gone  = grid.CurCellChange.subscribe([&](int, int) { grid.setRowCount(1); });
    EXPECT_EQ(grid.select({3, 4}), UserDoor::refused);
    EXPECT_THAT(grid.SelectedRows(), IsEmpty());
    grid.setRowCount(3);
    EXPECT_EQ(grid.clickCell(3, 1), UserDoor::done);
    EXPECT_EQ(grid.CurRow(), 0);
    grid.blur();
}

TEST_F(AGridInUse, ACommittedEditMayTakeTheNextRowAway)
{
    ASSERT_EQ(grid.typeCell(1, 1, "x"), UserDoor::done);
    const auto gone = grid.AfterCommitEdit.subscribe([&](int, int) { grid.setRowCount(2); });
    EXPECT_EQ(grid.moveTo(5, 1), UserDoor::refused);
    EXPECT_EQ(grid.CurRow(), 1);
}

// --- User's door: folding ------------------------------------------------------------------------

TEST_F(AGridInUse, TheUserFoldsWhatHasChildren)
{
    EXPECT_EQ(grid.expand(1, false), UserDoor::done);
    EXPECT_FALSE(grid.RowExpanded(1));
    EXPECT_EQ(grid.expand(1, true), UserDoor::done);
    EXPECT_TRUE(grid.RowExpanded(1));
    EXPECT_EQ(grid.expand(4, false), UserDoor::refused) << "no children";
    EXPECT_EQ(grid.expand(9, false), UserDoor::refused);
    EXPECT_EQ(grid.expand(0, false), UserDoor::refused);
    grid.setRowVisible(1, false);
    EXPECT_EQ(grid.expand(1, false), UserDoor::refused);
    EXPECT_THAT(heard, IsEmpty());
}

TEST_F(AGridInUse, ACursorThatIsFoldedInComesToTheRow)
{
    grid.AddRow(2);
    grid.setCurCell(3, 1);
    EXPECT_EQ(grid.expand(1, false), UserDoor::done);
    EXPECT_EQ(grid.CurRow(), 1);
    EXPECT_THAT(grid.SelectedRows(), ElementsAre(1));
    EXPECT_THAT(heard, ElementsAre("cursor 1,1"));
    grid.setCurCell(5, 1);
    EXPECT_EQ(grid.expand(1, true), UserDoor::done);
    EXPECT_EQ(grid.expand(1, false), UserDoor::done);
    EXPECT_EQ(grid.CurRow(), 5) << "outside the branch";
}

// --- User's door: editing ------------------------------------------------------------------------

TEST_F(AGridInUse, TypingAsksOnceAndACommitPutsTheTextIn)
{
    EXPECT_EQ(grid.typeCell(4, 2, "1"), UserDoor::done);
    EXPECT_EQ(grid.typeCell(4, 2, "12"), UserDoor::done);
    EXPECT_EQ(grid.EditRow(), 4);
    EXPECT_EQ(grid.EditCol(), 2);
    EXPECT_EQ(grid.EditText(), "12");
    EXPECT_EQ(grid.cell(4, 2).Text, "");
    EXPECT_EQ(grid.commitEdit(), UserDoor::done);
    EXPECT_EQ(grid.cell(4, 2).Text, "12");
    EXPECT_EQ(grid.EditRow(), 0);
    EXPECT_THAT(heard, ElementsAre("cursor 4,2", "request 4,2", "typing 4,2", "typing 4,2",
                                   "changed 4,2", "committed 4,2"));
    EXPECT_EQ(grid.commitEdit(), UserDoor::refused) << "nothing is open";
}

TEST_F(AGridInUse, ACellThatIsOpenedShowsItsTextAndIsClosedAsItWas)
{
    EXPECT_EQ(grid.beginEdit(4, 1), UserDoor::done);
    EXPECT_EQ(grid.EditText(), "row 4");
    EXPECT_EQ(grid.beginEdit(4, 1), UserDoor::done) << "open already";
    EXPECT_EQ(grid.commitEdit(), UserDoor::done);
    EXPECT_EQ(grid.EditRow(), 0);
    EXPECT_EQ(grid.cell(4, 1).Text, "row 4");
    EXPECT_THAT(heard, ElementsAre("cursor 4,1", "request 4,1"));
    heard.clear();
    EXPECT_EQ(grid.beginEdit(4, 1), UserDoor::done);
    EXPECT_EQ(grid.typeCell(4, 1, "row 4"), UserDoor::done);
    EXPECT_EQ(grid.commitEdit(), UserDoor::done);
    EXPECT_THAT(heard, ElementsAre("request 4,1", "typing 4,1", "changed 4,1", "committed 4,1"))
        << "typed, if only the same";
}

TEST_F(AGridInUse, ACancelledEditChangesNothing)
{
    grid.typeCell(4, 1, "x");
    const Told told(grid);
    grid.cancelEdit();
    EXPECT_THAT(told.lines, ElementsAre("changed 3-3 col 0"));
    EXPECT_EQ(grid.cell(4, 1).Text, "row 4");
    EXPECT_EQ(grid.EditRow(), 0);
    EXPECT_EQ(grid.EditText(), "");
    grid.cancelEdit();
    EXPECT_EQ(told.lines.size(), 1U);
    EXPECT_THAT(heard, ElementsAre("cursor 4,1", "request 4,1", "typing 4,1"));
}

TEST_F(AGridInUse, AHandlerCanKeepTheUserFromEditing)
{
    barred = true;
    EXPECT_EQ(grid.typeCell(4, 1, "x"), UserDoor::refused);
    EXPECT_EQ(grid.edit(4, 1, "x"), UserDoor::refused);
    EXPECT_EQ(grid.edit(4, 1, 5), UserDoor::refused);
    EXPECT_EQ(grid.beginEdit(4, 1), UserDoor::refused);
    EXPECT_EQ(grid.EditRow(), 0);
    EXPECT_EQ(grid.cell(4, 1).Text, "row 4");
    EXPECT_THAT(heard, ElementsAre("cursor 4,1", "request 4,1", "request 4,1", "request 4,1",
                                   "request 4,1"));
}

TEST_F(AGridInUse, ACellOrAGridThatIsClosedIsNotEditedAndNobodyIsAsked)
{
    grid.setCellEditable(4, 1, false);
    EXPECT_EQ(grid.edit(4, 1, "x"), UserDoor::refused);
    EXPECT_EQ(grid.edit(4, 1, 1), UserDoor::refused);
    grid.Editable = false;
    EXPECT_EQ(grid.edit(5, 1, "x"), UserDoor::refused);
    EXPECT_EQ(grid.beginEdit(5, 1), UserDoor::refused);
    EXPECT_THAT(heard, IsEmpty());
    EXPECT_EQ(grid.CurRow(), 0);
}

TEST_F(AGridInUse, ACellThatIsClosedWhileItIsOpenTakesNoMore)
{
    ASSERT_EQ(grid.typeCell(4, 1, "x"), UserDoor::done);
    grid.setCellEditable(4, 1, false);
    EXPECT_EQ(grid.typeCell(4, 1, "xy"), UserDoor::refused);
    EXPECT_EQ(grid.EditText(), "x");
    grid.setCellEditable(4, 1, true);
    grid.Enabled = false;
    EXPECT_EQ(grid.typeCell(4, 1, "xy"), UserDoor::refused);
    EXPECT_EQ(grid.commitEdit(), UserDoor::refused);
    EXPECT_EQ(grid.EditRow(), 0);
    EXPECT_EQ(grid.cell(4, 1).Text, "row 4");
}

TEST_F(AGridInUse, AHandlerThatClosesTheCellWhenItIsEnteredIsHeeded)
{
    const auto closes = grid.CurCellChange.subscribe(
        [&](int row, int col) { grid.setCellEditable(row, col, false); });
    EXPECT_EQ(grid.edit(4, 1, "x"), UserDoor::refused);
    EXPECT_EQ(grid.cell(4, 1).Text, "row 4");
}

TEST_F(AGridInUse, AnEditOfAnotherCellIsCommittedFirst)
{
    grid.typeCell(4, 1, "x");
    heard.clear();
    grid.typeCell(5, 1, "y");
    EXPECT_EQ(grid.cell(4, 1).Text, "x");
    EXPECT_THAT(heard, ElementsAre("changed 4,1", "committed 4,1", "cursor 5,1", "request 5,1",
                                   "typing 5,1"));
    heard.clear();
    EXPECT_EQ(grid.moveTo(1, 1), UserDoor::done);
    EXPECT_EQ(grid.cell(5, 1).Text, "y");
    EXPECT_EQ(grid.EditRow(), 0);
    EXPECT_THAT(heard, ElementsAre("changed 5,1", "committed 5,1", "cursor 1,1"));
}

TEST_F(AGridInUse, AHandlerOfTheCommitMayPutTheOldTextBack)
{
    const auto back = grid.AfterCommitEdit.subscribe(
        [&](int row, int col) { grid.setCellText(row, col, "old"); });
    EXPECT_EQ(grid.edit(4, 1, "new"), UserDoor::done);
    EXPECT_EQ(grid.cell(4, 1).Text, "old");
}

TEST_F(AGridInUse, ADropDownTakesTheTextsOfItsList)
{
    grid.AddCombo("units");
    grid.AddComboItem("units", {"bar", 7});
    grid.AddComboItem("units", {"psi", 9});
    grid.setCellList(4, 2, "units");
    EXPECT_EQ(grid.edit(4, 2, "psi"), UserDoor::done);
    EXPECT_EQ(grid.cell(4, 2).Text, "psi");
    EXPECT_EQ(grid.cell(4, 2).Value, 9);
    EXPECT_THAT(heard, ElementsAre("cursor 4,2", "request 4,2", "typing 4,2", "changed 4,2",
                                   "committed 4,2"));
    heard.clear();
    EXPECT_EQ(grid.edit(4, 2, "kg"), UserDoor::refused);
    EXPECT_EQ(grid.cell(4, 2).Text, "psi");
    EXPECT_EQ(grid.EditRow(), 0) << "dropped";
    EXPECT_THAT(heard, ElementsAre("request 4,2", "typing 4,2"));
    heard.clear();
    EXPECT_EQ(grid.edit(4, 2, 7), UserDoor::done);
    EXPECT_EQ(grid.cell(4, 2).Text, "bar");
    EXPECT_EQ(grid.cell(4, 2).Value, 7);
    EXPECT_THAT(heard, ElementsAre("request 4,2", "changed 4,2", "committed 4,2"));
    EXPECT_EQ(grid.edit(4, 2, 8), UserDoor::refused);
    EXPECT_EQ(grid.cell(4, 2).Value, 7);
}

TEST_F(AGridInUse, ADropDownMayGetItsListWhenTheCursorComes)
{
    const auto list = grid.CurCellChange.subscribe([&](int row, int col) {
        grid.ClearCombo("late");
        grid.AddComboItem("late", {"one", 1});
        grid.setCellList(row, col, "late");
    });
    EXPECT_EQ(grid.edit(4, 2, "two"), UserDoor::refused);
    EXPECT_EQ(grid.edit(4, 2, "one"), UserDoor::done);
    EXPECT_EQ(grid.cell(4, 2).Value, 1);
}

TEST_F(AGridInUse, ACheckCellIsSwitchedByAClickAndTakesNothingElse)
{
    grid.setCellKind(4, 2, Grid::CellKind::check);
    EXPECT_EQ(grid.clickCell(4, 2), UserDoor::done);
    EXPECT_EQ(grid.cell(4, 2).Value, 1);
    EXPECT_THAT(heard, ElementsAre("cursor 4,2", "request 4,2", "changed 4,2", "committed 4,2",
                                   "click 4,2"));
    EXPECT_EQ(grid.clickCell(4, 2), UserDoor::done);
    EXPECT_EQ(grid.cell(4, 2).Value, 0);
    EXPECT_EQ(grid.edit(4, 2, 1), UserDoor::done);
    EXPECT_EQ(grid.edit(4, 2, 2), UserDoor::refused);
    EXPECT_EQ(grid.cell(4, 2).Value, 1);
    EXPECT_EQ(grid.edit(4, 2, "0"), UserDoor::done);
    EXPECT_EQ(grid.edit(4, 2, "yes"), UserDoor::refused);
    EXPECT_EQ(grid.cell(4, 2).Value, 0);
    EXPECT_EQ(grid.EditRow(), 0);
    grid.blur();
}

TEST_F(AGridInUse, ACheckCellThatIsClosedIsClickedButNotSwitched)
{
    grid.setCellKind(4, 2, Grid::CellKind::check);
    grid.setCellEditable(4, 2, false);
    EXPECT_EQ(grid.clickCell(4, 2), UserDoor::done);
    EXPECT_EQ(grid.cell(4, 2).Value, std::nullopt);
    EXPECT_THAT(heard, ElementsAre("cursor 4,2", "click 4,2"));
    grid.blur();
}

TEST_F(AGridInUse, ANumberForAPlainCellIsItsText)
{
    EXPECT_EQ(grid.edit(4, 2, -12), UserDoor::done);
    EXPECT_EQ(grid.cell(4, 2).Text, "-12");
    EXPECT_EQ(grid.cell(4, 2).Value, std::nullopt);
}

TEST_F(AGridInUse, ANumberInTheMiddleOfTypingTakesTheCellOver)
{
    grid.typeCell(4, 2, "ha");
    EXPECT_EQ(grid.edit(4, 2, 3), UserDoor::done);
    EXPECT_EQ(grid.cell(4, 2).Text, "3");
    EXPECT_EQ(grid.EditRow(), 0);
    EXPECT_THAT(heard, ElementsAre("cursor 4,2", "request 4,2", "typing 4,2", "changed 4,2",
                                   "committed 4,2"));
}

TEST_F(AGridInUse, ARowThatIsHiddenWhileItIsEditedKeepsItsText)
{
    grid.typeCell(4, 1, "x");
    grid.setRowVisible(4, false);
    EXPECT_EQ(grid.commitEdit(), UserDoor::refused);
    EXPECT_EQ(grid.cell(4, 1).Text, "row 4");
    EXPECT_EQ(grid.EditRow(), 0);
}

} // namespace
} // namespace quill::platform
