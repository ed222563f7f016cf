#pragma once

#include <optional>
#include <string>
#include <vector>

namespace ombrivane {

/// The component's resources, found by an identifier.
class ResourceBundles {
public:
    ResourceBundles() = default;
    ResourceBundles(const ResourceBundles&) = delete;
    ResourceBundles& operator=(const ResourceBundles&) = delete;
    virtual ~ResourceBundles() = default;

    /// Whether a bundle with this identifier exists. Any thread.
    virtual bool contains(const std::string& identifier) = 0;

    /// The addresses of the bundle's resources with this extension, in no subdirectory; nothing when the
    /// bundle cannot be listed. Any thread.
    virtual std::optional<std::vector<std::string>> urls(const std::string& identifier,
                                                         const std::string& extension) = 0;
};

/// Makes a font file usable for the process.
class FontRegistry {
public:
    FontRegistry() = default;
    FontRegistry(const FontRegistry&) = delete;
    FontRegistry& operator=(const FontRegistry&) = delete;
    virtual ~FontRegistry() = default;

    /// Registers the font at `url`; a file that is no font is passed over. Any thread.
    virtual void registerFont(const std::string& url) = 0;
};

} // namespace ombrivane
