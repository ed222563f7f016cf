#include "Brands.h"

namespace ombrivane::demo {
namespace {

view::Appearance drawn(const view::Colours& light, const view::Colours& dark, double cornerRadius) {
    view::Appearance appearance;
    appearance.light = light;
    appearance.dark = dark;
    appearance.cornerRadius = cornerRadius;
    return appearance;
}

} // namespace

const QList<Brand>& brands() {
    static const QList<Brand> all{{.name = "Jacaranda",
                                   .appearance = drawn({.canvas = "#F6F4FA",
                                                        .card = "#FFFFFF",
                                                        .ink = "#1B1526",
                                                        .quiet = "#615872",
                                                        .primary = "#B3261E",
                                                        .secondary = "#5B2A9D",
                                                        .secondaryText = "#FFFFFF",
                                                        .range = "#E9E0F7",
                                                        .segment = "#F3EFFA",
                                                        .filterBackground = "#FAF8FD",
                                                        .hairline = "#DDD6E8"},
                                                       {.canvas = "#120E1A",
                                                        .card = "#1D1728",
                                                        .ink = "#F1EDF8",
                                                        .quiet = "#B3A9C4",
                                                        .primary = "#FF8A7A",
                                                        .secondary = "#C7A6FF",
                                                        .secondaryText = "#1B1526",
                                                        .range = "#33254D",
                                                        .segment = "#272035",
                                                        .filterBackground = "#171221",
                                                        .hairline = "#3A3149"},
                                                       18)},
                                  {.name = "Marigold",
                                   .appearance = drawn({.canvas = "#FFF8EC",
                                                        .card = "#FFFFFF",
                                                        .ink = "#241A08",
                                                        .quiet = "#6B5B3E",
                                                        .primary = "#9C1F4D",
                                                        .secondary = "#8F4300",
                                                        .secondaryText = "#FFFFFF",
                                                        .range = "#FBE6C6",
                                                        .segment = "#FFF3DF",
                                                        .filterBackground = "#FFFBF3",
                                                        .hairline = "#EADCC2"},
                                                       {.canvas = "#17120A",
                                                        .card = "#221B10",
                                                        .ink = "#F7F0E3",
                                                        .quiet = "#BFB197",
                                                        .primary = "#FF9BBF",
                                                        .secondary = "#FFB950",
                                                        .secondaryText = "#241A08",
                                                        .range = "#443312",
                                                        .segment = "#2C2416",
                                                        .filterBackground = "#1C160D",
                                                        .hairline = "#453A26"},
                                                       8)},
                                  {.name = "Cedar",
                                   .appearance = drawn({.canvas = "#EFF4EE",
                                                        .card = "#FFFFFF",
                                                        .ink = "#12201A",
                                                        .quiet = "#53645A",
                                                        .primary = "#A63A00",
                                                        .secondary = "#23502B",
                                                        .secondaryText = "#FFFFFF",
                                                        .range = "#D9EAD8",
                                                        .segment = "#EBF2EA",
                                                        .filterBackground = "#F6FAF5",
                                                        .hairline = "#D2DFD2"},
                                                       {.canvas = "#0C120E",
                                                        .card = "#151D17",
                                                        .ink = "#EDF4EE",
                                                        .quiet = "#A5B5A9",
                                                        .primary = "#FFB38A",
                                                        .secondary = "#9AD48B",
                                                        .secondaryText = "#12201A",
                                                        .range = "#21391F",
                                                        .segment = "#1C271E",
                                                        .filterBackground = "#111813",
                                                        .hairline = "#2F3D32"},
                                                       2)}};
    return all;
}

const Brand& neutralBrand() {
    static const Brand neutral{.name = {},
                               .appearance = drawn({.canvas = "#E8EAEE",
                                                    .card = "#FFFFFF",
                                                    .ink = "#1A1D22",
                                                    .quiet = "#565C66",
                                                    .primary = "#B3261E",
                                                    .secondary = "#2B3038",
                                                    .secondaryText = "#FFFFFF",
                                                    .hairline = "#CDD2DA"},
                                                   {.canvas = "#08090B",
                                                    .card = "#1A1D22",
                                                    .ink = "#ECEEF1",
                                                    .quiet = "#A7ADB7",
                                                    .primary = "#FF8A7A",
                                                    .secondary = "#DDE1E7",
                                                    .secondaryText = "#1A1D22",
                                                    .hairline = "#343943"},
                                                   12)};
    return neutral;
}

} // namespace ombrivane::demo
