#pragma once

#include "actions/CtrHartAddress.h"
#include "actions/CtrMACalibration.h"
#include "actions/CtrModuleSelection.h"
#include "actions/CtrReset.h"
#include "records/CtrEventLog.h"
#include "shell/device_actions.h"
#include "shell/device_events.h"
#include "shell/device_physics.h"
#include "shell/view_page.h"
#include "window_fixture.h"

#include <QTreeView>

namespace quill::shell::test {

/// The shell's window with hands on the pages that do something with the device.
class ActionWindowTest : public WindowTest {
protected:
    template <class View>
    View& view(const char* page)
    {
        return dynamic_cast<View&>(
            dynamic_cast<const ViewPage&>(*window->book().page(page)).view());
    }
    void click(const platform::Widget& widget)
    {
        userInput::click(shown(widget));
        waitForDevice();
        userInput::settle();
    }
    void press(const platform::Widget& widget, int key)
    {
        QWidget& box = shown(widget);
        box.setFocus();
        userInput::press(box, key);
    }
    std::string inDevice(const char* parameter)
    {
        return messenger().device().find(parameter)->value;
    }
    /// Edits besides those with which the datafile comes up.
    [[nodiscard]] std::size_t edits() { return store().editCount() - mEditsAtStart; }
    void                      openFieldbus()
    {
        dialogs.saveChoices.push_back(SaveChoice::discard);
        window->command("openVX4400F")->trigger();
        dialogs.saveChoices.clear();
        userInput::settle();
    }
    [[nodiscard]] std::string shownPage() { return window->book().shownPage()->Tag; }

private:
    std::size_t mEditsAtStart = store().editCount();
};

} // namespace quill::shell::test
