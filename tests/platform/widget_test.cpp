// What all widgets have in common: properties, containers, focus, keys, and the two doors.

#include "platform/failure.h"
#include "platform/widgets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace quill::platform {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Form : Control {
    using Control::Control;
    Label         lblName{*this, {.Name = "lblName", .Caption = "Name"}};
    TextBox       txtName{*this, {.Name = "txtName", .Caption = "Anna"}};
    Frame         frmMore{*this, {.Name = "frmMore"}};
    CommandButton cmdGo{frmMore, {.Name = "cmdGo", .Caption = "Go"}};
    OptionButton  optA{frmMore, {.Name = "optA"}};
    OptionButton  optB{frmMore, {.Name = "optB"}};
    OptionButton  optOther{*this, {.Name = "optOther"}};
    CheckBox      chkOn{*this, {.Name = "chkOn"}};
};

TEST(WidgetTest, AnAssignmentIsToldOnceAndOnlyIfTheValueIsAnother)
{
    Form form;
    int  told            = 0;
    auto watch           = form.lblName.Changed.subscribe([&](const WidgetChange& change) {
        EXPECT_EQ(change.property, &form.lblName.Caption);
        ++told;
    });
    form.lblName.Caption = "Name";
    EXPECT_EQ(told, 0);
    form.lblName.Caption = "First name";
    EXPECT_EQ(told, 1);
    EXPECT_EQ(form.lblName.Caption.get(), "First name");
}

TEST(WidgetTest, TheFormListsItsWidgetsFlatAndInFormOrder)
{
    Form form;
    EXPECT_THAT(form.Widgets(),
                ElementsAre(&form.lblName, &form.txtName, &form.frmMore, &form.cmdGo, &form.optA,
                            &form.optB, &form.optOther, &form.chkOn));
    EXPECT_EQ(form.cmdGo.Container(), &form.frmMore);
    EXPECT_EQ(form.cmdGo.Owner(), &form);
}

TEST(WidgetTest, TheInsidesOfAChildControlAreNotListed)
{
    Control page;
    Form    form{page};
    EXPECT_THAT(page.Widgets(), ElementsAre(&form));
    EXPECT_EQ(form.Owner(), &page);
}

TEST(WidgetTest, AWidgetThatDiesLeavesTheList)
{
    Control page;
    {
        Label label{page};
        EXPECT_EQ(page.Widgets().size(), 1U);
    }
    EXPECT_THAT(page.Widgets(), IsEmpty());
}

TEST(WidgetTest, AFormOrFrameMayDieBeforeWhatItHolds)
{
    auto  page  = std::make_unique<Control>();
    auto  frame = std::make_unique<Frame>(*page, Design{.Name = "frame"});
    Label label{*frame, {.Name = "label"}};
    frame.reset();
    EXPECT_EQ(label.Container(), page.get());
    page.reset();
    EXPECT_EQ(label.Container(), nullptr);
    EXPECT_EQ(label.Owner(), nullptr);
}

TEST(WidgetTest, TheUsersDoorIsShutOnWhatIsDisabledOrInvisibleHoweverFarUp)
{
    Form form;
    EXPECT_EQ(form.cmdGo.click(), UserDoor::done);
    form.frmMore.Enabled = false;
    EXPECT_EQ(form.cmdGo.click(), UserDoor::refused);
    form.frmMore.Enabled = true;
    form.Visible         = false;
    EXPECT_EQ(form.cmdGo.click(), UserDoor::refused);
    EXPECT_EQ(form.txtName.type("x"), UserDoor::refused);
    EXPECT_EQ(form.lblName.click(), UserDoor::refused);
    EXPECT_EQ(form.cmdGo.press(kKeyEscape), UserDoor::refused);
    EXPECT_EQ(form.txtName.Text.get(), "Anna");
}

TEST(WidgetTest, FocusGoesFromOneToTheOtherWithBothEvents)
{
    Form                     form;
    std::vector<std::string> heard;
    auto                     a = form.txtName.LostFocus.subscribe([&] { heard.push_back("lost"); });
    auto                     b = form.cmdGo.GotFocus.subscribe([&] { heard.push_back("got"); });
    form.txtName.focus();
    EXPECT_TRUE(form.txtName.HasFocus());
    EXPECT_TRUE(form.HasFocus());
    form.cmdGo.focus();
    EXPECT_THAT(heard, ElementsAre("lost", "got"));
    EXPECT_FALSE(form.txtName.HasFocus());
    EXPECT_TRUE(form.frmMore.HasFocus());
    form.cmdGo.blur();
    EXPECT_EQ(Widget::focused(), nullptr);
}

