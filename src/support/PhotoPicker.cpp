#include "support/PhotoPicker.h"

#include "platform/Platform.h"
#include "support/Attempted.h"

#include <memory>

namespace ombrivane {

PhotoPicker::PhotoPicker(const Field<std::optional<Image>>& source) :
    Screen("PhotoPicker"), image(fields, "image", source) {}

void PhotoPicker::appear() {
    platform().photos->present([weak = weak_from_this()](const PhotoLibrary::Picked& picked) {
        const auto screen = weak.lock();
        if (screen) static_cast<PhotoPicker&>(*screen).didFinishPicking(picked);
    });
}

void PhotoPicker::disappear() { platform().photos->dismiss(); }

void PhotoPicker::didFinishPicking(const PhotoLibrary::Picked& picked) {
    if (!picked.cancelled && picked.editedImage) {
        // A picture that cannot be compressed is none; the customer may pick another.
        std::optional<Image> decoded;
        attempted([&] {
            auto& codec = *platform().images;
            if (const auto compressed = codec.jpeg(*picked.editedImage, compressionQuality)) {
                decoded = codec.decode(*compressed, documentLimits());
            }
        });
        if (!decoded) return;
        image = decoded;
    }
    dismiss();
}

} // namespace ombrivane
