#include "Script.h"

#include "Matching.h"
#include "Resources.h"
#include "ScreenPath.h"
#include "base/Fault.h"
#include "platform/JpegPngCodec.h"
#include "platform/Platform.h"
#include "words/LanguageChoice.h"

#include <cstdint>
#include <fstream>
#include <memory>
#include <mutex>
#include <sstream>
#include <utility>
#include <vector>

namespace ombrivane::journey {
namespace {

/// What a customer may have picked: red from left to right, green from the top down.
Image somePicture() {
    constexpr int width = 120;
    constexpr int height = 80;
    std::vector<std::uint8_t> points;
    for (int row = 0; row < height; ++row) {
        for (int column = 0; column < width; ++column) {
            const auto red = static_cast<std::uint8_t>(2 * column);
            const auto green = static_cast<std::uint8_t>(3 * row);
            points.insert(points.end(), {red, green, 128, 255});
        }
    }
    return {width, height, std::make_shared<const std::vector<std::uint8_t>>(std::move(points))};
}

constexpr double defaultSeconds = 30;

/// What a line wants is not so.
class ExpectationFailed : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A line that cannot be carried out.
class BadLine : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(" \t\r");
    if (first == std::string::npos) return "";
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

/// The first word, and what follows it.
std::pair<std::string, std::string> split(const std::string& text) {
    const auto blank = text.find_first_of(" \t");
    if (blank == std::string::npos) return {text, ""};
    return {text.substr(0, blank), trimmed(text.substr(blank))};
}

/// The JSON values that stand one behind the other.
std::vector<Json> values(const std::string& text) {
    std::vector<Json> read;
    std::istringstream in(text);
    try {
        while (in >> std::ws && !in.eof())
            in >> read.emplace_back();
    } catch (const Json::exception&) {
        throw BadLine("no JSON: " + text);
    }
    return read;
}

double seconds(const std::string& text, double otherwise) {
    if (text.empty()) return otherwise;
    const auto numbers = values(text);
    if (numbers.size() != 1 || !numbers.front().is_number()) throw BadLine("no number of seconds: " + text);
    return numbers.front().get<double>();
}

std::chrono::milliseconds milliseconds(double count) {
    return std::chrono::milliseconds(static_cast<std::int64_t>(count * 1000));
}

} // namespace

struct Script::Calls {
    std::mutex mutex; // they end on threads of the network
    std::map<std::string, std::size_t> ended;
    std::map<std::string, std::size_t> awaited;
};

Script::Script(Stage stage) :
    stage_(std::move(stage)),
    calls_(std::make_shared<Calls>()),
    listening_(HostEvents::shared().listen(nullptr, [calls = calls_](const EndedCall& call) {
        const std::lock_guard lock(calls->mutex);
        ++calls->ended[std::string(call.endpoint)];
    })) {
    commands_ = {
        {"show", [this](const std::string&) { show(); }},
        {"get", [this](const std::string& path) { get(path); }},
        {"set", [this](const std::string& arguments) { set(arguments); }},
        {"tap", [this](const std::string& arguments) { tap(arguments); }},
        {"back", [this](const std::string&) { back(); }},
        {"expect", [this](const std::string& arguments) { expect(arguments); }},
        {"in", [this](const std::string& arguments) { inLocale(arguments); }},
        {"speak", [](const std::string& arguments) { speak(arguments); }},
        {"wait", [this](const std::string& arguments) { wait(arguments); }},
        {"wait-screen", [this](const std::string& arguments) { waitScreen(arguments); }},
        {"wait-event", [this](const std::string& arguments) { waitEvent(arguments); }},
        {"wait-call", [this](const std::string& arguments) { waitCall(arguments); }},
        {"no-event", [this](const std::string& name) { noEvent(name); }},
        {"pause", [this](const std::string& arguments) { pause(arguments); }},
        {"advance", [this](const std::string& arguments) { advance(arguments); }},
        {"pick", [this](const std::string& file) { pick(file); }},
        {"pick-cancel",
         [this](const std::string&) {
             stage_.photos.pick({true, std::nullopt});
         }},
        {"reachability", [this](const std::string& arguments) { setReachability(arguments); }},
        {"destroy", [this](const std::string&) { stage_.destroy(); }},
        {"open", [this](const std::string&) { stage_.open(); }},
        {"restore", [this](const std::string& state) { restore(state); }},
        {"play", [this](const std::string& file) { playFile(file); }},
        {"repeat", [this](const std::string& arguments) { repeat(arguments); }},
        {"resources", [this](const std::string&) { resources(); }},
    };
}

std::string Script::help() {
    return "Commands of a script, one a line; a line that begins with # is a comment.\n"
           "  show                          the stack of screens with all that each holds and shows\n"
           "  get PATH                      one value\n"
           "  set PATH JSON                 assigns a field\n"
           "  tap PATH [JSON ...]           does what a tap on the control does\n"
           "  back                          the system's back gesture\n"
           "  expect PATH JSON              ends the script unless the value is this one; records may hold "
           "more members\n"
           "  in LOCALE COMMAND             the command, where the device speaks this: what is shown of "
           "dates and "
           "numbers\n"
           "  speak [LANGUAGE [REGION]]     the wallet chooses a language, \"device\" for the device's, or "
           "takes its "
           "choice\n"
           "                                back\n"
           "  wait PATH JSON [SECONDS]      waits until it is (30 s unless told)\n"
           "  wait-screen NAME [SECONDS]    waits until a screen of this name is on the stack\n"
           "  wait-event NAME [OBJECT] [SECONDS]\n"
           "                                waits for an event: callback, reservation, closed,\n"
           "                                failed-call, opened-url, shared; one that holds all members of\n"
           "                                OBJECT, at any depth\n"
           "  wait-call ENDPOINT [SECONDS]  waits until another request to it has ended, well or badly\n"
           "  no-event NAME                 ends the script if there is such an event that was not waited "
           "for\n"
           "  pause SECONDS                 real time, for what is not to happen\n"
           "  advance SECONDS               moves the clock and the timers on, beyond real time\n"
           "  pick [FILE]                   the photo library's next answer, without a file some picture\n"
           "  pick-cancel                   a cancelled one\n"
           "  reachability FLAGS            the flag word of the network from here on\n"
           "  destroy                       drops the view, as a host may at any time\n"
           "  open                          shows it again\n"
           "  restore STATE                 the same, with a form as it was kept\n"
           "  play FILE                     the lines of another script\n"
           "  repeat NUMBER FILE            the same, so many times\n"
           "  resources                     the memory (KB), threads and open files of this process\n"
           "PATH is Screen.key, Screen.model.key or Screen.rows[3].key; without a screen's name it starts at "
           "the\n"
           "topmost screen.\n";
}

Ending Script::play(std::istream& lines) {
    try {
        runAll(lines, "");
    } catch (const ExpectationFailed& failed) {
        Json report{{"failed", failed.what()}, {"line", place_}};
        if (const Navigator* navigator = stage_.navigator()) report["stack"] = describe(*navigator);
        stage_.log.answer(report);
        return stage_.faulted() ? Ending::fault : Ending::expectationFailed;
    } catch (const std::exception& bad) {
        if (stage_.faulted()) return Ending::fault;
        stage_.log.answer(Json{{"bad-line", bad.what()}, {"line", place_}});
        return Ending::badLine;
    }
    // Whatever was queued by the last line has happened when the script ends.
    if (!stage_.faulted()) stage_.runUntil([] { return false; }, std::chrono::milliseconds(0));
    return stage_.faulted() ? Ending::fault : Ending::done;
}

void Script::runAll(std::istream& lines, const std::string& file) {
    std::string text;
    for (int number = 1; std::getline(lines, text) && !stage_.faulted(); ++number) {
        const std::string line = trimmed(text);
        if (line.empty() || line.front() == '#') continue;
        place_ = file + std::to_string(number) + ": " + line;
        run(line);
    }
}

void Script::run(const std::string& line) {
    const auto [name, arguments] = split(line);
    const auto command = commands_.find(name);
    if (command == commands_.end()) throw BadLine("there is no command " + name);
    command->second(arguments);
}

void Script::playFile(const std::string& file) {
    std::ifstream lines(file);
    if (!lines) throw BadLine("there is no script " + file);
    runAll(lines, file + ":");
}

void Script::repeat(const std::string& arguments) {
    const auto [text, file] = split(arguments);
    const auto number = values(text);
    if (number.size() != 1 || !number.front().is_number_unsigned())
        throw BadLine("repeat wants a number and a file");
    for (auto left = number.front().get<std::size_t>(); left > 0 && !stage_.faulted(); --left)
        playFile(file);
}

void Script::resources() { stage_.log.answer(Json{{"resources", resourcesOfThisProcess()}}); }

Navigator& Script::navigator() const {
    Navigator* navigator = stage_.navigator();
    if (navigator == nullptr) throw KeyedError("the view is not open");
    return *navigator;
}

bool Script::holds(const std::string& path, const Json& value) const {
    try {
        const auto found = find(stage_.navigator(), path);
        return found && matches(found->read(), value);
    } catch (const KeyedError&) {
        return false; // what is there has no value to read
    }
}

std::string Script::seen(const std::string& path) const {
    try {
        return path + " is " + find(stage_.navigator(), path)->read().dump();
    } catch (const KeyedError& error) {
        return error.what();
    }
}

void Script::restore(const std::string& state) {
    if (!stage_.restore) throw BadLine("this wallet restores nothing");
    if (!OmbrivaneView::isState(state)) throw BadLine("this is no kept state");
    stage_.restore(state);
}

void Script::show() { stage_.log.answer(Json{{"stack", describe(navigator())}}); }

void Script::get(const std::string& path) {
    stage_.log.answer(Json{{"path", path}, {"value", follow(navigator(), path).member->read()}});
}

void Script::set(const std::string& arguments) {
    const auto [path, text] = split(arguments);
    const auto value = values(text);
    if (value.size() != 1) throw BadLine("set wants a path and one value");
    const auto target = follow(navigator(), path);
    guarded([&] { target.member->write(value.front()); });
}

void Script::tap(const std::string& arguments) {
    const auto [path, text] = split(arguments);
    const auto target = follow(navigator(), path);
    target.member->trigger(values(text));
}

void Script::back() {
    guarded([this] { navigator().back(); });
}

void Script::expect(const std::string& arguments) {
    const auto [path, text] = split(arguments);
    const auto value = values(text);
    if (value.size() != 1) throw BadLine("expect wants a path and one value");
    if (!holds(path, value.front())) throw ExpectationFailed(seen(path) + ", not " + text);
}

void Script::wait(const std::string& arguments) {
    const auto [path, text] = split(arguments);
    const auto value = values(text);
    if (value.empty() || value.size() > 2) throw BadLine("wait wants a path, one value and the seconds");
    const double limit = value.size() == 2 ? value.back().get<double>() : defaultSeconds;
    const auto arrived = [&] { return stage_.faulted() || holds(path, value.front()); };
    if (!stage_.runUntil(arrived, milliseconds(limit)))
        throw ExpectationFailed(path + " did not become " + value.front().dump() + ": " + seen(path));
}

void Script::waitScreen(const std::string& arguments) {
    const auto [name, text] = split(arguments);
    const auto arrived = [&] {
        const Navigator* navigator = stage_.navigator();
        return stage_.faulted() || (navigator != nullptr && navigator->find(name) != nullptr);
    };
    if (!stage_.runUntil(arrived, milliseconds(seconds(text, defaultSeconds)))) {
        throw ExpectationFailed("the screen " + name + " did not come");
    }
}

void Script::waitEvent(const std::string& arguments) {
    const auto [name, text] = split(arguments);
    Json wanted = Json::object();
    double limit = defaultSeconds;
    for (const Json& value : values(text)) {
        if (value.is_object()) {
            wanted = value;
        } else if (value.is_number()) {
            limit = value.get<double>();
        } else {
            throw BadLine("wait-event wants a name, an object and the seconds");
        }
    }
    const auto arrived = [&] { return stage_.faulted() || stage_.log.take(name, wanted); };
    if (!stage_.runUntil(arrived, milliseconds(limit))) {
        throw ExpectationFailed("the event " + name + " did not come; there were " +
                                stage_.log.waiting(name).dump());
    }
}

void Script::waitCall(const std::string& arguments) {
    const auto [endpoint, text] = split(arguments);
    const auto arrived = [&, name = endpoint] {
        const std::lock_guard lock(calls_->mutex);
        return stage_.faulted() || calls_->ended[name] > calls_->awaited[name];
    };
    if (!stage_.runUntil(arrived, milliseconds(seconds(text, defaultSeconds))))
        throw ExpectationFailed("no request to " + endpoint + " has ended");
    ++calls_->awaited[endpoint];
    // The end is told before the answer has come to the main queue.
    constexpr std::chrono::milliseconds settling(20);
    stage_.runUntil([this] { return stage_.faulted(); }, settling);
}

void Script::noEvent(const std::string& name) {
    stage_.runUntil([] { return false; }, std::chrono::milliseconds(0));
    const Json events = stage_.log.waiting(name);
    if (!events.empty()) throw ExpectationFailed("there was an event " + name + ": " + events.dump());
}

void Script::inLocale(const std::string& arguments) {
    const auto [locale, command] = split(arguments);
    if (platform().localization->locale() == locale) run(command);
}

void Script::speak(const std::string& arguments) {
    const auto [language, region] = split(arguments);
    LanguageChoice choice;
    if (!language.empty()) choice.language = language;
    if (!region.empty()) choice.region = region;
    chooseLanguage(std::move(choice));
}

void Script::pause(const std::string& arguments) {
    stage_.runUntil([this] { return stage_.faulted(); }, milliseconds(seconds(arguments, 0)));
}

void Script::advance(const std::string& arguments) {
    const auto duration = milliseconds(seconds(arguments, 0));
    stage_.clock.advance(duration);
    stage_.advance(duration);
}

void Script::pick(const std::string& file) {
    if (file.empty()) return stage_.photos.pick({false, somePicture()});
    std::ifstream in(file, std::ios::binary);
    if (!in) throw BadLine("there is no file " + file);
    const std::string bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    stage_.photos.pick({false, JpegPngCodec().decode(bytes, documentLimits())});
}

void Script::setReachability(const std::string& arguments) {
    const auto value = values(arguments);
    if (value.size() != 1 || !value.front().is_number_unsigned())
        throw BadLine("reachability wants a flag word");
    stage_.reachability.say(value.front().get<std::uint32_t>());
}

} // namespace ombrivane::journey
