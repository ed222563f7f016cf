#include "Complaints.h"

#include "base/Json.h"

#include <atomic>
#include <iostream>

namespace ombrivane::demo {
namespace {

std::atomic<int> heard = 0;

void hear(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (type == QtDebugMsg || type == QtInfoMsg) return;
    if (text.contains("OpenType support missing"))
        return; // a font without a script, for which another one is taken
    ++heard;
    std::cout << Json{{"event", "complaint"}, {"text", text.toStdString()}}.dump() << std::endl;
}

} // namespace

Complaints::Complaints() : before_(qInstallMessageHandler(hear)) {}

Complaints::~Complaints() { qInstallMessageHandler(before_); }

int Complaints::count() { return heard; }

} // namespace ombrivane::demo
