#include "services/ItineraryBody.h"

#include "platform/Platform.h"
#include "records/DecodeError.h"
#include "records/JsonDocument.h"

#include <string>

namespace ombrivane {
namespace {

/// The first character decides, since the bytes are known to be JSON without white space.
bool startsWith(std::string_view bytes, char sign) { return !bytes.empty() && bytes.front() == sign; }

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
        if (!startsWith(bytes, '{') && !startsWith(bytes, '['))
            throw DecodeError("wants an object or an array outermost");
    } catch (const DecodeError& error) {
        diagnostics.print(std::string("Something went wrong during JSON deserialization: ") + error.what());
        body.add("itinerary", nullptr);
        return;
    }
    if (startsWith(bytes, '{')) {
        diagnostics.print("Converted back to JSON: " + bytes);
        body.addRaw("itinerary", bytes);
    } else {
        diagnostics.print("Failed to convert Data back to JSON 😢");
        body.add("itinerary", nullptr);
    }
}

} // namespace ombrivane
