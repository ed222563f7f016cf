#include "tests/sandbox/BookingFixture.h"

#include "sandbox/wire/Multipart.h"
#include "sandbox/wire/Refusal.h"
#include "sandbox/world/Logos.h"

#include <functional>

namespace ombrivane::sandbox {

namespace {

const std::string boundary = "Boundary-0F8FAD5B-D9CB-469F-A165-70867728950E";
const std::string formType = "multipart/form-data; boundary=" + boundary;

std::string textPart(const std::string& name, const std::string& value) {
    return "--" + boundary + "\r\nContent-Disposition: form-data; name=\"" + name + "\"\r\n\r\n" + value +
           "\r\n";
}

std::string filePart(const std::string& name, const std::string& data,
                     const std::string& file = "imagename.png", const std::string& type = "image/png") {
    return "--" + boundary + "\r\nContent-Disposition: form-data; name=\"" + name + "\"; filename=\"" + file +
           "\"\r\nContent-Type: " + type + "\r\n\r\n" + data + "\r\n";
}

std::string replaced(std::string text, const std::string& what, const std::string& with) {
    return text.replace(text.find(what), what.size(), with);
}

TEST(Form, IsReadToTheLastByte) {
    const std::string data("a\r\n--Boundary\0b\r\n", 17);
    const std::string body =
        textPart("user_type", "") + filePart("documentImage[7]", data) + "--" + boundary + "--";
    const auto parts = parseForm(formType, body);
    ASSERT_EQ(parts.size(), 2U);
    EXPECT_EQ(parts[0].name, "user_type");
    EXPECT_EQ(parts[0].fileName, std::nullopt);
    EXPECT_EQ(parts[0].data, "");
    EXPECT_EQ(parts[1].name, "documentImage[7]");
    EXPECT_EQ(parts[1].fileName, "imagename.png");
    EXPECT_EQ(parts[1].contentType, "image/png");
    EXPECT_EQ(parts[1].data, data);
}

TEST(Form, IsRefusedForAnyOtherShape) {
    const std::string good = textPart("a", "1") + filePart("b", "2") + "--" + boundary + "--";
    const std::vector<std::pair<std::string, std::string>> wrong{
        {good + "\r\n", "Nothing may stand behind the closing boundary."},
        {"\r\n" + good, "The body must start with the boundary."},
        {replaced(good, "\"a\"\r\n", "\"a\"\n"), "A Content-Disposition must end with a quote and CR LF."},
        {replaced(good, "\r\n\r\n1", "\r\nContent-Type: text/plain\r\n\r\n1"),
         "An empty line must stand between the headers of a part and its data."},
        {replaced(good, "Content-Type: image/png\r\n", ""), "A file part must have a Content-Type."},
        {replaced(good, "1\r\n--", "1\n--"), "A part does not end with CR LF and the boundary."},
        {good.substr(0, good.size() - 2), "A boundary must end its line with CR LF."},
        {good.substr(0, good.size() - 20), "A part does not end with CR LF and the boundary."},
    };
    EXPECT_EQ(parseForm(formType, good).size(), 2U);
    for (const auto& [body, complaint] : wrong) {
        try {
            parseForm(formType, body);
            ADD_FAILURE() << complaint;
        } catch (const Refusal& refusal) {
            EXPECT_EQ(refusal.what(), complaint);
        }
    }
    for (const std::string& type : {std::string("application/json"),
                                    "multipart/form-data; boundary=" + std::string("x"),
                                    "multipart/form-data;boundary=" + boundary})
        EXPECT_THROW(parseForm(type, good), Refusal) << type;
}

class Upload : public BookingFixture {
protected:
    Upload() {
        opened_ = openFamilyBooking();
        summary_ = reserve(opened_, family()).at("data").at("bookingSummary");
    }

    std::string id(std::size_t i) const {
        return summary_["passengers"][i]["passenger_id"].get<std::string>();
    }

    std::string head() const {
        return textPart("user_type", "customer") +
               textPart("bookingReferenceID", summary_["bookingReferenceID"].get<std::string>());
    }

    std::string person(std::size_t i) const {
        return textPart("documentType[" + id(i) + "]", "passport") +
               filePart("documentImage[" + id(i) + "]", picture_);
    }

    Json upload(const std::string& parts) {
        return Json::parse(client_
                               .send({"POST",
                                      "/api/b2b/v2/documents",
                                      {"Content-Type: " + formType, client_.authorization()},
                                      parts + "--" + boundary + "--"})
                               .body());
    }

    Json opened_;
    Json summary_;
    std::string picture_ = logoPng(airlines().front());
};

TEST_F(Upload, IsAnsweredWithTheReservation) {
    EXPECT_EQ(upload(head() + person(0) + person(1) + person(2)),
              Json({{"success", true}, {"data", {{"bookingSummary", summary_}}}}));
}

TEST_F(Upload, SaysWhatIsWrong) {
    const std::string image = "documentImage[" + id(0) + "]";
    const std::string type = textPart("documentType[" + id(0) + "]", "passport");
    const std::string rest = person(1) + person(2);
    const std::vector<std::pair<std::string, std::string>> wrong{
        {head() + person(1) + person(0) + person(2),
         "Part 3 of the form must be documentType[" + id(0) + "]."},
        {head() + person(0) + person(1), "Part 7 of the form must be documentType[" + id(2) + "]."},
        {head() + person(0) + rest + person(2),
         "The part documentType[" + id(2) + "] does not belong there."},
        {head() + type + rest, "Part 4 of the form must be " + image + "."},
        {replaced(head(), "customer", "agent") + person(0) + rest,
         "The user_type is not the one of the token."},
        {head() + replaced(person(0), "passport", "minor_id") + rest,
         "documentType[" + id(0) + "] is not the type of the reservation."},
        {head() + type + filePart(image, picture_, "passport.png") + rest, image + " must be imagename.png."},
        {head() + type + filePart(image, picture_, "imagename.png", "image/jpeg") + rest,
         image + " must be image/png."},
        {head() + type + filePart(image, "\xFF\xD8\xFF\xE0 JFIF") + rest,
         image + " is no PNG picture: it has no PNG signature."},
    };
    for (const auto& [parts, complaint] : wrong)
        EXPECT_EQ(ServiceClient::error(upload(parts)), complaint);
    const std::string cut = picture_.substr(0, picture_.size() * 2 / 3);
    EXPECT_NE(ServiceClient::error(upload(head() + type + filePart(image, cut) + rest)), "")
        << "a picture cut short";
    EXPECT_EQ(ServiceClient::error(upload(head() + person(0) + rest)), "");
}

} // namespace

} // namespace ombrivane::sandbox
