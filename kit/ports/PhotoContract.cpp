#include "ports/PortContract.h"

#include <thread>

namespace ombrivane::kit {
namespace {

constexpr std::chrono::milliseconds customersPatience{5000};
/// How long an answer is waited for that must not come.
constexpr std::chrono::milliseconds afterwards{300};

/// What one opening of the picker brought. Its handler holds it, so that one that is called too late is told.
struct Answers : std::enable_shared_from_this<Answers> {
    std::vector<PhotoLibrary::Picked> came;
    bool elsewhere = false;

    PhotoLibrary::Handler handler(std::thread::id main) {
        return [self = shared_from_this(), main](PhotoLibrary::Picked picked) {
            self->elsewhere = self->elsewhere || std::this_thread::get_id() != main;
            self->came.push_back(std::move(picked));
        };
    }
};

bool isPicture(const Image& image) {
    return image.width > 0 && image.height > 0 && image.points &&
           image.points->size() ==
               static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height) * 4;
}

} // namespace

Findings checkPhotoLibrary(const std::shared_ptr<PhotoLibrary>& photos, const PhotoCustomer& customer,
                           const RunUntil& runUntil) {
    if (!photos) return {"There is no photo library."};
    Findings findings;
    const auto expect = [&findings](bool holds, const std::string& sentence) {
        if (!holds) findings.push_back(sentence);
    };
    const auto main = std::this_thread::get_id();
    const auto act = [&](Answers& answers, const std::function<void()>& acts, const std::string& what) {
        const std::size_t before = answers.came.size();
        acts();
        runUntil([&] { return answers.came.size() > before; }, customersPatience);
        runUntil([] { return false; }, afterwards);
        expect(answers.came.size() > before, "present: the handler is not called when the customer " + what);
        expect(answers.came.size() <= before + 1,
               "present: the handler is called more than once when the customer " + what);
        expect(!answers.elsewhere, "present: the handler is called on another thread than the main one");
    };

    const auto opened = std::make_shared<Answers>();
    Answers& first = *opened;
    photos->present(first.handler(main));
    runUntil([] { return false; }, afterwards);
    expect(first.came.empty(), "present: the handler is called before the customer did anything");
    first.came.clear();
    act(first, customer.cancels, "cancels");
    if (!first.came.empty())
        expect(first.came.front().cancelled && !first.came.front().editedImage,
               "present: an answer without a picture is not told as cancelled, or holds a picture");
    photos->dismiss();

    const auto again = std::make_shared<Answers>();
    Answers& second = *again;
    photos->present(second.handler(main));
    act(second, customer.picks, "picks a picture");
    if (!second.came.empty()) {
        const auto& picked = second.came.front();
        expect(!picked.cancelled, "present: a picture that was picked is told as cancelled");
        expect(picked.editedImage && isPicture(*picked.editedImage),
               "present: a picture that was picked is missing, empty, or has not four bytes for each point");
    }
    photos->dismiss();
    expect(again.use_count() == 1, "dismiss: the handler is not let go");

    const auto leaving = std::make_shared<Answers>();
    photos->present(leaving->handler(main));
    customer.picks();
    photos->dismiss();
    const std::size_t told = leaving->came.size();
    runUntil([] { return false; }, afterwards);
    expect(leaving->came.size() == told, "dismiss: an answer that is on its way is told after it");

    const auto toldOfBoth = [&] { return second.came.size() + leaving->came.size(); };
    const std::size_t before = toldOfBoth();
    customer.picks();
    runUntil([] { return false; }, afterwards);
    expect(toldOfBoth() == before, "dismiss: the handler is called after it");
    return findings;
}

} // namespace ombrivane::kit
