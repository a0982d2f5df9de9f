#include "framework/steps.h"

#include "framework/host_contract.h"
#include "framework/modTools.h"

namespace quill {

namespace {

std::pair<int, std::string> describe(const std::exception_ptr& error)
{
    try {
        std::rethrow_exception(error);
    } catch (const platform::Failure& failure) {
        return {failure.number(), failure.description()};
    } catch (const std::exception& other) {
        return {platform::kInvalidCall, other.what()};
    } catch (...) {
        return {platform::kInvalidCall, "unknown failure"};
    }
}

} // namespace

std::string Steps::where() const
{
    return mTag == nullptr ? mWhere : std::string{mWord} + " " + *mTag + " " + mProcedure;
}

void Steps::report(const std::exception_ptr& error) const noexcept
{
    try {
        const auto [number, description] = describe(error);
        if (mHasOutlet) {
            if (mOutlet) {
                mOutlet(number, description);
            }
        } else if (mMessenger != nullptr) {
            mMessenger->ReportError(where(), number, description);
        } else {
            modTools::WriteDebugError("Quill GUI", where(), number, description);
        }
    } catch (...) { // NOLINT(bugprone-empty-catch)
        // Whoever takes the reports is out of order himself; there is nobody left to tell.
    }
}

} // namespace quill
