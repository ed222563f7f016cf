#include "records/JsonAnswer.h"

#include "records/DecodeError.h"
#include "records/JsonParser.h"
#include "records/JsonScanner.h"

#include <simdjson.h>

#include <utility>

namespace ombrivane {
namespace {

constexpr std::string_view byteOrderMark = "\xef\xbb\xbf";

/// Passes over the array that comes next.
JsonAnswer::Elements readElements(JsonScanner& scanner) {
    JsonAnswer::Elements elements;
    scanner.elements([&](std::string_view element) {
        DecodeRoom::checkCount(elements.size() + 1);
        elements.push_back(element);
    });
    return elements;
}

/// A failure inside of `function` names `key` as well.
template <class Function> void within(std::string_view key, Function function) {
    try {
        function();
    } catch (DecodeError& error) {
        error.within(key);
        throw;
    }
}

} // namespace

struct JsonAnswer::Parts {
    struct Member {
        std::string key;
        std::string_view json;
    };

    Parts(std::string text, std::string_view list, std::size_t limit) :
        bytes(std::make_shared<const std::string>(std::move(text))), room(limit), listKey(list) {}

    /// Shared with the raw data of elements.
    std::shared_ptr<const std::string> bytes;
    DecodeRoom room;
    JsonParser parser{room};
    std::vector<Member> members;
    std::string listKey;
    std::optional<Elements> elements;
    bool elementsAreRead = false;

    simdjson::dom::element parse(std::string_view json) {
        const char* const end = bytes->data() + bytes->size();
        return parser.parse(json, static_cast<std::size_t>(end - json.data()));
    }

    std::string keyOf(std::string_view json) {
        std::string_view text;
        if (parse(json).get(text) != simdjson::SUCCESS) throw DecodeError("is no JSON");
        room.takeText(text.size());
        return std::string(text);
    }

    void read();
};

void JsonAnswer::Parts::read() {
    std::string_view text = *bytes;
    if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
    JsonScanner scanner(text);
    bool listIsFound = false;
    scanner.members([&](std::string_view keyJson) {
        DecodeRoom::checkCount(members.size() + 1);
        Member& member = members.emplace_back();
        member.key = keyOf(keyJson);
        within(member.key, [&] {
            const bool isList = member.key == listKey && !std::exchange(listIsFound, true);
            if (isList && scanner.isAt('[')) {
                const char* const begin = scanner.position();
                elements = readElements(scanner);
                member.json = {begin, static_cast<std::size_t>(scanner.position() - begin)};
            } else {
                member.json = scanner.value();
                parse(member.json);
            }
        });
    });
    scanner.expectEnd();
}

JsonAnswer::JsonAnswer(std::string bytes, std::string_view listKey, std::size_t room) :
    parts_(std::make_unique<Parts>(std::move(bytes), listKey, room)) {
    parts_->read();
}

JsonAnswer::~JsonAnswer() = default;

simdjson::dom::element JsonAnswer::value(std::string_view key) const {
    for (const auto& member : parts_->members) {
        if (member.key != key) continue;
        simdjson::dom::element value;
        within(key, [&] { value = parts_->parse(member.json); });
        return value;
    }
    DecodeError error("is missing");
    error.within(key);
    throw error;
}

const std::optional<JsonAnswer::Elements>& JsonAnswer::elements() const {
    parts_->elementsAreRead = true;
    return parts_->elements;
}

void JsonAnswer::checkUnread() const {
    if (parts_->elementsAreRead || !parts_->elements) return;
    within(parts_->listKey, [this] {
        for (const std::string_view element : *parts_->elements)
            parts_->parse(element);
    });
}

JsonAnswer::Elements JsonAnswer::elementsOf(std::string_view element) const {
    JsonScanner scanner(element);
    if (!scanner.isAt('[')) throw DecodeError("wants an array");
    Elements elements = readElements(scanner);
    scanner.expectEnd();
    return elements;
}

simdjson::dom::element JsonAnswer::parsed(std::string_view element) const { return parts_->parse(element); }

RawData JsonAnswer::rawData(std::string_view element) const { return {parts_->bytes, element}; }

DecodeRoom& JsonAnswer::room() const { return parts_->room; }

} // namespace ombrivane
