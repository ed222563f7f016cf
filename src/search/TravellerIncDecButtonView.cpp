#include "search/TravellerIncDecButtonView.h"

namespace ombrivane {
namespace {

struct StepperWords {
    const char* category;
    const char* detail;
};

StepperWords wordingOf(TravellerKind kind) {
    switch (kind) {
    case TravellerKind::adult:
        return {"Adult", "12 years and above"};
    case TravellerKind::child:
        return {"Child", "2 - 12 years"};
    case TravellerKind::infant:
        break;
    }
    return {"Infant", "below 2 years"};
}

} // namespace

TravellerIncDecButtonView::TravellerIncDecButtonView(TravellerKind kind, const Field<std::string>& adults,
                                                     const Field<std::string>& children,
                                                     const Field<std::string>& infants) :
    Screen("TravellerIncDecButtonView"),
    adult(fields, "adult", adults),
    child(fields, "child", children),
    infant(fields, "infant", infants),
    category(fields, "category", [kind] { return std::string(wordingOf(kind).category); }),
    categoryDetail(fields, "categoryDetail", [kind] { return std::string(wordingOf(kind).detail); }),
    numberValue(fields, "numberValue",
                [this] {
                    if (kind_ == TravellerKind::adult) return adult.get();
                    return kind_ == TravellerKind::child ? child.get() : infant.get();
                }),
    mayIncrement(fields, "mayIncrement", [this] { return counts().mayIncrement(kind_); }),
    mayDecrement(fields, "mayDecrement", [this] { return counts().mayDecrement(kind_); }),
    increment(*this, "increment",
              [this] {
                  auto next = counts();
                  next.increment(kind_);
                  write(next);
              }),
    decrement(*this, "decrement",
              [this] {
                  auto next = counts();
                  next.decrement(kind_);
                  write(next);
              }),
    kind_(kind) {}

TravellerCounts TravellerIncDecButtonView::counts() const {
    return TravellerCounts::from(adult, child, infant);
}

void TravellerIncDecButtonView::write(const TravellerCounts& next) {
    const TravellerCounts now = counts();
    if (next.infant != now.infant) infant = std::to_string(next.infant);
    if (next.adult != now.adult) adult = std::to_string(next.adult);
    if (next.child != now.child) child = std::to_string(next.child);
}

} // namespace ombrivane
