// A booking service for this machine: HTTPS on the loopback interface, with faults on demand.
#pragma once

#include "sandbox/control/Options.h"
#include "sandbox/wire/RequestLog.h"

#include <chrono>
#include <filesystem>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace ombrivane::sandbox {

class FaultPlan;
class HttpsServer;
class Service;
class TlsConnection;

/// Every operation may be called from any thread, but `start` and `stop` not at the same time.
class Sandbox {
public:
    /// Throws `std::invalid_argument` for a fault that does not read, and for a scenario that there is not.
    explicit Sandbox(Options options = {});
    ~Sandbox();
    Sandbox(const Sandbox&) = delete;
    Sandbox& operator=(const Sandbox&) = delete;

    /// Makes the certificates, writes the authority's file and listens. Throws `std::system_error` when the
    /// port is taken or the file cannot be written.
    void start();

    /// Ends every connection and takes the temporary folder away; faults and scenarios stay in force for
    /// another start. A second call does nothing.
    void stop();

    /// "https://localhost:PORT"; empty before the start.
    [[nodiscard]] std::string address() const { return address_; }

    /// The authority that a client is to trust, a PEM file.
    [[nodiscard]] std::filesystem::path caFile() const { return caFile_; }

    /// Every request of the service that was read whole, with what became of it.
    [[nodiscard]] std::vector<RecordedRequest> requests() const { return log_.requests(); }
    /// How many connections and requests there were.
    [[nodiscard]] Counters counters() const { return log_.counters(); }

    /// What customers meet from here on, in place of all faults and scenarios before; before the start, from
    /// the start on. Throws
    /// `std::invalid_argument` and changes nothing where a scenario has no such name or a fault does not
    /// read.
    void play(const std::vector<std::string>& scenarios, const std::vector<std::string>& faults);

    /// The same for faults alone.
    void setFaults(const std::vector<std::string>& faults) { play({}, faults); }

    /// The same for scenarios alone.
    void setScenarios(const std::vector<std::string>& names) { play(names, {}); }

    /// Turns the service's clock on.
    void advanceClock(std::chrono::seconds time);

    /// Forgets faults, log, counters, tokens, searches and bookings, as after a fresh start without faults.
    void reset();

    /// The calls below /sandbox, a line each with what it answers or does.
    [[nodiscard]] static std::string controlText();

private:
    struct ControlCall;
    static const std::vector<ControlCall>& controlCalls();
    bool answer(const HttpRequest& request, bool isFirst, TlsConnection& connection);
    HttpAnswer answerControl(const HttpRequest& request);
    HttpAnswer control(const HttpRequest& request);
    Json state() const;
    void writeCaFile(const std::string& pem);

    Options options_;
    RequestLog log_;
    std::unique_ptr<FaultPlan> faults_;
    mutable std::mutex playing_; ///< guards `scenarios_`
    std::vector<std::string> scenarios_;
    std::string address_;
    std::filesystem::path caFile_;
    std::filesystem::path temporaryFolder_;
    std::unique_ptr<Service> service_;
    std::unique_ptr<HttpsServer> server_;
};

} // namespace ombrivane::sandbox