TEST(WidgetTest, AControlHearsOfTheFocusOnlyWhenItComesOrGoesAsAWhole)
{
    Control page;
    Form    form{page};
    TextBox outside{page};
    int     got = 0, lost = 0;
    auto    a = form.GotFocus.subscribe([&] { ++got; });
    auto    b = form.LostFocus.subscribe([&] { ++lost; });
    form.txtName.focus();
    form.cmdGo.focus();
    EXPECT_EQ(got, 1);
    EXPECT_EQ(lost, 0);
    outside.focus();
    EXPECT_EQ(lost, 1);
}

TEST(WidgetTest, AControlHandsTheFocusToItsFirstWidgetWithinReach)
{
    Form form;
    form.focus();
    EXPECT_TRUE(form.txtName.HasFocus());
    form.txtName.Enabled = false;
    EXPECT_FALSE(form.txtName.HasFocus()); // who is disabled cannot keep it
    form.focus();
    EXPECT_TRUE(form.cmdGo.HasFocus());
}

TEST(WidgetTest, TheProgramCannotFocusWhatCannotTakeIt)
{
    Form form;
    form.txtName.Visible = false;
    EXPECT_THROW(form.txtName.SetFocus(), Failure);
}

TEST(WidgetTest, AHandlerMayMoveTheFocusOn)
{
    Form form;
    int  got   = 0;
    auto move  = form.txtName.LostFocus.subscribe([&] { form.chkOn.focus(); });
    auto watch = form.cmdGo.GotFocus.subscribe([&] { ++got; });
    form.txtName.focus();
    form.cmdGo.focus();
    EXPECT_TRUE(form.chkOn.HasFocus());
    EXPECT_EQ(got, 0);
}

TEST(WidgetTest, AHandlerMayDestroyWhatTheFocusLeaves)
{
    Control page;
    auto    doomed = std::make_unique<TextBox>(page);
    TextBox other{page};
    auto    kill = doomed->LostFocus.subscribe([&] { doomed.reset(); });
    doomed->focus();
    other.focus();
    EXPECT_EQ(doomed, nullptr);
    EXPECT_TRUE(other.HasFocus());
}

TEST(WidgetTest, AKeyClimbsUntilSomebodyTakesIt)
{
    Form                     form;
    std::vector<std::string> heard;
    auto a = form.cmdGo.KeyDown.subscribe([&](KeyPress&) { heard.push_back("button"); });
    auto b = form.frmMore.KeyDown.subscribe([&](KeyPress& key) {
        heard.push_back("frame");
        key.handled = key.code == kKeyReturn;
    });
    auto c = form.KeyDown.subscribe([&](KeyPress&) { heard.push_back("form"); });
    auto d = form.KeyUp.subscribe([&](KeyPress&) { heard.push_back("up"); });
    form.cmdGo.press(kKeyReturn);
    EXPECT_THAT(heard, ElementsAre("button", "frame"));
    heard.clear();
    form.cmdGo.press(kKeyEscape);
    EXPECT_THAT(heard, ElementsAre("button", "frame", "form", "up"));
}

TEST(WidgetTest, AKeyHandlerMayDestroyTheForm)
{
    auto form = std::make_unique<Form>();
    auto kill = form->txtName.KeyDown.subscribe([&](KeyPress&) { form.reset(); });
    form->txtName.press(kKeyEscape);
    EXPECT_EQ(form, nullptr);
}

TEST(WidgetTest, ComingUpAndGoingIsToldThroughEitherDoor)
{
    Form form{Design{.Visible = false}};
    int  shown = 0, hidden = 0;
    auto a = form.Show.subscribe([&] { ++shown; });
    auto b = form.Hide.subscribe([&] { ++hidden; });
    form.show();
    EXPECT_EQ(shown, 1);
    form.show(); // shown again
    EXPECT_EQ(shown, 2);
    form.Visible = false;
    form.Visible = true;
    EXPECT_EQ(shown, 3);
    form.hide();
    EXPECT_EQ(hidden, 2);
}

