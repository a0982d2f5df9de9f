// The check editor under real clicks and keys.
#include "editors/CtrCheckEdit.h"
#include "support/recording_messenger.h"
#include "support/recording_translator.h"
#include "support/test_documents.h"
#include "tests/qt/screen_test_support.h"

#include <QScrollBar>
#include <QTreeView>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quill::qt::test {
namespace {

using quill::test::RecordingMessenger;
using quill::test::RecordingTranslator;

constexpr const char* kAlarms = R"(<data:mappedParam name="alarms">)"
                                R"(<data:mapping value="1" name="lossOfSupply"/>)"
                                R"(<data:mapping value="2" name="feedback"/>)"
                                R"(<data:mapping value="4" name="local"/>)"
                                R"(<data:mapping value="8" name="wear"/>)"
                                R"(<data:mapping value="16" name="friction"/>)"
                                R"(<data:mapping value="32" name="leakage"/>)"
                                R"(<data:mapping value="64" name="pressure"/>)"
                                R"(<data:mapping value="128" name="temperature"/>)"
                                R"(</data:mappedParam>)";

struct ChecksPage : Page {
    platform::Label lblAlarms{*this,
                              {.Name    = "lblAlarms",
                               .Caption = "Alarms",
                               .Left    = 300,
                               .Top     = 300,
                               .Width   = 1200,
                               .Height  = 315}};
    CtrCheckEdit alarms{*this, {.Name = "alarms", .Tag = "ctr_alarms", .Left = 1800, .Top = 300}};

    RecordingMessenger  messenger;
    RecordingTranslator translator;
    IXMLDOMDocument     datafile = quill::test::datafile(
            R"(<data:parameter name="alarms" type="integerVal" value="5" access="readWrite" )"
                R"(synchronised="1"/>)",
            kAlarms);

    ChecksPage()
    {
        translator.texts["lossOfSupply"] = "Loss of supply air for longer than ten seconds";
        alarms.SetMessenger(&messenger);
        alarms.SetMappings(documents::findMappedParam(datafile, "alarms"));
        alarms.setOfflineData(documents::findParameter(datafile, "alarms"));
        alarms.Localize(translator);
    }
    ~ChecksPage() override { alarms.SetMessenger(nullptr); }
    ChecksPage(const ChecksPage&)            = delete;
    ChecksPage& operator=(const ChecksPage&) = delete;

    [[nodiscard]] std::string stored() const
    {
        return documents::attributeText(documents::findParameter(datafile, "alarms"), "value");
    }
};

TEST(CheckEditOnScreen, AllRowsAndTheirSignsAreSeenWithoutScrolling)
{
    ChecksPage  page;
    const Shown screen(page);
    auto* const tree = screen.as<QTreeView>(page.alarms.scgCheck);
    for (int row = 1; row <= page.alarms.scgCheck.RowCount(); ++row) {
        EXPECT_EQ(page.alarms.scgCheck.clickCell(row, 2), platform::UserDoor::done);
        settle();
        EXPECT_FALSE(tree->verticalScrollBar()->isVisible());
        EXPECT_FALSE(tree->horizontalScrollBar()->isVisible());
        EXPECT_EQ(tree->horizontalScrollBar()->value(), 0);
    }
}

TEST(CheckEditOnScreen, TheLongestTextIsReadWhole)
{
    ChecksPage           page;
    const Shown          screen(page);
    auto* const          tree = screen.as<QTreeView>(page.alarms.scgCheck);
    const QModelIndex    cell = tree->model()->index(0, 1);
    QStyleOptionViewItem option;
    option.initFrom(tree);
    option.features = QStyleOptionViewItem::HasCheckIndicator;
    EXPECT_EQ(cell.data().toString(), "Loss of supply air for longer than ten seconds");
    EXPECT_LE(tree->itemDelegate()->sizeHint(option, cell).width(), tree->columnWidth(1));
}

TEST(CheckEditOnScreen, TheSpaceBarChecksARow)
{
    ChecksPage  page;
    const Shown screen(page);
    screen[page.alarms.scgCheck]->setFocus();
    settle();
    screen.key(page.alarms.scgCheck, Qt::Key_Down);
    screen.key(page.alarms.scgCheck, Qt::Key_Space);
    EXPECT_EQ(page.stored(), "7");
    EXPECT_EQ(screen[page.alarms.scgCheck]->accessibleName(), "Alarms");
    screen.key(page.alarms.scgCheck, Qt::Key_Space);
    EXPECT_EQ(page.stored(), "5");
    EXPECT_FALSE(page.alarms.Modified());
}

} // namespace
} // namespace quill::qt::test
