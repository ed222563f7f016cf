#pragma once

#include "base/Completion.h"

#include <string>

namespace ombrivane {

/// Asks for the address of a ticket's document.
class DownloadTicketProvider {
public:
    /// Completes with the address, or with an empty text and the error.
    void download(const std::string& ticketReferenceID, const Completion<std::string>& completion) const;
};

} // namespace ombrivane
