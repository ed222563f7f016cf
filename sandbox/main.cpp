#include "sandbox/Json.h"
#include "sandbox/Sandbox.h"
#include "sandbox/control/CommandLine.h"

#include <csignal>
#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include <poll.h>
#include <sys/signalfd.h>
#include <unistd.h>

namespace {

using namespace ombrivane::sandbox;

/// A descriptor that becomes readable at SIGTERM or SIGINT, which end nothing by themselves from here on.
int endSignals() {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    sigaddset(&signals, SIGINT);
    sigprocmask(SIG_BLOCK, &signals, nullptr);
    return ::signalfd(-1, &signals, SFD_CLOEXEC);
}

void waitForTheEnd(int signals, bool withStdin) {
    pollfd waits[2] = {{signals, POLLIN, 0}, {withStdin ? STDIN_FILENO : -1, POLLIN, 0}};
    while (true) {
        ::poll(waits, 2, -1);
        if (waits[0].revents != 0) return;
        char discarded[256];
        if (waits[1].revents != 0 && ::read(STDIN_FILENO, discarded, sizeof discarded) <= 0) return;
    }
}

} // namespace

int main(int count, char** values) {
    try {
        const CommandLine line = parseCommandLine(std::vector<std::string>(values + 1, values + count));
        if (line.help) {
            std::fputs((helpText() + "\nWhile it runs it answers:\n\n" + Sandbox::controlText()).c_str(),
                       stdout);
            return 0;
        }
        const int signals = endSignals();
        Sandbox sandbox(line.options);
        sandbox.start();
        const Json started{{"address", sandbox.address()}, {"ca", sandbox.caFile().string()}};
        std::puts(toText(started).c_str());
        std::fflush(stdout);
        waitForTheEnd(signals, line.exitWithStdin);
        return 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "ombrivane-sandbox: %s\n", failure.what());
        return 1;
    }
}
