#include "probe_run.h"

namespace quill::probe::test {

namespace {

/// The reports whose first key is `kind`.
std::vector<Json> reportsOf(const Probe& run, const std::string& kind)
{
    std::vector<Json> found;
    for (const Json& report : run.reports) {
        if (report.count(kind) != 0) {
            found.push_back(report);
        }
    }
    return found;
}

constexpr const char* kMultidrop =
    "<data:dtm xmlns:data=\\\"x-schema:QVXDatafileSchema.xml\\\"><data:persistentData>"
    "<data:parameters><data:parameter name=\\\"multidrop\\\" type=\\\"integerVal\\\" "
    "value=\\\"1\\\" unit=\\\"noUnit\\\" access=\\\"readWrite\\\" synchronised=\\\"1\\\"/>"
    "</data:parameters></data:persistentData><data:mappedParams>"
    "<data:mappedParam name=\\\"multidrop\\\"><data:mapping name=\\\"disabled\\\" "
    "value=\\\"0\\\"/><data:mapping name=\\\"enabled\\\" value=\\\"1\\\"/></data:mappedParam>"
    "</data:mappedParams><data:requestGroups/></data:dtm>";

/// A device whose conditions have severities alone.
constexpr const char* kSeverities =
    "{'op':'host','deviceTypeInfo':'<i><deviceStatus><branch name=\\\"b\\\"><status "
    "name=\\\"s\\\" class=\\\"alarm\\\"/></branch></deviceStatus></i>'}";

} // namespace

// --- The address service, on its own

class ProbeAddressService : public testing::Test {
protected:
    void take(const std::string& line) { host.take(json(line)); }
    Json report() const { return Json::parse(lines.back()); }

