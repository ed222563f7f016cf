#include "records/JsonDocument.h"

#include "records/DecodeError.h"

#include <simdjson.h>

#include <cstring>

namespace ombrivane {
namespace {

[[noreturn]] void failParsing(simdjson::error_code failure) {
    throw DecodeError(notUnderstood, simdjson::error_message(failure));
}

/// Walks over JSON that is known to be valid and minified, one value at a time.
class Cursor {
public:
    explicit Cursor(std::string_view json) : at_(json.data()), end_(json.data() + json.size()) {}

    bool take(char character) {
        if (at_ == end_ || *at_ != character) return false;
        ++at_;
        return true;
    }

    /// The bytes of the next value, which is passed over.
    std::string_view value() {
        const char* start = at_;
        std::size_t depth = 0;
        do {
            switch (*at_) {
            case '"':
                skipString();
                break;
            case '{':
            case '[':
                ++depth, ++at_;
                break;
            case '}':
            case ']':
                --depth, ++at_;
                break;
            case ',':
            case ':':
                ++at_;
                break;
            default:
                skipWord();
            }
        } while (depth > 0);
        return {start, static_cast<std::size_t>(at_ - start)};
    }

    /// The bytes of each element of the array that comes next; none when another value comes.
    std::vector<std::string_view> elements() {
        std::vector<std::string_view> slices;
        if (!take('[')) return slices;
        while (!take(']')) {
            slices.push_back(value());
            take(',');
        }
        return slices;
    }

private:
    void skipString() {
        for (++at_;; ++at_) {
            at_ = static_cast<const char*>(std::memchr(at_, '"', static_cast<std::size_t>(end_ - at_)));
            const char* escape = at_;
            while (*(escape - 1) == '\\')
                --escape;
            if ((at_ - escape) % 2 == 0) break;
        }
        ++at_;
    }

    /// A number, true, false or null.
    void skipWord() {
        while (at_ != end_ && std::strchr(",]}", *at_) == nullptr)
            ++at_;
    }

    const char* at_;
    const char* end_;
};

} // namespace

struct JsonDocument::Parsed {
    std::shared_ptr<char[]> bytes;
    std::size_t length = 0;
    simdjson::dom::parser parser;
    simdjson::dom::element root;
};

JsonDocument::JsonDocument(const std::string& bytes) : parsed_(std::make_unique<Parsed>()) {
    auto& parsed = *parsed_;
    // Checked as it came: without its white space "1 2" would be a number.
    const auto failure = parsed.parser.parse(bytes).get(parsed.root);
    if (failure != simdjson::SUCCESS) failParsing(failure);
    parsed.bytes = std::make_shared_for_overwrite<char[]>(bytes.size() + simdjson::SIMDJSON_PADDING);
    const auto minified = simdjson::minify(bytes.data(), bytes.size(), parsed.bytes.get(), parsed.length);
    if (minified != simdjson::SUCCESS) failParsing(minified);
}

JsonDocument::~JsonDocument() = default;

const simdjson::dom::element& JsonDocument::root() const { return parsed_->root; }

std::shared_ptr<const void> JsonDocument::owner() const { return parsed_->bytes; }

std::vector<std::string_view> JsonDocument::elementBytes(std::string_view key) const {
    simdjson::dom::object object;
    if (parsed_->root.get(object) != simdjson::SUCCESS) return {};
    Cursor cursor({parsed_->bytes.get(), parsed_->length});
    cursor.take('{');
    // The parser says which member it is: in the bytes its key may be written with escapes.
    for (const auto member : object) {
        cursor.value();
        cursor.take(':');
        if (member.key == key) return cursor.elements();
        cursor.value();
        cursor.take(',');
    }
    return {};
}

} // namespace ombrivane
