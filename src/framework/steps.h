#pragma once

#include "platform/failure.h"

#include <exception>
#include <functional>
#include <string>
#include <utility>

namespace quill {

class Messenger;

/// The guard around each step of a procedure. A step that throws is reported and the procedure
/// goes on with the next one: one bad node must not stop a page.
///
///     Steps step{mMessenger, "CtrChanges: cmdClose_Click"};
///     step([&] { mMessenger->NotifyDialog(kDialogGoes); });
///     step([&] { mMessenger->TransferFocus(); });
///
/// A `Failure` is reported with its number and text, any other exception with number 5 and its
/// text. Nothing escapes from a step, not even what the report itself throws.
class Steps {
public:
    /// Where a failed step is reported: number and description.
    using Outlet = std::function<void(int number, const std::string& description)>;

    /// Reports by `ReportError(where, ...)`; without a Messenger to the debug output.
    Steps(Messenger* messenger, std::string where) : mMessenger(messenger), mWhere(std::move(where))
    {
    }
    /// The place of an editor: word, blank, `tag`, blank, procedure. It is put together only when a
    /// step has failed; `tag` must live as long as the steps.
    Steps(Messenger* messenger, const char* word, const std::string& tag, const char* procedure)
        : mMessenger(messenger), mWord(word), mTag(&tag), mProcedure(procedure)
    {
    }
    /// Reports wherever the outlet says; an empty one drops the report.
    explicit Steps(Outlet outlet) : mOutlet(std::move(outlet)), mHasOutlet(true) {}

    /// Runs one step and answers whether it finished.
    template <class F>
    bool operator()(F&& step) const
    {
        try {
            std::forward<F>(step)();
            return true;
        } catch (...) {
            report(std::current_exception());
            return false;
        }
    }

    /// Runs one step and answers its value, or `fallback` if it failed.
    template <class T, class F>
    T value(T fallback, F&& step) const
    {
        (*this)([&] { fallback = std::forward<F>(step)(); });
        return fallback;
    }

    /// The text of a step that reads; empty if it failed.
    template <class F>
    std::string text(F&& step) const
    {
        return value(std::string{}, std::forward<F>(step));
    }

private:
    void report(const std::exception_ptr& error) const noexcept;

    [[nodiscard]] std::string where() const;

    Messenger*         mMessenger = nullptr;
    std::string        mWhere;
    const char*        mWord      = nullptr;
    const std::string* mTag       = nullptr;
    const char*        mProcedure = nullptr;
    Outlet             mOutlet;
    bool               mHasOutlet = false;
};

/// Steps whose failures nobody hears of.
[[nodiscard]] inline Steps silentSteps()
{
    return Steps{Steps::Outlet{}};
}

/// The object itself, a Messenger or one of its services; failure 91 while there is none. For use
/// inside a step.
template <class T>
[[nodiscard]] T& existing(T* object)
{
    if (object == nullptr) {
        throw platform::failure(platform::kObjectNotSet);
    }
    return *object;
}

} // namespace quill
