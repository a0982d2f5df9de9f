#pragma once

#include "platform/failure.h"

#include <string>
#include <utility>

namespace quill::test {

/// The number of the failure that a call ends with, 0 for none.
template <class F>
int failureOf(F&& call)
{
    try {
        std::forward<F>(call)();
    } catch (const platform::Failure& failure) {
        return failure.number();
    }
    return 0;
}

/// Its description, "no failure" for none.
template <class F>
std::string failureText(F&& call)
{
    try {
        std::forward<F>(call)();
    } catch (const platform::Failure& failure) {
        return failure.description();
    }
    return "no failure";
}

} // namespace quill::test
