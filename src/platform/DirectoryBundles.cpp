#include "platform/DirectoryBundles.h"

#include <algorithm>
#include <filesystem>

namespace ombrivane {

bool DirectoryBundles::contains(const std::string& identifier) { return identifier == identifier_; }

std::optional<std::vector<std::string>> DirectoryBundles::urls(const std::string& identifier,
                                                               const std::string& extension) {
    std::error_code failure;
    std::filesystem::directory_iterator files(folder_, failure);
    if (identifier != identifier_ || failure) return std::nullopt;
    std::vector<std::string> found;
    for (const auto& file : files) {
        if (file.path().extension() == "." + extension) found.push_back(file.path().string());
    }
    std::sort(found.begin(), found.end());
    return found;
}

} // namespace ombrivane
