#include "LongList.h"

#include "Pipeline.h"
#include "SearchAnswer.h"
#include "adapters/PageTable.h"
#include "dates/Calendar.h"

#include <QString>

namespace ombrivane::bench {
namespace {

SearchRequest request() {
    SearchRequest request;
    request.tripType = "oneway";
    request.departCityCode = "KTM";
    request.departCity = "Kathmandu";
    request.destCityCode = "LHR";
    request.destCity = "London";
    request.nationality = "NP";
    request.adults = "1";
    request.children = "0";
    request.infants = "0";
    return request;
}

std::string answerOf(std::size_t offers, const std::string& service, int marks) {
    const QString acute(QChar(0x0301));
    return QString::fromStdString(searchAnswer(offers))
        .replace("https://localhost:8443", QString::fromStdString(service))
        .replace(" Air", " A" + acute.repeated(marks) + "ir")
        .toStdString();
}

} // namespace

LongList::LongList(std::size_t offers, const std::string& service, int marks) :
    offers_(pipeline(answerOf(offers, service, marks))),
    screen_(std::make_shared<FlightListView>(request(), nullptr)) {
    renewAdapter();
}

void LongList::await() {
    screen_->flightListVM.onewayFlights = OneWayOffers();
    screen_->flightListVM.filteredOnewayFlights = OneWayOffers();
    screen_->flightListVM.startSearch(false);
}

void LongList::fill() {
    screen_->flightListVM.onewayFlights = offers_;
    screen_->flightListVM.filteredOnewayFlights = offers_;
    screen_->flightListVM.isLoading = false;
}

QUrl LongList::page() const { return view::pageOf(*screen_); }

void LongList::renewAdapter() {
    adapter_ = std::make_unique<view::ResultsAdapter>(screen_);
    QQmlEngine::setObjectOwnership(adapter_.get(), QQmlEngine::CppOwnership);
}

} // namespace ombrivane::bench
