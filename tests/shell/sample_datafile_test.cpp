#include "framework/documents.h"
#include "framework/shared_value_list.h"
#include "framework/steps.h"
#include "shell/units.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>

namespace quill::shell {
namespace {

using documents::attributeText;

/// The sample has to show every kind of parameter that an editor can meet.
class SampleDatafile : public testing::Test {
protected:
    int count(const std::string& condition)
    {
        return static_cast<int>(
            datafile.selectNodes("//data:parameter[" + condition + "]").get_length());
    }

    IXMLDOMDocument datafile =
        documents::openFile(std::string{QUILL_SOURCE_DIR} + "/shell/data/vx4400h.xml");
};

TEST_F(SampleDatafile, HasEveryTypeAccessAndMark)
{
    for (const char* type : {"integerVal", "floatVal", "stringVal", "dateVal"}) {
        EXPECT_GT(count(std::string{"@type='"} + type + "'"), 0) << type;
    }
    EXPECT_GT(count("@access='read'"), 0);
    EXPECT_GT(count("@access='readWrite'"), 0);
    EXPECT_GT(count("not(@decimals)"), 0);
    for (const char* unit : {"", "%", "noUnit", "bar", "bar(a)", "degC"}) {
        EXPECT_GT(count(std::string{"@unit='"} + unit + "'"), 0) << unit;
    }
    for (const char* mark : {"0", "1", "2"}) {
        EXPECT_GT(count(std::string{"@value!='' and @synchronised='"} + mark + "'"), 0) << mark;
    }
    EXPECT_GT(count("@value='' and @synchronised='0'"), 0);
    EXPECT_GT(count("@value='' and @synchronised='2'"), 0);
}

TEST_F(SampleDatafile, EveryParameterHasAHomeAndEveryListingAParameter)
{
    std::set<std::string> names;
    for (const IXMLDOMNode& parameter : datafile.selectNodes("//data:parameter")) {
        const std::string name = attributeText(parameter, "name");
        EXPECT_TRUE(names.insert(name).second) << name << " stands twice";
        EXPECT_NE(documents::homeRequestGroup(datafile, name), "") << name;
    }
    EXPECT_GE(names.size(), 60U);
    EXPECT_GE(datafile.selectNodes("//data:requestGroup").get_length(), 10);
    for (const IXMLDOMNode& listing : datafile.selectNodes("//data:includedParam")) {
        EXPECT_TRUE(names.contains(attributeText(listing, "name")))
            << attributeText(listing, "name");
    }
    // Some stand in another group's listing first.
    EXPECT_EQ(documents::homeRequestGroup(datafile, "supplyPressure"), "pressure");
    EXPECT_EQ(documents::homeRequestGroup(datafile, "tag"), "identification");
}

TEST_F(SampleDatafile, AValueWithAListIsOnTheList)
{
    const Steps silent = silentSteps();
    int         shared = 0;
    for (const IXMLDOMNode& parameter :
         datafile.selectNodes("//data:parameter[@minVal='' and @maxVal='' and @value!='']")) {
        const std::string name = attributeText(parameter, "name");
        IXMLDOMNode       list = documents::findMappedParam(datafile, name);
        if (!list) {
            list = modView::findSharedValueList(silent, nullptr, "ctr_" + name, datafile);
            shared += list ? 1 : 0;
        }
        if (list) {
            std::set<double> values;
            for (const IXMLDOMNode& value : list.selectNodes("./data:mapping/@value")) {
                values.insert(std::stod(value.get_text()));
            }
            EXPECT_TRUE(values.contains(std::stod(attributeText(parameter, "value")))) << name;
        }
    }
    EXPECT_GE(shared, 5);
}

TEST_F(SampleDatafile, EveryUnitIsKnown)
{
    for (const IXMLDOMNode& unit : datafile.selectNodes("//data:parameter/@unit")) {
        const std::string name = unit.get_text();
        EXPECT_TRUE(name.empty() || name == "noUnit" || findUnit(name)) << name;
    }
}

} // namespace
} // namespace quill::shell
