#pragma once

#include "framework/host_contract.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quill::shell {

/// What a unit measures. Units of one kind convert into each other, others never: a gauge pressure
/// is no absolute one, and a difference of temperatures is no temperature.
enum class UnitKind {
    gaugePressure,
    absolutePressure,
    temperature,
    temperatureDifference,
    length,
    angle,
    time,
    frequency,
    current,
    voltage,
    resistance,
    volumeFlow,
    massFlow,
    volume,
    mass,
    density,
    velocity,
    force,
    torque,
    power,
    ratio,
};

/// One engineering unit: base = value * factor + offset, base being the kind's base unit.
struct Unit {
    std::string name;
    UnitKind    kind;
    double      factor;
    double      offset = 0;
};

/// All units, in the order in which a list of choices shows them.
[[nodiscard]] const std::vector<Unit>& allUnits();
/// The unit of this name, nothing if there is none.
[[nodiscard]] const Unit* findUnit(std::string_view name);
/// The value in the other unit, in double precision; nothing if there is no way. Equal names
/// convert to themselves, known or not.
[[nodiscard]] std::optional<double> convertUnit(double value, std::string_view fromUnit,
                                                std::string_view toUnit);

/// The shell's unit converter. Quantities are named so that the tail of a parameter's name finds
/// them: "supplyPressure" is a "pressure". A number behind an underscore counts as part of no
/// name: "supplyPressure_2" is a "pressure" as well. Systems of units are "SI", "US" and "metric";
/// the display units start as "metric".
class HartUnitConverter : public UnitConverter {
public:
    HartUnitConverter();

    /// Computes in double precision and narrows once.
    std::optional<float>           ConvertValue(float value, const std::string& fromUnit,
                                                const std::string& toUnit) override;
    std::optional<IXMLDOMNodeList> GetUnitChoices(const std::string& quantity) override;
    std::optional<std::string>     GetUnitOfSystem(const IXMLDOMNode& data,
                                                   const std::string& systemName) override;
    std::optional<std::string>     GetDisplayUnit(const std::string& name) override;
    bool SetDisplayUnit(const std::string& quantity, const std::string& unit) override;
    std::optional<IXMLDOMNode> GetUnitSystemData(const std::string& quantity) override;
    IXMLDOMNodeList            GetQuantities() override;

    /// The names of the systems of units, for the shell's own lists.
    [[nodiscard]] static std::vector<std::string> systems();

private:
    IXMLDOMDocument                                 mTable;
    std::map<std::string, std::string, std::less<>> mDisplayUnits;
};

} // namespace quill::shell
