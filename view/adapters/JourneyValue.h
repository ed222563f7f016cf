#pragma once

#include "adapters/screens/JourneyCardProperties.h"

namespace ombrivane::view {

/// One journey of an availability. By hand, since its card has room for one logo, that of the first leg.
class JourneyValue : public ombrivane::view::JourneyCardProperties {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    Q_PROPERTY(QString carrierLogo READ carrierLogo CONSTANT FINAL)

public:
    using JourneyCardProperties::JourneyCardProperties;

    QString carrierLogo() const {
        return lines_.carrierLogos.empty() ? QString() : shown(lines_.carrierLogos.front());
    }
};

} // namespace ombrivane::view
