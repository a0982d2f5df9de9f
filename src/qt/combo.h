#pragma once

#include <QComboBox>

namespace quill::qt {

/// Opens its list wide enough for every entry, and shows by an ellipsis that a text goes on.
class Combo : public QComboBox {
public:
    using QComboBox::QComboBox;

    /// A list that lets nobody choose stays closed.
    void setLocked(bool locked) { mLocked = locked; }

    void showPopup() override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool mLocked = false;
};

} // namespace quill::qt
