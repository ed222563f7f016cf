#pragma once

#include "base/Json.h"

#include <memory>
#include <optional>
#include <string>

namespace ombrivane {

class MainView;
class Navigator;

/// Where a customer stands in the search, as a text for the host to keep: the form, the tab, and whether the
/// offers were there. No token, no traveller and no picture; written nowhere by the component. Main thread.
class KeptState {
public:
    /// As the process and `navigator`, which may be absent, stand now.
    static std::string save(const Navigator* navigator);

    /// Reads what `save` has written; nothing where it is another version's, or was altered or cut.
    static std::optional<KeptState> read(const std::string& state);

    /// Fills the form of the process.
    void fillForm() const;
    /// Chooses the tab, and opens the offers anew where they were there and their day has not gone by.
    void show(MainView& view) const;

private:
    explicit KeptState(Json kept) : kept_(std::move(kept)) {}
    bool hasGoneBy() const;

    Json kept_;
};

/// Empties what the process knows of its customer: token, balance, telephone number, form and nationality.
/// Main thread.
void forgetCustomer();

} // namespace ombrivane
