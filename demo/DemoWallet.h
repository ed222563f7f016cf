#pragma once

#include "DemoOptions.h"
#include "EventLog.h"
#include "Script.h"
#include "ScriptedPorts.h"
#include "device/QtMainQueue.h"
#include "items/OmbrivaneSession.h"
#include "platform/AdjustableClock.h"

#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <atomic>
#include <memory>
#include <string>
#include <thread>

namespace ombrivane::demo {

/// The demo's window with the component in it, played by hand or by a script.
class DemoWallet {
public:
    explicit DemoWallet(DemoOptions options);
    DemoWallet(const DemoWallet&) = delete;
    DemoWallet& operator=(const DemoWallet&) = delete;
    ~DemoWallet();

    /// Whether the window could be made.
    bool isReady() const { return window_ != nullptr; }

    /// Plays the script of the options and returns the exit status.
    int playScript();
    /// Opens the component, waits for its first screen and writes a picture of it. @return the exit status
    int takePicture(const std::string& file);

private:
    void installPlatform();
    void makeWindow();
    void listen();
    journey::Stage stage();
    bool runUntil(const std::function<bool()>& done, std::chrono::milliseconds limit);
    void writeTexts();
    void writePicture(const std::string& file);
    void receive(const std::optional<Dictionary>& dictionary, const std::optional<Error>& error);
    void addReceipt(const std::string& text);

    DemoOptions options_;
    std::thread::id mainThread_ = std::this_thread::get_id();
    std::shared_ptr<view::QtMainQueue> queue_ = std::make_shared<view::QtMainQueue>();
    journey::EventLog log_{[] {}};
    std::shared_ptr<AdjustableClock> clock_ = std::make_shared<AdjustableClock>();
    std::shared_ptr<journey::ScriptedReachability> reachability_ =
        std::make_shared<journey::ScriptedReachability>();
    std::shared_ptr<journey::ScriptedPhotos> photos_ = std::make_shared<journey::ScriptedPhotos>();
    std::atomic<bool> faulted_ = false;
    std::unique_ptr<QQmlApplicationEngine> engine_;
    QQuickWindow* window_ = nullptr;
    view::OmbrivaneSession* session_ = nullptr;
    Subscription receipts_;
};

} // namespace ombrivane::demo
