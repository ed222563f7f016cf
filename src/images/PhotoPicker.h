#pragma once

#include "images/KeyedImage.h"
#include "keyed/Field.h"
#include "keyed/Screen.h"
#include "platform/PhotoLibrary.h"

#include <optional>

namespace ombrivane {

/// The device's photo library as a sheet: hands back one picture, that of a travel document.
class PhotoPicker final : public Screen {
public:
    /// Every document picture passes through a JPEG of this quality, which bounds what an upload of it takes.
    static constexpr double compressionQuality = 0.5;

    /// @param source is written with the picture.
    explicit PhotoPicker(const Field<std::optional<DocumentPicture>>& source);

    Binding<std::optional<DocumentPicture>> image;

    void appear() override;
    void disappear() override;

private:
    void didFinishPicking(const PhotoLibrary::Picked& picked);
};

} // namespace ombrivane
