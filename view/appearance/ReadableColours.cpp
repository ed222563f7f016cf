#include "appearance/ReadableColours.h"

#include "appearance/Contrast.h"

#include <algorithm>
#include <vector>

namespace ombrivane::view {
namespace {

struct Role {
    const char* name;
    QColor Colours::*colour;
};

constexpr Role canvas{"canvas", &Colours::canvas}, card{"card", &Colours::card}, ink{"ink", &Colours::ink},
    quiet{"quiet", &Colours::quiet}, fieldBorder{"fieldBorder", &Colours::fieldBorder},
    primary{"primary", &Colours::primary}, primaryText{"primaryText", &Colours::primaryText},
    secondary{"secondary", &Colours::secondary}, secondaryText{"secondaryText", &Colours::secondaryText},
    notice{"notice", &Colours::notice}, noticeFill{"noticeFill", &Colours::noticeFill},
    range{"range", &Colours::range}, segment{"segment", &Colours::segment},
    filterBackground{"filterBackground", &Colours::filterBackground},
    hairline{"hairline", &Colours::hairline};

constexpr Role roles[] = {canvas,
                          card,
                          ink,
                          quiet,
                          fieldBorder,
                          primary,
                          primaryText,
                          secondary,
                          secondaryText,
                          notice,
                          noticeFill,
                          range,
                          segment,
                          filterBackground,
                          hairline};

struct Drawn {
    Role front;
    std::vector<Role> grounds;
    double wanted;
};

/// What is drawn on what. What is a ground as well stands before what is drawn on it.
const std::vector<Drawn>& drawn() {
    constexpr double text = 4.5;
    constexpr double border = 3;
    static const std::vector<Drawn> table{
        {ink, {canvas, card, segment, range, filterBackground, noticeFill}, text},
        {quiet, {canvas, card, segment, range, filterBackground}, text},
        {primary, {canvas, card, segment}, text},
        {secondary, {canvas, card, segment, range}, text},
        {primaryText, {primary}, text},
        {secondaryText, {secondary}, text},
        {notice, {noticeFill}, text},
        {fieldBorder, {canvas, card, filterBackground}, border},
    };
    return table;
}

Shade shadeOf(const QColor& colour) { return {colour.redF(), colour.greenF(), colour.blueF()}; }

QColor colourOf(const Shade& shade) {
    constexpr double whole = 255;
    return {qRound(shade.red * whole), qRound(shade.green * whole), qRound(shade.blue * whole)};
}

} // namespace

ReadableColours readable(const Colours& given, bool dark) {
    ReadableColours result;
    Colours& shown = result.shown = Colours::own(dark);
    for (const auto& role : roles)
        if ((given.*role.colour).isValid()) shown.*role.colour = given.*role.colour;
    for (const auto& [front, grounds, wanted] : drawn()) {
        std::vector<Shade> shades;
        for (const auto& ground : grounds)
            shades.push_back(shadeOf(shown.*ground.colour));
        const Shade asked = shadeOf(shown.*front.colour);
        if (leastContrast(asked, shades) >= wanted) continue;
        shown.*front.colour = colourOf(nearestShade(asked, shades, wanted));
        for (std::size_t i = 0; i < grounds.size(); ++i) {
            const double reached = contrast(asked, shades[i]);
            if (reached >= wanted) continue;
            result.complaints +=
                QStringLiteral(
                    "Appearance: %1 \"%2\" on \"%3\" has %4 to 1 of the %5 to 1 that it needs; drawn as %6")
                    .arg(dark ? "dark" : "light", front.name, grounds[i].name)
                    .arg(reached, 0, 'f', 2)
                    .arg(wanted)
                    .arg((shown.*front.colour).name());
        }
    }
    return result;
}

} // namespace ombrivane::view
