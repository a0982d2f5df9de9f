#pragma once

#include "editors/CtrComboEdit.h"
#include "editors/CtrDateEdit.h"
#include "editors/CtrDateLabel.h"
#include "editors/CtrTextEdit.h"
#include "framework/default_messenger.h"
#include "framework/documents.h"
#include "framework/view_base.h"
#include "tests/support/simple_converter.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quill::fuzz {

/// A host with units, so that conversions and limits are walked through too.
struct Host : DefaultMessenger {
    Host()
    {
        converter.add("bar", "psi", 14.5038);
        converter.add("mm", "inch", 1 / 25.4);
        converter.displayUnits["pressure"] = "psi";
    }
    UnitConverter* GetUnitConverter() override { return &converter; }

    test::SimpleConverter converter;
};

/// A page with every kind of editor. The documents of the corpus have parameters of these names.
struct Page : ViewBase {
    platform::Frame frmText{*this, {.Tag = "text"}};
    CtrTextEdit     text{frmText, {.Tag = "ctr_text"}};
    platform::Frame frmTravel{*this, {.Tag = "travel"}};
    CtrTextEdit     travel{frmTravel, {.Tag = "ctr_travel"}};
    platform::Frame frmPressure{*this, {.Tag = "pressure"}};
    CtrTextEdit     pressure{frmPressure, {.Tag = "ctr_pressure"}};
    platform::Frame frmMode{*this, {.Tag = "mode"}};
    CtrComboEdit    mode{frmMode, {.Tag = "ctr_mode"}};
    platform::Frame frmDate{*this, {.Tag = "date"}};
    CtrDateEdit     date{frmDate, {.Tag = "ctr_date"}};
    CtrDateLabel    lastRead{*this, {.Tag = "date_group"}};

    /// What a user does on the page, and what the host asks for then.
    void edit(Host& host)
    {
        text.txtBox.type("A1");
        travel.txtBox.type("7.5");
        pressure.txtBox.type("-1e3");
        mode.cboBox.choose(1);
        date.datePicker.pick("2024-02-29 12:00:00");
        host.RequestChanges(kAllEditors);
        for (BoundEditor* editor :
             {static_cast<BoundEditor*>(&text), static_cast<BoundEditor*>(&travel),
              static_cast<BoundEditor*>(&pressure), static_cast<BoundEditor*>(&mode),
              static_cast<BoundEditor*>(&date)}) {
            (void)editor->GetXmlItem(true);
        }
        host.ViewSetUnits.raise();
    }
};

/// A document that every editor of the page can be bound to.
inline IXMLDOMDocument sampleDatafile()
{
    return documents::openText(std::string{"<dtm xmlns=\""} + documents::kDatafileSchema +
                               R"("><persistentData><parameters>
<parameter name="text" type="stringVal" value="TAG" unit="noUnit" maxVal="8" access="readWrite" synchronised="1"/>
<parameter name="travel" type="floatVal" value="12.5" unit="mm" decimals="1" minVal="0" maxVal="60" access="readWrite" synchronised="1"/>
<parameter name="pressure" type="floatVal" value="5.6" unit="bar" decimals="2" minVal="1.4" maxVal="8" access="readWrite" synchronised="2"/>
<parameter name="mode" type="integerVal" value="1" unit="noUnit" access="readWrite" synchronised="1"/>
<parameter name="date" type="dateVal" value="14.3.2023" unit="noUnit" access="readWrite" synchronised="1"/>
</parameters></persistentData>
<mappedParams><mappedParam name="mode"><mapping name="off" value="0"/><mapping name="on" value="1"/></mappedParam></mappedParams>
<requestGroups><requestGroup name="group" lastUpdate="14.03.2023 10:11:12"><includedParam name="text"/><includedParam name="travel"/>
<includedParam name="pressure"/><includedParam name="mode"/><includedParam name="date"/></requestGroup></requestGroups></dtm>)");
}

/// The bytes as a document, or nothing where they are refused. Anything but a plain refusal is a
/// finding.
inline std::optional<IXMLDOMDocument> read(const std::uint8_t* data, std::size_t size)
{
    try {
        return documents::openText({reinterpret_cast<const char*>(data), size});
    } catch (const platform::Failure&) {
        return std::nullopt;
    }
}

} // namespace quill::fuzz
