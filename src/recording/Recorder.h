#pragma once

#include "base/Date.h"
#include "events/HostEvents.h"
#include "keyed/Deeds.h"
#include "keyed/Navigator.h"

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace ombrivane {

/// Writes down one opening as a journey (docs/journeys.md) that plays again against the sandbox: what the
/// customer did, how long each thing took, which screens came, and what became of every request. Texts that a
/// customer types, and days of birth and expiry, are replaced by others of the same shape; what a place is
/// searched by, and the days of travel, stay. Nothing of an answer is in it. Main thread.
class Recorder {
public:
    /// Records from here on what is done on the stack of `navigator`, which outlives this or is let go of.
    /// @param form what the form held before, as `saveState` tells it
    Recorder(const Navigator& navigator, const std::string& form);

    /// The view has gone: no more is done by anybody.
    void letGo();

    /// What was recorded until now.
    std::string journey() const;

private:
    void did(const Screen& screen, std::string_view key, const std::vector<Json>& arguments);
    void happened(const Event& event);
    void ended(const EndedCall& call);
    bool hasTwoLists() const;
    void writePause();
    void write(const std::string& line);
    void insertBeforeLastDeed(const std::string& line);
    Json argument(std::string_view key, const Json& value) const;

    const Navigator* navigator_;
    std::uint64_t salt_;
    std::string form_;
    std::string began_;

    mutable std::mutex mutex_; ///< ended calls come from threads of the network
    Date last_;                ///< when the last line was written
    std::vector<std::string> lines_;
    std::size_t lastDeed_ = 0; ///< its line
    bool hasDeeds_ = false;
    std::vector<std::string> service_; ///< arguments of the sandbox
    std::size_t offers_ = 0;           ///< the most that a list had
    std::map<std::string, std::size_t, std::less<>> calls_;
    bool isOffline_ = false;
    std::string opening_;
    bool isClosed_ = false;
    bool isOver_ = false; ///< another opening has begun, and a request does not tell whose it is

    std::shared_ptr<const void> deeds_;
    HostEvents::Listening events_;
};

} // namespace ombrivane
