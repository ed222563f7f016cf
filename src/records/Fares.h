#pragma once

#include "base/Boxed.h"
#include "records/Attributed.h"
#include "records/Wire.h"

#include <optional>
#include <string>
#include <vector>

namespace ombrivane {

/// Attributes of one fare of the reservation system.
struct ADTAttributes {
    std::optional<std::string> key;
    std::optional<std::string> fareBasis;
    std::optional<std::string> passengerTypeCode;
    std::optional<std::string> origin;
    std::optional<std::string> destination;
    std::optional<std::string> effectiveDate;
    std::optional<std::string> promotionalFare;
    std::optional<std::string> fareFamily;
    std::optional<std::string> supplierCode;

    bool operator==(const ADTAttributes&) const = default;

    static constexpr auto wire = fields(
        field("Key", &ADTAttributes::key), field("FareBasis", &ADTAttributes::fareBasis),
        field("PassengerTypeCode", &ADTAttributes::passengerTypeCode),
        field("Origin", &ADTAttributes::origin), field("Destination", &ADTAttributes::destination),
        field("EffectiveDate", &ADTAttributes::effectiveDate),
        field("PromotionalFare", &ADTAttributes::promotionalFare),
        field("FareFamily", &ADTAttributes::fareFamily), field("SupplierCode", &ADTAttributes::supplierCode));
};

/// Where the fare's rules stand.
struct AirFareRuleKeyAttributes {
    std::optional<std::string> fareInfoRef;
    std::optional<std::string> providerCode;

    bool operator==(const AirFareRuleKeyAttributes&) const = default;

    static constexpr auto wire = fields(field("FareInfoRef", &AirFareRuleKeyAttributes::fareInfoRef),
                                        field("ProviderCode", &AirFareRuleKeyAttributes::providerCode));
};
using AirFareRuleKey = Attributed<AirFareRuleKeyAttributes>;

/// The brand that the fare can be raised to.
struct AirUpsellBrandAttributes {
    std::optional<std::string> fareBasis;
    std::optional<std::string> fareInfoRef;

    bool operator==(const AirUpsellBrandAttributes&) const = default;

    static constexpr auto wire = fields(field("FareBasis", &AirUpsellBrandAttributes::fareBasis),
                                        field("FareInfoRef", &AirUpsellBrandAttributes::fareInfoRef));
};
using AirUpsellBrand = Attributed<AirUpsellBrandAttributes>;

/// The brand of a fare.
struct AirBrandAttributes {
    std::optional<std::string> key;
    std::optional<std::string> brandID;
    std::optional<std::string> upSellBrandID;

    bool operator==(const AirBrandAttributes&) const = default;

    static constexpr auto wire =
        fields(field("Key", &AirBrandAttributes::key), field("BrandID", &AirBrandAttributes::brandID),
               field("UpSellBrandID", &AirBrandAttributes::upSellBrandID));
};

/// A fare's brand with the next one up.
struct AirBrand {
    std::optional<AirBrandAttributes> attributes;
    std::optional<AirUpsellBrand> airUpsellBrand;

    bool operator==(const AirBrand&) const = default;

    static constexpr auto wire = fields(field("attributes", &AirBrand::attributes),
                                        field("airUpsellBrand", &AirBrand::airUpsellBrand));
};

/// One fare of the reservation system; named after the adult's, used for every passenger class.
struct ADT {
    std::optional<ADTAttributes> attributes;
    std::optional<AirFareRuleKey> airFareRuleKey;
    std::optional<AirBrand> airBrand;

    bool operator==(const ADT&) const = default;

    static constexpr auto wire =
        fields(field("attributes", &ADT::attributes), field("airFareRuleKey", &ADT::airFareRuleKey),
               field("airBrand", &ADT::airBrand));
};

/// The fares by passenger class, infants before children.
template <class Fare> struct FaresOf {
    Boxed<Fare> adt;
    Boxed<Fare> inf;
    Boxed<Fare> cnn;

    bool operator==(const FaresOf&) const = default;

    static constexpr auto wire =
        fields(field("ADT", &FaresOf::adt), field("INF", &FaresOf::inf), field("CNN", &FaresOf::cnn));
};

/// One way: a single fare for each class.
using Fares = FaresOf<ADT>;
/// Round trip: one fare for each component of the journey.
using RoundTripFares = FaresOf<std::vector<ADT>>;

} // namespace ombrivane
