#pragma once

#include "keyed/Action.h"
#include "keyed/Constant.h"
#include "keyed/Field.h"
#include "keyed/Rows.h"
#include "keyed/Screen.h"
#include "search/MainViewModel.h"
#include "words/Caption.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ombrivane {

/// One row of the nationality list.
class NationalityRow final : public Screen {
public:
    NationalityRow(std::string text, std::function<void()> choose) :
        Screen("NationalityRow"),
        nationality(fields, "nationality", std::move(text)),
        tap(*this, "tap", std::move(choose)) {}

    Constant nationality;
    Action<> tap;
};

/// The sheet that chooses a nationality. A text that finds nothing shows the whole list again.
class NationalityBottomSheetView final : public Screen {
private:
    MainViewModel& model_;

public:
    explicit NationalityBottomSheetView(MainViewModel& model) :
        Screen("NationalityBottomSheetView"), model_(model) {}

    Binding<std::string> nationalityTextField{fields, "nationalityTextField", model_.nationalityText};
    Binding<std::string> nationality{fields, "nationality", model_.nationality};
    Published<std::string> nationalityText{fields, "nationalityText"};
    Published<std::vector<Country>> countries{fields, "countries", model_.countries};
    Published<std::vector<Country>> filteredCountries{fields, "filteredCountries"};
    Caption placeholder{fields, "placeholder", Text::nationalitySearch};
    Rows rows{*this,
              "rows",
              [this] { return shown().size(); },
              [this](std::size_t index) { return makeRow(shown().at(index)); },
              [this] { return identitiesOf(shown(), &Country::shortName); }};
    /// The customer changed the text of the search field. Letter case counts.
    Action<std::string> type{*this, "type", [this](const std::string& typed) { searchFor(typed); }};

private:
    const std::vector<Country>& shown() const;
    std::shared_ptr<Screen> makeRow(const Country& country);
    void searchFor(const std::string& typed);
    void choose(const Country& country);
};

} // namespace ombrivane
