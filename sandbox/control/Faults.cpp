#include "sandbox/control/Faults.h"

#include "sandbox/wire/Gzip.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <stdexcept>

namespace ombrivane::sandbox {

namespace {

const FaultForm& formNamed(std::string_view name) {
    const auto found = std::find_if(
        faultForms().begin(), faultForms().end(), [&](const FaultForm& form) { return form.name == name; });
    if (found == faultForms().end())
        throw std::invalid_argument(fmt::format("There is no fault \"{}\".", name));
    return *found;
}

std::uint64_t number(std::string_view text, std::string_view whose) {
    std::uint64_t value = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (failure != std::errc() || end != text.data() + text.size() || text.empty())
        throw std::invalid_argument(fmt::format("\"{}\" of {} is no number.", text, whose));
    return value;
}

/// The largest number of a fault: what an answer is made of is held in memory, and pauses that add up have an
/// end. What is streamed or cut off may be of any length.
std::uint64_t largestOf(const FaultForm& form) {
    constexpr std::uint64_t held = 1'000'000'000;
    constexpr std::uint64_t day = 86'400'000;
    if (form.kind == FaultKind::Huge || form.kind == FaultKind::Truncate)
        return std::numeric_limits<std::uint64_t>::max();
    return form.value == "MS" ? day : held;
}

bool hasEmptyStep(std::string_view path) {
    return path.front() == '.' || path.back() == '.' || path.find("..") != std::string_view::npos;
}

/// Takes " name=N" from the end of `text`.
bool takeCount(std::string_view& text, std::string_view name, std::size_t& count) {
    const std::size_t blank = text.rfind(' ');
    if (blank == std::string_view::npos) return false;
    const std::string_view last = text.substr(blank + 1);
    if (last.substr(0, name.size()) != name) return false;
    count = number(last.substr(name.size()), name);
    text = text.substr(0, blank);
    return true;
}

/// The number that a step of a path is, or one beyond every array.
std::size_t indexOf(const std::string& step) {
    std::size_t index = 0;
    const char* end = step.data() + step.size();
    const auto [last, failure] = std::from_chars(step.data(), end, index);
    return failure == std::errc() && last == end ? index : std::numeric_limits<std::size_t>::max();
}

/// The value at a dotted path ("data.0.fares"), or null when the answer has none.
Json* valueAt(Json& root, std::string_view path) {
    Json* value = &root;
    while (!path.empty()) {
        const std::string step(path.substr(0, path.find('.')));
        path.remove_prefix(std::min(path.size(), step.size() + 1));
        if (value->is_object() && value->contains(step)) {
            value = &(*value)[step];
        } else if (const auto index = indexOf(step); value->is_array() && index < value->size()) {
            value = &(*value)[index];
        } else {
            return nullptr;
        }
    }
    return value;
}

void makeWrongType(Json& value) {
    if (value.is_string() || value.is_null()) {
        value = 7;
    } else if (value.is_number()) {
        value = value.dump();
    } else {
        value = "not of this type";
    }
}

void removeLastStep(Json& root, std::string_view path) {
    const std::size_t dot = path.rfind('.');
    Json& parent = dot == std::string_view::npos ? root : *valueAt(root, path.substr(0, dot));
    const std::string last(path.substr(dot == std::string_view::npos ? 0 : dot + 1));
    if (parent.is_object()) {
        parent.erase(last);
    } else {
        parent.erase(indexOf(last));
    }
}

HttpAnswer withChangedTree(HttpAnswer answer, const Fault& fault) {
    Json root = Json::parse(answer.body, nullptr, false);
    Json* value = root.is_discarded() ? nullptr : valueAt(root, fault.text);
    if (value == nullptr)
        return refusalAnswer(fmt::format("The fault names {}, which this answer does not have.", fault.text),
                             500);
    if (fault.kind == FaultKind::WrongType) {
        makeWrongType(*value);
    } else {
        removeLastStep(root, fault.text);
    }
    answer.body = toText(root);
    return answer;
}

/// Bytes that are no UTF-8 stand inside the first text value, so that only the encoding is at fault.
std::string withInvalidUtf8(std::string body) {
    constexpr std::string_view valueStart = ":\"";
    const std::size_t found = body.find(valueStart);
    body.insert(found == std::string::npos ? body.size() / 2 : found + valueStart.size(), "\xC3\x28\xFF");
    return body;
}

std::string nested(std::uint64_t levels) {
    return R"({"success":true,"data":)" + std::string(levels, '[') + std::string(levels, ']') + "}";
}

} // namespace

const std::vector<FaultForm>& faultForms() {
    static const std::vector<FaultForm> forms{
        {FaultKind::Latency, "latency", "MS", "answers after so many milliseconds"},
        {FaultKind::Status, "status", "CODE", "the usual body under another HTTP status"},
        {FaultKind::Refuse,
         "refuse",
         "MESSAGE",
         "success false with that message; the operation is not done"},
        {FaultKind::Malformed, "malformed", "", "a body that is no JSON"},
        {FaultKind::Truncate,
         "truncate",
         "BYTES",
         "only the first bytes of the body, and a Content-Length to match"},
        {FaultKind::Short, "short", "", "a Content-Length 512 larger than what is sent, then the end"},
        {FaultKind::Drop, "drop", "", "the end of the connection in place of an answer"},
        {FaultKind::Reset, "reset", "", "a TCP reset in place of an answer"},
        {FaultKind::HalfStatusLine, "half-status-line", "", "\"HTTP/1.1 2\", then the end"},
        {FaultKind::Silence, "silence", "", "no answer until the client goes"},
        {FaultKind::WrongType,
         "wrong-type",
         "KEYPATH",
         "a value of another JSON type at data.accessToken or the like"},
        {FaultKind::MissingKey, "missing-key", "KEYPATH", "the answer without that key or element"},
        {FaultKind::Extra, "extra", "BYTES", "so many bytes of garbage behind the JSON"},
        {FaultKind::Redirect, "redirect", "URL", "status 307 to that address; the operation is not done"},
        {FaultKind::Empty, "empty", "", "an empty body"},
        {FaultKind::Scalar, "scalar", "", "a lone number as the body"},
        {FaultKind::Huge, "huge", "BYTES", "a well-formed answer of so many bytes"},
        {FaultKind::Endless, "endless", "", "a chunked answer that does not end"},
        {FaultKind::Trickle, "trickle", "MS", "the answer one byte at a time, with a pause after each"},
        {FaultKind::Deep, "deep", "LEVELS", "data of so many nested arrays"},
        {FaultKind::Nul, "nul", "", "a zero byte in the middle of the body"},
        {FaultKind::InvalidUtf8, "invalid-utf8", "", "bytes that are no UTF-8 inside the first text value"},
        {FaultKind::GzipBomb,
         "gzip-bomb",
         "BYTES",
         "a small gzip body that unpacks to a well-formed answer so large"},
    };
    return forms;
}

Fault parseFault(std::string_view text) {
    Fault fault;
    fault.written = text;
    const std::size_t blank = text.find(' ');
    if (blank == std::string_view::npos || (text[0] != '/' && text.substr(0, blank) != "*"))
        throw std::invalid_argument(fmt::format("\"{}\" does not read PATH KIND[=VALUE].", text));
    fault.path = text.substr(0, blank);
    std::string_view rest = text.substr(blank + 1);
    while (takeCount(rest, "times=", fault.times) || takeCount(rest, "after=", fault.after)) {
    }

    const std::size_t equals = rest.find('=');
    const FaultForm& form = formNamed(rest.substr(0, equals));
    fault.kind = form.kind;
    fault.text = equals == std::string_view::npos ? "" : rest.substr(equals + 1);
    if (form.value.empty() != fault.text.empty())
        throw std::invalid_argument(
            fmt::format("\"{}\" takes {}.", form.name, form.value.empty() ? "no value" : form.value));
    if (form.value == "MS" || form.value == "BYTES" || form.value == "CODE" || form.value == "LEVELS")
        fault.number = number(fault.text, form.name);
    if (fault.number > largestOf(form))
        throw std::invalid_argument(fmt::format("\"{}\" takes at most {}.", form.name, largestOf(form)));
    if (form.value == "KEYPATH" && hasEmptyStep(fault.text))
        throw std::invalid_argument(fmt::format("\"{}\" of {} has an empty step.", fault.text, form.name));
    if (fault.kind == FaultKind::Status && (fault.number < 100 || fault.number > 999))
        throw std::invalid_argument("A status has three digits.");
    return fault;
}

bool preventsTheOperation(FaultKind kind) { return kind == FaultKind::Refuse || kind == FaultKind::Redirect; }

HttpAnswer withFault(HttpAnswer answer, const Fault& fault) {
    switch (fault.kind) {
    case FaultKind::Status:
        answer.status = static_cast<int>(fault.number);
        break;
    case FaultKind::Refuse:
        return refusalAnswer(fault.text, 422);
    case FaultKind::Malformed:
        answer.body = R"({"success":true,"data":[})";
        break;
    case FaultKind::Truncate:
        answer.body.resize(std::min<std::size_t>(answer.body.size(), fault.number));
        break;
    case FaultKind::WrongType:
    case FaultKind::MissingKey:
        return withChangedTree(std::move(answer), fault);
    case FaultKind::Extra:
        answer.body.append(fault.number, '#');
        break;
    case FaultKind::Redirect:
        return {307, {{"Location", fault.text}}, ""};
    case FaultKind::Empty:
        answer.body.clear();
        break;
    case FaultKind::Scalar:
        answer.body = "42";
        break;
    case FaultKind::Deep:
        answer.body = nested(fault.number);
        break;
    case FaultKind::Nul:
        answer.body.insert(answer.body.size() / 2, 1, '\0');
        break;
    case FaultKind::InvalidUtf8:
        answer.body = withInvalidUtf8(std::move(answer.body));
        break;
    case FaultKind::GzipBomb:
        answer.headers.push_back({"Content-Encoding", "gzip"});
        answer.body = gzippedFiller(R"({"success":true,"data":{"filler":")", fault.number, R"("}})");
        break;
    case FaultKind::Latency:
    case FaultKind::Short:
    case FaultKind::Drop:
    case FaultKind::Reset:
    case FaultKind::HalfStatusLine:
    case FaultKind::Silence:
    case FaultKind::Huge:
    case FaultKind::Endless:
    case FaultKind::Trickle:
        break;
    }
    return answer;
}

} // namespace ombrivane::sandbox
