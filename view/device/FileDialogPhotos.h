#pragma once

#include "platform/PhotoLibrary.h"

#include <QObject>
#include <QRectF>
#include <QUrl>

namespace ombrivane::view {

/// The picker of a desktop: a file, then the part of it that is kept. The picker's page shows a file dialog
/// and the crop, and tells what the customer did.
class FileDialogPhotos final : public PhotoLibrary {
public:
    void present(Handler handler) override { handler_ = std::move(handler); }
    void dismiss() override { handler_ = nullptr; }

    /// The customer chose the part `crop` (in parts of the whole, 0 to 1) of the picture in `file`.
    void choose(const QUrl& file, const QRectF& crop);
    void cancel();

private:
    void answer(Picked picked);

    Handler handler_;
};

} // namespace ombrivane::view
