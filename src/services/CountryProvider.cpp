#include "services/CountryProvider.h"

#include "services/Endpoints.h"
#include "services/Frame.h"
#include "state/AppState.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <deque>
#include <string_view>
#include <unordered_set>

namespace ombrivane {
namespace {

/// Each match is put in front of those before it, so the last one of a list in alphabetical order leads.
constexpr std::array<std::string_view, 3> preferred{"cn", "in", "np"};

std::string lowerCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char character) {
        return static_cast<char>(std::tolower(character));
    });
    return text;
}

std::vector<Country> inPriorityOrder(const std::vector<Country>& decoded) {
    std::deque<Country> working(decoded.begin(), decoded.end());
    for (const Country& country : decoded) {
        for (const std::string_view code : preferred) {
            if (lowerCase(country.shortName) == code) working.push_front(country);
        }
    }
    std::vector<Country> result;
    std::unordered_set<std::string> taken;
    for (const Country& country : working) {
        if (taken.insert(country.shortName).second) result.push_back(country);
    }
    return result;
}

} // namespace

void CountryProvider::fetchCountries(const Completion<std::vector<Country>>& completion) const {
    ServiceCall call;
    call.answerBytes = limits::lookupBytes;
    call.method = "GET";
    call.endpoint = endpoint::countries;
    call.query = "?user_type=" + AppState::shared().userType.get();
    send<std::vector<Country>>(
        call,
        [](const Envelope& envelope) { return inPriorityOrder(envelope.records<Country>("countries")); },
        completion);
}

} // namespace ombrivane
