#pragma once

#include "keyed/Field.h"
#include "platform/DocumentPicture.h"
#include "records/Passenger.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace ombrivane {

/// A picture for each passenger, absent where none was picked.
using DocumentList = std::vector<std::optional<DocumentPicture>>;

/// The travellers of a booking and the pictures of their documents: two lists of a session in which each
/// position belongs to the same position of the other. A passenger whom the contact form wrote has no entry
/// among the documents yet. The lists outlive this.
class Travellers {
public:
    Travellers(Field<std::vector<Passenger>>& passengers, Field<DocumentList>& documents) :
        passengers_(passengers), documents_(documents) {}

    /// Where the passenger of a slot stands.
    std::optional<std::size_t> position(const Uuid& slot) const;
    /// The picture of the passenger at a position.
    std::optional<DocumentPicture> document(std::size_t position) const;
    /// As many pictures as there are passengers, at least.
    DocumentList documents() const;
    /// Writes the passenger of a slot with the picture: in place where the slot has one, else at the end.
    void put(Passenger passenger, std::optional<DocumentPicture> picture);

private:
    Field<std::vector<Passenger>>& passengers_;
    Field<DocumentList>& documents_;
};

} // namespace ombrivane
