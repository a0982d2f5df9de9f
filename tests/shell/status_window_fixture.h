#pragma once

#include "shell/device_physics.h"
#include "shell/device_status.h"
#include "shell/status_sign.h"
#include "shell/view_page.h"
#include "status/CtrStatusF.h"
#include "status_rows.h"
#include "window_fixture.h"

#include <QTreeView>

namespace quill::shell::test {

/// The shell's window with a device in balance, and hands on its status pages.
class StatusWindowTest : public WindowTest {
protected:
    StatusWindowTest() { settleDevice(); }

    void settleDevice()
    {
        model().setDemand(12);
        messenger().device().advance(30);
    }
    DeviceModel&  model() { return messenger().device().function<DevicePhysics>()->model(); }
    DeviceStatus& diagnosis() { return *messenger().device().function<DeviceStatus>(); }

    template <class View = StatusTreeView>
    View& view(const char* page = "status")
    {
        return dynamic_cast<View&>(
            dynamic_cast<const ViewPage&>(*window->book().page(page)).view());
    }
    CtrStatusF& configurable() { return view<CtrStatusF>("statusConfiguration"); }

    QTreeView& tree(const StatusTreeView& view)
    {
        return dynamic_cast<QTreeView&>(shown(view.scgStatus));
    }
    void clickRow(const StatusTreeView& view, const std::string& name)
    {
        userInput::clickRow(tree(view), userInput::rowNumber(tree(view), rowOf(view, name)));
    }
    /// Goes online, if need be, and reads what the page is about.
    void readPage()
    {
        if (!messenger().isOnline()) {
            goOnline();
        }
        userInput::click(toolButton("readPage"));
        waitForDevice();
    }
    std::string deviceValue(const char* parameter)
    {
        return messenger().device().find(parameter)->value;
    }
    void beginConfiguration()
    {
        window->showPage("statusConfiguration");
        userInput::click(shown(configurable().cmdConfiguration));
        ASSERT_TRUE(configurable().IsConfiguring());
    }
};

} // namespace quill::shell::test
