#include "adapters/BookingAdapters.h"

#include "device/FileDialogPhotos.h"
#include "platform/Platform.h"

namespace ombrivane::view {
namespace {

FileDialogPhotos* picker() { return dynamic_cast<FileDialogPhotos*>(platform().photos.get()); }

} // namespace

std::shared_ptr<Screen> SessionAdapter::part(std::string_view key) const {
    for (const Part* part : core().parts()) {
        if (part->key() == key) return part->screen();
    }
    return nullptr;
}

PaymentAdapter* SessionAdapter::payment() {
    if (!payment_) payment_ = partAdapter<PaymentAdapter>("payment");
    return core().showPaymentView ? payment_.get() : nullptr;
}

bool PhotoPickerAdapter::asksForFile() const { return picker() != nullptr; }

void PhotoPickerAdapter::choose(const QUrl& file, const QRectF& crop) {
    if (auto* photos = picker()) photos->choose(file, crop);
}

void PhotoPickerAdapter::cancel() {
    if (auto* photos = picker()) photos->cancel();
}

} // namespace ombrivane::view
