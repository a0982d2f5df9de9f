#include "actions/CtrHartAddress.h"

#include "platform/headless_toolkit.h"
#include "support/recording_messenger.h"
#include "support/recording_translator.h"
#include "support/test_documents.h"
#include "support/test_page.h"
#include "support/toolkit_scope.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quill::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A device with a polling address.
class FakeAddress : public AddressService {
public:
    std::optional<std::int16_t> address  = 5;
    bool                        accepts  = true;
    bool                        isBroken = false;
    std::vector<int>            written;

    std::optional<std::int16_t> ReadAddress() override
    {
        if (isBroken) {
            throw platform::failure(platform::kInvalidCall);
        }
        return address;
    }
    bool WriteAddress(std::uint8_t first, std::uint8_t second, std::int32_t third,
                      std::uint8_t fresh) override
    {
        EXPECT_EQ(first + second + third, 0);
        written.push_back(fresh);
        return accepts;
    }
};

class CtrHartAddressTest : public testing::Test {
protected:
    ToolkitScope        toolkit;
    RecordingMessenger  messenger;
    RecordingTranslator translator;
    FakeAddress         service;
    TestPage            page;
    CtrHartAddress      view{page, {.Name = "address", .Tag = "hartAddressView"}};
    IXMLDOMDocument     datafile = test::datafile(
            R"(<data:parameter name="multidrop" type="integerVal" value="1" unit="noUnit")"
                R"( access="readWrite" synchronised="1"/>)",
            R"(<data:mappedParam name="multidrop"><data:mapping value="0" name="disabled"/>)"
                R"(<data:mapping value="1" name="enabled"/></data:mappedParam>)");

    void SetUp() override
    {
        messenger.translator     = &translator;
        messenger.addressService = &service;
    }
    /// As a host brings a view up.
    void begin()
    {
        view.SetMessenger(&messenger);
        view.SetOfflineData(datafile);
        view.Localize(translator);
        messenger.clear();
    }
    [[nodiscard]] std::vector<std::string> addresses() const
    {
        return view.cceAddress.cboBox.List();
    }
};

TEST_F(CtrHartAddressTest, ADeviceWithAnAddressShowsItAmongFifteen)
{
    begin();
    EXPECT_EQ(view.cceMultidrop.getSelectedValue(), 1);
    EXPECT_EQ(addresses().size(), 15U);
    EXPECT_EQ(addresses().front(), "1");
    EXPECT_EQ(addresses().back(), "15");
    EXPECT_EQ(view.cceAddress.Text(), "5");
    EXPECT_FALSE(view.cceMultidrop.Modified());
    EXPECT_FALSE(view.cceAddress.Modified());
}

TEST_F(CtrHartAddressTest, ADeviceAtAddressZeroOffersThatAlone)
{
    service.address = 0;
    begin();
    EXPECT_EQ(view.cceMultidrop.getSelectedValue(), 0);
    EXPECT_THAT(addresses(), ElementsAre("0"));
    EXPECT_EQ(view.cceAddress.Text(), "0");
    EXPECT_FALSE(view.cceMultidrop.Modified());
    EXPECT_FALSE(view.cceAddress.Modified());
}

TEST_F(CtrHartAddressTest, WithoutAnAddressTheBoxesStayAsTheyAre)
{
    begin();
    service.address = std::nullopt;
    view.cceAddress.cboBox.choose(9);
    view.UpdateHartAddress();
    EXPECT_EQ(view.cceAddress.Text(), "10");
    EXPECT_TRUE(view.cceAddress.Modified());
}

TEST_F(CtrHartAddressTest, NoAddressServiceIsReported)
{
    messenger.addressService = nullptr;
    view.SetMessenger(&messenger);
    messenger.clear();
    view.UpdateHartAddress();
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("CtrHartAddress UpdateHartAddress: , 91")));
}

TEST_F(CtrHartAddressTest, AFailingServiceLeavesTheNextStatementWithoutOne)
{
    view.SetMessenger(&messenger);
    messenger.failOn("GetAddressService");
    messenger.clear();
    view.UpdateHartAddress();
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("CtrHartAddress UpdateHartAddress: , 5"),
                            HasSubstr("CtrHartAddress UpdateHartAddress: , 91")));
}

TEST_F(CtrHartAddressTest, MultidropSwitchedOnProposesAddressOne)
{
    service.address = 0;
    begin();
    view.cceMultidrop.cboBox.choose(1);
    EXPECT_EQ(addresses().size(), 15U);
    EXPECT_EQ(view.cceAddress.Text(), "1");
    EXPECT_TRUE(view.cceAddress.Modified());
}

TEST_F(CtrHartAddressTest, MultidropSwitchedOffShowsZeroAndMarksTheAddress)
{
    begin();
    view.cceMultidrop.cboBox.choose(0);
    EXPECT_THAT(addresses(), ElementsAre("0"));
    EXPECT_EQ(view.cceAddress.Text(), "0");
    EXPECT_TRUE(view.cceAddress.Modified());
    EXPECT_THAT(service.written, IsEmpty());
}

TEST_F(CtrHartAddressTest, MultidropSwitchedBackShowsTheDevicesAddress)
{
    begin();
    view.cceMultidrop.cboBox.choose(0);
    view.cceMultidrop.cboBox.choose(1);
    EXPECT_EQ(view.cceAddress.Text(), "5");
}

TEST_F(CtrHartAddressTest, ADeviceThatCannotBeReadCountsAsOneAtZero)
{
    begin();
    service.isBroken = true;
    view.cceMultidrop.cboBox.choose(0);
    view.cceMultidrop.cboBox.choose(1);
    EXPECT_EQ(view.cceAddress.Text(), "1");
    EXPECT_TRUE(view.cceAddress.Modified());
    EXPECT_THAT(messenger.errors(), ElementsAre(HasSubstr("CtrHartAddress cceMultidrop_Change: "),
                                                HasSubstr("CtrHartAddress cceMultidrop_Change: ")));
}

