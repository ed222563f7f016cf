#include "platform/RouteReachability.h"

#include "fakes/World.h"
#include "services/Reachability.h"

#include <gtest/gtest.h>

namespace ombrivane {
namespace {

TEST(RouteReachability, AsksTheRoutingTableForOneAddress) {
    EXPECT_EQ(RouteReachability("127.0.0.1").flags(), reachableFlag) << "this machine reaches itself";
    EXPECT_EQ(RouteReachability("255.255.255.255").flags(), 0U) << "no socket may go to everybody unasked";
    for (const char* address : {"", "localhost", "1.2.3", "::1", "127.0.0.1 "})
        EXPECT_EQ(RouteReachability(address).flags(), std::nullopt) << address;
}

TEST(Reachability, IsReachableWithoutAConnectionToMakeFirst) {
    fakes::World world;
    const std::pair<std::optional<std::uint32_t>, bool> cases[] = {
        {std::nullopt, false},
        {0U, false},
        {reachableFlag, true},
        {connectionRequiredFlag, false},
        {reachableFlag | connectionRequiredFlag, false},
        {reachableFlag | 0x40000U, true}, // a cellular route counts
        {1U, false},
    };
    for (const auto& [word, connected] : cases) {
        world.reachability->word = word;
        EXPECT_EQ(Reachability::isConnectedToNetwork(), connected) << word.value_or(999);
    }
}

} // namespace
} // namespace ombrivane
