#include "ScreenPath.h"

#include "keyed/Rows.h"

#include <charconv>
#include <optional>
#include <vector>

namespace ombrivane::journey {
namespace {

struct Step {
    std::string key;
    std::optional<std::size_t> index;
};

[[noreturn]] void noSuch(const std::string& what) { throw KeyedError("there is no " + what); }

Step parseStep(const std::string& text) {
    const auto bracket = text.find('[');
    if (bracket == std::string::npos) return {text, std::nullopt};
    std::size_t index = 0;
    const char* start = text.data() + bracket + 1;
    const auto [stop, failure] = std::from_chars(start, text.data() + text.size(), index);
    if (failure != std::errc() || stop != text.data() + text.size() - 1 || *stop != ']')
        noSuch("row " + text);
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

PathTarget findMember(const std::shared_ptr<Screen>& screen, const std::string& key) {
    for (const auto& candidate : Navigator::withParts(screen)) {
        if (Member* member = findIn(candidate->fields, key)) return {candidate, member};
    }
    noSuch("\"" + key + "\" in " + std::string(screen->name()));
}

PathTarget walk(std::shared_ptr<Screen> screen, const std::vector<Step>& steps, std::size_t at) {
    for (; at + 1 < steps.size() && !steps[at].index; ++at) {
        const auto inner = partOf(screen, steps[at].key);
        if (!inner) break;
        screen = inner;
    }
    PathTarget target = findMember(screen, steps[at].key);
    while (steps[at].index || at + 1 < steps.size()) {
        if (steps[at].index) {
            auto* rows = dynamic_cast<Rows*>(target.member);
            if (rows == nullptr) noSuch("list \"" + steps[at].key + "\"");
            const auto row = rows->row(*steps[at].index);
            if (at + 1 == steps.size()) noSuch("value of a whole row");
            auto found = walk(row, steps, at + 1);
            return found;
        }
        const Fields* below = target.member->model();
        ++at;
        Member* next = below != nullptr ? findIn(*below, steps[at].key) : nullptr;
        if (next == nullptr) noSuch("\"" + steps[at].key + "\"");
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
    const auto steps = parse(path);
    if (steps.size() > 1 && !steps.front().index) {
        if (const auto named = navigator.find(steps.front().key)) return walk(named, steps, 1);
    }
    return walk(navigator.top(), steps, 0);
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
