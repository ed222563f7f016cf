#include "adapters/RowsModel.h"

#include "adapters/PageTable.h"
#include "words/Words.h"

#include <algorithm>
#include <unordered_set>

namespace ombrivane::view {
namespace {

constexpr int rowRole = Qt::UserRole + 1;

} // namespace

RowsModel::RowsModel(std::shared_ptr<Screen> owner, Rows& rows) :
    owner_(std::move(owner)),
    rows_(rows),
    identities_(rows.identities()),
    watch_(rows.observe([this] { follow(); })),
    language_(Words::shared().observe(settled([this] { speakAgain(); }))) {}

QHash<int, QByteArray> RowsModel::roleNames() const { return {{rowRole, "row"}}; }

QVariant RowsModel::data(const QModelIndex& index, int role) const {
    const auto position = static_cast<std::size_t>(index.row());
    if (role != rowRole || !index.isValid() || position >= rows_.size()) return {};
    auto adapter = makeAdapter(rows_.row(position));
    QObject* object = adapter.release();
    // The delegate's engine owns the row from here. It may let it go long after the delegate; no row, with
    // the screens that it holds, is to outlive the list.
    QQmlEngine::setObjectOwnership(object, QQmlEngine::JavaScriptOwnership);
    connect(this, &QObject::destroyed, object, &QObject::deleteLater);
    return QVariant::fromValue(object);
}

int RowsModel::positionOf(const QString& identity) const {
    const auto found =
        std::find_if(identities_.begin(),
                     identities_.end(),
                     [text = identity.toStdString()](const auto& each) { return textOf(each) == text; });
    return found == identities_.end() ? -1 : static_cast<int>(found - identities_.begin());
}

void RowsModel::follow() {
    const auto next = rows_.identities();
    if (next == identities_) return;
    const int former = count();
    if (sharesNone(next)) {
        exchange(next);
    } else {
        removeMissing(next);
        insertNew(next);
    }
    if (count() != former) emit countChanged();
}

void RowsModel::speakAgain() {
    if (count() > 0) emit dataChanged(index(0), index(count() - 1), {rowRole});
}

bool RowsModel::sharesNone(const std::vector<RowIdentity>& next) const {
    const std::unordered_set<RowIdentity> present(identities_.begin(), identities_.end());
    return std::none_of(
        next.begin(), next.end(), [&](const auto& identity) { return present.contains(identity); });
}

void RowsModel::exchange(const std::vector<RowIdentity>& next) {
    const std::size_t kept = std::min(identities_.size(), next.size());
    if (identities_.size() > kept) {
        beginRemoveRows({}, static_cast<int>(kept), count() - 1);
        identities_.resize(kept);
        endRemoveRows();
    }
    std::copy_n(next.begin(), kept, identities_.begin());
    if (kept > 0) emit dataChanged(index(0), index(static_cast<int>(kept) - 1), {rowRole});
    if (next.size() > kept) {
        beginInsertRows({}, static_cast<int>(kept), static_cast<int>(next.size()) - 1);
        identities_ = next;
        endInsertRows();
    }
}

void RowsModel::removeMissing(const std::vector<RowIdentity>& next) {
    const std::unordered_set<RowIdentity> kept(next.begin(), next.end());
    for (std::size_t end = identities_.size(); end > 0;) {
        if (kept.contains(identities_[end - 1])) {
            --end;
            continue;
        }
        std::size_t begin = end;
        while (begin > 0 && !kept.contains(identities_[begin - 1]))
            --begin;
        beginRemoveRows({}, static_cast<int>(begin), static_cast<int>(end) - 1);
        identities_.erase(identities_.begin() + static_cast<std::ptrdiff_t>(begin),
                          identities_.begin() + static_cast<std::ptrdiff_t>(end));
        endRemoveRows();
        end = begin;
    }
}

void RowsModel::insertNew(const std::vector<RowIdentity>& next) {
    for (std::size_t i = 0; i < next.size(); ++i) {
        if (i < identities_.size() && identities_[i] == next[i]) continue;
        const auto from =
            std::find(identities_.begin() + static_cast<std::ptrdiff_t>(std::min(i, identities_.size())),
                      identities_.end(),
                      next[i]);
        if (from != identities_.end()) {
            const auto position = static_cast<int>(from - identities_.begin());
            beginMoveRows({}, position, position, {}, static_cast<int>(i));
            std::rotate(identities_.begin() + static_cast<std::ptrdiff_t>(i), from, from + 1);
            endMoveRows();
            continue;
        }
        std::size_t end = i + 1;
        const std::unordered_set<RowIdentity> present(identities_.begin(), identities_.end());
        while (end < next.size() && !present.contains(next[end]))
            ++end;
        beginInsertRows({}, static_cast<int>(i), static_cast<int>(end) - 1);
        identities_.insert(identities_.begin() + static_cast<std::ptrdiff_t>(i),
                           next.begin() + static_cast<std::ptrdiff_t>(i),
                           next.begin() + static_cast<std::ptrdiff_t>(end));
        endInsertRows();
        i = end - 1;
    }
    // A service may tell the same twice, and once the next time.
    if (identities_.size() <= next.size()) return;
    beginRemoveRows({}, static_cast<int>(next.size()), count() - 1);
    identities_.resize(next.size());
    endRemoveRows();
}

} // namespace ombrivane::view
