#pragma once

#include "keyed/Keyed.h"
#include "platform/DocumentPicture.h"
#include "platform/Image.h"

namespace ombrivane {

/// A picture shows its size and cannot be written by its key; an optional one can be taken away with null.
template <> struct Keyed<Image> {
    static Json toJson(const Image& value) { return Json{{"width", value.width}, {"height", value.height}}; }
    [[noreturn]] static Image fromJson(const Json& /*json*/) {
        throw KeyedError("a picture cannot be written");
    }
};

template <> struct Keyed<DocumentPicture> {
    static Json toJson(const DocumentPicture& value) {
        return Json{{"width", value.width}, {"height", value.height}};
    }
    [[noreturn]] static DocumentPicture fromJson(const Json& /*json*/) {
        throw KeyedError("a picture cannot be written");
    }
};

} // namespace ombrivane
