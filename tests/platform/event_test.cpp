#include "platform/event.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace quill::platform {
namespace {

using testing::ElementsAre;

TEST(EventTest, CallsHandlersInTheOrderOfTheirSubscription)
{
    Event<int>       event;
    std::vector<int> heard;
    auto             first  = event.subscribe([&](int value) { heard.push_back(value); });
    auto             second = event.subscribe([&](int value) { heard.push_back(value * 10); });
    event.raise(4);
    EXPECT_THAT(heard, ElementsAre(4, 40));
}

TEST(EventTest, ADroppedSubscriptionHearsNothing)
{
    Event<> event;
    int     heard = 0;
    {
        auto scoped = event.subscribe([&] { ++heard; });
        event.raise();
    }
    event.raise();
    EXPECT_EQ(heard, 1);
    EXPECT_TRUE(event.empty());
}

TEST(EventTest, AMovedSubscriptionGoesOn)
{
    Event<>      event;
    int          heard = 0;
    Subscription kept;
    {
        auto scoped = event.subscribe([&] { ++heard; });
        kept        = std::move(scoped);
    }
    event.raise();
    EXPECT_EQ(heard, 1);
    kept = {};
    event.raise();
    EXPECT_EQ(heard, 1);
}

TEST(EventTest, AHandlerMayDropAnotherOneInTheMiddleOfAnEmission)
{
    Event<>      event;
    int          heard = 0;
    Subscription victim;
    auto         killer = event.subscribe([&] { victim.drop(); });
    victim              = event.subscribe([&] { ++heard; });
    event.raise();
    EXPECT_EQ(heard, 0);
}

TEST(EventTest, AHandlerMayDropItself)
{
    for (const int others : {0, 3}) {
        Event<>                   event;
        std::vector<Subscription> rest;
        int                       heard = 0;
        Subscription              self;
        self = event.subscribe([&] {
            ++heard;
            self.drop();
        });
        for (int i = 0; i < others; ++i) {
            rest.push_back(event.subscribe([] {}));
        }
        event.raise();
        event.raise();
        EXPECT_EQ(heard, 1);
    }
}

TEST(EventTest, AHandlerThatIsAddedHearsTheNextEmissionOnly)
{
    Event<>                   event;
    int                       heard = 0;
    std::vector<Subscription> added;
    auto first = event.subscribe([&] { added.push_back(event.subscribe([&] { ++heard; })); });
    event.raise();
    EXPECT_EQ(heard, 0);
    event.raise();
    EXPECT_EQ(heard, 1);
}

TEST(EventTest, AHandlerMayDestroyTheEvent)
{
    for (const int others : {0, 2}) {
        auto                      event = std::make_unique<Event<>>();
        std::vector<Subscription> rest;
        int                       heard  = 0;
        auto                      killer = event->subscribe([&] { event.reset(); });
        for (int i = 0; i < others; ++i) {
            rest.push_back(event->subscribe([&] { ++heard; }));
        }
        event->raise();
        EXPECT_EQ(event, nullptr);
        EXPECT_EQ(heard, others);
    }
}

TEST(EventTest, ASubscriptionMayOutliveItsEvent)
{
    Subscription subscription;
    {
        Event<> event;
        subscription = event.subscribe([] {});
    }
    EXPECT_TRUE(subscription);
    subscription.drop();
    EXPECT_FALSE(subscription);
}

TEST(EventTest, WhatAHandlerThrowsReachesTheCaller)
{
    Event<> event;
    auto    bad = event.subscribe([] { throw std::runtime_error("bad"); });
    EXPECT_THROW(event.raise(), std::runtime_error);
}

TEST(EventTest, ManyThatComeAndGoLeaveNothingBehind)
{
    Event<> event;
    int     heard = 0;
    auto    stays = event.subscribe([&] { ++heard; });
    for (int i = 0; i < 100000; ++i) {
        auto passing = event.subscribe([&] { ++heard; });
    }
    event.raise();
    EXPECT_EQ(heard, 1);
}

} // namespace
} // namespace quill::platform
