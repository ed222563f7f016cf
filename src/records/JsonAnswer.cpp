#include "records/JsonAnswer.h"

#include "records/DecodeError.h"

#include <simdjson.h>

#include <algorithm>

namespace ombrivane {
namespace {

namespace lazy = simdjson::ondemand;

constexpr std::string_view space = " \t\n\r";

void require(simdjson::error_code code) {
    if (code != simdjson::SUCCESS) throw DecodeError(notUnderstood, simdjson::error_message(code));
}

/// The value between `start` and the mark that follows it, which is the last thing before `end`. What else
/// stands there is found when the value is parsed.
std::string_view valueBefore(const char* end, char mark, const char* start) {
    std::string_view text(start, static_cast<std::size_t>(end - start));
    text = text.substr(0, text.find_last_not_of(space) + 1);
    if (text.empty() || text.back() != mark) require(simdjson::TAPE_ERROR);
    return text.substr(0, text.size() - 1);
}

} // namespace

struct JsonAnswer::Parts {
    struct Member {
        std::string key;
        std::string_view json;
    };

    /// Shared with the raw data of elements; behind them stands the padding that parsers want.
    std::shared_ptr<char[]> bytes;
    std::size_t length = 0;
    std::vector<Member> members;
    std::optional<std::vector<std::string_view>> elements;
    /// Room for one element, the longest so far.
    std::string minified;
    simdjson::dom::parser parser;

    void findMembers(std::string_view listKey);
    simdjson::dom::element parse(std::string_view json);
};

namespace {

std::vector<const char*> startsOf(lazy::array array) {
    std::vector<const char*> starts;
    for (auto element : array) {
        require(element.error());
        starts.push_back(element.raw_json_token().value().data());
    }
    return starts;
}

/// @param end behind the array's last bracket
std::vector<std::string_view> elementsBetween(const std::vector<const char*>& starts, const char* end) {
    std::vector<std::string_view> elements;
    elements.reserve(starts.size());
    for (std::size_t i = 0; i + 1 < starts.size(); ++i)
        elements.push_back(valueBefore(starts[i + 1], ',', starts[i]));
    if (!starts.empty()) elements.push_back(valueBefore(end, ']', starts.back()));
    return elements;
}

} // namespace

// By a parser that only steps over values and knows where each one starts. One ends where the next key
// starts.
void JsonAnswer::Parts::findMembers(std::string_view listKey) {
    lazy::parser stepping;
    lazy::document document;
    require(stepping.iterate(bytes.get(), length, length + simdjson::SIMDJSON_PADDING).get(document));
    lazy::object object;
    require(document.get_object().get(object));
    const auto endLast = [this](const char* next, char mark) {
        if (!members.empty()) members.back().json = valueBefore(next, mark, members.back().json.data());
    };
    std::optional<std::size_t> list;
    std::vector<const char*> starts;
    for (auto member : object) {
        require(member.error());
        endLast(member.key().value().raw() - 1, ',');
        std::string_view key;
        require(member.unescaped_key().get(key));
        lazy::value value;
        require(member.value().get(value));
        members.push_back({std::string(key), value.raw_json_token()});
        if (list || key != listKey) continue;
        list = members.size() - 1;
        if (members.back().json.front() == '[') starts = startsOf(value.get_array().value());
    }
    endLast(bytes.get() + length, '}');
    if (!list) return;
    const std::string_view json = members[*list].json;
    if (json.front() == '[') elements = elementsBetween(starts, json.data() + json.size());
}

simdjson::dom::element JsonAnswer::Parts::parse(std::string_view json) {
    simdjson::dom::element element;
    // What follows in the answer serves as padding.
    require(parser.parse(json.data(), json.size(), false).get(element));
    return element;
}

JsonAnswer::JsonAnswer(const std::string& bytes, std::string_view listKey) :
    parts_(std::make_unique<Parts>()) {
    parts_->length = bytes.size();
    parts_->bytes = std::make_shared_for_overwrite<char[]>(bytes.size() + simdjson::SIMDJSON_PADDING);
    bytes.copy(parts_->bytes.get(), bytes.size());
    parts_->findMembers(listKey);
    for (const auto& member : parts_->members) {
        if (!parts_->elements || member.key != listKey) parts_->parse(member.json);
    }
}

JsonAnswer::~JsonAnswer() = default;

simdjson::dom::element JsonAnswer::value(std::string_view key) const {
    for (const auto& member : parts_->members) {
        if (member.key == key) return parts_->parse(member.json);
    }
    DecodeError error(notUnderstood, "is missing");
    error.within(key);
    throw error;
}

const std::optional<std::vector<std::string_view>>& JsonAnswer::elements() const { return parts_->elements; }

simdjson::dom::element JsonAnswer::parsed(std::string_view element) const { return parts_->parse(element); }

RawData JsonAnswer::rawData(std::string_view element) const {
    std::string& minified = parts_->minified;
    minified.resize(std::max(minified.size(), element.size() + simdjson::SIMDJSON_PADDING));
    std::size_t length = 0;
    require(simdjson::minify(element.data(), element.size(), minified.data(), length));
    if (length < element.size()) {
        // What is left over becomes white space, so that it is still the same JSON.
        char* const start = parts_->bytes.get() + (element.data() - parts_->bytes.get());
        std::fill(std::copy_n(minified.data(), length, start), start + element.size(), ' ');
    }
    return {parts_->bytes, element.substr(0, length)};
}

} // namespace ombrivane
