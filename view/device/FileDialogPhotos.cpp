#include "device/FileDialogPhotos.h"

#include "platform/ImageCodec.h"
#include "platform/Limits.h"
#include "platform/Platform.h"

#include <QFile>
#include <QUrl>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace ombrivane::view {
namespace {

constexpr int bytesOfPoint = 4;

/// The part of `image` that lies in `crop`, at least one point of it.
Image cropped(const Image& image, const PhotoLibrary::Crop& crop) {
    const int left = std::clamp(static_cast<int>(std::lround(crop.x * image.width)), 0, image.width - 1);
    const int top = std::clamp(static_cast<int>(std::lround(crop.y * image.height)), 0, image.height - 1);
    const int right =
        std::clamp(static_cast<int>(std::lround((crop.x + crop.width) * image.width)), left + 1, image.width);
    const int bottom = std::clamp(
        static_cast<int>(std::lround((crop.y + crop.height) * image.height)), top + 1, image.height);
    const auto rowBytes = static_cast<std::size_t>(right - left) * bytesOfPoint;
    auto points =
        std::make_shared<std::vector<std::uint8_t>>(rowBytes * static_cast<std::size_t>(bottom - top));
    for (int row = top; row < bottom; ++row) {
        const auto from = (static_cast<std::size_t>(row) * static_cast<std::size_t>(image.width) +
                           static_cast<std::size_t>(left)) *
                          bytesOfPoint;
        std::memcpy(points->data() + rowBytes * static_cast<std::size_t>(row - top),
                    image.points->data() + from,
                    rowBytes);
    }
    return {right - left, bottom - top, std::move(points)};
}

std::string contentsOf(const std::string& url) {
    QFile file(QUrl(QString::fromStdString(url)).toLocalFile());
    if (!file.open(QIODevice::ReadOnly)) return "";
    if (file.size() > static_cast<qint64>(limits::documentBytes)) return "";
    return file.readAll().toStdString();
}

} // namespace

void FileDialogPhotos::choose(const std::string& url, const Crop& crop) {
    const auto image = platform().images->decode(contentsOf(url), documentLimits());
    answer({false, image ? std::optional(cropped(*image, crop)) : std::nullopt});
}

void FileDialogPhotos::cancel() { answer({true, std::nullopt}); }

void FileDialogPhotos::answer(Picked picked) {
    const Handler handler = handler_;
    if (handler) handler(std::move(picked));
}

} // namespace ombrivane::view