TEST(WidgetTest, ZOrderBringsAWidgetToTheFrontOfItsContainer)
{
    Control page;
    Frame   a{page}, b{page}, c{page};
    a.ZOrder();
    b.ZOrder();
    EXPECT_EQ(b.ZPosition.get(), 0);
    EXPECT_GT(a.ZPosition.get(), 0);
    EXPECT_GT(c.ZPosition.get(), a.ZPosition.get());
}

TEST(WidgetTest, EveryPropertyIsShownByName)
{
    struct Names : PropertyVisitor {
        std::vector<std::string> names;
        void visit(const char* name, Property<bool>&) override { names.emplace_back(name); }
        void visit(const char* name, Property<std::int32_t>&) override { names.emplace_back(name); }
        void visit(const char* name, Property<Color>&) override { names.emplace_back(name); }
        void visit(const char* name, Property<double>&) override { names.emplace_back(name); }
        void visit(const char* name, Property<std::string>&) override { names.emplace_back(name); }
        void visit(const char* name, const Getter&, const Setter&) override
        {
            names.emplace_back(name);
        }
    };
    Form  form;
    Names names;
    form.txtName.visit(names);
    for (const char* name : {"Text", "SelStart", "SelLength", "MaxLength", "Alignment", "Locked",
                             "Left", "Top", "Width", "Height", "Visible", "Enabled", "Tag",
                             "ToolTipText", "ForeColor", "BackColor", "HasFocus", "TabStop"}) {
        EXPECT_THAT(names.names, testing::Contains(name));
    }
}

// --- The kinds --------------------------------------------------------------------------------

TEST(TextBoxTest, TheProgramsTextPutsTheCursorToTheStartAndIsNeverCut)
{
    Control page;
    TextBox box{page};
    int     changes = 0;
    auto    watch   = box.Change.subscribe([&] { ++changes; });
    box.MaxLength   = 2;
    box.Text        = "längst";
    EXPECT_EQ(box.Text.get(), "längst");
    EXPECT_EQ(box.SelStart.get(), 0);
    box.Text = "längst";
    EXPECT_EQ(changes, 1);
}

TEST(TextBoxTest, TypingPutsTheCursorBehindAndObeysTheMaximalLength)
{
    Control      page;
    TextBox      box{page};
    std::int32_t atChange = -1;
    auto         watch    = box.Change.subscribe([&] { atChange = box.SelStart; });
    box.MaxLength         = 3;
    EXPECT_EQ(box.type("äöüß"), UserDoor::done);
    EXPECT_EQ(box.Text.get(), "äöü");
    EXPECT_EQ(box.SelStart.get(), 3);
    EXPECT_EQ(atChange, 3); // the handler sees the cursor where the user sees it
    box.Locked = true;
    EXPECT_EQ(box.type("x"), UserDoor::refused);
}

TEST(ButtonTest, AClickMovesTheFocusAndIsTheUsersOnly)
{
    Form form;
    int  clicks      = 0;
    auto a           = form.chkOn.Click.subscribe([&] { ++clicks; });
    form.chkOn.Value = 1;
    EXPECT_EQ(clicks, 0);
    form.chkOn.click();
    EXPECT_EQ(form.chkOn.Value.get(), 0);
    EXPECT_EQ(clicks, 1);
    EXPECT_TRUE(form.chkOn.HasFocus());
}

TEST(ButtonTest, OneOptionOfAContainerIsChosen)
{
    Form form;
    form.optOther.Value = true;
    form.optA.click();
    form.optB.click();
    EXPECT_FALSE(form.optA.Value);
    EXPECT_TRUE(form.optB.Value);
    EXPECT_TRUE(form.optOther.Value); // of another container
}

TEST(ComboBoxTest, OnlyTheUsersChoiceIsAClickAlsoOnTheSameRow)
{
    Control  page;
    ComboBox box{page};
    int      clicks = 0;
    auto     watch  = box.Click.subscribe([&] { ++clicks; });
    box.AddItem("one", 11);
    box.AddItem("two", 22);
    box.setListIndex(1);
    EXPECT_EQ(box.Text(), "two");
    EXPECT_EQ(clicks, 0);
    box.choose(1);
    box.choose(0);
    EXPECT_EQ(clicks, 2);
    EXPECT_THAT(box.ItemData(), ElementsAre(11, 22));
    EXPECT_EQ(box.choose(2), UserDoor::refused);
    box.Locked = true;
    EXPECT_EQ(box.choose(1), UserDoor::refused);
}

