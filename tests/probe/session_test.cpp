#include "probe_run.h"

namespace quill::probe::test {

namespace {

const char* const kDatafile =
    "{'op':'document','id':'df','xml':'"
    "<dtm xmlns=\\\"x-schema:QVXDatafileSchema.xml\\\"><persistentData><parameters>"
    "<parameter name=\\\"travel\\\" type=\\\"floatVal\\\" value=\\\"5\\\" unit=\\\"mm\\\" "
    "synchronised=\\\"1\\\" access=\\\"readWrite\\\" decimals=\\\"1\\\" minVal=\\\"0\\\" "
    "maxVal=\\\"100\\\"/>"
    "<parameter name=\\\"range\\\" type=\\\"stringVal\\\" value=\\\"a\\\"/>"
    "</parameters></persistentData></dtm>'}";

const char* const kTravel = "{'doc':'df','select':'//data:parameter[1]'}";

std::string call(const std::string& on, const std::string& method, const std::string& args)
{
    return "{'op':'call','on':'" + on + "','method':'" + method + "','args':[" + args + "]}";
}

} // namespace

TEST(ProbeSession, AReplyHasItsKeysInTheOrderShown)
{
    Probe run;
    run("{'op':'nothing'}");
    EXPECT_EQ(run.lastLine().rfind(R"({"ok":false,"error":{"number":5,"description":")", 0), 0U);
    run("{'op':'create','class':'Label','name':'l'}");
    EXPECT_EQ(run.lastLine(), R"({"ok":true})");
    run("{'op':'get','on':'l','property':'Caption'}");
    EXPECT_EQ(run.lastLine(), R"({"ok":true,"result":""})");
}

TEST(ProbeSession, ADocumentIsReadBackWholeAndByExpression)
{
    Probe run;
    EXPECT_EQ(run(kDatafile), json("{'ok':true}"));
    EXPECT_EQ(run.result("{'op':'xml','id':'df','select':'//data:parameter/@name'}"),
              json("['travel','range']"));
    EXPECT_EQ(run.result("{'op':'xml','id':'df','select':'//data:parameter[3]'}"), Json::array());
    const std::string whole = run.result("{'op':'xml','id':'df'}");
    EXPECT_EQ(whole.rfind("<dtm", 0), 0U);
    EXPECT_EQ(run.failure("{'op':'xml','id':'other'}"), 5);
    EXPECT_EQ(run.failure("{'op':'xml','id':'df','select':'///'}"), 5);
    EXPECT_EQ(run.failure("{'op':'document','id':'df','xml':'<open>'}"), 5);
    EXPECT_EQ(run.result("{'op':'xml','id':'df'}"), whole);
    EXPECT_EQ(run.failure("{'op':'document','id':'df','file':'/no/such/file.xml'}"), 53);
    EXPECT_EQ(run.failure("{'op':'document','id':'df','file':'/'}"), 75);
}

TEST(ProbeSession, AnEditChangesTheDocumentBehindTheControlsBack)
{
    Probe run;
    run(kDatafile);
    run("{'op':'edit','id':'df','select':'//data:parameter[1]/@unit','value':'bar'}");
    EXPECT_EQ(run.result("{'op':'xml','id':'df','select':'//@unit'}"), json("['bar']"));
    run("{'op':'edit','id':'df','select':'//data:parameter[1]/@unit','remove':true}");
    EXPECT_EQ(run.result("{'op':'xml','id':'df','select':'//@unit'}"), Json::array());
    run("{'op':'edit','id':'df','select':'//data:parameter[2]','remove':true}");
    EXPECT_EQ(run.result("{'op':'xml','id':'df','select':'//data:parameter/@name'}"),
              json("['travel']"));
    EXPECT_EQ(run.failure("{'op':'edit','id':'df','select':'//data:none','remove':true}"), 5);
}

TEST(ProbeSession, AnEditorIsFedAndReportsWhatItDoes)
{
    Probe run;
    run(kDatafile);
    run("{'op':'page','name':'page','tag':'pageTag'}");
    run("{'op':'create','class':'CtrTextEdit','name':'travel','tag':'ctr_travel','on':'page'}");
    EXPECT_EQ(run.result(call("travel", "setOfflineData", kTravel)), true);
    EXPECT_EQ(run.calls("SetParameterState"), (std::vector<Json>{json("['pageTag','sync']")}));
    EXPECT_EQ(run.result("{'op':'get','on':'travel','property':'Text'}"), "5.0");
    run("{'op':'do','on':'travel.txtBox','action':'type','text':'200'}");
    EXPECT_EQ(run.result("{'op':'get','on':'travel.lblError','property':'Visible'}"), true);
    EXPECT_EQ(run.result("{'op':'get','on':'travel','property':'changeState'}"), "editedError");
    run("{'op':'do','on':'travel.txtBox','action':'type','text':'7'}");
    ASSERT_FALSE(run.reports.empty());
    EXPECT_EQ(run.reports.back(), json("{'raised':'Change','from':'travel','args':['7']}"));
    EXPECT_EQ(run.result("{'op':'xml','id':'df','select':'//data:parameter[1]/@value'}"),
              json("['7']"));
    EXPECT_EQ(run.result(call("travel", "GetXmlItem", "false")),
              "<item name=\"travel\" unit=\"mm\"><floatVal>7</floatVal></item>");
}

TEST(ProbeSession, AnOldDocumentLivesOnInTheControlsThatHoldItsNodes)
{
    Probe run;
    run(kDatafile);
    run("{'op':'create','class':'CtrTextEdit','name':'travel','tag':'ctr_travel'}");
    run(call("travel", "setOfflineData", kTravel));
    run("{'op':'document','id':'df','xml':'<other/>'}");
    EXPECT_EQ(run.result("{'op':'do','on':'travel.txtBox','action':'type','text':'8'}"), nullptr);
    EXPECT_EQ(run.result("{'op':'get','on':'travel','property':'Text'}"), "8");
    EXPECT_EQ(run.result("{'op':'xml','id':'df'}"), "<other/>");
}

TEST(ProbeSession, ABookingNamesTheEditorAndReachesTheDialog)
{
    Probe run;
    run(kDatafile);
    run("{'op':'host','translations':{'travel':'Travel'}}");
    run("{'op':'page','name':'page','tag':'p'}");
    run("{'op':'create','class':'CtrTextEdit','name':'travel','tag':'ctr_travel','on':'page'}");
    run("{'op':'create','class':'CtrChanges','name':'changes'}");
    run(call("travel", "Localize", "{'translator':true}"));
    run(call("travel", "setOfflineData", kTravel));
    run("{'op':'do','on':'travel.txtBox','action':'type','text':'6'}");
    run("{'op':'raise','event':'ViewGetChanges','args':[2]}");
    EXPECT_EQ(
        run.calls("BookChange"),
        (std::vector<Json>{json("['travel','ctr_travel','Travel','5.0','6','','floatVal','']")}));
    const Json rows = run.result("{'op':'get','on':'changes.lstChanges','property':'ListItems'}");
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0]["Text"], "Travel");
    EXPECT_EQ(rows[0]["SubItems"], json("['5.0','6']"));
}

