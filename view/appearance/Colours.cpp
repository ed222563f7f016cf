#include "appearance/Colours.h"

namespace ombrivane::view {

Colours Colours::own(bool dark) {
    if (dark) {
        return {.canvas = "#0E1116",
                .card = "#171C24",
                .ink = "#EEF1F6",
                .quiet = "#A3ADBD",
                .fieldBorder = "#6F7A8C",
                .primary = "#FF8A7A",
                .primaryText = "#14181F",
                .secondary = "#4FD1C0",
                .secondaryText = "#14181F",
                .notice = "#F2B84B",
                .noticeFill = "#33270F",
                .range = "#123B38",
                .segment = "#1F2631",
                .filterBackground = "#12171E",
                .hairline = "#2C3542"};
    }
    return {.canvas = "#F3F5F9",
            .card = "#FFFFFF",
            .ink = "#14181F",
            .quiet = "#5B6472",
            .fieldBorder = "#7F8899",
            .primary = "#C8372D",
            .primaryText = "#FFFFFF",
            .secondary = "#0F766E",
            .secondaryText = "#FFFFFF",
            .notice = "#8A5A00",
            .noticeFill = "#FFF4DB",
            .range = "#DCEFEC",
            .segment = "#EEF2F8",
            .filterBackground = "#F8FAFD",
            .hairline = "#D5DBE5"};
}

} // namespace ombrivane::view
