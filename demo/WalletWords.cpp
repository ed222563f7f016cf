#include "WalletWords.h"

namespace ombrivane::demo {
namespace {

const WalletWords& english() {
    static const WalletWords words{
        .balance = "Balance",
        .flights = "Flights",
        .send = "Send",
        .topUp = "Top up",
        .power = "Electricity",
        .bus = "Bus",
        .events = "Events",
        .notHere = "Not in this demo",
        .receipts = "Receipts",
        .none = "Nothing booked yet.",
        .travellers = "Travellers",
        .number = "Reservation number",
        .amount = "Amount",
        .pay = "Pay from balance",
        .paid = "Paid from balance",
        .tooLittle = "The balance does not reach.",
        .show = "What was handed over",
        .hide = "Hide what was handed over",
        .ended = "Flights ended",
        .unknown = "A reservation may stand",
        .unknownAdvice = "Nobody answered whether it was made. Look your bookings up before you book again.",
        .refused = "No reservation was made",
        .refusedAdvice = "The booking service refused it. Nothing is to be paid."};
    return words;
}

const WalletWords& nepali() {
    static const WalletWords words{
        .balance = "मौज्दात",
        .flights = "उडान",
        .send = "पठाउनुहोस्",
        .topUp = "रिचार्ज",
        .power = "बिजुली",
        .bus = "बस",
        .events = "कार्यक्रम",
        .notHere = "यो डेमोमा छैन",
        .receipts = "रसिदहरू",
        .none = "अहिलेसम्म केही बुक गरिएको छैन।",
        .travellers = "यात्रुहरू",
        .number = "आरक्षण नम्बर",
        .amount = "रकम",
        .pay = "मौज्दातबाट तिर्नुहोस्",
        .paid = "मौज्दातबाट तिरियो",
        .tooLittle = "मौज्दात पुग्दैन।",
        .show = "के हस्तान्तरण भयो",
        .hide = "हस्तान्तरण लुकाउनुहोस्",
        .ended = "उडान बन्द भयो",
        .unknown = "आरक्षण भएको हुन सक्छ",
        .unknownAdvice = "यो भयो कि भएन भन्ने जवाफ आएन। फेरि बुक गर्नु अघि आफ्ना बुकिङ हेर्नुहोस्।",
        .refused = "आरक्षण भएन",
        .refusedAdvice =
            "बुकिङ सेवाले अस्वीकार गर्‍यो। केही "
            "तिर्नु "
            "पर्दैन।"};
    return words;
}

const WalletWords& arabic() {
    static const WalletWords words{.balance = "الرصيد",
                                   .flights = "رحلات جوية",
                                   .send = "إرسال",
                                   .topUp = "شحن الهاتف",
                                   .power = "الكهرباء",
                                   .bus = "حافلات",
                                   .events = "فعاليات",
                                   .notHere = "ليس في هذا العرض",
                                   .receipts = "الإيصالات",
                                   .none = "لا توجد حجوزات بعد.",
                                   .travellers = "المسافرون",
                                   .number = "رقم الحجز",
                                   .amount = "المبلغ",
                                   .pay = "الدفع من الرصيد",
                                   .paid = "دُفع من الرصيد",
                                   .tooLittle = "الرصيد لا يكفي.",
                                   .show = "ما تم تسليمه",
                                   .hide = "إخفاء ما تم تسليمه",
                                   .ended = "انتهت الرحلات الجوية",
                                   .unknown = "قد يكون الحجز قائمًا",
                                   .unknownAdvice =
                                       "لم يرد جواب عن إتمامه. راجع حجوزاتك قبل أن تحجز من جديد.",
                                   .refused = "لم يتم الحجز",
                                   .refusedAdvice = "رفضته خدمة الحجز. لا شيء مستحق الدفع."};
    return words;
}

} // namespace

WalletWords WalletWords::of(const QString& language) {
    if (language == "ne") return nepali();
    return language == "ar" ? arabic() : english();
}

} // namespace ombrivane::demo
