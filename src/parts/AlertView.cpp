#include "parts/AlertView.h"

namespace ombrivane {

AlertView::AlertView(std::string titleText, std::string messageText) :
    Screen("AlertView"),
    title(fields, "title", [text = std::move(titleText)] { return text; }),
    message(fields, "message", [text = std::move(messageText)] { return text; }) {}

} // namespace ombrivane
