#pragma once

#include "base/Api.h"
#include "platform/ResourceBundles.h"

#include <string>

namespace ombrivane {

/// One bundle that is a folder of files.
class OMBRIVANE_API DirectoryBundles final : public ResourceBundles {
public:
    /// `folder` is the bundle that is found by `identifier`; it need not exist before it is asked for.
    DirectoryBundles(std::string identifier, std::string folder) :
        identifier_(std::move(identifier)), folder_(std::move(folder)) {}

    bool contains(const std::string& identifier) override;
    std::optional<std::vector<std::string>> urls(const std::string& identifier,
                                                 const std::string& extension) override;

private:
    std::string identifier_;
    std::string folder_;
};

/// For a program that draws nothing.
class NoFonts final : public FontRegistry {
public:
    void registerFont(const std::string& /*url*/) override {}
};

} // namespace ombrivane
