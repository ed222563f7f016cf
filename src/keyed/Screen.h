#pragma once

#include "base/Api.h"
#include "keyed/Fields.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace ombrivane {

class Link;
class Navigator;
class Part;

/// One screen: what it holds, shows and decides. It owns fields, derived texts, actions, links and parts.
///
/// Screens are made by `std::make_shared` and never copied; a completion that is still out holds its screen.
class OMBRIVANE_API Screen : public std::enable_shared_from_this<Screen> {
public:
    /// `name` is text that outlives the screen.
    explicit Screen(std::string_view name) : name_(name) {}
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;
    virtual ~Screen() = default;

    /// Its name, as a path spells it.
    std::string_view name() const { return name_; }

    /// Called each time the screen comes into view: when it is pushed, and when what covered it is taken
    /// away.
    virtual void appear() {}
    /// Called each time the screen goes out of view: when another is pushed over it, and when it leaves.
    virtual void disappear() {}

    /// Takes this screen away with everything above it, by writing false into the flag that shows it. Nothing
    /// happens when the screen is not shown by a link.
    void dismiss();

    /// Whether a tap reaches this screen: nothing lies over it and it is part of what is shown.
    bool takesInput() const;
    /// Whether a tap reaches what is shown inside of this screen; not while progress or an end lies over it.
    virtual bool lendsInput() const { return true; }

    /// Whether the view that showed this screen has gone. What such a screen still brings to its end leaves
    /// the navigation of the process alone: it is another view's by now.
    bool viewIsGone() const { return shownBy_ && *shownBy_ == nullptr; }

    /// What it can show over itself, in the order of declaration.
    const std::vector<Link*>& links() const { return links_; }
    /// What it shows inside of itself, in the order of declaration.
    const std::vector<Part*>& parts() const { return parts_; }

    /// For what is shown inside of another screen: a tap reaches it while `host` takes input and lends it.
    void setHost(const std::weak_ptr<Screen>& host) {
        host_ = host;
        hosted_ = true;
    }
    /// The screen inside of which this one is shown, nullptr for one on the stack itself.
    std::shared_ptr<Screen> host() const { return host_.lock(); }

    /// Where a row stood in a list of its host when it was made.
    struct Place {
        std::string_view list = {}; ///< the key of the list; empty for what is no row
        std::size_t index = 0;      ///< from 0
    };
    /// For a list: where this row of it stands.
    void setPlace(Place place) { place_ = place; }
    /// Where this row was made.
    const Place& place() const { return place_; }

    /// All that it holds and shows, by key. Declared first, so that it outlives its members.
    Fields fields;

private:
    friend class Link;
    friend class Part;
    friend class Navigator;

    std::string_view name_;
    std::vector<Link*> links_;
    std::vector<Part*> parts_;
    std::function<void()> dismissal_;
    std::shared_ptr<Navigator*> shownBy_; ///< what it points to is nullptr once the navigator has gone
    std::weak_ptr<Screen> host_;
    Place place_;
    bool hosted_ = false;
    bool covered_ = false;
};

} // namespace ombrivane
