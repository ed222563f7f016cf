#include "ScreenDocument.h"
#include "base/SharedInstance.h"
#include "platform/Platform.h"
#include "platform/RunLoop.h"
#include "platform/SystemLocalization.h"

#include <fstream>
#include <iostream>
#include <sstream>

namespace {

using namespace ombrivane;

class FixedClock final : public Clock {
public:
    Date now() override { return *parseIso("2026-11-21T09:30:00Z"); }
};

/// Time, place and a main queue; whatever else a screen touched would be a fault.
void installPlainWorld() {
    Platform ports;
    ports.mainQueue = std::make_shared<RunLoop>();
    ports.clock = std::make_shared<FixedClock>();
    const auto localization = std::make_shared<SystemLocalization>();
    localization->useLocale("en_US");
    localization->useTimeZone("UTC");
    ports.localization = localization;
    Platform::install(std::move(ports));
}

/// Tells the first line at which `file` differs from `text`.
bool equals(const std::string& file, const std::string& text) {
    std::ifstream stream(file);
    if (!stream) {
        std::cerr << "ombrivane-screens: there is no file " << file << "\n";
        return false;
    }
    std::istringstream wanted(text);
    for (int number = 1;; ++number) {
        std::string here;
        std::string there;
        const bool hereMore = static_cast<bool>(std::getline(wanted, here));
        const bool thereMore = static_cast<bool>(std::getline(stream, there));
        if (!hereMore && !thereMore) return true;
        if (hereMore == thereMore && here == there) continue;
        std::cerr << file << ":" << number << ": differs from the code\n  file: " << there
                  << "\n  code: " << here << "\nscripts/screens-document writes it anew.\n";
        return false;
    }
}

} // namespace

/// Prints what each screen holds, in Markdown; with `--check FILE` it only says whether FILE tells the same.
int main(int count, char** values) {
    const std::vector<std::string> arguments(values + 1, values + count);
    const bool check = arguments.size() == 2 && arguments[0] == "--check";
    if (!check && !arguments.empty()) {
        std::cerr << "usage: ombrivane-screens [--check FILE]\n";
        return 2;
    }
    installPlainWorld();
    std::string text;
    {
        const auto screens = journey::screenCatalogue();
        text = journey::ScreenDocument(screens).text();
    }
    dropSharedInstances();
    if (check) return equals(arguments[1], text) ? 0 : 1;
    std::cout << text;
    return 0;
}
