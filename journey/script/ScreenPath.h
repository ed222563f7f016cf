#pragma once

#include "keyed/Navigator.h"

#include <memory>
#include <string>

namespace ombrivane::journey {

/// What a path leads to, with the screen that keeps it alive.
struct PathTarget {
    std::shared_ptr<Screen> screen; ///< holds the member
    Member* member = nullptr;       ///< at the end of the path; lives as long as the screen
};

/// What was found at the end of a path, or the sentence that says why there is nothing.
///
/// Used as a pointer to the member: `find(navigator, "MainView.form.origin")->read()`.
class PathAnswer {
public:
    /// Found: the member of `target`, which is held as long as this lives.
    explicit PathAnswer(PathTarget target) : target_(std::move(target)) {}
    /// Not found, for the reason that `problem` tells.
    explicit PathAnswer(std::string problem) : problem_(std::move(problem)) {}

    /// Whether the path leads to a member.
    explicit operator bool() const { return target_.member != nullptr; }
    /// The member: `read` it, `write` it, `trigger` it. @throws KeyedError with `problem` where there is
    /// none.
    Member* operator->() const;
    /// The path, the step of it that is not there, and the names that are there in its place; empty where the
    /// path leads to a member.
    const std::string& problem() const { return problem_; }

private:
    PathTarget target_;
    std::string problem_;
};

/// Follows a path such as "Screen.key", "Screen.model.key" or "Screen.rows[3].key". Without a screen's name
/// it starts at the topmost screen. "model" stands for the screen's own model; a key that the screen does not
/// have is looked for in its models and in the screens shown inside of it. `docs/screens.md` has all screens
/// and keys. A null `navigator` is a component that is not open. Main thread.
PathAnswer find(const Navigator* navigator, const std::string& path);

/// The same for who treats a path that leads nowhere as a mistake. @throws KeyedError with the sentence
PathTarget follow(const Navigator& navigator, const std::string& path);

/// The whole stack, the topmost screen last: names, fields, derived values, actions, models, rows and parts.
Json describe(const Navigator& navigator);

} // namespace ombrivane::journey
