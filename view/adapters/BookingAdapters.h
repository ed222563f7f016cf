#pragma once

#include "adapters/BookingValues.h"
#include "adapters/ParagraphsModel.h"
#include "adapters/RowsModel.h"
#include "adapters/ScreenAdapter.h"
#include "booking/BookingConfirmationView.h"
#include "booking/BookingDetailsView.h"
#include "booking/EmergencyContactInformationView.h"
#include "booking/FlightDetailsView.h"
#include "booking/RulesAndRegulationView.h"
#include "booking/TravellerInformationView.h"
#include "images/PhotoPicker.h"

#include <QRectF>
#include <QUrl>

#include <memory>
#include <string_view>

namespace ombrivane::view {

/// The fare rules.
class RulesAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    Q_PROPERTY(ombrivane::view::ParagraphsModel* paragraphs READ paragraphs CONSTANT FINAL)
    OMBRIVANE_SCREEN(RulesAdapter, RulesAndRegulationView)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_TEXT(cancelText, core().cancelText)
    OMBRIVANE_TEXT(continueText, core().continueText)
    OMBRIVANE_TEXT(errorMessage, core().errorMessage)
    OMBRIVANE_FLAG(showSnackBar, core().showSnackBar)
    OMBRIVANE_FLAG(showProgressView, core().showProgressView)
    OMBRIVANE_AMOUNT(measured, core().measured)
    OMBRIVANE_INTENT(cancel, core().cancel)
    OMBRIVANE_INTENT(proceed, core().continue_)

public:
    ParagraphsModel* paragraphs() { return &paragraphs_; }

private:
    ParagraphsModel paragraphs_{core().paragraphs.get()};
    Subscription paragraphsWatch_ =
        watch(core().paragraphs, [this] { paragraphs_.show(core().paragraphs.get()); });
};

/// The journeys leg by leg.
class FlightDetailsAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    Q_PROPERTY(QQmlListProperty<ombrivane::view::JourneyValue> journeys READ journeys CONSTANT FINAL)
    OMBRIVANE_SCREEN(FlightDetailsAdapter, FlightDetailsView)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_TEXT(originCity, core().originCity)
    OMBRIVANE_TEXT(destinationCity, core().destinationCity)
    OMBRIVANE_TEXT(routeImage, core().routeImage)
    OMBRIVANE_INTENT(close, core().close)

public:
    QQmlListProperty<JourneyValue> journeys() { return readOnlyList(this, values_); }

private:
    QList<JourneyValue*> values_ = makeValues<JourneyValue>(core().journeys.get(), this);
};

/// The summary card of a session.
class FlightInformationAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    Q_PROPERTY(
        QQmlListProperty<ombrivane::view::JourneyValue> journeys READ journeys NOTIFY journeysChanged FINAL)
    OMBRIVANE_SCREEN(FlightInformationAdapter, FlightInformationView)
    OMBRIVANE_TEXT(passengerLine, core().passengerLine)
    OMBRIVANE_TEXT(detailsText, core().detailsText)
    OMBRIVANE_FLAG(isLoading, core().isLoading)
    OMBRIVANE_INTENT(viewDetails, core().viewDetails)

public:
    QQmlListProperty<JourneyValue> journeys() { return readOnlyList(this, values_); }
    Q_SIGNAL void journeysChanged();

private:
    QList<JourneyValue*> values_ = makeValues<JourneyValue>(core().journeys.get(), this);
    Subscription journeysWatch_ = watch(core().journeys, [this] {
        values_ = makeValues<JourneyValue>(core().journeys.get(), this);
        emit journeysChanged();
    });
};

/// The baggage card of a session.
class BaggageAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    Q_PROPERTY(QQmlListProperty<ombrivane::view::BaggageValue> blocks READ blocks NOTIFY blocksChanged FINAL)
    OMBRIVANE_SCREEN(BaggageAdapter, BaggageInformationView)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_TEXT(cabinLabel, core().cabinLabel)
    OMBRIVANE_TEXT(checkInLabel, core().checkInLabel)
    OMBRIVANE_FLAG(isLoading, core().isLoading)

public:
    QQmlListProperty<BaggageValue> blocks() { return readOnlyList(this, values_); }
    Q_SIGNAL void blocksChanged();

