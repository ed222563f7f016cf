#pragma once

#include "dates/DateFormatter.h"
#include "keyed/Action.h"
#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "keyed/Screen.h"
#include "search/TravellerRules.h"
#include "words/Words.h"

#include <cstdlib>
#include <string>

namespace ombrivane {

/// The stepper of one kind of travellers.
class TravellerIncDecButtonView final : public Screen {
public:
    TravellerIncDecButtonView(TravellerKind kind, const Field<std::string>& adults,
                              const Field<std::string>& children, const Field<std::string>& infants) :
        Screen("TravellerIncDecButtonView"),
        adult(fields, "adult", adults),
        child(fields, "child", children),
        infant(fields, "infant", infants),
        kind_(kind) {}

    Binding<std::string> adult;
    Binding<std::string> child;
    Binding<std::string> infant;
    Derived<std::string> category{fields, "category", [this] { return said(label().category); }};
    Derived<std::string> categoryDetail{fields, "categoryDetail", [this] { return said(label().detail); }};
    Derived<std::string> numberValue{fields, "numberValue", [this] { return count().get(); }};
    /// The same as the customer reads it.
    Derived<std::string> number{
        fields, "number", [this] { return formatNumber(std::atoi(count()->c_str())); }};
    /// Whether the controls are drawn as active.
    Derived<bool> mayIncrement{fields, "mayIncrement", [this] { return counts().mayIncrement(kind_); }};
    Derived<bool> mayDecrement{fields, "mayDecrement", [this] { return counts().mayDecrement(kind_); }};
    Action<> increment{*this, "increment", [this] {
                           auto next = counts();
                           next.increment(kind_);
                           write(next);
                       }};
    Action<> decrement{*this, "decrement", [this] {
                           auto next = counts();
                           next.decrement(kind_);
                           write(next);
                       }};

private:
    struct Label {
        Text category;
        Text detail;
    };

    Label label() const;
    /// The count that this stepper changes.
    const Field<std::string>& count() const;
    TravellerCounts counts() const;
    void write(const TravellerCounts& counts);

    const TravellerKind kind_;
};

} // namespace ombrivane
