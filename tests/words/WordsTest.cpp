#include "words/Words.h"

#include "booking/FlightInformationView.h"
#include "booking/PassengerType.h"
#include "dates/DateFormatter.h"
#include "fakes/World.h"
#include "keyed/Derived.h"
#include "offers/CabinClass.h"
#include "offers/OfferFormat.h"
#include "search/TravellersText.h"
#include "words/Caption.h"
#include "words/Catalogue.h"
#include "words/Lexicon.h"
#include "words/Spoken.h"

#include <gtest/gtest.h>

#include <unicode/locid.h>
#include <unicode/messagepattern.h>
#include <unicode/plurrule.h>

#include <set>

namespace ombrivane {
namespace {

using Names = std::set<std::string>;

std::string utf8(const icu::UnicodeString& text) {
    std::string bytes;
    return text.toUTF8String(bytes);
}

/// What a pattern names: its places, and the forms of each plural in it.
struct Shape {
    Names places;
    std::vector<Names> plurals;
};

Shape shapeOf(const std::string& text) {
    UErrorCode status = U_ZERO_ERROR;
    icu::MessagePattern pattern(icu::UnicodeString::fromUTF8(text), nullptr, status);
    EXPECT_TRUE(U_SUCCESS(status)) << text;
    Shape shape;
    for (std::int32_t i = 0; i < pattern.countParts(); ++i) {
        const auto& part = pattern.getPart(i);
        if (part.getType() == UMSGPAT_PART_TYPE_ARG_NAME)
            shape.places.insert(utf8(pattern.getSubstring(part)));
        if (part.getType() == UMSGPAT_PART_TYPE_ARG_START && part.getArgType() == UMSGPAT_ARG_TYPE_PLURAL)
            shape.plurals.emplace_back();
        if (part.getType() == UMSGPAT_PART_TYPE_ARG_SELECTOR)
            shape.plurals.back().insert(utf8(pattern.getSubstring(part)));
    }
    return shape;
}

Names pluralForms(std::string_view language) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::PluralRules> rules(
        icu::PluralRules::forLocale(icu::Locale(std::string(language).c_str()), status));
    const std::unique_ptr<icu::StringEnumeration> keywords(rules->getKeywords(status));
    Names forms;
    while (const char* keyword = keywords->next(nullptr, status))
        forms.insert(keyword);
    return forms;
}

TEST(CatalogueTest, EveryTranslationHasEveryTextItsPlacesAndThePluralFormsOfItsLanguage) {
    ASSERT_GE(catalogues().size(), 2U);
    for (const Catalogue& catalogue : catalogues()) {
        const Names forms = pluralForms(catalogue.language);
        for (const Wording& wording : wordings) {
            SCOPED_TRACE(std::string(catalogue.language) + " " + std::string(wording.key));
            const std::string text = translated(catalogue, wording.key, wording.english);
            EXPECT_FALSE(text.empty());
            const Shape shape = shapeOf(text);
            EXPECT_EQ(shape.places, shapeOf(std::string(wording.english)).places);
            for (const Names& plural : shape.plurals)
                EXPECT_EQ(plural, forms);
        }
        EXPECT_EQ(translated(catalogue, "searchTitle", "Another English"), "");
        EXPECT_EQ(translated(catalogue, "", ""), "") << "the header is no text";
    }
}

class WordsTest : public ::testing::Test {
protected:
    static void speak(const char* language) {
        chooseLanguage({.language = language, .region = {}, .texts = {}});
    }

