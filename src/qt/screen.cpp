#include "qt/screen.h"

#include <QMetaObject>

#include <algorithm>
#include <utility>

namespace quill::qt {

Screen::Screen(platform::Control& control, QWidget& area) : mArea(area), mControl(&control)
{
    flush();
}

Screen::~Screen()
{
    for (const auto& [model, adaptor] : mAdaptors) {
        adaptor->retire();
    }
}

Adaptor* Screen::find(const platform::Widget& widget) const
{
    const auto found = mAdaptors.find(&widget);
    return found == mAdaptors.end() ? nullptr : found->second;
}

void Screen::touch(Adaptor& adaptor, bool moves)
{
    const platform::Widget* const model = adaptor.model();
    if (mIsDirty.insert(model).second) {
        mDirty.push_back(model);
    }
    if (moves) {
        if (!adaptor.children().empty()) {
            mMoved[model] = true;
        }
        bool own = true;
        for (auto* holder = model; holder != mControl && holder->Container() != nullptr;
             own          = false) {
            holder = holder->Container();
            mMoved[holder] |= own;
        }
    }
    schedule();
}

void Screen::formChanged()
{
    mFormChanged = true;
    schedule();
}

void Screen::forget(const platform::Widget& dying)
{
    if (Adaptor* const adaptor = find(dying)) {
        mGone.emplace_back(adaptor->widget());
    }
    mAdaptors.erase(&dying);
    mLabels.erase(&dying);
    mMoved.erase(&dying);
    if (mIsDirty.erase(&dying) > 0) {
        std::erase(mDirty, &dying);
    }
    if (&dying == mControl) {
        mControl = nullptr;
        mRoot    = nullptr;
    }
    formChanged();
}

void Screen::focusMoved()
{
    mFocusMoved = true;
    schedule();
}

void Screen::touchAll()
{
    for (const auto& [model, adaptor] : mAdaptors) {
        touch(*adaptor, true);
    }
}

void Screen::schedule()
{
    if (!mScheduled && !mFlushing) {
        mScheduled = true;
        QMetaObject::invokeMethod(
            &mTurn,
            [this] {
                mScheduled = false;
                flush();
            },
            Qt::QueuedConnection);
    }
}

void Screen::flush()
{
    if (mFlushing) {
        return;
    }
    mFlushing = true;
    const QPointer<QWidget> before(mArea.window()->focusWidget());
    if (std::exchange(mFormChanged, false)) {
        build();
    }
    updateDirty();
    if (mRoot != nullptr) {
        arrangeDirty();
    }
    removeGone();
    if (std::exchange(mFocusMoved, false)) {
        showFocus();
    }
    keepFocus(before);
    mFlushing = false;
    // What handlers have changed meanwhile waits for the next turn, so that two widgets that
    // answer each other do not hold up the event loop.
    if (mFormChanged || mFocusMoved || !mDirty.empty() || !mMoved.empty()) {
        schedule();
    }
}

void Screen::build()
{
    std::unordered_set<const platform::Widget*> there;
    if (mControl != nullptr) {
        if (mRoot == nullptr) {
            mRoot = makeAdaptor(*this, *mControl, &mArea);
            mAdaptors.emplace(mControl, mRoot);
            touch(*mRoot, true);
        }
        there.insert(mControl);
        std::vector<Adaptor*> inOrder;
        buildForm(*mControl, inOrder);
        for (const Adaptor* adaptor : inOrder) {
            there.insert(adaptor->model());
        }
        orderTabs(inOrder);
    }
    // A widget that outlives its form is on no form any more.
    std::erase_if(mAdaptors, [&](const auto& entry) {
        const auto& [model, adaptor] = entry;
        if (there.count(model) != 0) {
            return false;
        }
        adaptor->retire();
        mGone.emplace_back(adaptor->widget());
        return true;
    });
}

void Screen::buildForm(platform::Control& control, std::vector<Adaptor*>& inOrder)
{
    Adaptor* const                                      form = find(control);
    std::unordered_map<Adaptor*, std::vector<Adaptor*>> held{{form, {}}};
    for (platform::Widget* widget : control.Widgets()) {
        Adaptor* holder = widget->Container() != nullptr ? find(*widget->Container()) : nullptr;
        if (holder == nullptr) {
            holder = form;
        }
        Adaptor* adaptor = find(*widget);
        if (adaptor == nullptr) {
            adaptor = makeAdaptor(*this, *widget, holder->widget());
            if (adaptor == nullptr) {
                continue;
            }
            mAdaptors.emplace(widget, adaptor);
            touch(*adaptor, true);
        } else if (adaptor->widget()->parentWidget() != holder->widget()) {
            adaptor->widget()->setParent(holder->widget());
            touch(*adaptor, true);
        }
        inOrder.push_back(adaptor);
        held[holder].push_back(adaptor);
        held.try_emplace(adaptor);
        if (auto* const child = dynamic_cast<platform::Control*>(widget)) {
            held.erase(adaptor);
            buildForm(*child, inOrder);
        }
    }
    for (auto& [holder, children] : held) {
        if (holder->children() != children) {
            holder->setChildren(std::move(children));
            mMoved[holder->model()] = true;
            touch(*holder, true);
        }
    }
}

void Screen::orderTabs(const std::vector<Adaptor*>& inOrder)
{
    QWidget* before = nullptr;
    for (const Adaptor* adaptor : inOrder) {
        if (!adaptor->takesFocus()) {
            continue;
        }
        if (before != nullptr) {
            QWidget::setTabOrder(before, adaptor->widget());
        }
        before = adaptor->widget();
    }
}

void Screen::removeGone()
{
    for (const auto& widget : std::exchange(mGone, {})) {
        if (widget) {
            widget->hide();
            // One of its own handlers may be under way.
            widget->deleteLater();
        }
    }
}

void Screen::updateDirty()
{
    auto dirty = std::exchange(mDirty, {});
    mIsDirty.clear();
    // Where several are disabled, the one with the focus is the last: else the focus would go from
    // one to the next, and each would take it for a visit of the user's.
    const auto focused =
        std::find_if(dirty.begin(), dirty.end(), [this](const platform::Widget* model) {
            const Adaptor* const adaptor = find(*model);
            return adaptor != nullptr && adaptor->widget()->hasFocus();
        });
    if (focused != dirty.end()) {
        std::rotate(focused, focused + 1, dirty.end());
    }
    for (const platform::Widget* model : dirty) {
        // Showing one widget can move the focus and so run handlers that destroy another.
        if (Adaptor* const adaptor = find(*model)) {
            adaptor->refresh();
        }
    }
}

void Screen::showFocus()
{
    const platform::Widget* const focused = platform::Widget::focused();
    if (focused == nullptr || mControl == nullptr || !focused->isWithin(*mControl)) {
        return;
    }
    Adaptor* holder = nullptr;
    for (const auto* widget = focused; holder == nullptr; widget = widget->Container()) {
        holder = find(*widget);
    }
    // The focus of a container is on the first widget inside that takes it.
    const auto firstIn = [](const Adaptor& adaptor, const auto& self) -> QWidget* {
        if (adaptor.model() == nullptr || !adaptor.model()->Visible || !adaptor.model()->Enabled) {
            return nullptr;
        }
        if (adaptor.takesFocus()) {
            return adaptor.widget();
        }
        for (const Adaptor* child : adaptor.children()) {
            if (QWidget* const found = self(*child, self)) {
                return found;
            }
        }
        return nullptr;
    };
    QWidget* const current = mArea.window()->focusWidget();
    // A container's focus is on what lies in it, a grid's may be on the box over a cell.
    const bool inside = current != nullptr && holder->widget()->isAncestorOf(current) &&
                        (!holder->takesFocus() || adaptorAt(current) == holder);
    QWidget* const target = firstIn(*holder, firstIn);
    if (target != nullptr && target != current && !inside) {
        target->setFocus(Qt::OtherFocusReason);
    }
}

/// While a transfer runs, editors are disabled, and Qt takes the focus to what is not. Whoever
/// works by keyboard finds it where it was when the transfer is over, unless he or the program has
/// taken it elsewhere meanwhile.
void Screen::keepFocus(QWidget* before)
{
    QWidget* const now = mArea.window()->focusWidget();
    if (mBarred && before != mBarred->refuge) {
        mBarred.reset();
    }
    if (before != nullptr && now != before && !before->isEnabled() && mArea.isAncestorOf(before)) {
        const QPointer<QWidget> home = mBarred ? mBarred->home : QPointer<QWidget>(before);
        mBarred                      = Barred{home, now};
        return;
    }
    if (!mBarred || (mBarred->home && !mBarred->home->isEnabled() && now == before)) {
        return;
    }
    const QPointer<QWidget> home = std::exchange(mBarred, {})->home;
    if (home && home->isVisible() && now == before) {
        home->setFocus(Qt::OtherFocusReason);
    }
}

void Screen::setLabel(const platform::Widget& widget, const QString& label)
{
    if (label.isEmpty()) {
        mLabels.erase(&widget);
    } else {
        mLabels[&widget] = label;
    }
    if (Adaptor* const adaptor = find(widget)) {
        touch(*adaptor, true);
    }
}

void Screen::setWords(const StateWords& words)
{
    mWords = words;
    touchAll();
}

} // namespace quill::qt
