#pragma once

#include "appearance/Appearance.h"

#include <QStringList>

namespace ombrivane::demo {

/// One wallet's look: what it hands to the component is what it is drawn in itself.
struct Brand {
    QString name;
    view::Appearance appearance;
};

/// The wallets that this one can pass for; the first is itself.
const QList<Brand>& brands();

/// Of what is no part of any wallet.
const Brand& neutralBrand();

} // namespace ombrivane::demo
