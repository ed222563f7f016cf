#pragma once

#include "platform/Image.h"

#include <functional>
#include <optional>
#include <string>

namespace ombrivane {

/// The device's picker of one picture, with its editing step.
class PhotoLibrary {
public:
    /// What the customer did: the edited picture when one was picked and is a picture.
    struct Picked {
        bool cancelled = false;           ///< nothing was picked
        std::optional<Image> editedImage; ///< after the editing step
    };
    /// Called on the main thread for each answer, until `dismiss`.
    using Handler = std::function<void(Picked)>;

    PhotoLibrary() = default;
    PhotoLibrary(const PhotoLibrary&) = delete;
    PhotoLibrary& operator=(const PhotoLibrary&) = delete;
    virtual ~PhotoLibrary() = default;

    /// Opens the picker with editing allowed. Main thread.
    virtual void present(Handler handler) = 0;
    /// Closes it; the handler is let go and not called again. Main thread.
    virtual void dismiss() = 0;

    /// A part of a picture, in parts of the whole from 0 to 1.
    struct Crop {
        double x;      ///< of its left side
        double y;      ///< of its upper side
        double width;  ///< up to its right side
        double height; ///< up to its lower side
    };
    /// Whether the device has no picker of its own: a page of the view asks for a file and tells by `choose`
    /// or `cancel` what the customer did. Main thread, as those two.
    virtual bool asksForFile() const { return false; }
    /// The customer chose the part `crop` of the picture at `url`.
    virtual void choose(const std::string& /*url*/, const Crop& /*crop*/) {}
    /// The customer chose nothing.
    virtual void cancel() {}
};

} // namespace ombrivane
