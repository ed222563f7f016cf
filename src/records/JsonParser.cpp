#include "records/JsonParser.h"

#include "records/DecodeError.h"

#include <simdjson.h>

#include <algorithm>
#include <cctype>

namespace ombrivane {
namespace {

/// The parser's own index, tree and texts (14), a copy of the text, and its form without white space.
constexpr std::size_t bytesPerByte = 20;
/// As short as the shortest number that is huge, and what nobody takes for anything that he wants to read: no
/// field is a list of lists.
constexpr std::string_view unreadable = "[[]]";

bool isDigit(char character) { return character >= '0' && character <= '9'; }

/// The end of the number that begins at `begin`, by the grammar of JSON; `begin` when there is none.
std::size_t endOfNumber(std::string_view text, std::size_t begin) {
    std::size_t at = begin;
    const auto is = [&](std::string_view marks) {
        return at < text.size() && marks.find(text[at]) != std::string_view::npos;
    };
    const auto digits = [&] {
        const std::size_t first = at;
        while (at < text.size() && isDigit(text[at]))
            ++at;
        return at > first;
    };
    if (is("-")) ++at;
    if (is("0")) {
        ++at;
    } else if (!digits()) {
        return begin;
    }
    if (is(".")) {
        ++at;
        if (!digits()) return begin;
    }
    if (is("eE")) {
        ++at;
        if (is("+-")) ++at;
        if (!digits()) return begin;
    }
    return at == text.size() || is(" \t\n\r,]}") ? at : begin;
}

/// Whether a number has to be looked at: all others fit.
bool mayBeHuge(std::string_view number) {
    constexpr std::size_t surelyFit = 18;
    return number.size() > surelyFit || number.find_first_of("eE") != std::string_view::npos;
}

/// Later versions of the parser tell integers beyond 64 bits by an error of their own.
template <class Code> bool isOfANumber(Code code) {
    if constexpr (requires { Code::BIGINT_ERROR; }) {
        return code == Code::NUMBER_ERROR || code == Code::BIGINT_ERROR;
    } else {
        return code == Code::NUMBER_ERROR;
    }
}

/// The parser's implementations are made before `main`, ahead of everything that is registered for the end of
/// the process, and so outlive the threads of the network, which is joined there.
[[maybe_unused]] const std::string chosenImplementation = simdjson::get_active_implementation()->name();

} // namespace

struct JsonParser::Parser {
    simdjson::dom::parser parser;

    simdjson::error_code parse(std::string_view json, simdjson::dom::element& value) {
        return parser.parse(json.data(), json.size(), false).get(value);
    }
};

JsonParser::JsonParser(DecodeRoom& room) : room_(room) {}

JsonParser::~JsonParser() = default;

void JsonParser::reserve(std::size_t length) {
    constexpr std::size_t least = 4096;
    if (parser_ && length <= capacity_) return;
    // A little more, since the next one is often a little longer.
    const std::size_t capacity = std::max(least, length + length / 4);
    room_.take((capacity - capacity_) * bytesPerByte);
    capacity_ = capacity;
    // What the old one holds goes before the new one takes its own.
    parser_.reset();
    parser_ = std::make_unique<Parser>();
    if (parser_->parser.allocate(capacity) != simdjson::SUCCESS ||
        parser_->parser.doc.allocate(capacity) != simdjson::SUCCESS) {
        throw std::bad_alloc();
    }
}

simdjson::dom::element JsonParser::parse(std::string_view json, std::size_t readable) {
    reserve(json.size());
    const auto copied = [&] {
        copy_.reserve(json.size() + simdjson::SIMDJSON_PADDING);
        copy_.assign(json).append(simdjson::SIMDJSON_PADDING, ' ');
        return std::string_view(copy_).substr(0, json.size());
    };
    const bool isPadded = readable >= json.size() + simdjson::SIMDJSON_PADDING;
    simdjson::dom::element value;
    auto failure = parser_->parse(isPadded ? json : copied(), value);
    if (isOfANumber(failure)) {
        const std::string_view copy = copied();
        maskHugeNumbers(copy.size());
        failure = parser_->parse(copy, value);
    }
    if (failure != simdjson::SUCCESS) throw DecodeError(simdjson::error_message(failure));
    return value;
}

simdjson::dom::element JsonParser::parse(std::string_view json) { return parse(json, json.size()); }

void JsonParser::maskHugeNumbers(std::size_t length) {
    const std::string_view text = std::string_view(copy_).substr(0, length);
    simdjson::dom::element value;
    for (std::size_t at = 0; at < length; ++at) {
        if (text[at] == '"') {
            do {
                at += text[at] == '\\' ? 2 : 1;
            } while (at < length && text[at] != '"');
        } else if (isDigit(text[at]) || text[at] == '-') {
            const std::size_t end = endOfNumber(text, at);
            const std::string_view number = text.substr(at, end - at);
            if (end > at && mayBeHuge(number) && isOfANumber(parser_->parse(number, value))) {
                std::fill(copy_.begin() + static_cast<std::ptrdiff_t>(at),
                          copy_.begin() + static_cast<std::ptrdiff_t>(end),
                          ' ');
                copy_.replace(at, unreadable.size(), unreadable);
            }
            // Up to the end of whatever it is; what is no number is found by the parser.
            at = std::min(text.find_first_of(" \t\n\r,]}\"", at), length) - 1;
        }
    }
}

} // namespace ombrivane