private:
    QList<BaggageValue*> values_ = makeValues<BaggageValue>(core().blocks.get(), this);
    Subscription blocksWatch_ = watch(core().blocks, [this] {
        values_ = makeValues<BaggageValue>(core().blocks.get(), this);
        emit blocksChanged();
    });
};

/// One line of what the customer fills in.
class ContactLineAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(ContactLineAdapter, ContactLine)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_TEXT(detail, core().detail)
    OMBRIVANE_FLAG(isFilled, core().isFilled)
    OMBRIVANE_INTENT(tap, core().tap)
};

/// All that the customer fills in.
class ContactListAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    Q_PROPERTY(ombrivane::view::ContactLineAdapter* contactLine READ contactLine CONSTANT FINAL)
    OMBRIVANE_SCREEN(ContactListAdapter, OWPessangerContactDetailView)
    OMBRIVANE_TEXT(contactTitle, core().contactTitle)
    OMBRIVANE_TEXT(passengerTitle, core().passengerTitle)
    OMBRIVANE_ROWS(rows, core().rows)

public:
    ContactLineAdapter* contactLine() { return &contactLine_; }

private:
    ContactLineAdapter contactLine_{core().contactLine};
};

/// The wallet payment in place of a session's content.
class PaymentAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(PaymentAdapter, PaymentView)
    OMBRIVANE_TEXT(route, core().route)
    OMBRIVANE_TEXT(date, core().date)
    OMBRIVANE_TEXT(referenceLabel, core().referenceLabel)
    OMBRIVANE_TEXT(reference, core().reference)
    OMBRIVANE_TEXT(amountLabel, core().amountLabel)
    OMBRIVANE_TEXT(amount, core().amount)
    OMBRIVANE_TEXT(otpPlaceholder, core().otpPlaceholder)
    OMBRIVANE_TEXT(otpText, core().otpText)
    OMBRIVANE_TEXT(buttonText, core().buttonText)
    OMBRIVANE_FLAG(showProgressView, core().showProgressView)
    OMBRIVANE_INPUT(typeOtp, core().typeOtp)
    OMBRIVANE_INTENT(button, core().button)
};

/// A booking session of either kind. Its cards are the parts shown inside of it.
class SessionAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    Q_PROPERTY(ombrivane::view::FlightInformationAdapter* information READ information CONSTANT FINAL)
    Q_PROPERTY(ombrivane::view::BaggageAdapter* baggage READ baggage CONSTANT FINAL)
    Q_PROPERTY(ombrivane::view::ContactListAdapter* contact READ contact CONSTANT FINAL)
    Q_PROPERTY(ombrivane::view::PaymentAdapter* payment READ payment NOTIFY showPaymentViewChanged FINAL)
    OMBRIVANE_SCREEN(SessionAdapter, BookingSession)
    OMBRIVANE_TEXT(departLocation, core().departLocation)
    OMBRIVANE_TEXT(destLocation, core().destLocation)
    OMBRIVANE_TEXT(appBarTitle, core().appBarTitle)
    OMBRIVANE_TEXT(clockText, core().clockText)
    OMBRIVANE_TEXT(clockLabel, core().clockLabel)
    OMBRIVANE_FLAG(isLastMinute, core().isLastMinute)
    OMBRIVANE_FIELD(double, clockPart, core().clockPart)
    OMBRIVANE_TEXT(totalLabel, core().totalLabel)
    OMBRIVANE_TEXT(total, core().total)
    OMBRIVANE_FLAG(showsFoot, core().showsFoot)
    OMBRIVANE_TEXT(continueText, core().continueText)
    OMBRIVANE_FLAG(isLoading, core().isLoading)
    OMBRIVANE_FLAG(showProgressView, core().showProgressView)
    OMBRIVANE_TEXT(progressMessage, core().progressMessage)
    OMBRIVANE_FLAG(showSessionExpiredAlert, core().showSessionExpiredAlert)
    OMBRIVANE_TEXT(expiredTitle, core().expiredTitle)
    OMBRIVANE_TEXT(expiredButtonText, core().expiredButtonText)
    OMBRIVANE_FLAG(showSnackBar, core().showSnackBar)
    OMBRIVANE_TEXT(errorMessage, core().errorMessage)
    OMBRIVANE_FLAG(showPaymentView, core().showPaymentView)
    OMBRIVANE_INTENT(back, core().back)
    OMBRIVANE_INTENT(proceed, core().continue_)
    OMBRIVANE_INTENT(checkLatestFares, core().checkLatestFares)

