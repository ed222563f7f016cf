#include "adapters/PhotoPickerAdapter.h"

#include "platform/Platform.h"

namespace ombrivane::view {

bool PhotoPickerAdapter::asksForFile() const { return platform().photos->asksForFile(); }

void PhotoPickerAdapter::choose(const QUrl& file, const QRectF& crop) {
    platform().photos->choose(file.toString().toStdString(),
                              {crop.x(), crop.y(), crop.width(), crop.height()});
}

void PhotoPickerAdapter::cancel() { platform().photos->cancel(); }

} // namespace ombrivane::view
