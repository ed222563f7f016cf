#include "outcomes/StandIn.h"

#include "events/HostEvents.h"
#include "session/HostBoundary.h"

#include <thread>
#include <utility>

namespace ombrivane::kit {
namespace {

/// What fails before a request has left the device fails where it was asked for.
bool comesOnMainThread(ErrorKind kind) {
    return kind == ErrorKind::unsupportedSystem || kind == ErrorKind::noConnection ||
           kind == ErrorKind::invalidRequest;
}

} // namespace

StandIn::StandIn(CompletionCallback callback, std::function<void()> close) :
    boundary_(std::make_shared<HostBoundary>(std::move(callback), std::move(close))) {
    boundary_->setOpening(HostEvents::shared().beginOpening());
    HostEvents::shared().tell(Event{.kind = EventKind::opened, .opening = boundary_->opening()});
}

StandIn::~StandIn() { drop(); }

void StandIn::reserved(const Booked& booked) { boundary_->receive(reservation(booked), std::nullopt); }

void StandIn::paid(const Booked& booked) { boundary_->receive(confirmation(booked), std::nullopt); }

void StandIn::failed(ErrorKind kind) {
    const Error error = errorOf(kind);
    if (comesOnMainThread(kind)) return boundary_->receive(std::nullopt, error);
    std::thread([boundary = boundary_, &error] { boundary->receive(std::nullopt, error); }).join();
}

void StandIn::outcomeUnknown(ErrorKind kind) {
    HostEvents::shared().tell(
        Event{.kind = EventKind::reservationUnknown, .opening = boundary_->opening(), .error = kind});
}

void StandIn::closed() { boundary_->receive(std::nullopt, std::nullopt); }

void StandIn::drop() { boundary_->drop(); }

} // namespace ombrivane::kit