public:
    FlightInformationAdapter* information() const { return information_.get(); }
    BaggageAdapter* baggage() const { return baggage_.get(); }
    ContactListAdapter* contact() const { return contact_.get(); }
    PaymentAdapter* payment();

private:
    /// The screen that is shown inside of this one under `key`, if there is one now.
    std::shared_ptr<ombrivane::Screen> part(std::string_view key) const;
    template <class Adapter> std::unique_ptr<Adapter> partAdapter(std::string_view key) const {
        auto screen = part(key);
        return screen ? std::make_unique<Adapter>(std::move(screen)) : nullptr;
    }

    std::unique_ptr<FlightInformationAdapter> information_ =
        partAdapter<FlightInformationAdapter>("information");
    std::unique_ptr<BaggageAdapter> baggage_ = partAdapter<BaggageAdapter>("baggage");
    std::unique_ptr<ContactListAdapter> contact_ = partAdapter<ContactListAdapter>("contact");
    std::unique_ptr<PaymentAdapter> payment_;
};

/// One tile of the document types.
class DocumentTypeAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(DocumentTypeAdapter, DocumentTypeTile)
    OMBRIVANE_TEXT(label, core().label)
    OMBRIVANE_FLAG(isSelected, core().isSelected)
    OMBRIVANE_INTENT(tap, core().tap)
};

/// The form of one traveller.
class TravellerAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(TravellerAdapter, TravellerInformationView)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_TEXT(message, core().message)
    OMBRIVANE_TEXT(saveText, core().saveText)
    OMBRIVANE_TEXT(name, core().TIVM.name)
    OMBRIVANE_TEXT(surname, core().TIVM.surname)
    OMBRIVANE_TEXT(email, core().TIVM.email)
    OMBRIVANE_TEXT(gender, core().TIVM.gender)
    OMBRIVANE_TEXT(documentNumber, core().TIVM.documentNumber)
    OMBRIVANE_TEXT(nationality, core().nationality)
    OMBRIVANE_TEXT(dateOfBirth, core().dateOfBirthText)
    OMBRIVANE_TEXT(expiryDate, core().expiryDateText)
    OMBRIVANE_TEXT(dayOfBirth, core().TIVM.dateOfBirth)
    OMBRIVANE_TEXT(expiryDay, core().TIVM.expiryDate)
    OMBRIVANE_TEXT(earliestDateOfBirth, core().minDOB)
    OMBRIVANE_TEXT(latestDateOfBirth, core().latestDateOfBirth)
    OMBRIVANE_TEXT(earliestExpiryDate, core().minPpDate)
    OMBRIVANE_FLAG(showsDocuments, core().showsDocuments)
    OMBRIVANE_FLAG(showsExpiryDate, core().showsExpiryDate)
    OMBRIVANE_FLAG(showSnackBar, core().TIVM.showSnackBar)
    OMBRIVANE_FIELD(bool, hasPicture, core().TIVM.documentImage)
    OMBRIVANE_TEXT(nameColor, core().nameColor)
    OMBRIVANE_TEXT(surnameColor, core().surnameColor)
    OMBRIVANE_TEXT(emailColor, core().emailColor)
    OMBRIVANE_TEXT(dateOfBirthColor, core().dateOfBirthColor)
    OMBRIVANE_TEXT(documentNumberColor, core().documentNumberColor)
    OMBRIVANE_TEXT(expiryDateColor, core().expiryDateColor)
    OMBRIVANE_TEXT(documentImageColor, core().documentImageColor)
    OMBRIVANE_INPUT(typeName, core().typeName)
    OMBRIVANE_INPUT(typeSurname, core().typeSurname)
    OMBRIVANE_INPUT(typeEmail, core().typeEmail)
    OMBRIVANE_INPUT(typeDocumentNumber, core().typeDocumentNumber)
    OMBRIVANE_INPUT(chooseGender, core().chooseGender)
    OMBRIVANE_INPUT(pickDateOfBirth, core().pickDateOfBirth)
    OMBRIVANE_INPUT(pickExpiryDate, core().pickExpiryDate)
    OMBRIVANE_INTENT(openPhotoPicker, core().openPhotoPicker)
    OMBRIVANE_INTENT(close, core().close)
    OMBRIVANE_INTENT(save, core().save)
    OMBRIVANE_ROWS(documentTypes, core().documentTypes)
};

