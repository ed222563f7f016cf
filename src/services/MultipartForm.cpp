#include "services/MultipartForm.h"

#include "support/Uuid.h"

#include <fmt/core.h>

namespace ombrivane {

MultipartForm::MultipartForm() : boundary_("Boundary-" + Uuid::random().text()) {}

std::string MultipartForm::contentType() const { return "multipart/form-data; boundary=" + boundary_; }

void MultipartForm::addText(std::string_view name, std::string_view value) {
    bytes_ += fmt::format(
        "--{}\r\nContent-Disposition: form-data; name=\"{}\"\r\n\r\n{}\r\n", boundary_, name, value);
}

void MultipartForm::addFile(std::string_view name, std::string_view fileName, std::string_view type,
                            std::string_view data) {
    bytes_ += fmt::format("--{}\r\nContent-Disposition: form-data; name=\"{}\"; filename=\"{}\"\r\n",
                          boundary_,
                          name,
                          fileName);
    bytes_ += fmt::format("Content-Type: {}\r\n\r\n", type);
    bytes_.append(data).append("\r\n");
}

std::string MultipartForm::finished() const { return bytes_ + "--" + boundary_ + "--"; }

} // namespace ombrivane