TEST(ComboBoxTest, ARowOutsideIsAFailureAndATextOutsideTheListNeedsAnEditableBox)
{
    Control  page;
    ComboBox box{page};
    box.AddItem("one");
    EXPECT_THROW(box.setListIndex(1), Failure);
    EXPECT_THROW(box.setListIndex(-2), Failure);
    EXPECT_THROW(box.setText("three"), Failure);
    EXPECT_EQ(box.type("three"), UserDoor::refused);
    box.Editable = true;
    EXPECT_EQ(box.type("three"), UserDoor::done);
    EXPECT_EQ(box.Text(), "three");
    EXPECT_EQ(box.ListIndex(), -1);
    box.Clear();
    EXPECT_EQ(box.Text(), "");
}

TEST(DatePickerTest, PicksWithinItsLimitsAndKeepsWhatTheTextLeavesOut)
{
    Control    page;
    DatePicker picker{page};
    int        changes = 0;
    auto       watch   = picker.Change.subscribe([&] { ++changes; });
    picker.setValue({2024, 5, 6, 7, 8, 9});
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(picker.pick("2024-06-01"), UserDoor::done);
    EXPECT_EQ(toIso(picker.Value()), "2024-06-01 07:08:09");
    EXPECT_EQ(picker.pick("10:11"), UserDoor::done);
    EXPECT_EQ(toIso(picker.Value()), "2024-06-01 10:11:00");
    picker.setMaxDate({2024, 12, 31});
    EXPECT_EQ(picker.pick("2025-01-01"), UserDoor::refused);
    EXPECT_EQ(picker.pick("31.12.2024"), UserDoor::refused);
    EXPECT_EQ(changes, 2);
    EXPECT_THROW(picker.setValue({2025, 1, 1}), Failure);
    EXPECT_THROW(picker.setMinDate({2025, 1, 1}), Failure);
}

TEST(ListViewTest, RowsAreChangedByRangeAndCheckedByTheUser)
{
    Control          page;
    ListView         list{page};
    std::vector<int> checked;
    int              resets = 0, inserted = 0, changed = 0;
    auto             a = list.ItemCheck.subscribe([&](int row) { checked.push_back(row); });
    auto             b = list.Changed.subscribe([&](const WidgetChange& change) {
        resets += change.what == WidgetChange::What::reset ? 1 : 0;
        inserted += change.what == WidgetChange::What::rowsInserted ? 1 : 0;
        changed += change.what == WidgetChange::What::rowsChanged ? 1 : 0;
    });
    list.Add({.Text = "a"});
    list.Add({.Text = "b"});
    EXPECT_EQ(inserted, 2);
    EXPECT_EQ(list.check(2, true), UserDoor::refused); // no check boxes yet
    list.CheckBoxes = true;
    EXPECT_EQ(list.check(2, true), UserDoor::done);
    EXPECT_EQ(list.check(2, true), UserDoor::done); // nothing new
    list.setChecked(1, true);
    EXPECT_THAT(checked, ElementsAre(2));
    EXPECT_EQ(changed, 2);
    EXPECT_EQ(resets, 0);
    EXPECT_THROW((void)list.Item(0), Failure);
    EXPECT_THROW((void)list.Item(3), Failure);
}

TEST(ListViewTest, SelectsManyOnlyWhereItMay)
{
    Control  page;
    ListView list{page};
    list.Add({.Text = "a"});
    list.Add({.Text = "b"});
    EXPECT_EQ(list.select({1, 2}), UserDoor::refused);
    list.MultiSelect = true;
    EXPECT_EQ(list.select({2, 1}), UserDoor::done);
    EXPECT_EQ(list.SelectedItem(), 2);
    EXPECT_TRUE(list.Item(1).Selected);
    EXPECT_EQ(list.select({3}), UserDoor::refused);
    EXPECT_EQ(list.select({}), UserDoor::done);
    EXPECT_EQ(list.SelectedItem(), 0);
}

TEST(MenuTest, OnlyAnEnabledItemCanBeChosen)
{
    Control          page;
    Menu             menu{page};
    std::vector<int> chosen;
    auto             watch = menu.Click.subscribe([&](int index) { chosen.push_back(index); });
    menu.setItems({{"Copy"}, {"Paste", false}});
    EXPECT_EQ(menu.click(0), UserDoor::done);
    EXPECT_EQ(menu.click(1), UserDoor::refused);
    EXPECT_EQ(menu.click(2), UserDoor::refused);
    EXPECT_THAT(chosen, ElementsAre(0));
}

} // namespace
} // namespace quill::platform
