// How a sandbox is to behave; the command line fills the same record.
#pragma once

#include "sandbox/wire/Certificates.h"
#include "sandbox/world/Dates.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace ombrivane::sandbox {

enum class DocumentsRule {
    Auto,   ///< asked for on international trips
    Always, ///< asked for on every trip
    Never,
};

struct Options {
    std::uint64_t seed = 1;
    std::uint16_t port = 0; ///< 0 takes a free one
    CertificateKind certificate = CertificateKind::Good;
    std::filesystem::path caFile;       ///< where to write the authority; empty for a temporary folder
    std::vector<std::string> faults;    ///< "PATH KIND[=VALUE] [times=N] [after=N]"
    std::vector<std::string> scenarios; ///< see `scenarios()`
    std::optional<Instant> now; ///< what the service's clock shows at the start; none for the real time
    bool frozen = false;        ///< the service's clock stands still
    std::map<std::string, std::string> clients{{"wallet", "wallet-secret"}}; ///< secret by client id
    std::optional<std::size_t> offers; ///< per list; none for 12 to 60 by search
    DocumentsRule documents = DocumentsRule::Auto;
    std::string otp = "123456";
};

} // namespace ombrivane::sandbox
