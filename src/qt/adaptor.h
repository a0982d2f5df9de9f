#pragma once

#include "platform/widget.h"
#include "qt/geometry.h"

#include <QObject>
#include <QPalette>
#include <QWidget>

#include <vector>

class QKeyEvent;

namespace quill::qt {

class Screen;

/// Keeps one Qt widget in step with one widget of a form, both ways. There is one class per kind;
/// it belongs to its Qt widget and dies with it. The model may die first: then `model()` is
/// nothing and the screen takes the Qt widget away at the next turn.
///
/// A kind overrides `update`, which makes the Qt widget show what the model says and is called
/// whenever something has changed, and hands what the user does to `byUser`.
class Adaptor : public QObject {
public:
    /// `widget` is the Qt widget to keep; the adaptor becomes its child.
    Adaptor(Screen& screen, platform::Widget& model, QWidget* widget);

    [[nodiscard]] platform::Widget* model() const noexcept { return mModel; }
    [[nodiscard]] QWidget*          widget() const noexcept { return mWidget; }

    /// The adaptors of the widgets that lie in this one, in form order.
    [[nodiscard]] const std::vector<Adaptor*>& children() const noexcept { return mChildren; }
    void setChildren(std::vector<Adaptor*> children) { mChildren = std::move(children); }

    /// Makes the Qt widget show what the model says. Called with a living model only, never in
    /// the middle of another `update` of the same adaptor. An override calls this one.
    virtual void update();
    /// How the widget is fitted into its place.
    [[nodiscard]] virtual Fit fit() const { return {mWidget->sizeHint()}; }
    /// Puts the Qt widget to its place in its parent.
    virtual void place(const QRect& rect);
    /// The text that belongs to the widget itself, such as a caption; empty for a widget that is
    /// named by a label beside it.
    [[nodiscard]] virtual QString ownName() const { return {}; }
    /// Whether the keyboard focus may come to the Qt widget itself.
    [[nodiscard]] virtual bool takesFocus() const { return true; }
    /// Whether widgets lie in this one, and it may spread beyond its design to hold them.
    [[nodiscard]] virtual bool spreads() const { return false; }
    /// Always behind the others in its container.
    [[nodiscard]] virtual bool isBackdrop() const { return false; }

    /// What the user cannot tell from the widget itself: its name, and the state as words.
    void describe(const QString& name, const QString& state);
    /// How far the widget has spread beyond its design; its children are moved by as much.
    [[nodiscard]] const QMargins& spread() const noexcept { return mSpread; }
    void                          setSpread(const QMargins& spread) { mSpread = spread; }

    /// `update`, if there is anything to update and none is under way.
    void refresh();

    /// Runs a verb of the user's door and shows at once what the model says then. What a handler
    /// throws ends here, as no exception can pass the event loop, and goes to the debug output.
    template <class Verb>
    void byUser(Verb&& verb)
    {
        try {
            verb();
        } catch (const std::exception& error) {
            reportEscaped(error);
        }
        refresh();
    }

    /// The model and the screen are not to be touched any more.
    void retire();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    /// Takes note of a change, before the next `update`. An override calls this one.
    virtual void note(const platform::WidgetChange& change);
    /// Whether the change may move the widget or its neighbours.
    [[nodiscard]] virtual bool movesThings(const platform::WidgetChange& change) const;
    /// Whether keys that write characters belong to the widget.
    [[nodiscard]] virtual bool takesText() const { return false; }
    /// Whether a turn of the mouse wheel changes the value.
    [[nodiscard]] virtual bool changesByWheel() const { return false; }
    /// A key that no handler of the model has taken; true if the widget has used it up.
    virtual bool unclaimedKey(const QKeyEvent&) { return false; }
    /// Whether the Qt widget is to answer a key before the model hears that it has come up: views
    /// read then what the key has selected.
    [[nodiscard]] virtual bool answersBeforeKeyUp() const { return false; }
    /// Another event of the Qt widget; true to keep it from the widget.
    virtual bool otherEvent(QEvent&) { return false; }
    /// A tool tip that the widget needs besides the model's, such as a text that is cut.
    [[nodiscard]] virtual QString extraToolTip() const { return {}; }
    void                          showToolTip();

    /// What assistive programs are told besides the name: what the tool tip tells.
    [[nodiscard]] virtual QString description(const QString& name) const;

    /// Shows the colours of the model in these two roles. Colours that the program left alone stay
    /// the palette's. A ground other than `Window` is one that the style paints itself; a widget
    /// whose ground is `Window` is filled only where it is one of its own.
    void showColors(QPalette::ColorRole text, QPalette::ColorRole ground);

    [[nodiscard]] Screen* screen() const noexcept { return mScreen; }

    /// The keyboard focus has left the Qt widget, or one inside it, for another.
    void focusLeft(Qt::FocusReason reason);

private:
    /// Whether the ground of a widget that the style does not paint is one of its own.
    [[nodiscard]] bool fillsGround() const;
    void               heard(const platform::WidgetChange& change);
    void               reportEscaped(const std::exception& error);
    bool               keyPressed(QKeyEvent& event);
    void               answer(QKeyEvent& event);

    Screen*                mScreen;
    platform::Widget*      mModel;
    QWidget*               mWidget;
    std::vector<Adaptor*>  mChildren;
    platform::Subscription mChanged;
    platform::Subscription mGotFocus;
    QMargins               mSpread;
    QString                mState;
    QPalette               mOwnPalette;
    bool                   mUpdating  = false;
    bool                   mAnswering = false;
};

/// Whether the focus that goes for this reason comes back by itself: another window or a pop-up
/// does not take it from the form.
[[nodiscard]] bool comesBack(Qt::FocusReason reason);

/// The adaptor of a Qt widget or of the one around it, in whatever view; nothing for a Qt widget
/// that shows no model.
[[nodiscard]] Adaptor* adaptorAt(QWidget* widget);

/// An adaptor that knows its kind.
template <class Model, class Shown>
class KindAdaptor : public Adaptor {
public:
    KindAdaptor(Screen& screen, Model& model, Shown* widget) : Adaptor(screen, model, widget) {}

protected:
    [[nodiscard]] Model& kind() const { return static_cast<Model&>(*model()); }
    [[nodiscard]] Shown* shown() const { return static_cast<Shown*>(widget()); }
};

/// The adaptor for a widget of a form, made by its kind; nothing for a kind that has no place on
/// screen, such as a menu. `parent` is the Qt widget that it is to lie in.
[[nodiscard]] Adaptor* makeAdaptor(Screen& screen, platform::Widget& model, QWidget* parent);

} // namespace quill::qt
