#include "platform/Diagnostics.h"

#include <cstdio>

namespace ombrivane {

std::string FailedCall::line() const {
    std::string text(endpoint);
    text.append(" failed: ").append(domain).append(" ").append(std::to_string(code));
    if (!developerText.empty()) text.append(", ").append(developerText);
    return text;
}

void PrintedDiagnostics::print(std::string_view line) {
    const std::string whole = std::string(line) + "\n";
    std::fwrite(whole.data(), 1, whole.size(), stdout);
}

} // namespace ombrivane
