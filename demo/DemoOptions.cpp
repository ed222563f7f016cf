#include "DemoOptions.h"

#include <functional>
#include <map>
#include <stdexcept>

namespace ombrivane::demo {

DemoOptions DemoOptions::parse(const std::vector<std::string>& arguments) {
    using Value = const std::string&;
    DemoOptions options;
    const std::map<std::string, std::function<void(Value)>> valued{
        {"--test-host", [&](Value value) { options.testHost = value; }},
        {"--ca", [&](Value value) { options.ca = value; }},
        {"--client-id", [&](Value value) { options.clientId = value; }},
        {"--client-secret", [&](Value value) { options.clientSecret = value; }},
        {"--wallet-balance", [&](Value value) { options.walletBalance = std::stod(value); }},
        {"--script", [&](Value value) { options.script = value; }},
        {"--pictures", [&](Value value) { options.pictures = value; }},
        {"--picture", [&](Value value) { options.picture = value; }},
        {"--fault", [&](Value value) { options.faults.push_back(value); }},
        {"--now", [&](Value value) { options.now = value; }},
        {"--locale", [&](Value value) { options.locale = value; }},
        {"--language", [&](Value value) { options.language = value; }},
        {"--region", [&](Value value) { options.region = value; }},
        {"--time-zone", [&](Value value) { options.timeZone = value; }},
        {"--text-scale", [&](Value value) { options.textScale = std::stod(value); }},
        {"--width", [&](Value value) { options.width = std::stoi(value); }},
        {"--height", [&](Value value) { options.height = std::stoi(value); }},
    };
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument == "--help") {
            options.help = true;
        } else if (argument == "--dark") {
            options.dark = true;
        } else if (argument == "--still") {
            options.stillMotion = true;
        } else if (argument == "--slow") {
            options.faults.emplace_back("* latency=1500");
        } else if (const auto option = valued.find(argument); option != valued.end()) {
            if (++i == arguments.size()) throw std::invalid_argument(argument + " wants a value");
            option->second(arguments[i]);
        } else {
            throw std::invalid_argument("there is no option " + argument);
        }
    }
    return options;
}

std::string DemoOptions::usage() {
    return "ombrivane-demo [OPTIONS]\n"
           "A wallet with a window: a balance, a tile that opens the component, and what it handed back. "
           "Without\n"
           "--test-host it runs a booking service of its own on this machine.\n\n"
           "  --test-host URL      --ca FILE          another booking service, and the certificates to "
           "trust\n"
           "  --client-id TEXT     --client-secret TEXT\n"
           "  --wallet-balance N   --now ISO-TIME\n"
           "  --locale NAME        --time-zone NAME   in place of the system's own\n"
           "  --language TAG       --region NAME      what the wallet chooses: ne, ar, device; NP\n"
           "  --dark               --text-scale N     --width N   --height N   --still (no motion)\n"
           "  --slow               --fault TEXT       trouble of the own booking service, see "
           "docs/sandbox.md\n"
           "  --script FILE        plays a script against the pages; it knows three commands more:\n"
           "                       texts (every visible text), picture FILE, and look NAME, which takes\n"
           "                       a picture into the folder of --pictures DIR\n"
           "  --picture FILE       takes a picture of the first screen and ends\n";
}

} // namespace ombrivane::demo
