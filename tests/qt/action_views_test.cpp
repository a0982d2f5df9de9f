// The views that start something on the device, with real keys.
#include "actions/CtrHartAddress.h"
#include "actions/CtrMACalibration.h"
#include "actions/CtrModuleSelection.h"
#include "actions/CtrReset.h"
#include "records/CtrSettings.h"
#include "support/recording_messenger.h"
#include "support/recording_translator.h"
#include "tests/qt/screen_test_support.h"

#include <gmock/gmock.h>

namespace quill::qt::test {

namespace {

using ::testing::ElementsAre;

std::string focusedWidget()
{
    const auto* const focused = platform::Widget::focused();
    return focused == nullptr
               ? std::string{}
               : (focused->Container() != nullptr ? focused->Container()->Name : "") + "." +
                     focused->Name;
}

void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    settle();
}

template <class View>
struct ViewPage : Page {
    quill::test::RecordingMessenger  messenger;
    quill::test::RecordingTranslator translator;
    View                             view{*this, {.Name = "view", .Width = 9000, .Height = 6000}};

    ViewPage()
    {
        messenger.translator        = &translator;
        messenger.communicationMode = kOnline;
        view.SetMessenger(&messenger);
        view.Localize(translator);
        messenger.ViewSetCommunicationMode.raise(kOnline);
    }
};

/// The settings before they are asked for.
struct SettingsPage : Page {
    quill::test::RecordingMessenger  messenger;
    quill::test::RecordingTranslator translator;
    CtrSettings                      view{*this, {.Name = "settings", .Visible = false}};

    SettingsPage()
    {
        messenger.translator = &translator;
        view.SetMessenger(&messenger);
        view.SetSupportedLanguages({"English", "German"});
        view.Localize(translator);
    }
};

TEST(ActionViewsOnScreen, TheTabKeyGoesThroughTheResetRowsToTheButton)
{
    ViewPage<CtrReset> page;
    const Shown        screen(page);
    page.view.RequestFocus();
    settle();
    std::vector<std::string> names{focusedWidget()};
    for (int step = 0; step < 3; ++step) {
        press(Qt::Key_Tab);
        names.push_back(focusedWidget());
    }
    EXPECT_THAT(names, ElementsAre("cceReset.cboBox", "cceReset.cboBox", "cceReset.cboBox",
                                   "frmViews.cmdReset"));
}

TEST(ActionViewsOnScreen, TheTabKeyGoesFromMultidropOverTheAddressToTheButton)
{
    ViewPage<CtrHartAddress> page;
    const Shown              screen(page);
    page.view.RequestFocus();
    settle();
    std::vector<std::string> names{focusedWidget()};
    for (int step = 0; step < 2; ++step) {
        press(Qt::Key_Tab);
        names.push_back(focusedWidget());
    }
    EXPECT_THAT(names, ElementsAre("cceMultidrop.cboBox", "cceAddress.cboBox", "frmViews.cmdSet"));
}

TEST(ActionViewsOnScreen, ArrowKeysReachBackFromNext)
{
    ViewPage<CtrMACalibration> page;
    const Shown                screen(page);
    page.view.cteMACalibration[0].EditText("4");
    screen.click(page.view.cmdNext);
    page.view.cmdNext.focus();
    settle();
    press(Qt::Key_Left);
    EXPECT_TRUE(page.view.cmdBack.HasFocus());
    EXPECT_EQ(QApplication::focusWidget(), screen[page.view.cmdBack]);
    press(Qt::Key_Right);
    EXPECT_TRUE(page.view.cmdNext.HasFocus());
    press(Qt::Key_Up);
    press(Qt::Key_Space);
    EXPECT_EQ(page.view.miCalibrationStep(), 0);
}

TEST(ActionViewsOnScreen, EveryBoxHasAName)
{
    ViewPage<CtrModuleSelection> modules;
    const Shown                  first(modules);
    EXPECT_EQ(first[modules.view.ModuleSelection]->accessibleName(), "moduleSelection");

    ViewPage<CtrHartAddress> address;
    const Shown              second(address);
    EXPECT_TRUE(second[address.view.cceAddress.cboBox]->accessibleName().startsWith(
        QStringLiteral("address")));
    EXPECT_TRUE(second[address.view.cceMultidrop.cboBox]->accessibleName().startsWith(
        QStringLiteral("multidrop")));

    ViewPage<CtrMACalibration> calibration;
    const Shown                third(calibration);
    EXPECT_TRUE(third[calibration.view.cteMACalibration[1].txtBox]->accessibleName().startsWith(
        QStringLiteral("measuredCurrentZeroTrim")));
}

TEST(ActionViewsOnScreen, EscapeLeavesTheSettingsFromWhereverTheFocusIs)
{
    SettingsPage page;
    CtrSettings& view = page.view;
    const Shown  screen(page);
    for (platform::Widget* widget :
         platform::WidgetList{&view.cboSelectLanguage, &view.cboStatusClassification, &view.cmdOK,
                              &view.cmdCancel}) {
        view.show();
        settle();
        widget->SetFocus();
        settle();
        press(Qt::Key_Escape);
        EXPECT_FALSE(view.Visible) << widget->Name;
    }
}

TEST(ActionViewsOnScreen, AfterApplyEscapeStillLeavesTheSettings)
{
    SettingsPage page;
    CtrSettings& view = page.view;
    const Shown  screen(page);
    view.show();
    settle();
    view.cboSelectLanguage.choose(1);
    settle();
    screen.click(view.cmdApply);
    EXPECT_FALSE(view.cmdApply.Enabled);
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    press(Qt::Key_Escape);
    EXPECT_FALSE(view.Visible);
}

} // namespace

} // namespace quill::qt::test
