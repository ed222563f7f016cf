// What happens to customers now and then, each under one name: for trying a wallet, and for its tests.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ombrivane::sandbox {

struct Scenario {
    std::string_view name;    ///< "sold-out"
    std::string_view meaning; ///< what the customer meets
    std::vector<std::string> faults = {};
    std::optional<int> farePercent = {}; ///< by how much an offer costs more once its price is asked for
    std::optional<std::chrono::seconds> holds = {}; ///< how long the service holds a price
    /// Whether a traveller of that surname, "Documents-Lost" for instance, brings it about.
    bool bySurname = false;
};

const std::vector<Scenario>& scenarios();

/// Throws `std::invalid_argument` with all names where there is none of that name.
const Scenario& scenarioNamed(std::string_view name);

/// The scenario that the surname of a traveller in the body of a reservation asks for, letters alone
/// counting; nullptr for all other bodies.
const Scenario* scenarioOfTravellers(const std::string& body);

} // namespace ombrivane::sandbox
