#pragma once

#include "AdapterTable.h"
#include "PageReads.h"
#include "ScreenCatalogue.h"

#include <filesystem>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace ombrivane::journey {

/// Every screen there is by its name, rows and parts among them.
using ScreensByName = std::multimap<std::string_view, std::shared_ptr<Screen>>;

/// Writes the classes through which pages read screens and shown values: one property for each key that some
/// page reads, and none for the others.
class AdapterWriter {
public:
    /// @param pages the folder of all pages
    AdapterWriter(const std::vector<CataloguedScreen>& screens, const std::filesystem::path& pages);

    /// The headers by their file names.
    /// @throws std::runtime_error for a page that reads a key which has no form in pages, and for a row of
    /// the table whose screen does not exist
    std::map<std::string, std::string> headers() const;

private:
    /// One header while it is written.
    struct Header {
        std::set<std::string> includes;
        std::string lines;
        std::set<std::string> names; ///< of what pages read
    };

    Header adapter(const AdapterRow& row) const;
    Header value(const ValueRow& row) const;
    void addMember(Header& header, const AdapterRow& row, const Member& member,
                   const std::string& model) const;
    void addPart(Header& header, const AdapterRow& row, const Part& part) const;

    ScreensByName screens_;
    PageReads reads_;
};

} // namespace ombrivane::journey
