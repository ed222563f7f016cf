#pragma once

#include <cstdint>
#include <string>

namespace ombrivane {

enum class TravellerKind { adult, child, infant };

/// The travellers of a search. At all times 1 to 9 adults, infants at most as many as adults, at most 9 in
/// all.
struct TravellerCounts {
    std::int64_t adult = 1;
    std::int64_t child = 0;
    std::int64_t infant = 0;

    /// Reads the decimal texts of the form. One that is no number is a fault.
    static TravellerCounts from(const std::string& adult, const std::string& child,
                                const std::string& infant);

    std::int64_t total() const { return adult + child + infant; }

    bool mayIncrement(TravellerKind kind) const;
    bool mayDecrement(TravellerKind kind) const;

    /// One more or one less of a kind, where it may be. An adult who goes takes an infant along where there
    /// would be more infants than adults.
    void increment(TravellerKind kind);
    void decrement(TravellerKind kind);

    bool operator==(const TravellerCounts&) const = default;

private:
    std::int64_t& of(TravellerKind kind);
};

} // namespace ombrivane
