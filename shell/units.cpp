#include "shell/units.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>
#include <unordered_map>

namespace quill::shell {

namespace {

using enum UnitKind;

// What the factors below are made of, in SI base units.
constexpr double kGravity    = 9.80665;
constexpr double kInch       = 0.0254;
constexpr double kFoot       = 12 * kInch;
constexpr double kMile       = 5280 * kFoot;
constexpr double kPound      = 0.45359237;
constexpr double kPoundForce = kPound * kGravity;
constexpr double kGallon     = 231 * kInch * kInch * kInch;
constexpr double kImpGallon  = 4.54609e-3;
constexpr double kCubicFoot  = kFoot * kFoot * kFoot;
constexpr double kBarrel     = 42 * kGallon;
constexpr double kMinute     = 60;
constexpr double kHour       = 3600;
constexpr double kDay        = 86400;
constexpr double kDegree     = std::numbers::pi / 180;
constexpr double kFahrenheit = 5.0 / 9.0;

struct Pressure {
    std::string_view name;
    double           factor;
};

// Columns of water without a temperature are of water with 1000 kg/m3, mercury is at 0 degrees
// Celsius.
constexpr std::array kPressures{
    Pressure{"bar", 1e5},
    Pressure{"mbar", 100},
    Pressure{"Pa", 1},
    Pressure{"hPa", 100},
    Pressure{"kPa", 1e3},
    Pressure{"MPa", 1e6},
    Pressure{"psi", kPoundForce / (kInch * kInch)},
    Pressure{"kg/cm2", kGravity * 1e4},
    Pressure{"g/cm2", kGravity * 10},
    Pressure{"atm", 101325},
    Pressure{"torr", 101325.0 / 760},
    Pressure{"mmHg", 133.322387415},
    Pressure{"inHg", 133.322387415 * 25.4},
    Pressure{"mmH2O", kGravity},
    Pressure{"inH2O", kGravity * 25.4},
    Pressure{"ftH2O", kGravity * 304.8},
    Pressure{"mmH2O(68F)", kGravity * 0.998207},
    Pressure{"inH2O(68F)", kGravity * 25.4 * 0.998207},
    Pressure{"inH2O(60F)", kGravity * 25.4 * 0.999001},
};

const std::array kOthers{
    Unit{"degC", temperature, 1, 273.15},
    Unit{"degF", temperature, kFahrenheit, 459.67 * kFahrenheit},
    Unit{"degR", temperature, kFahrenheit},
    Unit{"K", temperature, 1},
    Unit{"degC(diff)", temperatureDifference, 1},
    Unit{"degF(diff)", temperatureDifference, kFahrenheit},
    Unit{"K(diff)", temperatureDifference, 1},
    Unit{"mm", length, 1e-3},
    Unit{"cm", length, 1e-2},
    Unit{"m", length, 1},
    Unit{"in", length, kInch},
    Unit{"ft", length, kFoot},
    Unit{"deg", angle, kDegree},
    Unit{"rad", angle, 1},
    Unit{"ms", time, 1e-3},
    Unit{"s", time, 1},
    Unit{"min", time, kMinute},
    Unit{"h", time, kHour},
    Unit{"d", time, kDay},
    Unit{"Hz", frequency, 1},
    Unit{"kHz", frequency, 1e3},
    Unit{"rpm", frequency, 1 / kMinute},
    Unit{"mA", current, 1e-3},
    Unit{"A", current, 1},
    Unit{"mV", voltage, 1e-3},
    Unit{"V", voltage, 1},
    Unit{"ohm", resistance, 1},
    Unit{"kohm", resistance, 1e3},
    Unit{"m3/h", volumeFlow, 1 / kHour},
    Unit{"m3/min", volumeFlow, 1 / kMinute},
    Unit{"m3/s", volumeFlow, 1},
    Unit{"m3/d", volumeFlow, 1 / kDay},
    Unit{"L/s", volumeFlow, 1e-3},
    Unit{"L/min", volumeFlow, 1e-3 / kMinute},
    Unit{"L/h", volumeFlow, 1e-3 / kHour},
    Unit{"ML/d", volumeFlow, 1e3 / kDay},
    Unit{"gal/s", volumeFlow, kGallon},
    Unit{"gal/min", volumeFlow, kGallon / kMinute},
    Unit{"gal/h", volumeFlow, kGallon / kHour},
    Unit{"gal/d", volumeFlow, kGallon / kDay},
    Unit{"Impgal/s", volumeFlow, kImpGallon},
    Unit{"Impgal/min", volumeFlow, kImpGallon / kMinute},
    Unit{"Impgal/h", volumeFlow, kImpGallon / kHour},
    Unit{"Impgal/d", volumeFlow, kImpGallon / kDay},
    Unit{"ft3/s", volumeFlow, kCubicFoot},
    Unit{"ft3/min", volumeFlow, kCubicFoot / kMinute},
    Unit{"ft3/h", volumeFlow, kCubicFoot / kHour},
    Unit{"ft3/d", volumeFlow, kCubicFoot / kDay},
    Unit{"bbl/s", volumeFlow, kBarrel},
    Unit{"bbl/min", volumeFlow, kBarrel / kMinute},
    Unit{"bbl/h", volumeFlow, kBarrel / kHour},
    Unit{"bbl/d", volumeFlow, kBarrel / kDay},
    Unit{"kg/s", massFlow, 1},
    Unit{"kg/min", massFlow, 1 / kMinute},
    Unit{"kg/h", massFlow, 1 / kHour},
    Unit{"kg/d", massFlow, 1 / kDay},
    Unit{"g/s", massFlow, 1e-3},
    Unit{"g/min", massFlow, 1e-3 / kMinute},
    Unit{"g/h", massFlow, 1e-3 / kHour},
    Unit{"t/min", massFlow, 1e3 / kMinute},
    Unit{"t/h", massFlow, 1e3 / kHour},
    Unit{"t/d", massFlow, 1e3 / kDay},
    Unit{"lb/s", massFlow, kPound},
    Unit{"lb/min", massFlow, kPound / kMinute},
    Unit{"lb/h", massFlow, kPound / kHour},
    Unit{"lb/d", massFlow, kPound / kDay},
    Unit{"L", volume, 1e-3},
    Unit{"m3", volume, 1},
    Unit{"gal", volume, kGallon},
    Unit{"Impgal", volume, kImpGallon},
    Unit{"ft3", volume, kCubicFoot},
    Unit{"in3", volume, kInch* kInch* kInch},
    Unit{"bbl", volume, kBarrel},
    Unit{"g", mass, 1e-3},
    Unit{"kg", mass, 1},
    Unit{"t", mass, 1e3},
    Unit{"lb", mass, kPound},
    Unit{"oz", mass, kPound / 16},
    Unit{"kg/m3", density, 1},
    Unit{"kg/L", density, 1e3},
    Unit{"g/cm3", density, 1e3},
    Unit{"g/L", density, 1},
    Unit{"lb/ft3", density, kPound / kCubicFoot},
    Unit{"lb/gal", density, kPound / kGallon},
    Unit{"m/s", velocity, 1},
    Unit{"m/h", velocity, 1 / kHour},
    Unit{"ft/s", velocity, kFoot},
    Unit{"ft/min", velocity, kFoot / kMinute},
    Unit{"in/s", velocity, kInch},
    Unit{"mph", velocity, kMile / kHour},
    Unit{"N", force, 1},
    Unit{"kN", force, 1e3},
    Unit{"lbf", force, kPoundForce},
    Unit{"Nm", torque, 1},
    Unit{"ftlbf", torque, kPoundForce* kFoot},
    Unit{"inlbf", torque, kPoundForce* kInch},
    Unit{"W", power, 1},
    Unit{"kW", power, 1e3},
    Unit{"hp", power, 550 * kPoundForce* kFoot},
    Unit{"%", ratio, 1e-2},
    Unit{"ppm", ratio, 1e-6},
};

/// What a parameter's name can end in, with the unit of each system.
struct Quantity {
    std::string_view name;
    UnitKind         kind;
    std::string_view si;
    std::string_view us;
    std::string_view metric;
};

constexpr std::array kQuantities{
    Quantity{"pressure", gaugePressure, "kPa", "psi", "bar"},
    Quantity{"absolutePressure", absolutePressure, "kPa(a)", "psi(a)", "bar(a)"},
    Quantity{"temperature", temperature, "K", "degF", "degC"},
    Quantity{"temperatureDifference", temperatureDifference, "K(diff)", "degF(diff)", "degC(diff)"},
    Quantity{"travel", length, "mm", "in", "mm"},
    Quantity{"length", length, "m", "ft", "m"},
    Quantity{"angle", angle, "rad", "deg", "deg"},
    Quantity{"time", time, "s", "s", "s"},
    Quantity{"frequency", frequency, "Hz", "Hz", "Hz"},
    Quantity{"current", current, "A", "mA", "mA"},
    Quantity{"voltage", voltage, "V", "V", "V"},
    Quantity{"resistance", resistance, "ohm", "ohm", "ohm"},
    Quantity{"flow", volumeFlow, "m3/s", "gal/min", "m3/h"},
    Quantity{"massFlow", massFlow, "kg/s", "lb/h", "kg/h"},
    Quantity{"volume", volume, "m3", "gal", "L"},
    Quantity{"weight", mass, "kg", "lb", "kg"},
    Quantity{"density", density, "kg/m3", "lb/ft3", "kg/L"},
    Quantity{"speed", velocity, "m/s", "ft/s", "m/s"},
    Quantity{"force", force, "N", "lbf", "kN"},
    Quantity{"torque", torque, "Nm", "ftlbf", "Nm"},
    Quantity{"power", power, "W", "hp", "kW"},
};

const Quantity* findQuantity(std::string_view name)
{
    const auto found = std::ranges::find(kQuantities, name, &Quantity::name);
    return found == kQuantities.end() ? nullptr : &*found;
}

/// The name without a number behind an underscore.
std::string_view withoutNumber(std::string_view name)
{
    const auto end = name.find_last_not_of("0123456789");
    return end != std::string_view::npos && end + 1 < name.size() && name[end] == '_'
               ? name.substr(0, end)
               : name;
}

/// All quantities as a document: what the contract hands out are nodes.
std::string tableText()
{
    std::string xml = "<units>";
    for (const Quantity& quantity : kQuantities) {
        xml += "<quantity name=\"" + std::string{quantity.name} + "\">";
        const std::pair<std::string_view, std::string_view> systems[]{
            {"SI", quantity.si}, {"US", quantity.us}, {"metric", quantity.metric}};
        for (const auto& [system, unit] : systems) {
            xml +=
                "<system name=\"" + std::string{system} + "\" unit=\"" + std::string{unit} + "\"/>";
        }
        for (const Unit& unit : allUnits()) {
            if (unit.kind == quantity.kind) {
                xml += "<unit name=\"" + unit.name + "\"/>";
            }
        }
        xml += "</quantity>";
    }
    return xml + "</units>";
}

} // namespace

const std::vector<Unit>& allUnits()
{
    static const std::vector<Unit> units = [] {
        std::vector<Unit> all;
        for (const Pressure& pressure : kPressures) {
            all.push_back({std::string{pressure.name}, gaugePressure, pressure.factor});
        }
        for (const Pressure& pressure : kPressures) {
            all.push_back({std::string{pressure.name} + "(a)", absolutePressure, pressure.factor});
        }
        all.insert(all.end(), kOthers.begin(), kOthers.end());
        return all;
    }();
    return units;
}

const Unit* findUnit(std::string_view name)
{
    static const auto byName = [] {
        std::unordered_map<std::string_view, const Unit*> index;
        for (const Unit& unit : allUnits()) {
            index.emplace(unit.name, &unit);
        }
        return index;
    }();
    const auto found = byName.find(name);
    return found == byName.end() ? nullptr : found->second;
}

std::optional<double> convertUnit(double value, std::string_view fromUnit, std::string_view toUnit)
{
    if (fromUnit == toUnit) {
        return value;
    }
    const Unit* from = findUnit(fromUnit);
    const Unit* to   = findUnit(toUnit);
    if (!from || !to || from->kind != to->kind) {
        return std::nullopt;
    }
    return (value * from->factor + from->offset - to->offset) / to->factor;
}

HartUnitConverter::HartUnitConverter() : mTable(IXMLDOMDocument::create())
{
    mTable.loadXML(tableText());
    for (const Quantity& quantity : kQuantities) {
        mDisplayUnits.emplace(quantity.name, quantity.metric);
    }
}

std::optional<float> HartUnitConverter::ConvertValue(float value, const std::string& fromUnit,
                                                     const std::string& toUnit)
{
    const auto result = convertUnit(value, fromUnit, toUnit);
    if (!result || std::abs(*result) > std::numeric_limits<float>::max()) {
        return std::nullopt;
    }
    return static_cast<float>(*result);
}

std::optional<IXMLDOMNodeList> HartUnitConverter::GetUnitChoices(const std::string& quantity)
{
    const auto data = GetUnitSystemData(quantity);
    return data ? std::optional{data->selectNodes("./unit")} : std::nullopt;
}

std::optional<std::string> HartUnitConverter::GetUnitOfSystem(const IXMLDOMNode& data,
                                                              const std::string& systemName)
{
    for (const IXMLDOMNode& system : data.selectNodes("./system")) {
        if (platform::attributeNode(system, "name").get_text() == systemName) {
            return platform::attributeNode(system, "unit").get_text();
        }
    }
    return std::nullopt;
}

std::optional<std::string> HartUnitConverter::GetDisplayUnit(const std::string& name)
{
    const auto found = mDisplayUnits.find(withoutNumber(name));
    return found == mDisplayUnits.end() ? std::nullopt : std::optional{found->second};
}

bool HartUnitConverter::SetDisplayUnit(const std::string& quantity, const std::string& unit)
{
    const Quantity* known  = findQuantity(quantity);
    const Unit*     chosen = findUnit(unit);
    if (!known || !chosen || known->kind != chosen->kind) {
        return false;
    }
    mDisplayUnits[quantity] = unit;
    return true;
}

std::optional<IXMLDOMNode> HartUnitConverter::GetUnitSystemData(const std::string& quantity)
{
    if (!findQuantity(quantity)) {
        return std::nullopt;
    }
    return mTable.selectSingleNode("/units/quantity[@name=\"" + quantity + "\"]");
}

IXMLDOMNodeList HartUnitConverter::GetQuantities()
{
    return mTable.selectNodes("/units/quantity/@name");
}

std::vector<std::string> HartUnitConverter::systems()
{
    return {"SI", "US", "metric"};
}

} // namespace quill::shell
