#pragma once

#include "platform/widget.h"

#include <QString>
#include <QWidget>

#include <memory>

namespace quill::qt {

/// Words for the states that the signs beside an editor stand for, in the user's language.
struct StateWords {
    QString modified = QStringLiteral("modified");
    QString error    = QStringLiteral("error");
};

/// Shows a control: one stock Qt widget per widget of its form, kept in step with the model, child
/// controls included. What the user does goes through the model's user's door; what the model says
/// is on screen after the next turn of the event loop. The control outlives the view, or the view
/// goes blank when the control dies.
///
/// Widgets stand where the design has them, at 15 twips to a device-independent pixel. A height
/// that is too low for the style and the font grows evenly up and down, so that rows stay in line;
/// a label or button with a text wider than its place takes the free room beside it, and what is
/// cut even then is in its tool tip.
class View : public QWidget {
    Q_OBJECT

public:
    explicit View(platform::Control& control, QWidget* parent = nullptr);
    ~View() override;

    /// The Qt widget that shows a widget of the form, nothing for one that is not shown here.
    [[nodiscard]] QWidget* shown(const platform::Widget& widget) const;
    /// Brings everything that has changed on screen now, without waiting for the event loop.
    void flush();

    /// The name by which assistive programs call a widget or, for a child control, what lies in
    /// it. Without one it is the caption of the label to its left or above it. The unit and the
    /// state are added. An empty name takes it back.
    void setAccessibleLabel(const platform::Widget& widget, const QString& label);
    /// The words for accessible names and tool tips; English at the start.
    void setStateWords(const StateWords& words);

    /// The size that the form was designed for or has given itself since.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace quill::qt
