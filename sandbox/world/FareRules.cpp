#include "sandbox/world/FareRules.h"

#include <fmt/format.h>

namespace ombrivane::sandbox {

std::optional<std::string> fareRules(const Offer& offer) {
    if (offer.index % 6 == 5) return std::nullopt;
    const Leg& first = offer.outbound.first();
    const std::int64_t fee = offer.fare.totals.total() / offer.request.adults / 10 / 50 * 50;
    const std::string refund =
        offer.fare.isRefundable
            ? fmt::format("<li>Cancellation &ge; 24 hours before departure: NPR&nbsp;{} per person.</li>\n"
                          "<li>Cancellation later than that: NPR&nbsp;{} per person.</li>\n",
                          fee,
                          fee * 2)
            : "<li>The ticket is <u>non-refundable</u>; unused taxes are returned on request.</li>\n";
    return fmt::format(
        "<html><head><style>p {{ margin: 0 }}</style></head><body>\n"
        "<p><b>{} &ndash; fare {}</b></p>\n"
        "<p>These rules hold for flight {}&#8209;{} from {} to {} &amp; for every flight of the same "
        "ticket.</p>\n"
        "<p><u>Cancellation</u></p>\n<ul>\n{}</ul>\n"
        "<p><u>Changes</u></p>\n<ul>\n"
        "<li>Change of date: NPR&nbsp;{} per person plus the difference in fare.</li>\n"
        "<li>Names cannot be changed once the ticket is issued.</li>\n</ul>\n"
        "<p><u>Baggage</u></p>\n<p>Cabin: {}&nbsp;kg<br/>Check-in: {}&nbsp;kg</p>\n"
        "<p>A passenger who does not show up (&ldquo;no-show&rdquo;) loses the <i>whole</i> fare.</p>\n"
        "</body></html>",
        first.carrier->name,
        offer.fare.brand,
        first.carrier->code,
        first.flightNumber,
        offer.outbound.first().from->city,
        offer.outbound.last().to->city,
        refund,
        fee / 2,
        offer.fare.cabinKilos,
        offer.fare.checkedKilos);
}

} // namespace ombrivane::sandbox
