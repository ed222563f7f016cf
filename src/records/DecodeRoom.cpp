#include "records/DecodeRoom.h"

#include "records/DecodeError.h"

#include <fmt/core.h>

namespace ombrivane {

void DecodeRoom::refuse() const {
    throw DecodeError(
        fmt::format("takes more than {} MiB of memory beyond the answer's bytes", limit_ / limits::mebibyte));
}

void DecodeRoom::refuseCount() {
    throw DecodeError(fmt::format("more than {} elements", limits::listElements));
}

} // namespace ombrivane
