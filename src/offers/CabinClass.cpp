#include "offers/CabinClass.h"

#include "words/Words.h"

#include <array>

namespace ombrivane {
namespace {

struct Cabin {
    const char* code;
    const char* name;
    Text label;
};

constexpr std::array<Cabin, 5> cabins{{
    {"M", "Economy", Text::cabinEconomy},
    {"W", "Premium Economy", Text::cabinPremiumEconomy},
    {"C", "Business", Text::cabinBusiness},
    {"F", "First Class", Text::cabinFirst},
    {"", anyCabin, Text::cabinAllClass},
}};

} // namespace

std::string cabinCodeOfName(const std::string& name) {
    for (const Cabin& cabin : cabins) {
        if (name == cabin.name) return cabin.code;
    }
    return "";
}

std::string cabinNameOfCode(const std::string& code) {
    for (const Cabin& cabin : cabins) {
        if (!code.empty() && code == cabin.code) return cabin.name;
    }
    return "";
}

std::string cabinLabel(const std::string& name) {
    for (const Cabin& cabin : cabins) {
        if (name == cabin.name) return said(cabin.label);
    }
    return name;
}

} // namespace ombrivane
