#pragma once

#include "shell/options.h"

namespace quill::shell {

/// Takes the road of one value through the real window, by mouse and keyboard events: writes one
/// picture per page and state and the account "account.txt" into the folder of the options, says
/// where, and answers 0 if every check held, else 1. The datafile it works on is a copy of its own.
int takeTour(const Options& options);

} // namespace quill::shell
