#include "records/RawData.h"

#include <simdjson.h>

namespace ombrivane {

std::string RawData::minified() const {
    std::string text(bytes_.size() + simdjson::SIMDJSON_PADDING, '\0');
    std::size_t length = 0;
    const bool isJson =
        simdjson::minify(bytes_.data(), bytes_.size(), text.data(), length) == simdjson::SUCCESS;
    text.resize(isJson ? length : 0);
    return text;
}

} // namespace ombrivane
