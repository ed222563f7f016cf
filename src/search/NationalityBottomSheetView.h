#pragma once

#include "keyed/Action.h"
#include "keyed/Field.h"
#include "keyed/Rows.h"
#include "keyed/Screen.h"
#include "search/MainViewModel.h"

#include <functional>
#include <string>
#include <vector>

namespace ombrivane {

/// One row of the nationality list.
class NationalityRow final : public Screen {
public:
    NationalityRow(const std::string& text, std::function<void()> choose) :
        Screen("NationalityRow"),
        nationality(fields, "nationality", [text] { return text; }),
        tap(*this, "tap", std::move(choose)) {}

    Derived<std::string> nationality;
    Action<> tap;
};

/// The sheet that chooses a nationality. A text that finds nothing shows the whole list again.
class NationalityBottomSheetView final : public Screen {
public:
    explicit NationalityBottomSheetView(MainViewModel& model);

    Binding<std::string> nationalityTextField;
    Binding<std::string> nationality;
    Published<std::string> nationalityText{fields, "nationalityText"};
    Published<std::vector<Country>> countries{fields, "countries"};
    Published<std::vector<Country>> filteredCountries{fields, "filteredCountries"};
    Derived<std::string> placeholder;
    Rows rows;
    /// The customer changed the text of the search field. Letter case counts.
    Action<std::string> type;

private:
    const std::vector<Country>& shown() const;
    void choose(const Country& country);
};

} // namespace ombrivane
