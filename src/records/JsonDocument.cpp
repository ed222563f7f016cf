#include "records/JsonDocument.h"

#include "records/DecodeError.h"

#include <simdjson.h>

namespace ombrivane {

struct JsonDocument::Parsed {
    simdjson::dom::parser parser;
    simdjson::dom::element root;
};

JsonDocument::JsonDocument(const std::string& bytes) : parsed_(std::make_unique<Parsed>()) {
    const auto failure = parsed_->parser.parse(bytes).get(parsed_->root);
    if (failure != simdjson::SUCCESS) throw DecodeError(notUnderstood, simdjson::error_message(failure));
}

JsonDocument::~JsonDocument() = default;

const simdjson::dom::element& JsonDocument::root() const { return parsed_->root; }

} // namespace ombrivane
