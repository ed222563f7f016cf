#include "ScreenPath.h"

#include "keyed/Rows.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace ombrivane::journey {
namespace {

struct Step {
    std::string key;
    std::optional<std::size_t> index;
};

[[noreturn]] void refuse(const std::string& why) { throw KeyedError(why); }

std::string inQuotes(std::string_view text) { return "\"" + std::string(text) + "\""; }

/// What an unreadable index is refused with before anything is looked for.
Step parseStep(const std::string& text) {
    const auto bracket = text.find('[');
    if (bracket == std::string::npos) return {text, std::nullopt};
    std::size_t index = 0;
    const char* start = text.data() + bracket + 1;
    const auto [stop, failure] = std::from_chars(start, text.data() + text.size(), index);
    if (failure != std::errc() || stop != text.data() + text.size() - 1 || *stop != ']')
        refuse(inQuotes(text) + " does not read: a row is written as in \"rows[0]\"");
    return {text.substr(0, bracket), index};
}

std::vector<Step> parse(const std::string& path) {
    std::vector<Step> steps;
    std::size_t start = 0;
    for (auto dot = path.find('.'); dot != std::string::npos; dot = path.find('.', start)) {
        steps.push_back(parseStep(path.substr(start, dot - start)));
        start = dot + 1;
    }
    steps.push_back(parseStep(path.substr(start)));
    return steps;
}

Member* ownModel(const Fields& fields) {
    for (Member* member : fields.members()) {
        if (member->kind() == MemberKind::model && member->key() != "appState") return member;
    }
    return nullptr;
}

/// Own members first, then those of the models.
Member* findIn(const Fields& fields, const std::string& key) {
    if (Member* own = fields.find(key)) return own;
    if (key == "model") return ownModel(fields);
    for (Member* member : fields.members()) {
        if (member->kind() != MemberKind::model) continue;
        if (Member* below = member->model()->find(key)) return below;
    }
    return nullptr;
}

/// A screen shown inside of `screen`, at any depth, by its name or by the key of its part.
std::shared_ptr<Screen> partOf(const std::shared_ptr<Screen>& screen, const std::string& name) {
    for (const auto& host : Navigator::withParts(screen)) {
        for (const Part* part : host->parts()) {
            const auto inner = part->screen();
            if (inner && (part->key() == name || inner->name() == name)) return inner;
        }
    }
    return nullptr;
}

/// "adults, cabin, model (children, infants)"
std::string namesIn(const Fields& fields) {
    std::string names;
    for (const Member* member : fields.members()) {
        if (!names.empty()) names += ", ";
        names += member->key();
        if (const Fields* below = member->model()) names += " (" + namesIn(*below) + ")";
    }
    return names.empty() ? "nothing" : names;
}

/// The keys of a screen and of what is shown inside of it, as a sentence's end.
std::string namesIn(const std::shared_ptr<Screen>& screen) {
    std::string names;
    for (const auto& shown : Navigator::withParts(screen)) {
        names += names.empty() ? "it has " : "; " + std::string(shown->name()) + ", inside of it, has ";
        names += namesIn(shown->fields);
    }
    return names;
}

std::string stackOf(const Navigator& navigator) {
    std::string names;
    for (const auto& entry : navigator.stack()) {
        for (const auto& screen : Navigator::withParts(entry.screen))
            names += (names.empty() ? "" : ", ") + std::string(screen->name());
    }
    return names;
}

PathTarget findMember(const std::shared_ptr<Screen>& screen, const std::string& key) {
    for (const auto& candidate : Navigator::withParts(screen)) {
        if (Member* member = findIn(candidate->fields, key)) return {candidate, member};
    }
    refuse(std::string(screen->name()) + " has no " + inQuotes(key) + "; " + namesIn(screen));
}

PathTarget walk(std::shared_ptr<Screen> screen, const std::vector<Step>& steps, std::size_t at) {
    for (; at + 1 < steps.size() && !steps[at].index; ++at) {
        const auto inner = partOf(screen, steps[at].key);
        if (!inner) break;
        screen = inner;
    }
    PathTarget target = findMember(screen, steps[at].key);
    while (steps[at].index || at + 1 < steps.size()) {
        const std::string& key = steps[at].key;
        if (const auto index = steps[at].index) {
            auto* rows = dynamic_cast<Rows*>(target.member);
            if (rows == nullptr) refuse(inQuotes(key) + " of " + std::string(screen->name()) + " is no list");
            const std::size_t size = rows->size();
            if (*index >= size) {
                refuse(inQuotes(key) + " of " + std::string(screen->name()) + " has no row " +
                       std::to_string(*index) + ": " +
                       (size == 0 ? "it is empty" : "its rows are 0 to " + std::to_string(size - 1)));
            }
            const auto row = rows->row(*index);
            if (at + 1 == steps.size())
                refuse("a row has no value of its own; name a key of it: " + namesIn(row));
            return walk(row, steps, at + 1);
        }
        const Fields* below = target.member->model();
        ++at;
        if (below == nullptr)
            refuse(inQuotes(key) + " of " + std::string(screen->name()) + " has nothing below it, no " +
                   inQuotes(steps[at].key) + " either");
        Member* next = findIn(*below, steps[at].key);
        if (next == nullptr)
            refuse(inQuotes(key) + " has no " + inQuotes(steps[at].key) + "; it has " + namesIn(*below));
        target.member = next;
    }
    return target;
}

Json describeFields(const Fields& fields) {
    Json values = Json::object();
    Json texts = Json::object();
    Json actions = Json::object();
    Json models = Json::object();
    Json rows = Json::object();
    for (const Member* member : fields.members()) {
        const std::string key(member->key());
        switch (member->kind()) {
        case MemberKind::field:
            values[key] = member->read();
            break;
        case MemberKind::derived:
            texts[key] = member->read();
            break;
        case MemberKind::action:
            actions[key] = member->read().at("enabled");
            break;
        case MemberKind::model:
            models[key] = describeFields(*member->model());
            break;
        case MemberKind::rows:
            rows[key] = member->read();
            break;
        }
    }
    return Json{
        {"fields", values}, {"derived", texts}, {"actions", actions}, {"models", models}, {"rows", rows}};
}

Json describeScreen(const std::shared_ptr<Screen>& screen) {
    Json description{{"screen", screen->name()}};
    description.update(describeFields(screen->fields));
    Json parts = Json::array();
    for (const Part* part : screen->parts()) {
        if (const auto inner = part->screen()) parts.push_back(describeScreen(inner));
    }
    description["parts"] = parts;
    return description;
}

const char* nameOf(Presentation presentation) {
    switch (presentation) {
    case Presentation::push:
        return "push";
    case Presentation::sheet:
        return "sheet";
    case Presentation::alert:
        break;
    }
    return "alert";
}

} // namespace

