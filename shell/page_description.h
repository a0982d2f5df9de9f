#pragma once

#include <QByteArray>

#include <string>
#include <vector>

namespace quill::shell {

/// One line of a page: a label and the editor of a parameter.
struct PageRow {
    enum class Kind { text, combo, date, time };
    Kind        kind = Kind::text;
    std::string parameter;
};

/// Lines that belong together, with the time of last read of a request group above them and a
/// button that reads it. A section without a group has neither.
struct PageSection {
    std::string          title; ///< translation key
    std::string          group; ///< request group, empty for none
    std::vector<PageRow> rows;
};

/// A page as the data describe it.
struct PageDescription {
    std::string              tag;    ///< its name among the pages
    std::string              parent; ///< the page below which the tree shows it, empty for the top
    std::string              title;  ///< translation key
    std::vector<PageSection> sections;
};

/// Reads page descriptions out of JSON:
///
///     {"pages": [{"tag": "tuning", "title": "shell_pageTuning", "parent": "configuration",
///                 "sections": [{"title": "shell_sectionTuning", "group": "tuning",
///                               "rows": [{"text": "integralTime"}, {"combo": "tuningSet"}]}]}]}
///
/// A description that is no JSON, has no pages, names a kind that does not exist, or uses a tag
/// twice is a `Failure` that says where.
[[nodiscard]] std::vector<PageDescription> readPages(const QByteArray& json);

/// The pages that are part of the program.
[[nodiscard]] std::vector<PageDescription> builtInPages();

} // namespace quill::shell
