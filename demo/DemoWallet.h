#pragma once

#include "Conditions.h"
#include "DemoOptions.h"
#include "EventLog.h"
#include "Figures.h"
#include "Script.h"
#include "ScriptedPorts.h"
#include "SwitchedReachability.h"
#include "WalletAccount.h"
#include "device/QtMainQueue.h"
#include "items/OmbrivaneSession.h"
#include "platform/AdjustableClock.h"
#include "sandbox/Sandbox.h"

#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <atomic>
#include <memory>
#include <string>
#include <thread>

namespace ombrivane::demo {

/// The demo's window with the component in it, played by hand or by a script. One at a time: it installs the
/// platform, and takes it away when it goes. After the application object.
class DemoWallet {
public:
    /// @param service the demo's own, which outlives this; nullptr where another one is used
    explicit DemoWallet(DemoOptions options, sandbox::Sandbox* service = nullptr);
    DemoWallet(const DemoWallet&) = delete;
    DemoWallet& operator=(const DemoWallet&) = delete;
    ~DemoWallet();

    /// Whether the window could be made.
    bool isReady() const { return window_ != nullptr; }
    QQuickWindow& window() { return *window_; }
    view::OmbrivaneSession& session() { return *session_; }
    WalletAccount& account() { return account_; }
    Conditions& conditions() { return conditions_; }

    /// Plays the script of the options and returns the exit status.
    int playScript();
    /// The same for its lines.
    int play(std::istream& lines);
    /// Opens the component, waits for its first screen and writes a picture of it. @return the exit status,
    /// that of a bad line where the picture cannot be written
    int takePicture(const std::string& file);

private:
    void installPlatform();
    void makeWindow();
    void listen();
    void follow();
    /// The language and the region that the wallet writes its own amounts and days in.
    QLocale locale() const;
    journey::Stage stage();
    /// The stack that a script works on; whoever watches has seen its topmost screen.
    Navigator* watched();
    bool hasSearch() const;
    /// @throws std::runtime_error where it cannot be written
    void writePicture(const std::string& file);
    void click(const std::string& name);
    void setFaults(const std::string& fault);
    void receive(const std::optional<Dictionary>& dictionary, const std::optional<Error>& error);

    QElapsedTimer started_;
    DemoOptions options_;
    sandbox::Sandbox* service_;
    std::thread::id mainThread_ = std::this_thread::get_id();
    std::shared_ptr<view::QtMainQueue> queue_ = std::make_shared<view::QtMainQueue>();
    std::shared_ptr<journey::EventLog> log_ = std::make_shared<journey::EventLog>([] {});
    std::shared_ptr<AdjustableClock> clock_ = std::make_shared<AdjustableClock>();
    std::shared_ptr<journey::ScriptedReachability> scripted_ =
        std::make_shared<journey::ScriptedReachability>();
    std::shared_ptr<SwitchedReachability> reachability_;
    std::shared_ptr<journey::ScriptedPhotos> photos_ = std::make_shared<journey::ScriptedPhotos>();
    std::string seen_; ///< the topmost screen, by its name
    std::atomic<bool> faulted_ = false;
    WalletAccount account_;
    Conditions conditions_;
    std::unique_ptr<QQmlApplicationEngine> engine_;
    QQuickWindow* window_ = nullptr;
    view::OmbrivaneSession* session_ = nullptr;
    std::unique_ptr<Figures> figures_;
};

} // namespace ombrivane::demo
