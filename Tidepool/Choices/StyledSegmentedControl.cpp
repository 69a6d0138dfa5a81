#include "Tidepool/Choices/StyledSegmentedControl.h"

#include "Platform/Controls/Menu.h"
#include "Tidepool/Choices/StyledSegmentedControlAccessibility.h"

#include <QMetaMethod>

#include <algorithm>

namespace tidepool {

StyledSegmentedControl::StyledSegmentedControl(const QStringList& labels, QWidget* parent)
    : CellControl(std::make_unique<StyledSegmentedCell>(), parent) {
    installStyledSegmentedControlAccessibility();
    setFocusPolicy(Qt::TabFocus);
    cell().setSegmentCount(static_cast<int>(labels.size()));
    for (int i = 0; i < cell().segmentCount(); ++i)
        cell().setLabel(labels[i], i);
    m_hold.setSingleShot(true);
    connect(&m_hold, &QTimer::timeout, this, [this] {
        const int segment = m_pressed;
        if (!isTracking())
            return;
        m_tracking->interrupt();
        if (segment < cell().segmentCount())
            openMenu(segment);
    });
}

StyledSegmentedControl::~StyledSegmentedControl() {
    m_tracking.reset(); // while its end can still be drawn
    if (m_openMenu != nullptr)
        m_openMenu->close();
}

QRectF StyledSegmentedControl::segmentFrame(int segment) const {
    return cell().segmentFrames(QRectF(rect()), context())[segment];
}

int StyledSegmentedControl::segmentAt(QPointF point) const {
    return cell().segmentAt(point, QRectF(rect()), context());
}

QSizeF StyledSegmentedControl::intrinsicContentSize() const {
    const QSizeF natural = CellControl::intrinsicContentSize();
    const platform::Image* const bezel = cell().style().bezelImage(StyledControlState::defaultState);
    if (bezel == nullptr)
        return natural;
    return {std::max(bezel->size().width(), natural.width()), bezel->size().height()};
}

std::optional<qreal> StyledSegmentedControl::baseline(qreal height) const {
    platform::PreparedText text;
    text.set({}, cell().style().font());
    return text.baseline(QRectF(0, 0, width(), height));
}

void StyledSegmentedControl::click(int segment) {
    if (!canUse(segment))
        return;
    if (onlyOpensMenu(segment)) {
        openMenu(segment);
        return;
    }
    cell().select(segment);
    const QPointer<StyledSegmentedControl> self(this);
    Q_EMIT segmentClicked(segment);
    if (self != nullptr)
        Control::sendAction();
}

bool StyledSegmentedControl::onlyOpensMenu(int segment) const {
    static const QMetaMethod clicked = QMetaMethod::fromSignal(&StyledSegmentedControl::segmentClicked);
    return cell().segment(segment).menu != nullptr && !action() && !isSignalConnected(clicked) &&
           cell().trackingMode() == SegmentTracking::momentary;
}

void StyledSegmentedControl::openMenu(int segment) {
    QMenu* const menu = cell().segment(segment).menu;
    if (menu == nullptr || !canUse(segment))
        return;
    const QRect frame = segmentFrame(segment).toRect();
    const bool isRightToLeft = layoutDirection() == Qt::RightToLeft;
    connect(menu, &QMenu::aboutToHide, this, &StyledSegmentedControl::menuClosed, Qt::UniqueConnection);
    connect(menu, &QObject::destroyed, this, &StyledSegmentedControl::menuClosed, Qt::UniqueConnection);
    m_openMenu = menu;
    cell().setHighlightedSegment(segment);
    platform::popUp(*menu, nullptr, {isRightToLeft ? frame.x() + frame.width() : frame.x(), height()}, *this);
    if (m_openMenu != nullptr && !m_openMenu->isVisible())
        menuClosed(); // it has not opened
}

void StyledSegmentedControl::menuClosed() {
    m_openMenu = nullptr;
    cell().setHighlightedSegment(-1);
}

} // namespace tidepool
