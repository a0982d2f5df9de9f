#pragma once

#include "tests/status/status_tree_fixture.h"

#include <string>

namespace quill::test {

/// The icon of a condition of which nothing is known.
inline constexpr const char* kOff = "deviceDiagnosisPassiv";

/// A configurable view that is online.
class ConfigurableViewTest : public StatusViewTest<CtrStatusF> {
protected:
    ConfigurableViewTest() { messenger.communicationMode = kOnline; }

    /// The device tells its mask.
    void masks(const std::string& value, const std::string& final = "1")
    {
        view.SetOnlineData(
            response("name=\"deviceStatusMasks\" responseStatus=\"ok\" isFinal=\"" + final + "\"",
                     item("statusMask1", "noUnit", "hexVal", value)));
    }
};

/// Three conditions, all switched on, of which nothing was read.
class CtrStatusFView : public ConfigurableViewTest {
protected:
    void SetUp() override
    {
        load(branch("g", condition("fail", namur("deviceFailure") + maskAt(0, 0)) +
                             condition("info", namur("deviceInfo") + maskAt(0, 1)) +
                             condition("plain", maskAt(0, 2))));
        view.SetOfflineData(datafile(maskParameter("statusMask1", "07")));
        messenger.clear();
    }
    std::string iconOf(const std::string& items, int row)
    {
        online(items);
        return view.scgStatus.CellIcon(row, 1);
    }
};

/// Three conditions in two branches, the last one switched off; status and masks were read.
class CtrStatusFConfiguration : public ConfigurableViewTest {
protected:
    void SetUp() override
    {
        load(branch("g", condition("a", namur("deviceFailure") + maskAt(0, 0)) +
                             condition("b", namur("deviceInfo") + maskAt(0, 1))) +
             branch("h", condition("c", namur("deviceUnderTest") + maskAt(0, 2))));
        view.Localize(translator);
        file = datafile(maskParameter("statusMask1", "03"));
        view.SetOfflineData(file);
        masks("03");
        online(statusItem("a", "1") + statusItem("b", "0") + statusItem("c", "1"));
        messenger.clear();
    }
    void enter() { ASSERT_EQ(view.cmdConfiguration.click(), platform::UserDoor::done); }
    void click(int row) { ASSERT_EQ(view.scgStatus.clickCell(row, 1), platform::UserDoor::done); }
    [[nodiscard]] std::string inFile() const
    {
        return file.selectSingleNode("//data:parameter/@value").get_text();
    }

    IXMLDOMDocument file;
};

} // namespace quill::test
