#include "device_requests.h"

#include "framework/shared_value_list.h"
#include "framework/steps.h"
#include "shell/units.h"

#include <map>
#include <set>

namespace quill::shell {
namespace {

using documents::attributeText;

/// What every datafile that comes with the program must keep.
class SampleDatafile : public testing::TestWithParam<const char*> {
protected:
    int count(const std::string& condition)
    {
        return static_cast<int>(
            datafile.selectNodes("//data:parameter[" + condition + "]").get_length());
    }
    [[nodiscard]] std::string file(const char* tail) const
    {
        return GetParam() + std::string{tail};
    }

    IXMLDOMDocument datafile = documents::openText(test::sampleText(file(".xml")));
    IXMLDOMDocument memory   = documents::openText(test::sampleText(file("_device.xml")));
};

/// Both samples have to show every kind of parameter that an editor can meet.
TEST_P(SampleDatafile, HasEveryTypeAccessAndMark)
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

TEST_P(SampleDatafile, EveryParameterHasAHomeAndEveryListingAParameter)
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
    const char* tag = names.contains("tag") ? "tag" : "paTag";
    EXPECT_EQ(documents::homeRequestGroup(datafile, tag), "identification");
}

TEST_P(SampleDatafile, EveryGroupStandsOnceAndWhatIsPrintedIsAGroup)
{
    std::set<std::string> groups;
    for (const IXMLDOMNode& group : datafile.selectNodes("//data:requestGroup/@name")) {
        EXPECT_TRUE(groups.insert(group.get_text()).second) << group.get_text();
    }
    for (const IXMLDOMNode& printed : datafile.selectNodes("//data:includedRequestGroup/@name")) {
        EXPECT_TRUE(groups.contains(printed.get_text())) << printed.get_text();
    }
}

TEST_P(SampleDatafile, AValueWithAListIsOnTheList)
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
    EXPECT_GE(shared, 4);
}

TEST_P(SampleDatafile, EveryValueListIsSomebodys)
{
    std::set<std::string> used;
    for (const IXMLDOMNode& name : datafile.selectNodes("//data:parameter/@name")) {
        used.insert(name.get_text());
        const Steps silent = silentSteps();
        if (const IXMLDOMNode list =
                modView::findSharedValueList(silent, nullptr, "ctr_" + name.get_text(), datafile)) {
            used.insert(attributeText(list, "name"));
        }
    }
    for (const IXMLDOMNode& list : datafile.selectNodes("//data:mappedParam/@name")) {
        EXPECT_TRUE(used.contains(list.get_text())) << list.get_text();
    }
}

TEST_P(SampleDatafile, EveryUnitIsKnown)
{
    for (const IXMLDOMNode& unit : datafile.selectNodes("//data:parameter/@unit")) {
        const std::string name = unit.get_text();
        EXPECT_TRUE(name.empty() || name == "noUnit" || findUnit(name)) << name;
    }
}

TEST_P(SampleDatafile, TheDevicesMemoryFitsItsParameters)
{
    for (const IXMLDOMNode& entry : memory.selectNodes("//comm:item")) {
        const std::string name      = attributeText(entry, "name");
        const IXMLDOMNode parameter = documents::findParameter(datafile, name);
        ASSERT_TRUE(parameter) << name;
        EXPECT_NO_THROW((void)documents::itemValue(entry, attributeText(parameter, "type")))
            << name;
        const std::string own   = attributeText(entry, "unit");
        const std::string other = attributeText(parameter, "unit");
        EXPECT_TRUE(own == documents::kNoUnit ? other.empty() || other == own
                                              : convertUnit(1, own, other).has_value())
            << name;
    }
}

TEST_P(SampleDatafile, IsNamedAfterItsType)
{
    std::string type = GetParam();
    for (char& letter : type) {
        letter = letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    }
    EXPECT_EQ(attributeText(datafile.selectSingleNode("//typeInfo:internalInfo"), "name"), type);
    EXPECT_EQ(attributeText(documents::findParameter(datafile, "deviceModel"), "value"), type);
}

/// The definitions of the conditions, and the masks that go with them.
class SampleTypeInfo : public testing::TestWithParam<const char*> {
protected:
    IXMLDOMDocument definition = test::typeInfo(GetParam());
    IXMLDOMDocument datafile =
        documents::openText(test::sampleText(std::string{GetParam()} + ".xml"));
};

TEST_P(SampleTypeInfo, HasSomeFortyConditionsInSixBranches)
{
    EXPECT_EQ(definition.selectNodes("//deviceStatus/*").get_length(), 6);
    EXPECT_GE(definition.selectNodes("//deviceStatus/*/*").get_length(), 40);
    // The view counts nodes that are no elements, and its rows go wrong with them.
    EXPECT_EQ(definition.selectNodes("//deviceStatus//comment()").get_length(), 0);
}

TEST_P(SampleTypeInfo, NoNameBeginsAnother)
{
    // A view looks for a condition by the beginning of its name.
    std::vector<std::string> names;
    for (const IXMLDOMNode& name : definition.selectNodes("//deviceStatus//@name")) {
        names.push_back(name.get_text());
    }
    for (const std::string& one : names) {
        int found = 0;
        for (const std::string& other : names) {
            found += other.starts_with(one) ? 1 : 0;
        }
        EXPECT_EQ(found, 1) << one;
    }
}

