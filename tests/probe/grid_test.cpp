#include "probe_run.h"

namespace quill::probe::test {

namespace {

/// A grid named "g" with the columns "name" and "unit" and three rows: row 2 lies under row 1.
class ProbeGrid : public testing::Test {
protected:
    ProbeGrid()
    {
        run("{'op':'create','class':'ImageList','name':'icons'}");
        run("{'op':'call','on':'icons','method':'Add','args':['alarm']}");
        run("{'op':'create','class':'Grid','name':'g'}");
        call("setImageList", "[{'control':'icons'}]");
        call("AddCol", "[{'Key':'name','Text':'Name','Width':80}]");
        call("AddCol", "[{'Key':'unit','Width':40}]");
        call("AddRow", "[]");
        call("AddRow", "[1]");
        call("AddRow", "[]");
    }
    Json call(const std::string& method, const std::string& args)
    {
        return run.result("{'op':'call','on':'g','method':'" + method + "','args':" + args + "}");
    }
    Json get(const std::string& property, const std::string& index = "")
    {
        return run.result(getLine(property, index));
    }
    static std::string getLine(const std::string& property, const std::string& index)
    {
        return "{'op':'get','on':'g','property':'" + property + "'" +
               (index.empty() ? "" : ",'index':" + index) + "}";
    }
    Json act(const std::string& action, const std::string& fields)
    {
        return run("{'op':'do','on':'g','action':'" + action + "'," + fields + "}");
    }

