#pragma once

#include "editors/CtrComboEdit.h"
#include "editors/CtrDateEdit.h"
#include "editors/CtrTextEdit.h"
#include "framework/view_base.h"
#include "platform/label.h"

#include <memory>
#include <string>
#include <vector>

namespace quill::test {

/// A page of real editors as the shell builds one: each in a frame of its own, whose `Tag` is the
/// parameter's name.
class EditorPage : public ViewBase {
public:
    EditorPage() : ViewBase(platform::Design{.Name = "page", .Tag = "page"}) {}

    CtrTextEdit&  addText(const std::string& name) { return add(mTexts, name); }
    CtrComboEdit& addCombo(const std::string& name) { return add(mCombos, name); }
    CtrDateEdit&  addDate(const std::string& name) { return add(mDates, name); }

private:
    template <class Editor>
    Editor& add(std::vector<std::unique_ptr<Editor>>& editors, const std::string& name)
    {
        mFrames.push_back(std::make_unique<platform::Frame>(
            *this, platform::Design{.Name = "frm_" + name, .Tag = name}));
        editors.push_back(std::make_unique<Editor>(
            *mFrames.back(), platform::Design{.Name = name, .Tag = "ctr_" + name}));
        return *editors.back();
    }

    std::vector<std::unique_ptr<platform::Frame>> mFrames;
    std::vector<std::unique_ptr<CtrTextEdit>>     mTexts;
    std::vector<std::unique_ptr<CtrComboEdit>>    mCombos;
    std::vector<std::unique_ptr<CtrDateEdit>>     mDates;
};

} // namespace quill::test
