#include "shell/datafile_store.h"

#include "../support/test_documents.h"
#include "../support/toolkit_scope.h"
#include "framework/documents.h"
#include "platform/failure.h"
#include "temporary_folder.h"

#include <QStringEncoder>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

namespace quill::shell {
namespace {

using documents::findParameter;
using documents::writeAttribute;
using platform::Failure;
using testing::ElementsAre;
using testing::StartsWith;

/// A datafile as nobody's writer would write it, so that a save that rewrites shows.
const std::string kFile =
    "<?xml version=\"1.0\" encoding='utf-8' ?>\r\n"
    "<!-- by hand: <parameter name='gain' value='9'/> -->\n"
    "<d:dtm  xmlns:d='x-schema:QVXDatafileSchema.xml'>\n"
    "\t<d:persistentData><d:parameters>\n"
    "  <d:parameter value = \"5\"  name='gain' type='floatVal' unit='' decimals='2' minVal=''"
    " maxVal='' access='readWrite' synchronised='1'></d:parameter>\n"
    "  <d:parameter name='pressure' type='floatVal' value='2.50' unit='bar' decimals='2' minVal=''"
    " maxVal='' access='readWrite' synchronised='1'/>\n"
    "  <d:parameter name='text' type='stringVal' value='K&#228;se &amp; Brot' unit='noUnit'"
    " access='readWrite' synchronised='0' />\n"
    "  <d:parameter name='bare' type='stringVal' access='readWrite'/>\n"
    "  <d:parameter name='gain' type='floatVal' value='77' unit='' access='readWrite'"
    " synchronised='1'/>\n"
    "</d:parameters></d:persistentData>\n"
    "<d:requestGroups><d:requestGroup lastUpdate='01.02.2020 03:04:05' name='all'>"
    "<d:includedParam name='gain'/></d:requestGroup><d:requestGroup name='other'/>"
    "</d:requestGroups></d:dtm>\n\n";

std::string with(std::string text, const std::string& what, const std::string& by)
{
    const auto at = text.find(what);
    EXPECT_NE(at, std::string::npos) << what;
    EXPECT_EQ(text.find(what, at + 1), std::string::npos) << what << " stands twice";
    return text.replace(at, what.size(), by);
}

class Store : public testing::Test {
protected:
    Store() { store.loadBytes(kFile); }

    /// What an editor does when its text changes.
    void editorWrites(const std::string& name, const std::string& value, const std::string& unit)
    {
        const auto node = findParameter(store.document(), name);
        writeAttribute(node, "value", value);
        writeAttribute(node, "unit", unit);
        writeAttribute(node, "synchronised", "0");
    }
    void userEdits(const std::string& name, const std::string& value,
                   const std::string& unit = "noUnit")
    {
        store.setParameterState(name, "edited");
        editorWrites(name, value, unit);
    }
    /// The value as the working document has it.
    std::string working(const std::string& name)
    {
        const auto node = findParameter(store.document(), name);
        return documents::attributeText(node, "value") + "|" +
               documents::attributeText(node, "unit") + "|" +
               documents::attributeText(node, "synchronised");
    }
    std::string saved(const std::string& name)
    {
        const auto content = store.content(name);
        return content.value + "|" + content.unit + "|" + content.synchronised;
    }

    test::ToolkitScope toolkit;
    DatafileStore      store;
};

TEST_F(Store, GivesBackTheVeryBytesThatItRead)
{
    EXPECT_EQ(store.bytes(), kFile);
    EXPECT_FALSE(store.hasUnsavedChanges());
    EXPECT_EQ(store.editCount(), 0U);
}

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

TEST_F(Store, SavesAndGoesOn)
{
    TemporaryFolder folder;
    EXPECT_THROW(store.save(), Failure) << "it has no name yet";
    userEdits("gain", "6");
    store.save(folder.path("a.xml"));
    EXPECT_EQ(store.path(), folder.path("a.xml"));
    EXPECT_FALSE(store.hasUnsavedChanges());
    EXPECT_EQ(folder.read("a.xml"), store.bytes());

    // The editor still knows the value from before: taking the edit back is a change of the file.
    store.setParameterState("gain", "original");
    EXPECT_TRUE(store.hasUnsavedChanges());
    store.save();
    EXPECT_EQ(folder.read("a.xml"), kFile);
}

TEST_F(Store, LoadsAndSavesWithoutAnEditUnchanged)
{
    TemporaryFolder folder;
    store.load(folder.write("a.xml", kFile));
    store.beginLoading();
    editorWrites("gain", "5.00", "noUnit");
    store.endLoading();
    store.save();
    EXPECT_EQ(folder.read("a.xml"), kFile);
}

std::string failureOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const Failure& failure) {
        return failure.description();
    }
    return "no failure";
}

