#include "editors/CtrComboEdit.h"
#include "editors/CtrDateLabel.h"
#include "editors/CtrTextEdit.h"
#include "framework/documents.h"
#include "records/CtrChanges.h"
#include "support/recording_messenger.h"
#include "support/recording_translator.h"
#include "support/test_documents.h"
#include "support/test_page.h"
#include "support/toolkit_scope.h"

#include <gmock/gmock.h>

namespace quill::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A page with real editors and the dialog, both at one host: from the datafile to the request.
class ChangesOfAPage : public testing::Test {
protected:
    ToolkitScope        toolkit;
    RecordingTranslator translator;
    RecordingMessenger  host;
    IXMLDOMDocument     data = datafile(
            R"(<data:parameter name="travel" type="floatVal" value="5" unit="bar" decimals="1" minVal="0"
             maxVal="100" access="readWrite" synchronised="1"/>
           <data:parameter name="alarmAction" type="integerVal" value="1" unit="noUnit" minVal=""
             maxVal="" access="readWrite" synchronised="1"/>)",
            R"(<data:mappedParam name="action"><data:mapping value="0" name="off"/>
             <data:mapping value="1" name="on"/></data:mappedParam>)",
            R"(<data:requestGroup name="control" lastUpdate="01.02.2019 10:11:12">
             <data:includedParam name="travel"/><data:includedParam name="alarmAction"/>
           </data:requestGroup>)");

    TestPage     page{{.Name = "page"}};
    CtrTextEdit  travel{page, {.Name = "travel", .Tag = "ctr_travel"}};
    CtrComboEdit action{page, {.Name = "action", .Tag = "ctr_alarmAction"}};
    CtrDateLabel date{page, {.Name = "date", .Tag = "date_control"}};
    CtrChanges   dialog{{.Name = "changes", .Visible = false}};

    void SetUp() override
    {
        host.translator = &translator;
        page.SetMessenger(&host);
        page.Localize(translator);
        page.SetOfflineData(data);
        dialog.SetMessenger(&host);
        dialog.Localize(translator);
        host.clear();
    }
};

TEST_F(ChangesOfAPage, TheDatafileReachesEveryEditor)
{
    EXPECT_EQ(travel.Text(), "5.0");
    EXPECT_EQ(travel.ContextTag(), "control");
    EXPECT_EQ(action.Text(), "on") << "out of the shared list";
    EXPECT_EQ(action.ContextTag(), "control");
    EXPECT_EQ(date.Caption(), "2019-02-01 10:11:12");
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(ChangesOfAPage, AResponseReachesEveryEditor)
{
    page.SetOnlineData(okResponse("control", item("travel", "bar", "floatVal", "7") +
                                                 item("alarmAction", "noUnit", "integerVal", "0")));
    EXPECT_EQ(travel.Text(), "7.0");
    EXPECT_EQ(action.Text(), "off");
    EXPECT_EQ(date.Caption(), "2024-05-06 07:08:09");
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(ChangesOfAPage, AnEditGoesThroughTheDialogIntoOneRequest)
{
    travel.txtBox.type("8");
    action.cboBox.choose(0);
    dialog.show();
    ASSERT_EQ(dialog.lstChanges.Count(), 2);
    host.clear();
    dialog.cmdDownload.click();
    EXPECT_THAT(
        host.callsTo("SendCommunicationRequest"),
        ElementsAre("SendCommunicationRequest(<communicationRequest name=\"control\" "
                    "access=\"writeOffline\"><item name=\"travel\" unit=\"bar\"><floatVal>8"
                    "</floatVal></item><item name=\"alarmAction\" unit=\"noUnit\"><integerVal>0"
                    "</integerVal></item></communicationRequest>, control)"));
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(ChangesOfAPage, WithoutAnEditTheDialogIsEmpty)
{
    dialog.show();
    EXPECT_EQ(dialog.lstChanges.Count(), 0);
}

TEST_F(ChangesOfAPage, TheCheckBoxBringsWhatWasNotEdited)
{
    travel.txtBox.type("8");
    dialog.show();
    EXPECT_EQ(dialog.lstChanges.Count(), 1);
    dialog.chkChanges.click();
    ASSERT_EQ(dialog.lstChanges.Count(), 2);
    EXPECT_THAT(dialog.lstChanges.Item(1).SubItems, ElementsAre("5.0", "8"));
    EXPECT_THAT(dialog.lstChanges.Item(2).SubItems, ElementsAre("on", "on"));
}

TEST_F(ChangesOfAPage, AnErrorReachesTheEditorThatItNames)
{
    page.SetErrorData(response(R"(name="control" errorCode="communicationError")",
                               item("travel", "bar", "floatVal", "")));
    EXPECT_EQ(travel.syncState(), "syncError");
    EXPECT_NE(action.syncState(), "syncError");
}

} // namespace
} // namespace quill::test