    std::vector<std::string> lines;
    Output                   output{[this](const std::string& line) { lines.push_back(line); }};
    Host host{output, [](const platform::Widget& widget) { return widget.Name; }};
};

TEST_F(ProbeAddressService, IsThereOnceItWasPrepared)
{
    EXPECT_EQ(host.GetAddressService(), nullptr);
    take("{'op':'host','addressService':{'address':5,'readOk':true,'writeOk':true}}");
    ASSERT_NE(host.GetAddressService(), nullptr);
    take("{'op':'host','addressService':null}");
    EXPECT_EQ(host.GetAddressService(), nullptr);
}

TEST_F(ProbeAddressService, TellsItsAddressAndReportsThatItWasAsked)
{
    take("{'op':'host','addressService':{'address':5,'readOk':true,'writeOk':true}}");
    EXPECT_EQ(host.GetAddressService()->ReadAddress(), std::optional<std::int16_t>{5});
    EXPECT_EQ(report(), json("{'addressService':'ReadAddress','args':[]}"));
    take("{'op':'host','addressService':{'address':5,'readOk':false}}");
    EXPECT_EQ(host.GetAddressService()->ReadAddress(), std::nullopt);
}

TEST_F(ProbeAddressService, AWrittenAddressIsTheOneThatIsReadNext)
{
    take("{'op':'host','addressService':{'address':5}}");
    EXPECT_TRUE(host.GetAddressService()->WriteAddress(0, 0, 0, 7));
    EXPECT_EQ(report(), json("{'addressService':'WriteAddress','args':[0,0,0,7]}"));
    EXPECT_EQ(host.GetAddressService()->ReadAddress(), std::optional<std::int16_t>{7});
}

TEST_F(ProbeAddressService, AnAddressThatTheDeviceDoesNotTakeIsNotWritten)
{
    take("{'op':'host','addressService':{'address':5,'writeOk':false}}");
    EXPECT_FALSE(host.GetAddressService()->WriteAddress(0, 0, 0, 7));
    EXPECT_EQ(host.GetAddressService()->ReadAddress(), std::optional<std::int16_t>{5});
    take("{'op':'host','addressService':{'address':5},"
         "'accepts':{'WriteAddress':false,'ReadAddress':false}}");
    EXPECT_FALSE(host.GetAddressService()->WriteAddress(0, 0, 0, 7));
    EXPECT_EQ(host.GetAddressService()->ReadAddress(), std::nullopt);
}

TEST_F(ProbeAddressService, FailsAsItWasPrepared)
{
    take(
        "{'op':'host','addressService':{'address':5},'fails':{'ReadAddress':5,'WriteAddress':91}}");
    auto* const service = host.GetAddressService();
    try {
        (void)service->ReadAddress();
        FAIL() << "no failure";
    } catch (const platform::Failure& failure) {
        EXPECT_EQ(failure.number(), 5);
        EXPECT_EQ(failure.description(), "prepared failure");
    }
    EXPECT_EQ(report()["addressService"], "ReadAddress");
    EXPECT_THROW((void)service->WriteAddress(0, 0, 0, 7), platform::Failure);
    EXPECT_EQ(report()["args"], json("[0,0,0,7]"));
}

TEST_F(ProbeAddressService, OneThatIsGoneFails)
{
    take("{'op':'host','addressService':{'address':5}}");
    auto* const service = host.GetAddressService();
    take("{'op':'host','addressService':null}");
    EXPECT_THROW((void)service->ReadAddress(), platform::Failure);
}

TEST_F(ProbeAddressService, AWrongSettingChangesNothing)
{
    take("{'op':'host','addressService':{'address':5}}");
    for (const char* wrong : {"{'address':'5'}", "{'address':40000}", "{'readOk':1}", "{'port':1}",
                              "5", "[]", "true"}) {
        EXPECT_THROW(take(std::string{"{'op':'host','addressService':"} + wrong + "}"),
                     platform::Failure)
            << wrong;
    }
    EXPECT_EQ(host.GetAddressService()->ReadAddress(), std::optional<std::int16_t>{5});
}

// --- ... and with a view ----------------------------------------------------------------------

TEST(ProbeServices, TheAddressViewReadsAndWritesTheAddress)
{
    Probe run;
    run("{'op':'host','addressService':{'address':5},'communicationMode':11}");
    run(std::string{"{'op':'document','id':'df','xml':'"} + kMultidrop + "'}");
    run("{'op':'create','class':'CtrHartAddress','name':'view','tag':'hartAddress'}");
    run("{'op':'call','on':'view','method':'SetOfflineData','args':[{'doc':'df'}]}");
    EXPECT_EQ(run("{'op':'call','on':'view','method':'Localize','args':[{'translator':true}]}"),
              json("{'ok':true}"));
    EXPECT_EQ(reportsOf(run, "addressService"),
              std::vector<Json>{json("{'addressService':'ReadAddress','args':[]}")});
    EXPECT_EQ(run.result("{'op':'get','on':'view.cceAddress.cboBox','property':'Text'}"), "5");
    run("{'op':'do','on':'view.cceAddress.cboBox','action':'choose','index':8}");
    run("{'op':'raise','event':'ViewSetCommunicationMode','args':[11]}");
    run("{'op':'do','on':'view.cmdSet','action':'click'}");
    EXPECT_EQ(reportsOf(run, "addressService").front(),
              json("{'addressService':'WriteAddress','args':[0,0,0,9]}"));
}

TEST(ProbeServices, ANamedCallbackReachesThePage)
{
    Probe run;
    run(kSeverities);
    run("{'op':'page','name':'page','type':'VwOnlineDiag'}");
    run("{'op':'create','class':'CtrStatus','name':'status','tag':'deviceStatus','on':'page'}");
    run("{'op':'set','on':'status','property':'CombinedStatus','value':'alarm'}");
    EXPECT_EQ(run.reports, (std::vector<Json>{json("{'messenger':'SetCombinedStatus',"
                                                   "'args':[1,'alarm']}"),
                                              json("{'callback':'QuillStatusChanged',"
                                                   "'args':['alarm']}")}));
    EXPECT_EQ(run.result("{'op':'get','on':'status','property':'CombinedStatus'}"), "alarm");
}

TEST(ProbeServices, ANamedCallbackFailsAsItWasPrepared)
{
    Probe run;
    run("{'op':'host','fails':{'QuillStatusChanged':438}}");
    run(kSeverities);
    run("{'op':'page','name':'page','type':'VwOnlineDiag'}");
    run("{'op':'create','class':'CtrStatus','name':'status','tag':'deviceStatus','on':'page'}");
    EXPECT_EQ(run("{'op':'set','on':'status','property':'CombinedStatus','value':'alarm'}"),
              json("{'ok':true}"));
    EXPECT_EQ(reportsOf(run, "callback").size(), 1U);
    EXPECT_EQ(run.calls("ReportError").size(), 1U);
}

TEST(ProbeServices, AControlWithoutAPageOfThatTypeCallsNothing)
{
    Probe run;
    run(kSeverities);
    run("{'op':'create','class':'CtrStatus','name':'status','tag':'deviceStatus'}");
    run("{'op':'set','on':'status','property':'CombinedStatus','value':'alarm'}");
    EXPECT_EQ(reportsOf(run, "callback").size(), 0U);
}

} // namespace quill::probe::test