TEST_P(SampleTypeInfo, EachBitOfTheMaskIsOneConditions)
{
    std::set<std::pair<int, int>> bits;
    std::set<int>                 parts;
    for (const IXMLDOMNode& masked : definition.selectNodes("//*[@maskByte]")) {
        const int byte = std::stoi(attributeText(masked, "maskByte"));
        const int bit  = std::stoi(attributeText(masked, "maskBit"));
        EXPECT_TRUE(byte >= 0 && byte < 12 && bit >= 0 && bit < 8);
        EXPECT_TRUE(bits.emplace(byte, bit).second) << byte << ' ' << bit;
        parts.insert(byte / 4);
    }
    EXPECT_EQ(parts.size(), 3U);
    EXPECT_LT(bits.size(),
              static_cast<std::size_t>(definition.selectNodes("//deviceStatus/*/*").get_length()));
}

TEST_P(SampleTypeInfo, ClassesAreThoseOfTheirScheme)
{
    const std::set<std::string> severities{"info", "warning", "alarm", "failsafe"};
    const std::set<std::string> categories{"deviceInfo", "deviceMaintenanceRequired",
                                           "deviceOffSpecification", "deviceUnderTest",
                                           "deviceFailure"};
    std::set<std::string>       seen;
    for (const IXMLDOMNode& condition : definition.selectNodes("//deviceStatus/*/*")) {
        const std::string severity = attributeText(condition, "class");
        EXPECT_TRUE(severities.contains(severity)) << severity;
        seen.insert(severity);
        if (std::string{GetParam()} == "vx4400h") {
            const std::string category = attributeText(condition, "classNAMUR");
            EXPECT_TRUE(categories.contains(category)) << category;
            seen.insert(category);
        }
    }
    EXPECT_EQ(seen.size(), std::string{GetParam()} == "vx4400h" ? 9U : 4U);
}

TEST_P(SampleTypeInfo, TheDatafileSwitchesAllConditionsOn)
{
    const SimulatedDevice device{datafile};
    for (const IXMLDOMNode& masked : definition.selectNodes("//*[@maskByte]")) {
        const int         byte = std::stoi(attributeText(masked, "maskByte"));
        const int         bit  = std::stoi(attributeText(masked, "maskBit"));
        const std::string kind = device.isHart() ? "" : "OnOff";
        EXPECT_TRUE(isMaskBitSet(
            device.find("statusMask" + kind + std::to_string(byte / 4 + 1))->value, byte % 4, bit))
            << attributeText(masked, "name");
    }
}

INSTANTIATE_TEST_SUITE_P(Samples, SampleDatafile, testing::Values("vx4400h", "vx4400f"));
INSTANTIATE_TEST_SUITE_P(Samples, SampleTypeInfo, testing::Values("vx4400h", "vx4400f"));

TEST(FieldbusSample, TheSeverityMasksSayWhatTheDefinitionSays)
{
    const auto            definition = test::typeInfo("vx4400f");
    const SimulatedDevice device{documents::openText(test::sampleText("vx4400f.xml"))};
    EXPECT_EQ(definition.get_xml().find("classNAMUR"), std::string::npos);
    const std::map<std::string, std::string> kinds{
        {"info", "Info"}, {"warning", "Warning"}, {"alarm", "Alarm"}};
    for (const IXMLDOMNode& condition : definition.selectNodes("//deviceStatus/*/*")) {
        const std::string severity = attributeText(condition, "class");
        if (severity == "failsafe") {
            EXPECT_FALSE(condition.selectSingleNode("@maskByte")) << condition.get_xml();
            continue;
        }
        const int byte = std::stoi(attributeText(condition, "maskByte"));
        const int bit  = std::stoi(attributeText(condition, "maskBit"));
        for (const auto& [name, kind] : kinds) {
            const std::string mask = "statusMask" + kind + std::to_string(byte / 4 + 1);
            EXPECT_EQ(isMaskBitSet(device.find(mask)->value, byte % 4, bit), name == severity)
                << condition.get_xml();
        }
    }
}

TEST(FieldbusSample, SharesMostParametersWithTheHartSample)
{
    const auto hart     = documents::openText(test::sampleText("vx4400h.xml"));
    const auto fieldbus = documents::openText(test::sampleText("vx4400f.xml"));
    int        shared   = 0;
    for (const IXMLDOMNode& parameter : fieldbus.selectNodes("//data:parameter")) {
        const std::string name = attributeText(parameter, "name");
        if (const IXMLDOMNode same = documents::findParameter(hart, name)) {
            ++shared;
            EXPECT_EQ(attributeText(parameter, "type"), attributeText(same, "type")) << name;
            EXPECT_EQ(attributeText(parameter, "unit"), attributeText(same, "unit")) << name;
        }
    }
    EXPECT_GE(shared, 50);
}

} // namespace
} // namespace quill::shell
