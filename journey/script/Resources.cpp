#include "Resources.h"

#include <filesystem>
#include <fstream>
#include <string>

namespace ombrivane::journey {
namespace {

std::size_t entriesOf(const char* folder) {
    std::error_code unknown;
    std::size_t count = 0;
    for (auto entry = std::filesystem::directory_iterator(folder, unknown);
         !unknown && entry != std::filesystem::directory_iterator();
         entry.increment(unknown))
        ++count;
    return count;
}

std::size_t kilobytes(const std::string& kind) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(kind + ":")) return std::stoul(line.substr(kind.size() + 1));
    }
    return 0;
}

} // namespace

Json resourcesOfThisProcess() {
    return {{"memory", kilobytes("RssAnon")},
            {"threads", entriesOf("/proc/self/task")},
            {"files", entriesOf("/proc/self/fd")}};
}

} // namespace ombrivane::journey
