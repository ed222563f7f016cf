#include "sandbox/control/CommandLine.h"

#include "sandbox/control/Faults.h"
#include "sandbox/control/Scenarios.h"
#include "sandbox/wire/Certificates.h"
#include "sandbox/world/Dates.h"

#include <fmt/format.h>

#include <charconv>
#include <functional>
#include <limits>
#include <stdexcept>

namespace ombrivane::sandbox {

namespace {

struct OptionForm {
    std::string_view name;
    std::string_view value; ///< empty for a switch
    std::string_view meaning;
    std::function<void(CommandLine&, const std::string&)> apply;
};

template <typename Number> Number number(const std::string& text) {
    Number value = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (failure != std::errc() || end != text.data() + text.size())
        throw std::invalid_argument(fmt::format("\"{}\" is no number in range.", text));
    return value;
}

void addClient(CommandLine& line, const std::string& text) {
    static const Options defaults;
    const std::size_t colon = text.find(':');
    if (colon == std::string::npos) throw std::invalid_argument("--client takes ID:SECRET.");
    if (line.options.clients == defaults.clients) line.options.clients.clear();
    line.options.clients[text.substr(0, colon)] = text.substr(colon + 1);
}

void setCertificate(CommandLine& line, const std::string& text) {
    const auto kind = certificateKindNamed(text);
    if (!kind) throw std::invalid_argument(fmt::format("There is no certificate \"{}\".", text));
    line.options.certificate = *kind;
}

void setNow(CommandLine& line, const std::string& text) {
    line.options.now = parseInstant(text);
    if (!line.options.now) throw std::invalid_argument(fmt::format("\"{}\" is no time.", text));
}

void setDocuments(CommandLine& line, const std::string& text) {
    if (text != "auto" && text != "always" && text != "never")
        throw std::invalid_argument("--documents takes auto, always or never.");
    line.options.documents = text == "auto"     ? DocumentsRule::Auto
                             : text == "always" ? DocumentsRule::Always
                                                : DocumentsRule::Never;
}

void setOffers(CommandLine& line, const std::string& text) {
    const auto count = number<std::size_t>(text);
    if (count > 10'000) throw std::invalid_argument("--offers goes up to 10000.");
    line.options.offers = count;
}

void addFault(CommandLine& line, const std::string& text) {
    parseFault(text);
    line.options.faults.push_back(text);
}

void addScenario(CommandLine& line, const std::string& text) {
    scenarioNamed(text);
    line.options.scenarios.push_back(text);
}

const std::vector<OptionForm>& optionForms() {
    using Line = CommandLine;
    using Text = const std::string&;
    static const std::vector<OptionForm> forms{
        {"--port",
         "N",
         "listen there; 0 (default) takes a free port",
         [](Line& line, Text text) { line.options.port = number<std::uint16_t>(text); }},
        {"--ca-out",
         "FILE",
         "write the authority to trust there; default: a temporary folder, removed at the end",
         [](Line& line, Text text) { line.options.caFile = text; }},
        {"--seed",
         "N",
         "the seed of all data; default 1",
         [](Line& line, Text text) { line.options.seed = number<std::uint64_t>(text); }},
        {"--now",
         "TIME",
         "what the service's clock shows at the start, such as 2026-03-01T09:30:00Z",
         setNow},
        {"--freeze",
         "",
         "the service's clock stands still",
         [](Line& line, Text) { line.options.frozen = true; }},
        {"--client", "ID:SECRET", "credentials, may be repeated; default wallet:wallet-secret", addClient},
        {"--offers", "N", "offers in every list, up to 10000; default 12 to 60 by search", setOffers},
        {"--documents",
         "RULE",
         "travel documents: auto (default: international trips), always, never",
         setDocuments},
        {"--otp",
         "TEXT",
         "the one-time password of the wallet; default 123456",
         [](Line& line, Text text) { line.options.otp = text; }},
        {"--certificate",
         "KIND",
         "good (default), self-signed, expired, not-yet-valid, wrong-host, wrong-alternative-names, "
         "untrusted",
         setCertificate},
        {"--scenario", "NAME", "what a customer meets, may be repeated, see below", addScenario},
        {"--fault", "FAULT", "a fault, may be repeated, see below", addFault},
        {"--exit-with-stdin",
         "",
         "end when the standard input ends",
         [](Line& line, Text) { line.exitWithStdin = true; }},
        {"--help", "", "this text", [](Line& line, Text) { line.help = true; }},
    };
    return forms;
}

} // namespace

CommandLine parseCommandLine(const std::vector<std::string>& arguments) {
    CommandLine line;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const OptionForm* found = nullptr;
        for (const OptionForm& form : optionForms())
            if (form.name == arguments[i]) found = &form;
        if (found == nullptr)
            throw std::invalid_argument(fmt::format("There is no option {}.", arguments[i]));
        if (found->value.empty()) {
            found->apply(line, "");
        } else if (i + 1 < arguments.size()) {
            found->apply(line, arguments[++i]);
        } else {
            throw std::invalid_argument(fmt::format("{} takes a value.", found->name));
        }
    }
    return line;
}

std::string helpText() {
    std::string text =
        "ombrivane-sandbox: a booking service for this machine, over HTTPS on the loopback interface.\n"
        "At the start it prints one JSON line with its \"address\" and the \"ca\" file to trust.\n\n";
    for (const OptionForm& form : optionForms())
        text += fmt::format("  {:<24} {}\n", fmt::format("{} {}", form.name, form.value), form.meaning);
    text += "\nA scenario is one of these; what has a * comes about as well when a traveller has that "
            "surname.\n\n";
    for (const Scenario& scenario : scenarios())
        text += fmt::format("  {:<24} {}\n",
                            fmt::format("{}{}", scenario.name, scenario.bySurname ? " *" : ""),
                            scenario.meaning);
    text += "\nA fault reads \"PATH KIND[=VALUE] [times=N] [after=N]\". PATH is a path like /get-token, or * "
            "for all;\n"
            "times says how often it happens, after how many requests pass before. Several may meet.\n\n";
    for (const FaultForm& form : faultForms())
        text += fmt::format("  {:<24} {}\n",
                            form.value.empty() ? std::string(form.name)
                                               : fmt::format("{}={}", form.name, form.value),
                            form.meaning);
    return text;
}

} // namespace ombrivane::sandbox
