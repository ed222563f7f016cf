#include "records/JsonDocument.h"
#include "records/DecodeError.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace ombrivane {
namespace {

std::string nested(std::size_t levels) { return std::string(levels, '[') + std::string(levels, ']'); }

TEST(JsonDocumentTest, TakesNothingButJson) {
    const std::string taken[] = {"{}",
                                 " [ 1 , 2 ] ",
                                 "7",
                                 "null",
                                 R"("\ud83d\ude00")",
                                 nested(1000),
                                 "1e999",
                                 "[-1E+400,99999999999999999999]",
                                 R"({"1e999":"\"1e999"})"};
    for (const auto& json : taken)
        EXPECT_NO_THROW(JsonDocument{json}) << json.substr(0, 40);

    const std::string refused[] = {
        "",          " ",           "{",           "{}{}",      "{} x",
        "[1,]",      "{\"a\":1,}",  "{'a':1}",     "[1 2]",     "{\"success\": t rue}",
        "- 7",       "1 .5",        "07",          "NaN",       "\"a\nb\"",
        "\"\\x\"",   "\"\\ud800\"", "\"\\udc00\"", "\"\xff\"",  "\"\xed\xa0\x80\"",
        "1e999x",    "01e999",      "1e999 1",     "[1e999 1]", "[1.e999]",
        "[1e999",    "{1e999:1}",   "true1e999",   "\"1e999",   std::string("{\"a\":\0}", 7),
        nested(1025)};
    for (const auto& json : refused)
        EXPECT_THROW(JsonDocument{json}, DecodeError) << json.substr(0, 40);
}

/// A thread of the network is at an answer when the process ends: what joins it was registered before
/// anything was parsed, and so runs after all that was made later has gone.
TEST(JsonDocumentDeathTest, ParsesUntilTheLastThreadHasGone) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    const auto end = [] {
        std::atexit([] {
            const JsonDocument late("{}");
            std::_Exit(0);
        });
        const JsonDocument early("[]");
        std::exit(1);
    };
    EXPECT_EXIT(end(), testing::ExitedWithCode(0), "");
}

} // namespace
} // namespace ombrivane
