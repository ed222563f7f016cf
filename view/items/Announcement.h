#pragma once

#include <QQmlEngine>
#include <QQuickItem>

namespace ombrivane::view {

/// What assistive technology says aloud when it turns up: a message, an error, that the time is short. Draws
/// nothing.
class Announcement : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// Said each time it changes to something that is not empty.
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged FINAL)

public:
    explicit Announcement(QQuickItem* parent = nullptr) : QQuickItem(parent) {}

    const QString& text() const { return text_; }
    void setText(const QString& text);

    Q_SIGNAL void textChanged();

protected:
    /// The first text is said once the item knows who it is to assistive technology.
    void componentComplete() override;

private:
    void say();

    QString text_;
};

} // namespace ombrivane::view
