#include "base/ErrorKind.h"
#include "base/ErrorDomains.h"

#include <gtest/gtest.h>

namespace ombrivane {
namespace {

TEST(ErrorKindTest, EachDomainAndCodeIsOneKindAndSaysWhetherItMayHaveHappened) {
    const struct {
        const char* domain;
        int code;
        const char* kind;
        bool cannotHaveHappened;
    } rows[] = {
        {"CustomError", 0, "invalidRequest", true},
        {"CustomError", 1, "noConnection", true},
        {"CustomError", 2, "unsupportedSystem", true},
        {"CustomError", 3, "invalidRequest", true},
        {"CustomError", 99, "unforeseen", false},
        {"Ombrivane", 0, "refused", true},
        {"Ombrivane", 1, "answerMissing", false},
        {"Ombrivane", 2, "answerMissing", false},
        {"Ombrivane", 3, "unforeseen", false},
        {"Ombrivane", -1, "unforeseen", false},
        {"Ombrivane.Authentication", 0, "credentialsRefused", true},
        {"Network", 0, "answerMissing", false},
        {"Network", 6, "serviceNotReached", true},
        {"Network", 7, "serviceNotReached", true},
        {"Network", 28, "timedOut", false},
        {"Network", 35, "serviceNotReached", true},
        {"Network", 42, "connectionLost", false},
        {"Network", 52, "connectionLost", false},
        {"Network", 55, "connectionLost", false},
        {"Network", 56, "connectionLost", false},
        {"Network", 60, "serviceNotTrusted", true},
        {"Network", 63, "answerTooLarge", false},
        {"Network", 77, "serviceNotTrusted", true},
        {"Decoding", 0, "answerNotUnderstood", false},
        {"Encoding", 0, "invalidRequest", true},
        {"Elsewhere", 0, "unforeseen", false},
    };
    for (const auto& row : rows) {
        const ErrorKind kind = kindOf(Error{row.domain, row.code, ""});
        EXPECT_EQ(nameOf(kind), row.kind) << row.domain << " " << row.code;
        EXPECT_EQ(cannotHaveHappened(kind), row.cannotHaveHappened) << row.domain << " " << row.code;
    }
}

} // namespace
} // namespace ombrivane
