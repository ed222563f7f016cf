#include "platform/ImageCodec.h"

#include "platform/Limits.h"

namespace ombrivane {

PictureLimits logoLimits() {
    return {limits::logoBytes, limits::logoSide, 1LL * limits::logoSide * limits::logoSide};
}

PictureLimits documentLimits() {
    return {limits::documentBytes, limits::documentSide, limits::documentPoints};
}

} // namespace ombrivane
