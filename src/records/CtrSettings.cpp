#include "records/CtrSettings.h"

#include "framework/caption_width.h"
#include "framework/documents.h"
#include "framework/modTools.h"
#include "framework/named_callbacks.h"
#include "framework/values.h"
#include "platform/failure.h"
#include "platform/toolkit.h"

#include <algorithm>
#include <initializer_list>

namespace quill {

namespace {

constexpr int kQuantity = 1; // columns of the grid
constexpr int kUnit     = 2;

// Below this size the texts would be cut off in the longer languages.
constexpr std::int32_t kSmallestWidth  = 9000;
constexpr std::int32_t kSmallestHeight = 4800;

constexpr std::int32_t kMargin        = 180;
constexpr std::int32_t kGap           = 150; // between buttons
constexpr std::int32_t kTwipsPerPixel = 15;
constexpr std::int32_t kUnitWidth     = 180; // pixels, as the next
constexpr std::int32_t kScrollBar     = 36;

/// Buttons side by side, the last one first.
using ButtonRow = std::initializer_list<platform::CommandButton*>;

/// Makes the buttons as wide as their texts, at least `least`; answers what they take together.
std::int32_t fitted(ButtonRow row, std::int32_t least)
{
    std::int32_t total = 0;
    for (platform::CommandButton* button : row) {
        button->Width = buttonWidth(button->Caption, least);
        total += button->Width + kGap;
    }
    return total;
}

void lineUp(ButtonRow row, std::int32_t right, std::int32_t top)
{
    for (platform::CommandButton* button : row) {
        button->Top  = top;
        button->Left = right - button->Width;
        right        = button->Left - kGap;
    }
}

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
    lblTitle.Bold = true;
    step([&] { setUpGrids(); });
    step([&] {
        ctrTBLaunchedPanel.ZPosition = static_cast<std::int32_t>(Widgets().size());
        ctrTBLaunchedPanel.TabStop   = false;
        arrange();
    });
    step([&] {
        // The panel gives it to them for their other states when the dialog comes up.
        ctrTBLaunchedPanel.imlPanel.Add("gradient");
        for (platform::CommandButton* button : {&cmdSI, &cmdUS, &cmdOK, &cmdCancel, &cmdApply}) {
            button->Picture = ctrTBLaunchedPanel.imlPanel.first();
        }
    });
    setModified(false);
}

void CtrSettings::setUpGrids()
{
    scgUnits.HeaderVisible = false;
    scgUnits.AddCol({.Key = "quantity", .Width = 360});
    scgUnits.AddCol({.Key = "unit", .Width = kUnitWidth});
    scgUnitsKey.AddCol({});
    scgUnitsKey.AddCol({});
}

/// The grid takes what a larger dialog gives; the buttons stay in the lower right corner. Texts
/// that need more room than the dialog has widen the form.
void CtrSettings::arrange()
{
    const ButtonRow    systems{&cmdUS, &cmdSI};
    const ButtonRow    leave{&cmdApply, &cmdCancel, &cmdOK};
    const std::int32_t column = std::max(captionWidth(lblSelectLanguage.Caption),
                                         captionWidth(lblStatusClassification.Caption));
    const std::int32_t width =
        std::max({Width.get(), kSmallestWidth, 2 * column + 3 * kMargin,
                  captionWidth(lblChangeAll.Caption) + fitted(systems, 2025) + 2 * kMargin,
                  fitted(leave, 2100) + 2 * kMargin});
    const std::int32_t height = std::max(Height.get(), kSmallestHeight);
    const std::int32_t half   = (width - 3 * kMargin) / 2;

    ctrTBLaunchedPanel.Width  = width;
    ctrTBLaunchedPanel.Height = height;
    lblTitle.Width = lblSelectUnits.Width = scgUnits.Width = width - 2 * kMargin;
    scgUnits.Height                                        = height - 3300;
    scgUnits.setColumnWidth(kQuantity, scgUnits.Width / kTwipsPerPixel - kUnitWidth - kScrollBar);
    lblSelectLanguage.Width = cboSelectLanguage.Width = half;
    lblStatusClassification.Width = cboStatusClassification.Width = half;
    lblStatusClassification.Left = cboStatusClassification.Left = half + 2 * kMargin;
    lineUp(systems, width - kMargin, height - 1440);
    lblChangeAll.Top   = height - 1365;
    lblChangeAll.Width = cmdSI.Left - kMargin - kGap;
    lineUp(leave, width - kMargin, height - 660);
}

Steps CtrSettings::steps(const char* procedure) const
{
    return {mMessenger, std::string("CtrSettings ") + procedure};
}

Messenger& CtrSettings::host() const
{
    return existing(mMessenger);
}

UnitConverter* CtrSettings::converter(const Steps& step) const
{
    return step.value<UnitConverter*>(nullptr, [&] { return host().GetUnitConverter(); });
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
    arrange();
}

void CtrSettings::localizeWidget(const Steps& step, platform::Widget& widget,
                                 Translator& translator)
{
    const auto setCaption = [&](platform::Property<std::string>& caption) {
        if (widget.Tag.get().empty()) {
            return;
        }
        step([&] {
            const std::string text = translator.TranslateTag(widget.Tag);
            if (modTools::IsNotErrorText(text)) {
                caption = text;
            }
        });
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
        step([&] {
            scgUnits.setCellText(row, kQuantity, modTools::textOrKey(translator, keyOf(row)));
        });
    }
}

void CtrSettings::fillClassifications(const Steps& step, Translator& translator)
{
    // The host's number is the row: a text that cannot be had leaves its row empty.
    const auto add = [&](const char* key, StatusClassification classification) {
        const std::string text = step.text([&] { return modTools::textOrKey(translator, key); });
        cboStatusClassification.AddItem(text, classification);
    };
    cboStatusClassification.Clear();
    add("statusSeverity", kClassSeverity);
    add("statusNAMUR", kClassNAMUR);
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
    const Steps          step  = steps("SetUnitConverter ");
    UnitConverter* const units = converter(step);
    if (units == nullptr) {
        return;
    }
    auto* const translator =
        step.value<Translator*>(nullptr, [&] { return host().GetTranslator(); });
    auto quantities = step.value(IXMLDOMNodeList{}, [&] { return units->GetQuantities(); });
    quantities.reset();
    scgUnits.Redraw = false;
    for (platform::Grid* grid : {&scgUnits, &scgUnitsKey}) {
        step([&] { grid->setRowCount(static_cast<int>(quantities.get_length())); });
    }
    for (int row = 1; row <= scgUnits.RowCount(); ++row) {
        const std::string key = step.text([&] { return quantities.nextNode().get_text(); });
        step([&] {
            scgUnits.setCellText(row, kQuantity, modTools::textOrKey(existing(translator), key));
        });
        scgUnits.setCellEditable(row, kQuantity, false);
        scgUnitsKey.setCellText(row, kQuantity, key);
        showUnit(row, step.text([&] { return units->GetDisplayUnit(key).value_or(""); }));
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
    const Steps          step{mMessenger, "scgUnits_CellSelectionChange , " + std::to_string(col)};
    UnitConverter* const units   = converter(step);
    const std::string    key     = step.text([&] { return keyOf(row); });
    const auto           choices = step.value(std::optional<IXMLDOMNodeList>{},
                                              [&] { return existing(units).GetUnitChoices(key); });
    miUnitRow                    = row;
    if (choices || !scgUnits.hasCombo(key)) {
        scgUnits.ClearCombo(key);
    }
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
    const Steps          step  = steps("showBaseUnits ");
    UnitConverter* const units = converter(step);
    scgUnits.cancelEdit();
    for (int row = 1; row <= scgUnits.RowCount(); ++row) {
        step([&] {
            const auto data = existing(units).GetUnitSystemData(keyOf(row));
            const auto unit = data ? units->GetUnitOfSystem(*data, system) : std::nullopt;
            if (unit) {
                showUnit(row, *unit);
            }
        });
    }
}

void CtrSettings::showCurrentUnits()
{
    const Steps          step  = steps("showCurrentUnits ");
    UnitConverter* const units = converter(step);
    for (int row = 1; row <= scgUnits.RowCount(); ++row) {
        step([&] {
            if (const auto unit = existing(units).GetDisplayUnit(keyOf(row))) {
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
    const Steps          step  = steps("ConvertUnits ");
    UnitConverter* const units = converter(step);
    for (int row = 1; row <= scgUnits.RowCount(); ++row) {
        step([&] {
            (void)existing(units).SetDisplayUnit(keyOf(row), scgUnits.cell(row, kUnit).Text);
        });
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
    // What still stands open in a cell is what the user means, too.
    (void)scgUnits.commitEdit();
    apply();
}

void CtrSettings::apply()
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
    (void)scgUnits.commitEdit(); // hidden, the grid has nothing open any more
    Visible = false;
    apply();
    leave("cmdOK_Click");
}

void CtrSettings::cmdCancel_Click()
{
    Visible = false;
    selectLanguage(mstrLanguage);
    // What was entered and not taken yet would come up again instead of the unit.
    scgUnits.cancelEdit();
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
