#include "base/Uuid.h"

#include <gtest/gtest.h>

#include <unordered_set>

namespace ombrivane {
namespace {

TEST(Uuid, ReadsEitherCaseAndWritesUpperCase) {
    const auto lower = Uuid::parse("0123abcd-4567-4def-89ab-fedcba987654");
    const auto upper = Uuid::parse("0123ABCD-4567-4DEF-89AB-FEDCBA987654");
    ASSERT_TRUE(lower && upper);
    EXPECT_EQ(*lower, *upper);
    EXPECT_EQ(lower->text(), "0123ABCD-4567-4DEF-89AB-FEDCBA987654");
}

TEST(Uuid, RefusesEveryOtherForm) {
    for (const char* text : {"",
                             "0123abcd-4567-4def-89ab-fedcba98765",
                             "0123abcd-4567-4def-89ab-fedcba9876543",
                             "0123abcd45674def89abfedcba987654",
                             "0123abcd-4567-4def-89abf-edcba987654",
                             "{123abcd-4567-4def-89ab-fedcba98765}",
                             "0123abcg-4567-4def-89ab-fedcba987654",
                             "0123abcd-4567-4def-89ab-fedcba98765 "}) {
        EXPECT_FALSE(Uuid::parse(text)) << text;
    }
}

TEST(Uuid, FreshOnesDifferAndAreOfVersionFour) {
    std::unordered_set<Uuid> seen;
    for (int i = 0; i < 1000; ++i) {
        const Uuid uuid = Uuid::random();
        const std::string text = uuid.text();
        EXPECT_EQ(text[14], '4');
        EXPECT_NE(std::string("89AB").find(text[19]), std::string::npos) << text;
        EXPECT_EQ(Uuid::parse(text), uuid);
        seen.insert(uuid);
    }
    EXPECT_EQ(seen.size(), 1000U);
}

} // namespace
} // namespace ombrivane
