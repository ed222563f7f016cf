#include "Receipts.h"

#include <QDate>
#include <QStringList>

#include <utility>

namespace ombrivane::demo {
namespace {

constexpr int kept = 20;

QString textOf(const Json& object, const char* key) {
    const auto found = object.find(key);
    return found != object.end() && found->is_string() ? QString::fromStdString(found->get<std::string>())
                                                       : QString();
}

/// The part of that name; null where there is none.
Json partOf(const Json& object, const char* key) {
    return object.is_object() && object.contains(key) ? object.at(key) : Json();
}

Json wayOf(const Json& dictionary, const char* way) {
    return partOf(partOf(dictionary, "flightSummary"), way);
}

QString routeOf(const Json& dictionary) {
    const Json there = wayOf(dictionary, "departureFlight"), back = wayOf(dictionary, "returnFlight");
    if (!there.is_object()) return {};
    QStringList places{textOf(there, "departureCity"), textOf(there, "arrivalCity")};
    if (back.is_object()) places.append(textOf(back, "arrivalCity"));
    return places.join(QStringLiteral(" – "));
}

QString momentOf(const QLocale& locale, const Json& way) {
    const QString day = textOf(way, "deptDate");
    const QDate date = QDate::fromString(day, Qt::ISODate);
    const QString shown = date.isValid() ? locale.toString(date, QLocale::LongFormat) : day;
    return shown + QStringLiteral(", ") + textOf(way, "deptTime");
}

QString datesOf(const QLocale& locale, const Json& dictionary) {
    QStringList moments;
    for (const char* name : {"departureFlight", "returnFlight"})
        if (const Json way = wayOf(dictionary, name); way.is_object()) moments.append(momentOf(locale, way));
    return moments.join('\n');
}

QString travellersOf(const Json& dictionary) {
    QStringList names;
    for (const Json& passenger : partOf(partOf(dictionary, "bookingSummary"), "passengers"))
        names.append(textOf(passenger, "passenger_name"));
    return names.join(QStringLiteral(", "));
}

std::optional<double> costOf(const Receipt& receipt) {
    const Json cost = partOf(receipt.dictionary, "totalCost");
    return cost.is_number() ? std::optional(cost.get<double>()) : std::nullopt;
}

} // namespace

QString amountText(const QLocale& locale, const QString& currency, double amount) {
    return currency + QStringLiteral(" ") + locale.toString(amount, 'f', 2);
}

int Receipts::rowCount(const QModelIndex& /*parent*/) const { return static_cast<int>(receipts_.size()); }

QHash<int, QByteArray> Receipts::roleNames() const {
    return {{WentWrong, "wentWrong"},
            {Title, "title"},
            {Detail, "detail"},
            {Route, "route"},
            {Dates, "dates"},
            {Travellers, "travellers"},
            {Amount, "amount"},
            {Paid, "paid"},
            {Unfolded, "unfolded"},
            {Handed, "handed"}};
}

QVariant Receipts::data(const QModelIndex& index, int role) const {
    if (!has(index.row())) return {};
    const Receipt& receipt = receipts_.at(index.row());
    const Json& dictionary = receipt.dictionary;
    switch (role) {
    case WentWrong:
        return receipt.wentWrong;
    case Title:
        return receipt.title;
    case Detail:
        return receipt.detail;
    case Route:
        return routeOf(dictionary);
    case Dates:
        return datesOf(locale_, dictionary);
    case Travellers:
        return travellersOf(dictionary);
    case Amount: {
        const auto cost = costOf(receipt);
        return cost ? amountText(locale_, textOf(partOf(dictionary, "bookingSummary"), "currency"), *cost)
                    : QString();
    }
    case Paid:
        return receipt.paid;
    case Unfolded:
        return receipt.unfolded;
    case Handed:
        return receipt.unfolded ? QString::fromStdString(dictionary.dump(2)) : QString();
    default:
        return {};
    }
}

void Receipts::add(Receipt receipt) {
    if (rowCount() == kept) {
        beginRemoveRows({}, kept - 1, kept - 1);
        receipts_.removeLast();
        endRemoveRows();
    }
    beginInsertRows({}, 0, 0);
    receipts_.prepend(std::move(receipt));
    endInsertRows();
}

std::optional<double> Receipts::due(int row) const {
    if (!has(row) || receipts_.at(row).paid) return std::nullopt;
    return costOf(receipts_.at(row));
}

void Receipts::markPaid(int row) {
    if (!has(row)) return;
    receipts_[row].paid = true;
    tell(row);
}

void Receipts::fold(int row) {
    if (!has(row)) return;
    receipts_[row].unfolded = !receipts_[row].unfolded;
    tell(row);
}

void Receipts::setLocale(const QLocale& locale) {
    locale_ = locale;
    if (rowCount() > 0) emit dataChanged(index(0), index(rowCount() - 1));
}

void Receipts::tell(int row) { emit dataChanged(index(row), index(row)); }

} // namespace ombrivane::demo
