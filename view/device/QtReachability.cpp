#include "device/QtReachability.h"

#include <QNetworkInformation>

namespace ombrivane::view {

QtReachability::QtReachability() {
    QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability);
}

std::optional<std::uint32_t> QtReachability::flags(const std::string& host) {
    const auto route = route_.flags(host);
    if (route == reachableFlag) return route;
    const auto* known = QNetworkInformation::instance();
    const bool isOnline = known && known->reachability() == QNetworkInformation::Reachability::Online;
    return isOnline ? reachableFlag : route;
}

} // namespace ombrivane::view