    fakes::World world;
};

TEST_F(WordsTest, ATagIsServedByItsOwnLanguageAndByEnglishWhereThereIsNone) {
    world.localization->localeName = "ne_NP";
    EXPECT_EQ(said(Text::done), "Done") << "nothing was chosen";
    const std::string nepali = Lexicon("ne").text(Text::done, {});
    const struct {
        const char* tag;
        std::string text;
        bool fromTheRight;
    } cases[] = {
        {"ne", nepali, false},
        {"ne-NP", nepali, false},
        {"device", nepali, false},
        {"ar-EG", Lexicon("ar").text(Text::done, {}), true},
        {"en-GB", "Done", false},
        {"tlh", "Done", false},
        {"", "Done", false},
    };
    for (const auto& [tag, text, fromTheRight] : cases) {
        SCOPED_TRACE(tag);
        speak(tag);
        EXPECT_EQ(said(Text::done), text);
        EXPECT_EQ(Words::shared().isRightToLeft(), fromTheRight);
    }
}

TEST_F(WordsTest, NumbersAndDatesFollowTheRegionAndWhatIsComputedFollowsTheLanguage) {
    const Day day = *Day::parse("2026-12-01");
    const auto shown = [&] {
        return formatDay(day, dayPattern::form) + " | " + OfferFormat::price("NPR", 1234567);
    };
    EXPECT_EQ(shown(), "Dec 1, 2026 | NPR 1,234,567");
    Fields fields;
    Derived<std::string> line{fields, "line", shown};
    Caption title{fields, "title", Text::done};
    Published<std::string> message{fields, "message"};
    const SpokenField words(message, Text::loading);
    std::vector<std::string> told;
    const auto lines = line.observe([&] { told.push_back(line.get()); });
    const auto titles = title.observe([&] { told.push_back(title.get()); });
    chooseLanguage({.language = {}, .region = "IN", .texts = {}});
    EXPECT_EQ(shown(), "1 Dec 2026 | NPR 12,34,567") << "the pattern is the region's";
    chooseLanguage({.language = "ne", .region = {}, .texts = {}});
    EXPECT_EQ(shown(), "२०२६ डिसेम्बर १ | NPR १२,३४,५६७");
    EXPECT_EQ(message.get(), said(Text::loading));
    EXPECT_NE(message.get(), "Loading ...");
    EXPECT_NE(std::find(told.begin(), told.end(), said(Text::done)), told.end());
    EXPECT_NE(std::find(told.begin(), told.end(), shown()), told.end());
    EXPECT_EQ(day.text(), "2026-12-01");
    message = "Something else";
    chooseLanguage({});
    EXPECT_EQ(message.get(), "Something else");
    EXPECT_EQ(shown(), "Dec 1, 2026 | NPR 1,234,567");
}

TEST_F(WordsTest, AWalletsOwnTextsStandInTheirPlacesAndBadOnesAreToldAndLeftOut) {
    chooseLanguage({.language = {},
                    .region = {},
                    .texts = {{"searchTitle", "Fly with us"},
                              {"flightStops", "{count, plural, one {# stop} other {# stops}}"},
                              {"resultsOperatedBy", "by {airline}"},
                              {"done", "{"},
                              {"noSuchText", "x"}}});
    EXPECT_EQ(said(Text::searchTitle), "Fly with us");
    EXPECT_EQ(said(Text::flightStops, {{"count", 1}}), "1 stop");
    EXPECT_EQ(said(Text::flightStops, {{"count", 2}}), "2 stops");
    EXPECT_EQ(said(Text::resultsOperatedBy, {{"carrier", "Saffron"}}), "Operated by Saffron");
    EXPECT_EQ(said(Text::done), "Done");
    const auto& lines = world.diagnostics->lines;
    EXPECT_EQ(lines.size(), 3U);
    for (const char* key : {"resultsOperatedBy", "done", "noSuchText"}) {
        EXPECT_TRUE(std::any_of(lines.begin(), lines.end(), [&](const std::string& line) {
            return line.find(std::string("\"") + key + "\"") != std::string::npos;
        })) << key;
    }
    chooseLanguage({});
    EXPECT_EQ(said(Text::searchTitle), "Flight Search");
}

TEST_F(WordsTest, WhatFillsAPlaceKeepsItsOwnDirection) {
    EXPECT_EQ(said(Text::sessionRoute, {{"origin", "Kathmandu"}, {"destination", ""}}), "Kathmandu – ");
    speak("ar");
    EXPECT_NE(said(Text::sessionRoute, {{"origin", "Kathmandu"}, {"destination", "Doha"}})
                  .find("\u2068Kathmandu\u2069"),
              std::string::npos);
    const auto stops = [](const char* region) {
        chooseLanguage({.language = "ar", .region = region, .texts = {}});
        return said(Text::flightStops, {{"count", 11}});
    };
    EXPECT_NE(stops("EG").find("١١"), std::string::npos);
    EXPECT_NE(stops("AE").find("11"), std::string::npos) << "in the digits of the region";
}

TEST_F(WordsTest, NamesThatTheServiceKnowsAreReadInTheCustomersLanguage) {
    const std::vector<UniquePassanger> slots{{.count = 1, .type = "Adult"}, {.count = 2, .type = "Infant"}};
    EXPECT_EQ(passengerSummary(slots), "1 A , 1 I");
    speak("ne");
    EXPECT_EQ(cabinLabel("First Class"), said(Text::cabinFirst));
    EXPECT_EQ(cabinLabel("Sleeper"), "Sleeper");
    EXPECT_EQ(passengerTypeLabel("Child"), said(Text::passengerChild));
    EXPECT_EQ(passengerTypeCode("Child"), "CHD");
    EXPECT_EQ(shownTravellers("3, Business"),
              said(Text::travellersAndCabin, {{"count", 3}, {"cabin", said(Text::cabinBusiness)}}));
    EXPECT_EQ(shownTravellers("three"), "three");
}

} // namespace
} // namespace ombrivane
