#include "sandbox/wire/Multipart.h"

#include "sandbox/wire/Refusal.h"

#include <fmt/format.h>

#include <algorithm>

namespace ombrivane::sandbox {

namespace {

constexpr std::string_view lineEnd = "\r\n";

/// "Boundary-" and a UUID.
std::string boundaryOf(const std::string& contentType) {
    constexpr std::string_view start = "multipart/form-data; boundary=";
    constexpr std::string_view shape = "Boundary-XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX";
    if (contentType.compare(0, start.size(), start) != 0)
        throw Refusal("The Content-Type must be multipart/form-data; boundary=...");
    const std::string boundary = contentType.substr(start.size());
    const bool hasShape =
        std::equal(boundary.begin(), boundary.end(), shape.begin(), shape.end(), [](char letter, char place) {
            if (place != 'X') return letter == place;
            return std::string_view("0123456789abcdefABCDEF").find(letter) != std::string_view::npos;
        });
    if (!hasShape) throw Refusal("The boundary must be \"Boundary-\" and a UUID.");
    return boundary;
}

class FormReader {
public:
    FormReader(std::string_view body, const std::string& boundary) :
        rest_(body), delimiter_("--" + boundary) {}

    std::vector<FormPart> parts() {
        std::vector<FormPart> parts;
        expect(delimiter_, "The body must start with the boundary.");
        while (!take("--")) {
            expect(lineEnd, "A boundary must end its line with CR LF.");
            parts.push_back(part());
        }
        if (!rest_.empty()) throw Refusal("Nothing may stand behind the closing boundary.");
        return parts;
    }

private:
    bool take(std::string_view text) {
        if (rest_.substr(0, text.size()) != text) return false;
        rest_.remove_prefix(text.size());
        return true;
    }

    void expect(std::string_view text, const char* complaint) {
        if (!take(text)) throw Refusal(complaint);
    }

    std::string_view upTo(std::string_view end, const char* complaint) {
        const std::size_t at = rest_.find(end);
        if (at == std::string_view::npos) throw Refusal(complaint);
        const std::string_view found = rest_.substr(0, at);
        rest_.remove_prefix(at + end.size());
        return found;
    }

    FormPart part() {
        FormPart part;
        expect("Content-Disposition: form-data; name=\"", "A part must start with its Content-Disposition.");
        std::string_view names = upTo("\"\r\n", "A Content-Disposition must end with a quote and CR LF.");
        if (names.find_first_of(lineEnd) != std::string_view::npos)
            throw Refusal("A Content-Disposition must end with a quote and CR LF.");
        constexpr std::string_view fileName = "\"; filename=\"";
        const std::size_t at = names.find(fileName);
        part.name = names.substr(0, at);
        if (at != std::string_view::npos) {
            part.fileName = names.substr(at + fileName.size());
            expect("Content-Type: ", "A file part must have a Content-Type.");
            part.contentType = upTo(lineEnd, "A Content-Type must end with CR LF.");
        }
        expect(lineEnd, "An empty line must stand between the headers of a part and its data.");
        part.data =
            upTo(std::string(lineEnd) + delimiter_, "A part does not end with CR LF and the boundary.");
        // The boundary behind a bare line feed would make two parts one.
        if (part.data.find(delimiter_) != std::string_view::npos)
            throw Refusal("A part does not end with CR LF and the boundary.");
        return part;
    }

    std::string_view rest_;
    std::string delimiter_;
};

} // namespace

std::vector<FormPart> parseForm(const std::string& contentType, std::string_view body) {
    return FormReader(body, boundaryOf(contentType)).parts();
}

} // namespace ombrivane::sandbox