/// The form of the emergency contact.
class EmergencyAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(EmergencyAdapter, EmergencyContactInformationView)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_TEXT(message, core().message)
    OMBRIVANE_TEXT(boxText, core().boxText)
    OMBRIVANE_TEXT(saveText, core().saveText)
    OMBRIVANE_TEXT(name, core().ECIVM.name)
    OMBRIVANE_TEXT(surname, core().ECIVM.surname)
    OMBRIVANE_TEXT(email, core().ECIVM.email)
    OMBRIVANE_TEXT(phoneNumber, core().ECIVM.phoneNumber)
    OMBRIVANE_FLAG(isPassanger, core().ECIVM.isPassanger)
    OMBRIVANE_FLAG(showSnackBar, core().ECIVM.showSnackBar)
    OMBRIVANE_TEXT(nameColor, core().nameColor)
    OMBRIVANE_TEXT(surnameColor, core().surnameColor)
    OMBRIVANE_TEXT(emailColor, core().emailColor)
    OMBRIVANE_TEXT(phoneNumberColor, core().phoneNumberColor)
    OMBRIVANE_INPUT(typeName, core().typeName)
    OMBRIVANE_INPUT(typeSurname, core().typeSurname)
    OMBRIVANE_INPUT(typeEmail, core().typeEmail)
    OMBRIVANE_INPUT(typePhoneNumber, core().typePhoneNumber)
    OMBRIVANE_INTENT(tapBox, core().tapBox)
    OMBRIVANE_INTENT(close, core().close)
    OMBRIVANE_INTENT(save, core().save)
};

/// The ticket of a paid booking.
class ConfirmationAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    Q_PROPERTY(QQmlListProperty<ombrivane::view::TicketFlightValue> flights READ flights CONSTANT FINAL)
    Q_PROPERTY(QQmlListProperty<ombrivane::view::TicketPassengerValue> passengers READ passengers NOTIFY
                   passengersChanged FINAL)
    OMBRIVANE_SCREEN(ConfirmationAdapter, BookingConfirmationView)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_TEXT(text, core().text)
    OMBRIVANE_TEXT(downloadText, core().downloadText)
    OMBRIVANE_FLAG(isLoading, core().isLoading)
    OMBRIVANE_FLAG(showProgressView, core().showProgressView)
    OMBRIVANE_FLAG(showSnackBar, core().showSnackBar)
    OMBRIVANE_TEXT(errorMessage, core().errorMessage)
    OMBRIVANE_INTENT(back, core().back)
    OMBRIVANE_INTENT(downloadTicket, core().downloadTicket)
    OMBRIVANE_INTENT(share, core().share)

public:
    QQmlListProperty<TicketFlightValue> flights() { return readOnlyList(this, flights_); }
    QQmlListProperty<TicketPassengerValue> passengers() { return readOnlyList(this, passengers_); }
    Q_SIGNAL void passengersChanged();

private:
    QList<TicketFlightValue*> flights_ = makeValues<TicketFlightValue>(core().flightBlocks.get(), this);
    QList<TicketPassengerValue*> passengers_ =
        makeValues<TicketPassengerValue>(core().passengerBlocks.get(), this);
    Subscription passengersWatch_ = watch(core().passengerBlocks, [this] {
        passengers_ = makeValues<TicketPassengerValue>(core().passengerBlocks.get(), this);
        emit passengersChanged();
    });
};

/// The picker of a document's picture: a file, then the part of it that is kept.
class PhotoPickerAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    /// Whether the page asks for a file itself; a device with a library of its own shows that over the page.
    Q_PROPERTY(bool asksForFile READ asksForFile CONSTANT FINAL)
    OMBRIVANE_SCREEN(PhotoPickerAdapter, PhotoPicker)

public:
    bool asksForFile() const;
    /// @param crop in parts of the whole, from 0 to 1
    Q_INVOKABLE void choose(const QUrl& file, const QRectF& crop);
    Q_INVOKABLE void cancel();
};

} // namespace ombrivane::view
