#pragma once

#include "adapters/screens/ResultsProperties.h"
#include "keyed/KeyedScreen.h"

#include <QUrl>

namespace ombrivane::view {

/// What both result lists show. By hand, since the part below the dates changes its screen, and since the
/// page tells behind every frame how far its list is scrolled.
class ResultsAdapter : public ombrivane::view::ResultsProperties {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    Q_PROPERTY(QObject* content READ content NOTIFY contentChanged FINAL)
    Q_PROPERTY(QUrl contentPage READ contentPage NOTIFY contentChanged FINAL)
    Q_PROPERTY(double offset READ offset WRITE setOffset FINAL)

public:
    explicit ResultsAdapter(std::shared_ptr<Screen> screen);

    QObject* content() const { return contentAdapter_.get(); }
    QUrl contentPage() const;
    Q_SIGNAL void contentChanged();
    double offset() const { return core().offset.get(); }
    void setOffset(double points) { core().scrolled(points); }

private:
    void followContent();

    Fields unkeyed_;
    Derived<std::shared_ptr<Screen>> contentScreen_;
    std::shared_ptr<ScreenAdapter> contentAdapter_;
    Subscription contentWatch_;
};

} // namespace ombrivane::view
