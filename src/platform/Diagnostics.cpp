#include "platform/Diagnostics.h"

#include <cstdio>

namespace ombrivane {

void PrintedDiagnostics::print(std::string_view line) {
    const std::string whole = std::string(line) + "\n";
    std::fwrite(whole.data(), 1, whole.size(), stdout);
}

} // namespace ombrivane
