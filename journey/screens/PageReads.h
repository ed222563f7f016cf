#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace ombrivane::journey {

/// What pages read of the types that they name: each word behind a dot, by the type of what stands before the
/// dot. That is what the page, or one that it is made of, declares under that name; a name that is declared
/// nowhere there counts for every type that any page declares under it. What a page assigns it does not read.
class PageReads {
public:
    /// Reads all pages below `folder`.
    /// @param parts types of what is shown inside of a screen, by its key
    PageReads(const std::filesystem::path& folder, std::multimap<std::string, std::string> parts);

    /// Whether some page reads `name` of something of `type`.
    bool reads(std::string_view type, std::string_view name) const;

private:
    struct Page {
        std::string text;
        std::string root; ///< the type of its outermost item
        std::multimap<std::string, std::string> declared;
        std::set<std::string> ids;
    };

    static Page parse(const std::string& text);
    std::set<std::string> typesOf(const Page& page, const std::string& name) const;
    void note(const Page& page);

    std::map<std::string, Page> pages_; ///< by the type that each makes
    std::multimap<std::string, std::string> parts_;
    std::map<std::string, std::set<std::string>, std::less<>> reads_;
};

} // namespace ombrivane::journey
