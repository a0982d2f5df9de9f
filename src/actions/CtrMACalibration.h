#pragma once

#include "editors/CtrDateLabel.h"
#include "editors/CtrFocusTransfer.h"
#include "editors/CtrTextEdit.h"
#include "framework/page_view.h"
#include "platform/buttons.h"
#include "platform/label.h"
#include "platform/pictures.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace quill {

/// A wizard that calibrates the loop current in five steps: the device drives a fixed low current,
/// the user types what his meter shows, the same at the high end, and the fixed current is switched
/// off. Each step writes one parameter in a request "mACalibration".
///
/// Next goes on as soon as the request is handed over; an error response takes one step back. The
/// datafile's `loopTestValue` is copied in the document for the three steps that write it. Leaving
/// in the middle asks first and switches the fixed current off.
class CtrMACalibration : public PageView {
public:
    explicit CtrMACalibration(const platform::Design& design = {});
    CtrMACalibration(platform::Widget& container, const platform::Design& design = {});

    /// Number of steps; the step that comes behind the last one means that all is done.
    static constexpr std::size_t kSteps = 5;

    platform::Frame frmViews{*this, {.Name = "frmViews", .Index = 0, .Tag = "mACalibration"}};
    platform::Label lblTitle{frmViews,
                             {.Name    = "lblTitle",
                              .Tag     = "mACalibration",
                              .Caption = "mACalibration",
                              .Left    = 360,
                              .Top     = 300,
                              .Width   = 5400,
                              .Height  = 300}};
    std::array<CtrDateLabel, 1>         ctrDateLabels{{{frmViews,
                                                        {.Name   = "ctrDateLabels",
                                                         .Index  = 0,
                                                         .Tag    = "date_mACalibration",
                                                         .Width  = 2400,
                                                         .Height = 270}}}};
    std::array<platform::Image, kSteps> imgMACalibration{{{frmViews, image(0)},
                                                          {frmViews, image(1)},
                                                          {frmViews, image(2)},
                                                          {frmViews, image(3)},
                                                          {frmViews, image(4)}}};
    std::array<platform::Label, kSteps> lblMACalibration{
        {{frmViews, label(0, "zeroPointTrim")},
         {frmViews, label(1, "measuredCurrentZeroTrim")},
         {frmViews, label(2, "finalValueTrim")},
         {frmViews, label(3, "measuredCurrentFullTrim")},
         {frmViews, label(4, "fixedOutputCurrentTurnOff")}}};
    std::array<CtrTextEdit, kSteps> cteMACalibration{
        {{frmViews, editor(0, "ctr_loopTestValueStep0")},
         {frmViews, editor(1, "ctr_loopCurrentZero")},
         {frmViews, editor(2, "ctr_loopTestValueStep2")},
         {frmViews, editor(3, "ctr_loopCurrentGain")},
         {frmViews, editor(4, "ctr_loopTestValueStep4", false)}}};
    // In the order of the Tab key: from the editors to Next, and out. Back lies behind; the arrow
    // keys go from one to the other.
    platform::CommandButton cmdNext{frmViews,
                                    {.Name    = "cmdMACalibration",
                                     .Index   = 1,
                                     .Tag     = "nextWithArrow",
                                     .Caption = "Next   >",
                                     .Left    = 2100,
                                     .Top     = 3300,
                                     .Width   = 1500,
                                     .Height  = 390}};
    CtrFocusTransfer        CtrFocusTransfer2{frmViews, {.Name = "CtrFocusTransfer2"}};
    platform::CommandButton cmdBack{frmViews,
                                    {.Name    = "cmdMACalibration",
                                     .Index   = 0,
                                     .Tag     = "backWithArrow",
                                     .Caption = "<   Back",
                                     .Left    = 360,
                                     .Top     = 3300,
                                     .Width   = 1500,
                                     .Height  = 390,
                                     .Enabled = false}};
    CtrFocusTransfer        CtrFocusTransfer1{frmViews, {.Name = "CtrFocusTransfer1"}};
    platform::ImageList     imlCalibration{frmViews, {.Name = "imlCalibration"}};

    [[nodiscard]] const char* TypeName() const override { return "CtrMACalibration"; }

    // ILocalizable
    void Localize(Translator& translator) override;
    // IQornDataUser
    /// Also takes the wizard one step back, whichever request the response answers.
    void SetErrorData(const IXMLDOMNode& node) override;
    void SetImportData(const IXMLDOMNode& node) override;
    void SetOfflineData(const IXMLDOMNode& node) override;
    void SetOnlineData(const IXMLDOMNode& node) override;
    // IQornView
    /// The form lists Back in front of Next.
    platform::WidgetList GetControls() override;
    /// Asks while the device drives a fixed current; a yes switches it off and starts the wizard
    /// anew, anything else keeps the user here.
    bool LeaveSelectedView() override;
    void RequestFocus() override;

    /// The current step, 0 to 5; 5 means that the wizard has finished.
    [[nodiscard]] std::int32_t miCalibrationStep() const noexcept { return mStep; }

protected:
    void arrange() override;
    /// This view drops what it cannot report to a host.
    [[nodiscard]] Steps debugSteps(const char*) const override { return silentSteps(); }

private:
    static platform::Design image(int step);
    static platform::Design label(int step, const char* tag);
    static platform::Design editor(int step, const char* tag, bool visible = true);

    void UserControl_Initialize();
    void cmdMACalibration_Click(int index);

    [[nodiscard]] bool isFinished() const noexcept;
    /// Sends the value of the current step; false if there is one that cannot go to the device.
    bool sendStep(const Steps& step);
    void showFinished(const Steps& step);
    void showRows(const Steps& step);
    void open(const Steps& step, std::int32_t row, bool isOpen);
    void showNextAs(const Steps& step, const std::string& key);
    void copyTestValue(const Steps& step, const IXMLDOMNode& node);
    void fitTexts();
    /// An arrow key brings the focus to the other button: between the two the Tab key leads out.
    static void goByArrow(platform::KeyPress& key, platform::Widget& other);

    std::int32_t           mStep   = 0;
    platform::Subscription mOnNext = cmdNext.Click.subscribe([this] { cmdMACalibration_Click(1); });
    platform::Subscription mOnBack = cmdBack.Click.subscribe([this] { cmdMACalibration_Click(0); });
    platform::Subscription mOnNextKey =
        cmdNext.KeyDown.subscribe([this](platform::KeyPress& key) { goByArrow(key, cmdBack); });
    platform::Subscription mOnBackKey =
        cmdBack.KeyDown.subscribe([this](platform::KeyPress& key) { goByArrow(key, cmdNext); });
};

} // namespace quill
