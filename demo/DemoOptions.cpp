#include "DemoOptions.h"

#include "Brands.h"
#include "base/Date.h"

#include <filesystem>
#include <functional>
#include <map>
#include <stdexcept>

namespace ombrivane::demo {
namespace {

constexpr int largest = 10000;

/// All of `text` as a number from `least` to `most`.
double number(const std::string& text, double least, double most) {
    std::size_t read = 0;
    double value = least - 1;
    try {
        value = std::stod(text, &read);
    } catch (const std::logic_error&) {
        read = 0;
    }
    if (read == 0 || read != text.size() || !(value >= least && value <= most))
        throw std::invalid_argument(text + " is no number that can be used here");
    return value;
}

int whole(const std::string& text, int least, int most) {
    return static_cast<int>(number(text, least, most));
}

/// `text`, where it is a time.
std::string time(const std::string& text) {
    if (!parseIso(text)) throw std::invalid_argument(text + " is no time such as 2026-11-21T03:30:00Z");
    return text;
}

void checkScript(const std::string& script) {
    if (script.empty() || script == "-" || std::filesystem::is_regular_file(script)) return;
    throw std::invalid_argument("there is no script " + script);
}

} // namespace

DemoOptions DemoOptions::parse(const std::vector<std::string>& arguments) {
    using Value = const std::string&;
    DemoOptions options;
    const std::map<std::string, std::function<void(Value)>> valued{
        {"--test-host", [&](Value value) { options.testHost = value; }},
        {"--ca", [&](Value value) { options.ca = value; }},
        {"--client-id", [&](Value value) { options.clientId = value; }},
        {"--client-secret", [&](Value value) { options.clientSecret = value; }},
        {"--wallet-balance", [&](Value value) { options.walletBalance = number(value, 0, 1e12); }},
        {"--script", [&](Value value) { options.script = value; }},
        {"--pictures", [&](Value value) { options.pictures = value; }},
        {"--picture", [&](Value value) { options.picture = value; }},
        {"--fault", [&](Value value) { options.faults.push_back(value); }},
        {"--scenario", [&](Value value) { options.scenarios.push_back(value); }},
        {"--brand",
         [&](Value value) { options.brand = whole(value, 0, static_cast<int>(brands().size())) - 1; }},
        {"--now", [&](Value value) { options.now = time(value); }},
        {"--locale", [&](Value value) { options.locale = value; }},
        {"--language", [&](Value value) { options.language = value; }},
        {"--region", [&](Value value) { options.region = value; }},
        {"--time-zone", [&](Value value) { options.timeZone = value; }},
        {"--text-scale", [&](Value value) { options.textScale = number(value, 0.5, 4); }},
        {"--pace", [&](Value value) { options.pace = whole(value, 0, largest); }},
        {"--width", [&](Value value) { options.width = whole(value, 100, largest); }},
        {"--height", [&](Value value) { options.height = whole(value, 100, largest); }},
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
        } else if (argument == "--stay") {
            options.stays = true;
        } else if (argument == "--strip") {
            options.strip = true;
        } else if (const auto option = valued.find(argument); option != valued.end()) {
            if (++i == arguments.size()) throw std::invalid_argument(argument + " wants a value");
            option->second(arguments[i]);
        } else {
            throw std::invalid_argument("there is no option " + argument);
        }
    }
    checkScript(options.script);
    return options;
}

std::string DemoOptions::usage() {
    return "ombrivane-demo [OPTIONS]\n"
           "A wallet with a window: a balance, a tile that opens the component, and a receipt for what it "
           "handed\n"
           "back; beside it a strip of conditions: looks, languages, brands, and what a customer may meet. "
           "Without\n"
           "--test-host it runs a booking service of its own on this machine.\n\n"
           "  --test-host URL      --ca FILE          another booking service, and the certificates to "
           "trust\n"
           "  --client-id TEXT     --client-secret TEXT\n"
           "  --wallet-balance N   --now ISO-TIME\n"
           "  --locale NAME        --time-zone NAME   in place of the system's own\n"
           "  --language TAG       --region NAME      what the wallet chooses: ne, ar, device; NP\n"
           "  --dark               --text-scale N     --width N   --height N   --still (no motion)\n"
           "  --brand N            --strip            one of its three brands, 0 for the component's own "
           "look; "
           "the\n"
           "                                          strip in a script too\n"
           "  --scenario NAME      --fault TEXT       trouble of the own booking service, see "
           "docs/sandbox.md\n"
           "  --slow               every answer takes a second and a half longer\n"
           "  --script FILE        plays a script against the pages; it knows these commands more:\n"
           "                       texts (every visible text), picture FILE, look NAME (a picture into the\n"
           "                       folder of --pictures DIR), click NAME (an item by its object name),\n"
           "                       faults [FAULT] (of the own booking service), figures\n"
           "  --pace MS            stands still at each new screen of a script, to be watched\n"
           "  --stay               the window stays open when the script is through\n"
           "  --picture FILE       takes a picture of the first screen and ends\n";
}

} // namespace ombrivane::demo
