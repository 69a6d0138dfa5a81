#include "Platform/Controls/AlignedBoxLayout.h"

#include "Platform/Controls/Control.h"

#include <QFontMetricsF>
#include <QLabel>
#include <QWidgetItem>

#include <algorithm>
#include <cmath>

namespace platform {

namespace {

/// The line that the text of a widget of `height` stands on, from its upper edge.
std::optional<qreal> baseline(const QWidget& widget, int height) {
    if (const auto* const control = dynamic_cast<const Control*>(&widget))
        return control->baseline(height);
    const auto* const label = qobject_cast<const QLabel*>(&widget);
    if (label == nullptr || label->text().isEmpty())
        return std::nullopt;
    const QFontMetricsF metrics(label->font());
    return (height - metrics.height()) / 2 + metrics.ascent();
}

/// A widget in a layout by its alignment rectangle.
class AlignedItem : public QWidgetItem {
public:
    using QWidgetItem::QWidgetItem;

    QSize sizeHint() const override { return inner(QWidgetItem::sizeHint()); }

    QSize minimumSize() const override { return inner(QWidgetItem::minimumSize()); }

    QSize maximumSize() const override { return inner(QWidgetItem::maximumSize()); }

    QRect geometry() const override { return QWidgetItem::geometry().marginsRemoved(insets()); }

    void setGeometry(const QRect& rect) override {
        QWidgetItem::setGeometry(rect);
        if (!insets().isNull())
            wid->setGeometry(wid->geometry().marginsAdded(insets()));
    }

    /// Above and below the line that the text stands on; absent if it is not aligned by that.
    std::optional<std::pair<int, int>> extents() const {
        if (wid->isHidden() || (alignment() & Qt::AlignVertical_Mask) != Qt::AlignBaseline)
            return std::nullopt;
        const int height = QWidgetItem::sizeHint().height();
        const auto line = platform::baseline(*wid, height);
        if (!line)
            return std::nullopt;
        const int above = static_cast<int>(std::lround(*line)) - insets().top();
        return std::pair(above, sizeHint().height() - above);
    }

private:
    QMargins insets() const {
        const auto* const control = dynamic_cast<const Control*>(wid);
        return control != nullptr ? control->alignmentRectInsets().toMargins() : QMargins();
    }

    QSize inner(QSize size) const { return isEmpty() ? size : size.shrunkBy(insets()); }
};

/// The items of a row that stand on one line, with the height of the room above and below it.
struct Line {
    std::vector<std::pair<QLayoutItem*, int>> items; // with their height above the line
    int above = 0;
    int below = 0;
};

Line lineOf(const QBoxLayout& layout) {
    Line line;
    for (int i = 0; i < layout.count(); ++i) {
        const auto* const item = dynamic_cast<AlignedItem*>(layout.itemAt(i));
        const auto extents = item != nullptr ? item->extents() : std::nullopt;
        if (!extents)
            continue;
        line.items.emplace_back(layout.itemAt(i), extents->first);
        line.above = std::max(line.above, extents->first);
        line.below = std::max(line.below, extents->second);
    }
    return line;
}

QSize around(const QBoxLayout& layout, QSize size) {
    const QMargins margins = layout.contentsMargins();
    const Line line = lineOf(layout);
    return size.expandedTo({0, line.above + line.below + margins.top() + margins.bottom()});
}

} // namespace

void AlignedBoxLayout::addWidget(QWidget* widget, int stretch, Qt::Alignment alignment) {
    const bool isRow = direction() == LeftToRight || direction() == RightToLeft;
    if (isRow && (alignment & Qt::AlignVertical_Mask) == 0)
        alignment |= Qt::AlignBaseline;
    addChildWidget(widget);
    auto* const item = new AlignedItem(widget);
    item->setAlignment(alignment);
    addItem(item);
    setStretch(count() - 1, stretch);
}

QSize AlignedBoxLayout::sizeHint() const {
    return around(*this, QBoxLayout::sizeHint());
}

QSize AlignedBoxLayout::minimumSize() const {
    return around(*this, QBoxLayout::minimumSize());
}

void AlignedBoxLayout::setGeometry(const QRect& rect) {
    QBoxLayout::setGeometry(rect);
    const Line line = lineOf(*this);
    const QRect room = contentsRect();
    const int top = room.top() + (room.height() - line.above - line.below) / 2;
    for (const auto& [item, above] : line.items) {
        const QRect place = item->geometry();
        item->setGeometry({place.left(), top + line.above - above, place.width(), item->sizeHint().height()});
    }
}

} // namespace platform
