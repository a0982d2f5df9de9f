#pragma once

#include "framework/address_service.h"
#include "framework/host_contract.h"
#include "probe/host_settings.h"
#include "probe/output.h"

namespace quill::probe {

/// Texts out of the settings.
class HostTranslator : public Translator {
public:
    explicit HostTranslator(const HostSettings& settings) : mSettings(settings) {}

    std::string GetLanguage() override;
    std::string Translate(const std::string& key) override;
    /// The text of the whole, where there is one; else the text of what stands before the
    /// delimiter, a blank, and what stands behind it.
    std::string TranslateDelimited(const std::string& text, const std::string& delimiter) override;
    /// Looks the tag up as it stands, then without "ctr_".
    std::string TranslateTag(const std::string& tag) override;

private:
    [[nodiscard]] const std::string* known(const std::string& key) const;
    [[nodiscard]] std::string        unknown(const std::string& key) const;

    const HostSettings& mSettings;
};

/// Units out of the settings, in single precision. Only `SetDisplayUnit` is worth a report.
class HostConverter : public UnitConverter {
public:
    HostConverter(HostSettings& settings, const Output& output)
        : mSettings(settings), mOutput(output)
    {
    }

    std::optional<float>           ConvertValue(float value, const std::string& fromUnit,
                                                const std::string& toUnit) override;
    std::optional<IXMLDOMNodeList> GetUnitChoices(const std::string& quantity) override;
    std::optional<std::string>     GetUnitOfSystem(const IXMLDOMNode& data,
                                                   const std::string& systemName) override;
    std::optional<std::string>     GetDisplayUnit(const std::string& name) override;
    bool SetDisplayUnit(const std::string& quantity, const std::string& unit) override;
    /// An element `quantity` with its name, while some system of units knows the quantity.
    std::optional<IXMLDOMNode> GetUnitSystemData(const std::string& quantity) override;
    IXMLDOMNodeList            GetQuantities() override;

private:
    /// Failure 91 while the host has no converter: a control kept it for too long.
    [[nodiscard]] ConverterSettings& units() const;

    HostSettings& mSettings;
    const Output& mOutput;
};

/// The bus address out of the settings. Every operation is reported.
class HostAddressService : public AddressService {
public:
    HostAddressService(HostSettings& settings, const Output& output)
        : mSettings(settings), mOutput(output)
    {
    }

    std::optional<std::int16_t> ReadAddress() override;
    /// Changes what `ReadAddress` answers.
    bool WriteAddress(std::uint8_t first, std::uint8_t second, std::int32_t third,
                      std::uint8_t address) override;

private:
    /// Reports an operation and throws what was prepared for it; failure 91 while the host has no
    /// such service: a control kept it for too long.
    AddressSettings& called(const char* operation, Reply args) const;

    HostSettings& mSettings;
    const Output& mOutput;
};

} // namespace quill::probe
