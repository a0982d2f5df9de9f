#include "framework/documents.h"
#include "status/StatusTreeView.h"

namespace quill {

using platform::NodeType;

IXMLDOMNode StatusTreeView::treeIn(const Steps& step, const IXMLDOMDocument& document)
{
    return step.value(IXMLDOMNode{}, [&] {
        return document.get_documentElement().selectSingleNode("//deviceStatus");
    });
}

void StatusTreeView::loadRows(const Steps& step, const IXMLDOMNode& deviceStatus,
                              const FreshRow& fresh)
{
    miLastRow = -1;
    mastrImages.clear();
    int        skipped = 0;
    const auto branches =
        step.value(IXMLDOMNodeList{}, [&] { return deviceStatus.get_childNodes(); });
    for (const IXMLDOMNode& branch : branches) {
        if (branch.get_nodeType() != NodeType::comment) {
            loadBranch(step, branch, fresh, skipped);
        }
    }
    if (skipped != 0) {
        miLastRow -= skipped;
        step([&] { cutTo(mastrImages, miLastRow); });
        cutTables(step, miLastRow);
    }
}

void StatusTreeView::loadBranch(const Steps& step, const IXMLDOMNode& branch, const FreshRow& fresh,
                                int& skipped)
{
    const std::string name = step.text([&] { return documents::attributeText(branch, "name"); });
    const int         row  = addRow(step, 0, name, fresh.icon);

    // What was skipped is taken off again by each branch, all of it: device definitions are laid
    // out for this count, and those without comments between the conditions never meet it.
    const auto children = step.value(IXMLDOMNodeList{}, [&] { return branch.get_childNodes(); });
    const int  base     = miLastRow - skipped;
    miLastRow           = base + static_cast<int>(children.get_length()) + 1;
    step([&] { growTo(mastrImages, miLastRow); });
    for (int index = base + 1; index <= miLastRow; ++index) {
        step([&] { imageAt(index) = fresh.image; });
    }
    growTables(step, base + 1, miLastRow);

    for (const IXMLDOMNode& child : children) {
        if (child.get_nodeType() != NodeType::element) {
            ++skipped;
            continue;
        }
        const std::string status =
            step.text([&] { return documents::attributeText(child, "name"); });
        readClasses(step, child);
        readMask(step, addRow(step, row, status, fresh.icon), child);
    }
}

int StatusTreeView::addRow(const Steps& step, int parent, const std::string& name,
                           const std::string& icon)
{
    const int row = step.value(0, [&] { return scgStatus.AddRow(parent); });
    step([&] { scgStatus.setCellText(row, 1, name); });
    const auto state = parent == 0 ? ConditionState::none : ConditionState::notRead;
    if (icon.empty()) {
        mDescriptions.show(row, icon, state);
    } else {
        showIcon(step, row - 1, icon, state);
    }
    step([&] { scgStatusKey.setCellText(scgStatusKey.AddRow(parent), 1, name); });
    return row;
}

} // namespace quill
