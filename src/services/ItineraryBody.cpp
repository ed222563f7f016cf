#include "services/ItineraryBody.h"

#include "platform/Platform.h"
#include "records/DecodeError.h"
#include "records/JsonDocument.h"

#include <string>

namespace ombrivane {
namespace {

/// The first character decides, since the bytes are known to be JSON without white space.
bool isObject(std::string_view bytes) { return !bytes.empty() && bytes.front() == '{'; }

} // namespace

void addRawItinerary(Body& body, const std::optional<RawData>& rawData) {
    auto& diagnostics = *platform().diagnostics;
    if (!rawData) {
        body.add("itinerary", nullptr);
        return;
    }
    const std::string bytes = rawData->minified();
    try {
        const JsonDocument checked(bytes);
    } catch (const DecodeError& error) {
        diagnostics.print(std::string("Something went wrong during JSON deserialization: ") + error.what());
        body.add("itinerary", nullptr);
        return;
    }
    if (isObject(bytes)) {
        diagnostics.print("Converted back to JSON: " + bytes);
        body.addRaw("itinerary", bytes);
    } else {
        diagnostics.print("Failed to convert Data back to JSON 😢");
        body.add("itinerary", nullptr);
    }
}

} // namespace ombrivane
