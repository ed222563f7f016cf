#pragma once

#include "adapters/ScreenAdapter.h"

#include <QUrl>

#include <memory>

namespace ombrivane::view {

/// The adapter of a screen, by the one table that maps screens to their adapters and pages. A screen without
/// an entry is a fault.
std::unique_ptr<ScreenAdapter> makeAdapter(const std::shared_ptr<Screen>& screen);

/// For a page that may still be at work when its screen goes: the adapter leaves with the next turn of the
/// event loop.
std::shared_ptr<ScreenAdapter> deletedLater(std::unique_ptr<ScreenAdapter> adapter);

/// The page that shows a screen; empty for a row, which its list draws.
QUrl pageOf(const Screen& screen);

} // namespace ombrivane::view
