#include "platform/failure.h"

namespace quill::platform {

namespace {

const char* describe(int number)
{
    switch (number) {
    case kInvalidCall: return "Invalid procedure call or argument";
    case kOverflow: return "Overflow";
    case kSubscriptOutOfRange: return "Subscript out of range";
    case kDivisionByZero: return "Division by zero";
    case kTypeMismatch: return "Type mismatch";
    case kFileNotFound: return "File not found";
    case kPathAccess: return "Path/File access error";
    case kPathNotFound: return "Path not found";
    case kObjectNotSet: return "Object variable or With block variable not set";
    case kNotSupportedByObject: return "Object doesn't support this property or method";
    case kCancelled: return "Cancel was selected.";
    default: return "Application-defined error";
    }
}

} // namespace

Failure failure(int number)
{
    return {number, describe(number)};
}

} // namespace quill::platform
