#include "qt/adaptor.h"

#include "platform/toolkit.h"
#include "qt/colors.h"
#include "qt/keys.h"
#include "qt/screen.h"
#include "qt/text.h"

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QWheelEvent>

#include <exception>

namespace quill::qt {

namespace {

using What = platform::WidgetChange::What;

constexpr char kAdaptorProperty[] = "quillAdaptor";

} // namespace

bool comesBack(Qt::FocusReason reason)
{
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
           reason == Qt::MenuBarFocusReason;
}

Adaptor::Adaptor(Screen& screen, platform::Widget& model, QWidget* widget)
    : QObject(widget), mScreen(&screen), mModel(&model), mWidget(widget)
{
    widget->setObjectName(toQt(model.Name));
    widget->setProperty(kAdaptorProperty, QVariant::fromValue(static_cast<QObject*>(this)));
    widget->installEventFilter(this);
    mChanged =
        model.Changed.subscribe([this](const platform::WidgetChange& change) { heard(change); });
    mGotFocus = model.GotFocus.subscribe([this] { mScreen->focusMoved(); });
}

Adaptor* adaptorAt(QWidget* widget)
{
    for (; widget != nullptr; widget = widget->parentWidget()) {
        const QVariant property = widget->property(kAdaptorProperty);
        if (property.isValid()) {
            return static_cast<Adaptor*>(property.value<QObject*>());
        }
        if (widget->isWindow()) {
            break;
        }
    }
    return nullptr;
}

void Adaptor::heard(const platform::WidgetChange& change)
{
    Screen* const screen = mScreen;
    if (change.what == What::destroyed) {
        platform::Widget* const dying = mModel;
        retire();
        screen->forget(*dying);
        return;
    }
    if (change.what == What::form) {
        screen->formChanged();
        return;
    }
    note(change);
    screen->touch(*this, movesThings(change));
}

void Adaptor::retire()
{
    mModel  = nullptr;
    mScreen = nullptr;
    mChanged.drop();
    mGotFocus.drop();
    mChildren.clear();
}

void Adaptor::note(const platform::WidgetChange&) {}

bool Adaptor::movesThings(const platform::WidgetChange& change) const
{
    const void* const property = change.property;
    return property == &mModel->Left || property == &mModel->Top || property == &mModel->Width ||
           property == &mModel->Height || property == &mModel->Visible ||
           property == &mModel->ZPosition;
}

void Adaptor::update()
{
    mWidget->setEnabled(mModel->Enabled);
    mWidget->setVisible(mModel->Visible);
    showToolTip();
    if (takesFocus()) {
        mWidget->setFocusPolicy(mModel->TabStop ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

void Adaptor::showToolTip()
{
    QStringList lines;
    for (const QString& line :
         {mModel ? toQt(mModel->ToolTipText) : QString{}, extraToolTip(), mState}) {
        if (!line.isEmpty() && !lines.contains(line)) {
            lines << line;
        }
    }
    mWidget->setToolTip(lines.join(u'\n'));
}

void Adaptor::place(const QRect& rect)
{
    mWidget->setGeometry(rect);
}

void Adaptor::describe(const QString& name, const QString& state)
{
    mWidget->setAccessibleName(name);
    mState = state;
    showToolTip();
    mWidget->setAccessibleDescription(description(name));
}

QString Adaptor::description(const QString&) const
{
    return mWidget->toolTip();
}

bool Adaptor::fillsGround() const
{
    // White is the ground of a page. On a dark screen that is whatever the page lies on.
    return mModel->BackColor != platform::kButtonFace &&
           !(mModel->BackColor == platform::kWhite && isDark(mScreen->palette()));
}

void Adaptor::showColors(QPalette::ColorRole text, QPalette::ColorRole ground)
{
    const QPalette& ours   = mScreen->palette();
    const bool      isBare = ground == QPalette::Window; // no box of its own around it
    const bool      fills  = !isBare || fillsGround();
    mWidget->setAutoFillBackground(isBare && fills);
    const bool ownGround = mModel->BackColor != platform::kWindowBackground &&
                           mModel->BackColor != platform::kButtonFace && fills;
    const bool   ownText     = mModel->ForeColor != platform::kWindowText;
    const QColor shownGround = ownGround ? shownColor(mModel->BackColor, ground, ours)
                                         : ours.color(QPalette::Active, ground);
    const QColor shownText   = ownText ? shownColor(mModel->ForeColor, text, ours, shownGround)
                                       : ours.color(QPalette::Active, text);
    QPalette     own;
    if (ownGround) {
        own.setColor(ground, shownGround);
    }
    if (ownText) {
        own.setColor(text, shownText);
    } else if (ground != QPalette::Window) {
        // The value of a box is to be read also while it cannot be changed.
        own.setColor(QPalette::Disabled, text, faintColor(shownText, shownGround));
    }
    if (ground == QPalette::Base) {
        if (const QColor selection = selectionColor(ours);
            selection != ours.color(QPalette::Active, QPalette::Highlight)) {
            own.setColor(QPalette::Active, QPalette::Highlight, selection);
            own.setColor(QPalette::Inactive, QPalette::Highlight, selection);
        }
    }
    if (takesFocus() && ground != QPalette::Window) {
        own.setColor(QPalette::Window, outlineColor(ours));
    }
    if (own != mOwnPalette) {
        mOwnPalette = own;
        mWidget->setPalette(own);
    }
}

void Adaptor::refresh()
{
    if (mModel == nullptr || mUpdating) {
        return;
    }
    mUpdating = true;
    update();
    mUpdating = false;
}

void Adaptor::reportEscaped(const std::exception& error)
{
    try {
        platform::Toolkit::current().debugOutput(std::string("quill-qt: ") + error.what());
    } catch (const std::exception&) {
        // A toolkit that refuses even this leaves nobody to tell.
    }
}

bool Adaptor::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != mWidget || mModel == nullptr) {
        return false;
    }
    switch (event->type()) {
    case QEvent::FocusIn:
        if (takesFocus()) {
            byUser([this] { mModel->focus(); });
        }
        return otherEvent(*event);
    case QEvent::FocusOut:
        if (otherEvent(*event)) {
            return true;
        }
        focusLeft(static_cast<QFocusEvent*>(event)->reason());
        return false;
    case QEvent::KeyPress: return !mAnswering && keyPressed(static_cast<QKeyEvent&>(*event));
    case QEvent::Wheel:
        // A turn of the wheel over a page must not change a value in passing.
        if (changesByWheel() && !mWidget->hasFocus()) {
            event->ignore();
            return true;
        }
        return false;
    default: return otherEvent(*event);
    }
}

void Adaptor::focusLeft(Qt::FocusReason reason)
{
    if (mModel == nullptr || comesBack(reason) || !mModel->HasFocus()) {
        return;
    }
    // Another widget of a form takes the focus over by itself, which is one move for the model.
    Adaptor* const next = adaptorAt(QApplication::focusWidget());
    if (next == nullptr || next->model() == nullptr || !next->takesFocus()) {
        byUser([this] { mModel->blur(); });
    }
}

bool Adaptor::keyPressed(QKeyEvent& event)
{
    // What a widget leaves unused climbs to the Qt widgets around it; the model has climbed
    // already.
    QWidget* const focused = QApplication::focusWidget();
    const bool     climbed = focused != nullptr && focused != mWidget &&
                         mWidget->isAncestorOf(focused) && adaptorAt(focused) != this;
    const int code = keyCode(event.key());
    if (!takesFocus() || climbed || code == 0 || (takesText() && writesText(event))) {
        return false;
    }
    const bool back  = event.key() == Qt::Key_Backtab;
    const int  shift = shiftState(event.modifiers()) | (back ? platform::kShift : 0);
    // A key that a handler takes never comes up at the widget; neither does one whose widget goes.
    bool taken    = true;
    bool answered = false;
    auto up       = mModel->KeyUp.subscribe([&taken](const platform::KeyPress&) { taken = false; });
    platform::Subscription down;
    if (answersBeforeKeyUp() && code != platform::kKeyTab) {
        // Where a key climbs past without being taken, it comes up next.
        platform::Widget* outermost = mModel;
        while (outermost->Container() != nullptr) {
            outermost = outermost->Container();
        }
        down = outermost->KeyDown.subscribe([&](const platform::KeyPress& key) {
            if (!key.handled && !answered) {
                answered = true;
                answer(event);
            }
        });
    }
    byUser([&] {
        if (mModel->press(code, shift) == platform::UserDoor::refused) {
            taken = false;
        }
    });
    up.drop();
    down.drop();
    if (answered || taken) {
        event.accept();
        return true;
    }
    return mModel != nullptr && unclaimedKey(event);
}

void Adaptor::answer(QKeyEvent& event)
{
    if (mModel == nullptr || unclaimedKey(event)) {
        return;
    }
    // The same event on its usual way, climbing included, but past this filter.
    const QPointer<Adaptor> self(this);
    mAnswering = true;
    QCoreApplication::sendEvent(mWidget, &event);
    if (self) {
        mAnswering = false;
    }
}

} // namespace quill::qt
