#pragma once

#include <string>

#include <libxml/xmlerror.h>

namespace quill::platform::detail {

/// While it lives, libxml2 tells it what is wrong instead of printing it. The first error stays;
/// those behind it mostly follow from it.
class ErrorTrap {
public:
    ErrorTrap();
    ~ErrorTrap();
    ErrorTrap(const ErrorTrap&)            = delete;
    ErrorTrap& operator=(const ErrorTrap&) = delete;

    [[nodiscard]] bool               caught() const noexcept { return mCaught; }
    [[nodiscard]] const std::string& message() const noexcept { return mMessage; }
    /// 1-based line in the text that was read, 0 if there is none.
    [[nodiscard]] int line() const noexcept { return mLine; }

private:
#if LIBXML_VERSION >= 21200
    using Error = const xmlError;
#else
    using Error = xmlError;
#endif
    static void structured(void* trap, Error* error);
    static void generic(void* trap, const char* format, ...);
    void        take(const char* message, int line);

    xmlStructuredErrorFunc mOldStructured;
    void*                  mOldStructuredContext;
    xmlGenericErrorFunc    mOldGeneric;
    void*                  mOldGenericContext;
    bool                   mCaught = false;
    std::string            mMessage;
    int                    mLine = 0;
};

} // namespace quill::platform::detail