PathTarget follow(const Navigator& navigator, const std::string& path) {
    try {
        const auto steps = parse(path);
        if (steps.size() == 1 || steps.front().index) return walk(navigator.top(), steps, 0);
        const std::string& first = steps.front().key;
        if (const auto named = navigator.find(first)) return walk(named, steps, 1);
        const auto& top = navigator.top();
        const auto shown = Navigator::withParts(top);
        const bool begins =
            partOf(top, first) || std::any_of(shown.begin(), shown.end(), [&](const auto& screen) {
                return findIn(screen->fields, first) != nullptr;
            });
        if (!begins) {
            refuse(inQuotes(first) + " is neither a screen on the stack (" + stackOf(navigator) +
                   ") nor a key of the topmost one, " + std::string(top->name()) + "; " + namesIn(top));
        }
        return walk(top, steps, 0);
    } catch (const KeyedError& nowhere) {
        throw KeyedError(path + ": " + nowhere.what());
    }
}

PathAnswer find(const Navigator* navigator, const std::string& path) {
    if (navigator == nullptr) return PathAnswer(path + ": the component is not open");
    try {
        return PathAnswer(follow(*navigator, path));
    } catch (const KeyedError& nowhere) {
        return PathAnswer(nowhere.what());
    }
}

Member* PathAnswer::operator->() const {
    if (!*this) throw KeyedError(problem_);
    return target_.member;
}

Json describe(const Navigator& navigator) {
    Json stack = Json::array();
    for (const auto& entry : navigator.stack()) {
        Json screen = describeScreen(entry.screen);
        screen["presentation"] = nameOf(entry.presentation);
        stack.push_back(screen);
    }
    return stack;
}

} // namespace ombrivane::journey
