#include "adapters/ResultsAdapter.h"

#include "adapters/PageTable.h"
#include "keyed/Link.h"

namespace ombrivane::view {

ResultsAdapter::ResultsAdapter(std::shared_ptr<Screen> results) :
    ResultsProperties(std::move(results)),
    contentScreen_(unkeyed_, "content", [this] { return core().parts().front()->screen(); }) {
    followContent();
    contentWatch_ = contentScreen_.observe([this] { followContent(); });
}

QUrl ResultsAdapter::contentPage() const { return pageOf(*contentAdapter_->screen()); }

void ResultsAdapter::followContent() {
    contentAdapter_ = deletedLater(makeAdapter(contentScreen_.get()));
    QQmlEngine::setObjectOwnership(contentAdapter_.get(), QQmlEngine::CppOwnership);
    emit contentChanged();
}

} // namespace ombrivane::view
