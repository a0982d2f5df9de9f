#pragma once

#include <gmock/gmock.h>

#include <utility>

namespace quill::test {

/// What `Each` means to say of reports: there are some, and each is like this.
template <class Matcher>
auto SomeAndEach(Matcher&& matcher)
{
    return testing::AllOf(testing::Not(testing::IsEmpty()),
                          testing::Each(std::forward<Matcher>(matcher)));
}

} // namespace quill::test
