#pragma once

#include "appearance/Appearance.h"

#include <QObject>
#include <QQmlEngine>
#include <QQmlParserStatus>

namespace ombrivane::view {

/// The same for QML: `Appearance { light.primary: "#7A1FA2"; cornerRadius: 4 }`. Each property means what the
/// member of its name in `Appearance` does; a change takes effect at once.
class AppearanceTable : public QObject, public QQmlParserStatus {
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_NAMED_ELEMENT(Appearance)
    Q_PROPERTY(ombrivane::view::Colours light READ light WRITE setLight NOTIFY changed FINAL)
    Q_PROPERTY(ombrivane::view::Colours dark READ dark WRITE setDark NOTIFY changed FINAL)
    Q_PROPERTY(QString fontFamily READ fontFamily WRITE setFontFamily NOTIFY changed FINAL)
    Q_PROPERTY(QList<QUrl> fontFaces READ fontFaces WRITE setFontFaces NOTIFY changed FINAL)
    Q_PROPERTY(double cornerRadius READ cornerRadius WRITE setCornerRadius RESET resetCornerRadius NOTIFY
                   changed FINAL)
    Q_PROPERTY(QUrl logo READ logo WRITE setLogo NOTIFY changed FINAL)
    Q_PROPERTY(QString poweredBy READ poweredBy WRITE setPoweredBy RESET resetPoweredBy NOTIFY changed FINAL)

public:
    explicit AppearanceTable(QObject* parent = nullptr) : QObject(parent) {}

    /// All of it; nothing as long as QML has not assigned everything that its document gives.
    Appearance value() const { return complete_ ? value_ : Appearance(); }

    Colours light() const { return value_.light; }
    Colours dark() const { return value_.dark; }
    QString fontFamily() const { return value_.fontFamily; }
    QList<QUrl> fontFaces() const { return value_.fontFaces; }
    /// NaN where it is absent.
    double cornerRadius() const;
    QUrl logo() const { return value_.logo; }
    QString poweredBy() const { return value_.poweredBy.value_or(QString()); }

    void setLight(const Colours& colours);
    void setDark(const Colours& colours);
    void setFontFamily(const QString& family);
    void setFontFaces(const QList<QUrl>& faces);
    void setCornerRadius(double points);
    void resetCornerRadius();
    void setLogo(const QUrl& picture);
    void setPoweredBy(const QString& text);
    void resetPoweredBy();

    void classBegin() override { complete_ = false; }
    void componentComplete() override;

    Q_SIGNAL void changed();

private:
    template <class Value> void set(Value Appearance::*member, const Value& value);

    Appearance value_;
    bool complete_ = true;
};

} // namespace ombrivane::view
