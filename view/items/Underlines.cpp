#include "items/Underlines.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace ombrivane::view {

Underlines::Underlines(QQuickItem* parent) : QQuickPaintedItem(parent) {
    connect(this, &Underlines::changed, this, [this] { update(); });
}

void Underlines::paint(QPainter* painter) {
    if (stretches_.isEmpty()) return;
    const QFontMetricsF metrics(font_);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setAlignment(Qt::Alignment::fromInt(alignment_));
    QTextLayout layout(text_, font_);
    layout.setTextOption(option);
    layout.beginLayout();
    double top = origin_.y();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width() - origin_.x());
        const double under = top + line.ascent() + metrics.underlinePos();
        const int end = line.textStart() + line.textLength();
        for (qsizetype i = 0; i + 1 < stretches_.size(); i += 2) {
            const int from = std::max(stretches_[i], line.textStart());
            const int to = std::min(stretches_[i] + stretches_[i + 1], end);
            if (from >= to) continue;
            const double left = line.cursorToX(from), right = line.cursorToX(to);
            painter->fillRect(
                QRectF(origin_.x() + left, under, right - left, std::max(strength_, metrics.lineWidth()))
                    .normalized(),
                color_);
        }
        top += line.height() * lineHeight_;
    }
    layout.endLayout();
}

} // namespace ombrivane::view