TEST_F(CtrHartAddressTest, SettingWritesTheAddressAndClearsTheSigns)
{
    begin();
    view.cceAddress.cboBox.choose(11);
    messenger.clear();
    view.cmdSet.click();
    EXPECT_THAT(service.written, ElementsAre(12));
    EXPECT_FALSE(view.cceAddress.Modified());
    EXPECT_EQ(messenger.actions().back(), "SetParameterState(hartAddressView, sync)");
}

TEST_F(CtrHartAddressTest, ARefusedAddressStaysMarked)
{
    begin();
    service.accepts = false;
    view.cceAddress.cboBox.choose(11);
    messenger.clear();
    view.cmdSet.click();
    EXPECT_TRUE(view.cceAddress.Modified());
    EXPECT_THAT(messenger.actions(), IsEmpty());
}

TEST_F(CtrHartAddressTest, WithoutAnAddressNothingIsWritten)
{
    view.SetMessenger(&messenger);
    view.cmdSet.click();
    EXPECT_THAT(service.written, IsEmpty());
    EXPECT_THAT(messenger.errors(), ElementsAre(HasSubstr("CtrHartAddress cmdSet_Click: , 13")));
}

TEST_F(CtrHartAddressTest, OnlyMaintenanceMaySet)
{
    messenger.userLevel = 2;
    begin();
    EXPECT_FALSE(view.cmdSet.Enabled);
    messenger.userLevel = 3;
    view.SetMessenger(&messenger);
    EXPECT_TRUE(view.cmdSet.Enabled);
}

TEST_F(CtrHartAddressTest, ABarredButtonComesBackOnlyWithANewMessenger)
{
    begin();
    messenger.ViewSetCommunicationMode.raise(kEditingBarred);
    EXPECT_FALSE(view.cmdSet.Enabled);
    messenger.ViewSetCommunicationMode.raise(kOnline);
    EXPECT_FALSE(view.cmdSet.Enabled);
    view.SetMessenger(&messenger);
    EXPECT_TRUE(view.cmdSet.Enabled);
}

TEST_F(CtrHartAddressTest, TheFocusComesToTheChoiceOfMultidrop)
{
    begin();
    view.RequestFocus();
    EXPECT_TRUE(view.cceMultidrop.HasFocus());
}

TEST_F(CtrHartAddressTest, TabLeadsOutOfTheViewAtItsTwoEnds)
{
    begin();
    toolkit.keysDown = {platform::kKeyTab, platform::kKeyShift};
    view.cceMultidrop.cboBox.focus();
    view.cceMultidrop.cboBox.blur();
    EXPECT_EQ(messenger.callsTo("TransferFocus").size(), 1U);
    toolkit.keysDown = {platform::kKeyTab};
    view.cmdSet.focus();
    view.cmdSet.blur();
    EXPECT_EQ(messenger.callsTo("TransferFocus").size(), 2U);
}

TEST_F(CtrHartAddressTest, TheFormListsTheButtonFirstAndTheTabKeyComesToItLast)
{
    const auto names = [](const platform::WidgetList& widgets, bool stopsOnly) {
        std::vector<std::string> found;
        for (const platform::Widget* widget : widgets) {
            if (!stopsOnly || widget->TabStop) {
                found.push_back(widget->Name);
            }
        }
        return found;
    };
    EXPECT_THAT(names(view.GetControls(), false),
                ElementsAre("frmViews", "cmdSet", "cceMultidrop", "cceAddress", "lblTitle",
                            "lblAssemblyRelated", "lblAssemblyRelated"));
    EXPECT_THAT(names(view.Widgets(), true), ElementsAre("cceMultidrop", "cceAddress", "cmdSet"));
}

TEST_F(CtrHartAddressTest, AFailingLayoutIsReportedToTheHostOrElseToTheDebugOutput)
{
    const auto fails = view.frmViews.Changed.subscribe(
        [](const platform::WidgetChange&) { throw platform::failure(platform::kInvalidCall); });
    view.Width = 8000;
    EXPECT_THAT(toolkit.debugLines,
                ElementsAre(HasSubstr("CtrHartAddress UserControl_Resize - Error5: ")));
    view.SetMessenger(&messenger);
    messenger.clear();
    view.Width = 9000;
    EXPECT_THAT(messenger.errors(), ElementsAre(HasSubstr("CtrHartAddress UserControl_Resize: ")));
    EXPECT_EQ(toolkit.debugLines.size(), 1U);
}

TEST_F(CtrHartAddressTest, LongLabelsTakeTheirRoomFromTheBoxes)
{
    translator.texts["multidrop"] = std::string(25, 'x');
    view.Localize(translator);
    EXPECT_EQ(view.lblAssemblyRelated[1].Width, 2500);
    EXPECT_EQ(view.cceMultidrop.Left, 3200);
    EXPECT_EQ(view.cceAddress.Left + view.cceAddress.Width, 5900);
    EXPECT_EQ(view.cmdSet.Left, 6100);
}

TEST_F(CtrHartAddressTest, AViewThatIsMadeWithASizeShowsItsFrameAtOnce)
{
    const CtrHartAddress sized{page, {.Name = "sized", .Width = 8000, .Height = 5000}};
    EXPECT_EQ(sized.frmViews.Width, 8000);
}

TEST_F(CtrHartAddressTest, ItsOwnTagShowsTheFirstFrame)
{
    begin();
    view.SetSelectedView("hartAddressView");
    EXPECT_EQ(view.GetSelectedView(), "hartAddress");
}

} // namespace
} // namespace quill::test
