// Which values of a datafile count as edited, and what the device says of them.

#include "datafile_store_fixture.h"

#include "../support/test_documents.h"
#include "platform/failure.h"

namespace quill::shell {
namespace {

using platform::Failure;

TEST_F(Store, WhatTheProgramWritesWhileItLoadsIsNoEdit)
{
    store.beginLoading();
    editorWrites("gain", "5.00", "noUnit");
    editorWrites("pressure", "2.5", "bar");
    store.setParameterState("gain", "sync");
    store.endLoading();
    EXPECT_EQ(working("gain"), "5||1");
    EXPECT_EQ(store.bytes(), kFile);
}

TEST_F(Store, AnEditChangesItsValueAndItsMark)
{
    userEdits("pressure", "3.1", "bar");
    EXPECT_EQ(store.bytes(),
              with(kFile,
                   "value='2.50' unit='bar' decimals='2' minVal='' maxVal='' access='readWrite' "
                   "synchronised='1'",
                   "value='3.1' unit='bar' decimals='2' minVal='' maxVal='' access='readWrite' "
                   "synchronised='0'"));
    EXPECT_TRUE(store.hasUnsavedChanges());
    EXPECT_EQ(store.editCount(), 1U);
}

TEST_F(Store, AnEmptyUnitStaysEmpty)
{
    userEdits("gain", "6");
    EXPECT_EQ(saved("gain"), "6||0");
    EXPECT_EQ(store.bytes(),
              with(with(kFile, "value = \"5\"", "value = \"6\""), "synchronised='1'></d:parameter>",
                   "synchronised='0'></d:parameter>"));
}

TEST_F(Store, AUnitThatWonIsSaved)
{
    userEdits("pressure", "36", "psi");
    EXPECT_EQ(saved("pressure"), "36|psi|0");
}

TEST_F(Store, AnEditThatIsTakenBackLeavesNoTrace)
{
    userEdits("gain", "6");
    // The editor reports first and writes then.
    store.setParameterState("gain", "original");
    editorWrites("gain", "5.00", "noUnit");
    EXPECT_EQ(store.bytes(), kFile);
    EXPECT_FALSE(store.hasUnsavedChanges());
    store.beginLoading();
    EXPECT_EQ(working("gain"), "5||1");
    store.endLoading();
}

TEST_F(Store, AnEditThatIsNotCorrectIsNotSaved)
{
    userEdits("gain", "12");
    store.setParameterState("gain", "editedError");
    EXPECT_EQ(store.bytes(), kFile);
    EXPECT_TRUE(store.hasUnsavedChanges()) << "closing would lose it";
    store.setParameterState("gain", "corrected");
    editorWrites("gain", "13", "noUnit");
    EXPECT_EQ(saved("gain"), "13||0");
}

TEST_F(Store, AParameterOutOfStepIsSavedAsItWasUntilTheUserEditsIt)
{
    store.beginLoading();
    store.setParameterState("text", "edited");
    editorWrites("text", "KÄSE & BROT", "noUnit");
    store.endLoading();
    EXPECT_EQ(store.bytes(), kFile);
    EXPECT_FALSE(store.hasUnsavedChanges());
    EXPECT_EQ(store.editCount(), 1U);

    // The editor calls it edited all the time and reports nothing more.
    editorWrites("text", "Wurst <\"'>", "noUnit");
    EXPECT_EQ(store.bytes(), with(kFile, "K&#228;se &amp; Brot", "Wurst &lt;&#34;&#39;>"));
}

TEST_F(Store, AParameterOutOfStepThatTheUserEmptiesIsSavedEmpty)
{
    store.setParameterState("text", "original");
    editorWrites("text", "", "noUnit");
    EXPECT_EQ(saved("text"), "|noUnit|0");
}

TEST_F(Store, WritingTheLoadedTextAgainIsNoEdit)
{
    store.beginLoading();
    store.setParameterState("text", "edited");
    editorWrites("text", "Käse & Brot ", "noUnit");
    store.endLoading();
    editorWrites("text", "Käse & Brot ", "noUnit");
    EXPECT_EQ(store.bytes(), kFile);
}

TEST_F(Store, AnEditSurvivesAChangeOfUnitsToTheLastDigit)
{
    userEdits("pressure", "3.1", "bar");
    store.beginLoading();
    editorWrites("pressure", "3.09999", "bar");
    store.endLoading();
    EXPECT_EQ(saved("pressure"), "3.1|bar|0");
    // And the rounded value, typed by the user, is an edit like any other.
    editorWrites("pressure", "3.09999", "bar");
    EXPECT_EQ(saved("pressure"), "3.09999|bar|0");
}

TEST_F(Store, LoadingsNest)
{
    store.beginLoading();
    store.beginLoading();
    editorWrites("gain", "1", "noUnit");
    store.endLoading();
    EXPECT_EQ(working("gain"), "1|noUnit|0");
    store.endLoading();
    EXPECT_EQ(working("gain"), "5||1");
}

TEST_F(Store, AValueThatWasReadIsInStep)
{
    toolkit.clock = {2024, 5, 6, 7, 8, 9};
    store.beginResponse(test::okResponse("all", "<comm:item name='gain' unit='noUnit'>"
                                                "<comm:floatVal>4.25</comm:floatVal></comm:item>"));
    store.setParameterState("gain", "original");
    editorWrites("gain", "4.3", "noUnit");
    store.setParameterState("gain", "sync");
    store.endResponse();
    EXPECT_EQ(working("gain"), "4.25||1");
    EXPECT_EQ(store.bytes(), with(with(kFile, "value = \"5\"", "value = \"4.25\""),
                                  "01.02.2020 03:04:05", "06.05.2024 07:08:09"));
}

TEST_F(Store, AReadEndsAnEdit)
{
    userEdits("gain", "6");
    store.beginResponse(test::okResponse("all", "<comm:item name='gain' unit='noUnit'>"
                                                "<comm:floatVal>5</comm:floatVal></comm:item>"));
    store.setParameterState("gain", "sync");
    store.endResponse();
    EXPECT_EQ(saved("gain"), "5||1");
    EXPECT_EQ(store.editCount(), 0U);
}

TEST_F(Store, AValueThatNoEditorShowsIsReadAllTheSame)
{
    store.beginResponse(test::okResponse("other",
                                         "<comm:item name='bare' unit='noUnit'>"
                                         "<comm:stringVal>new</comm:stringVal></comm:item>"
                                         "<comm:item name='nobody' unit='noUnit'>"
                                         "<comm:stringVal>x</comm:stringVal></comm:item>"));
    store.endResponse();
    EXPECT_EQ(store.bytes(),
              with(with(kFile, "name='bare' type='stringVal' access='readWrite'/>",
                        "name='bare' type='stringVal' access='readWrite' value=\"new\" "
                        "synchronised=\"1\"/>"),
                   "name='other'/>", "name='other' lastUpdate=\"06.05.2024 07:08:09\"/>"));
}

TEST_F(Store, AValueInAnotherUnitIsSavedInTheDatafilesUnit)
{
    store.beginResponse(test::okResponse("x", "<comm:item name='pressure' unit='psi'>"
                                              "<comm:floatVal>50</comm:floatVal></comm:item>"));
    store.endResponse();
    EXPECT_EQ(saved("pressure"), "3.447379|bar|1");
}

TEST_F(Store, AValueInAUnitOfNoKnownKindKeepsItsUnit)
{
    store.beginResponse(test::okResponse("x", "<comm:item name='pressure' unit='cubit'>"
                                              "<comm:floatVal>50</comm:floatVal></comm:item>"));
    store.endResponse();
    EXPECT_EQ(saved("pressure"), "50|cubit|1");
}

TEST_F(Store, NoNumberIsSavedAsItCame)
{
    store.beginResponse(test::okResponse("x", "<comm:item name='pressure' unit='psi'>"
                                              "<comm:floatVal>NaN</comm:floatVal></comm:item>"));
    store.endResponse();
    EXPECT_EQ(saved("pressure"), "NaN|bar|1");
}

TEST_F(Store, AFailedReadMarksTheParameter)
{
    store.beginResponse(test::response("name='all' access='read' responseStatus='error' "
                                       "errorCode='communicationError' isFinal='1'",
                                       "<comm:item name='gain'/><comm:item name='pressure'/>"));
    store.setParameterState("gain", "syncError");
    store.endResponse();
    EXPECT_EQ(saved("gain"), "5||2");
    EXPECT_EQ(saved("pressure"), "2.50|bar|2") << "no editor shows it";
    EXPECT_EQ(store.bytes().find("06.05.2024"), std::string::npos);
}

TEST_F(Store, AFailedReadDoesNotEndAnEdit)
{
    userEdits("gain", "6");
    store.beginResponse(test::response("name='all' access='read' responseStatus='error' "
                                       "errorCode='communicationError' isFinal='1'",
                                       "<comm:item name='gain'/>"));
    store.setParameterState("gain", "syncError");
    store.endResponse();
    EXPECT_EQ(saved("gain"), "6||0");
    store.setParameterState("gain", "original");
    EXPECT_EQ(saved("gain"), "5||2");
}

TEST_F(Store, AParameterThatTheDeviceDoesNotHaveStaysAsItWas)
{
    store.beginResponse(test::response("name='all' access='read' responseStatus='error' "
                                       "errorCode='missingItems' isFinal='1'",
                                       "<comm:item name='gain'/>"));
    store.setParameterState("gain", "editedError");
    store.endResponse();
    EXPECT_EQ(store.bytes(), kFile);
}

TEST_F(Store, ALocalValueIsNotInStep)
{
    store.beginResponse(test::response("name='all' access='read' responseStatus='local' "
                                       "errorCode='' isFinal='1'",
                                       "<comm:item name='gain' unit='noUnit'>"
                                       "<comm:floatVal>8</comm:floatVal></comm:item>"));
    userEdits("gain", "8");
    store.setParameterState("pressure", "sync");
    store.endResponse();
    EXPECT_EQ(saved("gain"), "8||0");
}

TEST_F(Store, AcceptedEditsAreTheDatafilesValues)
{
    userEdits("gain", "6");
    store.accept(documents::openText("<communicationRequest name='all' access='writeOffline'>"
                                     "<item name='gain' unit='noUnit'><floatVal>6</floatVal></item>"
                                     "<item name='pressure' unit='psi'><floatVal>50</floatVal>"
                                     "</item></communicationRequest>"));
    EXPECT_EQ(working("gain"), "6||0");
    EXPECT_EQ(saved("gain"), "6||0");
    EXPECT_EQ(saved("pressure"), "3.447379|bar|0");
    // Typed back on a page that was not loaded again: the accepted value stands.
    store.setParameterState("pressure", "original");
    EXPECT_EQ(saved("pressure"), "3.447379|bar|0");
}

TEST_F(Store, NamesOfNoParameterAreIgnored)
{
    store.setParameterState("eventLog", "edited");
    store.setParameterState("page", "editedError");
    EXPECT_FALSE(store.hasUnsavedChanges());
    EXPECT_THROW((void)store.content("eventLog"), Failure);
}

TEST_F(Store, OfEqualNamesTheFirstCounts)
{
    userEdits("gain", "6");
    EXPECT_NE(store.bytes().find("value='77'"), std::string::npos);
}

// --- Values that a view writes without a report -----------------------------------------------

TEST_F(Store, WhatAViewSendsStaysUntilTheDeviceHasAnswered)
{
    editorWrites("gain", "6", "noUnit");
    store.keepSent(documents::openText("<communicationRequest name='m' access='write'>"
                                       "<item name='gain'><floatVal>6</floatVal></item>"
                                       "</communicationRequest>"));
    EXPECT_TRUE(store.hasSent());
    store.beginLoading();
    store.endLoading();
    EXPECT_EQ(working("gain"), "6|noUnit|0");
    EXPECT_EQ(saved("gain"), "6||0");
    EXPECT_EQ(store.editCount(), 0U) << "there is no editor to list it";

    store.beginResponse(test::okResponse(
        "all", "<comm:item name='gain'><comm:floatVal>7</comm:floatVal></comm:item>"));
    store.endResponse();
    EXPECT_FALSE(store.hasSent());
    EXPECT_EQ(working("gain"), "7||1") << "as the device has it";
}

TEST_F(Store, WhatTheDeviceRefusesStaysSent)
{
    editorWrites("pressure", "3", "bar");
    store.keepSent(
        documents::openText("<r><item name='pressure'><floatVal>3</floatVal></item></r>"));
    store.beginResponse(test::response("name='all' access='write' responseStatus='error' "
                                       "errorCode='refused' isFinal='1'",
                                       "<comm:item name='pressure'/>"));
    store.endResponse();
    EXPECT_TRUE(store.hasSent());
    EXPECT_EQ(working("pressure"), "3|bar|0");
}

TEST_F(Store, WhatIsSentUnchangedIsNoChange)
{
    store.keepSent(documents::openText("<r><item name='gain'><floatVal>5</floatVal></item>"
                                       "<item name='nobody'/></r>"));
    EXPECT_FALSE(store.hasSent());
    EXPECT_EQ(store.bytes(), kFile);
}

// --- Who reads --------------------------------------------------------------------------------

TEST_F(Store, TheTimeOfLastReadIsThatOfAUser)
{
    const auto response = test::okResponse(
        "all", "<comm:item name='gain'><comm:floatVal>5</comm:floatVal></comm:item>");
    store.beginResponse(response, ReadBy::program);
    store.endResponse();
    EXPECT_FALSE(store.hasUnsavedChanges());
    store.beginResponse(response, ReadBy::user);
    store.endResponse();
    EXPECT_TRUE(store.hasUnsavedChanges());
}

TEST_F(Store, AReadingWithoutParametersIsNoReadingOfTheDatafile)
{
    store.beginResponse(test::okResponse(
        "all", "<comm:item name='condition'><comm:integerVal>1</comm:integerVal></comm:item>"));
    store.endResponse();
    EXPECT_FALSE(store.hasUnsavedChanges());
}

} // namespace
} // namespace quill::shell
