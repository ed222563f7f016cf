#include "records/Scalars.h"
#include "records/Decoder.h"
#include "records/Encode.h"
#include "records/Hash.h"

#include <gtest/gtest.h>

namespace ombrivane {
namespace {

/// The value read from `json` and written again, or why it was not read.
template <class T> std::string rewritten(const std::string& json) {
    simdjson::dom::parser parser;
    DecodeRoom room;
    T value{};
    try {
        Decoder<T>::decode(parser.parse(json), value, room);
    } catch (const DecodeError& error) {
        return error.error().localizedDescription;
    }
    return Encoder<T>::encode(value).dump();
}

TEST(ScalarsTest, KeepTheJsonTypeThatArrived) {
    const std::string weight = "Wrong type for Weight";
    const std::string free = "Wrong type for FreeBaggage";
    const std::string time = "Wrong type for ConnectionTime";
    const struct {
        const char* json;
        std::string asWeight, asFreeBaggage, asConnectionTime;
    } rows[] = {
        {"7", "7", "7", time},
        {"-7", "-7", "-7", time},
        {"7.0", "7", "7", time},
        {"7.5", weight, free, time},
        {"9223372036854775807", "9223372036854775807", "9223372036854775807", time},
        {"9223372036854775808", weight, free, time},
        {"\"7\"", "\"7\"", "\"7\"", "\"7\""},
        {"\"\"", "\"\"", "\"\"", "\"\""},
        {"\"true\"", "\"true\"", "\"true\"", "\"true\""},
        {"true", weight, free, "true"},
        {"false", weight, free, "false"},
        {"null", weight, free, time},
        {"{}", weight, free, time},
        {"[7]", weight, free, time},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(rewritten<Weight>(row.json), row.asWeight) << row.json;
        EXPECT_EQ(rewritten<FreeBaggage>(row.json), row.asFreeBaggage) << row.json;
        EXPECT_EQ(rewritten<ConnectionTime>(row.json), row.asConnectionTime) << row.json;
    }
}

TEST(ScalarsTest, CompareTheCaseBeforeThePayload) {
    EXPECT_NE(Weight::integer(7), Weight::string("7"));
    EXPECT_EQ(Weight::string("7"), Weight::string("7"));
    EXPECT_NE(FreeBaggage::integer(0), FreeBaggage::string(""));
    EXPECT_NE(ConnectionTime::bool_(false), ConnectionTime::string("false"));
    EXPECT_NE(std::hash<Weight>{}(Weight::integer(7)), std::hash<Weight>{}(Weight::string("7")));
}

TEST(ScalarsTest, ShowTheirPayloadWithoutMarks) {
    const std::pair<Weight, const char*> weights[] = {
        {Weight::integer(7), "7 Kg"},
        {Weight::integer(-3), "-3 Kg"},
        {Weight::string("20"), "20 Kg"},
        {Weight::string("20 Kg"), "20 Kg Kg"},
        {Weight::string("20 (2 pieces)"), "20 (2 pieces Kg"},
        {Weight::string("\"20\""), "20 Kg"},
        {Weight::string("integer(20"), "20 Kg"},
        {Weight::string("bool("), "bool( Kg"},
        {Weight::string(""), " Kg"},
        // Marks go in turn: what the first leaves behind may be a mark of the second, not the other way
        // round.
        {Weight::string("strinteger(ing(5"), "5 Kg"},
        {Weight::string("intestring(ger(5"), "integer(5 Kg"},
    };
    for (const auto& [weight, text] : weights)
        EXPECT_EQ(displayForm(weight), text);

    const std::pair<ConnectionTime, const char*> times[] = {
        {ConnectionTime::bool_(false), "false"},
        {ConnectionTime::bool_(true), "true"},
        {ConnectionTime::string("2h 5m"), "2h 5m"},
        {ConnectionTime::string("false"), "false"},
        {ConnectionTime::string("integer(2)"), "integer(2"},
    };
    for (const auto& [time, text] : times)
        EXPECT_EQ(displayForm(time), text);
}

} // namespace
} // namespace ombrivane
