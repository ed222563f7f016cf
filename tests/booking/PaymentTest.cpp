#include "Wallet.h"

#include <gtest/gtest.h>

namespace ombrivane {
namespace {

using namespace std::chrono_literals;
using Heard = std::vector<std::string>;

constexpr const char* refusedPayment = R"({"success":false,"data":{"error":"Wrong password."}})";

/// The payment in place of a session's content, entered as no step of the session does.
class PaymentTest : public testing::TestWithParam<std::tuple<Trip, bool>> {
protected:
    void pay() {
        wallet.toReady();
        wallet.set(session + ".showPaymentView", true);
    }
    void toTicket() {
        pay();
        wallet.answer();
        wallet.tap("payment.button");
        wallet.answer();
    }
    Json at(const std::string& key) const { return wallet.get(session + "." + key); }

    fakes::World world;
    const Trip trip = std::get<Trip>(GetParam());
    const std::string session = trip.session;
    Wallet wallet{world, trip, std::get<bool>(GetParam())};
};

INSTANTIATE_TEST_SUITE_P(Trips, PaymentTest,
                         testing::Combine(testing::Values(oneWayTrip, roundTrip), testing::Values(false)),
                         tripName);

TEST_P(PaymentTest, OpensAnOrderAndConfirmsItWithThePasswordAsOftenAsItTakes) {
    wallet.toReady();
    EXPECT_EQ(wallet.sentTo("kolmiwallet-generate-order"), 0U);
    wallet.set(session + ".showPaymentView", true);
    EXPECT_EQ(at("phase"), "paying");
    EXPECT_EQ(at("showsFoot"), false);
    EXPECT_EQ(wallet.waitingFor(), "kolmiwallet-generate-order");
    wallet.expectWait(session + ".payment",
                      "Preparing the payment",
                      "This takes longer than usual. You can wait, or go back.");
    EXPECT_EQ(wallet.lastSent()["partner"], "kolmiWallet");
    EXPECT_EQ(wallet.lastSent()["issuersNumber"], "9801234567");
    EXPECT_EQ(wallet.lastSent()["transactionID"], "");
    wallet.tap("payment.button");
    EXPECT_EQ(wallet.sentTo("kolmiwallet-confirm-order"), 0U) << "covered by the progress";
    wallet.fail();
    EXPECT_EQ(at("errorMessage"), "The request timed out.");
    EXPECT_EQ(at("payment.hasOrder"), false);
    EXPECT_EQ(at("payment.route"), "Kathmandu (KTM) - New York (JFK)");
    EXPECT_EQ(at("payment.amount"), "NPR 80,000");

    EXPECT_EQ(at("payment.otpError"), "") << "no password was refused yet";

    wallet.tap("payment.typeOtp", "1234");
    wallet.tap("payment.button");
    EXPECT_EQ(wallet.lastSent()["otp"], "1234");
    wallet.expectWait(session + ".payment",
                      "Confirming the payment",
                      "This takes longer than usual. Please wait, and do not pay a second time.");
    wallet.answer(Json::parse(refusedPayment));
    EXPECT_EQ(at("payment.otpError"), "Wrong password.");
    wallet.expectNoWait(session + ".payment");
    EXPECT_EQ(at("errorMessage"), "Wrong password.");
    EXPECT_EQ(at("showSnackBar"), true);
    EXPECT_EQ(at("payment.otpText"), "1234");
    EXPECT_EQ(wallet.top(), session);
    wallet.tap("payment.button");
    wallet.fail();
    EXPECT_EQ(at("payment.otpError"), "") << "the network says nothing about it";
    EXPECT_EQ(wallet.top(), session);
    wallet.tap("payment.button");
    wallet.answer(Json::parse(refusedPayment));
    wallet.tap("payment.typeOtp", "123");
    EXPECT_EQ(at("payment.otpError"), "");
    wallet.tap("payment.button");
    wallet.answer();
    EXPECT_TRUE(wallet.top().ends_with("BookingConfirmationView"));
    EXPECT_EQ(wallet.waitingFor(), "issue-ticket");
    EXPECT_EQ(wallet.lastSent()["PNR"], "PJZGBL");
    EXPECT_EQ(wallet.sentTo("kolmiwallet-generate-order"), 1U);
}

TEST_P(PaymentTest, ATicketIsReportedShownSharedAndLeftToTheSearch) {
    toTicket();
    EXPECT_EQ(wallet.get("flightBlocks").size(), session == "OWBookingDetailsView" ? 1U : 2U);
    wallet.tap("back");
    EXPECT_TRUE(wallet.top().ends_with("BookingConfirmationView")) << "dead until the ticket is there";
    constexpr const char* byEmail =
        "This takes longer than usual. The booking stands, and the ticket comes by email as well.";
    wallet.expectWait(wallet.top(), "Issuing the ticket", byEmail);
    wallet.answer();
    wallet.expectNoWait(wallet.top());
    EXPECT_EQ(wallet.heard, Heard{"progress"});
    const Json blocks = wallet.get("passengerBlocks");
    ASSERT_EQ(blocks.size(), 4U);
    EXPECT_EQ(blocks[3]["title"], "Passenger 4");
    EXPECT_NE(blocks[3].dump().find("529-3726572475"), std::string::npos);

    wallet.tap("downloadTicket");
    wallet.expectWait(wallet.top(), "Fetching the ticket", byEmail);
    wallet.tap("share");
    EXPECT_EQ(wallet.sentTo("download-ticket"), 1U);
    EXPECT_EQ(wallet.lastSent()["ticketReferenceID"], "TKTP7BKBF2NLU9");
    wallet.fail();
    EXPECT_EQ(wallet.get("errorMessage"), "The request timed out.");
    wallet.tap("share");
    wallet.answer(Json{{"success", true}, {"data", {{"eticketLink", ""}}}});
    EXPECT_TRUE(world.sharing->shared.empty()) << "no link, no sheet";
    EXPECT_EQ(wallet.get("showProgressView"), false);
    for (const char* link : {"http://tickets.example/1", "file:///etc/passwd", "tel:1", "javascript:go()"}) {
        wallet.tap("share");
        wallet.answer(Json{{"success", true}, {"data", {{"eticketLink", link}}}});
        EXPECT_TRUE(world.sharing->shared.empty()) << link;
        EXPECT_EQ(wallet.get("errorMessage"), "The provided url is not valid.");
    }
    wallet.tap("downloadTicket");
    wallet.answer();
    EXPECT_EQ(world.sharing->shared, Heard{"https://localhost:8443/tickets/TKTP7BKBF2NLU9"});

    wallet.tap("back");
    EXPECT_EQ(wallet.heard, (Heard{"progress", "close"}));
}

TEST_P(PaymentTest, ATicketThatFailsEndsAtTheSearchAfterThreeSecondsAndInSilence) {
    toTicket();
    wallet.fail();
    EXPECT_EQ(wallet.get("showSnackBar"), true);
    EXPECT_EQ(wallet.get("errorMessage"), "");
    wallet.expectNoWait(wallet.top());
    world.pass(2999ms);
    EXPECT_TRUE(wallet.top().ends_with("BookingConfirmationView"));
    world.pass(1ms);
    EXPECT_EQ(wallet.top(), "OmbrivaneView");
    EXPECT_TRUE(wallet.heard.empty());
}

} // namespace
} // namespace ombrivane
