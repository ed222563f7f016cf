#include "adapters/BookingAdapters.h"

#include "platform/Platform.h"

namespace ombrivane::view {

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

bool PhotoPickerAdapter::asksForFile() const { return platform().photos->asksForFile(); }

void PhotoPickerAdapter::choose(const QUrl& file, const QRectF& crop) {
    platform().photos->choose(file.toString().toStdString(),
                              {crop.x(), crop.y(), crop.width(), crop.height()});
}

void PhotoPickerAdapter::cancel() { platform().photos->cancel(); }

} // namespace ombrivane::view
