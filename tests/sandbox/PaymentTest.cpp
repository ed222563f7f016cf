#include "tests/sandbox/BookingFixture.h"

namespace ombrivane::sandbox {

namespace {

class Payment : public BookingFixture {
protected:
    /// A domestic booking needs no documents before it is paid for.
    Payment() {
        Json travellers = family();
        for (Json& traveller : travellers)
            traveller["document_type"] = "citizenship";
        summary_ = reserve(openFamilyBooking("PKR"), travellers).at("data").at("bookingSummary");
    }

    Json order(const std::string& reference) {
        return client_.post("/kolmiwallet-generate-order",
                            {{"user_type", "customer"},
                             {"bookingReferenceID", reference},
                             {"partner", "kolmiWallet"},
                             {"transactionID", ""},
                             {"issuersNumber", ""}});
    }

    Json confirm(const std::string& reference, const std::string& transaction, const std::string& otp) {
        return client_.post("/kolmiwallet-confirm-order",
                            {{"user_type", "customer"},
                             {"bookingReferenceID", reference},
                             {"transactionID", transaction},
                             {"otp", otp}});
    }

    Json issue(const std::string& pnr) {
        return client_.post("/issue-ticket",
                            {{"user_type", "customer"},
                             {"bookingReferenceID", summary_["bookingReferenceID"]},
                             {"PNR", pnr},
                             {"tripType", "oneway"},
                             {"currency", "NPR"}});
    }

    Json summary_;
};

TEST_F(Payment, LeadsFromTheOrderToTheTicketPage) {
    const std::string reference = summary_["bookingReferenceID"].get<std::string>();
    const std::string pnr = summary_["PNR"].get<std::string>();
    EXPECT_EQ(ServiceClient::error(confirm("", "", "123456")), "There is no order for this booking.");
    const Json payment = order(reference).at("data").at("paymentSummary");
    EXPECT_EQ(payment["amount"], summary_["fareInformation"]["total_cost"]);
    EXPECT_EQ(payment["departureAirport"], "Kathmandu (KTM)");
    EXPECT_FALSE(payment.contains("returnDate"));
    const std::string transaction = payment["transactionID"].get<std::string>();

    EXPECT_EQ(ServiceClient::error(confirm(reference, transaction, "123456 ")), "Invalid OTP.");
    EXPECT_EQ(ServiceClient::error(confirm(reference, "TX0", "123456")), "The transaction is not known.");
    EXPECT_EQ(ServiceClient::error(issue(pnr)), "The booking has not been paid for.");
    Json expected = summary_;
    expected.erase("fareInformation");
    EXPECT_EQ(confirm(reference, transaction, "123456").at("data").at("bookingSummary"), expected);
    EXPECT_EQ(ServiceClient::error(confirm(reference, transaction, "123456")),
              "The booking has been paid for already.");

    EXPECT_EQ(ServiceClient::error(issue("")), "The PNR is not the one of the booking.");
    const Json ticket = issue(pnr).at("data");
    EXPECT_EQ(ticket, issue(pnr).at("data")) << "asking again gives the same ticket";
    EXPECT_EQ(ticket["ticketSummary"]["issued_date"], "2026-03-01");
    ASSERT_EQ(ticket["passengers"].size(), 3U);
    EXPECT_EQ(ticket["passengers"][0]["PNR"], pnr);
    const std::string link = client_
                                 .post("/download-ticket",
                                       {{"user_type", "customer"},
                                        {"ticketReferenceID", ticket["ticketSummary"]["ticketReferenceID"]}})
                                 .at("data")
                                 .at("eticketLink")
                                 .get<std::string>();
    const WireAnswer page = client_.send({"GET", link.substr(client_.sandbox().address().size()), {}, ""});
    EXPECT_NE(page.body().find(ticket["passengers"][0]["eticket_number"].get<std::string>()),
              std::string::npos);
}

TEST_F(Payment, TakesEmptyReferencesAsTheLastReservation) {
    EXPECT_EQ(order("").at("data").at("paymentSummary").at("bookingReferenceID"),
              summary_["bookingReferenceID"]);
    EXPECT_EQ(confirm("", "", "123456").at("data").at("bookingSummary").at("PNR"), summary_["PNR"]);
}

TEST_F(Payment, WaitsForTheDocumentsOfATripAbroad) {
    reserve(openFamilyBooking("DOH"), family());
    EXPECT_EQ(ServiceClient::error(order("")), "The travel documents have not been uploaded.");
}

} // namespace

} // namespace ombrivane::sandbox
