#pragma once

namespace ombrivane {

/// Where a booking session stands, and what its controls may do there. The clock ticks in every phase, and
/// answers of the service are taken in in every phase: a reservation that was sent can succeed after the
/// session expired or its screen left.
///
/// | phase     | shows                                   | back | Continue | Check Latest Fares |
/// |-----------|-----------------------------------------|------|----------|--------------------|
/// | loading   | sample content under the shimmer        | yes  |          |                    |
/// | open      | flight, baggage, travellers, total      | yes  | yes      |                    |
/// | reserving | the progress overlay                    |      |          |                    |
/// | paying    | the wallet payment (no step leads here) | yes  |          |                    |
/// | expired   | the expiry overlay above everything     |      |          | yes                |
enum class SessionPhase { loading, open, reserving, paying, expired };

enum class SessionControl { back, proceed, checkLatestFares };

/// What decides the phase, in the order in which it decides.
struct SessionFlags {
    bool showSessionExpiredAlert;
    bool showProgressView;
    bool showPaymentView;
    bool isLoading;
};

constexpr SessionPhase phaseOf(const SessionFlags& flags) {
    if (flags.showSessionExpiredAlert) return SessionPhase::expired;
    if (flags.showProgressView) return SessionPhase::reserving;
    if (flags.showPaymentView) return SessionPhase::paying;
    return flags.isLoading ? SessionPhase::loading : SessionPhase::open;
}

constexpr bool allows(SessionPhase phase, SessionControl control) {
    switch (control) {
    case SessionControl::back:
        return phase != SessionPhase::reserving && phase != SessionPhase::expired;
    case SessionControl::proceed:
        return phase == SessionPhase::open;
    case SessionControl::checkLatestFares:
        return phase == SessionPhase::expired;
    }
    return false;
}

constexpr const char* nameOf(SessionPhase phase) {
    switch (phase) {
    case SessionPhase::loading:
        return "loading";
    case SessionPhase::open:
        return "open";
    case SessionPhase::reserving:
        return "reserving";
    case SessionPhase::paying:
        return "paying";
    case SessionPhase::expired:
        break;
    }
    return "expired";
}

} // namespace ombrivane
