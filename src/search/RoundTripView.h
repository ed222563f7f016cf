#pragma once

#include "search/SearchForm.h"

namespace ombrivane {

/// The form that searches a journey and its return.
class RoundTripView final : public SearchForm {
public:
    explicit RoundTripView(CompletionCallback completionCallback);
};

} // namespace ombrivane
