// How a sandbox is to behave; the command line fills the same record.
#pragma once

#include "sandbox/wire/CertificateKind.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace ombrivane::sandbox {

/// On which trips travellers have to show a document.
enum class DocumentsRule {
    Auto,   ///< asked for on international trips
    Always, ///< asked for on every trip
    Never,  ///< asked for on none
};

/// All that can be said of a sandbox before it starts.
struct Options {
    std::uint64_t seed = 1; ///< of all data: the same seed makes the same offers and references
    std::uint16_t port = 0; ///< 0 takes a free one
    CertificateKind certificate = CertificateKind::Good; ///< what clients are shown
    std::filesystem::path caFile;       ///< where to write the authority; empty for a temporary folder
    std::vector<std::string> faults;    ///< "PATH KIND[=VALUE] [times=N] [after=N]"
    std::vector<std::string> scenarios; ///< by name: "sold-out"
    /// What the service's clock shows at the start; none for the real time.
    std::optional<std::chrono::sys_seconds> now;
    bool frozen = false; ///< the service's clock stands still
    std::map<std::string, std::string> clients{{"wallet", "wallet-secret"}}; ///< secret by client id
    std::optional<std::size_t> offers;             ///< per list; none for 12 to 60 by search
    DocumentsRule documents = DocumentsRule::Auto; ///< when a passport is asked for
    std::string otp = "123456";                    ///< the wallet's one-time password
};

} // namespace ombrivane::sandbox
