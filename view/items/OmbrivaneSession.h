#pragma once

#include "items/StageModel.h"
#include "parts/SupportContacts.h"
#include "session/OmbrivaneView.h"

#include <QObject>
#include <QQmlEngine>
#include <QVariantMap>

#include <memory>
#include <optional>

namespace ombrivane::view {

/// The component for Qt Quick: what the host passes in, what it gets back, and the stage that shows the
/// screens. Set the arguments, then `open`. Destroying it drops the view.
class OmbrivaneSession : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString clientId MEMBER clientId FINAL)
    Q_PROPERTY(QString clientSecret MEMBER clientSecret FINAL)
    // The four that a wallet may not have: absent until they are given, and again when they are `undefined`.
    Q_PROPERTY(QString userType READ givenUserType WRITE setUserType RESET resetUserType FINAL)
    Q_PROPERTY(
        double walletBalance READ givenWalletBalance WRITE setWalletBalance RESET resetWalletBalance FINAL)
    Q_PROPERTY(QString phone READ givenPhone WRITE setPhone RESET resetPhone FINAL)
    Q_PROPERTY(QString environment READ givenEnvironment WRITE setEnvironment RESET resetEnvironment FINAL)
    // Of the language, as `LanguageChoice` says; a change takes effect at once while the component is open.
    Q_PROPERTY(QString language READ givenLanguage WRITE setLanguage RESET resetLanguage FINAL)
    Q_PROPERTY(QString region READ givenRegion WRITE setRegion RESET resetRegion FINAL)
    Q_PROPERTY(QVariantMap texts READ givenTexts WRITE setTexts FINAL)
    // Of the support, as `SupportContacts` says; a change takes effect at once while the component is open.
    Q_PROPERTY(
        QString supportMobile READ givenSupportMobile WRITE setSupportMobile RESET resetSupportMobile FINAL)
    Q_PROPERTY(
        QString supportViber READ givenSupportViber WRITE setSupportViber RESET resetSupportViber FINAL)
    Q_PROPERTY(QString supportWhatsapp READ givenSupportWhatsapp WRITE setSupportWhatsapp RESET
                   resetSupportWhatsapp FINAL)
    Q_PROPERTY(QString supportLandLine READ givenSupportLandLine WRITE setSupportLandLine RESET
                   resetSupportLandLine FINAL)
    // Whether each opening from the next one on is recorded.
    Q_PROPERTY(bool records MEMBER records FINAL)
    Q_PROPERTY(ombrivane::view::StageModel* stage READ stage CONSTANT FINAL)

