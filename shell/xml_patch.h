#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quill::shell {

/// Where one attribute stands in an XML text.
struct AttributePlace {
    std::string name;  ///< as written
    std::size_t begin; ///< of the value, behind the quote
    std::size_t end;
};

/// Where the start tag of an element stands.
struct ElementPlace {
    std::vector<AttributePlace> attributes;
    std::size_t                 end; ///< behind the last attribute, or the name
};

/// The elements at a path of names without prefixes from the root, such as {"dtm", "parameters"},
/// in document order. `xml` is a well-formed document in an encoding that contains ASCII.
[[nodiscard]] std::vector<ElementPlace> findElements(std::string_view                     xml,
                                                     const std::vector<std::string_view>& path);

/// Changes attribute values in a text and leaves every other byte alone.
class XmlPatch {
public:
    /// `asciiOnly`: characters beyond ASCII are written as references.
    XmlPatch(std::string text, bool asciiOnly) : mText(std::move(text)), mAsciiOnly(asciiOnly) {}

    /// The attribute gets this value; one that is missing comes behind the others.
    void set(const ElementPlace& element, std::string_view attribute, std::string_view value);
    [[nodiscard]] bool isEmpty() const { return mChanges.empty(); }
    /// The text with all changes.
    [[nodiscard]] std::string text() const;

private:
    struct Change {
        std::size_t begin;
        std::size_t end;
        std::string by;
    };

    [[nodiscard]] std::string escaped(std::string_view value) const;

    std::string         mText;
    bool                mAsciiOnly;
    std::vector<Change> mChanges;
};

} // namespace quill::shell
