#include "richtext/HtmlRole.h"

#include <algorithm>
#include <array>

namespace ombrivane {
namespace {

struct Entry {
    std::string_view name;
    HtmlRole role;
};

using enum HtmlRole;

constexpr std::array<Entry, 60> roles = {{
    {"address", block},    {"applet", skipped},   {"article", block},  {"aside", block},
    {"audio", skipped},    {"blockquote", block}, {"body", block},     {"br", block},
    {"button", skipped},   {"canvas", skipped},   {"caption", block},  {"center", block},
    {"datalist", skipped}, {"dd", block},         {"details", block},  {"dir", list},
    {"div", block},        {"dl", block},         {"dt", block},       {"fieldset", block},
    {"figcaption", block}, {"figure", block},     {"footer", block},   {"form", block},
    {"h1", block},         {"h2", block},         {"h3", block},       {"h4", block},
    {"h5", block},         {"h6", block},         {"header", block},   {"hr", block},
    {"ins", underlined},   {"legend", block},     {"li", item},        {"main", block},
    {"map", skipped},      {"math", skipped},     {"menu", list},      {"nav", block},
    {"object", skipped},   {"ol", list},          {"p", block},        {"pre", preformatted},
    {"section", block},    {"select", skipped},   {"summary", block},  {"svg", skipped},
    {"table", table},      {"tbody", rowGroup},   {"td", cell},        {"template", skipped},
    {"tfoot", rowGroup},   {"th", cell},          {"thead", rowGroup}, {"tr", row},
    {"u", underlined},     {"ul", list},          {"video", skipped},  {"xml", skipped},
}};

static_assert(std::is_sorted(roles.begin(), roles.end(),
                             [](const Entry& a, const Entry& b) { return a.name < b.name; }));

} // namespace

HtmlRole htmlRole(std::string_view name) {
    const auto found =
        std::lower_bound(roles.begin(), roles.end(), name, [](const Entry& entry, std::string_view wanted) {
            return entry.name < wanted;
        });
    return found != roles.end() && found->name == name ? found->role : none;
}

} // namespace ombrivane