public:
    /// Without arguments, and not open.
    explicit OmbrivaneSession(QObject* parent = nullptr) : QObject(parent) {}
    ~OmbrivaneSession() override;

    /// What the stage of `OmbrivaneView.qml` shows.
    StageModel* stage() { return &stage_; }
    /// The stack of screens; nullptr while the component is not open.
    Navigator* navigator() const { return view_ ? view_->navigator() : nullptr; }

    /// Shows the component; shown again, it starts again. The callback may come before this returns, as
    /// `OmbrivaneView::show` says; the signals do not.
    Q_INVOKABLE void open();
    /// Drops the component, as a host may at any time, also inside of the callback and of every signal.
    Q_INVOKABLE void drop();

    /// As `OmbrivaneView::saveState`, for a host that may be ended in the background; while not open, what
    /// `restoreState` took and no opening has come to.
    Q_INVOKABLE QString saveState() const;
    /// As `OmbrivaneView::restoreState`, for the next `open`.
    Q_INVOKABLE bool restoreState(const QString& state);
    /// As `OmbrivaneView::recording`, of the opening that was recorded last; also once it is dropped.
    Q_INVOKABLE QString recording() const;
    /// As `OmbrivaneView::forget`: drops the component, and empties what the process knows of its customer.
    Q_INVOKABLE void forget();

    /// Called in place of the signals, on the thread that the component reached it on. Set before `open`.
    void setCallback(CompletionCallback callback) { callback_ = std::move(callback); }

    QString clientId;                    ///< the wallet's own, from the booking service
    QString clientSecret;                ///< never shown, printed or written
    std::optional<QString> userType;     ///< absent: "customer"
    std::optional<double> walletBalance; ///< in whole rupees; absent: no limit
    std::optional<QString> phone;        ///< of the customer
    std::optional<QString> environment; ///< absent: "test"; any text but "test", an empty one too: production
    std::optional<QString> language;    ///< a BCP 47 tag or "device"; absent: English
    std::optional<QString> region;      ///< by which numbers and dates are written; absent: of the language
    bool records = false;               ///< whether openings are recorded, as `OmbrivaneView::record` says
    QVariantMap texts;                  ///< the wallet's own texts by key
    /// Of the process when it is opened; absent: those that the process has.
    std::optional<SupportContacts> supportContacts;

    /// The hand-over, or progress where "exit" in it is false; JSON. On the main thread.
    Q_SIGNAL void finished(const QString& dictionary);
    /// The component failed: in the words of the error, by the domain and the code that
    /// `base/ErrorDomains.h` names, and as one of `ErrorKind`. On the main thread.
    Q_SIGNAL void failed(const QString& message, const QString& domain, int code, int kind);
    /// The component wants to be taken off the screen.
    Q_SIGNAL void closed();

    /// For QML: empty where absent.
    QString givenUserType() const { return userType.value_or(QString()); }
    /// For QML: empty where absent.
    QString givenPhone() const { return phone.value_or(QString()); }
    /// For QML: empty where absent.
    QString givenEnvironment() const { return environment.value_or(QString()); }
    /// For QML: empty where absent.
    QString givenLanguage() const { return language.value_or(QString()); }
    /// For QML: empty where absent.
    QString givenRegion() const { return region.value_or(QString()); }
    /// For QML.
    QVariantMap givenTexts() const { return texts; }
    /// For QML: as it is shown.
    QString givenSupportMobile() const { return givenContact<&SupportContacts::mobile>(); }
    /// For QML: empty where absent.
    QString givenSupportViber() const { return givenContact<&SupportContacts::viber>(); }
    /// For QML: empty where absent.
    QString givenSupportWhatsapp() const { return givenContact<&SupportContacts::whatsapp>(); }
    /// For QML: as it is shown.
    QString givenSupportLandLine() const { return givenContact<&SupportContacts::landLine>(); }
    /// For QML: NaN where absent.
    double givenWalletBalance() const;
    /// Given from here on, also when it is empty.
    void setUserType(const QString& given) { userType = given; }
    /// Given from here on, also when it is empty.
    void setPhone(const QString& given) { phone = given; }
    /// Given from here on, also when it is empty.
    void setEnvironment(const QString& given) { environment = given; }
    /// A BCP 47 tag or "device", from here on.
    void setLanguage(const QString& given);
    /// A region, from here on.
    void setRegion(const QString& given);
    /// Texts by key, from here on, in the place of those given before.
    void setTexts(const QVariantMap& given);
    /// The number that is called, from here on.
    void setSupportMobile(const QString& number) {
        giveContact<&SupportContacts::mobile>(number.toStdString());
    }
    /// The number that is written to, from here on.
    void setSupportViber(const QString& number) {
        giveContact<&SupportContacts::viber>(number.toStdString());
    }
    /// The number that is written to, from here on.
    void setSupportWhatsapp(const QString& number) {
        giveContact<&SupportContacts::whatsapp>(number.toStdString());
    }
    /// The number that is called, from here on.
    void setSupportLandLine(const QString& number) {
        giveContact<&SupportContacts::landLine>(number.toStdString());
    }
    /// NaN is absent, as it is what an absent balance reads as.
    void setWalletBalance(double given);
    /// Absent from here on.
    void resetUserType() { userType.reset(); }
    /// Absent from here on.
    void resetPhone() { phone.reset(); }
    /// Absent from here on.
    void resetEnvironment() { environment.reset(); }
    /// Absent from here on.
    void resetLanguage();
    /// Absent from here on.
    void resetRegion();
    /// The component's own from here on.
    void resetSupportMobile() { giveContact<&SupportContacts::mobile>(SupportContacts().mobile); }
    /// `supportMobile` from here on.
    void resetSupportViber() { giveContact<&SupportContacts::viber>(SupportContacts().viber); }
    /// `supportMobile` from here on.
    void resetSupportWhatsapp() { giveContact<&SupportContacts::whatsapp>(SupportContacts().whatsapp); }
    /// The component's own from here on.
    void resetSupportLandLine() { giveContact<&SupportContacts::landLine>(SupportContacts().landLine); }
    /// Absent from here on.
    void resetWalletBalance() { walletBalance.reset(); }

private:
    CompletionCallback callback();
    void speak() const;
    void speakAgain() const;
    void giveContacts(const SupportContacts& contacts);
    SupportContacts givenContacts() const { return supportContacts.value_or(SupportContacts()); }
    template <auto contact> QString givenContact() const {
        return QString::fromStdString(std::optional<std::string>(givenContacts().*contact).value_or(""));
    }
    template <auto contact, class Number> void giveContact(const Number& number) {
        auto contacts = givenContacts();
        contacts.*contact = number;
        giveContacts(contacts);
    }

    struct Opened {};

    CompletionCallback callback_;
    std::string kept_;               ///< taken up by the next `open`
    std::string recorded_;           ///< the recording of a view that has gone
    std::shared_ptr<Opened> opened_; ///< while the view that was opened last is neither dropped nor replaced
    StageModel stage_;
    std::unique_ptr<OmbrivaneView> view_;
};

} // namespace ombrivane::view
