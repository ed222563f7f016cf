#include "adapters/BookingAdapters.h"

#include "device/FileDialogPhotos.h"
#include "platform/Platform.h"

#include <string_view>

namespace ombrivane::view {
namespace {

std::shared_ptr<Screen> partOf(const Screen& screen, std::string_view key) {
    for (const Part* part : screen.parts()) {
        if (part->key() == key) return part->screen();
    }
    return nullptr;
}

FileDialogPhotos* picker() { return dynamic_cast<FileDialogPhotos*>(platform().photos.get()); }

} // namespace

template <class Adapter> std::unique_ptr<Adapter> SessionAdapter::partAdapter(const char* key) const {
    auto part = partOf(core(), key);
    return part ? std::make_unique<Adapter>(std::move(part)) : nullptr;
}

PaymentAdapter* SessionAdapter::payment() {
    if (!payment_) payment_ = partAdapter<PaymentAdapter>("payment");
    return core().showPaymentView ? payment_.get() : nullptr;
}

void PhotoPickerAdapter::choose(const QUrl& file, const QRectF& crop) {
    if (auto* photos = picker()) photos->choose(file, crop);
}

void PhotoPickerAdapter::cancel() {
    if (auto* photos = picker()) photos->cancel();
}

} // namespace ombrivane::view
