#pragma once

#include <QString>

namespace ombrivane::bench {

/// One cold start in this process, of the bare window (`kind` is "bare"), of the component ("component") or
/// of it with a token that takes 300 ms ("awaited"); prints its milliseconds: to the first frame, to the one
/// whose title can be read, of the processor until then, of the longest turn of the event loop.
void startOnce(const QString& kind);

/// Each prints its figures as lines "name value". @throws std::runtime_error when a page cannot be shown
void printStartFigures();
/// A result list of 2,000 offers beside a bare list.
void printListFigures();
/// Each page that a journey meets beside an empty one.
void printPageFigures();
/// How long the page of the fare rules takes to show texts that are made to be slow.
void printRulesFigures();

} // namespace ombrivane::bench
