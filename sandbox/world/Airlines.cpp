#include "sandbox/world/Airlines.h"

#include <algorithm>

namespace ombrivane::sandbox {

const std::vector<Airline>& airlines() {
    static const std::vector<Airline> list{
        {"H0", "Seti Valley Air", "KTM", true, 1.00, 0x1B7F5C, 0},
        {"J0", "Karnali Wings", "KTM", true, 0.93, 0xC8472B, 1},
        {"K0", "Terai Connect", "KTM", true, 1.08, 0x2F5DA8, 2},
        {"U0", "Everpeak Airways", "KTM", false, 0.97, 0x8A1538, 3},
        {"X0", "Saffron Route Airways", "DEL", false, 0.88, 0xE08A1E, 4},
        {"W0", "Desert Heron Airways", "DOH", false, 1.06, 0x5B2245, 5},
        {"M0", "Coral Gate Airlines", "DXB", false, 1.04, 0xD1495B, 0},
        {"L0", "Golden Dune Air", "SHJ", false, 0.82, 0xB8860B, 1},
        {"A0", "Monsoon Line", "BKK", false, 0.95, 0x6B3FA0, 2},
        {"F0", "Silver Crane Air", "SIN", false, 1.15, 0x1D3557, 3},
        {"I0", "Straits Lantern Airlines", "KUL", false, 0.84, 0x0B7A75, 4},
        {"O0", "Pearl Delta Airways", "HKG", false, 1.05, 0x006D77, 5},
        {"0H", "Bosporus Sky", "IST", false, 0.99, 0xB71C1C, 0},
        {"0K", "Kestrel Bay Airways", "LHR", false, 1.18, 0x283593, 1},
        {"0M", "Amber Fjord", "FRA", false, 1.12, 0x455A64, 2},
    };
    return list;
}

const Airline* airlineOf(std::string_view code) {
    const auto found = std::find_if(
        airlines().begin(), airlines().end(), [&](const Airline& airline) { return airline.code == code; });
    return found == airlines().end() ? nullptr : &*found;
}

} // namespace ombrivane::sandbox
