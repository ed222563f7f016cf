// A line with a delay in front of a server of this machine: ombrivane-line PORT SERVER-PORT MILLISECONDS
#include "DelayingProxy.h"

#include <cstdio>
#include <cstdlib>
#include <exception>

int main(int count, char** arguments) {
    if (count != 4) {
        std::fputs("usage: ombrivane-line PORT SERVER-PORT ROUND-TRIP-MILLISECONDS\n", stderr);
        return 2;
    }
    try {
        ombrivane::bench::DelayingProxy proxy(std::atoi(arguments[1]),
                                              std::atoi(arguments[2]),
                                              std::chrono::milliseconds(std::atoi(arguments[3])));
        std::puts("ready");
        std::fflush(stdout);
        proxy.serve();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "ombrivane-line: %s\n", error.what());
        return 1;
    }
}
