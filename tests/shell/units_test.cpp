#include "shell/units.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <udunits2.h>

#include <array>
#include <cctype>
#include <cmath>
#include <map>
#include <memory>

namespace quill::shell {
namespace {

using testing::Contains;
using testing::Eq;
using testing::Optional;

/// How the oracle writes a unit of ours that it does not know by our name.
const std::map<std::string, std::string> kOracleNames{
    {"kg/cm2", "kgf/cm2"},
    {"g/cm2", "gf/cm2"},
    {"mmHg", "mm Hg"},
    {"inHg", "inch Hg"},
    {"mmH2O", "mm H2O"},
    {"inH2O", "inch H2O"},
    {"ftH2O", "foot H2O"},
    {"mmH2O(68F)", "0.998207 mm H2O"},
    {"inH2O(68F)", "0.998207 inch H2O"},
    {"inH2O(60F)", "inch water_60F"},
    {"degR", "degR"},
    {"degC(diff)", "K"},
    {"degF(diff)", "degR"},
    {"K(diff)", "K"},
    {"in", "inch"},
    {"ft", "foot"},
    {"deg", "degree"},
    {"min", "minute"},
    {"h", "hour"},
    {"d", "day"},
    {"rpm", "1/minute"},
    {"m3/h", "m3/hour"},
    {"m3/min", "m3/minute"},
    {"m3/d", "m3/day"},
    {"L/min", "L/minute"},
    {"L/h", "L/hour"},
    {"ML/d", "ML/day"},
    {"gal/s", "US_liquid_gallon/s"},
    {"gal/min", "US_liquid_gallon/minute"},
    {"gal/h", "US_liquid_gallon/hour"},
    {"gal/d", "US_liquid_gallon/day"},
    {"Impgal/s", "Canadian_liquid_gallon/s"},
    {"Impgal/min", "Canadian_liquid_gallon/minute"},
    {"Impgal/h", "Canadian_liquid_gallon/hour"},
    {"Impgal/d", "Canadian_liquid_gallon/day"},
    {"ft3/s", "foot3/s"},
    {"ft3/min", "foot3/minute"},
    {"ft3/h", "foot3/hour"},
    {"ft3/d", "foot3/day"},
    {"bbl/s", "42 US_liquid_gallon/s"},
    {"bbl/min", "42 US_liquid_gallon/minute"},
    {"bbl/h", "42 US_liquid_gallon/hour"},
    {"bbl/d", "42 US_liquid_gallon/day"},
    {"kg/min", "kg/minute"},
    {"kg/h", "kg/hour"},
    {"kg/d", "kg/day"},
    {"g/min", "g/minute"},
    {"g/h", "g/hour"},
    {"t/min", "tonne/minute"},
    {"t/h", "tonne/hour"},
    {"t/d", "tonne/day"},
    {"lb/s", "pound/s"},
    {"lb/min", "pound/minute"},
    {"lb/h", "pound/hour"},
    {"lb/d", "pound/day"},
    {"gal", "US_liquid_gallon"},
    {"Impgal", "Canadian_liquid_gallon"},
    {"ft3", "foot3"},
    {"in3", "inch3"},
    {"bbl", "42 US_liquid_gallon"},
    {"t", "tonne"},
    {"lb", "pound"},
    {"oz", "avoirdupois_ounce"},
    {"lb/ft3", "pound/foot3"},
    {"lb/gal", "pound/US_liquid_gallon"},
    {"m/h", "m/hour"},
    {"ft/s", "foot/s"},
    {"ft/min", "foot/minute"},
    {"in/s", "inch/s"},
    {"mph", "mile/hour"},
    {"lbf", "pound_force"},
    {"Nm", "N m"},
    {"ftlbf", "foot pound_force"},
    {"inlbf", "inch pound_force"},
    {"hp", "550 foot pound_force/s"},
    {"ppm", "1e-6"},
};

/// The units library of the atmospheric sciences, which knows nothing of our table.
class Oracle {
public:
    Oracle()
    {
        ut_set_error_message_handler(ut_ignore);
        mSystem.reset(ut_read_xml(nullptr));
    }

