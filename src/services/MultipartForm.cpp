#include "services/MultipartForm.h"

#include "base/Uuid.h"

#include <fmt/core.h>

#include <utility>

namespace ombrivane {

MultipartForm::MultipartForm() : boundary_("Boundary-" + Uuid::random().text()) {}

std::string MultipartForm::contentType() const { return "multipart/form-data; boundary=" + boundary_; }

void MultipartForm::addText(std::string_view name, std::string_view value) {
    pieces_.push_back(fmt::format(
        "--{}\r\nContent-Disposition: form-data; name=\"{}\"\r\n\r\n{}\r\n", boundary_, name, value));
}

void MultipartForm::addFile(std::string_view name, std::string_view fileName, std::string_view type,
                            std::string data) {
    pieces_.push_back(fmt::format("--{}\r\nContent-Disposition: form-data; name=\"{}\"; filename=\"{}\"\r\n"
                                  "Content-Type: {}\r\n\r\n",
                                  boundary_,
                                  name,
                                  fileName,
                                  type));
    pieces_.push_back(std::move(data));
    pieces_.emplace_back("\r\n");
}

std::vector<std::string> MultipartForm::finished() {
    pieces_.push_back("--" + boundary_ + "--");
    return std::exchange(pieces_, {});
}

} // namespace ombrivane
