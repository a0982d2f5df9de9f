#pragma once

#include "shell/translator.h"

#include <QToolButton>

#include <string>

namespace quill::shell {

/// The combined status of the device beside the page's title: a symbol and its word.
class StatusSign : public QToolButton {
    Q_OBJECT

public:
    explicit StatusSign(QWidget* parent = nullptr);

    /// `status` is the key of an image and of a text; nothing is shown for the empty one.
    void showStatus(const std::string& status, const CatalogueTranslator& texts);
    /// The word beside the symbol.
    [[nodiscard]] QString word() const;
};

} // namespace quill::shell
