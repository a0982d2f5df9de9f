#pragma once

#include "framework/host_contract.h"

#include <QByteArray>

#include <string>
#include <vector>

namespace quill::shell {

/// One line of a page: a label and the editor of a parameter.
struct PageRow {
    enum class Kind { text, combo, date, time, option, check, duration };
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

/// A page as the data describe it: sections with editors, or one view of the library.
struct PageDescription {
    std::string              tag;    ///< its name among the pages
    std::string              parent; ///< the page below which the tree shows it, empty for the top
    std::string              title;  ///< translation key
    std::vector<std::string> devices  = {}; ///< types of device that have this page, empty for any
    std::vector<PageSection> sections = {};

    std::string view              = {}; ///< class of the view, empty for a page of editors
    std::string viewTag           = {}; ///< `Tag` of the view, part of the names of its responses
    std::vector<std::string> read = {}; ///< named requests that read what the view shows
    /// The one of them that is sent again and again, for what changes by itself; empty for none.
    std::string cycle = {};
    /// Whether what the view says of the device as a whole counts: its combined status and the
    /// classification that it wants. Of two views that show the status one does.
    bool speaks = true;
};

/// Reads page descriptions out of JSON:
///
///     {"pages": [{"tag": "tuning", "title": "shell_pageTuning", "parent": "configuration",
///                 "sections": [{"title": "shell_sectionTuning", "group": "tuning",
///                               "rows": [{"text": "integralTime"}, {"combo": "tuningSet"}]}]}]}
///
/// and, for a page that a view of the library fills:
///
///     {"tag": "status", "title": "shell_pageStatus", "devices": ["VX4400H"],
///      "view": "CtrStatus", "viewTag": "deviceStatus",
///      "read": ["deviceStatusMasks", "deviceStatus"], "cycle": "deviceStatus"}
///
/// A description that is no JSON, has no pages, names a kind or a view that does not exist, is of
/// both kinds, or uses a tag twice is a `Failure` that says where.
[[nodiscard]] std::vector<PageDescription> readPages(const QByteArray& json);

/// The pages that a device has: those of its type, with the rows whose parameters stand in its
/// datafile, and the requests whose groups do. Sections and pages that nothing remains of are left
/// out.
[[nodiscard]] std::vector<PageDescription> pagesFor(const std::vector<PageDescription>& pages,
                                                    const std::string&                  deviceType,
                                                    const IXMLDOMNode&                  datafile);

/// The pages that are part of the program.
[[nodiscard]] std::vector<PageDescription> builtInPages();

} // namespace quill::shell