TEST_F(Store, AFailedSaveLeavesFileAndStoreAsTheyWere)
{
    TemporaryFolder folder;
    store.load(folder.write("a.xml", kFile));
    userEdits("gain", "6");
    EXPECT_THAT(failureOf([&] { store.save(folder.path("no/b.xml")); }),
                StartsWith("shell_errNoFolder#"));
    EXPECT_THAT(failureOf([&] { store.save(folder.path()); }), StartsWith("shell_errIsFolder#"));
    EXPECT_EQ(store.path(), folder.path("a.xml"));
    EXPECT_EQ(folder.read("a.xml"), kFile);
    EXPECT_TRUE(store.hasUnsavedChanges());
    EXPECT_THAT(folder.names(), ElementsAre("a.xml"));
}

TEST_F(Store, ElementsOfAnotherNamespaceAreLeftAlone)
{
    const std::string mixed =
        with(kFile, "<d:parameters>\n",
             "<d:parameters><x:parameter xmlns:x='urn:x' name='gain' value='8'/>\n");
    store.loadBytes(mixed);
    userEdits("gain", "6");
    EXPECT_EQ(store.bytes(),
              with(with(mixed, "value = \"5\"", "value = \"6\""), "synchronised='1'></d:parameter>",
                   "synchronised='0'></d:parameter>"));
}

TEST_F(Store, AFileThatIsRefusedLeavesTheOldOneOpen)
{
    TemporaryFolder folder;
    EXPECT_THAT(failureOf([&] { store.load(folder.path("none.xml")); }),
                StartsWith("shell_errNoFile#"));
    EXPECT_THAT(failureOf([&] { store.load(folder.write("x.xml", "no xml")); }),
                StartsWith("shell_errNoDatafile#"));
    EXPECT_THAT(failureOf([&] { store.load(folder.write("y.xml", "<dtm/>")); }),
                StartsWith("shell_errNoDatafile#"));
    EXPECT_THAT(failureOf([&] {
                    store.load(folder.write("z.xml", "<?xml version='1.0' encoding='EBCDIC'?>"));
                }),
                "shell_errEncoding#EBCDIC");
    EXPECT_EQ(store.bytes(), kFile);
}

TEST_F(Store, KeepsTheEncodingOfAFile)
{
    const std::string latin1 = with(with(kFile, "utf-8", "iso-8859-1"), "K&#228;se", "K\xe4se");
    store.loadBytes(latin1);
    EXPECT_EQ(documents::attributeText(findParameter(store.document(), "text"), "value"),
              "Käse & Brot");
    EXPECT_EQ(store.bytes(), latin1);
    userEdits("bare", "ö€");
    EXPECT_EQ(store.bytes(), with(latin1, "name='bare' type='stringVal' access='readWrite'/>",
                                  "name='bare' type='stringVal' access='readWrite' "
                                  "value=\"&#246;&#8364;\" synchronised=\"0\"/>"));
}

TEST_F(Store, KeepsTheMarkOfAByteOrder)
{
    const std::string marked = "\xef\xbb\xbf" + kFile;
    store.loadBytes(marked);
    EXPECT_EQ(store.bytes(), marked);
    userEdits("gain", "6");
    EXPECT_THAT(store.bytes(), StartsWith("\xef\xbb\xbf<?xml"));

    for (const auto encoding : {QStringConverter::Utf16LE, QStringConverter::Utf16BE}) {
        QStringEncoder   encoder{encoding, QStringConverter::Flag::WriteBom};
        const QByteArray wide =
            encoder.encode(QString::fromStdString(with(kFile, "utf-8", "utf-16")));
        const std::string bytes = wide.toStdString();
        store.loadBytes(bytes);
        EXPECT_EQ(store.bytes(), bytes);
        userEdits("gain", "6");
        EXPECT_EQ(store.bytes().size(), bytes.size());
        EXPECT_NE(store.bytes(), bytes);
    }
}

TEST_F(Store, BytesThatAreNoTextOfTheirEncodingAreRefused)
{
    EXPECT_THAT(
        failureOf([&] { store.loadBytes(with(kFile, "K&#228;se", "K\xe4se")); }),
        testing::AnyOf(StartsWith("shell_errNoDatafile#"), StartsWith("shell_errEncoding#")));
    EXPECT_EQ(store.bytes(), kFile);
}

// --- Values that a view writes without a report
// ---------------------------------------------------

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
