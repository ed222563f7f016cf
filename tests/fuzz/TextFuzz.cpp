// Texts from outside: fare rules as HTML, and what of any text becomes visible.
#include "Require.h"
#include "richtext/FareRules.h"
#include "richtext/ShownText.h"

#include <cstdint>

namespace {

using namespace ombrivane;

void readRules(std::string_view html) {
    for (const RuleParagraph& paragraph : fareRules(html)) {
        std::size_t length = 0;
        for (const auto& run : paragraph.runs) {
            length += run.text.size();
            require(shownText(run.text, SIZE_MAX) == run.text, "a run can be shown as it is");
        }
        require(length > 0, "no paragraph is empty");
        require(length < 9000, "no paragraph is long");
    }
}

void cleanText(std::string_view text) {
    const std::string shown = shownText(text);
    require(shown.size() <= limits::shownBytes, "a shown text is short");
    require(shownText(shown) == shown, "cleaning twice is cleaning once");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    readRules(text);
    cleanText(text);
    return 0;
}
