#include "base/Fault.h"
#include "keyed/Derived.h"
#include "keyed/Field.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace ombrivane {
namespace {

struct Counts {
    Fields fields;
    Published<int> a{fields, "a", 1};
    Published<int> b{fields, "b", 10};
    Published<bool> first{fields, "first", true};
};

class ObservableTest : public testing::Test {
protected:
    Observer log(const std::string& word) {
        return [this, word] { told.push_back(word); };
    }
    Counts model;
    std::vector<std::string> told;
};

TEST_F(ObservableTest, TellsOfEveryAssignmentInOrderOfObservationChangedOrNot) {
    const auto one = model.a.observe(log("one"));
    const auto two = model.a.observe(log("two"));
    model.a = 1;
    model.b = 5;
    EXPECT_EQ(told, (std::vector<std::string>{"one", "two"}));
    EXPECT_EQ(model.a.version(), 1U);
}

TEST_F(ObservableTest, StoresANestedAssignmentAtOnceAndTellsOfItAfterTheCurrentOne) {
    const auto copying = model.a.observe([this] {
        told.push_back("copy");
        model.b = model.a.get() * 2;
        EXPECT_EQ(model.b.get(), 14);
    });
    const auto later = model.a.observe(log("a"));
    const auto other = model.b.observe(log("b"));
    model.a = 7;
    EXPECT_EQ(told, (std::vector<std::string>{"copy", "a", "b"}));
}

TEST_F(ObservableTest, ObserversMayComeAndGoWhileOthersAreTold) {
    Subscription added;
    Subscription removed;
    Subscription self;
    const auto changing = model.a.observe([&] {
        removed.cancel();
        if (!added) added = model.a.observe(log("added"));
    });
    removed = model.a.observe(log("removed"));
    self = model.a.observe([&, text = std::string("a text too long to be stored in place")] {
        self.cancel();
        told.push_back(text.substr(0, 6));
    });
    const auto last = model.a.observe(log("last"));
    model.a = 2;
    EXPECT_EQ(told, (std::vector<std::string>{"a text", "last"}));
    told.clear();
    model.a = 3;
    EXPECT_EQ(told, (std::vector<std::string>{"last", "added"}));
}

TEST_F(ObservableTest, AnObserverThatIsLeftByAnExceptionDoesNotSilenceTheOthersForEver) {
    bool throwing = true;
    const auto bad = model.a.observe([&] {
        if (throwing) throw KeyedError("on purpose");
    });
    const auto good = model.a.observe(log("good"));
    EXPECT_THROW(model.a = 2, KeyedError);
    throwing = false;
    model.a = 3;
    EXPECT_EQ(told, (std::vector<std::string>{"good"}));
}

TEST_F(ObservableTest, ABindingIsTheFieldOfAnotherAndOutlivesIt) {
    auto owner = std::make_unique<Counts>();
    Fields own;
    Binding<int> binding(own, "mine", owner->a);
    const auto heard = owner->a.observe(log("owner"));
    binding = 5;
    EXPECT_EQ(owner->a.get(), 5);
    EXPECT_EQ(told.size(), 1U);
    owner.reset();
    binding = 6;
    EXPECT_EQ(binding.get(), 6);
    EXPECT_EQ(told.size(), 2U);
}

TEST_F(ObservableTest, ADerivedValueFollowsWhatItReadLastAndTellsOfDifferencesOnly) {
    Derived<int> chosen(model.fields, "chosen", [&] { return (model.first ? model.a : model.b).get() / 10; });
    const auto heard = chosen.observe([&] { told.push_back(std::to_string(chosen.get())); });
    model.a = 5; // 0 as before
    model.b = 70;
    EXPECT_TRUE(told.empty());
    model.first = false;
    model.a = 90; // not read any more
    model.b = 80;
    EXPECT_EQ(told, (std::vector<std::string>{"7", "8"}));
}

TEST_F(ObservableTest, NobodySeesHalfAnUpdateAndADiamondTellsOnce) {
    Derived<int> twice(model.fields, "twice", [&] { return model.a.get() * 2; });
    Derived<int> next(model.fields, "next", [&] { return model.a.get() + 1; });
    Derived<int> sum(model.fields, "sum", [&] { return twice.get() + next.get(); });
    const auto early = model.a.observe([&] { EXPECT_EQ(sum.get(), model.a.get() * 3 + 1); });
    const auto heard = sum.observe([&] { told.push_back(sum.read().dump()); });
    const auto also = twice.observe([&] { EXPECT_EQ(twice.get(), model.a.get() * 2); });
    model.a = 4;
    model.a = 5;
    EXPECT_EQ(told, (std::vector<std::string>{"13", "16"}));
}

TEST_F(ObservableTest, AStepIsOneChangeToWhatIsComputedAndToWhoeverShowsIt) {
    const auto before = setFaultHandler([](const std::string&) {});
    // Of two fields that belong together, the one is meaningless while the other is not assigned yet.
    Derived<int> difference(model.fields, "difference", [&] {
        if (model.a > model.b) fatalFault("computed from the middle of a step");
        return model.b - model.a;
    });
    const auto field = model.a.observe(log("assigned"));
    const auto computed = difference.observe(log("computed"));
    const auto page =
        model.a.observe(settled([&] { told.push_back("shown " + std::to_string(difference.get())); }));
    auto leaving = std::make_unique<Subscription>(model.b.observe(settled(log("left"))));
    EXPECT_TRUE(guarded([&] {
        model.a = 50;
        guarded([&] { model.a = 60; }); // a step within a step
        model.b = 61;
        EXPECT_EQ(told, (std::vector<std::string>{"assigned", "assigned"}));
        leaving.reset();
    }));
    EXPECT_EQ(told, (std::vector<std::string>{"assigned", "assigned", "computed", "shown 1"}));
    told.clear();
    EXPECT_FALSE(guarded([&] {
        model.a = 0;
        fatalFault("on purpose");
    }));
    EXPECT_EQ(told.size(), 3U) << "what a step did before its fault is shown";
    setFaultHandler(before);
}

TEST_F(ObservableTest, ADerivedValueNobodyObservesIsNotComputed) {
    int computed = 0;
    Derived<int> counted(model.fields, "counted", [&] { return ++computed + model.a.get() * 100; });
    model.a = 2;
    EXPECT_EQ(computed, 0);
    auto heard = counted.observe([] {});
    model.a = 3;
    EXPECT_EQ(computed, 2);
    heard.cancel();
    model.a = 4;
    model.a = 5;
    EXPECT_EQ(computed, 2);
    heard = counted.observe(log("again"));
    model.a = 6;
    EXPECT_EQ(told.size(), 1U) << "an observer that comes later is told again";
}

TEST_F(ObservableTest, AValueReadInsideOfAnObserverIsNoSourceOfTheValueBeingDerived) {
    const auto reading = model.a.observe([&] { (void)model.b.get(); });
    Derived<int> odd(model.fields, "odd", [&] {
        model.a.set(model.a.get());
        return model.a.get();
    });
    const auto subscriptions = Observable::track([&] { (void)odd.get(); }, log("changed"));
    EXPECT_EQ(subscriptions.size(), 1U);
    model.b = 2;
    EXPECT_TRUE(told.empty());
}

struct Everything {
    Fields fields;
    Published<bool> flag{fields, "flag", true};
    Published<int> count{fields, "count", 3};
    Published<double> price{fields, "price", 1.5};
    Published<std::string> text{fields, "text", "before"};
    Published<std::optional<std::string>> phone{fields, "phone", "1"};
    Published<std::vector<int>> list{fields, "list", {1, 2}};
    Published<Uuid> id{fields, "id", *Uuid::parse("00000000-0000-4000-8000-000000000000")};
    Published<Date> date{fields, "date", *parseIso("2026-01-01")};
    Derived<int> total{fields, "total", [this] { return count.get(); }};
};

TEST(Fields, TakeValuesOfTheirOwnFormByKeyAndRefuseOthersWithoutAChange) {
    struct Case {
        const char* key;
        const char* json;
        const char* result; ///< nullptr: refused
    };
    const Case cases[] = {
        {"flag", "false", "false"},
        {"flag", "0", nullptr},
        {"flag", "\"true\"", nullptr},
        {"count", "-7", "-7"},
        {"count", "7.5", nullptr},
        {"count", "true", nullptr},
        {"price", "2", "2.0"},
        {"price", "\"2\"", nullptr},
        {"text", "\"\"", "\"\""},
        {"text", "null", nullptr},
        {"phone", "null", "null"},
        {"phone", "\"98\"", "\"98\""},
        {"phone", "98", nullptr},
        {"list", "[]", "[]"},
        {"list", "[1,\"2\"]", nullptr},
        {"list", "{}", nullptr},
        {"id", "\"abcdef00-0000-4000-8000-000000000001\"", "\"ABCDEF00-0000-4000-8000-000000000001\""},
        {"id", "\"abcdef00\"", nullptr},
        {"date", "\"2026-11-21\"", "\"2026-11-21T00:00:00Z\""},
        {"date", "\"21.11.2026\"", nullptr},
        {"total", "4", nullptr},
    };
    for (const auto& [key, json, result] : cases) {
        SCOPED_TRACE(std::string(key) + " = " + json);
        Everything model;
        Member* member = model.fields.find(key);
        ASSERT_NE(member, nullptr);
        const Json before = member->read();
        int told = 0;
        const auto heard = member->observe([&] { ++told; });
        if (result != nullptr) {
            member->write(Json::parse(json));
            EXPECT_EQ(member->read().dump(), result);
        } else {
            EXPECT_THROW(member->write(Json::parse(json)), KeyedError);
            EXPECT_EQ(member->read(), before);
        }
        EXPECT_EQ(told, result != nullptr ? 1 : 0);
    }
}

TEST(Fields, AreReadTogetherInDeclaredOrderWithTheModelsBelow) {
    Counts inner;
    Fields outer;
    Published<std::string> title{outer, "title", "t"};
    Model model(outer, "inner", inner.fields);
    EXPECT_EQ(readAll(outer).dump(), R"({"title":"t","inner":{"a":1,"b":10,"first":true}})");
    EXPECT_EQ(outer.find("inner")->model()->find("b")->read(), Json(10));
    EXPECT_EQ(outer.find("Title"), nullptr);
    EXPECT_THROW(outer.find("title")->trigger({}), KeyedError);
    EXPECT_THROW((void)outer.find("inner")->observe([] {}), KeyedError);
}

} // namespace
} // namespace ombrivane
