#include "shell/event_ring.h"

#include "event_keys.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quill::shell {
namespace {

using namespace test;
using testing::ElementsAre;

DeviceEvent event(const std::string& key, double hours)
{
    return {key, kEventClassWarning, hours};
}

TEST(EventRing, HoldsTheNewestAndCountsAll)
{
    EventRing ring{3};
    EXPECT_EQ(ring.oldest(), ring.next());
    for (int i = 0; i < 5; ++i) {
        ring.add(event("e" + std::to_string(i), i));
    }
    EXPECT_THAT(keys(ring), ElementsAre("e2", "e3", "e4"));
    EXPECT_EQ(ring.size(), 3U);
    EXPECT_EQ(ring.next(), 5);
    EXPECT_EQ(ring.oldest(), 2);
    EXPECT_EQ(ring.find(1), nullptr);
    EXPECT_EQ(ring.find(5), nullptr);
    EXPECT_EQ(ring.find(-1), nullptr);

    ring.clear();
    EXPECT_EQ(ring.size(), 0U);
    ring.add(event("e5", 5));
    EXPECT_EQ(ring.find(5)->key, "e5") << "numbers go on";
}

TEST(EventRing, AnEventThatComesAgainAtOnceMakesItsEarlierEntryObsolete)
{
    EventRing ring{10};
    ring.add(event("low", 1));
    ring.add(event("lowOff", 1.005));
    ring.add(event("low", 1.009));
    EXPECT_THAT(keys(ring), ElementsAre(kEventObsolete, "lowOff", "low"));
    ring.add(event("low", 1.03));
    EXPECT_THAT(keys(ring), ElementsAre(kEventObsolete, "lowOff", "low", "low"))
        << "some time has passed";
    EXPECT_EQ(ring.find(0)->hours, 1) << "it keeps its place and its time";
}

TEST(EventRing, AResetIsNeverObsolete)
{
    EventRing ring{10};
    ring.add(event(kEventExternalReset, 1));
    ring.add(event(kEventExternalReset, 1.001));
    EXPECT_THAT(keys(ring), ElementsAre(kEventExternalReset, kEventExternalReset));
}

TEST(EventReader, GivesFullPagesWithOneEnd)
{
    EventRing ring{10};
    for (int i = 0; i < 4; ++i) {
        ring.add(event("e" + std::to_string(i), i));
    }
    EventReader reader;
    EXPECT_FALSE(reader.isStarted());
    reader.start(ring);
    EXPECT_TRUE(reader.isStarted());
    EXPECT_EQ(reader.end(ring), 4U);
    EXPECT_THAT(keys(reader.page(ring, 0, 3)), ElementsAre("e3", "e2", "e1"));
    EXPECT_THAT(keys(reader.page(ring, 3, 3)), ElementsAre("e0", kEventNone, kEventObsolete));
    EXPECT_THAT(keys(reader.page(ring, 6, 2)), ElementsAre(kEventObsolete, kEventObsolete));
    EXPECT_THAT(keys(reader.page(ring, static_cast<std::size_t>(-1), 1)),
                ElementsAre(kEventObsolete));
    EXPECT_EQ(reader.page(ring, 4, 1).front().eventClass, kEventClassNone);
    EXPECT_EQ(reader.page(ring, 4, 1).front().hours, 0);
}

TEST(EventReader, ItsPagesFitTogetherWhateverHappensMeanwhile)
{
    EventRing ring{4};
    for (int i = 0; i < 4; ++i) {
        ring.add(event("e" + std::to_string(i), i));
    }
    EventReader reader;
    reader.start(ring);
    EXPECT_THAT(keys(reader.page(ring, 0, 2)), ElementsAre("e3", "e2"));
    ring.add(event("e4", 4)); // and overwrites e0
    EXPECT_THAT(keys(reader.page(ring, 2, 2)), ElementsAre("e1", kEventNone));
    reader.start(ring);
    EXPECT_THAT(keys(reader.page(ring, 0, 2)), ElementsAre("e4", "e3"));

    ring.clear();
    ring.add(event("e5", 5));
    EXPECT_EQ(reader.end(ring), 0U);
    EXPECT_THAT(keys(reader.page(ring, 0, 2)), ElementsAre(kEventNone, kEventObsolete));
}

} // namespace
} // namespace quill::shell
