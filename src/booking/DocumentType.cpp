#include "booking/DocumentType.h"

#include "words/Words.h"

#include <array>
#include <utility>

namespace ombrivane {
namespace {

constexpr std::array<std::pair<const char*, Text>, 5> labels{{
    {passportType, Text::documentPassport},
    {"citizenship", Text::documentCitizenship},
    {"voters_id", Text::documentVotersId},
    {"birth_certificate", Text::documentBirthCertificate},
    {"minor_id", Text::documentMinorId},
}};

} // namespace

std::string documentLabel(const std::string& wireCode) {
    for (const auto& [code, label] : labels) {
        if (wireCode == code) return said(label);
    }
    return "";
}

} // namespace ombrivane
