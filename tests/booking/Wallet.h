#pragma once

#include "Onlooker.h"
#include "fakes/TestData.h"
#include "fakes/World.h"
#include "keyed/Navigator.h"
#include "results/Offers.h"
#include "session/OmbrivaneView.h"
#include "state/AppState.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace ombrivane {

/// One kind of trip: how its session is reached, and the captured answers on the way.
struct Trip {
    const char* session; ///< name of the session's screen
    const char* tab;     ///< of the search
    Json (*offers)();    ///< one in each list
    const char* availability;
    bool domestic = false;
};

inline Json oneWayOffers() { return offers::listOf({offers::Sketch()}); }
inline Json roundTripOffers() { return offers::listOf({offers::Sketch()}, offers::roundTrip); }
inline Json specialOffers() { return Json::array({oneWayOffers(), oneWayOffers()}); }

inline constexpr Trip oneWayTrip{"OWBookingDetailsView", "oneWay", oneWayOffers, "availability-oneway"};
inline constexpr Trip roundTrip{"RTBookingDetailsView", "roundTrip", roundTripOffers, "availability-round"};
inline constexpr Trip specialTrip{
    "RTBookingDetailsView", "roundTrip", specialOffers, "availability-special", true};

/// Each kind of trip, without documents and with them.
inline const auto everyTrip =
    testing::Combine(testing::Values(oneWayTrip, roundTrip, specialTrip), testing::Bool());

inline std::string tripName(const testing::TestParamInfo<std::tuple<Trip, bool>>& row) {
    const auto& [trip, documents] = row.param;
    return std::string(trip.domestic ? "special" : trip.tab) + (documents ? "WithDocuments" : "");
}

/// A wallet that shows the component: works it by the keys of its screens, answers for the service, and keeps
/// what it hears. All that the screens show is looked at, as pages do. As wallets do, it drops its view when
/// it is asked to close it.
class Wallet {
public:
    explicit Wallet(fakes::World& world, const Trip& trip = oneWayTrip, bool documents = false);

    void show();
    void drop();
    std::string saveState() const { return view_->saveState(); }
    std::string recording() const { return view_->recording(); }
    bool isShown() const { return view_ && view_->navigator() != nullptr; }
    /// Throws where nothing is shown.
    Navigator& navigator() const;
    std::string top() const { return view_ ? std::string(navigator().top()->name()) : "nothing"; }

    /// Each is one event, with the steps of the main queue that follow from it.
    void tap(const std::string& path);
    void tap(const std::string& path, const Json& argument);
    void trigger(Member& control, const std::vector<Json>& arguments) {
        event([&] { control.trigger(arguments); });
    }
    void set(const std::string& path, const Json& value);
    /// The customer picks a small picture.
    void pick();
    /// The service's honest answer to the request that waits at `index`.
    void answer(std::size_t index = 0);
    void answer(const Json& body, std::size_t index = 0);
    void fail(std::size_t index = 0);

    Json get(const std::string& path) const;
    /// A wait that begins now is told by `screen`: in words after a second, with a way out after eight.
    void expectWait(const std::string& screen, const char* what, const char* wayOut);
    void expectNoWait(const std::string& screen);
    bool enabled(const std::string& path) const { return get(path).at("enabled").get<bool>(); }

    /// The stations of the road, each from the one before.
    void toGate();
    void toSession();
    void fillContact();
    void fillTraveller(std::size_t slot = 0);
    void toReady();
    /// From nothing to the hand-over.
    void wholeRoad();
    /// Answers all that waits, and what is asked next, until nothing is left.
    void settle();

    /// What the service would answer to the request that waits at `index`.
    Json honest(std::size_t index = 0) const;
    std::string waitingFor(std::size_t index = 0) const;
    std::size_t sentTo(const std::string& operation) const;
    Json lastSent() const { return Json::parse(world.network->last().body.value_or("null")); }

    /// What of the contract with the wallet was broken; empty when nothing.
    std::string contract() const;

    /// Thrown when `limit` events have happened.
    struct Stopped {};
    std::optional<std::size_t> limit;
    std::size_t events = 0;

    std::size_t adults = 1;
    std::size_t children = 0;
    std::size_t infants = 0;
    bool documents;
    bool dropsWhenCalled = false;
    bool showsWhenCalled = false; ///< another one; once
    /// Whether the main queue runs after each event until it is empty.
    bool drains = true;
    /// A passport cannot be saved where no document is demanded.
    std::vector<std::string> allowedDocuments{documents ? "passport" : "citizenship"};
    std::optional<double> balance;
    /// Given to the next view before it is shown.
    std::string restoring;

    /// "exit", "progress", "error: …" and "close", in order; a "dropped" stands where the wallet dropped it,
    /// a "shown" where it showed another one, and what an earlier one still says is "late".
    std::vector<std::string> heard;
    std::vector<Dictionary> handedOver;
    /// Successes that must have led to one hand-over each.
    std::size_t reserved = 0;

private:
    void letGo();
    void answerWith(const std::string& text, bool books, std::size_t index);
    void event(const std::function<void()>& run);
    void check() const;
    void hear(const std::string& word, bool inTime);

    fakes::World& world;
    Trip trip_;
    std::unique_ptr<OmbrivaneView> view_;
    journey::Onlooker page_;
    std::size_t shows_ = 0;
};

/// Takes the road from nothing to the hand-over as far as the screens let it, as a customer who does not give
/// up. Only a fault comes out.
void insist(Wallet& wallet);

} // namespace ombrivane
