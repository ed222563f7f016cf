#include "items/StageModel.h"

#include "adapters/EntryAdapter.h"
#include "adapters/PageTable.h"
#include "base/Fault.h"

#include <QQmlIncubationController>

#include <algorithm>

namespace ombrivane::view {
namespace {

enum Role { screenRole = Qt::UserRole + 1, pageRole, presentationRole };

} // namespace

void StageModel::follow(Navigator* navigator) {
    navigator_ = navigator;
    watch_ = navigator != nullptr ? navigator->observe([this] { update(); }) : Subscription();
    update();
}

QHash<int, QByteArray> StageModel::roleNames() const {
    return {{screenRole, "screen"}, {pageRole, "page"}, {presentationRole, "presentation"}};
}

QVariant StageModel::data(const QModelIndex& index, int role) const {
    const auto position = static_cast<std::size_t>(index.row());
    if (!index.isValid() || position >= entries_.size()) return {};
    const Entry& entry = entries_[position];
    switch (role) {
    case screenRole:
        return QVariant::fromValue<QObject*>(entry.adapter.get());
    case pageRole:
        return pageOf(*entry.adapter->screen());
    case presentationRole:
        return static_cast<int>(entry.presentation);
    default:
        return {};
    }
}

int StageModel::firstInView() const {
    int first = count() - 1;
    while (first > 0 && entries_[static_cast<std::size_t>(first)].presentation != Presentation::push)
        --first;
    return std::max(first, 0);
}

bool StageModel::back() {
    bool went = false;
    guarded([&] { went = navigator_ != nullptr && navigator_->back(); });
    return went;
}

/// A list makes rows ahead in idle time. One that is left half made as its page goes is complained of by the
/// toolkit.
void StageModel::finishRows() {
    QQmlIncubationController* making = engine_ ? engine_->incubationController() : nullptr;
    constexpr int milliseconds = 5; // at a time; a row takes less
    constexpr int enough = 100;     // of them, should one ever ask for another
    for (int i = 0; making != nullptr && making->incubatingObjectCount() > 0 && i < enough; ++i)
        making->incubateFor(milliseconds);
}

void StageModel::update() {
    static const std::vector<Navigator::Entry> nothing;
    const auto& stack = navigator_ != nullptr ? navigator_->stack() : nothing;
    std::size_t same = 0;
    while (same < stack.size() && same < entries_.size() &&
           stack[same].screen == entries_[same].adapter->screen()) {
        ++same;
    }
    if (same < entries_.size()) {
        finishRows();
        if (auto* entry = qobject_cast<EntryAdapter*>(entries_[same].adapter.get())) emit entry->left();
        beginRemoveRows({}, static_cast<int>(same), count() - 1);
        entries_.resize(same);
        endRemoveRows();
    }
    if (same < stack.size()) {
        beginInsertRows({}, static_cast<int>(same), static_cast<int>(stack.size()) - 1);
        for (std::size_t i = same; i < stack.size(); ++i) {
            auto adapter = deletedLater(makeAdapter(stack[i].screen));
            QQmlEngine::setObjectOwnership(adapter.get(), QQmlEngine::CppOwnership);
            entries_.push_back({std::move(adapter), stack[i].presentation});
        }
        endInsertRows();
    }
    emit changed();
}

} // namespace ombrivane::view
