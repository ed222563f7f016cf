#include "ScreenDocument.h"

#include "keyed/Link.h"
#include "keyed/Rows.h"

namespace ombrivane::journey {
namespace {

constexpr const char* introduction = R"(# Screens and their keys

What each screen holds, shows and does, by the keys under which scripts, tests and pages reach it, and what stands there
when the screen was just made. This document is made from the code by `scripts/screens-document`; a test fails when it
tells anything else than the code.

- A **field** can be read and set. A flag that shows something says so.
- A **text**, **flag**, **number** or **list** is computed from fields and can be read.
- An **action** is what a control does; the value tells whether the control can be used. Most take no argument;
  what begins with `type` takes a text, `tapDay` and the picks of dates one such as `"2027-01-10"`, `chooseGender` `"Female"`,
  `tap` of the tab bar `"roundTrip"`, `slide` and its like a number.
- **Rows** are small screens of their own, made when they are drawn: `rows[0].tap`.
- A **part** is a screen shown inside of this one.
- Keys below a **model** are reached as `model.key`. A model that several screens share is told once.
)";

std::string code(std::string text) {
    // A bar would end the cell of the table.
    for (auto bar = text.find('|'); bar != std::string::npos; bar = text.find('|', bar + 2))
        text.insert(bar, 1, '\\');
    return "`" + text + "`";
}

std::string keysOf(const Json& record) {
    std::string keys;
    for (const auto& entry : record.items())
        keys += (keys.empty() ? "" : ", ") + code(entry.key());
    return keys;
}

/// A value as it stands, a record by its keys.
std::string told(const Json& value) {
    if (value.is_null()) return "nothing";
    if (value.is_string() && Uuid::parse(value.get<std::string>())) return "a random UUID";
    if (value.is_object()) return "a record of " + keysOf(value);
    if (!value.is_array()) return code(value.dump());
    if (value.empty()) return "empty";
    if (!value.front().is_object()) return code(value.dump());
    return std::to_string(value.size()) + (value.size() == 1 ? " record" : " records") + " of " +
           keysOf(value.front());
}

std::string kindOfDerived(const Json& value) {
    if (value.is_boolean()) return "flag";
    if (value.is_number()) return "number";
    return value.is_array() ? "list" : "text";
}

std::string kindOf(const Member& member, const Screen& screen) {
    for (const Link* link : screen.links()) {
        if (&link->flag() != &member) continue;
        switch (link->presentation()) {
        case Presentation::push:
            return "field, pushes a screen";
        case Presentation::sheet:
            return "field, shows a sheet";
        case Presentation::alert:
            return "field, shows an alert";
        }
    }
    return "field";
}

} // namespace

ScreenDocument::ScreenDocument(const std::vector<CataloguedScreen>& screens) {
    text_ << introduction;
    for (const auto& [reached, screen] : screens)
        addScreen(screen, reached);
}

void ScreenDocument::addScreen(const std::shared_ptr<Screen>& screen, const std::string& reached) {
    if (told_.insert(screen->name()).second) {
        text_ << "\n## " << screen->name() << "\n\nReached: " << reached << ".\n\n";
        text_ << "| Key | Kind | At first |\n|---|---|---|\n";
        addMembers(screen->fields, "", *screen);
        for (const Part* part : screen->parts()) {
            const auto inner = part->screen();
            addLine(std::string(part->key()), "part", inner ? std::string(inner->name()) : "nothing");
        }
    }
    for (const Part* part : screen->parts()) {
        const std::string place =
            "part `" + std::string(part->key()) + "` of `" + std::string(screen->name());
        if (const auto inner = part->screen()) addScreen(inner, place + "`");
    }
    for (const Member* member : screen->fields.members()) {
        const auto* rows = dynamic_cast<const Rows*>(member);
        if (rows == nullptr || rows->size() == 0) continue;
        const auto row = rows->row(0);
        if (told_.count(row->name()) > 0) continue;
        addScreen(row,
                  "a row of `" + std::string(member->key()) + "` of `" + std::string(screen->name()) + "`");
    }
}

void ScreenDocument::addMembers(const Fields& fields, const std::string& prefix, const Screen& screen) {
    for (const Member* member : fields.members())
        addMember(*member, prefix, screen);
}

void ScreenDocument::addMember(const Member& member, const std::string& prefix, const Screen& screen) {
    const std::string key = prefix + std::string(member.key());
    switch (member.kind()) {
    case MemberKind::field:
        return addLine(key, kindOf(member, screen), told(member.read()));
    case MemberKind::derived: {
        const Json value = member.read();
        return addLine(key, kindOfDerived(value), told(value));
    }
    case MemberKind::action:
        return addLine(key, "action", member.read().at("enabled").get<bool>() ? "usable" : "not usable");
    case MemberKind::rows:
        return addLine(key, "rows", member.read().dump());
    case MemberKind::model: {
        const auto [place, isNew] = models_.emplace(member.model(), screen.name());
        addLine(key, "model", isNew ? "" : "as in `" + place->second + "`");
        if (isNew) addMembers(*member.model(), key + ".", screen);
        return;
    }
    }
}

void ScreenDocument::addLine(const std::string& key, const std::string& kind, const std::string& atFirst) {
    text_ << "| `" << key << "` | " << kind << " | " << atFirst << " |\n";
}

} // namespace ombrivane::journey
