#include "platform/HeadlessPlatform.h"
#include "session/OmbrivaneView.h"

int main() {
    ombrivane::Platform::install(ombrivane::headlessPlatform(std::make_shared<ombrivane::RunLoop>()));
    ombrivane::OmbrivaneView view("wallet", "secret", {}, {}, "9800000000", {}, [](auto, auto) {});
    return view.navigator() == nullptr ? 0 : 1; // nothing is on a stack before the view is shown
}
