#pragma once

#include "platform/DocumentPicture.h"

#include <QQmlEngine>

#include <optional>

namespace ombrivane::view {

/// The picture of a travel document as a page gets it, to be drawn by a `Document`. Copies share the bytes.
class DocumentValue {
    Q_GADGET
    QML_VALUE_TYPE(documentValue)
    /// Whether there is a picture.
    Q_PROPERTY(bool held READ held FINAL)
    /// Its height for one of its width; 0 where there is none.
    Q_PROPERTY(double ratio READ ratio FINAL)

public:
    DocumentValue() = default;
    explicit DocumentValue(std::optional<DocumentPicture> picture) : picture_(std::move(picture)) {}

    bool operator==(const DocumentValue&) const = default;

    const std::optional<DocumentPicture>& picture() const { return picture_; }
    bool held() const { return picture_.has_value(); }
    double ratio() const {
        return picture_ && picture_->width > 0 ? static_cast<double>(picture_->height) / picture_->width : 0;
    }

private:
    std::optional<DocumentPicture> picture_;
};

/// The picture of a document as a page may show it.
inline DocumentValue shown(const std::optional<DocumentPicture>& picture) { return DocumentValue(picture); }

} // namespace ombrivane::view
