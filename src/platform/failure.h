#pragma once

#include <stdexcept>
#include <string>

namespace quill::platform {

/// A step that could not be done: the number that the host's support staff know and a text.
/// Everything in the library that fails on purpose throws this; `Steps` turns it into a report.
class Failure : public std::runtime_error {
public:
    Failure(int number, const std::string& description)
        : std::runtime_error(description), mNumber(number)
    {
    }
    [[nodiscard]] int         number() const noexcept { return mNumber; }
    [[nodiscard]] std::string description() const { return what(); }

private:
    int mNumber;
};

/// The numbers of failures that the platform raises.
enum FailureNumber : int {
    kInvalidCall          = 5,
    kOverflow             = 6,
    kSubscriptOutOfRange  = 9,
    kDivisionByZero       = 11,
    kTypeMismatch         = 13,
    kFileNotFound         = 53,
    kPathAccess           = 75,
    kPathNotFound         = 76,
    kObjectNotSet         = 91,
    kNotSupportedByObject = 438,
    kCancelled            = 32755,
};

/// The failure with its usual text; an unknown number gets "Application-defined error".
[[nodiscard]] Failure failure(int number);

} // namespace quill::platform
