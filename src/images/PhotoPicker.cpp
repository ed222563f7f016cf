#include "images/PhotoPicker.h"

#include "base/Attempted.h"
#include "base/Fault.h"
#include "keyed/Deeds.h"
#include "platform/Platform.h"

#include <memory>

namespace ombrivane {

PhotoPicker::PhotoPicker(const Field<std::optional<DocumentPicture>>& source) :
    Screen("PhotoPicker"), image(fields, "image", source) {}

void PhotoPicker::appear() {
    platform().photos->present([weak = weak_from_this()](const PhotoLibrary::Picked& picked) {
        const auto screen = weak.lock();
        if (screen) guarded([&] { static_cast<PhotoPicker&>(*screen).didFinishPicking(picked); });
    });
}

void PhotoPicker::disappear() { platform().photos->dismiss(); }

void PhotoPicker::didFinishPicking(const PhotoLibrary::Picked& picked) {
    Deeds::tell(*this, "picked", {!picked.cancelled});
    if (!picked.cancelled && picked.editedImage) {
        // A picture that cannot be compressed is none; the customer may pick another.
        std::optional<std::string> jpeg;
        attempted([&] { jpeg = platform().images->jpeg(*picked.editedImage, compressionQuality); });
        if (!jpeg) return;
        image = DocumentPicture{picked.editedImage->width,
                                picked.editedImage->height,
                                std::make_shared<const std::string>(*std::move(jpeg))};
    }
    dismiss();
}

} // namespace ombrivane
