#pragma once

#include <QIcon>
#include <QString>

#include <string>

namespace quill::qt {

/// The pictures behind the image keys of the models. A program fills it once; a key that nobody
/// has put there shows nothing.
class Images {
public:
    /// Puts a picture in the place of the one that the key had.
    static void put(const std::string& key, const QIcon& icon);
    /// The picture of a key, a null icon for none.
    [[nodiscard]] static QIcon find(const std::string& key);
};

} // namespace quill::qt
