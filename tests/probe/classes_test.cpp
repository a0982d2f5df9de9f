#include "probe_run.h"

#include "probe/registry.h"

namespace quill::probe::test {

namespace {

/// The names of all classes that lines can create.
std::vector<std::string> creatable()
{
    std::vector<std::string> names;
    for (const ClassEntry& entry : Registry::instance().classes()) {
        if (entry.create) {
            names.push_back(entry.name);
        }
    }
    return names;
}

std::string createLine(const std::string& name)
{
    return "{'op':'create','class':'" + name + "','name':'c','tag':'ctr_c','on':'page'}";
}

/// Whether the object does not have the member at all.
bool isUnknown(const Json& reply)
{
    return !reply["ok"].get<bool>() && reply["error"]["number"] == 438;
}

/// Lists of arguments that hardly anything was made for.
const std::vector<std::string> kOddArguments{
    "[]",
    "[null]",
    "['']",
    "['x']",
    "[-1]",
    "[true]",
    "[{}]",
    "[{'doc':'d'}]",
    "[{'doc':'d','select':'//*'}]",
    "[{'doc':'d','select':'//*','all':true}]",
    "[{'control':'c'}]",
    "[null,null]",
    "['','']",
    "[0,0]",
    "[32767,32767]",
    "[-1,{'doc':'d','select':'//*'}]",
    "['x',true]",
    "['x',-1]",
    "[{'control':'c'},'',0]",
    "[0,0,0]",
    "[1,1,'']",
    "[255,-1,-32768]",
    "[null,null,null]",
};

const char* const kOddDocument =
    "{'op':'document','id':'d','xml':'<deviceStatus name=\\\"statusMask0\\\" value=\\\"G\\\" "
    "type=\\\"\\\" maskByte=\\\"-7\\\" maskBit=\\\"9\\\"><a/><!-- --><b name=\\\"\\\">"
    "<integerVal>x</integerVal></b></deviceStatus>'}";

} // namespace

TEST(ProbeClasses, EveryControlOfTheLibraryIsThere)
{
    const auto names = creatable();
    for (const char* name :
         {"CtrTextEdit",         "CtrComboEdit", "CtrOptionEdit",  "CtrCheckEdit",
          "CtrTimeEdit",         "CtrDateEdit",  "CtrDateLabel",   "CtrFocusTransfer",
          "CtrTBLaunchedPanel",  "CtrChanges",   "CtrEventLog",    "CtrSettings",
          "CtrStatus",           "CtrStatusF",   "StatusSeverity", "StatusNAMUR",
          "StatusConfiguration", "CtrReset",     "CtrHartAddress", "CtrMACalibration",
          "CtrModuleSelection",  "Grid",         "ImageList"}) {
        EXPECT_NE(std::find(names.begin(), names.end(), name), names.end()) << name;
    }
}

TEST(ProbeClasses, EveryClassIsCreatedNamedDumpedAndReleased)
{
    for (const auto& name : creatable()) {
        Probe run;
        run("{'op':'page','name':'page'}");
        EXPECT_EQ(run(createLine(name)), json("{'ok':true}")) << name;
        EXPECT_EQ(run.result("{'op':'get','on':'c','property':'Tag'}"), "ctr_c") << name;
        EXPECT_EQ(run.result("{'op':'dump','on':'c'}")["class"], name);
        EXPECT_EQ(run.result("{'op':'dump','on':'page'}")["children"][0]["name"], "c");
        EXPECT_EQ(run("{'op':'release','on':'c'}"), json("{'ok':true}")) << name;
        EXPECT_EQ(run.failure("{'op':'dump','on':'c'}"), 5) << name;
    }
}

TEST(ProbeClasses, EveryPropertyIsReadOrRefused)
{
    for (const auto& name : creatable()) {
        Probe run;
        run("{'op':'page','name':'page'}");
        run(createLine(name));
        for (const ClassEntry& entry : Registry::instance().classes()) {
            for (const auto& [property, member] : entry.properties) {
                for (const char* index : {"[]", "[0]", "[1,1]", "['x']", "[-1,99999]"}) {
                    const Json reply = run("{'op':'get','on':'c','property':'" + property +
                                           "','index':" + index + "}");
                    EXPECT_TRUE(reply.count("ok")) << name << "." << property;
                    if (isUnknown(reply)) {
                        break;
                    }
                }
            }
        }
    }
}

TEST(ProbeClasses, NoMethodFallsOverOddArguments)
{
    for (const auto& name : creatable()) {
        Probe run;
        run(kOddDocument);
        run("{'op':'host','deviceTypeInfo':'<a><deviceStatus><b name=\\\"b\\\"><s/></b>"
            "</deviceStatus></a>'}");
        run("{'op':'page','name':'page'}");
        run(createLine(name));
        for (const ClassEntry& entry : Registry::instance().classes()) {
            for (const auto& [method, member] : entry.methods) {
                for (const auto& args : kOddArguments) {
                    const Json reply =
                        run("{'op':'call','on':'c','method':'" + method + "','args':" + args + "}");
                    EXPECT_TRUE(reply.count("ok")) << name << "." << method << args;
                    if (isUnknown(reply)) {
                        break;
                    }
                }
            }
        }
        EXPECT_EQ(run("{'op':'dump','on':'page'}")["ok"], true) << name;
    }
}

TEST(ProbeClasses, EveryControlSurvivesItsLifeWithoutAMessenger)
{
    for (const auto& name : creatable()) {
        Probe run;
        run(kOddDocument);
        EXPECT_EQ(run("{'op':'create','class':'" + name +
                      "','name':'c','tag':'ctr_c','messenger':false}")["ok"],
                  true)
            << name;
        for (const char* line :
             {"{'op':'call','on':'c','method':'Localize','args':[{'translator':true}]}",
              "{'op':'call','on':'c','method':'SetOfflineData','args':[{'doc':'d'}]}",
              "{'op':'call','on':'c','method':'SetImportData','args':[{'doc':'d'}]}",
              "{'op':'call','on':'c','method':'SetOnlineData','args':[{'doc':'d'}]}",
              "{'op':'call','on':'c','method':'SetErrorData','args':[{'doc':'d'}]}",
              "{'op':'call','on':'c','method':'SetSelectedView','args':['x']}",
              "{'op':'call','on':'c','method':'RequestFocus','args':[]}",
              "{'op':'call','on':'c','method':'LeaveSelectedView','args':[]}",
              "{'op':'do','on':'c','action':'show'}",
              "{'op':'do','on':'c','action':'press','key':9}",
              "{'op':'do','on':'c','action':'resize','width':0,'height':100000000}",
              "{'op':'do','on':'c','action':'resize','width':100000000,'height':100000000}",
              "{'op':'raise','event':'ViewSetCommunicationMode','args':[20]}",
              "{'op':'call','on':'c','method':'PrepareToRelease','args':[]}",
              "{'op':'call','on':'c','method':'SetOnlineData','args':[{'doc':'d'}]}"}) {
            EXPECT_TRUE(run(line).count("ok")) << name << line;
        }
    }
}

// --- Classes without a widget -----------------------------------------------------------------

TEST(ProbeClasses, AStatusClassIsCreatedCalledAndReleased)
{
    Probe run;
    run("{'op':'document','id':'t','xml':'<d><s name=\\\"a\\\" class=\\\"alarm\\\"/></d>'}");
    EXPECT_EQ(run("{'op':'create','class':'StatusSeverity','name':'sev'}"), json("{'ok':true}"));
    const auto call = [&](const std::string& method, const std::string& args) {
        return run.result("{'op':'call','on':'sev','method':'" + method + "','args':" + args + "}");
    };
    EXPECT_EQ(call("ImageNotRead", "[]"), "notMonitored");
    EXPECT_EQ(call("ReadClass", "[{'doc':'t','select':'//s'}]"), "alarm");
    EXPECT_EQ(call("GetClass", "['a']"), "alarm");
    EXPECT_EQ(call("SetClass", "['a','info']"), nullptr);
    EXPECT_EQ(call("GetClass", "['a']"), "info");
    EXPECT_EQ(call("GetWorst", "['notMonitored','inactive']"), "inactive");
    EXPECT_EQ(call("ReadClass", "[null]"), "");
    EXPECT_EQ(run.reports.at(0)["debug"], "StatusSeverity ReadClass error 91: Object variable or "
                                          "With block variable not set");
    EXPECT_EQ(run("{'op':'release','on':'sev'}"), json("{'ok':true}"));
    EXPECT_EQ(run.failure("{'op':'call','on':'sev','method':'ImageOk'}"), 5);
}

TEST(ProbeClasses, NAMURAnswersItsOwnImages)
{
    Probe run;
    run("{'op':'create','class':'StatusNAMUR','name':'n'}");
    EXPECT_EQ(run.result("{'op':'call','on':'n','method':'ImageUnknown'}"),
              "deviceDiagnosisPassiv");
    EXPECT_EQ(run.failure("{'op':'call','on':'n','method':'AddBit','args':[0,null]}"), 438);
    EXPECT_EQ(run.failure("{'op':'get','on':'n','property':'miPartLength'}"), 438);
}

TEST(ProbeClasses, AMaskModelHasTheMessengerAndShowsItsState)
{
    Probe run;
    run("{'op':'document','id':'t','xml':'<d><s name=\\\"a\\\" maskByte=\\\"0\\\" "
        "maskBit=\\\"1\\\"/><p name=\\\"statusMask1\\\" type=\\\"hexVal\\\" unit=\\\"noUnit\\\" "
        "value=\\\"0200\\\" synchronised=\\\"1\\\"/></d>'}");
    run("{'op':'create','class':'StatusConfiguration','name':'m'}");
    const auto call = [&](const std::string& method, const std::string& args) {
        return run.result("{'op':'call','on':'m','method':'" + method + "','args':" + args + "}");
    };
    const auto get = [&](const std::string& property) {
        return run.result("{'op':'get','on':'m','property':'" + property + "'}");
    };
    call("SetMaskProperties", "[255,12,3]");
    EXPECT_EQ(get("miPartLength"), 8);
    EXPECT_EQ(get("miPartCount"), 3);
    EXPECT_EQ(get("miLastBit"), -1);
    EXPECT_EQ(get("maOfflineNode"), json("[null,null]"));
    call("AddBit", "[0,{'doc':'t','select':'//s'}]");
    call("AddBit", "[1,null]");
    call("SetOfflineParameters", "[{'doc':'t','select':'//p','all':true}]");
    EXPECT_EQ(run.calls("WriteLog").front(),
              json("[69,'StatusConfiguration SetOfflineParameters entered']"));
    EXPECT_EQ(call("IsEnabled", "['a']"), true);
    EXPECT_EQ(get("miPartLength"), 4);
    EXPECT_EQ(get("miLastBit"), 1);
    EXPECT_EQ(get("mastrMaskParts"), json("['0200']"));
    EXPECT_EQ(get("mastrBitNames"), json("['a','']"));
    EXPECT_EQ(get("maiMaskByte"), json("[0,-1]"));
    EXPECT_EQ(get("maiMaskBit"), json("[1,-1]"));
    EXPECT_EQ(get("maiEnabled"), json("[1,0]"));
    call("SetEnabled", "['a',false]");
    EXPECT_EQ(run.result("{'op':'xml','id':'t','select':'//p/@value'}"), json("['0000']"));
    EXPECT_EQ(call("GetXmlItem", "[true]"), "<items><item name=\"statusMask1\" unit=\"noUnit\">"
                                            "<hexVal>0000</hexVal></item></items>");
    EXPECT_EQ(call("IsEnabled", "['b']"), false);
    EXPECT_EQ(run.calls("ReportError"),
              std::vector<Json>{json("['clsStatusConfiguration IsEnabled',9,"
                                     "'Subscript out of range']")});
    EXPECT_EQ(run.failure("{'op':'call','on':'m','method':'AddBit','args':[40000,null]}"), 6);
}

TEST(ProbeClasses, AnObjectWithoutAWidgetLivesOnAPageThatIsServed)
{
    Probe run;
    run(kOddDocument);
    run("{'op':'page','name':'page'}");
    run("{'op':'create','class':'StatusConfiguration','name':'m','on':'page'}");
    run("{'op':'create','class':'StatusNAMUR','name':'n','on':'page','tag':'ctr_x'}");
    for (const char* line :
         {"{'op':'call','on':'page','method':'SetOfflineData','args':[{'doc':'d'}]}",
          "{'op':'call','on':'page','method':'Localize','args':[{'translator':true}]}",
          "{'op':'call','on':'page','method':'RequestFocus'}", "{'op':'release','on':'page'}"}) {
        EXPECT_EQ(run(line), json("{'ok':true}")) << line;
    }
    EXPECT_EQ(run.failure("{'op':'call','on':'m','method':'IsEnabled','args':['a']}"), 5);
}

// --- A list view in use -----------------------------------------------------------------------

TEST(ProbeClasses, TheEventLogIsReadSelectedAndCopied)
{
    Probe run;
    run("{'op':'document','id':'r','xml':'<comm:dtm "
        "xmlns:comm=\\\"x-schema:QVXCommunicationSchema.xml\\\"><comm:communicationResponse "
        "name=\\\"eventLog\\\" access=\\\"read\\\" responseStatus=\\\"ok\\\" errorCode=\\\"\\\" "
        "isFinal=\\\"1\\\">"
        "<comm:item name=\\\"eventLogEvent00\\\"><comm:stringVal>e0</comm:stringVal></comm:item>"
        "<comm:item name=\\\"eventLogClass00\\\"><comm:stringVal>c0</comm:stringVal></comm:item>"
        "<comm:item name=\\\"eventLogTime00\\\"><comm:floatVal>12.5</comm:floatVal></comm:item>"
        "<comm:item name=\\\"eventLogEvent01\\\"><comm:stringVal>e1</comm:stringVal></comm:item>"
        "</comm:communicationResponse></comm:dtm>'}");
    run("{'op':'create','class':'CtrEventLog','name':'log','tag':'eventLog'}");
    run("{'op':'call','on':'log','method':'SetOnlineData','args':[{'doc':'r'}]}");
    const Json rows = run.result("{'op':'get','on':'log.lsvEventLog','property':'ListItems'}");
    ASSERT_GE(rows.size(), 1U);
    EXPECT_EQ(run.result("{'op':'get','on':'log.lsvEventLog(0)','property':'FirstVisible'}"), 1);
    EXPECT_EQ(run("{'op':'do','on':'log.lsvEventLog','action':'select','rows':[1]}"),
              json("{'ok':true}"));
    EXPECT_EQ(run.result("{'op':'get','on':'log.lsvEventLog','property':'SelectedItem'}"), 1);
    run("{'op':'do','on':'log.lsvEventLog','action':'press','key':65,'shift':2}");
    run("{'op':'do','on':'log.lsvEventLog','action':'press','key':67,'shift':2}");
    const std::string text =
        run.result("{'op':'get','on':'toolkit','property':'Clipboard'}").get<std::string>();
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), static_cast<std::ptrdiff_t>(rows.size()));
    EXPECT_EQ(run.result("{'op':'get','on':'log','property':'mblnIsHART'}"), true);
    EXPECT_EQ(run.failure("{'op':'get','on':'log','property':'maEventNodes','index':[99,0]}"), 9);
    EXPECT_EQ(run.result("{'op':'get','on':'log','property':'maEventNodes','index':[0,0]}"),
              nullptr);
}

} // namespace quill::probe::test
