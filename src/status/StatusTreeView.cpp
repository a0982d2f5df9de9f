#include "status/StatusTreeView.h"

#include "framework/documents.h"
#include "framework/modTools.h"
#include "framework/modView.h"
#include "framework/values.h"
#include "platform/toolkit.h"

#include <unordered_set>

namespace quill {

StatusTreeView::StatusTreeView(const char* className, const platform::Design& design)
    : PageView(className, design)
{
}

StatusTreeView::StatusTreeView(const char* className, platform::Widget& container,
                               const platform::Design& design)
    : PageView(className, container, design)
{
}

Steps StatusTreeView::logSteps(std::int16_t category, const std::string& place)
{
    return Steps{[this, category, where = std::string(className()) + " " + place](
                     int number, const std::string& description) {
        const std::string line = where + std::to_string(number) + ": " + description;
        if (Messenger* messenger = GetMessenger()) {
            messenger->WriteLog(category, line);
        } else {
            platform::Toolkit::current().debugOutput(line);
        }
    }};
}

Steps StatusTreeView::passSteps()
{
    constexpr std::int16_t kPassFailed = 'H'; // where the host's support looks for it
    return logSteps(kPassFailed, "IQornDataUser_SetOnlineData ");
}

void StatusTreeView::log(const Steps& step, std::int16_t category, const std::string& text)
{
    step([&] { host().WriteLog(category, text); });
}

// --- Form -------------------------------------------------------------------------------------

void StatusTreeView::setUpGrids()
{
    constexpr std::int32_t kTextWidth = 600;
    scgStatus.Clear();
    scgStatusKey.Clear();
    mDescriptions.clear();
    scgStatus.setImageList(&imlStatusIcons);
    scgStatus.HeaderVisible = false;
    scgStatus.Editable      = false;
    scgStatus.RowMode       = true;
    scgStatus.AddCol({.Width = kTextWidth});
    scgStatusKey.AddCol({.Width = kTextWidth});
}

void StatusTreeView::arrange()
{
    scgStatus.Left   = values::percentOf(Width, 5);
    scgStatus.Top    = values::percentOf(Height, 3);
    scgStatus.Width  = values::percentOf(Width, 95);
    scgStatus.Height = values::percentOf(Height, 95);
}

void StatusTreeView::Localize(Translator& translator)
{
    const Steps step = steps("Localize");
    translateRows(step, translator);
    for (platform::Widget* widget : subPages()) {
        if (auto* frame = dynamic_cast<platform::Frame*>(widget)) {
            step([&] {
                const std::string text = translator.Translate(frame->Tag);
                if (modTools::IsNotErrorText(text)) {
                    frame->Caption = text;
                }
            });
        }
    }
}

void StatusTreeView::translateRows(const Steps& step, Translator& translator)
{
    for (int row = 1; row <= scgStatus.RowCount(); ++row) {
        step([&] {
            scgStatus.setCellText(row, 1, modTools::textOrKey(translator, keyAt(row - 1)));
        });
    }
    mDescriptions.translate(translator, imlStatusIcons.Keys());
}

void StatusTreeView::RequestFocus()
{
    steps("IQornView_RequestFocus")([&] { scgStatus.SetFocus(); });
}

void StatusTreeView::ShowNode(const std::string& /*nodeTag*/, bool /*isShown*/) {}

// --- Rows -------------------------------------------------------------------------------------

void StatusTreeView::setIcon(int index, const std::string& key)
{
    // For the grid an empty key takes the icon away; here it is a class that has no image.
    if (key.empty()) {
        (void)imlStatusIcons.index(key);
    }
    scgStatus.setCellIcon(index + 1, 1, key);
}

void StatusTreeView::showIcon(const Steps& step, int index, const std::string& key,
                              ConditionState state)
{
    step([&] { setIcon(index, key); });
    mDescriptions.show(index + 1, key, state);
}

void StatusTreeView::showIconOfAll(const Steps& step, const std::string& key)
{
    for (int index = 0; index <= miLastRow; ++index) {
        showIcon(step, index, key, ConditionState::unknown);
    }
}

void StatusTreeView::setCombinedStatus(const std::string& status)
{
    if (status == mstrCombinedStatus) {
        return;
    }
    const Steps step   = steps("CombinedStatus");
    mstrCombinedStatus = status;
    step([&] { host().SetCombinedStatus(1, status); });
    step([&] { combinedStatusChanged(); });
}

// --- A response -------------------------------------------------------------------------------

StatusTreeView::Pass StatusTreeView::beginPass(const Steps& step)
{
    const std::string notRead = step.text([&] { return statusClass().ImageNotRead(); });
    return {step, logSteps(kLogStatusMask, "UpdateBranchImage error "), notRead, notRead};
}

void StatusTreeView::passOver(Pass& pass, int index)
{
    if (pass.step.value(false, [&] { return hasChildren(index); })) {
        pass.step([&] { imageAt(index) = pass.notRead; });
        pass.branches.push_back(index);
    } else {
        mergeIntoBranch(pass, index);
    }
}

void StatusTreeView::mergeIntoBranch(Pass& pass, int index)
{
    const std::string& branchImage = UpdateBranchImage(pass, index);
    pass.step([&] { pass.combined = statusClass().GetWorst(pass.combined, branchImage); });
}

const std::string& StatusTreeView::UpdateBranchImage(Pass& pass, int index)
{
    const Steps&       step   = pass.branchStep;
    const std::string* result = &pass.notRead;
    const int          parent = step.value(0, [&] { return scgStatus.RowParent(index + 1); }) - 1;
    step([&] { imageAt(parent) = statusClass().GetWorst(imageAt(parent), imageAt(index)); });
    step([&] {
        (void)imageAt(parent);
        if (pass.branches.empty() || pass.branches.back() != parent) {
            pass.branches.push_back(parent);
        }
    });
    step([&] { result = &imageAt(parent); });
    return *result;
}

void StatusTreeView::endPass(Pass& pass)
{
    for (const int branch : pass.branches) {
        const std::string image = pass.branchStep.text([&] { return imageAt(branch); });
        showIcon(pass.branchStep, branch, image, ConditionState::none);
    }
    setCombinedStatus(pass.combined);
}

void StatusTreeView::SetErrorData(const IXMLDOMNode& node)
{
    const Steps       step = steps("setErrorData");
    const std::string name = step.text([&] { return documents::responseAttribute(node, "name"); });
    const std::string tag  = Tag;
    if (tag.empty() || !values::contains(name, tag)) {
        return;
    }
    const std::string status =
        step.text([&] { return documents::responseAttribute(node, "responseStatus"); });
    if (status != "ok") {
        showError(step, node);
    }
    // A response that went well and still comes this way did not bring what was asked for.
    modView::forwardSyncChanges(tag, false, mstrSyncState, GetMessenger());
}

void StatusTreeView::showError(const Steps& step, const IXMLDOMNode& response)
{
    const std::string image = step.text([&] { return statusClass().ImageUnknown(); });
    const auto        items =
        step.value(IXMLDOMNodeList{}, [&] { return response.selectNodes("//comm:item[@name]"); });

    const auto showRow = [&](int index) {
        step([&] { imageAt(index) = image; });
        if (isIconInUse(index)) {
            mDescriptions.keepState(index + 1, ConditionState::unknown);
        } else {
            showIcon(step, index, image, ConditionState::unknown);
        }
    };
    // The extension part alone says nothing about any condition, so nothing is known of them all.
    const auto isExtensionPart = [&] {
        return values::contains(step.text([&] { return response.get_ownerDocument().get_xml(); }),
                                "statusDiagnosisExtensionPart");
    };
    if (items.get_length() == 0 || (items.get_length() == 1 && isExtensionPart())) {
        for (int index = 0; index <= miLastRow; ++index) {
            showRow(index);
        }
        setCombinedStatus(image);
        return;
    }
    std::unordered_set<std::string> names;
    for (const IXMLDOMNode& item : items) {
        step([&] { names.insert(documents::attributeText(item, "name")); });
    }
    for (int index = 0; index <= miLastRow; ++index) {
        const bool isNamed = step.value(false, [&] {
            const std::string& key = keyAt(index);
            // A key that breaks the expression fails as it does there.
            return key.find('"') == std::string::npos
                       ? names.contains(key)
                       : static_cast<bool>(
                             response.selectSingleNode("//comm:item[@name = \"" + key + "\"]"));
        });
        if (isNamed) {
            showRow(index);
        }
    }
}

} // namespace quill
