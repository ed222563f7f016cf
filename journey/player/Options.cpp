#include "Options.h"

#include <functional>
#include <map>
#include <sstream>
#include <stdexcept>

namespace ombrivane::journey {
namespace {

[[noreturn]] void refuse(const std::string& what) { throw std::invalid_argument(what); }

double number(const std::string& text) {
    std::size_t read = 0;
    double value = 0;
    try {
        value = std::stod(text, &read);
    } catch (const std::exception&) {
        read = 0;
    }
    if (read == 0 || read != text.size()) refuse("no number: " + text);
    return value;
}

SystemVersion systemVersion(const std::string& text) {
    SystemVersion version;
    std::istringstream in(text);
    char dot = 0;
    in >> version.name >> version.major;
    if (!in) refuse("no system such as \"iOS 13.7\": " + text);
    in >> dot >> version.minor;
    return version;
}

Date date(const std::string& text) {
    const auto parsed = parseIso(text);
    if (!parsed) refuse("no time such as 2026-11-21T09:30:00Z: " + text);
    return *parsed;
}

} // namespace

Options Options::parse(const std::vector<std::string>& arguments) {
    using Value = const std::string&;
    Options options;
    const std::map<std::string, std::function<void(Value)>> valued{
        {"--test-host", [&](Value value) { options.testHost = value; }},
        {"--production-host", [&](Value value) { options.productionHost = value; }},
        {"--ca", [&](Value value) { options.ca = value; }},
        {"--client-id", [&](Value value) { options.clientId = value; }},
        {"--client-secret", [&](Value value) { options.clientSecret = value; }},
        {"--user-type", [&](Value value) { options.userType = value; }},
        {"--wallet-balance", [&](Value value) { options.walletBalance = number(value); }},
        {"--phone", [&](Value value) { options.phone = value; }},
        {"--environment", [&](Value value) { options.environment = value; }},
        {"--now", [&](Value value) { options.now = date(value); }},
        {"--time-zone", [&](Value value) { options.timeZone = value; }},
        {"--locale", [&](Value value) { options.locale = value; }},
        {"--fonts", [&](Value value) { options.fonts = value; }},
        {"--record", [&](Value value) { options.record = value; }},
        {"--system", [&](Value value) { options.system = systemVersion(value); }},
        {"--reachability",
         [&](Value value) { options.reachability = static_cast<std::uint32_t>(number(value)); }},
    };
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument == "--help") {
            options.help = true;
        } else if (argument == "--diagnostics") {
            options.diagnostics = true;
        } else if (const auto option = valued.find(argument); option != valued.end()) {
            if (++i == arguments.size()) refuse(argument + " wants a value");
            option->second(arguments[i]);
        } else if (argument.starts_with("--")) {
            refuse("there is no option " + argument);
        } else {
            options.script = argument;
        }
    }
    return options;
}

std::string Options::usage() {
    return "ombrivane-journey [OPTIONS] SCRIPT\n"
           "A wallet without a window: opens the component, follows a script (a file, or - for the standard "
           "input) and\n"
           "prints what the host receives, one JSON object a line.\n\n"
           "  --test-host URL         booking service for the environment \"test\"\n"
           "  --production-host URL   booking service for every other environment\n"
           "  --ca FILE               certificates to trust in place of the platform's\n"
           "  --client-id TEXT        --client-secret TEXT    the wallet's credentials\n"
           "  --user-type TEXT        --wallet-balance NUMBER --phone TEXT    --environment TEXT\n"
           "                          what the host passes in; nil where left out\n"
           "  --now ISO-TIME          the clock starts there\n"
           "  --time-zone NAME        such as Asia/Kathmandu\n"
           "  --locale NAME           such as en_US\n"
           "  --system TEXT           such as \"iOS 13.7\"\n"
           "  --reachability FLAGS    the flag word of the network; measured where left out\n"
           "  --fonts FOLDER          where the component finds its fonts; it finds none where left out\n"
           "  --record FILE           writes the last opening there, as a script that plays again\n"
           "  --diagnostics           prints the component's diagnostic lines as well\n\n"
           "Exit status: 0 the script is done, 1 an expectation failed, 2 a line or an option is bad, 3 a "
           "fault.\n\n";
}

} // namespace ombrivane::journey
