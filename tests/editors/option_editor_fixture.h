#pragma once

#include "editor_fixture.h"
#include "editors/CtrOptionEdit.h"

namespace quill::test {

/// One option editor on a page, with a datafile and a host.
class OptionEditTest : public ListEditorTest<CtrOptionEdit> {
protected:
    explicit OptionEditTest(const std::string& decimal = ".")
        : ListEditorTest("mode", {"1", kModes, "integerVal"}, decimal)
    {
    }

    /// The places whose option has the mark.
    [[nodiscard]] std::vector<std::size_t> marked() const
    {
        std::vector<std::size_t> places;
        for (std::size_t place = 0; place < edit.OptionCount(); ++place) {
            if (edit.Option(place).Value) {
                places.push_back(place);
            }
        }
        return places;
    }
    [[nodiscard]] std::vector<std::string> captions() const
    {
        std::vector<std::string> texts;
        for (std::size_t place = 0; place < edit.OptionCount(); ++place) {
            texts.push_back(edit.Option(place).Caption);
        }
        return texts;
    }
    [[nodiscard]] std::vector<std::string> localizations() const
    {
        std::vector<std::string> texts;
        for (const IXMLDOMNode& entry : *edit.mappings()) {
            texts.push_back(documents::attributeText(entry, "localization"));
        }
        return texts;
    }
};

} // namespace quill::test
