// What the program does with a grid, and what a renderer is told of it.

#include "grid_fixture.h"

#include "platform/pictures.h"
#include "support/failure_of.h"

namespace quill::platform {
namespace {

using quill::test::failureOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

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

} // namespace
} // namespace quill::platform
