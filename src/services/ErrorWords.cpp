#include "services/ErrorWords.h"

#include "base/ErrorTexts.h"
#include "words/Words.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace ombrivane {
namespace {

struct Said {
    std::string_view english;
    Text text;
};

constexpr std::array ownWords{
    Said{errorText::answerMissing, Text::errorAnswerMissing},
    Said{errorText::answerNotUnderstood, Text::errorAnswerNotUnderstood},
    Said{errorText::answerTooLarge, Text::errorAnswerTooLarge},
    Said{errorText::connectionLost, Text::errorConnectionLost},
    Said{errorText::documentNotSent, Text::errorDocumentNotSent},
    Said{errorText::notCompleted, Text::errorNotCompleted},
    Said{errorText::notReached, Text::errorNotReached},
    Said{errorText::notSecured, Text::errorNotSecured},
    Said{errorText::requestCancelled, Text::errorRequestCancelled},
    Said{errorText::timedOut, Text::errorTimedOut},
};
static_assert(std::all_of(ownWords.begin(), ownWords.end(),
                          [](const Said& said) { return wordingOf(said.text).english == said.english; }));

} // namespace

Error inCustomersWords(Error error) {
    for (const auto& [english, text] : ownWords) {
        if (english != error.localizedDescription) continue;
        error.localizedDescription = said(text);
        break;
    }
    return error;
}

} // namespace ombrivane
