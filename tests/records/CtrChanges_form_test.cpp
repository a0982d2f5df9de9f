#include "changes_fixture.h"

namespace quill::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

TEST_F(CtrChangesTest, TheDesignIsAsToldAndTheHeadingsAreTheLabels)
{
    CtrChanges fresh;
    EXPECT_EQ(fresh.lblTitle.Caption.get(), "Confirm changes");
    EXPECT_EQ(fresh.cmdDownload.Caption.get(), "Accept");
    EXPECT_EQ(fresh.access(), "writeOffline");
    EXPECT_TRUE(fresh.lstChanges.CheckBoxes);
    ASSERT_THAT(fresh.lstChanges.ColumnHeaders(), SizeIs(3));
    EXPECT_EQ(fresh.lstChanges.ColumnHeaders()[0].Text, "Parameter");
    EXPECT_EQ(fresh.lstChanges.ColumnHeaders()[1].Text, "Old value");
    EXPECT_EQ(fresh.lstChanges.ColumnHeaders()[2].Text, "New value");
    ASSERT_THAT(fresh.changes().rows, SizeIs(1));
    EXPECT_EQ(fresh.changes().rows[0], nullptr);
}

TEST_F(CtrChangesTest, NothingLiesOverTheWidgetsAndNothingOverlaps)
{
    dialog.resize(12000, 9000);
    std::vector<Widget*> shown{&dialog.lblTitle,   &dialog.lstChanges,  &dialog.chkChanges,
                               &dialog.lblChanges, &dialog.cmdDownload, &dialog.cmdClear,
                               &dialog.cmdClose};
    for (Widget* a : shown) {
        EXPECT_LT(a->ZPosition.get(), dialog.ctrTBLaunchedPanel.ZPosition.get());
        EXPECT_GE(a->Left.get(), 0);
        EXPECT_LE(a->Left + a->Width, 12000);
        EXPECT_LE(a->Top + a->Height, 9000);
        for (Widget* b : shown) {
            const bool apart = a == b || a->Left + a->Width <= b->Left ||
                               b->Left + b->Width <= a->Left || a->Top + a->Height <= b->Top ||
                               b->Top + b->Height <= a->Top;
            EXPECT_TRUE(apart) << a->Name << " " << b->Name;
        }
    }
    EXPECT_EQ(dialog.ctrTBLaunchedPanel.Width.get(), 12000);
    std::int32_t columns = 0;
    for (const auto& header : dialog.lstChanges.ColumnHeaders()) {
        columns += header.Width;
    }
    EXPECT_LE(columns, dialog.lstChanges.Width.get());
}

TEST_F(CtrChangesTest, TheColumnsShareAListOfAnyWidth)
{
    for (const std::int32_t width : {9000, 100000000, 2147483647}) {
        dialog.resize(width, 9000);
        const auto& headers = dialog.lstChanges.ColumnHeaders();
        EXPECT_GT(headers[0].Width, headers[1].Width) << width;
        EXPECT_GT(headers[1].Width, 0) << width;
        EXPECT_EQ(headers[1].Width, headers[2].Width) << width;
        EXPECT_EQ(headers[0].Width + headers[1].Width + headers[2].Width,
                  dialog.lstChanges.Width - 240)
            << width;
    }
}

TEST_F(CtrChangesTest, LocalizeTakesTheTextOfEachTag)
{
    EXPECT_EQ(dialog.lblTitle.Caption.get(), "t:changeConfirm");
    EXPECT_EQ(dialog.lblChanges.Caption.get(), "t:showAllParameters");
    EXPECT_EQ(dialog.cmdDownload.Caption.get(), "t:accept");
    EXPECT_EQ(dialog.cmdClear.Caption.get(), "t:unSelect");
    EXPECT_EQ(dialog.cmdClose.Caption.get(), "t:close");
    EXPECT_EQ(dialog.chkChanges.Caption.get(), "");
    EXPECT_EQ(dialog.lstChanges.ColumnHeaders()[0].Text, "t:parameter");
    EXPECT_EQ(dialog.lstChanges.ColumnHeaders()[1].Text, "t:valueOld");
    EXPECT_EQ(dialog.lstChanges.ColumnHeaders()[2].Text, "t:valueNew");
    EXPECT_THAT(dialog.captions(),
                ElementsAre(std::pair<const std::string, std::string>{"accept", "t:accept"},
                            std::pair<const std::string, std::string>{"download", "t:download"}));
}

TEST_F(CtrChangesTest, AnotherLanguageReplacesTheStoredTexts)
{
    translator.prefix = "fi:";
    dialog.Localize(translator);
    host.ViewSetCommunicationMode.raise(kOnline);
    EXPECT_EQ(dialog.cmdDownload.Caption.get(), "fi:download");
    translator.prefix = "de:";
    dialog.Localize(translator);
    EXPECT_EQ(dialog.cmdDownload.Caption.get(), "de:download") << "by its tag";
}

TEST_F(CtrChangesTest, OneTextThatFailsCostsOneText)
{
    translator.prefix     = "u:";
    translator.failingKey = "unSelect";
    dialog.Localize(translator);
    EXPECT_EQ(dialog.cmdClear.Caption.get(), "t:unSelect");
    EXPECT_EQ(dialog.cmdClose.Caption.get(), "u:close");
    EXPECT_THAT(host.errors(), ElementsAre("ReportError(CtrChanges: ILocalizable_Localize, 5, "
                                           "Invalid procedure call or argument)"));
}

TEST_F(CtrChangesTest, AColumnThatIsGoneCostsItsHeading)
{
    dialog.lstChanges.setColumnHeaders({{"Only", "", 100}});
    dialog.Localize(translator);
    EXPECT_EQ(dialog.lstChanges.ColumnHeaders()[0].Text, "t:parameter");
    EXPECT_THAT(host.errors(), ElementsAre(HasSubstr("CtrChanges: ILocalizable_Localize, 9, "),
                                           HasSubstr("CtrChanges: ILocalizable_Localize, 9, ")));
}

} // namespace
} // namespace quill::test
