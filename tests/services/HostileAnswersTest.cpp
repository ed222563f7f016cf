#include "services/ClientCall.h"
#include "services/JsonSpans.h"
#include "services/ServiceFixture.h"

#include <random>
#include <set>

namespace ombrivane {
namespace {

/// Answers as no honest service gives them. Whatever comes, a completion hears once, of valid data or of an
/// error; nothing is thrown, nothing crashes, no fault is raised.
class HostileAnswersTest : public ServiceFixture {
protected:
    /// @return whether the answer was taken for a success
    bool deliver(const ClientCall& call, const std::string& bytes) {
        Outcome outcome;
        call.start(outcome);
        world.network->answer(bytes);
        EXPECT_EQ(outcome.completions, 1) << call.name << ": " << bytes;
        if (outcome.error) {
            EXPECT_EQ(outcome.result, call.empty) << call.name << ": " << bytes;
            EXPECT_FALSE(outcome.error->localizedDescription.empty()) << call.name << ": " << bytes;
            return false;
        }
        EXPECT_NO_THROW((void)outcome.result.dump()) << "what is taken can be sent again: " << bytes;
        return true;
    }

    /// One call for each captured answer and the way in which it is read.
    std::vector<ClientCall> calls;
    HostileAnswersTest() {
        std::set<std::string> answers;
        for (ClientCall& call : clientCalls()) {
            if (answers.insert(call.answer).second) calls.push_back(std::move(call));
        }
    }

    /// The captured answer with one offer in each list, which has them all.
    static std::string bytesOf(const ClientCall& call) {
        Json answer = fakes::captured(call.answer);
        if (call.answer.starts_with("search")) {
            Json& data = answer["data"];
            for (Json& list : data) {
                if (list.is_array()) list.erase(list.begin() + 1, list.end());
            }
            if (data.at(0).is_object()) data.erase(data.begin() + 1, data.end());
        }
        return answer.dump();
    }
};

std::string replaced(const std::string& json, std::size_t begin, std::size_t end, const std::string& by) {
    return json.substr(0, begin) + by + json.substr(end);
}

/// The text without the span, and without the comma beside it.
std::string deleted(const std::string& json, const JsonSpan& span) {
    if (json[span.end] == ',') return replaced(json, span.keyBegin, span.end + 1, "");
    if (span.keyBegin > 0 && json[span.keyBegin - 1] == ',') {
        return replaced(json, span.keyBegin - 1, span.end, "");
    }
    return replaced(json, span.keyBegin, span.end, "");
}

TEST_F(HostileAnswersTest, EveryValueDamaged) {
    const std::string values[] = {"null",
                                  "true",
                                  "-1",
                                  "1e300",
                                  "9223372036854775808",
                                  "1e400",
                                  "-123456789012345678901234567890",
                                  "\"\"",
                                  "{}",
                                  "[]"};
    const std::string rarer[] = {"[null]",
                                 "\"\\u202e\\u0301\\ud83d\\ude00\"",
                                 "\"\\u0000\\\"]}\"",
                                 "0.5",
                                 "\"" + std::string(5000, 'x') + "\""};
    const std::string noValues[] = {"nul", "\"", "\\", "{", "]", "1 2", "\"\\ud800\"", "\"\xc3\"", "1e"};
    std::size_t turn = 0;
    for (const ClientCall& call : calls) {
        if (call.name == "search_special") continue; // its offers are those of one way
        const std::string json = bytesOf(call);
        ASSERT_TRUE(deliver(call, json)) << call.name;
        const JsonSpans spans(json);
        for (const JsonSpan& span : spans.all()) {
            const auto instead = [&](const std::string& text) {
                return deliver(call, replaced(json, span.begin, span.end, text));
            };
            const std::string value = json.substr(span.begin, span.end - span.begin);
            for (const auto& other : values)
                instead(other);
            instead("[" + value + "]");
            // Of the rest, each value meets one.
            instead(rarer[++turn % std::size(rarer)]);
            const std::string& none = noValues[turn % std::size(noValues)];
            EXPECT_FALSE(instead(none)) << call.name << " " << none;
            if (span.keyBegin == 0) continue;
            deliver(call, deleted(json, span));
            if (!span.hasKey()) continue;
            const std::string key = json.substr(span.keyBegin, span.begin - span.keyBegin);
            const std::string member = key + value;
            const std::string twin = key + values[turn % std::size(values)];
            for (const auto& members : {"\"x" + member.substr(1), twin + "," + member, member + "," + twin})
                deliver(call, replaced(json, span.keyBegin, span.end, members));
        }
    }
}

/// The diagnostics name the keys that the component knows, and nothing that an answer or a request says.
TEST_F(HostileAnswersTest, NoValueReachesTheDiagnostics) {
    auto& lines = world.diagnostics->failedCalls;
    const std::string words[] = {"C4NARY", "T0KEN", "s3cret", "kath"};
    for (const ClientCall& call : calls) {
        const std::string json = bytesOf(call);
        const JsonSpans spans(json);
        for (const JsonSpan& span : spans.all()) {
            for (const char* value : {"\"C4NARY\"", R"({"C4NARY":["C4NARY"]})", R"(["C4NARY"])"})
                deliver(call, replaced(json, span.begin, span.end, value));
        }
        deliver(call, R"({"success":false,"data":{"error":"C4NARY","C4NARY":1}})");
        deliver(call, "C4NARY");
        EXPECT_FALSE(lines.empty()) << call.name;
        for (const auto& line : std::exchange(lines, {})) {
            for (const auto& word : words)
                EXPECT_EQ(line.find(word), std::string::npos) << word << " in " << line;
        }
    }
}

TEST_F(HostileAnswersTest, CutOffAnywhereIsNeverASuccess) {
    for (const ClientCall& call : calls) {
        const std::string json = bytesOf(call);
        const std::size_t step = 1 + json.size() / 150;
        for (std::size_t length = 0; length < json.size(); length += step)
            EXPECT_FALSE(deliver(call, json.substr(0, length))) << call.name << " " << length;
        for (std::size_t missing = 1; missing < 20; ++missing)
            EXPECT_FALSE(deliver(call, json.substr(0, json.size() - missing))) << call.name << " " << missing;
        for (const char* tail : {"}", "x", ",", "{}", "\"", "\x01"})
            EXPECT_FALSE(deliver(call, json + tail)) << call.name << " " << tail;
    }
}

TEST_F(HostileAnswersTest, BytesDamagedAtRandom) {
    std::mt19937 random(20261121);
    const std::string telling = "{}[]\",:\\ \n0-e.tfnu/\x80\xff" + std::string(1, '\0');
    for (const ClientCall& call : calls) {
        const std::string json = bytesOf(call);
        for (int round = 0; round < 150; ++round) {
            std::string damaged = json;
            for (auto hits = 1 + random() % 4; hits > 0; --hits) {
                const std::size_t at = random() % damaged.size();
                const char byte = telling[random() % telling.size()];
                switch (random() % 3) {
                case 0:
                    damaged[at] = byte;
                    break;
                case 1:
                    damaged.insert(at, 1, byte);
                    break;
                default:
                    damaged.erase(at, 1 + random() % 8);
                }
            }
            SCOPED_TRACE(round);
            deliver(call, damaged);
        }
    }
}

} // namespace
} // namespace ombrivane
