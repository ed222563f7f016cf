#pragma once

#include "keyed/Navigator.h"

#include <map>
#include <memory>
#include <vector>

namespace ombrivane::journey {

/// Sees what pages see: it observes every member of every screen on a stack, of its models, its parts and its
/// first rows, and reads each one again when it tells. What nobody observes is computed by nobody, and a
/// mistake in it stays unseen until a page is there. Main thread.
class Onlooker {
public:
    /// Looks at the screens of `navigator` from here on; nullptr looks at nothing. Like pages, it holds the
    /// screens that it looks at.
    void follow(Navigator* navigator);

private:
    /// What is observed of one screen.
    struct Look {
        std::shared_ptr<Screen> screen;
        std::vector<Subscription> members;
        /// The rows that are drawn of each list, by the list.
        std::map<const Member*, std::vector<std::shared_ptr<Look>>> rows;
    };

    void update();
    static void observe(const Fields& fields, const std::shared_ptr<Look>& look);
    static std::shared_ptr<Look> lookAt(std::shared_ptr<Screen> screen);
    static void draw(const Member& list, Look& look);

    Navigator* navigator_ = nullptr;
    std::vector<std::shared_ptr<Look>> looks_;
    Subscription watch_;
};

} // namespace ombrivane::journey