TEST(ProbeSession, TwoBookingsOfOneLabelAreKeptApart)
{
    Probe run;
    run(kDatafile);
    run("{'op':'host','translations':{'ctr_a':'Value','ctr_b':'Value'}}");
    run("{'op':'page','name':'page'}");
    run("{'op':'create','class':'CtrChanges','name':'changes'}");
    for (const char* name : {"a", "b"}) {
        const std::string n = name;
        run("{'op':'create','class':'CtrTextEdit','name':'" + n + "','tag':'ctr_" + n +
            "','on':'page'}");
        run(call(n, "Localize", "{'translator':true}"));
        run(call(n, "setOfflineData", kTravel));
        run("{'op':'do','on':'" + n + ".txtBox','action':'type','text':'6'}");
    }
    run("{'op':'do','on':'changes','action':'show'}");
    const Json rows = run.result("{'op':'get','on':'changes.lstChanges','property':'ListItems'}");
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0]["Text"], "Value");
    EXPECT_EQ(rows[1]["Text"], "Value (b)");
}

TEST(ProbeSession, PagesServeTheirChildrenAndSubPages)
{
    Probe run;
    run(kDatafile);
    run("{'op':'page','name':'outer','tag':'outer'}");
    run("{'op':'page','name':'inner','tag':'inner','on':'outer'}");
    run("{'op':'create','class':'CtrTextEdit','name':'travel','tag':'ctr_travel','on':'inner'}");
    run(call("outer", "SetOfflineData", "{'doc':'df'}"));
    EXPECT_EQ(run.result("{'op':'get','on':'travel','property':'Text'}"), "5.0");
    EXPECT_EQ(run.result(call("outer", "GetControls", "")), json("['inner']"));
    EXPECT_EQ(run.result(call("outer", "GetMessenger", "")), "messenger");
    run(call("outer", "PrepareToRelease", ""));
    EXPECT_EQ(run.result(call("outer", "GetMessenger", "")), nullptr);
    EXPECT_EQ(run.result("{'op':'get','on':'outer.inner','property':'Tag'}"), "inner");
}

