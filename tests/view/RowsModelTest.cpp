#include "adapters/RowsModel.h"
#include "keyed/Field.h"

#include <QAbstractItemModelTester>
#include <QTest>

#include <gtest/gtest.h>

#include <random>

namespace ombrivane::view {
namespace {

using Names = std::vector<std::string>;

/// A list whose rows nobody draws.
class Letters final : public Screen {
public:
    Letters() : Screen("Letters") {}
    Published<Names> letters{fields, "letters"};
    Rows rows{*this,
              "rows",
              [this] { return letters->size(); },
              [](std::size_t) { return nullptr; },
              [this] { return std::vector<RowIdentity>(letters->begin(), letters->end()); }};
};

/// Lists with few letters, so that a service tells many of them twice.
TEST(RowsModelTest, FollowsEveryListToTheNextByRowsThatComeAndGo) {
    const auto letters = std::make_shared<Letters>();
    RowsModel model(letters, letters->rows);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    std::mt19937 random(20261122);
    for (int round = 0; round < 2'000; ++round) {
        Names next(random() % 7);
        for (auto& letter : next)
            letter = std::string(1, static_cast<char>('a' + random() % 5));
        letters->letters = next;
        QCoreApplication::processEvents();
        ASSERT_EQ(model.count(), static_cast<int>(next.size())) << testing::PrintToString(next);
        for (std::size_t i = 0; i < next.size(); ++i) {
            const auto first = std::find(next.begin(), next.end(), next[i]) - next.begin();
            ASSERT_EQ(model.positionOf(QString::fromStdString(next[i])), first)
                << testing::PrintToString(next);
        }
    }
}

} // namespace
} // namespace ombrivane::view
