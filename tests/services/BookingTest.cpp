#include "records/Decode.h"
#include "services/FlightBookingProvider.h"
#include "services/HeapMeter.h"
#include "services/Outcome.h"
#include "services/PassengerDocumentsProvider.h"
#include "services/ServiceFixture.h"

#include <future>

namespace ombrivane {
namespace {

using fakes::captured;
using Booking = std::optional<FlightBooking>;

class BookingTest : public ServiceFixture {
protected:
    static Passenger passenger(const std::string& documentType) {
        Passenger passenger;
        passenger.id = *Uuid::parse("6f9619ff-8b86-d011-b42d-00c04fc964ff");
        passenger.documentType = documentType;
        return passenger;
    }
};

/// A record that cannot be encoded is told at once, and the answer to the bodiless request afterwards.
TEST_F(BookingTest, WithoutAnAvailabilityItCompletesTwice) {
    Outcome outcome;
    std::vector<Outcome> heard;
    FlightBookingProvider().reserve(
        {passenger("passport")},
        std::nullopt,
        EmergencyContact(),
        Completion<Booking>::twice([&](const Booking& booking, const std::optional<Error>& error) {
            heard.push_back({.completions = 1, .result = shown(booking), .error = error});
        }));
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_TRUE(heard[0].error && heard[0].result.is_null());
    ASSERT_EQ(world.network->sent().size(), 1U);
    EXPECT_FALSE(world.network->waiting().body);
    EXPECT_EQ(world.network->waiting().method, "POST");
    world.answer(captured("reservation").dump());
    ASSERT_EQ(heard.size(), 2U);
    EXPECT_FALSE(heard[1].error);
    EXPECT_FALSE(heard[1].result.is_null());
}

TEST_F(BookingTest, APassengerGoesOutWithoutWhatIsAbsent) {
    Outcome outcome;
    Passenger plain = passenger("");
    plain.documentIssuedDateSerialNo = "";
    FlightBookingProvider().reserve(
        {plain}, AvailabilitySummary(), EmergencyContact(), into<Booking>(outcome));
    const Json body = Json::parse(*world.network->last().body);
    EXPECT_EQ(
        body.at("passengers").dump(),
        R"([{"id":"6F9619FF-8B86-D011-B42D-00C04FC964FF","dob":"","dob_nepali":"","document_issued_date_serial_no":"",)"
        R"("document_type":"","first_name":"","gender":"","last_name":"","middle_name":"","email":"","nationality":"",)"
        R"("title":"","type":""}])");
    EXPECT_FALSE(body.at("availabilitySummary").contains("flightAvailabilityToken"));
}

/// Two points of colour, and their bytes as a file of the form.
TEST_F(BookingTest, DocumentsTravelAsAFormByteForByte) {
    const Image points{2,
                       1,
                       std::make_shared<std::vector<std::uint8_t>>(
                           std::vector<std::uint8_t>{255, 0, 0, 255, 0, 0, 255, 255})};
    const DocumentPicture picture{
        2, 1, std::make_shared<const std::string>(*platform().images->jpeg(points, 0.5))};
    const std::string png = *platform().images->pngOfJpeg(*picture.jpeg, documentLimits());
    ASSERT_NE(png.find('\0'), std::string::npos) << "so that a text function would cut it";
    Outcome outcome;
    PassengerDocumentsProvider().upload(
        {passenger("passport"), passenger("citizenship"), passenger("unused")},
        {std::nullopt, picture, std::nullopt},
        {{"p 1\"", "ADT", "A"}, {"", "INF", "B"}},
        "R1",
        into<Booking>(outcome));
    const HttpRequest& request = world.network->waiting();
    const std::string contentType = request.headers.front().second;
    ASSERT_TRUE(contentType.starts_with("multipart/form-data; boundary=Boundary-"));
    const std::string open = "--" + contentType.substr(contentType.find("Boundary-")) + "\r\n";
    const std::string disposition = "Content-Disposition: form-data; name=";
    EXPECT_EQ(request.body,
              open + disposition + "\"user_type\"\r\n\r\ncustomer\r\n" +                     //
                  open + disposition + "\"bookingReferenceID\"\r\n\r\nR1\r\n" +              //
                  open + disposition + "\"documentType[p 1\"]\"\r\n\r\npassport\r\n" +       //
                  open + disposition + "\"documentType[]\"\r\n\r\ncitizenship\r\n" +         //
                  open + disposition + "\"documentImage[]\"; filename=\"imagename.png\"\r\n" //
                  + "Content-Type: image/png\r\n\r\n" + png + "\r\n" +                       //
                  open.substr(0, open.size() - 2) + "--");
    EXPECT_EQ(request.wholeInterval.count(), 600) << "large pictures on a slow network";

    PassengerDocumentsProvider().upload({}, {}, {}, "R1", into<Booking>(outcome));
    EXPECT_NE(world.network->last().headers.front().second, contentType) << "each form has its own boundary";
}

TEST_F(BookingTest, WhoeverWasSentAndIsBookedHasHisKindOfDocument) {
    const struct {
        std::size_t passengers;
        std::size_t documents;
        std::size_t sent;
    } rows[] = {{1, 2, 1}, {2, 1, 2}, {2, 0, 2}, {0, 0, 0}, {3, 3, 2}};
    for (const auto& row : rows) {
        PassengerDocumentsProvider().upload(std::vector<Passenger>(row.passengers),
                                            std::vector<std::optional<DocumentPicture>>(row.documents),
                                            {{"P1", "", ""}, {"P2", "", ""}},
                                            "R1",
                                            [](const auto&, const auto&) {});
        const std::string form = world.network->last().body.value_or("");
        EXPECT_EQ(form.find("documentType[P1]") != std::string::npos, row.sent >= 1);
        EXPECT_EQ(form.find("documentType[P2]") != std::string::npos, row.sent >= 2);
    }
}

TEST_F(BookingTest, APictureThatCannotBeWrittenIsAnErrorBeforeAnythingIsSent) {
    Outcome outcome;
    PassengerDocumentsProvider().upload(std::vector<Passenger>(1),
                                        {DocumentPicture{2, 1, nullptr}},
                                        {{"P1", "", ""}},
                                        "R1",
                                        into<Booking>(outcome));
    ASSERT_TRUE(outcome.error);
    EXPECT_EQ(outcome.error->localizedDescription, "A document could not be sent.");
    EXPECT_TRUE(world.network->sent().empty());
}

/// Writes no picture before it may.
class AwaitedCodec final : public ImageCodec {
public:
    std::optional<Image> decode(const std::string& /*bytes*/, const PictureLimits& /*limits*/) override {
        return std::nullopt;
    }
    std::optional<std::string> jpeg(const Image& /*image*/, double /*quality*/) override { return "jpeg"; }
    std::optional<std::string> png(const Image& /*image*/) override { return "png"; }
    std::optional<std::string> pngOfJpeg(const std::string& jpeg, const PictureLimits& /*limits*/) override {
        hasBegun.set_value();
        if (mayWrite.get_future().wait_for(std::chrono::seconds(5)) == std::future_status::timeout)
            ADD_FAILURE() << "the screen waits for its picture";
        return jpeg.empty() ? std::nullopt : std::optional(jpeg);
    }
    std::promise<void> hasBegun;
    std::promise<void> mayWrite;
};

TEST_F(BookingTest, PicturesAreWrittenWhileTheScreenGoesOn) {
    for (const char* jpeg : {"a picture", ""}) {
        Platform ports = platform();
        const auto codec = std::make_shared<AwaitedCodec>();
        ports.images = codec;
        ports.background = std::make_shared<SerialQueue>("pictures");
        Platform::install(std::move(ports));
        Outcome outcome;
        PassengerDocumentsProvider().upload(
            std::vector<Passenger>(1),
            {DocumentPicture{2, 1, std::make_shared<const std::string>(jpeg)}},
            {{"P1", "", ""}},
            "R1",
            into<Booking>(outcome));
        codec->hasBegun.get_future().wait();
        EXPECT_EQ(world.network->outstanding(), 0U);
        codec->mayWrite.set_value();
        Platform::endNetwork(); // waits for the picture
        world.install();
        const bool isWritten = *jpeg != '\0';
        EXPECT_EQ(world.network->outstanding(), isWritten ? 1U : 0U);
        EXPECT_EQ(outcome.completions, isWritten ? 0 : 1);
        if (isWritten) world.answer(captured("reservation").dump());
        EXPECT_EQ(outcome.completions, 1);
    }
}

/// Takes what is sent as the network does, and joins nothing.
class CountingNetwork final : public Network {
public:
    void send(HttpRequest request, HttpCompletion /*completion*/) override {
        for (const auto& piece : request.pieces)
            bytes += piece.size();
    }
    void fetchPicture(const std::string& /*url*/, HttpCompletion /*completion*/) override {}
    std::size_t bytes = 0;
};

TEST_F(BookingTest, PicturesOfACameraTakeLittleMoreThanTheirOwnBytes) {
    constexpr int width = 4000;
    constexpr int height = 3000;
    std::vector<std::uint8_t> points(std::size_t{4} * width * height);
    for (std::size_t i = 0; i < points.size(); ++i) // like a photo: neither plain nor noise
        points[i] = i % 4 == 3
                        ? 255
                        : static_cast<std::uint8_t>((i / 40 + i / (4 * width) * 3) ^ (i * 2654435761U >> 29));
    auto jpeg = platform().images->jpeg(
        {width, height, std::make_shared<std::vector<std::uint8_t>>(std::move(points))}, 0.5);
    const DocumentPicture picture{width, height, std::make_shared<const std::string>(*std::move(jpeg))};
    const std::size_t travellers = 3;
    Platform ports = platform();
    const auto network = std::make_shared<CountingNetwork>();
    ports.network = network;
    Platform::install(ports);
    const std::vector<FlightBookingPassenger> booked(travellers, {"P", "", ""});
    const HeapMeter meter;
    PassengerDocumentsProvider().upload(std::vector<Passenger>(travellers),
                                        std::vector<std::optional<DocumentPicture>>(travellers, picture),
                                        booked,
                                        "R1",
                                        [](const auto&, const auto&) {});
    EXPECT_GT(network->bytes, travellers * 1'000'000);
    EXPECT_LT(meter.peak(), network->bytes + 64 * limits::mebibyte);
}

} // namespace
} // namespace ombrivane
