#include "recording/DeedPath.h"

#include "keyed/Link.h"
#include "keyed/Rows.h"

#include <algorithm>

namespace ombrivane {
namespace {

bool isOnStack(const Navigator& navigator, const Screen& screen) {
    const auto& stack = navigator.stack();
    return std::any_of(
        stack.begin(), stack.end(), [&](const auto& entry) { return entry.screen.get() == &screen; });
}

/// Rows may have come and gone since the row was made: it is looked for by what it shows.
std::size_t indexOf(const Screen& row, const Screen& host) {
    const auto& [list, made] = row.place();
    const auto* rows = dynamic_cast<const Rows*>(host.fields.find(list));
    if (rows == nullptr) return made;
    const Json shown = readAll(row.fields);
    const auto isAt = [&](std::size_t index) {
        return index < rows->size() && readAll(rows->row(index)->fields) == shown;
    };
    if (isAt(made)) return made;
    for (std::size_t index = 0; index < rows->size(); ++index)
        if (isAt(index)) return index;
    return made;
}

/// How `screen` is found in its host: the key of the part that it is, or its place in a list.
std::string stepTo(const Screen& screen, const Screen& host) {
    if (!screen.place().list.empty())
        return std::string(screen.place().list) + '[' + std::to_string(indexOf(screen, host)) + ']';
    for (const Part* part : host.parts())
        if (part->screen().get() == &screen) return std::string(part->key());
    return std::string(screen.name());
}

} // namespace

std::optional<std::string> pathOf(const Navigator& navigator, const Screen& screen, std::string_view key) {
    std::string path(key);
    const Screen* at = &screen;
    for (auto host = at->host(); host; host = at->host()) {
        // A part that no other on the stack is called like needs no way to it.
        const bool isKnown = at->place().list.empty() && navigator.find(at->name()).get() == at;
        if (isKnown) return std::string(at->name()) + '.' + path;
        path.insert(0, stepTo(*at, *host) + '.');
        at = host.get();
    }
    if (!isOnStack(navigator, *at)) return std::nullopt;
    return std::string(at->name()) + '.' + path;
}

} // namespace ombrivane
