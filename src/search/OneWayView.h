#pragma once

#include "search/SearchForm.h"

namespace ombrivane {

/// The form that searches one way.
class OneWayView final : public SearchForm {
public:
    explicit OneWayView(CompletionCallback completionCallback);
};

} // namespace ombrivane
