#include "actions/CtrMACalibration.h"

#include "actions/form.h"
#include "framework/caption_width.h"
#include "framework/documents.h"
#include "framework/modView.h"
#include "framework/values.h"

#include <algorithm>

namespace quill {

namespace {

constexpr const char* kCurrentStep = "currentStep";
constexpr const char* kStepDone    = "stepDone";
constexpr const char* kNext        = "nextWithArrow";
constexpr const char* kRecalibrate = "recalibrate";
constexpr const char* kTestValue   = "loopTestValue";

constexpr std::int32_t kLastStep  = 4;
constexpr std::int32_t kFinished  = 5;
constexpr std::int32_t kFirstTop  = 900;
constexpr std::int32_t kRowPitch  = 450;
constexpr std::int32_t kTextLeft  = 720;
constexpr std::int32_t kTextWidth = 3300;

platform::Design withTag(platform::Design design)
{
    if (design.Tag.empty()) {
        design.Tag = "maCalibration";
    }
    return design;
}

/// The name of the copy of the test value for one step.
std::string stepName(std::int32_t step)
{
    return std::string(kTestValue) + "Step" + std::to_string(step);
}

/// An element of a control array by its place; failure 9 outside.
template <class Array>
auto& rowOf(Array& rows, std::int32_t row)
{
    if (row < 0 || row >= static_cast<std::int32_t>(rows.size())) {
        throw platform::failure(platform::kSubscriptOutOfRange);
    }
    return rows[static_cast<std::size_t>(row)];
}

} // namespace

platform::Design CtrMACalibration::image(int step)
{
    return {.Name   = "imgMACalibration",
            .Index  = step,
            .Left   = 360,
            .Top    = kFirstTop + step * kRowPitch + 45,
            .Width  = 240,
            .Height = 240};
}

platform::Design CtrMACalibration::label(int step, const char* tag)
{
    return {.Name    = "lblMACalibration",
            .Index   = step,
            .Tag     = tag,
            .Caption = tag,
            .Left    = kTextLeft,
            .Top     = kFirstTop + step * kRowPitch + 45,
            .Width   = kTextWidth,
            .Height  = 270};
}

platform::Design CtrMACalibration::editor(int step, const char* tag, bool visible)
{
    return {.Name    = "cteMACalibration",
            .Index   = step,
            .Tag     = tag,
            .Left    = kTextLeft + kTextWidth + 120,
            .Top     = kFirstTop + step * kRowPitch,
            .Width   = 2400,
            .Height  = 330,
            .Visible = visible};
}

CtrMACalibration::CtrMACalibration(const platform::Design& design)
    : PageView("CtrMACalibration", withTag(design))
{
    UserControl_Initialize();
}

CtrMACalibration::CtrMACalibration(platform::Widget& container, const platform::Design& design)
    : PageView("CtrMACalibration", container, withTag(design))
{
    UserControl_Initialize();
}

void CtrMACalibration::UserControl_Initialize()
{
    imlCalibration.Add(kCurrentStep);
    imlCalibration.Add(kStepDone);
    paintFrames();
    for (CtrTextEdit& edit : cteMACalibration) {
        edit.setSilent(true);
    }
    lblTitle.Bold               = true;
    imgMACalibration[0].Picture = kCurrentStep;
    cmdBack.Enabled             = false;
    Resize.raise();
}

void CtrMACalibration::Localize(Translator& translator)
{
    steps("Localize")([&] { modView::Localize(*this, translator); });
    fitTexts();
}

/// The editors stand behind the longest text, the buttons are as wide as theirs.
void CtrMACalibration::fitTexts()
{
    std::int32_t widest = kTextWidth;
    for (const platform::Label& text : lblMACalibration) {
        widest = std::max(widest, captionWidth(text.Caption));
    }
    for (std::size_t row = 0; row < kSteps; ++row) {
        lblMACalibration[row].Width = widest;
        cteMACalibration[row].Left  = kTextLeft + widest + 120;
    }
    cmdBack.Width = buttonWidth(cmdBack.Caption, 1500);
    cmdNext.Width = buttonWidth(cmdNext.Caption, 1500);
    cmdNext.Left  = cmdBack.Left + cmdBack.Width + 240;
}

void CtrMACalibration::arrange()
{
    for (CtrDateLabel& date : ctrDateLabels) {
        date.Left = Width - date.Width;
        date.Top  = 20;
    }
}

void CtrMACalibration::SetErrorData(const IXMLDOMNode& node)
{
    const Steps step = steps("IQornDataUser_SetErrorData");
    step([&] { modView::setErrorData(*this, node); });
    step([&] { cmdMACalibration_Click(0); });
}

void CtrMACalibration::SetImportData(const IXMLDOMNode& node)
{
    steps("IQornDataUser_SetImportData")([&] { modView::setImportData(*this, node); });
}

void CtrMACalibration::SetOfflineData(const IXMLDOMNode& node)
{
    const Steps step = steps("IQornDataUser_SetOfflineData");
    copyTestValue(step, node);
    step([&] { modView::setOfflineData(*this, node); });
    for (std::int32_t row = 1; row < static_cast<std::int32_t>(kSteps); ++row) {
        open(step, row, false);
    }
    step([&] { cteMACalibration[0].setText("4"); });
    step([&] { cteMACalibration[2].setText("20"); });
    step([&] { cteMACalibration[4].SetModifiedForward(false); });
}

void CtrMACalibration::copyTestValue(const Steps& step, const IXMLDOMNode& node)
{
    const auto original = step.value(IXMLDOMNode{}, [&] {
        return node.selectSingleNode("//data:parameter[@name = \"loopTestValue\"]");
    });
    const auto parameters =
        step.value(IXMLDOMNode{}, [&] { return node.selectSingleNode("//data:parameters"); });
    if (!original) {
        return;
    }
    IXMLDOMNode copy;
    for (const std::int32_t row : {0, 2, 4}) {
        step([&] {
            copy = original.cloneNode(true);
            documents::writeAttribute(copy, "name", stepName(row));
        });
        step([&] { parameters.insertBefore(copy, original); });
    }
    // Step 4 can write nothing but the end of the fixed current.
    for (const char* name : {"minVal", "maxVal", "value"}) {
        step([&] { documents::writeAttribute(copy, name, "0.0"); });
    }
    for (const char* name : {"synchronised", "printable"}) {
        step([&] { documents::writeAttribute(copy, name, "0"); });
    }
}

void CtrMACalibration::SetOnlineData(const IXMLDOMNode& node)
{
    const Steps step = steps("IQornDataUser_SetOnlineData");
    // The step has moved on when its answer comes.
    step([&] {
        const auto item = node.selectSingleNode("//comm:item[@name = \"loopTestValue\"]");
        if (item) {
            documents::writeAttribute(item, "name", stepName(mStep - 1));
        }
    });
    step([&] { modView::setOnlineData(*this, node); });
}

platform::WidgetList CtrMACalibration::GetControls()
{
    return listedBefore(PageView::GetControls(), cmdBack, cmdNext);
}

bool CtrMACalibration::LeaveSelectedView()
{
    const Steps step = steps("IQornView_LeaveSelectedView");
    if (mStep < 1 || mStep > kLastStep) {
        return true;
    }
    const auto answer = step.value(std::int32_t{0}, [&] {
        return host().AskQuestion("mACalibration", "calibrationExitWarning");
    });
    if (answer != kPositiveAnswer) {
        return false;
    }
    mStep = kLastStep;
    step([&] { cmdMACalibration_Click(1); });
    mStep = kFinished;
    step([&] { cmdMACalibration_Click(1); });
    return true;
}

void CtrMACalibration::RequestFocus()
{
    steps("IQornView_RequestFocus")([&] { cteMACalibration[0].SetFocus(); });
}

bool CtrMACalibration::isFinished() const noexcept
{
    return mStep > kLastStep;
}

void CtrMACalibration::cmdMACalibration_Click(int index)
{
    // Support staff search for this text: it carries the name of the view that had the buttons
    // once.
    const Steps step{GetMessenger(), "VwAdvanced cmdMACalibration_Click: "};
    if (index == 0) {
        --mStep;
    } else if (isFinished()) {
        mStep = 0;
        showNextAs(step, kNext);
    } else if (sendStep(step)) {
        ++mStep;
    } else {
        return;
    }
    if (mStep == 0) {
        cmdBack.Enabled = false;
    }
    if (isFinished()) {
        showFinished(step);
    } else {
        showRows(step);
    }
}

bool CtrMACalibration::sendStep(const Steps& step)
{
    // Behind a Back too far there is no row: nothing is sent, and Next leads to the first one
    // again.
    if (!step.value(true, [&] { return rowOf(cteMACalibration, mStep).downloadable(); })) {
        return false;
    }
    if (mStep == 0) {
        cmdBack.Enabled = true;
    }
    step([&] {
        const std::string item = rowOf(cteMACalibration, mStep).GetXmlItem(true).get_xml();
        // The device knows one parameter, whatever step writes it.
        host().SendCommunicationRequest(
            values::replaceAll("<communicationRequest name=\"mACalibration\" access=\"write\">" +
                                   item + "</communicationRequest>",
                               stepName(mStep), kTestValue),
            "mACalibration");
    });
    return true;
}

void CtrMACalibration::goByArrow(platform::KeyPress& key, platform::Widget& other)
{
    if (key.code >= platform::kKeyLeft && key.code <= platform::kKeyDown &&
        other.focus() == platform::UserDoor::done) {
        key.handled = true;
    }
}

void CtrMACalibration::showNextAs(const Steps& step, const std::string& key)
{
    cmdNext.Tag = key;
    step([&] { cmdNext.Caption = existing(host().GetTranslator()).Translate(key); });
    fitTexts();
}

void CtrMACalibration::showFinished(const Steps& step)
{
    imgMACalibration[kLastStep].Picture = kStepDone;
    cmdBack.Enabled                     = false;
    showNextAs(step, kRecalibrate);
}

void CtrMACalibration::open(const Steps& step, std::int32_t row, bool isOpen)
{
    step([&] { rowOf(cteMACalibration, row).setEnabled(isOpen); });
    step([&] { rowOf(cteMACalibration, row).TabStop = isOpen; });
}

void CtrMACalibration::showRows(const Steps& step)
{
    for (std::int32_t row = 0; row < mStep; ++row) {
        step([&] { rowOf(imgMACalibration, row).Picture = kStepDone; });
        open(step, row, false);
    }
    if (mStep < kLastStep) {
        open(step, mStep, true);
        step([&] { rowOf(cteMACalibration, mStep).SetFocus(); });
    }
    step([&] { rowOf(imgMACalibration, mStep).Picture = kCurrentStep; });
    for (std::int32_t row = mStep + 1; row <= kLastStep; ++row) {
        step([&] { rowOf(imgMACalibration, row).Picture = ""; });
        open(step, row, false);
    }
}

} // namespace quill
