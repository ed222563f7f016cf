#pragma once

#include "base/Json.h"

#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace ombrivane::fakes {

/// A captured answer of the service, kept under tests/data/records without its extension.
inline Json captured(const std::string& name) {
    std::ifstream file(std::string(OMBRIVANE_TEST_DATA) + "/records/" + name + ".json");
    if (!file) throw std::runtime_error("no captured answer " + name);
    return Json::parse(file);
}

namespace detail {

inline void collect(const Json& value, const Json::json_pointer& at, const std::string& shape,
                    std::set<std::string>& seen, std::vector<Json::json_pointer>& places) {
    if (!shape.empty() && seen.insert(shape).second) places.push_back(at);
    if (value.is_object()) {
        for (const auto& [key, member] : value.items())
            collect(member, at / key, shape + "/" + key, seen, places);
    } else if (value.is_array()) {
        for (std::size_t i = 0; i < value.size(); ++i)
            collect(value[i], at / i, shape + "/*", seen, places);
    }
}

} // namespace detail

/// Every place below `root`, the elements of one array taken alike: the first of each shape stands for all.
inline std::vector<Json::json_pointer> distinctPlaces(const Json& root) {
    std::set<std::string> seen;
    std::vector<Json::json_pointer> places;
    detail::collect(root, Json::json_pointer(), "", seen, places);
    return places;
}

} // namespace ombrivane::fakes
