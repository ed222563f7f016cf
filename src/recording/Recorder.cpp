#include "recording/Recorder.h"

#include "platform/Platform.h"
#include "recording/DeedPath.h"
#include "recording/Pseudonym.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <random>
#include <utility>

namespace ombrivane {
namespace {

constexpr std::array lettersOfPages{"scrolled", "measured"}; // what a page tells by itself
/// Actions whose texts belong to a journey and not to a customer.
constexpr std::array namesOfPlacesAndDays{"type", "tap", "tapDay", "chooseGender"};
constexpr const char* pickedPicture = "pick";
constexpr std::array daysOfCustomers{"pickDateOfBirth", "pickExpiryDate"};

template <class Keys> bool has(const Keys& keys, std::string_view key) {
    return std::find(keys.begin(), keys.end(), key) != keys.end();
}

/// What makes the sandbox answer like that; empty where it has nothing alike.
std::string faultLike(const EndedCall& call) {
    switch (*call.error) {
    case ErrorKind::timedOut:
        return "silence";
    case ErrorKind::serviceNotReached:
    case ErrorKind::connectionLost:
        return "drop";
    case ErrorKind::answerTooLarge:
        return "endless";
    case ErrorKind::answerNotUnderstood:
        return "malformed";
    case ErrorKind::answerMissing:
        return "empty";
    case ErrorKind::refused:
        // The one refusal that has a screen of its own.
        if (call.endpoint == "/search-flights") return "refuse=Sorry! No flight recommendations found.";
        [[fallthrough]];
    case ErrorKind::credentialsRefused:
        return "refuse=Refused.";
    case ErrorKind::unsupportedSystem:
    case ErrorKind::noConnection:
    case ErrorKind::serviceNotTrusted:
    case ErrorKind::invalidRequest:
    case ErrorKind::unforeseen:
        break;
    }
    return {};
}

} // namespace

Recorder::Recorder(const Navigator& navigator, const std::string& form) :
    navigator_(&navigator),
    salt_(std::random_device()()),
    form_(form),
    began_(isoText(platform().clock->now())),
    last_(platform().clock->now()),
    deeds_(Deeds::listen(
        [this](const auto& screen, auto key, const auto& arguments) { did(screen, key, arguments); })),
    events_(HostEvents::shared().listen([this](const Event& event) { happened(event); },
                                        [this](const EndedCall& call) { ended(call); })) {}

void Recorder::letGo() {
    navigator_ = nullptr;
    deeds_ = nullptr;
}

std::string Recorder::journey() const {
    const std::lock_guard lock(mutex_);
    std::string text = "# Recorded; what was typed is replaced by texts of the same shape.\n";
    text += fmt::format("#: sandbox --now {}\n", began_);
    for (const auto& argument : service_)
        text += fmt::format("#: sandbox {}\n", argument);
    if (offers_ > 0) text += fmt::format("#: sandbox --offers {}\n", offers_);
    text += fmt::format("#: wallet --now {} --locale {}\n", began_, platform().localization->locale());
    // A form that nobody has seen is of no use, and would have the component opened twice.
    if (hasDeeds_) text += fmt::format("restore {}\n", form_);
    for (const auto& line : lines_)
        text += line + '\n';
    return text;
}

Json Recorder::argument(std::string_view key, const Json& value) const {
    if (!value.is_string() || has(namesOfPlacesAndDays, key)) return value;
    const auto text = value.get<std::string>();
    return has(daysOfCustomers, key) ? otherDay(text, salt_) : pseudonym(text, salt_);
}

void Recorder::did(const Screen& screen, std::string_view key, const std::vector<Json>& arguments) {
    if (navigator_ == nullptr || has(lettersOfPages, key)) return;
    const auto path = pathOf(*navigator_, screen, key.empty() ? "back" : key);
    if (!path) return;
    const std::lock_guard lock(mutex_);
    if (key == "picked")
        return insertBeforeLastDeed(arguments.front() == true ? pickedPicture : "pick-cancel");
    writePause();
    if (std::exchange(isOffline_, false)) write("reachability 2");
    if (!key.empty()) write(fmt::format("wait {} {{\"enabled\":true}}", *path));
    lastDeed_ = lines_.size();
    hasDeeds_ = true;
    std::string line = key.empty() ? "back" : "tap " + *path;
    for (const Json& value : arguments)
        line += ' ' + argument(key, value).dump();
    write(line);
}

void Recorder::happened(const Event& event) {
    const std::lock_guard lock(mutex_);
    if (event.kind == EventKind::opened) isOver_ = isOver_ || !std::exchange(opening_, event.opening).empty();
    if (isOver_ || isClosed_ || event.opening != opening_)
        return; // also what comes into view as the view goes
    switch (event.kind) {
    case EventKind::screenShown:
        if (event.screen != "PhotoPicker") write("wait-screen " + event.screen);
        break;
    case EventKind::searchAnswered:
        offers_ = std::max(offers_, event.offers.value_or(0) / (hasTwoLists() ? 2 : 1));
        break;
    case EventKind::fareMoved:
        write(fmt::format("# the fare moved from {} to {}", *event.formerFare, *event.fare));
        break;
    case EventKind::expired:
        writePause();
        write("# the ten minutes were over");
        break;
    case EventKind::closed:
        isClosed_ = true;
        if (event.closedBy == ClosedBy::reservation)
            write("wait-event callback {\"dictionary\":{\"exit\":true}}");
        if (event.closedBy == ClosedBy::error) write("wait-event callback {\"dictionary\":null}");
        write(event.closedBy == ClosedBy::host ? "destroy" : "wait-event closed");
        break;
    default:
        break; // told by its request
    }
}

void Recorder::ended(const EndedCall& call) {
    const std::lock_guard lock(mutex_);
    if (isOver_) return;
    const std::string endpoint(call.endpoint);
    const bool wasSent = call.error != ErrorKind::noConnection && call.error != ErrorKind::invalidRequest;
    const std::size_t before = wasSent ? calls_[endpoint]++ : 0;
    write(fmt::format("# {} after {} ms{}",
                      call.status,
                      call.took.count(),
                      call.error ? fmt::format(": {}", nameOf(*call.error)) : ""));
    write("wait-call " + endpoint);
    if (!call.error) return;
    const std::string fault = faultLike(call);
    if (!fault.empty())
        service_.push_back(fmt::format("--fault \"{} {} times=1 after={}\"", endpoint, fault, before));
    if (*call.error == ErrorKind::noConnection && !std::exchange(isOffline_, true))
        insertBeforeLastDeed("reachability 0");
}

/// A special round has two lists, and the sandbox is told the length of one.
bool Recorder::hasTwoLists() const {
    const auto list = navigator_ != nullptr ? navigator_->find("DomesticFlightListView") : nullptr;
    return list != nullptr && list->fields.find("showsTabs")->read() == true;
}

/// The time for which nothing was awaited and nothing done.
void Recorder::writePause() {
    const auto thought = std::chrono::floor<std::chrono::seconds>(platform().clock->now() - last_);
    if (thought.count() > 0) write(fmt::format("advance {}", thought.count()));
}

void Recorder::write(const std::string& line) {
    lines_.push_back(line);
    last_ = platform().clock->now();
}

/// What the device answers is told to a script before it is asked.
void Recorder::insertBeforeLastDeed(const std::string& line) {
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(lastDeed_++), line);
}

} // namespace ombrivane
