#pragma once

#include <QIcon>
#include <QString>

#include <string>

namespace quill::qt {

/// The pictures behind the image keys of the models. The keys of the controls have pictures that
/// come with the library: the classes of a status, marks, steps. A program can put others in their
/// place and add its own; a key that has none shows nothing.
class Images {
public:
    /// Puts a picture in the place of the one that the key had; a null icon brings the one back
    /// that comes with the library.
    static void put(const std::string& key, const QIcon& icon);
    /// The program's picture of a key, or else the one that comes with the library, or else a null
    /// icon.
    [[nodiscard]] static QIcon find(const std::string& key);
};

} // namespace quill::qt
