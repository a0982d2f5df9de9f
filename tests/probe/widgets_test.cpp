#include "probe_run.h"

namespace quill::probe::test {

TEST(ProbeWidgets, EveryKindOfWidgetIsCreatedByItsName)
{
    for (const char* kind :
         {"Label", "TextBox", "ListView", "ComboBox", "CommandButton", "CheckBox", "OptionButton",
          "Frame", "PictureBox", "Image", "ImageList", "Menu", "DatePicker"}) {
        Probe run;
        EXPECT_EQ(run(std::string{"{'op':'create','class':'"} + kind + "','name':'w','tag':'t'}"),
                  json("{'ok':true}"))
            << kind;
        EXPECT_EQ(run.result("{'op':'get','on':'w','property':'Tag'}"), "t") << kind;
        EXPECT_EQ(run.result("{'op':'dump','on':'w'}")["class"], kind);
    }
}

TEST(ProbeWidgets, TypingPutsTheCursorBehindTheText)
{
    Probe run;
    run("{'op':'create','class':'TextBox','name':'box'}");
    EXPECT_EQ(run("{'op':'do','on':'box','action':'type','text':'größer'}"), json("{'ok':true}"));
    EXPECT_EQ(run.result("{'op':'get','on':'box','property':'Text'}"), "größer");
    EXPECT_EQ(run.result("{'op':'get','on':'box','property':'SelStart'}"), 6);
}

TEST(ProbeWidgets, AWidgetThatRefusesTheUserSaysSo)
{
    Probe run;
    run("{'op':'create','class':'TextBox','name':'box'}");
    run("{'op':'set','on':'box','property':'Locked','value':true}");
    EXPECT_EQ(run("{'op':'do','on':'box','action':'type','text':'5'}"),
              json("{'ok':true,'result':'refused'}"));
    EXPECT_EQ(run.result("{'op':'get','on':'box','property':'Text'}"), "");
}

TEST(ProbeWidgets, AComboBoxShowsItsRows)
{
    Probe run;
    run("{'op':'create','class':'ComboBox','name':'box'}");
    run("{'op':'call','on':'box','method':'AddItem','args':['on']}");
    run("{'op':'call','on':'box','method':'AddItem','args':['off',7]}");
    EXPECT_EQ(run.result("{'op':'get','on':'box','property':'List'}"), json("['on','off']"));
    EXPECT_EQ(run.result("{'op':'get','on':'box','property':'ItemData'}"), json("[0,7]"));
    EXPECT_EQ(run.result("{'op':'get','on':'box','property':'ListIndex'}"), -1);
    run("{'op':'do','on':'box','action':'choose','index':1}");
    EXPECT_EQ(run.result("{'op':'get','on':'box','property':'Text'}"), "off");
    EXPECT_EQ(run.result("{'op':'do','on':'box','action':'choose','index':2}"), "refused");
    EXPECT_EQ(run.failure("{'op':'set','on':'box','property':'ListIndex','value':9}"), 5);
}

TEST(ProbeWidgets, ColumnHeadersAreWrittenAndRead)
{
    Probe run;
    run("{'op':'create','class':'ListView','name':'list'}");
    run("{'op':'set','on':'list','property':'ColumnHeaders',"
        "'value':[{'Text':'Old','Tag':'old','Width':900},{'Tag':'new'}]}");
    EXPECT_EQ(run.result("{'op':'get','on':'list','property':'ColumnHeaders'}"),
              json("[{'Text':'Old','Tag':'old','Width':900},{'Text':'','Tag':'new','Width':0}]"));
    EXPECT_EQ(run.result("{'op':'get','on':'list','property':'ListItems'}"), Json::array());
    EXPECT_EQ(run.result("{'op':'get','on':'list','property':'SelectedItem'}"), 0);
}

TEST(ProbeWidgets, CheckBoxesOptionsAndButtonsAreClicked)
{
    Probe run;
    run("{'op':'page','name':'page'}");
    run("{'op':'create','class':'CheckBox','name':'check','on':'page'}");
    run("{'op':'create','class':'OptionButton','name':'one','on':'page'}");
    run("{'op':'create','class':'OptionButton','name':'two','on':'page'}");
    run("{'op':'do','on':'check','action':'click'}");
    EXPECT_EQ(run.result("{'op':'get','on':'check','property':'Value'}"), 1);
    run("{'op':'do','on':'one','action':'click'}");
    run("{'op':'do','on':'two','action':'click'}");
    EXPECT_EQ(run.result("{'op':'get','on':'one','property':'Value'}"), false);
    EXPECT_EQ(run.result("{'op':'get','on':'two','property':'HasFocus'}"), true);
    EXPECT_EQ(run.failure("{'op':'do','on':'one','action':'choose','index':1}"), 438);
}

TEST(ProbeWidgets, ADatePickerTakesIsoTexts)
{
    Probe run;
    run("{'op':'create','class':'DatePicker','name':'picker'}");
    run("{'op':'set','on':'picker','property':'MaxDate','value':'2030-01-01'}");
    run("{'op':'do','on':'picker','action':'pick','text':'2024-02-29 10:20'}");
    EXPECT_EQ(run.result("{'op':'get','on':'picker','property':'Value'}"), "2024-02-29 10:20:00");
    EXPECT_EQ(run.result("{'op':'do','on':'picker','action':'pick','text':'2031-01-01'}"),
              "refused");
    EXPECT_EQ(run.failure("{'op':'set','on':'picker','property':'Value','value':'soon'}"), 13);
}

TEST(ProbeWidgets, ColoursAreUnsignedNumbers)
{
    Probe run;
    run("{'op':'create','class':'TextBox','name':'box'}");
    EXPECT_EQ(run.result("{'op':'get','on':'box','property':'BackColor'}"), 2147483653U);
    run("{'op':'set','on':'box','property':'ForeColor','value':4294967295}");
    EXPECT_EQ(run.result("{'op':'get','on':'box','property':'ForeColor'}"), 4294967295U);
    EXPECT_EQ(run.failure("{'op':'set','on':'box','property':'ForeColor','value':-1}"), 6);
}

TEST(ProbeWidgets, APropertyOfTheWrongTypeOrNameIsRefused)
{
    Probe run;
    run("{'op':'create','class':'TextBox','name':'box'}");
    EXPECT_EQ(run.failure("{'op':'set','on':'box','property':'Visible','value':'yes'}"), 13);
    EXPECT_EQ(run.failure("{'op':'set','on':'box','property':'Width','value':1e300}"), 6);
    EXPECT_EQ(run.failure("{'op':'set','on':'box','property':'Width','value':1.5}"), 13);
    EXPECT_EQ(run.failure("{'op':'set','on':'box','property':'HasFocus','value':true}"), 438);
    EXPECT_EQ(run.failure("{'op':'get','on':'box','property':'Caption'}"), 438);
    EXPECT_EQ(run.failure("{'op':'get','on':'box.lblError','property':'Caption'}"), 5);
    EXPECT_EQ(run.failure("{'op':'get','on':'box','property':'Text','index':1}"), 5);
}

TEST(ProbeWidgets, AWholeFloatIsAWholeNumber)
{
    Probe run;
    run("{'op':'create','class':'TextBox','name':'box'}");
    run("{'op':'set','on':'box','property':'Width','value':1500.0}");
    EXPECT_EQ(run.result("{'op':'get','on':'box','property':'Width'}"), 1500);
}

TEST(ProbeWidgets, ADumpIsATreeByContainer)
{
    Probe run;
    run("{'op':'page','name':'page','tag':'p','type':'VwOnlineDiag'}");
    run("{'op':'create','class':'Frame','name':'frm','on':'page','index':1}");
    run("{'op':'create','class':'Label','name':'inside','on':'page','frame':'frm(1)'}");
    run("{'op':'create','class':'Label','name':'beside','on':'page'}");
    const Json tree = run.result("{'op':'dump','on':'page'}");
    EXPECT_EQ(tree["class"], "VwOnlineDiag");
    EXPECT_EQ(tree["properties"]["Tag"], "p");
    ASSERT_EQ(tree["children"].size(), 2U);
    EXPECT_EQ(tree["children"][0]["name"], "frm(1)");
    EXPECT_EQ(tree["children"][0]["children"][0]["name"], "inside");
    EXPECT_EQ(tree["children"][1]["name"], "beside");
    EXPECT_EQ(run.result("{'op':'dump','on':'frm(1)'}"), tree["children"][0]);
}

TEST(ProbeWidgets, KeysClimbAndSizesAndVisibilityAreTheUsers)
{
    Probe run;
    run("{'op':'page','name':'page'}");
    run("{'op':'create','class':'TextBox','name':'box','on':'page'}");
    EXPECT_EQ(run("{'op':'do','on':'box','action':'press','key':13,'shift':1}"),
              json("{'ok':true}"));
    run("{'op':'do','on':'page','action':'resize','width':900,'height':600}");
    EXPECT_EQ(run.result("{'op':'get','on':'page','property':'Width'}"), 900);
    run("{'op':'do','on':'page','action':'hide'}");
    EXPECT_EQ(run.result("{'op':'do','on':'box','action':'focus'}"), "refused");
    run("{'op':'do','on':'page','action':'show'}");
    EXPECT_EQ(run("{'op':'do','on':'box','action':'focus'}"), json("{'ok':true}"));
    run("{'op':'do','on':'box','action':'blur'}");
    EXPECT_EQ(run.result("{'op':'get','on':'box','property':'HasFocus'}"), false);
}

} // namespace quill::probe::test
