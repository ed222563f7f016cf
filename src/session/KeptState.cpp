#include "session/KeptState.h"

#include "dates/Calendar.h"
#include "dates/DateFormatter.h"
#include "keyed/Navigator.h"
#include "results/ResultsScreen.h"
#include "search/MainView.h"
#include "search/MainViewModel.h"
#include "state/AppState.h"

#include <fmt/core.h>

#include <cstdint>
#include <string_view>

namespace ombrivane {
namespace {

/// Counted up with every change of what is kept.
constexpr int version = 1;

/// What the customer chose; the flags of sheets and the list of countries are not kept.
constexpr const char* formKeys[] = {"originText",
                                    "destinationText",
                                    "departureDateText",
                                    "departureDate",
                                    "returnDateText",
                                    "returnDate",
                                    "nationalityText",
                                    "travellerText",
                                    "departCityCode",
                                    "departCity",
                                    "departCountry",
                                    "destCityCode",
                                    "destCity",
                                    "destCountry",
                                    "nationality",
                                    "adult",
                                    "child",
                                    "infant",
                                    "cabinClass"};
constexpr const char* countKeys[] = {"adult", "child", "infant"};
constexpr const char* nationalityKeys[] = {"nationalityText", "nationality"};

template <std::size_t count> Json readKeys(const Fields& fields, const char* const (&keys)[count]) {
    Json object = Json::object();
    for (const char* key : keys)
        object[key] = fields.find(key)->read();
    return object;
}

/// @throws KeyedError, Json::exception where `object` is not what `readKeys` made
template <std::size_t count>
void writeKeys(const Fields& fields, const char* const (&keys)[count], const Json& object) {
    for (const char* key : keys)
        fields.find(key)->write(object.at(key));
}

/// FNV-1a of 64 bits: tells a text that was cut or altered by mistake. Its constants are the function's own.
std::string checkOf(std::string_view text) {
    std::uint64_t sum = 14695981039346656037U;
    for (const char byte : text)
        sum = (sum ^ static_cast<unsigned char>(byte)) * 1099511628211U;
    return fmt::format("{:016x}", sum);
}

bool isDigit(const std::string& text) { return text.size() == 1 && text[0] >= '0' && text[0] <= '9'; }

/// The shown list of offers; nullptr where none is on the stack.
std::shared_ptr<const ResultsScreen> listOf(const Navigator& navigator) {
    for (const char* name : {"FlightListView", "DomesticFlightListView"}) {
        if (const auto list = navigator.find(name))
            return std::static_pointer_cast<const ResultsScreen>(list);
    }
    return nullptr;
}

/// @throws KeyedError, Json::exception where something is missing in `kept` or has another form
void check(const Json& kept) {
    MainViewModel form;
    writeKeys(form.fields, formKeys, kept.at("form"));
    for (const char* key : countKeys) {
        if (!isDigit(form.fields.find(key)->read())) throw KeyedError(std::string(key) + ": wants a digit");
    }
    AppState state;
    writeKeys(state.fields, nationalityKeys, kept.at("nationality"));
    Keyed<TabBarItem>::fromJson(kept.at("tab"));
    Keyed<bool>::fromJson(kept.at("offers"));
}

} // namespace

std::string KeptState::save(const Navigator* navigator) {
    Json kept{{"form", readKeys(MainViewModel::shared().fields, formKeys)},
              {"nationality", readKeys(AppState::shared().fields, nationalityKeys)},
              {"tab", Keyed<TabBarItem>::toJson(TabBarItem::oneWay)},
              {"offers", false}};
    if (navigator != nullptr) {
        if (const auto view = std::static_pointer_cast<MainView>(navigator->find("MainView")))
            kept["tab"] = Keyed<TabBarItem>::toJson(view->tabSelection.get());
        if (const auto list = listOf(*navigator)) {
            // The days of the list may have been stepped from those of the form, and a return added.
            const ResultsModel& model = list->model();
            kept["offers"] = true;
            kept["form"]["departureDate"] = Keyed<Day>::toJson(model.departDate.get());
            if (model.hasReturnDate) {
                kept["form"]["returnDate"] = Keyed<Day>::toJson(model.returnDate.get());
                kept["form"]["returnDateText"] = formatDay(model.returnDate.get(), dayPattern::calendar);
                kept["tab"] = Keyed<TabBarItem>::toJson(TabBarItem::roundTrip);
            }
        }
    }
    const std::string text = kept.dump();
    return fmt::format("{} {} {}", version, checkOf(text), text);
}

std::optional<KeptState> KeptState::read(const std::string& state) {
    const std::string head = fmt::format("{} ", version);
    constexpr std::size_t checkLength = 16;
    if (!state.starts_with(head) || state.size() <= head.size() + checkLength) return std::nullopt;
    const std::string text = state.substr(head.size() + checkLength + 1);
    if (state.compare(head.size(), checkLength + 1, checkOf(text) + " ") != 0) return std::nullopt;
    try {
        Json kept = Json::parse(text);
        check(kept);
        return KeptState(std::move(kept));
    } catch (const KeyedError&) {
        return std::nullopt;
    } catch (const Json::exception&) {
        return std::nullopt;
    }
}

bool KeptState::hasGoneBy() const {
    return Keyed<Day>::fromJson(kept_["form"]["departureDate"]) < calendar::today();
}

void KeptState::fillForm() const {
    auto& form = MainViewModel::shared();
    writeKeys(form.fields, formKeys, kept_["form"]);
    writeKeys(AppState::shared().fields, nationalityKeys, kept_["nationality"]);
    if (!hasGoneBy()) return;
    // Days that have gone by are asked for again.
    const MainViewModel fresh;
    form.departureDateText = "";
    form.departureDate = fresh.departureDate.get();
    form.returnDateText = "";
    form.returnDate = fresh.returnDate.get();
}

void KeptState::show(MainView& view) const {
    view.tabSelection = Keyed<TabBarItem>::fromJson(kept_["tab"]);
    if (!kept_["offers"].get<bool>() || hasGoneBy()) return;
    const bool roundTrip = view.tabSelection.get() == TabBarItem::roundTrip;
    auto& state = AppState::shared();
    if (MainViewModel::shared().isDomestic()) {
        state.domesticSearchRootViewActive = true;
    } else if (roundTrip) {
        state.roundtripSearchRootViewActive = true;
    } else {
        state.onewaySearchRootViewActive = true;
    }
}

void forgetCustomer() {
    const MainViewModel form;
    for (const Member* member : form.fields.members())
        MainViewModel::shared().fields.find(member->key())->write(member->read());
    const AppState state;
    for (const Member* member : state.fields.members())
        AppState::shared().fields.find(member->key())->write(member->read());
}

} // namespace ombrivane
