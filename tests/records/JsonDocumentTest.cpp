#include "records/JsonDocument.h"
#include "records/DecodeError.h"

#include <gtest/gtest.h>

namespace ombrivane {
namespace {

std::string nested(std::size_t levels) { return std::string(levels, '[') + std::string(levels, ']'); }

TEST(JsonDocumentTest, TakesNothingButJson) {
    const std::string taken[] = {"{}", " [ 1 , 2 ] ", "7", "null", R"("\ud83d\ude00")", nested(1000)};
    for (const auto& json : taken)
        EXPECT_NO_THROW(JsonDocument{json}) << json.substr(0, 40);

    const std::string refused[] = {"",
                                   " ",
                                   "{",
                                   "{}{}",
                                   "{} x",
                                   "[1,]",
                                   "{\"a\":1,}",
                                   "{'a':1}",
                                   "[1 2]",
                                   "{\"success\": t rue}",
                                   "- 7",
                                   "1 .5",
                                   "07",
                                   "NaN",
                                   "\"a\nb\"",
                                   "\"\\x\"",
                                   "\"\\ud800\"",
                                   "\"\\udc00\"",
                                   "\"\xff\"",
                                   "\"\xed\xa0\x80\"",
                                   "1e999",
                                   std::string("{\"a\":\0}", 7),
                                   nested(1025)};
    for (const auto& json : refused)
        EXPECT_THROW(JsonDocument{json}, DecodeError) << json.substr(0, 40);
}

TEST(JsonDocumentTest, SlicesElementsByteForByte) {
    using Slices = std::vector<std::string>;
    const std::pair<const char*, Slices> rows[] = {
        {R"( { "data" : [ { "b" : 1.50e3 , "a" : [ ] } , 7 ] } )", {R"({"b":1.50e3,"a":[]})", "7"}},
        {R"({"data":["a, ] } \" \\", "\\\\"]})", {R"("a, ] } \" \\")", R"("\\\\")"}},
        {R"({"x":{"data":[1]},"y":["data"],"data":[2]})", {"2"}},
        {R"({"\"data":[1],"data":[2]})", {"2"}},
        {R"({"d\u0061ta":[{"a":"\u0061"},true]})", {R"({"a":"\u0061"})", "true"}},
        {R"({"data":[1],"data":[2]})", {"1"}},
        {R"({"data":[]})", {}},
        {R"({"data":{"a":[1]}})", {}},
        {R"({"other":[1]})", {}},
        {R"([["data"],[1]])", {}},
        {"7", {}},
    };
    for (const auto& [json, slices] : rows) {
        const JsonDocument document{std::string(json)};
        const auto found = document.elementBytes("data");
        EXPECT_EQ(Slices(found.begin(), found.end()), slices) << json;
    }
}

TEST(JsonDocumentTest, SlicesOutliveTheDocumentThroughItsOwner) {
    auto document = std::make_unique<JsonDocument>(R"({"data": [{"a": 1}]})");
    const auto slice = document->elementBytes("data").at(0);
    const auto owner = document->owner();
    document.reset();
    EXPECT_EQ(slice, R"({"a":1})");
}

} // namespace
} // namespace ombrivane