    /// Nothing if the oracle does not know a unit or sees no way.
    std::optional<double> convert(double value, const Unit& from, const Unit& to)
    {
        const auto a = parse(from);
        const auto b = parse(to);
        if (!a || !b) {
            return std::nullopt;
        }
        const std::unique_ptr<cv_converter, void (*)(cv_converter*)> way{
            ut_get_converter(a.get(), b.get()), cv_free};
        return way ? std::optional{cv_convert_double(way.get(), value)} : std::nullopt;
    }

private:
    using ParsedUnit = std::unique_ptr<ut_unit, void (*)(ut_unit*)>;

    ParsedUnit parse(const Unit& unit)
    {
        std::string name = unit.name;
        if (name.ends_with("(a)")) {
            name.resize(name.size() - 3);
        }
        if (const auto known = kOracleNames.find(name); known != kOracleNames.end()) {
            name = known->second;
        }
        return {ut_parse(mSystem.get(), name.c_str(), UT_UTF8), ut_free};
    }

    std::unique_ptr<ut_system, void (*)(ut_system*)> mSystem{nullptr, ut_free_system};
};

TEST(Units, AgreeWithTheOracleWhateverTheWay)
{
    Oracle oracle;
    for (const Unit& from : allUnits()) {
        for (const Unit& to : allUnits()) {
            if (from.kind != to.kind) {
                continue;
            }
            for (const double value : {-40.0, 0.0, 1.0, 73.25, 12345.0}) {
                const auto expected = oracle.convert(value, from, to);
                const auto actual   = convertUnit(value, from.name, to.name);
                ASSERT_TRUE(expected) << from.name << " to " << to.name;
                ASSERT_TRUE(actual) << from.name << " to " << to.name;
                // An offset cancels digits, so the error counts against what went in as well.
                const double scale =
                    std::max({std::abs(*expected), std::abs(value) * from.factor / to.factor,
                              std::abs(from.offset / to.factor)});
                EXPECT_NEAR(*actual, *expected, 1e-6 * scale)
                    << value << " " << from.name << " to " << to.name;
            }
        }
    }
}

TEST(Units, HaveOneNameEach)
{
    std::map<std::string, int> count;
    for (const Unit& unit : allUnits()) {
        EXPECT_EQ(++count[unit.name], 1) << unit.name;
        EXPECT_EQ(findUnit(unit.name), &unit);
    }
    EXPECT_EQ(findUnit("furlong"), nullptr);
}

TEST(Units, OfDifferentKindsDoNotConvert)
{
    EXPECT_EQ(convertUnit(1, "bar", "bar(a)"), std::nullopt);
    EXPECT_EQ(convertUnit(1, "psi(a)", "psi"), std::nullopt);
    EXPECT_EQ(convertUnit(20, "degC", "degC(diff)"), std::nullopt);
    EXPECT_EQ(convertUnit(20, "K(diff)", "K"), std::nullopt);
    EXPECT_EQ(convertUnit(1, "mm", "s"), std::nullopt);
    EXPECT_EQ(convertUnit(1, "bar", "cubit"), std::nullopt);
}

TEST(Units, ATemperatureHasAnOffsetAndADifferenceHasNone)
{
    EXPECT_NEAR(*convertUnit(100, "degC", "degF"), 212, 1e-9);
    EXPECT_NEAR(*convertUnit(10, "degC(diff)", "degF(diff)"), 18, 1e-9);
}

TEST(Units, AnUnknownUnitConvertsToItself)
{
    EXPECT_THAT(convertUnit(7, "steps", "steps"), Optional(7.0));
}

TEST(HartUnitConverter, NarrowsOnce)
{
    HartUnitConverter converter;
    EXPECT_EQ(converter.ConvertValue(2.5F, "bar", "psi"),
              static_cast<float>(*convertUnit(2.5, "bar", "psi")));
    EXPECT_EQ(converter.ConvertValue(0.1F, "bar", "mbar"),
              static_cast<float>(static_cast<double>(0.1F) * 1e5 / 100));
}

TEST(HartUnitConverter, ARangeBeyondSinglePrecisionIsNoResult)
{
    HartUnitConverter converter;
    EXPECT_EQ(converter.ConvertValue(3e38F, "MPa", "Pa"), std::nullopt);
    EXPECT_TRUE(converter.ConvertValue(3e38F, "Pa", "MPa"));
}

/// What the editors do to find the display unit of a parameter.
std::string walk(HartUnitConverter& converter, const std::string& parameter)
{
    if (const auto whole = converter.GetDisplayUnit(parameter)) {
        return *whole;
    }
    for (std::size_t i = 0; i < parameter.size(); ++i) {
        const auto c = static_cast<unsigned char>(parameter[i]);
        if (c == std::toupper(c)) {
            const auto tail = static_cast<char>(std::tolower(c)) + parameter.substr(i + 1);
            if (const auto unit = converter.GetDisplayUnit(tail)) {
                return *unit;
            }
        }
    }
    return {};
}

TEST(HartUnitConverter, FindsAQuantityByTheTailOfAName)
{
    HartUnitConverter converter;
    EXPECT_EQ(walk(converter, "pressure"), "bar");
    EXPECT_EQ(walk(converter, "supplyPressure"), "bar");
    EXPECT_EQ(walk(converter, "barometricAbsolutePressure"), "bar(a)");
    EXPECT_EQ(walk(converter, "deviceTemperature"), "degC");
    EXPECT_EQ(walk(converter, "coolingTemperatureDifference"), "degC(diff)");
    EXPECT_EQ(walk(converter, "supplyPressure_2"), "bar");
    EXPECT_EQ(walk(converter, "serialNumber"), "");
}

TEST(HartUnitConverter, KeepsTheUsersChoiceOfUnits)
{
    HartUnitConverter converter;
    EXPECT_TRUE(converter.SetDisplayUnit("pressure", "psi"));
    EXPECT_THAT(converter.GetDisplayUnit("pressure"), Optional(Eq("psi")));
    EXPECT_FALSE(converter.SetDisplayUnit("pressure", "mm"));
    EXPECT_FALSE(converter.SetDisplayUnit("pressure", "psi(a)"));
    EXPECT_FALSE(converter.SetDisplayUnit("colour", "psi"));
    EXPECT_THAT(converter.GetDisplayUnit("pressure"), Optional(Eq("psi")));
    EXPECT_EQ(converter.GetDisplayUnit("colour"), std::nullopt);
}

std::vector<std::string> texts(const IXMLDOMNodeList& nodes, const std::string& path)
{
    std::vector<std::string> all;
    for (const IXMLDOMNode& node : nodes) {
        all.push_back(path.empty() ? node.get_text() : node.selectSingleNode(path).get_text());
    }
    return all;
}

TEST(HartUnitConverter, EveryQuantityHasChoicesAndAUnitInEverySystem)
{
    HartUnitConverter converter;
    const auto        quantities = texts(converter.GetQuantities(), "");
    EXPECT_THAT(quantities, Contains("temperatureDifference"));
    for (const std::string& quantity : quantities) {
        const auto choices = converter.GetUnitChoices(quantity);
        ASSERT_TRUE(choices) << quantity;
        const auto names = texts(*choices, "./@name");
        EXPECT_THAT(names, Contains(*converter.GetDisplayUnit(quantity)));
        const auto data = converter.GetUnitSystemData(quantity);
        ASSERT_TRUE(data) << quantity;
        for (const std::string& system : HartUnitConverter::systems()) {
            const auto unit = converter.GetUnitOfSystem(*data, system);
            ASSERT_TRUE(unit) << quantity << " in " << system;
            EXPECT_THAT(names, Contains(*unit)) << quantity << " in " << system;
        }
        EXPECT_EQ(converter.GetUnitOfSystem(*data, "old Norse"), std::nullopt);
    }
    EXPECT_EQ(converter.GetUnitChoices("colour"), std::nullopt);
    EXPECT_EQ(converter.GetUnitSystemData("colour"), std::nullopt);
}

} // namespace
} // namespace quill::shell
