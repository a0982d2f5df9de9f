#include "probe_run.h"

namespace quill::probe::test {

TEST(ProbeRobustness, ALineThatIsNoObjectIsAnsweredAndTheProbeGoesOn)
{
    Probe run;
    for (const char* line : {"x", "[]", "1", "null", "{", "{}", "{\"op\":1}", "{\"op\":\"get\"}",
                             "\xff\xfe", "{\"op\":\"\xc3\"}", "\"text\"", "{\"op\":1e400}"}) {
        EXPECT_EQ(run.raw(line).value("ok", true), false) << line;
    }
    EXPECT_EQ(run("{'op':'host'}"), json("{'ok':true}"));
    EXPECT_FALSE(run.allOk());
}

TEST(ProbeRobustness, ABlankLineIsAnsweredLikeAnyOtherThatIsNoObject)
{
    Probe run;
    EXPECT_EQ(run.raw("")["ok"], false);
    EXPECT_EQ(run.raw("  \t\r")["ok"], false);
    EXPECT_FALSE(run.allOk());
}

TEST(ProbeRobustness, AbsurdNestingIsRefused)
{
    Probe             run;
    const std::string deep(100000, '[');
    EXPECT_EQ(run.raw("{\"op\":" + deep)["error"]["number"], 5);
    EXPECT_EQ(run.raw("{\"op\":\"host\",\"dataset\":\"" + deep + "\"}"), json("{'ok':true}"));
}

TEST(ProbeRobustness, PagesDoNotNestWithoutEnd)
{
    Probe run;
    run("{'op':'page','name':'p0'}");
    int deepest = 0;
    for (int i = 1; i < 1000; ++i) {
        const auto reply = run("{'op':'page','name':'p" + std::to_string(i) + "','on':'p" +
                               std::to_string(i - 1) + "'}");
        if (!reply["ok"].get<bool>()) {
            break;
        }
        deepest = i;
    }
    EXPECT_GT(deepest, 10);
    EXPECT_LT(deepest, 999);
    EXPECT_EQ(run("{'op':'dump','on':'p0'}")["ok"], true);
}

TEST(ProbeRobustness, LongNamesAreJustUnknown)
{
    Probe run;
    EXPECT_EQ(run.failure("{'op':'dump','on':'" + std::string(1000000, '.') + "'}"), 5);
    EXPECT_EQ(run.failure("{'op':'dump','on':''}"), 5);
    run("{'op':'page','name':'p'}");
    for (const char* name : {"p.", ".p", "p..", "p.(", "p.(0)", "p()", "p.x.y"}) {
        EXPECT_EQ(run.failure(std::string{"{'op':'dump','on':'"} + name + "'}"), 5) << name;
    }
}

TEST(ProbeRobustness, ObjectsWithManyKeysTakeNoLongerThanTheirLength)
{
    Probe       run;
    std::string line = "{'op':'host','translations':{'k':'v'";
    for (int i = 0; i < 100000; ++i) {
        line += ",'k" + std::to_string(i) + "':'v'";
    }
    EXPECT_EQ(run(line + "}}"), json("{'ok':true}"));
}

TEST(ProbeRobustness, AnEditorPairedWithItselfDoesNotRunInCircles)
{
    Probe run;
    run("{'op':'document','id':'df','xml':'<p type=\\\"floatVal\\\" value=\\\"1\\\"/>'}");
    run("{'op':'create','class':'CtrTextEdit','name':'e'}");
    run("{'op':'call','on':'e','method':'setOfflineData','args':[{'doc':'df','select':'/p'}]}");
    run("{'op':'call','on':'e','method':'setParameterPair','args':[{'control':'e'},'min',1]}");
    EXPECT_EQ(run("{'op':'do','on':'e.txtBox','action':'type','text':'5'}")["ok"], true);
}

TEST(ProbeRobustness, AnExpressionThatTakesForEverFails)
{
    Probe       run;
    std::string xml = "<a>";
    for (int i = 0; i < 3000; ++i) {
        xml += "<b/>";
    }
    run("{'op':'document','id':'d','xml':'" + xml + "</a>'}");
    EXPECT_EQ(run.failure("{'op':'xml','id':'d','select':'//*[count(//*[count(//*)>0])>0]'}"), 5);
    EXPECT_EQ(run.result("{'op':'xml','id':'d','select':'//b'}").size(), 3000U);
}

TEST(ProbeRobustness, LengthsThatNoScreenHasAreRefused)
{
    Probe run;
    run("{'op':'create','class':'CtrTextEdit','name':'e'}");
    for (const char* name : {"Left", "Top", "Width", "Height", "ZPosition"}) {
        for (const char* length : {"-2147483648", "2147483647"}) {
            EXPECT_EQ(run.failure(std::string{"{'op':'set','on':'e','property':'"} + name +
                                  "','value':" + length + "}"),
                      6);
        }
    }
    EXPECT_EQ(run.failure("{'op':'do','on':'e','action':'resize','width':-1,'height':5}"), 6);
    run("{'op':'host','textWidth':10000}");
    EXPECT_EQ(run("{'op':'call','on':'e','method':'setVisibleUnit','args':['" +
                  std::string(1000000, 'x') + "']}")["ok"],
              true);
}

TEST(ProbeRobustness, ATextThatIsNoUtf8ComesOutReplaced)
{
    Output out{[](const std::string& line) { EXPECT_NE(line.find("\xEF\xBF\xBD"), line.npos); }};
    Reply  reply;
    reply["result"] = "a\xff";
    out.line(reply);
}

} // namespace quill::probe::test
