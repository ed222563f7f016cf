#pragma once

#include <optional>
#include <string>
#include <vector>

namespace ombrivane::demo {

/// The command line of the demo wallet.
struct DemoOptions {
    std::string testHost; ///< empty: a sandbox inside of the program
    std::string ca;
    std::string clientId = "wallet";
    std::string clientSecret = "wallet-secret";
    double walletBalance = 250000;
    std::string script;         ///< plays it against the pages; "-" for the standard input
    std::string pictures = "."; ///< folder of the pictures that a script's "look" takes
    std::string picture;        ///< takes a picture of the first screen and ends
    std::vector<std::string> faults;
    std::vector<std::string> scenarios;
    std::string now;
    std::string locale;                  ///< such as "ne_NP"; empty for the system's
    std::optional<std::string> language; ///< what the wallet chooses: a tag, or "device"
    std::optional<std::string> region;   ///< such as "NP"
    std::string timeZone;                ///< such as "Asia/Kathmandu"; empty for the system's
    bool dark = false;                   ///< dark whatever the device says
    std::optional<double> textScale;     ///< absent: as the device says
    int brand = 0;                       ///< the position in the wallet's brands; -1 for none
    bool strip = false;                  ///< shows the strip of conditions in a script too
    int width = 390;                     ///< of the phone, without the strip
    int height = 844;
    bool stillMotion = false; ///< without motion whatever the device says
    bool stays = false;       ///< does not end with its script
    int pace = 0;             ///< milliseconds that a script stands still at each new screen
    bool help = false;

    /// Whether a customer uses it, and no script.
    bool isByHand() const { return script.empty() && picture.empty(); }

    /// @throws std::invalid_argument that says what is wrong: an option, its value, or a script that is not
    /// there
    static DemoOptions parse(const std::vector<std::string>& arguments);
    static std::string usage();
};

} // namespace ombrivane::demo
