#include "fakes/World.h"
#include "parts/CustomRadioButtonFieldView.h"
#include "search/TravellerBottomSheetView.h"
#include "search/TravellerIncDecButtonView.h"

#include <gtest/gtest.h>

#include <random>

namespace ombrivane {
namespace {

enum : std::size_t { adults, children, infants };

class TravellerTest : public testing::Test {
protected:
    std::shared_ptr<TravellerIncDecButtonView> stepper(std::size_t row) const {
        return std::static_pointer_cast<TravellerIncDecButtonView>(sheet->steppers.row(row));
    }
    std::shared_ptr<CustomRadioButtonFieldView> cabin(std::size_t row) const {
        return std::static_pointer_cast<CustomRadioButtonFieldView>(sheet->cabins.row(row));
    }
    void set(const char* adult, const char* child, const char* infant) {
        model.adult = adult;
        model.child = child;
        model.infant = infant;
    }
    std::string counts() const { return model.adult.get() + model.child.get() + model.infant.get(); }

    fakes::World world;
    MainViewModel& model = MainViewModel::shared();
    std::shared_ptr<TravellerBottomSheetView> sheet = std::make_shared<TravellerBottomSheetView>(model);
};

TEST_F(TravellerTest, AStepperKeepsWithinTheRules) {
    struct Case {
        const char* before[3];
        std::size_t row;
        int step;
        const char* after;
    };
    const Case cases[] = {
        {{"1", "0", "0"}, adults, +1, "200"},   {{"1", "0", "0"}, adults, -1, "100"},
        {{"1", "0", "0"}, children, +1, "110"}, {{"1", "0", "0"}, children, -1, "100"},
        {{"1", "0", "0"}, infants, +1, "101"},  {{"1", "0", "0"}, infants, -1, "100"},
        {{"1", "0", "1"}, infants, +1, "101"},  {{"2", "0", "1"}, infants, +1, "202"},
        {{"3", "0", "3"}, adults, -1, "202"},   {{"3", "0", "2"}, adults, -1, "202"},
        {{"1", "0", "1"}, adults, -1, "101"},   {{"2", "3", "2"}, adults, -1, "131"},
        {{"5", "4", "0"}, adults, +1, "540"},   {{"5", "4", "0"}, children, +1, "540"},
        {{"5", "4", "0"}, infants, +1, "540"},  {{"8", "0", "0"}, adults, +1, "900"},
        {{"9", "0", "0"}, adults, +1, "900"},   {{"4", "1", "3"}, infants, +1, "414"},
        {{"1", "8", "0"}, children, -1, "170"}, {{"2", "0", "1"}, infants, -1, "200"},
    };
    for (const auto& [before, row, step, after] : cases) {
        set(before[0], before[1], before[2]);
        const std::string start = counts();
        const auto control = stepper(row);
        const bool active = (step > 0 ? control->mayIncrement : control->mayDecrement).get();
        (step > 0 ? control->increment : control->decrement)();
        EXPECT_EQ(counts(), after) << start << " row " << row << " step " << step;
        EXPECT_EQ(active, start != after) << "the colour tells: " << start << " row " << row;
    }
}

TEST_F(TravellerTest, NoWalkOverTheControlsLeavesTheRules) {
    std::mt19937 random(20261121);
    for (int step = 0; step < 5000; ++step) {
        const auto control = stepper(random() % 3);
        const std::string before = counts();
        const bool up = random() % 5 < 3;
        const bool active = (up ? control->mayIncrement : control->mayDecrement).get();
        (up ? control->increment : control->decrement)();
        const auto now = TravellerCounts::from(model.adult, model.child, model.infant);
        ASSERT_TRUE(now.adult >= 1 && now.adult <= 9 && now.child >= 0 && now.infant >= 0 &&
                    now.infant <= now.adult && now.total() <= 9)
            << before << " -> " << counts();
        ASSERT_EQ(active, counts() != before) << before;
    }
}

TEST_F(TravellerTest, ACountThatIsNoNumberIsAFault) {
    model.child = "many";
    EXPECT_THROW(stepper(adults)->mayIncrement.get(), Fault);
    sheet->done();
    EXPECT_EQ(world.takeFaults().size(), 2U);
}

TEST_F(TravellerTest, DoneWritesTheTotalAndTheClass) {
    sheet->done();
    EXPECT_EQ(model.travellerText.get(), "1, All Class");
    set("3", "2", "1");
    cabin(1)->tap();
    EXPECT_EQ(model.travellerText.get(), "1, All Class") << "not before Done";
    sheet->done();
    EXPECT_EQ(model.travellerText.get(), "6, Premium Economy");
}

TEST_F(TravellerTest, RowsSayWhatTheyStandFor) {
    std::string rows;
    for (std::size_t row = 0; row < sheet->steppers.size(); ++row)
        rows += stepper(row)->category.get() + ": " + stepper(row)->categoryDetail.get() + "; ";
    EXPECT_EQ(rows, "Adult: 12 years and above; Child: 2 - 12 years; Infant: below 2 years; ");
    std::string cabins;
    for (std::size_t row = 0; row < sheet->cabins.size(); ++row)
        cabins += cabin(row)->id.get() + "=" + cabin(row)->label.get() +
                  (cabin(row)->isMarked.get() ? "*; " : "; ");
    EXPECT_EQ(cabins,
              "Economy=Economy; Premium Economy=Premium Economy; Business=Business; "
              "First Class=First Class; All Class=All*; ");
}

} // namespace
} // namespace ombrivane
