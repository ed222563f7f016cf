// The command line of the sandbox.
#pragma once

#include "sandbox/control/Options.h"

#include <string>
#include <vector>

namespace ombrivane::sandbox {

struct CommandLine {
    Options options;
    bool help = false;
    bool exitWithStdin = false;
};

/// Reads the arguments behind the program's name. Throws `std::invalid_argument` with a sentence for the
/// user.
CommandLine parseCommandLine(const std::vector<std::string>& arguments);

std::string helpText();

} // namespace ombrivane::sandbox
