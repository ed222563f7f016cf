#include "platform/RouteReachability.h"

#include "fakes/World.h"
#include "services/Reachability.h"
#include "services/ServiceHosts.h"
#include "state/AppState.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>

#include <net/if.h>
#include <net/route.h>
#include <netinet/in.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/wait.h>

namespace ombrivane {
namespace {

TEST(RouteReachability, AsksTheRoutingTableForAnAddressOrForTheInternet) {
    RouteReachability route;
    for (const char* own : {"127.0.0.1", "localhost", "service.localhost"})
        EXPECT_EQ(route.flags(own), reachableFlag) << "this machine reaches itself as " << own;
    EXPECT_EQ(route.flags("255.255.255.255"), 0U) << "no socket may go to everybody unasked";
    EXPECT_EQ(RouteReachability("255.255.255.255").flags("localhost"), 0U) << "the address that was named";
    EXPECT_EQ(RouteReachability("somewhere").flags("localhost"), std::nullopt);

    const auto either = route.flags("192.0.2.1").value_or(0U) | route.flags("2001:db8::1").value_or(0U);
    for (const char* name : {"service.example", "localhost.example", "", "1.2.3"})
        EXPECT_EQ(route.flags(name), either) << name;
}

constexpr int notAllowed = 77;

/// In a network of its own, which has this machine at first, and the internet over IPv6 alone then. Ends the
/// process.
[[noreturn]] void measureInANetworkOfItsOwn() {
    if (unshare(CLONE_NEWUSER | CLONE_NEWNET) != 0) std::exit(notAllowed);
    const int handle = socket(AF_INET6, SOCK_DGRAM, 0);
    ifreq loopback{};
    std::strcpy(static_cast<char*>(loopback.ifr_name), "lo");
    loopback.ifr_flags = IFF_UP;
    if (handle < 0 || ioctl(handle, SIOCSIFFLAGS, &loopback) != 0) std::exit(notAllowed);
    RouteReachability route;
    EXPECT_EQ(route.flags("service.example"), 0U);
    EXPECT_EQ(route.flags("localhost"), reachableFlag) << "a service on this machine needs no network";

    in6_rtmsg everything{};
    everything.rtmsg_metric = 1;
    everything.rtmsg_flags = RTF_UP;
    everything.rtmsg_ifindex = static_cast<int>(if_nametoindex("lo"));
    EXPECT_EQ(ioctl(handle, SIOCADDRT, &everything), 0);
    EXPECT_EQ(route.flags("192.0.2.1"), 0U);
    EXPECT_EQ(route.flags("service.example"), reachableFlag) << "over IPv6";
    std::exit(testing::Test::HasFailure() ? 1 : 0);
}

TEST(RouteReachability, AnswersForEitherFamily) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    const auto measured = [](int status) {
        return WIFEXITED(status) && (WEXITSTATUS(status) == 0 || WEXITSTATUS(status) == notAllowed);
    };
    EXPECT_EXIT(measureInANetworkOfItsOwn(), measured, "");
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

    const auto before = ServiceHosts::current();
    ServiceHosts::use({.production = "https://booking.example:444/x", .test = "https://[::1]:8443"});
    for (const auto& [environment, host] :
         {std::pair{"test", "::1"}, std::pair{"production", "booking.example"}}) {
        AppState::shared().environment = environment;
        Reachability::isConnectedToNetwork();
        EXPECT_EQ(world.reachability->asked, host);
    }
    ServiceHosts::use(before);
}

} // namespace
} // namespace ombrivane
