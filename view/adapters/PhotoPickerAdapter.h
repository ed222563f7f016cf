#pragma once

#include "adapters/ScreenAdapter.h"
#include "images/PhotoPicker.h"

#include <QRectF>
#include <QUrl>

namespace ombrivane::view {

/// The picker of a document's picture: a file, then the part of it that is kept. By hand, since it works the
/// device's library and reads no key.
class PhotoPickerAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    /// Whether the page asks for a file itself; a device with a library of its own shows that over the page.
    Q_PROPERTY(bool asksForFile READ asksForFile CONSTANT FINAL)
    OMBRIVANE_SCREEN(PhotoPickerAdapter, ScreenAdapter, PhotoPicker)

public:
    bool asksForFile() const;
    /// @param crop in parts of the whole, from 0 to 1
    Q_INVOKABLE void choose(const QUrl& file, const QRectF& crop);
    Q_INVOKABLE void cancel();
};

} // namespace ombrivane::view
