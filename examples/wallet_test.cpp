// A test of a wallet: a booking service of its own, the component without a window, a booking by the screens'
// keys, and a look at what the wallet made of the callback.
#include "keyed/Navigator.h"
#include "platform/AdjustableClock.h"
#include "platform/HeadlessPlatform.h"
#include "sandbox/Sandbox.h"
#include "script/ScreenPath.h"
#include "services/ServiceHosts.h"
#include "session/OmbrivaneView.h"
#include "session/Reservations.h"

#include <iostream>

namespace {

using ombrivane::Json;

/// The wallet under test: what it makes of a call of the component.
struct Wallet {
    void receive(const std::optional<ombrivane::Dictionary>& reserved) {
        if (!reserved || !reserved->at("exit").get<bool>()) return;
        receipts.push_back(*reserved); // before anything else
        const Json& cost = reserved->at("totalCost");
        if (cost.is_number()) balance -= cost.get<std::int64_t>(); // else "": no price was held
    }

    std::int64_t balance = 250000;
    std::vector<ombrivane::Dictionary> receipts;
};

/// The customer: works the screens, and says where a path leads nowhere.
struct Customer {
    void tap(const std::string& path, const std::vector<Json>& arguments = {}) const {
        ombrivane::journey::find(view.navigator(), path)->trigger(arguments);
    }
    void await(const std::string& path, const Json& value) const {
        const auto holds = [&] {
            const auto found = ombrivane::journey::find(view.navigator(), path);
            return found && found->read() == value;
        };
        if (!loop.runUntil(holds, std::chrono::seconds(20)))
            throw std::runtime_error(path + " did not become " + value.dump());
    }

    ombrivane::OmbrivaneView& view;
    ombrivane::RunLoop& loop;
};

/// From Kathmandu to Pokhara on 10 January 2027: the cheapest offer, for Asha Lama.
void book(const Customer& customer) {
    customer.await("MainView.form.tapOrigin", {{"enabled", true}});
    customer.tap("MainView.form.tapOrigin");
    customer.await("SelectOriginFlightView.rows", 12);
    customer.tap("SelectOriginFlightView.rows[0].tap");
    customer.await("SelectDestinationFlightView.rows", 11);
    customer.tap("SelectDestinationFlightView.rows[0].tap");
    customer.tap("MainView.form.tapNationality");
    customer.await("NationalityBottomSheetView.rows[0].tap", {{"enabled", true}});
    customer.tap("NationalityBottomSheetView.rows[0].tap");
    customer.tap("OneWayView.tapDate");
    customer.tap("CustomOneWayDatePickerView.tapDay", {"2027-01-10"});
    customer.tap("CustomOneWayDatePickerView.done");
    customer.tap("OneWayView.search");
    customer.await("DomesticFlightListView.model.isLoading", false);
    customer.tap("DomesticFlightListView.rows[0].tap");
    customer.tap("DomesticFlightListView.continue");
    customer.await("RulesAndRegulationView.showProgressView", false);
    customer.tap("RulesAndRegulationView.continue");
    customer.await("OWBookingDetailsView.isLoading", false);
    customer.tap("OWBookingDetailsView.contact.contactLine.tap");
    customer.tap("EmergencyContactInformationView.typeName", {"Asha"});
    customer.tap("EmergencyContactInformationView.typeSurname", {"Lama"});
    customer.tap("EmergencyContactInformationView.typeEmail", {"asha@example.com"});
    customer.tap("EmergencyContactInformationView.typePhoneNumber", {"9800000000"});
    customer.tap("EmergencyContactInformationView.save");
    customer.tap("OWBookingDetailsView.contact.rows[0].tap");
    customer.tap("TravellerInformationView.typeName", {"Asha"});
    customer.tap("TravellerInformationView.typeSurname", {"Lama"});
    customer.tap("TravellerInformationView.typeEmail", {"asha@example.com"});
    customer.tap("TravellerInformationView.chooseGender", {"Female"});
    customer.tap("TravellerInformationView.pickDateOfBirth", {"1990-05-17"});
    customer.tap("TravellerInformationView.save");
    customer.tap("OWBookingDetailsView.continue");
}

int test() {
    const ombrivane::Date now = std::chrono::sys_days(std::chrono::year(2026) / 11 / 21);
    ombrivane::sandbox::Options options;
    options.now = std::chrono::floor<std::chrono::seconds>(now);
    options.frozen = true;
    ombrivane::sandbox::Sandbox service(options);
    service.start();

    const auto loop = std::make_shared<ombrivane::RunLoop>();
    const auto clock = std::make_shared<ombrivane::AdjustableClock>();
    clock->startAt(now);
    auto ports = ombrivane::headlessPlatform(loop, service.caFile().string());
    ports.clock = clock;
    ombrivane::Platform::install(std::move(ports));
    ombrivane::ServiceHosts::use({.production = service.address(), .test = service.address()});

    Wallet wallet;
    bool closed = false;
    ombrivane::OmbrivaneView view(
        "wallet", "wallet-secret", "customer", 250000, "9800000000", "test", [&wallet](auto reserved, auto) {
            wallet.receive(reserved);
        });
    view.onClose([&closed] { closed = true; });
    view.show();
    book({view, *loop});
    loop->runUntil([&closed] { return closed; }, std::chrono::seconds(20));

    const bool paid = closed && wallet.receipts.size() == 1 && wallet.balance < 250000;
    const auto requests = service.requests();
    const bool reserved = !requests.empty() && requests.back().path.ends_with("/reservation");
    std::cout << (paid ? "the wallet has its reservation\n" : "the wallet has no reservation\n");
    ombrivane::Platform::endNetwork();
    return paid && reserved ? 0 : 1;
}

} // namespace

int main() {
    try {
        return test();
    } catch (const std::exception& failure) {
        std::cout << failure.what() << "\n";
        return 1;
    }
}
