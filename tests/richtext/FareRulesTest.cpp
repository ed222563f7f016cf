#include "richtext/FareRules.h"

#include "platform/Limits.h"

#include <gtest/gtest.h>

#include <chrono>

namespace ombrivane {
namespace {

std::string repeated(const std::string& piece, std::size_t bytes) {
    std::string text;
    while (text.size() + piece.size() <= bytes)
        text += piece;
    return text;
}

TEST(FareRules, KeepTheTextOfUglyHtml) {
    struct Case {
        const char* name;
        std::string html;
        const char* text;
    };
    const Case cases[] = {
        {"nothing", "", ""},
        {"only blanks", " \n<p>&nbsp;</p><div> </div><br><br>", ""},
        {"plain text", "No restrictions are applied.", "No restrictions are applied."},
        {"a document",
         "<!DOCTYPE html><html><head><title>T</title><meta charset=x></head><body>A</body></html>",
         "A"},
        {"blanks", "<p>  a \n\t b<b> c</b> <i> d </i>\n</p>", "a b c d"},
        {"blocks", "a<p>b<p>c</div>d<h2>e</h2>f", "a\nb\nc\nd\ne\nf"},
        {"lines", "a<br>b<BR/>c<br><br>d", "a\nb\nc\nd"},
        {"lists", "<ul><li>a<li>b<ol><li>c</ol></ul>d", "• a\n• b\n• c\nd"},
        {"an item of two paragraphs", "<li><p>a</p><p>b</p></li>", "• a\nb"},
        {"links", "see <a href='http://x/?a=1>2'>here</a>.", "see here."},
        {"dropped content", "a<script>if (a</b>1) document.write('<p>x')</script><style>p{}</style>b", "ab"},
        {"controls",
         "a<select><option>x<option>y</select><button>z</button><textarea><p>t</textarea>b<input value=v>",
         "ab"},
        {"pictures and objects",
         "a<img src='file:///dev/zero' alt=x><object><p>o</object><svg><text>s</svg>b",
         "ab"},
        {"comments", "a<!-- <p>x --><!-->b<!--->c<!doctype x><?php y ?>d", "abcd"},
        {"a comment that ends as it should not", "a<!-- <p>x --!>b<!-- y -->c", "abc"},
        {"an endless comment", "a<!-- b <p>c", "a"},
        {"an endless script", "a<script>b</scripty>c", "a"},
        {"an endless tag", "a<b title='c", "a"},
        {"quotes", "<p title=\"a > b\" x='>' y=a\"b>c", "c"},
        {"no tags", "1 < 2 & 3 > 2 <> </> <3", "1 < 2 & 3 > 2 <> <3"},
        {"references",
         "&lt;b&gt; &amp;amp; &copy &eacute;&Eacute; &nosuch; &#8364;&#x20AC; &apos;",
         "<b> &amp; © éÉ &nosuch; €€ '"},
        {"broken references",
         "&#; &#x; &#0; &#xD800; &#99999999999; & &;",
         "&#; &#x; \uFFFD \uFFFD \uFFFD & &;"},
        {"Windows' own numbers", "&#150;&#146;&#x80;", "–’€"},
        {"hidden characters", "a&#x202E;b\x01&#156;c", "abœc"},
        {"preformatted", "x<pre>\n A  B\r\nC\n</pre>y  z", "x\nA  B\nC\ny z"},
        {"unknown elements", "a<o:p>b</o:p><blink>c", "abc"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(plainText(fareRules(c.html)), c.text) << c.name;
}

TEST(FareRules, ShowEachRowOfATableAsOneParagraph) {
    struct Case {
        const char* name;
        const char* html;
        const char* text;
    };
    const Case cases[] = {
        {"neat",
         "<table><thead><tr><th>Type</th><th>Fee</th></tr></thead><tbody><tr><td>Change</td><td>500</td></"
         "tr></table>",
         "Type · Fee\nChange · 500"},
        {"nothing closed", "a<table><tr><td>b<td>c<tr><td>d<td>e</table>f", "a\nb · c\nd · e\nf"},
        {"empty cells", "<table><tr><td>&nbsp;<td>b<td> <td>c</table>", "b · c"},
        {"paragraphs within cells",
         "<table><tr><td><p>Change<br>fee</p></td><td><p>500</p><p>NPR</p></td></tr></table>",
         "Change fee · 500 NPR"},
        {"one cell keeps its paragraphs", "<table><tr><td><p>a</p><p>b</p></td></tr></table>", "a\nb"},
        {"a table in a table",
         "<table><tr><td>a</td><td><table><tr><td>b</td><td>c</td></tr></table></td></tr></table>",
         "a\nb · c"},
        {"a list in a cell", "<table><tr><td>a</td><td><ul><li>b<li>c</ul></td></tr></table>", "a\n• b\n• c"},
        {"cells without a row", "<table><td>a<td>b</table>", "a · b"},
        {"cells without a table", "<tr><td>a<td>b</tr>", "a\nb"},
        {"never closed", "<table><tr><td>a<td>b", "a · b"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(plainText(fareRules(c.html)), c.text) << c.name;
}

TEST(FareRules, MarkUnderlinedRunsAndItems) {
    using Paragraphs = std::vector<RuleParagraph>;
    constexpr auto paragraph = RuleParagraph::Kind::paragraph;
    EXPECT_EQ(fareRules("<p>a <u>b <b>c</b></u> d</p>"),
              (Paragraphs{{paragraph, {{"a ", false}, {"b c", true}, {" d", false}}}}));
    EXPECT_EQ(fareRules("</u><ul><li><ins>a</ins></ul>"),
              (Paragraphs{{RuleParagraph::Kind::listItem, {{"a", true}}}}));
    EXPECT_EQ(fareRules("<table><tr><td><u>a</td><td>b</td></table>"),
              (Paragraphs{{paragraph, {{"a", true}, {" · b", false}}}}));
}

TEST(FareRules, SplitLongParagraphsAtBlanks) {
    const auto paragraphs = fareRules("<li>" + repeated("किराया <u>rule</u> ", 30'000));
    ASSERT_GT(paragraphs.size(), 5U);
    std::string joined;
    for (const auto& paragraph : paragraphs) {
        const std::string text = plainText({{RuleParagraph::Kind::paragraph, paragraph.runs}});
        EXPECT_LE(text.size(), 2000U * 3);
        joined += (joined.empty() ? "" : " ") + text;
    }
    EXPECT_TRUE(joined + " " == repeated("किराया rule ", joined.size() + 1)) << "a word is lost or cut";
    EXPECT_EQ(paragraphs[0].kind, RuleParagraph::Kind::listItem);
    EXPECT_EQ(paragraphs[1].kind, RuleParagraph::Kind::paragraph);
    EXPECT_EQ(fareRules(std::string(4100, 'x')).size(), 3U);
}

TEST(FareRules, AreCutBeyondTheLimitOfHtml) {
    const std::string html(limits::htmlBytes - 1, ' ');
    EXPECT_EQ(plainText(fareRules(html + "ab")), "a");
}

TEST(FareRules, KeepTheTextBelowTwentyThousandElements) {
    EXPECT_EQ(plainText(fareRules(repeated("<div>", 100'000) + "deep" + repeated("</div>", 120'000) + "end")),
              "deep\nend");
    EXPECT_EQ(plainText(fareRules(repeated("<table><tr><td>", 300'000) + "deep")), "deep");
}

/// Each of these takes a parser that walks its open elements, or compares attributes, the square of its
/// length.
TEST(FareRules, TakeNoLongerForHostileHtmlThanForItsLength) {
    std::string attributes = "<p ";
    for (int i = 0; attributes.size() < limits::htmlBytes; ++i)
        attributes.append("a").append(std::to_string(i)).append(" ");
    const std::string texts[] = {
        std::string(limits::htmlBytes, 'a'),
        repeated("<b>", limits::htmlBytes / 3) + repeated("</i>", limits::htmlBytes / 2),
        "<i><table>" + repeated("<b>", limits::htmlBytes / 3) + repeated("</i>", limits::htmlBytes / 2),
        repeated("<table><tr><td>x<td>", limits::htmlBytes),
        repeated("<script>a</", limits::htmlBytes),
        repeated("<!--", limits::htmlBytes),
        repeated("&#x", limits::htmlBytes),
        repeated("<a b=\"", limits::htmlBytes),
        attributes,
    };
    for (const auto& html : texts) {
        const auto start = std::chrono::steady_clock::now();
        fareRules(html);
        // About 30 ms at most in a release build; a square would take tens of seconds, a loaded machine some.
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10)) << html.substr(0, 40);
    }
}

} // namespace
} // namespace ombrivane
