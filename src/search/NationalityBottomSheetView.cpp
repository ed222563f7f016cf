#include "search/NationalityBottomSheetView.h"

#include "state/AppState.h"

#include <algorithm>
#include <iterator>

namespace ombrivane {

NationalityBottomSheetView::NationalityBottomSheetView(MainViewModel& model) :
    Screen("NationalityBottomSheetView"),
    nationalityTextField(fields, "nationalityTextField", model.nationalityText),
    nationality(fields, "nationality", model.nationality),
    placeholder(fields, "placeholder", [] { return std::string("Search Nationality"); }),
    rows(
        *this, "rows", [this] { return shown().size(); },
        [this](std::size_t index) {
            const Country& country = shown().at(index);
            return std::make_shared<NationalityRow>(country.nationality,
                                                    [this, country] { choose(country); });
        },
        [this] { return identitiesOf(shown(), &Country::shortName); }),
    type(*this, "type", [this](const std::string& typed) {
        nationalityText = typed;
        std::vector<Country> found;
        std::copy_if(
            countries->begin(), countries->end(), std::back_inserter(found), [&](const Country& country) {
                return country.nationality.find(typed) != std::string::npos;
            });
        filteredCountries = std::move(found);
    }) {
    countries = model.countries.get();
}

const std::vector<Country>& NationalityBottomSheetView::shown() const {
    const auto& filtered = filteredCountries.get();
    const auto& all = countries.get();
    return filtered.empty() ? all : filtered;
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
