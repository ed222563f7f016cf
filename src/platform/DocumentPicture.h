#pragma once

#include <memory>
#include <string>

namespace ombrivane {

/// The picture of a travel document as the picker made it: a JPEG, which takes a fiftieth of its points. It
/// is decoded where it is drawn or sent and nowhere else. Copies share the bytes.
struct DocumentPicture {
    int width = 0;  ///< in points
    int height = 0; ///< in points
    std::shared_ptr<const std::string> jpeg;

    /// The same picture, not merely an equal one.
    bool operator==(const DocumentPicture&) const = default;
};

} // namespace ombrivane