    Probe      run;
    const Json done    = json("{'ok':true}");
    const Json refused = json("{'ok':true,'result':'refused'}");
};

} // namespace

TEST_F(ProbeGrid, TellsItsRowsAndColumns)
{
    EXPECT_EQ(get("RowCount"), 3);
    EXPECT_EQ(get("ColCount"), 2);
    EXPECT_EQ(get("Rows"), json("[{'Visible':true,'Parent':0,'HasChildren':true},"
                                "{'Visible':true,'Parent':1,'HasChildren':false},"
                                "{'Visible':true,'Parent':0,'HasChildren':false}]"));
    EXPECT_EQ(get("Column", "1"), json("{'Width':80,'Key':'name','Visible':true}"));
    call("setColumnVisible", "[2,false]");
    call("setColumnWidth", "[2,55]");
    EXPECT_EQ(get("Column", "[2]"), json("{'Width':55,'Key':'unit','Visible':false}"));
    call("setRowVisible", "[3,false]");
    EXPECT_EQ(get("Rows")[2]["Visible"], false);
}

TEST_F(ProbeGrid, TellsEachCell)
{
    EXPECT_EQ(get("Cell", "[1,1]"), json("{'Text':'','Value':null,'Icon':'','BackColor':2147483653,"
                                         "'Editable':true,'List':''}"));
    call("setCellText", "[2,1,'°C']");
    call("setCellValue", "[2,1,-5]");
    call("setCellIcon", "[2,1,'alarm']");
    call("setCellBackColor", "[2,1,255]");
    call("setCellEditable", "[2,1,false]");
    call("AddCombo", "['units']");
    call("setCellList", "[2,1,'units']");
    EXPECT_EQ(get("Cell", "[2,1]"), json("{'Text':'°C','Value':-5,'Icon':'alarm','BackColor':255,"
                                         "'Editable':false,'List':'units'}"));
    call("setCellIcon", "[2,1,'']");
    call("setCellValue", "[2,1,null]");
    EXPECT_EQ(get("Cell", "[2,1]")["Icon"], "");
    EXPECT_EQ(get("Cell", "[2,1]")["Value"], nullptr);
}

TEST_F(ProbeGrid, TellsADropDownListByItsKey)
{
    call("AddCombo", "['units']");
    EXPECT_EQ(get("Combo", "'units'"), Json::array());
    call("AddComboItem", "['units','bar',7]");
    call("AddComboItem", "['units','psi',8]");
    EXPECT_EQ(get("Combo", "'units'"), json("[{'Text':'bar','Value':7},{'Text':'psi','Value':8}]"));
    EXPECT_EQ(run.failure(getLine("Combo", "'other'")), 5);
}

TEST_F(ProbeGrid, AnIndexOutsideIsASubscriptOutOfRange)
{
    for (const char* index : {"[0,1]", "[4,1]", "[1,0]", "[1,3]", "[-1,-1]", "[2147483647,1]"}) {
        EXPECT_EQ(run.failure(getLine("Cell", index)), 9) << index;
    }
    EXPECT_EQ(run.failure(getLine("Column", "0")), 9);
    EXPECT_EQ(run.failure(getLine("Column", "3")), 9);
    EXPECT_EQ(run.failure(getLine("RowExpanded", "4")), 9);
    EXPECT_EQ(run.failure("{'op':'call','on':'g','method':'setCellText','args':[9,1,'x']}"), 9);
    EXPECT_EQ(run.failure("{'op':'call','on':'g','method':'AddRow','args':[9]}"), 9);
}

TEST_F(ProbeGrid, AnIndexOfTheWrongShapeIsRefused)
{
    EXPECT_EQ(run.failure(getLine("Cell", "")), 5);
    EXPECT_EQ(run.failure(getLine("Cell", "1")), 5);
    EXPECT_EQ(run.failure(getLine("Cell", "[1,2,3]")), 5);
    EXPECT_EQ(run.failure(getLine("Cell", "['a',1]")), 13);
    EXPECT_EQ(run.failure(getLine("Cell", "[1.5,1]")), 13);
    EXPECT_EQ(run.failure(getLine("Combo", "1")), 13);
    EXPECT_EQ(run.failure(getLine("Rows", "1")), 5);
    EXPECT_EQ(run.failure("{'op':'set','on':'g','property':'Rows','value':[]}"), 438);
    EXPECT_EQ(run.failure("{'op':'set','on':'g','property':'Cell','index':[1,1],'value':1}"), 438);
}

TEST_F(ProbeGrid, AnEditIsCommitted)
{
    EXPECT_EQ(act("edit", "'row':3,'col':1,'text':'new'"), done);
    EXPECT_EQ(get("Cell", "[3,1]")["Text"], "new");
    EXPECT_EQ(get("EditRow"), 0);
    EXPECT_EQ(get("CurRow"), 3);
    EXPECT_EQ(get("CurCol"), 1);
}

TEST_F(ProbeGrid, AnEditThatIsNotCommittedIsOnlyTyped)
{
    EXPECT_EQ(act("edit", "'row':3,'col':1,'text':'ne','commit':false"), done);
    EXPECT_EQ(get("Cell", "[3,1]")["Text"], "");
    EXPECT_EQ(get("EditRow"), 3);
    EXPECT_EQ(get("EditCol"), 1);
    EXPECT_EQ(get("EditText"), "ne");
    // Whoever goes on to another cell has done with this one.
    EXPECT_EQ(act("clickCell", "'row':1,'col':1"), done);
    EXPECT_EQ(get("Cell", "[3,1]")["Text"], "ne");
    EXPECT_EQ(act("edit", "'row':3,'col':1,'value':12,'commit':false"), done);
    EXPECT_EQ(get("EditText"), "12");
}

TEST_F(ProbeGrid, AValueChoosesTheEntryOfTheDropDownList)
{
    call("AddCombo", "['units']");
    call("AddComboItem", "['units','bar',7]");
    call("setCellList", "[3,2,'units']");
    EXPECT_EQ(act("edit", "'row':3,'col':2,'value':7"), done);
    EXPECT_EQ(get("Cell", "[3,2]")["Text"], "bar");
    EXPECT_EQ(get("Cell", "[3,2]")["Value"], 7);
    EXPECT_EQ(act("edit", "'row':3,'col':2,'value':8"), refused);
    EXPECT_EQ(act("edit", "'row':3,'col':2,'text':'psi'"), refused);
    EXPECT_EQ(get("Cell", "[3,2]")["Text"], "bar");
}

TEST_F(ProbeGrid, ACheckCellIsClickedOrSet)
{
    call("setCellKind", "[3,2,'check']");
    EXPECT_EQ(act("clickCell", "'row':3,'col':2"), done);
    EXPECT_EQ(get("Cell", "[3,2]")["Value"], 1);
    EXPECT_EQ(act("edit", "'row':3,'col':2,'value':0"), done);
    EXPECT_EQ(get("Cell", "[3,2]")["Value"], 0);
    EXPECT_EQ(act("edit", "'row':3,'col':2,'value':2"), refused);
    EXPECT_EQ(run.failure("{'op':'call','on':'g','method':'setCellKind','args':[3,2,'round']}"), 5);
}

TEST_F(ProbeGrid, RowsAreSelectedAndFolded)
{
    EXPECT_EQ(act("select", "'rows':[3,1]"), refused);
    run("{'op':'set','on':'g','property':'MultiSelect','value':true}");
    EXPECT_EQ(act("select", "'rows':[3,1]"), done);
    EXPECT_EQ(get("SelectedRows"), json("[1,3]"));
    EXPECT_EQ(get("CurRow"), 3);
    EXPECT_EQ(act("expand", "'row':1,'expanded':false"), done);
    EXPECT_EQ(get("RowExpanded", "1"), false);
    EXPECT_EQ(act("clickCell", "'row':2,'col':1"), refused);
    EXPECT_EQ(act("expand", "'row':1"), done);
    EXPECT_EQ(act("clickCell", "'row':2,'col':1"), done);
    EXPECT_EQ(act("expand", "'row':2"), refused);
}

TEST_F(ProbeGrid, ACellThatAUserCannotReachRefuses)
{
    for (const char* action : {"clickCell", "rightClickCell", "hoverCell"}) {
        EXPECT_EQ(act(action, "'row':1,'col':1"), done) << action;
        EXPECT_EQ(act(action, "'row':0,'col':1"), refused) << action;
        EXPECT_EQ(act(action, "'row':1,'col':99"), refused) << action;
    }
    EXPECT_EQ(act("edit", "'row':-1,'col':1,'text':''"), refused);
    EXPECT_EQ(act("select", "'rows':[4]"), refused);
    EXPECT_EQ(act("expand", "'row':77"), refused);
    run("{'op':'set','on':'g','property':'Editable','value':false}");
    EXPECT_EQ(act("edit", "'row':1,'col':1,'text':'x'"), refused);
    run("{'op':'set','on':'g','property':'Enabled','value':false}");
    EXPECT_EQ(act("clickCell", "'row':1,'col':1"), refused);
}

TEST_F(ProbeGrid, AnActionWithTheWrongFieldsIsRefused)
{
    const auto failure = [&](const std::string& fields) {
        return run.failure("{'op':'do','on':'g','action':" + fields + "}");
    };
    EXPECT_EQ(failure("'edit','row':1,'col':1"), 5);
    EXPECT_EQ(failure("'edit','row':1,'text':'x'"), 5);
    EXPECT_EQ(failure("'edit','row':1,'col':1,'text':'x','value':1"), 5);
    EXPECT_EQ(failure("'edit','row':1,'col':1,'value':'x'"), 13);
    EXPECT_EQ(failure("'edit','row':1,'col':1,'text':'x','commit':1"), 13);
    EXPECT_EQ(failure("'clickCell','row':'1','col':1"), 13);
    EXPECT_EQ(failure("'hoverCell','col':1"), 5);
    EXPECT_EQ(failure("'type','text':'x'"), 438);
    run("{'op':'create','class':'ListView','name':'list'}");
    for (const char* action : {"edit','text':'", "clickCell", "expand"}) {
        EXPECT_EQ(run.failure(std::string{"{'op':'do','on':'list','action':'"} + action +
                              "','row':1,'col':1}"),
                  438);
    }
}

TEST_F(ProbeGrid, ADumpShowsAllOfIt)
{
    call("setCellText", "[2,2,'x']");
    const Json tree = run.result("{'op':'dump','on':'g'}");
    EXPECT_EQ(tree["class"], "Grid");
    const Json& properties = tree["properties"];
    ASSERT_EQ(properties["Cells"].size(), 3U);
    EXPECT_EQ(properties["Cells"][1][1], get("Cell", "[2,2]"));
    EXPECT_EQ(properties["Rows"], get("Rows"));
    EXPECT_EQ(properties["Columns"], json("[{'Width':80,'Key':'name','Visible':true,'Text':'Name'},"
                                          "{'Width':40,'Key':'unit','Visible':true,'Text':''}]"));
    EXPECT_EQ(properties["RowCount"], 3);
    EXPECT_EQ(properties["SelectedRows"], Json::array());
    EXPECT_EQ(properties.count("Cell"), 0U);
}

TEST_F(ProbeGrid, AGridShowsNoIconsOnceTheirListIsGone)
{
    call("setCellIcon", "[1,1,'alarm']");
    EXPECT_EQ(run("{'op':'release','on':'icons'}"), done);
    EXPECT_EQ(get("Cell", "[1,1]")["Icon"], "");
    EXPECT_EQ(run.failure("{'op':'call','on':'g','method':'setCellIcon','args':[1,1,'alarm']}"), 5);
    EXPECT_EQ(run("{'op':'call','on':'g','method':'setImageList','args':[null]}"), done);
}

TEST_F(ProbeGrid, AGridDoesNotGrowWithoutEnd)
{
    EXPECT_EQ(run("{'op':'set','on':'g','property':'RowCount','value':5000}"), done);
    EXPECT_EQ(get("RowCount"), 5000);
    EXPECT_EQ(run.failure("{'op':'set','on':'g','property':'RowCount','value':2147483647}"), 6);
    EXPECT_EQ(run.failure("{'op':'set','on':'g','property':'RowCount','value':-1}"), 5);
    EXPECT_EQ(run("{'op':'set','on':'g','property':'RowCount','value':100000}"), done);
    EXPECT_EQ(run.failure("{'op':'call','on':'g','method':'AddCol','args':[{}]}"), 6);
    EXPECT_EQ(run.failure("{'op':'call','on':'g','method':'AddRow'}"), 6);
    EXPECT_EQ(run("{'op':'call','on':'g','method':'Clear'}"), done);
    EXPECT_EQ(get("RowCount"), 0);
    EXPECT_EQ(get("ColCount"), 0);
}

} // namespace quill::probe::test
