#pragma once

#include "adapters/ResultsAdapter.h"
#include "results/FlightListView.h"

#include <memory>
#include <string>

namespace ombrivane::bench {

/// The screen of the international results and its adapter, given its offers by hand: it sends no search.
class LongList {
public:
    /// @param service where the logos are fetched from
    /// @param marks combining marks on a letter of most names of airlines and airports
    LongList(std::size_t offers, const std::string& service, int marks = 0);

    /// The search is on its way: placeholders.
    void await();
    /// Its answer is there.
    void fill();

    QUrl page() const;
    view::ResultsAdapter& adapter() { return *adapter_; }
    /// A fresh adapter, as a page that opens anew has one.
    void renewAdapter();
    std::size_t size() const { return offers_.size(); }

private:
    OneWayOffers offers_;
    std::shared_ptr<FlightListView> screen_;
    std::unique_ptr<view::ResultsAdapter> adapter_;
};

} // namespace ombrivane::bench
