#include "items/HostEventsItem.h"

#include "platform/Platform.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QPointer>

namespace ombrivane::view {
namespace {

QVariantMap mapOf(const Json& object) {
    return QJsonDocument::fromJson(QByteArray::fromStdString(object.dump())).object().toVariantMap();
}

} // namespace

HostEventsItem::HostEventsItem(QObject* parent) :
    QObject(parent),
    listening_(HostEvents::shared().listen(
        [self = QPointer(this)](const Event& event) {
            mainQueue().async([self, event] {
                if (self) emit self->happened(mapOf(event.json()));
            });
        },
        [self = QPointer(this)](const EndedCall& call) {
            mainQueue().async([self, object = call.json()] {
                if (self) emit self->callEnded(mapOf(object));
            });
        })) {}

} // namespace ombrivane::view