TEST(ProbeSession, ASubPageIsSelectedByItsFrame)
{
    Probe run;
    run("{'op':'page','name':'page'}");
    run("{'op':'create','class':'Frame','name':'one','tag':'first','on':'page'}");
    run("{'op':'create','class':'Frame','name':'two','tag':'second','on':'page'}");
    run(call("page", "SetSelectedView", "'second'"));
    EXPECT_EQ(run.result(call("page", "GetSelectedView", "")), "second");
    EXPECT_EQ(run.result("{'op':'get','on':'two','property':'ZPosition'}"), 0);
    EXPECT_EQ(run.result(call("page", "LeaveSelectedView", "")), true);
    EXPECT_EQ(run.result(call("modView", "ShowViewPage",
                              "'first','second',[{'control':'one'},{'control':'two'}]")),
              "first");
}

TEST(ProbeSession, FreeRoutinesAreCalledByTheirModule)
{
    Probe run;
    EXPECT_EQ(run.result(call("modTools", "RemoveCtrPrefix", "'ctr_travel'")), "travel");
    EXPECT_EQ(run.result(call("modTools", "IsNotErrorText", "'Err:x'")), false);
    EXPECT_EQ(run.result(call("modTools", "FormatNumber", "0.5")), "0.5");
    EXPECT_EQ(run.failure(call("modTools", "ParseNumber", "'x'")), 13);
    const Json reply =
        run(call("modView", "forwardSyncChanges", "'page',true,'notRead',{'messenger':true}"));
    EXPECT_EQ(reply, json("{'ok':true,'out':{'state':'sync'}}"));
    EXPECT_EQ(run.calls("SetParameterState"), (std::vector<Json>{json("['page','sync']")}));
    EXPECT_EQ(run.failure(call("modTools", "Nothing", "")), 438);
    EXPECT_EQ(run.failure(call("modNone", "Nothing", "")), 5);
}

TEST(ProbeSession, ChangeRowsComeBackByReference)
{
    Probe run;
    run("{'op':'create','class':'ListView','name':'list'}");
    run("{'op':'create','class':'CtrTextEdit','name':'edit'}");
    EXPECT_EQ(run(call("ListTools", "Reset", "'rows',{'control':'list'}"))["out"]["rows"],
              json("[null]"));
    const Json reply = run(call("ListTools", "AddChange",
                                "'rows',{'control':'list'},{'control':'edit'},'ctr_a','A','','1',"
                                "'2','floatVal','group'"));
    ASSERT_EQ(reply["out"]["rows"].size(), 1U) << reply.dump();
    EXPECT_EQ(reply["out"]["rows"][0]["key"], "A");
    EXPECT_EQ(reply["out"]["rows"][0]["selected"], true);
}

