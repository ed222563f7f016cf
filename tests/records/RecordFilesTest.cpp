#include "fakes/TestData.h"
#include "records/DecodeError.h"
#include "records/RecordKind.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

namespace ombrivane {
namespace {

using fakes::distinctPlaces;
using Place = Json::json_pointer;

class RecordFilesTest : public testing::TestWithParam<RecordKind> {
protected:
    /// The sample with the most in it.
    const Json full = GetParam().samples().front();

    bool isOptional(const Place& place) const { return std::regex_match(place.to_string(), optional_); }

    std::optional<Error> failure(const Json& record) const {
        try {
            GetParam().recoded(record.dump());
            return std::nullopt;
        } catch (const DecodeError& error) {
            return error.error();
        }
    }

private:
    const std::regex optional_{GetParam().optional};
};

/// "/segments/0/rph" as "segments[0].rph".
std::string pathOf(const Place& place) {
    static const std::regex position("/([0-9]+)");
    std::string text = std::regex_replace(place.to_string(), position, "[$1]").substr(1);
    std::replace(text.begin(), text.end(), '/', '.');
    return text;
}

std::string firstDifference(const std::string& expected, const std::string& actual) {
    std::istringstream left(expected);
    std::istringstream right(actual);
    std::string wanted;
    std::string got;
    for (int line = 1;; ++line) {
        const bool more = static_cast<bool>(std::getline(left, wanted));
        const bool moreGot = static_cast<bool>(std::getline(right, got));
        if (more != moreGot || wanted != got) {
            return "line " + std::to_string(line) + "\n  expected " + wanted + "\n  actual   " + got;
        }
        if (!more) return "";
    }
}

TEST_P(RecordFilesTest, EncodesWhatItDecodedInTheOrderOfItsTable) {
    Json encoded = Json::array();
    for (const Json& sample : GetParam().samples())
        encoded.push_back(GetParam().recoded(sample.dump()));

    const std::string name = GetParam().file;
    const std::string expected = fakes::captured(name + ".expected").dump(1);
    if (encoded.dump(1) == expected) return;
    const auto beside = std::filesystem::path(OMBRIVANE_TEST_DATA) / "records" / (name + ".actual.json");
    std::ofstream(beside) << encoded.dump(1) << '\n';
    ADD_FAILURE() << "see " << beside << "; first difference in "
                  << firstDifference(expected, encoded.dump(1));
}

TEST_P(RecordFilesTest, NamesEveryRequiredKeyThatIsMissingOrNull) {
    for (const Place& place : distinctPlaces(full)) {
        const bool isElement = full.at(place.parent_pointer()).is_array();
        Json changed = full;
        changed[place] = nullptr;
        const auto null = failure(changed);
        if (!isElement) changed[place.parent_pointer()].erase(place.back());
        const auto missing = isElement ? std::nullopt : failure(changed);
        if (isOptional(place)) {
            EXPECT_FALSE(missing) << place;
            // An element of an optional array is no optional key.
            EXPECT_TRUE(isElement || !null) << place;
            continue;
        }
        if (!isElement) {
            ASSERT_TRUE(missing) << place;
            EXPECT_EQ(missing->developerDescription, pathOf(place) + ": is missing");
        }
        ASSERT_TRUE(null) << place;
        EXPECT_TRUE(null->developerDescription.starts_with(pathOf(place) + ": "))
            << null->developerDescription;
    }
}

/// What a key takes besides what it holds here, or in its place.
struct Tolerance {
    std::regex keys;
    std::string failure;
    std::vector<Json> takes;
};

const Tolerance* toleranceOf(const Place& place) {
    static const std::string general = "The service's answer could not be understood.";
    static const std::vector<Tolerance> tolerances{
        {std::regex("(/baggage_details.*)/(cabin|baggage)"), "Wrong type for Weight", {7, 7.0, "7"}},
        {std::regex(".*/FreeBaggage"), "Wrong type for FreeBaggage", {7, 7.0, "7"}},
        {std::regex(".*/(seg_)?connection_time"), "Wrong type for ConnectionTime", {"7", true}},
        {std::regex(".*/cashBack"), general, {7, 7.0, 1234.5}},
        {std::regex("/id"), general, {}},
    };
    for (const Tolerance& tolerance : tolerances) {
        if (std::regex_match(place.to_string(), tolerance.keys)) return &tolerance;
    }
    return nullptr;
}

bool isOneOf(const std::vector<Json>& values, const Json& value) {
    return std::any_of(values.begin(), values.end(), [&](const Json& each) {
        return each.type() == value.type() && each == value;
    });
}

TEST_P(RecordFilesTest, ConvertsNothing) {
    static const std::vector<Json> candidates{7, 7.0, 1234.5, "7", true, Json::object(), Json::array()};
    const Json known = GetParam().recoded(full.dump());
    Json changed = full;
    for (const Place& place : distinctPlaces(full)) {
        const Json& original = full.at(place);
        if (!known.contains(place)) continue; // no field reads it
        const Tolerance* tolerance =
            original.is_number() && place.back() == "id" ? nullptr : toleranceOf(place);
        for (const Json& candidate : candidates) {
            if (original.is_object() && candidate.is_object()) continue;
            changed[place] = candidate;
            const bool sameType =
                candidate.type() == original.type() ||
                (original.is_number_integer() && candidate == Json(7.0) && candidate.is_number());
            const bool accepted = tolerance ? isOneOf(tolerance->takes, candidate) : sameType;
            const auto failed = failure(changed);
            changed[place] = original;
            EXPECT_EQ(!failed, accepted) << place << " = " << candidate;
            if (!failed) continue;
            EXPECT_TRUE(failed->developerDescription.starts_with(pathOf(place) + ": "))
                << failed->developerDescription;
            if (tolerance != nullptr) {
                EXPECT_EQ(failed->localizedDescription, tolerance->failure);
            }
        }
    }
}

TEST_P(RecordFilesTest, ComparesAndHashesEveryField) {
    const std::string original = full.dump();
    EXPECT_TRUE(GetParam().alike(original, original));
    const Json known = GetParam().recoded(original);
    for (const Place& place : distinctPlaces(known)) {
        if (known.at(place).is_structured()) continue;
        Json changed = known;
        Json& value = changed[place];
        if (value.is_string()) {
            std::string text = value.get<std::string>();
            if (text.empty()) text = "-";
            text[0] = text[0] == '7' ? '8' : '7';
            value = text;
        } else if (value.is_boolean()) {
            value = !value.get<bool>();
        } else {
            value = value.get<int>() + 1;
        }
        EXPECT_FALSE(GetParam().alike(original, changed.dump())) << place;
    }
}

INSTANTIATE_TEST_SUITE_P(Records, RecordFilesTest, testing::ValuesIn(recordKinds()), [](const auto& kind) {
    std::string name = kind.param.file;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
});

} // namespace
} // namespace ombrivane
