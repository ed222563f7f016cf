#include "services/JsonSpans.h"

namespace ombrivane {

std::size_t JsonSpans::afterString(std::size_t at) const {
    for (++at; json_[at] != '"'; ++at) {
        if (json_[at] == '\\') ++at;
    }
    return at + 1;
}

std::size_t JsonSpans::value(std::size_t keyBegin, std::size_t begin, const std::string& shape) {
    const bool isNew = shapes_.insert(shape).second;
    const std::size_t index = spans_.size();
    if (isNew) spans_.push_back({keyBegin, begin, begin});
    std::size_t at = begin;
    if (json_[at] == '"') {
        at = afterString(at);
    } else if (json_[at] == '{' || json_[at] == '[') {
        const bool isObject = json_[at] == '{';
        while (json_[at] != '}' && json_[at] != ']') {
            ++at;
            if (json_[at] == '}' || json_[at] == ']') break;
            const std::size_t key = at;
            if (isObject) at = afterString(at) + 1;
            at = value(key, at, shape + "/" + (isObject ? json_.substr(key, at - key) : "*"));
        }
        ++at;
    } else {
        at = json_.find_first_of(",]}", at);
    }
    if (isNew) spans_[index].end = at;
    return at;
}

} // namespace ombrivane
