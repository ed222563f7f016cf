#include "AdapterWriter.h"
#include "ScreenDocument.h"
#include "base/SharedInstance.h"
#include "platform/Platform.h"
#include "platform/RunLoop.h"
#include "platform/SystemLocalization.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <vector>

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
bool equals(const std::filesystem::path& file, const std::string& text, const char* script) {
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
        std::cerr << file.string() << ":" << number << ": differs from the code\n  file: " << there
                  << "\n  code: " << here << "\n"
                  << script << " writes it anew.\n";
        return false;
    }
}

/// Whether `folder` holds these headers and no other ones.
bool holds(const std::filesystem::path& folder, const std::map<std::string, std::string>& headers) {
    bool same = true;
    for (const auto& [name, text] : headers)
        same = equals(folder / name, text, "scripts/adapters") && same;
    for (const auto& file : std::filesystem::directory_iterator(folder)) {
        if (headers.count(file.path().filename().string()) > 0) continue;
        std::cerr << file.path().string() << ": no table names it. scripts/adapters takes it away.\n";
        same = false;
    }
    return same;
}

std::string contents(const std::filesystem::path& file) {
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

/// What stays as it was is not touched, so that nothing is compiled anew for it.
void write(const std::filesystem::path& folder, const std::map<std::string, std::string>& headers) {
    std::filesystem::create_directories(folder);
    std::vector<std::filesystem::path> former;
    for (const auto& file : std::filesystem::directory_iterator(folder))
        former.push_back(file.path());
    for (const auto& file : former) {
        if (headers.count(file.filename().string()) == 0) std::filesystem::remove(file);
    }
    for (const auto& [name, text] : headers) {
        if (contents(folder / name) != text) std::ofstream(folder / name) << text;
    }
}

int document(const std::vector<std::string>& arguments) {
    const auto screens = journey::screenCatalogue();
    const std::string text = journey::ScreenDocument(screens).text();
    if (arguments.size() == 2) return equals(arguments[1], text, "scripts/screens-document") ? 0 : 1;
    std::cout << text;
    return 0;
}

int adapters(const std::filesystem::path& view, bool check) try {
    const auto screens = journey::screenCatalogue();
    const auto headers = journey::AdapterWriter(screens, view).headers();
    const auto folder = view / "adapters" / "screens";
    if (check) return holds(folder, headers) ? 0 : 1;
    write(folder, headers);
    return 0;
} catch (const std::exception& wrong) {
    std::cerr << "ombrivane-screens: " << wrong.what() << "\n";
    return 1;
}

} // namespace

/// Prints what each screen holds, in Markdown, or writes the adapters of the pages below a folder; with
/// `--check` it only says whether what is there tells the same.
int main(int count, char** values) {
    const std::vector<std::string> arguments(values + 1, values + count);
    const std::string first = arguments.empty() ? "" : arguments[0];
    const bool forDocument = arguments.empty() || (arguments.size() == 2 && first == "--check");
    const bool forAdapters = arguments.size() == 2 && (first == "--adapters" || first == "--check-adapters");
    if (!forDocument && !forAdapters) {
        std::cerr << "usage: ombrivane-screens [--check FILE | --adapters VIEW | --check-adapters VIEW]\n";
        return 2;
    }
    installPlainWorld();
    const int status =
        forDocument ? document(arguments) : adapters(arguments[1], first == "--check-adapters");
    dropSharedInstances();
    return status;
}