TEST(ProbeSession, ArgumentsOfTheWrongTypeOrNumberAreRefused)
{
    Probe run;
    run(kDatafile);
    run("{'op':'create','class':'CtrTextEdit','name':'travel'}");
    run("{'op':'create','class':'Label','name':'label'}");
    EXPECT_EQ(run.failure(call("travel", "setOfflineData", "")), 5);
    EXPECT_EQ(run.failure(call("travel", "setOfflineData", "null,null")), 5);
    EXPECT_EQ(run.failure(call("travel", "setOfflineData", "'df'")), 13);
    EXPECT_EQ(run.failure(call("travel", "setOfflineData", "{'doc':'none'}")), 5);
    EXPECT_EQ(run.failure(call("travel", "setOfflineData",
                               "{'doc':'df','select':'//data:parameter','all':true}")),
              13);
    EXPECT_EQ(run.failure(call("travel", "setParameterPair", "{'control':'label'},'min',1")), 13);
    EXPECT_EQ(run.failure(call("travel", "setParameterPair", "{'control':'none'},'min',1")), 5);
    EXPECT_EQ(run.failure(call("travel", "Localize", "null")), 91);
    EXPECT_EQ(run.failure(call("travel", "Localize", "{'messenger':true}")), 13);
    EXPECT_EQ(run.failure(call("travel", "Nothing", "")), 438);
    EXPECT_EQ(run.failure("{'op':'raise','event':'ViewGetChanges','args':[70000]}"), 6);
    EXPECT_EQ(run.failure("{'op':'raise','event':'ViewNothing'}"), 438);
    EXPECT_EQ(run.result(call("travel", "setOfflineData", "null")), false);
}

TEST(ProbeSession, AnArgumentWithADefaultMayBeLeftOut)
{
    Probe run;
    run("{'op':'create','class':'CtrTextEdit','name':'low'}");
    run("{'op':'create','class':'CtrTextEdit','name':'high'}");
    run(call("low", "setParameterPair", "{'control':'high'},'max',1"));
    EXPECT_EQ(run.result("{'op':'get','on':'high','property':'pairMinPartner'}"), "low");
    run(call("low", "unsetParameterPair", ""));
    EXPECT_EQ(run.result("{'op':'get','on':'high','property':'pairMinPartner'}"), nullptr);
}

TEST(ProbeSession, AControlArrayIsNamedByIndex)
{
    Probe run;
    run("{'op':'page','name':'page'}");
    run("{'op':'create','class':'Label','name':'lbl','index':0,'tag':'a','on':'page'}");
    run("{'op':'create','class':'Label','name':'lbl','index':1,'tag':'b','on':'page'}");
    EXPECT_EQ(run.result("{'op':'get','on':'lbl(1)','property':'Tag'}"), "b");
    EXPECT_EQ(run.result("{'op':'get','on':'page.lbl(1)','property':'Tag'}"), "b");
    EXPECT_EQ(run.result("{'op':'get','on':'lbl','property':'Tag'}"), "a");
    EXPECT_EQ(run.result(call("page", "GetControls", "")), json("['lbl(0)','lbl(1)']"));
    EXPECT_EQ(run.failure("{'op':'get','on':'lbl(2)','property':'Tag'}"), 5);
    EXPECT_EQ(run.failure("{'op':'create','class':'Label','name':'lbl','index':1}"), 5);
    EXPECT_EQ(run.failure("{'op':'create','class':'Label','name':'x','index':-1}"), 6);
}

