#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace quill::platform {

namespace detail {

/// What an event and its subscriptions share, so that either may go first.
struct SlotList {
    std::size_t dead = 0;
};

struct SlotBase {
    explicit SlotBase(std::weak_ptr<SlotList> owner) : list(std::move(owner)) {}
    std::weak_ptr<SlotList> list;
    bool                    live = true;
};

} // namespace detail

/// The right to be called by an event. Dropping it ends the calls, also in the middle of an
/// emission and also when the event has gone before. Movable, not copyable; empty by default.
class Subscription {
public:
    Subscription() = default;
    explicit Subscription(std::shared_ptr<detail::SlotBase> slot) : mSlot(std::move(slot)) {}
    ~Subscription() { drop(); }
    Subscription(const Subscription&)            = delete;
    Subscription& operator=(const Subscription&) = delete;
    Subscription(Subscription&& other) noexcept : mSlot(std::move(other.mSlot)) {}
    Subscription& operator=(Subscription&& other) noexcept
    {
        if (this != &other) {
            drop();
            mSlot = std::move(other.mSlot);
        }
        return *this;
    }

    /// Ends the calls now. May be called twice.
    void drop() noexcept
    {
        if (mSlot && mSlot->live) {
            mSlot->live = false;
            if (auto list = mSlot->list.lock()) {
                ++list->dead;
            }
        }
        mSlot.reset();
    }

    explicit operator bool() const noexcept { return mSlot != nullptr; }

private:
    std::shared_ptr<detail::SlotBase> mSlot;
};

/// A list of handlers. An emission walks a snapshot: a handler may subscribe, unsubscribe or
/// destroy the event and its owner; a handler that was dropped meanwhile is not called any more,
/// one that was added meanwhile is called from the next emission on. Handlers run in the order of
/// their subscription. What a handler throws reaches the caller of `raise`.
template <class... Args>
class Event {
public:
    Event()                        = default;
    Event(const Event&)            = delete;
    Event& operator=(const Event&) = delete;

    /// Calls `handler` at every emission until the returned subscription is dropped.
    template <class Handler>
    [[nodiscard]] Subscription subscribe(Handler&& handler)
    {
        if (!mList) {
            mList = std::make_shared<List>();
        }
        mList->prune();
        auto slot = std::make_shared<Slot>(mList, std::forward<Handler>(handler));
        mList->handlers.push_back(slot);
        return Subscription{std::move(slot)};
    }

    void raise(Args... args) const
    {
        if (!mList || mList->handlers.empty()) {
            return;
        }
        if (mList->handlers.size() == 1) { // the usual case, without a list of its own
            const auto only = mList->handlers.front();
            if (only->live) {
                only->call(args...);
            }
            return;
        }
        const auto snapshot = mList->handlers;
        for (const auto& slot : snapshot) {
            if (slot->live) {
                slot->call(args...);
            }
        }
    }

    /// Whether anybody listens.
    [[nodiscard]] bool empty() const { return !mList || mList->handlers.size() == mList->dead; }

private:
    struct Slot : detail::SlotBase {
        template <class Handler>
        Slot(const std::weak_ptr<detail::SlotList>& owner, Handler&& handler)
            : SlotBase(owner), call(std::forward<Handler>(handler))
        {
        }
        std::function<void(Args...)> call;
    };

    struct List : detail::SlotList {
        std::vector<std::shared_ptr<Slot>> handlers;

        /// Sweeps when at least half of the slots are dead, so that many subscriptions that come
        /// and go cost a constant time each.
        void prune()
        {
            if (dead * 2 < handlers.size() || dead == 0) {
                return;
            }
            std::erase_if(handlers, [](const auto& slot) { return !slot->live; });
            dead = 0;
        }
    };

    std::shared_ptr<List> mList;
};

} // namespace quill::platform
