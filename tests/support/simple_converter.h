#pragma once

#include "framework/host_contract.h"
#include "platform/failure.h"

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quill::test {

/// Converts by factor and offset. Units, quantities and display units are what a test has set.
class SimpleConverter : public UnitConverter {
public:
    /// Display unit by quantity or parameter name.
    std::map<std::string, std::string> displayUnits;
    /// Units by quantity, in order.
    std::vector<std::pair<std::string, std::vector<std::string>>> quantities;
    /// Unit by system name and quantity.
    std::map<std::pair<std::string, std::string>, std::string> unitOfSystem;
    /// Number of conversions that were asked for.
    int conversions = 0;
    /// Every operation throws failure 5.
    bool failing = false;

    /// value in `to` = value in `from` * factor + offset; the way back comes with it.
    void add(const std::string& from, const std::string& to, double factor, double offset = 0)
    {
        mWays[{from, to}] = {factor, offset};
        mWays[{to, from}] = {1 / factor, -offset / factor};
    }

    std::optional<float> ConvertValue(float value, const std::string& fromUnit,
                                      const std::string& toUnit) override
    {
        check();
        ++conversions;
        if (fromUnit == toUnit) {
            return value;
        }
        const auto found = mWays.find({fromUnit, toUnit});
        if (found == mWays.end()) {
            return std::nullopt;
        }
        return static_cast<float>(value * found->second.first + found->second.second);
    }
    std::optional<IXMLDOMNodeList> GetUnitChoices(const std::string& quantity) override
    {
        check();
        for (const auto& [name, units] : quantities) {
            if (name == quantity) {
                std::string xml = "<units>";
                for (const auto& unit : units) {
                    xml += "<unit name=\"" + unit + "\"/>";
                }
                return read(xml + "</units>").selectNodes("/units/unit");
            }
        }
        return std::nullopt;
    }
    std::optional<std::string> GetUnitOfSystem(const IXMLDOMNode& data,
                                               const std::string& systemName) override
    {
        check();
        const auto found = unitOfSystem.find({systemName, data.get_text()});
        return found == unitOfSystem.end() ? std::nullopt : std::optional{found->second};
    }
    std::optional<std::string> GetDisplayUnit(const std::string& name) override
    {
        check();
        const auto found = displayUnits.find(name);
        return found == displayUnits.end() ? std::nullopt : std::optional{found->second};
    }
    bool SetDisplayUnit(const std::string& quantity, const std::string& unit) override
    {
        check();
        displayUnits[quantity] = unit;
        return true;
    }
    std::optional<IXMLDOMNode> GetUnitSystemData(const std::string& quantity) override
    {
        check();
        return IXMLDOMNode{read("<data>" + quantity + "</data>").get_documentElement()};
    }
    IXMLDOMNodeList GetQuantities() override
    {
        check();
        std::string xml = "<quantities>";
        for (const auto& [name, units] : quantities) {
            xml += "<quantity>" + name + "</quantity>";
        }
        return read(xml + "</quantities>").selectNodes("/quantities/quantity");
    }

private:
    void check() const
    {
        if (failing) {
            throw platform::failure(platform::kInvalidCall);
        }
    }
    static IXMLDOMDocument read(const std::string& xml)
    {
        auto document = IXMLDOMDocument::create();
        document.loadXML(xml);
        return document;
    }

    std::map<std::pair<std::string, std::string>, std::pair<double, double>> mWays;
};

} // namespace quill::test
