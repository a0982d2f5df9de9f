#pragma once

#include "editor_fixture.h"
#include "editors/CtrComboEdit.h"

namespace quill::test {

/// One combo editor on a page, with a datafile and a host.
class ComboEditTest : public ListEditorTest<CtrComboEdit> {
protected:
    ComboEditTest() : ListEditorTest("mode", {"1", kModes, "integerVal"}) {}

    std::vector<bool>      modifications;
    platform::Subscription onModified =
        edit.ModifiedEvent.subscribe([this](bool modified) { modifications.push_back(modified); });

    void forget() override
    {
        ListEditorTest::forget();
        modifications.clear();
    }
    [[nodiscard]] std::string entryAttribute(long entry, const char* name) const
    {
        return documents::attributeText(edit.mappings()->get_item(entry), name);
    }
};

} // namespace quill::test
