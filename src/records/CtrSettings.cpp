#include "records/CtrSettings.h"

#include "framework/documents.h"
#include "framework/modTools.h"
#include "framework/named_callbacks.h"
#include "framework/values.h"
#include "platform/failure.h"
#include "platform/toolkit.h"

#include <algorithm>

namespace quill {

namespace {

constexpr int kQuantity = 1; // columns of the grid
constexpr int kUnit     = 2;

// Below this size the texts would be cut off in the longer languages.
constexpr std::int32_t kSmallestWidth  = 9000;
constexpr std::int32_t kSmallestHeight = 4800;

platform::Design withSize(platform::Design design)
{
    if (design.Width == 0 && design.Height == 0) {
        design.Width  = kSmallestWidth;
        design.Height = 6000;
    }
    return design;
}

} // namespace

CtrSettings::CtrSettings(const platform::Design& design) : Control(withSize(design))
{
    UserControl_Initialize();
}

CtrSettings::CtrSettings(platform::Widget& container, const platform::Design& design)
    : Control(container, withSize(design))
{
    UserControl_Initialize();
}

void CtrSettings::UserControl_Initialize()
{
    const Steps step{[](int number, const std::string& description) {
        platform::Toolkit::current().debugOutput("CtrSettings UserControl_Initialize - Error" +
                                                 std::to_string(number) + ": " + description);
    }};
    step([&] { setUpGrids(); });
    step([&] {
        ctrTBLaunchedPanel.ZPosition = static_cast<std::int32_t>(Widgets().size());
        ctrTBLaunchedPanel.TabStop   = false;
        arrange();
    });
    step([&] {
        for (platform::CommandButton* button : {&cmdSI, &cmdUS, &cmdOK, &cmdCancel, &cmdApply}) {
            button->Picture = "gradient";
        }
    });
    setModified(false);
}

void CtrSettings::setUpGrids()
{
    scgUnits.HeaderVisible = false;
    scgUnits.AddCol({.Key = "quantity", .Width = 360});
    scgUnits.AddCol({.Key = "unit", .Width = 180});
    scgUnitsKey.AddCol({});
    scgUnitsKey.AddCol({});
}

/// The grid takes what a larger dialog gives; the buttons stay in the lower right corner.
void CtrSettings::arrange()
{
    constexpr std::int32_t kMargin = 180;
    const std::int32_t     width   = std::max(Width.get(), kSmallestWidth);
    const std::int32_t     height  = std::max(Height.get(), kSmallestHeight);
    const std::int32_t     half    = (width - 3 * kMargin) / 2;
    const std::int32_t     right   = width - kMargin;

    ctrTBLaunchedPanel.Width  = width;
    ctrTBLaunchedPanel.Height = height;
    lblTitle.Width = lblSelectUnits.Width = scgUnits.Width = width - 2 * kMargin;
    scgUnits.Height                                        = height - 3300;
    lblChangeAll.Top                                       = height - 1365;
    cmdSI.Top = cmdUS.Top = height - 1440;
    for (platform::Widget* left : {static_cast<platform::Widget*>(&lblSelectLanguage),
                                   static_cast<platform::Widget*>(&cboSelectLanguage),
                                   static_cast<platform::Widget*>(&lblChangeAll)}) {
        left->Width = half;
    }
    for (platform::Widget* other : {static_cast<platform::Widget*>(&lblStatusClassification),
                                    static_cast<platform::Widget*>(&cboStatusClassification)}) {
        other->Left  = half + 2 * kMargin;
        other->Width = half;
    }
    cmdUS.Left = right - cmdUS.Width;
    cmdSI.Left = cmdUS.Left - 150 - cmdSI.Width;

    std::int32_t end = right;
    for (platform::CommandButton* button : {&cmdApply, &cmdCancel, &cmdOK}) {
        button->Top  = height - 660;
        button->Left = end - button->Width;
        end          = button->Left - 150;
    }
}

Steps CtrSettings::steps(const char* procedure) const
{
    return {mMessenger, std::string("CtrSettings ") + procedure};
}

Messenger& CtrSettings::host() const
{
    return existing(mMessenger);
}

UnitConverter& CtrSettings::units() const
{
    return existing(host().GetUnitConverter());
}

std::string CtrSettings::keyOf(int row) const
{
    return scgUnitsKey.cell(row, kQuantity).Text;
}

void CtrSettings::setModified(bool modified)
{
    mblnModified     = modified;
    cmdApply.Enabled = modified;
}

void CtrSettings::SetMessenger(Messenger* messenger)
{
    mMessenger = messenger;
}

// --- Language ------------------------------------------------------------------------------------

void CtrSettings::SetSupportedLanguages(const std::vector<std::string>& langs)
{
    mastrLanguages = langs;
    cboSelectLanguage.Clear();
    for (const std::string& language : mastrLanguages) {
        cboSelectLanguage.AddItem(language);
    }
}

void CtrSettings::SetCurrentLanguage(const std::string& lang)
{
    mstrLanguage = lang;
    selectLanguage(lang);
}

void CtrSettings::selectLanguage(const std::string& language)
{
    const auto& list  = cboSelectLanguage.List();
    const auto  found = std::find(list.rbegin(), list.rend(), language);
    cboSelectLanguage.setListIndex(static_cast<std::int32_t>(list.rend() - found) - 1);
}

void CtrSettings::Localize(Translator& translator)
{
    const Steps step = steps("ILocalizable_Localize");
    for (platform::Widget* widget : Widgets()) {
        localizeWidget(step, *widget, translator);
    }
}

void CtrSettings::localizeWidget(const Steps& step, platform::Widget& widget,
                                 Translator& translator)
{
    const auto setCaption = [&](platform::Property<std::string>& caption) {
        if (!widget.Tag.get().empty()) {
            step([&] { caption = translator.TranslateTag(widget.Tag); });
        }
    };
    if (&widget == &lblSelectUnits) {
        // The one label that the form gives no tag.
        silentSteps()([&] {
            const std::string text = translator.Translate("selectUnits");
            if (modTools::IsNotErrorText(text) && text != "selectUnits") {
                lblSelectUnits.Caption = text;
            }
        });
    } else if (auto* label = dynamic_cast<platform::Label*>(&widget)) {
        setCaption(label->Caption);
    } else if (auto* button = dynamic_cast<platform::ButtonBase*>(&widget)) {
        setCaption(button->Caption);
    } else if (&widget == &scgUnits) {
        localizeUnits(step, translator);
    } else if (&widget == &cboSelectLanguage) {
        const std::int32_t chosen = cboSelectLanguage.ListIndex();
        SetSupportedLanguages(std::vector(mastrLanguages));
        step([&] { cboSelectLanguage.setListIndex(chosen); });
    } else if (&widget == &cboStatusClassification) {
        fillClassifications(step, translator);
    }
}

void CtrSettings::localizeUnits(const Steps& step, Translator& translator)
{
    for (int row = 1; row <= scgUnits.RowCount(); ++row) {
        step([&] { scgUnits.setCellText(row, kQuantity, translator.Translate(keyOf(row))); });
    }
}

void CtrSettings::fillClassifications(const Steps& step, Translator& translator)
{
    cboStatusClassification.Clear();
    step([&] {
        cboStatusClassification.AddItem(translator.Translate("statusSeverity"), kClassSeverity);
    });
    step(
        [&] { cboStatusClassification.AddItem(translator.Translate("statusNAMUR"), kClassNAMUR); });
    step([&] { cboStatusClassification.setListIndex(host().GetStatusClassification()); });
}

// --- Units ---------------------------------------------------------------------------------------

void CtrSettings::UserControl_Show()
{
    const Steps step{mMessenger, "CtrSettings: UserControl_Show"};
    step([&] { host().NotifyDialog(kDialogComesUp); });
    step([&] { cboSelectLanguage.SetFocus(); });
    if (!mblnUnitsLoaded) {
        step([&] { SetUnitConverter(); });
        mblnUnitsLoaded = true;
    }
    step([&] {
        if (host().IsStatusClassificationFixed()) {
            lblStatusClassification.Visible = false;
            cboStatusClassification.Visible = false;
        }
    });
}

void CtrSettings::SetUnitConverter()
{
    const Steps step = steps("SetUnitConverter ");
    auto*       converter =
        step.value<UnitConverter*>(nullptr, [&] { return host().GetUnitConverter(); });
    if (converter == nullptr) {
        return;
    }
    auto* const translator =
        step.value<Translator*>(nullptr, [&] { return host().GetTranslator(); });
    auto quantities = step.value(IXMLDOMNodeList{}, [&] { return converter->GetQuantities(); });
    quantities.reset();
    scgUnits.Redraw = false;
    for (platform::Grid* grid : {&scgUnits, &scgUnitsKey}) {
        step([&] { grid->setRowCount(static_cast<int>(quantities.get_length())); });
    }
    for (int row = 1; row <= scgUnits.RowCount(); ++row) {
        const std::string key = step.text([&] { return quantities.nextNode().get_text(); });
        step([&] { scgUnits.setCellText(row, kQuantity, existing(translator).Translate(key)); });
        scgUnits.setCellEditable(row, kQuantity, false);
        scgUnitsKey.setCellText(row, kQuantity, key);
        showUnit(row, step.text([&] { return converter->GetDisplayUnit(key).value_or(""); }));
    }
    scgUnits.Redraw = true;
}

void CtrSettings::showUnit(int row, const std::string& unit)
{
    scgUnits.setCellText(row, kUnit, unit);
    scgUnits.setCellValue(row, kUnit, std::nullopt);
}

void CtrSettings::scgUnits_CellSelectionChange(int row, int col)
{
    if (col != kUnit) {
        return;
    }
    const Steps       step{mMessenger, "scgUnits_CellSelectionChange , " + std::to_string(col)};
    const std::string key = keyOf(row);
    const auto        choices =
        step.value(std::optional<IXMLDOMNodeList>{}, [&] { return units().GetUnitChoices(key); });
    miUnitRow = row;
    scgUnits.ClearCombo(key);
    std::int32_t place = 0;
    for (const IXMLDOMNode& choice : choices.value_or(IXMLDOMNodeList{})) {
        scgUnits.AddComboItem(key, {getText(choice, "./@name"), place++});
    }
    step([&] { scgUnits.setCellList(row, kUnit, key); });
}

std::string CtrSettings::getText(const IXMLDOMNode& node, const char* xpath) const
{
    std::string text;
    const Steps step{[&](int number, const std::string& description) {
        silentSteps()([&] {
            host().ReportError("CtrSettings getText ", number,
                               "Missing value " + std::string(xpath) + ": " + description);
        });
    }};
    step([&] { text = node.selectSingleNode(xpath).get_text(); });
    return text;
}

void CtrSettings::showBaseUnits(const std::string& system)
{
    const Steps step = steps("showBaseUnits ");
    for (int row = 1; row <= scgUnits.RowCount(); ++row) {
        step([&] {
            const auto data = units().GetUnitSystemData(keyOf(row));
            const auto unit = data ? units().GetUnitOfSystem(*data, system) : std::nullopt;
            if (unit) {
                showUnit(row, *unit);
            }
        });
    }
}

void CtrSettings::showCurrentUnits()
{
    const Steps step = steps("showCurrentUnits ");
    for (int row = 1; row <= scgUnits.RowCount(); ++row) {
        step([&] {
            if (const auto unit = units().GetDisplayUnit(keyOf(row))) {
                showUnit(row, *unit);
            }
        });
    }
}

// --- What takes effect ---------------------------------------------------------------------------

void CtrSettings::Translate()
{
    const std::string chosen = cboSelectLanguage.Text();
    if (chosen.empty() || chosen == mstrLanguage) {
        return;
    }
    mstrLanguage = chosen;
    steps("Translate ")([&] { callPage(*this, "QuillTranslateTexts", {mstrLanguage}); });
}

void CtrSettings::ConvertUnits()
{
    const Steps step = steps("ConvertUnits ");
    for (int row = 1; row <= scgUnits.RowCount(); ++row) {
        step([&] { (void)units().SetDisplayUnit(keyOf(row), scgUnits.cell(row, kUnit).Text); });
    }
    step([&] { callPage(*this, "QuillInformUnitChanges"); });
}

void CtrSettings::ClassifyStatuses()
{
    const Steps step = steps("ClassifyStatuses ");
    step([&] {
        const auto& data  = cboStatusClassification.ItemData();
        const auto  place = static_cast<std::size_t>(cboStatusClassification.ListIndex());
        if (place >= data.size()) {
            throw platform::failure(platform::kSubscriptOutOfRange);
        }
        if (data[place] == kClassSeverity || data[place] == kClassNAMUR) {
            host().SetStatusClassification(static_cast<std::int16_t>(data[place]));
        }
    });
}

void CtrSettings::cmdApply_Click()
{
    Translate();
    ConvertUnits();
    ClassifyStatuses();
    setModified(false);
}

void CtrSettings::leave(const char* procedure)
{
    const Steps step = steps(procedure);
    step([&] { host().NotifyDialog(kDialogGoes); });
    step([&] { host().TransferFocus(); });
}

void CtrSettings::cmdOK_Click()
{
    Visible = false;
    cmdApply_Click();
    leave("cmdOK_Click");
}

void CtrSettings::cmdCancel_Click()
{
    Visible = false;
    selectLanguage(mstrLanguage);
    showCurrentUnits();
    setModified(false);
    leave("cmdCancel_Click");
}

void CtrSettings::UserControl_KeyDown(platform::KeyPress& key)
{
    if (key.code == platform::kKeyEscape) {
        key.handled = true;
        const Steps step{mMessenger, "CtrSettings: UserControl_KeyDown"};
        step([&] { cmdCancel_Click(); });
    }
}

} // namespace quill
