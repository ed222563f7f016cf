#include "booking/Travellers.h"

#include <algorithm>

namespace ombrivane {

std::optional<std::size_t> Travellers::position(const Uuid& slot) const {
    const auto& list = passengers_.get();
    const auto found = std::find_if(
        list.begin(), list.end(), [&slot](const Passenger& passenger) { return passenger.id == slot; });
    if (found == list.end()) return std::nullopt;
    return static_cast<std::size_t>(found - list.begin());
}

std::optional<DocumentPicture> Travellers::document(std::size_t position) const {
    const auto& documents = documents_.get();
    return position < documents.size() ? documents[position] : std::nullopt;
}

DocumentList Travellers::documents() const {
    DocumentList documents = documents_.get();
    documents.resize(std::max(documents.size(), passengers_->size()));
    return documents;
}

void Travellers::put(Passenger passenger, std::optional<DocumentPicture> picture) {
    auto passengers = passengers_.get();
    auto pictures = documents();
    const std::size_t at = position(passenger.id).value_or(passengers.size());
    passengers.resize(std::max(passengers.size(), at + 1));
    pictures.resize(std::max(pictures.size(), at + 1));
    passengers[at] = std::move(passenger);
    pictures[at] = std::move(picture);
    passengers_.set(std::move(passengers));
    documents_.set(std::move(pictures));
}

} // namespace ombrivane
