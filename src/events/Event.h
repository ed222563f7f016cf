#pragma once

#include "base/Api.h"
#include "base/ErrorKind.h"
#include "base/Json.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ombrivane {

/// What can happen between the opening of the component and its end.
enum class EventKind : std::uint8_t {
    opened,              ///< the host shows the component
    screenShown,         ///< another screen lies on top: `screen`
    searchSent,          ///< offers were asked for
    searchAnswered,      ///< `offers` or `error`, and `took`
    bookingOpened,       ///< the price of an offer is held for ten minutes; `took`
    bookingRefused,      ///< an offer could not be priced; `error` and `took`
    fareMoved,           ///< it costs another amount than the offer said: `formerFare` and `fare`
    reservationSent,     ///< the customer's reservation was asked for
    reservationAnswered, ///< it was made, or `error` says why it was not; `took`
    reservationUnknown,  ///< sent, and no answer that says whether it was made; `error` and `took`
    uploadSent,          ///< the pictures of the travellers' documents follow a reservation
    uploadAnswered,      ///< they are there, or `error`; `took`
    expired,             ///< the ten minutes are over
    closed,              ///< `closedBy`
};

/// Who ended an opening.
enum class ClosedBy : std::uint8_t {
    customer,    ///< left the search
    reservation, ///< was handed over
    error,       ///< was told to the host
    host,        ///< dropped the view
};

/// Something that happened, for a host's own figures and logs: no name, number, address, word or token of a
/// customer is in it.
struct OMBRIVANE_API Event {
    EventKind kind = EventKind::opened;                 ///< what happened
    std::string opening = {};                           ///< the same for all events of one opening
    std::string screen = {};                            ///< as `docs/screens.md` names it
    std::optional<std::size_t> offers = {};             ///< how many came; of a special round both ways
    std::optional<std::chrono::milliseconds> took = {}; ///< from the asking
    std::optional<std::int64_t> formerFare = {};        ///< in whole units of the currency, as the offer said
    std::optional<std::int64_t> fare = {};              ///< in whole units of the currency, as it is held
    std::optional<ErrorKind> error = {};                ///< why it failed
    std::optional<ClosedBy> closedBy = {};              ///< who ended it

    /// As one object, what is absent left out: {"event": "searchAnswered", "opening": …, "offers": 12,
    /// "milliseconds": 340}.
    Json json() const;
};

/// A request to the booking service that has ended, well or badly: no body and no part of one.
struct OMBRIVANE_API EndedCall {
    std::string_view endpoint;           ///< "/reservation" for instance; without what follows a "?"
    int status = 0;                      ///< of HTTP; 0 where no answer began
    std::chrono::milliseconds took{};    ///< from the sending to the last byte, or to the giving up
    std::size_t bytes = 0;               ///< of the answer
    std::optional<ErrorKind> error = {}; ///< why it failed

    /// As one object: {"endpoint": "/reservation", "status": 200, "milliseconds": 412, "bytes": 1809}.
    Json json() const;
};

/// As `EventKind` writes it: "searchSent".
OMBRIVANE_API std::string_view nameOf(EventKind kind);
/// As `ClosedBy` writes it: "customer".
OMBRIVANE_API std::string_view nameOf(ClosedBy who);

} // namespace ombrivane
