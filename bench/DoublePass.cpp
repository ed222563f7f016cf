#include "DoublePass.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace ombrivane::bench {
namespace {

using Tree = nlohmann::json;

void read(const Tree& json, std::string& value) { value = json.get_ref<const std::string&>(); }
void read(const Tree& json, std::int64_t& value) { value = json.get<std::int64_t>(); }
void read(const Tree& json, double& value) { value = json.get<double>(); }

template <TaggedScalar Value> void read(const Tree& json, Value& value) {
    if (json.is_string()) {
        value.payload = json.get_ref<const std::string&>();
    } else {
        value.payload = json.get<std::variant_alternative_t<0, typename Value::Payload>>();
    }
}

template <WireRecord Record> void read(const Tree& json, Record& record);
template <class Value> void read(const Tree& json, Boxed<Value>& value);
template <class Value> void read(const Tree& json, std::vector<Value>& values);

template <class Value> void read(const Tree& json, std::optional<Value>& value) {
    if (!json.is_null()) read(json, value.emplace());
}

template <class Value> void read(const Tree& json, Boxed<Value>& value) {
    if (!json.is_null()) read(json, value.emplace());
}

template <class Value> void read(const Tree& json, std::vector<Value>& values) {
    values.reserve(json.size());
    for (const Tree& element : json)
        read(element, values.emplace_back());
}

template <class Value> constexpr bool isOptional = false;
template <class Value> constexpr bool isOptional<std::optional<Value>> = true;
template <class Value> constexpr bool isOptional<Boxed<Value>> = true;

template <WireRecord Record> void read(const Tree& json, Record& record) {
    forEachField(record, [&json](std::string_view key, auto& value) {
        const auto found = json.find(key);
        if (found != json.end()) {
            read(*found, value);
        } else if constexpr (!isOptional<std::decay_t<decltype(value)>>) {
            throw std::runtime_error("a key is missing");
        }
    });
}

} // namespace

OneWayOffers doublePass(const std::string& answer) {
    const Tree tree = Tree::parse(answer);
    OneWayOffers offers;
    for (const Tree& element : tree.at("data")) {
        auto bytes = std::make_shared<const std::string>(element.dump());
        auto offer = std::make_shared<FlightSearchOneWay>();
        read(Tree::parse(*bytes), *offer);
        offer->rawData = RawData(bytes, *bytes);
        offers.push_back(std::move(offer));
    }
    std::stable_sort(offers.begin(), offers.end(), [](const OneWayOffer& one, const OneWayOffer& other) {
        return one->fareInformation.totalCost < other->fareInformation.totalCost;
    });
    return offers;
}

} // namespace ombrivane::bench
