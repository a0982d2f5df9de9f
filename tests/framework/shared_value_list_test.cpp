#include "framework/shared_value_list.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quill::test {
namespace {

TEST(SharedValueList, TriesTheLastWordsOfTheName)
{
    struct Case {
        const char*              tag;
        std::vector<std::string> candidates;
    };
    const Case cases[] = {
        {"ctr_alarmHighAction", {"action", "highAction", "alarmHighAction"}},
        {"ctr_alarmHighAction_2", {"action", "highAction", "alarmHighAction"}},
        {"ctr_alarmAction_high", {"action", "alarmAction"}},
        {"ctr_a_b_c", {}},
        {"ctr_ab_cd_2", {"ab"}},
        {"ctr_action", {"action"}},
        {"ctr_Action", {"action"}},
        {"ctr_x", {}},
        {"ctr_", {}},
        {"ctr_sensor12", {"12", "sensor12"}},
        {"ctr_alarmA", {"alarmA"}},
        {"ctr_meldung\xC3\x96lstand", {"\xC3\xB6lstand", "meldung\xC3\x96lstand"}},
    };
    for (const auto& test : cases) {
        EXPECT_EQ(modView::sharedListCandidates(test.tag), test.candidates) << test.tag;
    }
}

} // namespace
} // namespace quill::test
