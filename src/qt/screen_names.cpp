// What assistive programs are told: the label, the unit and the state of every widget, taken from
// the labels around it, as the form has no other tie between them.
#include "platform/buttons.h"
#include "platform/label.h"
#include "qt/screen.h"
#include "qt/text.h"

namespace quill::qt {

namespace {

/// How far a label may stand above the widget that it names.
constexpr int kAbove = 12;

const platform::Label* labelOf(const Adaptor& adaptor)
{
    const auto* const label = dynamic_cast<const platform::Label*>(adaptor.model());
    return label != nullptr && label->Visible ? label : nullptr;
}

bool isSign(const platform::Widget& widget)
{
    return widget.Name == "lblModified" || widget.Name == "lblError";
}

bool isUnit(const platform::Widget& widget)
{
    return widget.Name == "lblUnit";
}

bool isMark(const platform::Widget& widget)
{
    return dynamic_cast<const platform::CheckBox*>(&widget) != nullptr ||
           dynamic_cast<const platform::OptionButton*>(&widget) != nullptr;
}

bool onRow(const Adaptor& adaptor, const QRect& row)
{
    const int middle = adaptor.widget()->geometry().center().y();
    return middle >= row.top() && middle <= row.bottom();
}

QString unitBehind(const Adaptor& container, const Adaptor& adaptor)
{
    const QRect            place   = adaptor.widget()->geometry();
    const platform::Label* nearest = nullptr;
    int                    left    = 0;
    for (const Adaptor* other : container.children()) {
        const platform::Label* const label = labelOf(*other);
        const int                    x     = other->widget()->x();
        // Where boxes stand in a row, each has its unit right behind it.
        if (label != nullptr && isUnit(*label) && onRow(*other, place) && x > place.x() &&
            (nearest == nullptr || x < left)) {
            nearest = label;
            left    = x;
        }
    }
    return nearest != nullptr ? toQt(nearest->Caption) : QString{};
}

QStringList stateBeside(const Adaptor& container, const Adaptor& adaptor, const StateWords& words)
{
    QStringList state;
    const QRect place = adaptor.widget()->geometry();
    for (const Adaptor* other : container.children()) {
        const platform::Label* const label = labelOf(*other);
        if (label != nullptr && isSign(*label) && onRow(*other, place)) {
            state << (label->Name == "lblError" ? words.error : words.modified);
        }
    }
    return state;
}

} // namespace

QString Screen::labelBeside(const Adaptor& container, const Adaptor& adaptor) const
{
    const QRect            place = adaptor.widget()->geometry();
    const platform::Label* left  = nullptr;
    const platform::Label* right = nullptr;
    const platform::Label* above = nullptr;
    QRect                  leftPlace;
    QRect                  rightPlace;
    QRect                  abovePlace;
    for (const Adaptor* other : container.children()) {
        const platform::Label* const label = labelOf(*other);
        if (label == nullptr || isSign(*label) || isUnit(*label) || label->Caption.get().empty()) {
            continue;
        }
        const QRect where = other->widget()->geometry();
        if (onRow(*other, place)) {
            if (where.left() < place.left() &&
                (left == nullptr || where.left() > leftPlace.left())) {
                left      = label;
                leftPlace = where;
            } else if (where.left() > place.left() &&
                       (right == nullptr || where.left() < rightPlace.left())) {
                right      = label;
                rightPlace = where;
            }
        } else if (where.bottom() <= place.top() + kAbove / 2 &&
                   where.bottom() >= place.top() - kAbove && where.left() <= place.right() &&
                   where.right() >= place.left() &&
                   (above == nullptr || where.bottom() > abovePlace.bottom())) {
            above      = label;
            abovePlace = where;
        }
    }
    // A mark stands before its text, a box behind it.
    if (right != nullptr && isMark(*adaptor.model())) {
        return toQt(right->Caption);
    }
    if (left != nullptr) {
        return toQt(left->Caption);
    }
    return above != nullptr ? toQt(above->Caption) : QString{};
}

QString Screen::labelFor(const Adaptor& adaptor) const
{
    const auto given = mLabels.find(adaptor.model());
    if (given != mLabels.end()) {
        return given->second;
    }
    if (const QString own = adaptor.ownName(); !own.isEmpty()) {
        return own;
    }
    const platform::Widget* const holder    = adaptor.model()->Container();
    const Adaptor* const          container = holder != nullptr ? find(*holder) : nullptr;
    if (&adaptor == mRoot || container == nullptr) {
        return {};
    }
    if (const QString beside = labelBeside(*container, adaptor); !beside.isEmpty()) {
        return beside;
    }
    // A box inside an editor is called as the editor is.
    return container->spreads() ? labelFor(*container) : QString{};
}

void Screen::describeChildren(const Adaptor& container)
{
    for (Adaptor* child : container.children()) {
        if (child->model() == nullptr) {
            continue;
        }
        if (isSign(*child->model())) {
            const bool error = child->model()->Name == "lblError";
            const auto word  = error ? mWords.error : mWords.modified;
            child->describe(word, word);
            continue;
        }
        QStringList parts{labelFor(*child)};
        QStringList state;
        // A group is not where the focus is, but it is read out when the focus comes into it.
        if (child->takesFocus()) {
            parts << unitBehind(container, *child);
            state = stateBeside(container, *child, mWords);
        } else if (dynamic_cast<const platform::Frame*>(child->model()) != nullptr) {
            state = stateBeside(container, *child, mWords);
        }
        parts << state;
        parts.removeAll(QString{});
        child->describe(parts.join(QStringLiteral(", ")), state.join(QStringLiteral(", ")));
        if (!child->takesFocus() && child->spreads()) {
            describeChildren(*child);
        }
    }
}

} // namespace quill::qt
