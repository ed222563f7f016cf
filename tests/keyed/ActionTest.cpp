#include "keyed/Action.h"
#include "keyed/Field.h"
#include "keyed/Navigator.h"
#include "keyed/Rows.h"

#include "fakes/World.h"

#include <gtest/gtest.h>

namespace ombrivane {
namespace {

class Row final : public Screen {
public:
    explicit Row(std::string name) : Screen("Row"), title(fields, "title", std::move(name)) {}
    Published<std::string> title;
    Published<int> taps{fields, "taps"};
    Action<> tap{*this, "tap", [this] { taps = taps.get() + 1; }};
};

class Form final : public Screen {
public:
    Form() : Screen("Form") {}
    Published<bool> isOpen{fields, "isOpen", true};
    Published<std::string> written{fields, "written"};
    Published<std::vector<std::string>> names{fields, "names", {"x", "y"}};
    std::function<void()> during;

    Action<int, std::string> write{*this,
                                   "write",
                                   [this](int count, const std::string& word) {
                                       if (during) during();
                                       written = word + std::to_string(count);
                                   },
                                   [this] { return isOpen.get(); }};
    Rows rows{*this,
              "rows",
              [this] { return isOpen.get() ? names.get().size() : 0; },
              [this](std::size_t index) { return std::make_shared<Row>(names.get().at(index)); },
              [this] { return std::vector<RowIdentity>(names.get().begin(), names.get().end()); }};
    Rows plain{
        *this, "plain", [] { return std::size_t(3); }, [](std::size_t) { return std::make_shared<Row>(""); }};
};

class ActionTest : public testing::Test {
protected:
    fakes::World world;
    std::shared_ptr<Form> form = std::make_shared<Form>();
    Member& write = *form->fields.find("write");
};

TEST_F(ActionTest, RunsByKeyWithArgumentsOfItsOwnFormOnly) {
    write.trigger({2, "a"});
    EXPECT_EQ(form->written.get(), "a2");
    const std::vector<std::vector<Json>> refused = {{}, {2}, {2, "a", 3}, {"a", 2}, {2.5, "a"}};
    for (const auto& arguments : refused) {
        EXPECT_THROW(write.trigger(arguments), KeyedError) << Json(arguments).dump();
    }
    EXPECT_EQ(form->written.get(), "a2");
    EXPECT_EQ(form->written.version(), 1U);
    EXPECT_THROW(write.write(true), KeyedError);
}

TEST_F(ActionTest, DoesNothingWhileDisabledAndTellsWhenThatChanges) {
    std::vector<std::string> told;
    const auto heard = write.observe([&] { told.push_back(write.read().dump()); });
    form->isOpen = false;
    write.trigger({1, "b"});
    EXPECT_EQ(form->written.get(), "");
    form->isOpen = false;
    form->isOpen = true;
    write.trigger({1, "b"});
    EXPECT_EQ(form->written.get(), "b1");
    EXPECT_EQ(told, (std::vector<std::string>{R"({"enabled":false})", R"({"enabled":true})"}));

    // A control is drawn by the condition alone: nothing tells when what lay over its screen has gone.
    form->setHost({});
    form->isOpen = false;
    EXPECT_FALSE(form->write.isAllowed());
    form->isOpen = true;
    EXPECT_EQ(told.size(), 4U);
    EXPECT_TRUE(form->write.isAllowed() && !form->write.isEnabled());
}

TEST_F(ActionTest, AFaultInsideStaysInside) {
    form->during = [] { fatalFault("on purpose"); };
    write.trigger({1, "c"});
    EXPECT_EQ(form->written.get(), "");
    ASSERT_EQ(world.takeFaults().size(), 1U);
    form->during = nullptr;
    write.trigger({1, "c"});
    EXPECT_EQ(form->written.get(), "c1");
}

TEST_F(ActionTest, HoldsItsScreenUntilItIsDone) {
    const std::weak_ptr<Form> weak = form;
    bool alive = false;
    form->during = [&] {
        form.reset();
        alive = !weak.expired();
    };
    form->write(1, "d");
    EXPECT_TRUE(alive);
    EXPECT_TRUE(weak.expired());
}

TEST_F(ActionTest, RowsAreScreensOfTheirOwnThatTakeInputWithTheirScreen) {
    EXPECT_EQ(form->rows.read(), Json(2));
    const auto row = std::static_pointer_cast<Row>(form->rows.row(1));
    EXPECT_EQ(row->title.get(), "y");
    EXPECT_NE(form->rows.row(1), row) << "a row is made when it is drawn";
    EXPECT_EQ(textOf(form->rows.identities().at(1)), "y");
    EXPECT_EQ(textOf(form->plain.identities().at(2)), "2");
    EXPECT_THROW((void)form->rows.row(2), KeyedError);

    row->tap();
    EXPECT_EQ(row->taps.get(), 1);
    { Navigator stack(form); }
    form.reset();
    row->tap();
    EXPECT_EQ(row->taps.get(), 1) << "the list is gone";
}

TEST_F(ActionTest, RowsTellOfEveryAssignmentOfWhatTheyCount) {
    int told = 0;
    auto heard = form->rows.observe([&] { ++told; });
    form->names = {"y", "x"}; // as many, in another order
    form->names = {};
    EXPECT_EQ(told, 2);
    EXPECT_THROW((void)form->rows.row(0), KeyedError);
    form->isOpen = false;
    form->names = {"y"}; // not counted now
    EXPECT_EQ(told, 3);
    form->isOpen = true;
    form->names = {"x"};
    EXPECT_EQ(told, 5);
    heard.cancel();
    form->names = {"z"};
    EXPECT_EQ(told, 5);
}

} // namespace
} // namespace ombrivane
