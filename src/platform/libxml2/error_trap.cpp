#include "platform/libxml2/error_trap.h"

#include <array>
#include <cstdarg>
#include <cstdio>

#include <libxml/globals.h>

namespace quill::platform::detail {

ErrorTrap::ErrorTrap()
    : mOldStructured(xmlStructuredError), mOldStructuredContext(xmlStructuredErrorContext),
      mOldGeneric(xmlGenericError), mOldGenericContext(xmlGenericErrorContext)
{
    xmlSetStructuredErrorFunc(this, &ErrorTrap::structured);
    xmlSetGenericErrorFunc(this, &ErrorTrap::generic);
}

ErrorTrap::~ErrorTrap()
{
    xmlSetStructuredErrorFunc(mOldStructuredContext, mOldStructured);
    xmlSetGenericErrorFunc(mOldGenericContext, mOldGeneric);
}

void ErrorTrap::structured(void* trap, Error* error)
{
    // A schema name need not be a web address.
    if (error == nullptr || error->level < XML_ERR_ERROR || error->code == XML_WAR_NS_URI) {
        return;
    }
    static_cast<ErrorTrap*>(trap)->take(error->message, error->line);
}

void ErrorTrap::generic(void* trap, const char* format, ...)
{
    std::array<char, 256> text{};
    std::va_list          arguments;
    va_start(arguments, format);
    // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): va_start stands right above
    std::vsnprintf(text.data(), text.size(), format, arguments);
    va_end(arguments);
    static_cast<ErrorTrap*>(trap)->take(text.data(), 0);
}

void ErrorTrap::take(const char* message, int line)
{
    if (mCaught) {
        return;
    }
    mCaught  = true;
    mLine    = line;
    mMessage = message != nullptr ? message : "unknown error";
    while (!mMessage.empty() && mMessage.back() == '\n') {
        mMessage.pop_back();
    }
}

} // namespace quill::platform::detail
