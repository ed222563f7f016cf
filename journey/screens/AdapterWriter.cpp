#include "AdapterWriter.h"

#include "booking/FormColour.h"
#include "dates/Day.h"
#include "keyed/Action.h"
#include "keyed/Link.h"
#include "keyed/Rows.h"
#include "platform/DocumentPicture.h"
#include "richtext/RuleParagraph.h"

#include <algorithm>
#include <optional>
#include <stdexcept>

namespace ombrivane::journey {
namespace {

void collect(ScreensByName& screens, const std::shared_ptr<Screen>& screen) {
    screens.emplace(screen->name(), screen);
    for (const Part* part : screen->parts()) {
        if (const auto inner = part->screen()) collect(screens, inner);
    }
    for (const Member* member : screen->fields.members()) {
        const auto* rows = dynamic_cast<const Rows*>(member);
        if (rows != nullptr && rows->size() > 0) collect(screens, rows->row(0));
    }
}

ScreensByName byName(const std::vector<CataloguedScreen>& screens) {
    ScreensByName named;
    for (const auto& [reached, screen] : screens)
        collect(named, screen);
    return named;
}

const AdapterRow* rowOf(std::string_view type) {
    const auto& rows = adapterRows();
    const auto found =
        std::find_if(rows.begin(), rows.end(), [&](const AdapterRow& row) { return row.type == type; });
    return found == rows.end() ? nullptr : &*found;
}

const AdapterRow* rowOf(const Screen& screen) {
    const auto& rows = adapterRows();
    const auto found = std::find_if(
        rows.begin(), rows.end(), [&](const AdapterRow& row) { return row.screenName() == screen.name(); });
    return found == rows.end() ? nullptr : &*found;
}

/// By which type pages read what stands under the key of a part.
std::multimap<std::string, std::string> typesOfParts(const ScreensByName& screens) {
    std::multimap<std::string, std::string> types;
    for (const auto& [name, screen] : screens) {
        for (const Part* part : screen->parts()) {
            const auto inner = part->screen();
            const AdapterRow* row = inner ? rowOf(*inner) : nullptr;
            if (row != nullptr) types.emplace(part->key(), row->type);
        }
    }
    return types;
}

std::string headerOf(std::string_view type, std::string_view written) {
    return (written.empty() ? "adapters/screens/" : "adapters/") + std::string(type) + ".h";
}

/// The names of a key of `row`, by default its own.
OtherName namesOf(const AdapterRow& row, std::string_view key) {
    for (const auto& names : otherNames()) {
        if (names.key == key && (names.type.empty() || names.type == row.type)) return names;
    }
    const auto own = key.substr(key.find('.') + 1);
    return {row.type, key, own, own};
}

template <class T> bool holds(const Member& member) {
    return dynamic_cast<const Field<T>*>(&member) != nullptr ||
           dynamic_cast<const Derived<T>*>(&member) != nullptr;
}

/// The macro of `adapters/ScreenAdapter.h` that makes a property of a value, up to the property's name; empty
/// where pages have no form for it.
std::string valueMacro(const Member& member) {
    if (const ValueRow* listed = listedValue(member)) return "VALUES(" + std::string(listed->type) + ", ";
    if (holds<std::vector<RuleParagraph>>(member)) return "PARAGRAPHS(";
    if (holds<std::vector<std::string>>(member)) return "FIELD(QStringList, ";
    if (holds<std::optional<Day>>(member)) return "TEXT(";
    if (holds<std::optional<DocumentPicture>>(member)) return "FIELD(ombrivane::view::DocumentValue, ";
    const Json value = member.read();
    if (value.is_string()) return "TEXT(";
    if (value.is_boolean()) return "FLAG(";
    if (value.is_number_float()) return "FIELD(double, ";
    return value.is_number_integer() ? "FIELD(int, " : "";
}

std::string actionMacro(const Member& member) {
    if (dynamic_cast<const Action<>*>(&member) != nullptr) return "INTENT(";
    if (dynamic_cast<const Action<std::string>*>(&member) != nullptr) return "INPUT(";
    return dynamic_cast<const Action<double>*>(&member) != nullptr ? "AMOUNT(" : "";
}

std::string macroOf(const Member& member) {
    switch (member.kind()) {
    case MemberKind::rows:
        return "ROWS(";
    case MemberKind::action:
        return actionMacro(member);
    default:
        return valueMacro(member);
    }
}

std::string line(const std::string& macro) { return "    OMBRIVANE_" + macro + ")\n"; }

std::string text(const std::string& name, const std::set<std::string>& includes, const std::string& about,
                 const std::string& base, bool isExtended, const std::string& lines) {
    std::string header = "// Written by scripts/adapters: the keys that pages read.\n#pragma once\n\n";
    for (const auto& include : includes)
        header += "#include \"" + include + "\"\n";
    header += "\nnamespace ombrivane::view {\n\n/// " + about + "\n";
    header += "class " + name + " : public " + base + " {\n    Q_OBJECT\n";
    header += isExtended ? "    QML_ANONYMOUS\n"
                         : "    QML_ELEMENT\n    QML_UNCREATABLE(\"made by the component\")\n";
    return header + lines + "};\n\n} // namespace ombrivane::view\n";
}

} // namespace

AdapterWriter::AdapterWriter(const std::vector<CataloguedScreen>& screens,
                             const std::filesystem::path& pages) :
    screens_(byName(screens)), reads_(pages, typesOfParts(screens_)) {}

std::map<std::string, std::string> AdapterWriter::headers() const {
    std::map<std::string, std::string> headers;
    for (const auto& row : adapterRows()) {
        const std::string name(row.writtenClass());
        const std::string base(row.extended.empty() ? "ScreenAdapter" : row.extended);
        const Header written = adapter(row);
        headers[name + ".h"] =
            text(name,
                 written.includes,
                 "What pages read of `" + std::string(row.core) + "`.",
                 "ombrivane::view::" + base,
                 !row.written.empty(),
                 line("SCREEN(" + name + ", " + base + ", " + std::string(row.core)) + written.lines);
    }
    for (const auto& row : valueRows()) {
        const std::string name(row.writtenClass());
        const Header written = value(row);
        headers[name + ".h"] = text(name,
                                    written.includes,
                                    "What pages read of `" + std::string(row.core) + "`.",
                                    "QObject",
                                    !row.written.empty(),
                                    line("VALUE(" + name + ", " + std::string(row.core)) + written.lines);
    }
    return headers;
}

AdapterWriter::Header AdapterWriter::adapter(const AdapterRow& row) const {
    const auto [first, last] = screens_.equal_range(row.screenName());
    if (first == last) throw std::runtime_error("there is no screen " + std::string(row.screenName()));
    const Screen& screen = *first->second;
    Header header;
    const AdapterRow* base = rowOf(row.extended);
    header.includes.insert(base == nullptr ? "adapters/ScreenAdapter.h"
                                           : headerOf(base->type, base->written));
    header.includes.insert(std::string(row.header));
    if (base != nullptr) header.names = adapter(*base).names;
    for (const Member* member : screen.fields.members())
        addMember(header, row, *member, "");
    // What a model holds counts where the screen itself has nothing of that name.
    for (const Member* model : screen.fields.members()) {
        if (model->model() == nullptr) continue;
        for (const Member* member : model->model()->members())
            addMember(header, row, *member, std::string(model->key()));
    }
    // Which parts come and go is for a class by hand to say.
    if (row.written.empty()) {
        for (const Part* part : screen.parts())
            addPart(header, row, *part);
    }
    return header;
}

void AdapterWriter::addMember(Header& header, const AdapterRow& row, const Member& member,
                              const std::string& model) const {
    const std::string key = model + (model.empty() ? "" : ".") + std::string(member.key());
    const OtherName names = namesOf(row, key);
    const std::string name(names.inPages);
    const std::string place = model.empty() ? "" : std::string(namesOf(row, model).asMember) + ".";
    const std::string source = name + ", core()." + place + std::string(names.asMember);
    if (header.names.count(name) > 0) return;
    if (reads_.reads(row.type, name)) {
        const std::string macro = macroOf(member);
        if (macro.empty())
            throw std::runtime_error("pages have no form for " + key + " of " + std::string(row.core));
        header.names.insert(name);
        header.lines += line(macro + source);
        if (const ValueRow* listed = listedValue(member))
            header.includes.insert(headerOf(listed->type, listed->written));
        if (macro == "ROWS(") header.includes.insert("adapters/RowsModel.h");
        if (macro == "PARAGRAPHS(") header.includes.insert("adapters/ParagraphsModel.h");
    }
    if (member.kind() == MemberKind::action && reads_.reads(row.type, name + "Enabled"))
        header.lines += line("ENABLED(" + source);
}

void AdapterWriter::addPart(Header& header, const AdapterRow& row, const Part& part) const {
    const std::string key(part.key());
    const auto inner = part.screen();
    if (!inner || !reads_.reads(row.type, key)) return;
    const AdapterRow* shown = rowOf(*inner);
    if (shown == nullptr) throw std::runtime_error("no adapter shows " + std::string(inner->name()));
    header.includes.insert(headerOf(shown->type, shown->written));
    header.lines += line("PART(" + std::string(shown->type) + ", " + key + ", core()." + key);
}

AdapterWriter::Header AdapterWriter::value(const ValueRow& row) const {
    Header header;
    header.includes = {"adapters/Value.h", std::string(row.header)};
    for (const auto& entry : row.entries) {
        const std::string key(entry.key);
        if (!reads_.reads(row.type, key)) continue;
        switch (entry.kind) {
        case ValueEntry::Kind::text:
            header.lines += line("LINE(" + key);
            break;
        case ValueEntry::Kind::texts:
            header.lines += line("TEXTS(" + key);
            break;
        case ValueEntry::Kind::list:
            header.includes.insert(headerOf(entry.listed, ""));
            header.lines += line("LINES(" + std::string(entry.listed) + ", " + key);
            break;
        case ValueEntry::Kind::other:
            throw std::runtime_error("pages have no form for " + key + " of " + std::string(row.core));
        }
    }
    return header;
}

} // namespace ombrivane::journey
