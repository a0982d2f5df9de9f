#include "shell/page_description.h"

#include "framework/documents.h"
#include "platform/failure.h"
#include "shell/samples.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace quill::shell {
namespace {

using testing::ElementsAre;

std::vector<std::string> tags(const std::vector<PageDescription>& pages)
{
    std::vector<std::string> result;
    for (const auto& page : pages) {
        result.push_back(page.tag);
    }
    return result;
}

IXMLDOMDocument datafileWith(const std::string& parameters)
{
    std::string text =
        R"(<dtm xmlns="x-schema:QVXDatafileSchema.xml"><persistentData><parameters>)";
    for (char name : parameters) {
        text += std::string{"<parameter name=\""} + name + "\"/>";
    }
    return documents::openText(text + "</parameters></persistentData></dtm>");
}

TEST(ViewDescriptions, NameTheViewAndItsRequests)
{
    const auto pages = readPages(R"({"pages": [{"tag": "a", "title": "t", "devices": ["X1"],
        "view": "CtrStatus", "viewTag": "deviceStatus", "read": ["masks", "status"],
        "cycle": "status"}]})");
    ASSERT_EQ(pages.size(), 1U);
    EXPECT_THAT(pages[0].devices, ElementsAre("X1"));
    EXPECT_EQ(pages[0].view, "CtrStatus");
    EXPECT_EQ(pages[0].viewTag, "deviceStatus");
    EXPECT_THAT(pages[0].read, ElementsAre("masks", "status"));
    EXPECT_EQ(pages[0].cycle, "status");
    EXPECT_TRUE(pages[0].speaks) << "unless it says otherwise";
    EXPECT_FALSE(
        readPages(R"({"pages": [{"tag": "a", "view": "CtrStatus", "speaks": false}]})")[0].speaks);
}

TEST(ViewDescriptions, AreRefusedWithTheReason)
{
    const auto reason = [](const char* json) -> std::string {
        try {
            static_cast<void>(readPages(json));
        } catch (const platform::Failure& failure) {
            return failure.description();
        }
        return "taken";
    };
    EXPECT_THAT(reason(R"({"pages": [{"tag": "a", "view": "CtrNothing"}]})"),
                testing::HasSubstr("CtrNothing"));
    EXPECT_THAT(reason(R"({"pages": [{"tag": "both", "view": "CtrStatus", "sections": [
                        {"rows": [{"text": "x"}]}]}]})"),
                testing::HasSubstr("both"));
}

TEST(PagesOfADevice, AreThoseOfItsTypeWithTheParametersOfItsDatafile)
{
    const auto all   = readPages(R"({"pages": [
        {"tag": "mixed", "sections": [{"title": "s", "rows": [{"text": "x"}, {"text": "y"}]},
                                      {"title": "t", "rows": [{"text": "y"}]}]},
        {"tag": "gone", "sections": [{"title": "s", "rows": [{"text": "z"}]}]},
        {"tag": "any", "view": "CtrStatus"},
        {"tag": "own", "view": "CtrStatus", "devices": ["X0", "X1"]},
        {"tag": "other", "view": "CtrStatus", "devices": ["X2"]}]})");
    const auto pages = pagesFor(all, "X1", datafileWith("x"));
    EXPECT_THAT(tags(pages), ElementsAre("mixed", "any", "own"));
    ASSERT_EQ(pages[0].sections.size(), 1U);
    ASSERT_EQ(pages[0].sections[0].rows.size(), 1U);
    EXPECT_EQ(pages[0].sections[0].rows[0].parameter, "x");
}

TEST(BuiltInPages, NameNoParameterThatNoSampleHas)
{
    std::vector<IXMLDOMDocument> datafiles;
    for (const Sample& sample : samples()) {
        datafiles.push_back(documents::openText(sampleFile(sample.datafile)));
    }
    for (const auto& page : builtInPages()) {
        for (const auto& section : page.sections) {
            for (const auto& row : section.rows) {
                EXPECT_TRUE(std::ranges::any_of(datafiles, [&](const auto& datafile) {
                    return static_cast<bool>(documents::findParameter(datafile, row.parameter));
                })) << row.parameter;
            }
        }
    }
}

TEST(Samples, AreFoundByTheirTypeAndHoldWhatTheyPromise)
{
    for (const Sample& sample : samples()) {
        EXPECT_EQ(findSample(sample.type), &sample);
        const auto name = documents::openText(sampleFile(sample.datafile))
                              .selectSingleNode("//typeInfo:internalInfo/@name");
        EXPECT_EQ(name.get_text(), sample.type);
        EXPECT_TRUE(
            documents::openText(sampleFile(sample.typeInfo)).selectSingleNode("//deviceStatus"));
    }
    EXPECT_EQ(findSample("VX"), nullptr);
    EXPECT_THROW(static_cast<void>(sampleFile("none.xml")), platform::Failure);
}

} // namespace
} // namespace quill::shell
