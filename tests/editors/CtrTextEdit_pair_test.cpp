// Two editors that limit each other.

#include "text_editor_fixture.h"

namespace quill::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class PairTest : public TextEditorTest {
protected:
    PairTest()
    {
        document = datafile(parameterXml({{"name", "travel"}, {"value", "2"}, {"unit", ""}}) +
                            parameterXml({{"name", "high"}, {"value", "10"}, {"unit", ""}}));
        high.SetMessenger(&messenger);
        editor.setOfflineData(documents::findParameter(document, "travel"));
        high.setOfflineData(documents::findParameter(document, "high"));
        editor.setParameterPair(&high, "max", 1);
        messenger.clear();
    }
    CtrTextEdit high{page, {.Name = "high", .Tag = "ctr_high"}};
};

TEST_F(PairTest, LinksBothEditorsWithOneDistance)
{
    EXPECT_EQ(editor.pairMaxPartner(), &high);
    EXPECT_EQ(high.pairMinPartner(), &editor);
    EXPECT_EQ(editor.pairDifferenceMax(), 1);
    EXPECT_EQ(high.pairDifferenceMin(), 1);
}

TEST_F(PairTest, TheUpperLimitFollowsThePartnerWithEveryKeystroke)
{
    high.txtBox.type("10");
    EXPECT_EQ(editor.pairUpperLimit(), 9);
    high.txtBox.type("1");
    EXPECT_EQ(editor.pairUpperLimit(), 0);
    EXPECT_FALSE(editor.Correct()); // 2 is too near to 1
    high.txtBox.type("10");
    EXPECT_TRUE(editor.Correct());
    type("9.5");
    EXPECT_FALSE(editor.Correct());
    EXPECT_EQ(high.pairLowerLimit(), 10.5);
    EXPECT_FALSE(high.Correct());
}

TEST_F(PairTest, TheLowerLimitFollowsThePartnerToo)
{
    type("3");
    EXPECT_EQ(high.pairLowerLimit(), 4);
    messenger.clear();
    high.txtBox.type("3.5");
    EXPECT_FALSE(high.Correct());
    EXPECT_FALSE(editor.Correct()); // and this one is above 2.5
    EXPECT_THAT(states(), ElementsAre(state("editedError"), state("edited"), state("editedError")));
    editor.setEnabled(false);
    high.txtBox.type("3.6");
    EXPECT_TRUE(high.Correct());
}

TEST_F(PairTest, APartnersValueMustAlsoKeepItsOwnLimits)
{
    type("100.5");
    EXPECT_FALSE(editor.Correct());
    editor.setPairLimit(200, "max");
    EXPECT_FALSE(editor.Correct());
    editor.setEnabled(true);
    type("99");
    editor.setPairLimit(200, "max");
    EXPECT_TRUE(editor.Correct());
}

TEST_F(PairTest, ComparesInTheParametersUnit)
{
    messenger.converter = &converter;
    load();
    editor.setVisibleUnit("kPa");
    type("500");
    EXPECT_EQ(high.pairLowerLimit(), 6);
    editor.setPairLimit(7, "max");
    EXPECT_TRUE(editor.Correct()); // 5 bar, below 6
    editor.setPairLimit(5, "max");
    EXPECT_FALSE(editor.Correct());
}

TEST_F(PairTest, APartnerThatIsDisabledBlocksNothing)
{
    high.txtBox.type("10");
    high.setEnabled(false);
    type("50");
    EXPECT_TRUE(editor.Correct());
}

TEST_F(PairTest, AnEmptyOrWrongPartnerIsWrongOnceTheOtherMoves)
{
    high.txtBox.type("");
    EXPECT_TRUE(high.Correct());
    type("3");
    EXPECT_FALSE(high.Correct());
}

TEST_F(PairTest, ANewPartnerReplacesTheOldOneOnBothSides)
{
    CtrTextEdit other{page, {.Name = "other", .Tag = "ctr_other"}};
    editor.setParameterPair(&other, "max", 2);
    EXPECT_EQ(editor.pairMaxPartner(), &other);
    EXPECT_EQ(other.pairMinPartner(), &editor);
    EXPECT_EQ(high.pairMinPartner(), nullptr);
}

TEST_F(PairTest, TheSamePartnerAgainOnlyTakesTheNewDistance)
{
    editor.setParameterPair(&high, "max", 4);
    EXPECT_EQ(editor.pairDifferenceMax(), 4);
    EXPECT_EQ(high.pairDifferenceMin(), 1);
}

TEST_F(PairTest, UnsetLetsGoOnBothSides)
{
    editor.unsetParameterPair("min");
    EXPECT_EQ(editor.pairMaxPartner(), &high);
    editor.unsetParameterPair();
    EXPECT_EQ(editor.pairMaxPartner(), nullptr);
    EXPECT_EQ(high.pairMinPartner(), nullptr);
}

TEST_F(PairTest, APartnerThatDiesLetsGo)
{
    {
        CtrTextEdit other{page, {.Name = "other", .Tag = "ctr_other"}};
        editor.setParameterPair(&other, "min", 0);
        EXPECT_EQ(editor.pairMinPartner(), &other);
    }
    EXPECT_EQ(editor.pairMinPartner(), nullptr);
    type("4");
    EXPECT_TRUE(editor.Correct());
}

TEST_F(PairTest, NothingAsPartnerIsReported)
{
    editor.setParameterPair(nullptr, "max", 1);
    EXPECT_EQ(editor.pairMaxPartner(), nullptr);
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("TextEdit ctr_travel setParameterPair, 91")));
}

} // namespace
} // namespace quill::test
