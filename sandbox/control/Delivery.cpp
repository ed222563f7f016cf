#include "sandbox/control/Delivery.h"

#include <fmt/format.h>

#include <algorithm>
#include <string>
#include <string_view>

namespace ombrivane::sandbox {

namespace {

using Manner = DeliveryPlan::Manner;

std::string_view reason(int status) {
    switch (status) {
    case 200:
        return "OK";
    case 307:
        return "Temporary Redirect";
    case 400:
        return "Bad Request";
    case 401:
        return "Unauthorized";
    case 403:
        return "Forbidden";
    case 404:
        return "Not Found";
    case 405:
        return "Method Not Allowed";
    case 422:
        return "Unprocessable Content";
    case 500:
        return "Internal Server Error";
    case 503:
        return "Service Unavailable";
    default:
        return "Status";
    }
}

std::string head(const HttpAnswer& answer, std::string_view framing, bool keepConnection) {
    std::string text = fmt::format("HTTP/1.1 {} {}\r\n", answer.status, reason(answer.status));
    for (const HttpHeader& header : answer.headers)
        text += fmt::format("{}: {}\r\n", header.name, header.value);
    text += fmt::format("{}\r\n", framing);
    if (!keepConnection) text += "Connection: close\r\n";
    return text + "\r\n";
}

std::string lengthOf(std::uint64_t size) { return fmt::format("Content-Length: {}", size); }

std::string whole(const HttpAnswer& answer, bool keepConnection) {
    return head(answer, lengthOf(answer.body.size()), keepConnection) + answer.body;
}

void sendHuge(const HttpAnswer& answer, std::uint64_t size, TlsConnection& connection) {
    constexpr std::string_view start = R"({"success":true,"data":{"filler":")";
    constexpr std::string_view end = R"("}})";
    const std::uint64_t least = start.size() + end.size();
    std::uint64_t left = size > least ? size - least : 0;
    connection.write(head(answer, lengthOf(least + left), false));
    connection.write(start);
    const std::string filler(64 * 1024, 'x');
    while (left > 0) {
        const auto piece = static_cast<std::size_t>(std::min<std::uint64_t>(left, filler.size()));
        if (!connection.write(std::string_view(filler).substr(0, piece))) return;
        left -= piece;
    }
    connection.write(end);
}

void sendEndless(const HttpAnswer& answer, TlsConnection& connection) {
    if (!connection.write(head(answer, "Transfer-Encoding: chunked", false))) return;
    const std::string filler(4096, ' ');
    const std::string chunk = fmt::format("{:x}\r\n{}\r\n", filler.size(), filler);
    while (connection.write(chunk)) {
    }
}

void sendTrickle(const HttpAnswer& answer, std::chrono::milliseconds pace, TlsConnection& connection) {
    const std::string text = whole(answer, false);
    for (const char& byte : text)
        if (!connection.write({&byte, 1}) || !connection.pause(pace)) return;
}

Manner mannerOf(FaultKind kind) {
    switch (kind) {
    case FaultKind::Short:
        return Manner::Short;
    case FaultKind::Drop:
        return Manner::Drop;
    case FaultKind::Reset:
        return Manner::Reset;
    case FaultKind::HalfStatusLine:
        return Manner::HalfStatusLine;
    case FaultKind::Silence:
        return Manner::Silence;
    case FaultKind::Huge:
        return Manner::Huge;
    case FaultKind::Endless:
        return Manner::Endless;
    case FaultKind::Trickle:
        return Manner::Trickle;
    default:
        return Manner::Whole;
    }
}

} // namespace

DeliveryPlan planDelivery(const std::vector<Fault>& faults) {
    DeliveryPlan plan;
    for (const Fault& fault : faults) {
        const std::chrono::milliseconds time(fault.number);
        if (fault.kind == FaultKind::Latency) plan.latency += time;
        const Manner manner = mannerOf(fault.kind);
        if (manner == Manner::Whole || plan.manner != Manner::Whole) continue;
        plan.manner = manner;
        plan.size = fault.number;
        plan.pace = time;
    }
    return plan;
}

bool deliver(const HttpAnswer& answer, const DeliveryPlan& plan, TlsConnection& connection) {
    if (plan.latency.count() > 0 && !connection.pause(plan.latency)) return false;
    switch (plan.manner) {
    case Manner::Whole:
        if (!connection.write(whole(answer, plan.keepConnection))) return false;
        if (plan.keepConnection) return true;
        break;
    case Manner::Short:
        connection.write(head(answer, lengthOf(answer.body.size() + 512), false));
        connection.write(answer.body);
        break;
    case Manner::Drop:
        break;
    case Manner::Reset:
        connection.reset();
        return false;
    case Manner::HalfStatusLine:
        connection.write("HTTP/1.1 2");
        break;
    case Manner::Silence:
        while (connection.pause(std::chrono::hours(1))) {
        }
        return false;
    case Manner::Huge:
        sendHuge(answer, plan.size, connection);
        break;
    case Manner::Endless:
        sendEndless(answer, connection);
        return false;
    case Manner::Trickle:
        sendTrickle(answer, plan.pace, connection);
        break;
    }
    connection.close();
    return false;
}

} // namespace ombrivane::sandbox
