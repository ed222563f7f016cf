#pragma once

#include "keyed/Fields.h"

#include <string_view>
#include <vector>

namespace ombrivane::journey {

/// The class through which pages read screens of one kind. Its properties are written by the program; where
/// more belongs to it, a class by hand is made of the written one.
struct AdapterRow {
    std::string_view type;       ///< as pages name it
    std::string_view core;       ///< the class of its screens
    std::string_view header;     ///< of that class
    std::string_view screen{};   ///< the name of one such screen, where it is not that of the class
    std::string_view written{};  ///< the class that is written, where that is not `type`
    std::string_view extended{}; ///< the adapter by hand that the written class extends, where there is one

    std::string_view screenName() const { return screen.empty() ? core : screen; }
    std::string_view writtenClass() const { return written.empty() ? type : written; }
};

/// One entry of a shown value's table.
struct ValueEntry {
    enum class Kind { text, texts, list, other };

    std::string_view key;
    Kind kind;
    std::string_view listed; ///< the value type of a list
};

/// The class through which pages read a shown value (`keyed/Shown.h`).
struct ValueRow {
    std::string_view type;
    std::string_view core;
    std::string_view header;
    std::vector<ValueEntry> entries;
    bool (*isListedBy)(const Member&); ///< whether a member of a screen is a list of such values
    std::string_view written;

    std::string_view writtenClass() const { return written.empty() ? type : written; }
};

/// A key that has another name in pages or as a member of its class.
struct OtherName {
    std::string_view type; ///< empty: of every screen
    std::string_view key;  ///< with the model that it stands in
    std::string_view inPages;
    std::string_view asMember;
};

const std::vector<AdapterRow>& adapterRows();
const std::vector<ValueRow>& valueRows();
const std::vector<OtherName>& otherNames();

/// The class by which a page reads values of a list; nullptr where `member` is no list of values.
const ValueRow* listedValue(const Member& member);

} // namespace ombrivane::journey
