// No text is cut off, in no language, on no page, on no screen.
#include "platform/buttons.h"
#include "platform/label.h"
#include "window_fixture.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QHeaderView>
#include <QLabel>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStyleOptionComboBox>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>

namespace quill::shell::test {

namespace {

class TextFits : public WindowTest, public testing::WithParamInterface<const char*> {
protected:
    TextFits()
    {
        window->setLanguage(GetParam());
        userInput::settle();
    }

    /// Every label, button and drop-down list of a form, those of its child controls included.
    void expectFits(qt::View& view, platform::Control& form)
    {
        view.flush();
        for (platform::Widget* widget : form.Widgets()) {
            if (auto* control = dynamic_cast<platform::Control*>(widget)) {
                expectFits(view, *control);
            }
            QWidget* const shown = view.shown(*widget);
            if (shown == nullptr || !widget->isShown()) {
                continue;
            }
            if (auto* label = dynamic_cast<platform::Label*>(widget)) {
                expectFits(*shown, label->Caption, static_cast<QLabel*>(shown)->text());
            } else if (auto* button = dynamic_cast<platform::ButtonBase*>(widget)) {
                expectFits(*shown, button->Caption, static_cast<QAbstractButton*>(shown)->text());
            } else if (auto* combo = dynamic_cast<platform::ComboBox*>(widget)) {
                expectFits(*static_cast<QComboBox*>(shown), *combo);
            }
            ++seen;
        }
    }
    static void expectFits(const QWidget& shown, const std::string& wanted, const QString& text)
    {
        EXPECT_EQ(text.toStdString(), wanted) << "shortened";
        EXPECT_GE(shown.width(), shown.fontMetrics().size(Qt::TextShowMnemonic, text).width())
            << wanted;
        EXPECT_GE(shown.height(), shown.fontMetrics().height()) << wanted;
        EXPECT_LE(shown.geometry().right(), shown.parentWidget()->width()) << wanted;
    }
    static void expectFits(const QComboBox& shown, const platform::ComboBox& combo)
    {
        QStyleOptionComboBox option;
        option.initFrom(&shown);
        const int room =
            shown.style()
                ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &shown)
                .width();
        for (const auto& entry : combo.List()) {
            EXPECT_GE(room, shown.fontMetrics().horizontalAdvance(QString::fromStdString(entry)))
                << entry;
        }
    }

    int seen = 0;
};

INSTANTIATE_TEST_SUITE_P(Languages, TextFits, testing::Values("English", "German", "Finnish"),
                         [](const auto& language) { return std::string(language.param); });

} // namespace

TEST_P(TextFits, OnEveryPageAlsoAfterARead)
{
    goOnline();
    ASSERT_TRUE(messenger().readAll());
    waitForDevice();
    for (const auto& page : window->book().pages()) {
        SCOPED_TRACE(page->Tag.get());
        window->showPage(page->Tag);
        userInput::settle();
        seen = 0;
        expectFits(window->view(), window->book());
        EXPECT_GT(seen, 10);
        for (platform::Widget* widget : page->Widgets()) {
            if (dynamic_cast<platform::Frame*>(widget) && widget->Container() == page.get()) {
                EXPECT_LE(widget->Left + widget->Width, window->book().Width);
            }
        }
    }
}

TEST_P(TextFits, InTheDialogOfChanges)
{
    window->command("changes")->trigger();
    userInput::settle();
    auto& dialog = window->changesDialog();
    ASSERT_TRUE(dialog.isVisible());
    expectFits(dialog.view(), dialog.control());
    EXPECT_GE(seen, 6);
    userInput::click(*dialog.view().shown(dialog.control().chkChanges));
    dialog.view().flush();
    auto& list = *static_cast<QTreeView*>(dialog.view().shown(dialog.control().lstChanges));
    EXPECT_GT(list.model()->rowCount(), 40) << "all that can be written";
    for (int column = 0; column < 3; ++column) {
        EXPECT_GE(list.columnWidth(column),
                  static_cast<QAbstractItemView&>(list).sizeHintForColumn(column));
    }
    EXPECT_LE(list.header()->length(), list.viewport()->width()) << "no horizontal bar";
    dialog.reject();
}

TEST_P(TextFits, InTheSmallestWindow)
{
    window->resize(window->minimumSize());
    goOnline();
    userInput::settle();
    auto* bar = window->findChild<QToolBar*>("commands");
    EXPECT_FALSE(bar->findChild<QToolButton*>("qt_toolbar_ext_button")->isVisible())
        << "every command is on the bar";
    for (QAction* action : bar->actions()) {
        QWidget* const widget = bar->widgetForAction(action);
        if (qobject_cast<QToolButton*>(widget) || qobject_cast<QLabel*>(widget) ||
            qobject_cast<QComboBox*>(widget)) {
            EXPECT_GE(widget->width(), widget->sizeHint().width()) << action->text().toStdString();
        }
    }
    auto* tree = window->findChild<QTreeWidget*>("pages");
    EXPECT_GE(tree->viewport()->width(),
              static_cast<QAbstractItemView*>(tree)->sizeHintForColumn(0));
    for (const auto& page : window->book().pages()) {
        window->showPage(page->Tag);
        userInput::settle();
        EXPECT_LE(window->view().width(), window->view().parentWidget()->width())
            << page->Tag.get() << " needs no horizontal bar";
        expectFits(window->view(), window->book());
    }
}

TEST(TextFitsOnASharpScreen, AllOfTheAbove)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_SCALE_FACTOR", "2");
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    QProcess again;
    again.setProcessEnvironment(environment);
    again.setProcessChannelMode(QProcess::MergedChannels);
    again.start(QCoreApplication::applicationFilePath(), {"--gtest_filter=Languages/TextFits.*"});
    ASSERT_TRUE(again.waitForFinished(120'000));
    EXPECT_EQ(again.exitCode(), 0) << again.readAll().toStdString();
}

} // namespace quill::shell::test
