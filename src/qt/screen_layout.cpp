#include "qt/screen.h"

#include <algorithm>
#include <utility>

namespace quill::qt {

namespace {

QMargins beyond(const QRect& area, const std::vector<QRect>& places)
{
    QMargins result;
    for (const QRect& place : places) {
        result.setLeft(std::max(result.left(), area.left() - place.left()));
        result.setTop(std::max(result.top(), area.top() - place.top()));
        result.setRight(std::max(result.right(), place.right() - area.right()));
        result.setBottom(std::max(result.bottom(), place.bottom() - area.bottom()));
    }
    return result;
}

} // namespace

void Screen::arrangeDirty()
{
    std::vector<Adaptor*> described;
    const auto            visit = [&](Adaptor& container, const auto& self) -> void {
        const auto found = mMoved.find(container.model());
        if (found == mMoved.end()) {
            return;
        }
        const bool own = found->second;
        mMoved.erase(found);
        // From the inside out: how far a child control spreads is known before its place is.
        for (Adaptor* child : container.children()) {
            if (child->model() != nullptr && !child->children().empty()) {
                self(*child, self);
            }
        }
        arrange(container);
        if (own) {
            stack(container);
            described.push_back(&container);
        }
    };
    visit(*mRoot, visit);
    mMoved.clear();
    for (const Adaptor* container : described) {
        describeChildren(*container);
    }
}

void Screen::arrange(Adaptor& container)
{
    const bool            isRoot = &container == mRoot;
    const QRect           area(QPoint(0, 0), designRect(*container.model()).size());
    std::vector<Adaptor*> shown;
    std::vector<Fit>      fits;
    std::vector<QRect>    places;
    for (Adaptor* child : container.children()) {
        if (child->model() != nullptr && child->model()->Visible) {
            shown.push_back(child);
            fits.push_back(child->fit());
            places.push_back(
                seat(designRect(*child->model()), fits.back()).marginsAdded(child->spread()));
        }
    }
    // A child control has no bounds of its own for texts, as it spreads to hold them.
    const QRect bounds = container.spreads() && !isRoot ? QRect{} : area;
    for (std::size_t i = 0; i < shown.size(); ++i) {
        if (fits[i].grows && fits[i].natural.width() > places[i].width()) {
            places[i] = grown(places[i], fits[i].natural.width(), places, bounds);
        }
    }
    const QMargins spread = beyond(area, places);
    if (container.spreads() && !isRoot) {
        container.setSpread(spread);
    }
    if (isRoot) {
        const QRect contents = area.marginsAdded({0, 0, spread.right(), spread.bottom()});
        if (contents != mContents) {
            mContents = contents;
            mArea.updateGeometry();
        }
    }
    const QPoint origin(container.spread().left(), container.spread().top());
    for (std::size_t i = 0; i < shown.size(); ++i) {
        shown[i]->place(places[i].translated(origin));
    }
}

void Screen::stack(const Adaptor& container)
{
    std::vector<Adaptor*> order;
    for (Adaptor* child : container.children()) {
        if (child->model() != nullptr) {
            order.push_back(child);
        }
    }
    // From the back to the front; of equals the later one is in front.
    std::stable_sort(order.begin(), order.end(), [](const Adaptor* a, const Adaptor* b) {
        if (a->isBackdrop() != b->isBackdrop()) {
            return a->isBackdrop();
        }
        return a->model()->ZPosition > b->model()->ZPosition;
    });
    std::vector<QObject*> wanted;
    for (const Adaptor* adaptor : order) {
        wanted.push_back(adaptor->widget());
    }
    std::vector<QObject*> present;
    for (QObject* object : container.widget()->children()) {
        if (std::find(wanted.begin(), wanted.end(), object) != wanted.end()) {
            present.push_back(object);
        }
    }
    if (present != wanted) {
        for (const Adaptor* adaptor : order) {
            adaptor->widget()->raise();
        }
    }
}

} // namespace quill::qt
