#include "platform/SerialQueue.h"

#include "base/Attempted.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <utility>

#include <pthread.h>

namespace ombrivane {
namespace {

/// Linux takes no longer name for a thread.
constexpr std::size_t longestName = 15;

void nameThisThread(const std::string& name) {
#ifdef __APPLE__
    pthread_setname_np(name.c_str());
#else
    pthread_setname_np(pthread_self(), name.substr(0, longestName).c_str());
#endif
}

} // namespace

struct SerialQueue::State {
    std::mutex mutex;
    std::condition_variable arrived;
    std::deque<Step> steps;
    bool isEnding = false;
};

SerialQueue::SerialQueue(std::string name) : name_(std::move(name)), state_(std::make_shared<State>()) {}

SerialQueue::~SerialQueue() {
    std::deque<Step> dropped;
    {
        const std::lock_guard lock(state_->mutex);
        state_->isEnding = true;
        dropped.swap(state_->steps);
    }
    state_->arrived.notify_one();
    dropped.clear();
    if (!thread_.joinable()) return;
    // The last owner may have been a step of this very queue.
    if (thread_.get_id() == std::this_thread::get_id()) {
        thread_.detach();
    } else {
        thread_.join();
    }
}

void SerialQueue::async(Step step) {
    {
        const std::lock_guard lock(state_->mutex);
        state_->steps.push_back(std::move(step));
        if (!thread_.joinable()) {
            thread_ = std::thread([state = state_, name = name_] {
                nameThisThread(name);
                run(state);
            });
        }
    }
    state_->arrived.notify_one();
}

void SerialQueue::run(const std::shared_ptr<State>& state) {
    std::unique_lock lock(state->mutex);
    while (true) {
        state->arrived.wait(lock, [&] { return state->isEnding || !state->steps.empty(); });
        if (state->isEnding) return;
        Step step = std::move(state->steps.front());
        state->steps.pop_front();
        lock.unlock();
        contained(step);
        step = nullptr;
        lock.lock();
    }
}

} // namespace ombrivane