TEST(ProbeSession, AReleasedControlIsGoneAndItsNameIsFree)
{
    Probe run;
    run("{'op':'page','name':'page'}");
    run("{'op':'create','class':'Frame','name':'frm','on':'page'}");
    run("{'op':'create','class':'CtrTextEdit','name':'edit','on':'page','frame':'frm'}");
    EXPECT_EQ(run.failure("{'op':'release','on':'edit.txtBox'}"), 5);
    run("{'op':'release','on':'edit'}");
    EXPECT_EQ(run.failure("{'op':'get','on':'edit','property':'Text'}"), 5);
    EXPECT_EQ(run("{'op':'create','class':'CtrTextEdit','name':'edit','on':'page','frame':'frm'}"),
              json("{'ok':true}"));
    EXPECT_EQ(run("{'op':'release','on':'page'}"), json("{'ok':true}"));
    EXPECT_EQ(run.failure("{'op':'dump','on':'frm'}"), 5);
    EXPECT_EQ(run.failure("{'op':'dump','on':'edit'}"), 5);
    EXPECT_EQ(run("{'op':'raise','event':'ViewSetCommunicationMode','args':[20]}"),
              json("{'ok':true}"));
}

TEST(ProbeSession, AnEditorThatDiedBehindItsBookingCostsNothing)
{
    Probe run;
    run(kDatafile);
    run("{'op':'create','class':'CtrTextEdit','name':'travel','tag':'ctr_travel'}");
    run("{'op':'create','class':'CtrChanges','name':'changes'}");
    run(call("travel", "setOfflineData", kTravel));
    run("{'op':'do','on':'travel.txtBox','action':'type','text':'6'}");
    run("{'op':'do','on':'changes','action':'show'}");
    run("{'op':'release','on':'travel'}");
    EXPECT_EQ(run("{'op':'do','on':'changes.cmdDownload','action':'click'}"), json("{'ok':true}"));
    EXPECT_EQ(run.calls("SetDownloadPhase"), (std::vector<Json>{json("[2]"), json("[3]")}));
}

TEST(ProbeSession, AControlMayStayWithoutMessenger)
{
    Probe run;
    run(kDatafile);
    run("{'op':'create','class':'CtrTextEdit','name':'travel','tag':'ctr_travel',"
        "'messenger':false}");
    run(call("travel", "setOfflineData", kTravel));
    EXPECT_TRUE(run.calls("SetParameterState").empty());
    run(call("travel", "SetMessenger", "{'messenger':true}"));
    run("{'op':'raise','event':'ViewSetCommunicationMode','args':[20]}");
    EXPECT_EQ(run.result("{'op':'get','on':'travel.txtBox','property':'Enabled'}"), false);
    run(call("travel", "SetMessenger", "null"));
    run("{'op':'raise','event':'ViewSetCommunicationMode','args':[11]}");
    EXPECT_EQ(run.result("{'op':'get','on':'travel.txtBox','property':'Enabled'}"), false);
}

TEST(ProbeSession, PlacesThatAreNoneAreRefused)
{
    Probe run;
    run("{'op':'create','class':'Label','name':'label'}");
    run("{'op':'page','name':'page'}");
    run("{'op':'page','name':'other'}");
    run("{'op':'create','class':'Frame','name':'frm','on':'other'}");
    EXPECT_EQ(run.failure("{'op':'create','class':'Label','name':'a','on':'label'}"), 5);
    EXPECT_EQ(run.failure("{'op':'create','class':'Label','name':'a','on':'none'}"), 5);
    EXPECT_EQ(run.failure("{'op':'create','class':'Label','name':'a','on':'page','frame':'frm'}"),
              5);
    EXPECT_EQ(run.failure("{'op':'create','class':'Label','name':'a','frame':'label'}"), 5);
    EXPECT_EQ(run.failure("{'op':'create','class':'Nothing','name':'a'}"), 5);
    EXPECT_EQ(run.failure("{'op':'create','class':'Label','name':''}"), 5);
    EXPECT_EQ(run.failure("{'op':'create','class':'Label','name':'label'}"), 5);
    EXPECT_EQ(run.failure("{'op':'create','class':'IQornView','name':'a'}"), 5);
    EXPECT_EQ(run("{'op':'create','class':'Label','name':'a'}"), json("{'ok':true}"));
}

} // namespace quill::probe::test
