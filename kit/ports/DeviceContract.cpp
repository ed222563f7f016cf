#include "ports/PortContract.h"

#include <algorithm>
#include <cctype>
#include <exception>
#include <future>
#include <thread>

namespace ombrivane::kit {
namespace {

using std::chrono::milliseconds;

bool isLocale(const std::string& text) {
    const std::size_t end = std::min(text.find_first_of("_-@."), text.size());
    return end >= 2 && end <= 3 &&
           std::all_of(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(end), [](unsigned char sign) {
               return std::islower(sign) != 0;
           });
}

/// "Asia/Kathmandu", "UTC", "GMT"
bool isTimeZone(const std::string& text) {
    return text.size() >= 3 && std::isupper(static_cast<unsigned char>(text.front())) != 0 &&
           text.find(' ') == std::string::npos;
}

} // namespace

Findings checkReachability(const std::shared_ptr<ReachabilityMeasure>& reachability) {
    if (!reachability) return {"There is no reachability."};
    Findings findings;
    for (const char* host : {"localhost", "127.0.0.1", "::1"}) {
        using Flags = std::optional<std::uint32_t>;
        // One that never answers is left behind on its thread, which holds the port.
        auto answer = std::make_shared<std::promise<Flags>>();
        std::thread([reachability, answer, host] {
            try {
                answer->set_value(reachability->flags(host));
            } catch (...) {
                answer->set_exception(std::current_exception());
            }
        }).detach();
        auto flags = answer->get_future();
        const std::string asked = std::string("flags(\"") + host + "\"): ";
        if (flags.wait_for(std::chrono::seconds(3)) != std::future_status::ready) {
            findings.push_back(asked + "has not answered within three seconds");
            break; // it would not for the next one either
        }
        Flags word;
        try {
            word = flags.get();
        } catch (const std::exception& failure) {
            findings.push_back(asked + "throws \"" + failure.what() + "\"");
            continue;
        }
        if (!word)
            findings.push_back(asked + "gives no flag word; the component takes that for no connection");
        else if ((*word & reachableFlag) == 0)
            findings.push_back(asked + "finds no way to this machine");
        else if ((*word & connectionRequiredFlag) != 0)
            findings.push_back(asked + "wants a connection to be made to this machine");
    }
    return findings;
}

Findings checkClock(const std::shared_ptr<Clock>& clock) {
    if (!clock) return {"There is no clock."};
    Findings findings;
    const Date begun = clock->now();
    Date last = begun;
    bool goesBack = false;
    for (int i = 0; i < 20; ++i) {
        std::this_thread::sleep_for(milliseconds(5));
        const Date now =
            i % 2 == 0 ? clock->now() : std::async(std::launch::async, [&] { return clock->now(); }).get();
        goesBack = goesBack || now < last;
        last = now;
    }
    if (goesBack) findings.emplace_back("now: goes back");
    if (last - begun < milliseconds(50))
        findings.emplace_back("now: stands still, or is not told to the millisecond");
    if (last - begun > std::chrono::seconds(20))
        findings.emplace_back("now: runs ahead of the time that passes");
    return findings;
}

Findings checkLocalization(const std::shared_ptr<Localization>& localization) {
    if (!localization) return {"There is no localization."};
    Findings findings;
    const std::string key = "a key of nobody's";
    if (localization->localized(key, "") != key)
        findings.emplace_back("localized: a key without a translation does not come back as it is");
    if (!isLocale(localization->locale()))
        findings.push_back("locale: \"" + localization->locale() + "\" is no identifier such as \"en_US\"");
    if (!isTimeZone(localization->timeZone()))
        findings.push_back("timeZone: \"" + localization->timeZone() +
                           "\" is no zone such as \"Asia/Kathmandu\"");
    return findings;
}

} // namespace ombrivane::kit
