#pragma once

#include "platform/PhotoLibrary.h"

namespace ombrivane::view {

/// The picker of a desktop: a file, then the part of it that is kept. The picker's page shows a file dialog
/// and the crop, and tells what the customer did.
class FileDialogPhotos final : public PhotoLibrary {
public:
    void present(Handler handler) override { handler_ = std::move(handler); }
    void dismiss() override { handler_ = nullptr; }

    bool asksForFile() const override { return true; }
    void choose(const std::string& url, const Crop& crop) override;
    void cancel() override;

private:
    void answer(Picked picked);

    Handler handler_;
};

} // namespace ombrivane::view
