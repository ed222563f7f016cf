#pragma once

#include "EventLog.h"
#include "ScriptedPorts.h"
#include "events/HostEvents.h"
#include "platform/AdjustableClock.h"
#include "session/OmbrivaneView.h"

#include <functional>
#include <istream>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>

namespace ombrivane::journey {

/// What a script's program provides: time and the component's view.
struct Stage {
    /// Runs the main queue until `done` holds or the time in milliseconds has passed; tells whether it held.
    std::function<bool(const std::function<bool()>& done, std::chrono::milliseconds limit)> runUntil;
    /// Moves the main queue's timers on.
    std::function<void(std::chrono::milliseconds)> advance;
    /// Shows a fresh view.
    std::function<void()> open;
    /// Drops the view.
    std::function<void()> destroy;
    /// Shows a fresh view that takes up a kept state; empty where a program cannot.
    std::function<void(const std::string& state)> restore = {};
    /// The stack of the view; nullptr while there is none.
    std::function<Navigator*()> navigator;
    /// Whether a fault has happened.
    std::function<bool()> faulted;

    EventLog& log;                      ///< what the host received
    AdjustableClock& clock;             ///< moved by `advance`
    ScriptedReachability& reachability; ///< set by `reachability`
    ScriptedPhotos& photos;             ///< answers with what `pick` picked
};

/// How a script ended; the exit status of its program.
enum class Ending { done = 0, expectationFailed = 1, badLine = 2, fault = 3 };

/// Works the component's screens by their keys, one command a line.
class Script {
public:
    /// A command that the program knows besides the script's own: its arguments as text.
    using Command = std::function<void(const std::string& arguments)>;

    /// What `stage` refers to outlives the script.
    explicit Script(Stage stage);

    /// Another command, or one in the place of the script's own. Before it is played.
    void addCommand(const std::string& name, Command command) { commands_[name] = std::move(command); }

    /// Plays every line of `lines`, and says on the log why it stopped early.
    Ending play(std::istream& lines);

    /// The commands of a script, one a line, for the help of a program.
    static std::string help();

private:
    void runAll(std::istream& lines, const std::string& file);
    void run(const std::string& line);
    void playFile(const std::string& file);
    void repeat(const std::string& arguments);
    void resources();
    void restore(const std::string& state);
    void show();
    void get(const std::string& path);
    void set(const std::string& arguments);
    void tap(const std::string& arguments);
    void back();
    void expect(const std::string& arguments);
    void inLocale(const std::string& arguments);
    static void speak(const std::string& arguments);
    void wait(const std::string& arguments);
    void waitScreen(const std::string& arguments);
    void waitEvent(const std::string& arguments);
    void waitCall(const std::string& arguments);
    void noEvent(const std::string& name);
    void pause(const std::string& arguments);
    void advance(const std::string& arguments);
    void pick(const std::string& file);
    void setReachability(const std::string& arguments);
    Navigator& navigator() const;
    /// Whether the path leads to that value.
    bool holds(const std::string& path, const Json& value) const;
    /// The value that is there, or why there is none, as a sentence.
    std::string seen(const std::string& path) const;

    /// How many requests to each endpoint have ended, and how many of them were waited for.
    struct Calls;

    Stage stage_;
    std::shared_ptr<Calls> calls_;
    HostEvents::Listening listening_;
    /// The line that is being run, with its number and the file it was played from.
    std::string place_;
    std::map<std::string, Command> commands_;
};

} // namespace ombrivane::journey
