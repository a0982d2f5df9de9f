#include "framework/change_labels.h"

#include "framework/modTools.h"

namespace quill {

std::string ChangeLabels::unique(const std::string& tag, const std::string& label)
{
    const auto [known, fresh] = mTagOfLabel.try_emplace(label, tag);
    if (fresh || known->second == tag) {
        return label;
    }
    return label + " (" + modTools::RemoveCtrPrefix(tag) + ")";
}

} // namespace quill
