// Prints the figures of the window, one line "name value" each; all, or those of one kind: start, list,
// pages, rules.
#include "WindowFigures.h"

#include <QGuiApplication>
#include <QtQml/QQmlExtensionPlugin>

#include <fmt/core.h>

#include <cstdio>
#include <exception>
#include <stdexcept>

Q_IMPORT_QML_PLUGIN(OmbrivanePlugin)

namespace {

int complaints = 0;
QtMessageHandler former = nullptr;

/// A page that the toolkit complains of is not measured.
void countComplaint(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type != QtDebugMsg && type != QtInfoMsg) ++complaints;
    former(type, context, text);
}

} // namespace

int main(int count, char** values) {
    qputenv("TZ", "Asia/Kathmandu");
    const QGuiApplication application(count, values);
    former = qInstallMessageHandler(countComplaint);
    std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ); // each figure as soon as it is known
    try {
        const QString kind = count > 1 ? QString::fromLocal8Bit(values[1]) : QString();
        if (kind == "bare" || kind == "component" || kind == "awaited") {
            ombrivane::bench::startOnce(kind);
            return 0;
        }
        if (kind.isEmpty() || kind == "start") ombrivane::bench::printStartFigures();
        if (kind.isEmpty() || kind == "list") ombrivane::bench::printListFigures();
        if (kind.isEmpty() || kind == "pages") ombrivane::bench::printPageFigures();
        if (kind.isEmpty() || kind == "rules") ombrivane::bench::printRulesFigures();
        if (complaints > 0) throw std::runtime_error("the toolkit complained of a page");
        return 0;
    } catch (const std::exception& error) {
        fmt::print(stderr, "ombrivane-window-bench: {}\n", error.what());
        return 1;
    }
}
