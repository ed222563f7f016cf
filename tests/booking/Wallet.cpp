#include "Wallet.h"

#include "ScreenPath.h"
#include "search/MainViewModel.h"

#include <algorithm>
#include <map>

namespace ombrivane {
namespace {

std::string operationOf(const HttpRequest& request) {
    return request.url.substr(request.url.find_last_of('/') + 1);
}

/// Read once: many roads are played.
const Json& captured(const std::string& name) {
    static std::map<std::string, Json> kept;
    const auto found = kept.find(name);
    return found != kept.end() ? found->second : kept.emplace(name, fakes::captured(name)).first->second;
}

} // namespace

Wallet::Wallet(fakes::World& itsWorld, const Trip& trip, bool documentsRequired) :
    documents(documentsRequired), world(itsWorld), trip_(trip) {}

void Wallet::show() {
    view_ = std::make_unique<OmbrivaneView>(
        "wallet",
        "wallet-secret",
        std::nullopt,
        balance,
        "9801234567",
        std::nullopt,
        [this](const std::optional<Dictionary>& dictionary, const std::optional<Error>& error) {
            const bool exit = dictionary && dictionary->at("exit").get<bool>();
            heard.push_back(error ? "error: " + error->localizedDescription : exit ? "exit" : "progress");
            if (exit) handedOver.push_back(*dictionary);
            if (dropsWhenCalled) drop();
        });
    view_->onClose([this] {
        heard.emplace_back("close");
        view_.reset();
    });
    event([this] { view_->show(); });
}

void Wallet::drop() {
    if (!view_) return;
    view_.reset();
    heard.emplace_back("dropped");
}

void Wallet::check() const {
    if (limit && events >= *limit) throw Stopped{};
}

void Wallet::event(const std::function<void()>& run) {
    check();
    ++events;
    run();
    for (check(); world.queue->runOne(); check())
        ++events;
}

void Wallet::tap(const std::string& path) {
    event([&] { journey::follow(navigator(), path).member->trigger({}); });
}

void Wallet::tap(const std::string& path, const Json& argument) {
    event([&] { journey::follow(navigator(), path).member->trigger({argument}); });
}

void Wallet::set(const std::string& path, const Json& value) {
    event([&] { journey::follow(navigator(), path).member->write(value); });
}

void Wallet::pick() {
    event([this] {
        world.photos->pick({false,
                            Image{2,
                                  1,
                                  std::make_shared<std::vector<std::uint8_t>>(
                                      std::vector<std::uint8_t>{255, 0, 0, 255, 0, 0, 255, 255})}});
    });
}

void Wallet::answer(const Json& body, std::size_t index) {
    const bool good = body.is_object() && body.value("success", false);
    if (good && waitingFor(index) == (documents ? "documents" : "reservation")) ++reserved;
    event([&] { world.network->answer(body.is_string() ? body.get<std::string>() : body.dump(), index); });
}

void Wallet::fail(std::size_t index) {
    event([&] { world.network->fail({"Network", 28, "The request timed out."}, index); });
}

Json Wallet::get(const std::string& path) const { return journey::follow(navigator(), path).member->read(); }

std::string Wallet::waitingFor(std::size_t index) const {
    return world.network->outstanding() > index ? operationOf(world.network->waiting(index)) : "";
}

std::size_t Wallet::sentTo(const std::string& operation) const {
    const auto& sent = world.network->sent();
    return static_cast<std::size_t>(
        std::count_if(sent.begin(), sent.end(), [&operation](const HttpRequest& request) {
            return operationOf(request) == operation;
        }));
}

Json Wallet::honest(std::size_t index) const {
    const std::string operation = waitingFor(index);
    if (operation == "get-token") return captured("token");
    if (operation == "search-flights") return captured(trip_.offers);
    if (operation == "verify-flights") return captured("restrictions-none");
    if (operation == "kolmiwallet-generate-order") return captured("order");
    if (operation == "kolmiwallet-confirm-order") return captured("confirmation");
    if (operation == "issue-ticket") return captured("ticket");
    if (operation == "download-ticket") return captured("download");
    if (operation == "availability") {
        Json answer = captured(trip_.availability);
        Json& data = answer["data"];
        data["documentsRequired"] = documents;
        data["allowedDocuments"] = allowedDocuments;
        data["availabilitySummary"]["numberAdult"] = adults;
        data["availabilitySummary"]["numberChild"] = children;
        data["availabilitySummary"]["numberInfant"] = infants;
        return answer;
    }
    Json answer = captured("reservation");
    Json& booked = answer["data"]["bookingSummary"]["passengers"];
    while (booked.size() > adults + children + infants)
        booked.erase(booked.size() - 1);
    return answer;
}

void Wallet::toGate() {
    if (!view_) show();
    answer();
    auto& form = MainViewModel::shared();
    form.departCityCode = "KTM";
    form.departCity = "Kathmandu";
    form.departCountry = "Nepal";
    form.destCityCode = "DOH";
    form.destCity = "Doha";
    form.destCountry = trip_.domestic ? "Nepal" : "Qatar";
    form.departureDateText = "chosen";
    form.returnDateText = "chosen";
    form.nationality = "NP";
    set("MainView.tabSelection", trip_.tab);
    tap("MainView.form.search");
    answer();
    tap("rows[0].tap");
    if (trip_.domestic) {
        tap("continue");
        tap("rows[0].tap");
    }
    tap("continue");
}

void Wallet::toSession() {
    toGate();
    answer();
    tap("RulesAndRegulationView.continue");
    answer();
}

void Wallet::fillContact() {
    tap("contact.contactLine.tap");
    tap("typeName", "Asha");
    tap("typeSurname", "Lama");
    tap("typeEmail", "asha@example.com");
    tap("typePhoneNumber", "9800000000");
    tap("save");
}

void Wallet::fillTraveller(std::size_t slot) {
    tap("contact.rows[" + std::to_string(slot) + "].tap");
    tap("typeName", "Asha");
    tap("typeSurname", "Lama");
    tap("pickDateOfBirth", "2026-01-05");
    if (documents) {
        tap("typeDocumentNumber", "PA1234567");
        tap("pickExpiryDate", "2031-03-01");
        tap("openPhotoPicker");
        pick();
    }
    tap("save");
}

void Wallet::toReady() {
    toSession();
    fillContact();
    for (std::size_t slot = 0; slot < adults + children + infants; ++slot)
        fillTraveller(slot);
}

void Wallet::wholeRoad() {
    toReady();
    tap("continue");
    answer();
    if (documents) answer();
}

void Wallet::settle() {
    limit.reset();
    world.queue->drain();
    while (world.network->outstanding() > 0)
        answer();
}

std::string Wallet::contract() const {
    bool ended = false;
    bool gone = false;
    for (const auto& word : heard) {
        if (word == "close") {
            if (gone) return "closed when it was gone";
        } else if (word != "exit" && word != "dropped" && ended) {
            return "called after its end: " + word;
        }
        ended = ended || word != "progress";
        gone = gone || word == "close" || word == "dropped";
    }
    if (ended && view_) return "ended and still shown";
    if (handedOver.size() != reserved) {
        return std::to_string(handedOver.size()) + " hand-overs of " + std::to_string(reserved) +
               " reservations";
    }
    return "";
}

} // namespace ombrivane
