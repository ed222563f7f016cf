#pragma once

#include <string>
#include <vector>

namespace ombrivane::bench {

/// One measured value of the summary.
struct Figure {
    std::string name;
    double value = 0;
};

/// What decoding a search answer costs and holds. @throws std::runtime_error when the baseline decodes other
/// records
std::vector<Figure> decodeFigures();

/// What a customer's tap on a result list costs.
std::vector<Figure> searchFigures();

} // namespace ombrivane::bench
