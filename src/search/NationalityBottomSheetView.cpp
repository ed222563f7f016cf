#include "search/NationalityBottomSheetView.h"

#include "state/AppState.h"

#include <algorithm>
#include <iterator>

namespace ombrivane {

const std::vector<Country>& NationalityBottomSheetView::shown() const {
    const auto& filtered = filteredCountries.get();
    const auto& all = countries.get();
    return filtered.empty() ? all : filtered;
}

std::shared_ptr<Screen> NationalityBottomSheetView::makeRow(const Country& country) {
    return std::make_shared<NationalityRow>(country.nationality, [this, country] { choose(country); });
}

void NationalityBottomSheetView::searchFor(const std::string& typed) {
    nationalityText = typed;
    std::vector<Country> found;
    std::copy_if(
        countries->begin(), countries->end(), std::back_inserter(found), [&](const Country& country) {
            return country.nationality.find(typed) != std::string::npos;
        });
    filteredCountries = std::move(found);
}

void NationalityBottomSheetView::choose(const Country& country) {
    auto& appState = AppState::shared();
    nationalityTextField = country.nationality;
    nationality = country.shortName;
    appState.nationalityText = country.nationality;
    appState.nationality = country.shortName;
    dismiss();
}

} // namespace ombrivane
