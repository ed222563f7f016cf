#pragma once

#include "base/Json.h"
#include "events/HostEvents.h"

#include <QElapsedTimer>
#include <QQuickWindow>

#include <mutex>

namespace ombrivane::demo {

/// What a run of the demo measures of itself: frames, and what the component tells of its answers.
class Figures {
public:
    /// Counts from here on. @param started since when the first frame is waited for
    Figures(QQuickWindow& window, const QElapsedTimer& started);

    /// In milliseconds: the first frame, the run so far, the longest wait for each kind of answer; and the
    /// number of frames.
    Json json() const;

private:
    QElapsedTimer started_;
    qint64 firstFrame_ = -1;
    int frames_ = 0;
    mutable std::mutex mutex_; ///< of what the component tells, on any thread
    Json longest_ = Json::object();
    HostEvents::Listening listening_;
};

} // namespace ombrivane::demo
