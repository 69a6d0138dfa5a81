// What the control does with the pointer and the keyboard.

#include "Platform/Controls/PressKey.h"
#include "Tidepool/Choices/StyledSegmentedControl.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>

namespace tidepool {

namespace {

bool asksForMenu(const QMouseEvent& press) {
    return press.button() == Qt::RightButton ||
           (press.button() == Qt::LeftButton && press.modifiers().testFlag(Qt::ControlModifier));
}

} // namespace

void StyledSegmentedControl::beginTracking(int segment) {
    m_pressed = segment;
    m_tracking = std::make_unique<platform::PointerTracking>(*this, [this](platform::PointerTracking::End) {
        m_pressed = -1;
        m_heldKey = 0;
        m_hold.stop();
        cell().setHighlightedSegment(-1);
    });
    cell().setKeySegment(segment);
    cell().setHighlightedSegment(segment);
}

void StyledSegmentedControl::endTracking(bool isInside) {
    const int segment = m_pressed;
    m_tracking->release();
    if (isInside && segment < cell().segmentCount())
        click(segment);
}

bool StyledSegmentedControl::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return CellControl::event(event);
    const auto* const help = static_cast<QHelpEvent*>(event);
    const int segment = segmentAt(help->pos());
    const QString tip = segment < 0 ? QString() : cell().segment(segment).toolTip;
    if (tip.isEmpty())
        return CellControl::event(event);
    QToolTip::showText(help->globalPos(), tip, this, segmentFrame(segment).toRect());
    return true;
}

void StyledSegmentedControl::mousePressEvent(QMouseEvent* event) {
    const int segment = segmentAt(event->position());
    if (isTracking())
        return;
    const bool hasMenu = segment >= 0 && canUse(segment) && cell().segment(segment).menu != nullptr;
    if (hasMenu && (asksForMenu(*event) || onlyOpensMenu(segment))) {
        openMenu(segment);
    } else if (event->button() != Qt::LeftButton || segment < 0 || !canUse(segment)) {
        event->ignore();
    } else {
        beginTracking(segment);
        if (hasMenu)
            m_hold.start(QApplication::doubleClickInterval());
    }
}

void StyledSegmentedControl::mouseMoveEvent(QMouseEvent* event) {
    if (!isTracking() || m_heldKey != 0) {
        event->ignore();
        return;
    }
    const int segment = segmentAt(event->position());
    cell().setHighlightedSegment(segment == m_pressed && segment >= 0 && canUse(segment) ? segment : -1);
}

void StyledSegmentedControl::mouseReleaseEvent(QMouseEvent* event) {
    if (isTracking() && m_heldKey == 0 && event->button() == Qt::LeftButton)
        endTracking(segmentAt(event->position()) == m_pressed);
    else
        event->ignore();
}

bool StyledSegmentedControl::moveKeySegment(int key) {
    const int last = cell().segmentCount() - 1;
    const int onward = layoutDirection() == Qt::RightToLeft ? -1 : 1;
    int wanted = -1;
    if (key == Qt::Key_Home || key == Qt::Key_End)
        wanted = key == Qt::Key_Home ? cell().enabledSegment(0, 1) : cell().enabledSegment(last, -1);
    else if (key == Qt::Key_Left || key == Qt::Key_Right) {
        const int step = key == Qt::Key_Right ? onward : -onward;
        wanted = cell().enabledSegment(cell().keySegment() + step, step);
    } else {
        return false;
    }
    if (wanted >= 0)
        cell().setKeySegment(wanted);
    return true;
}

void StyledSegmentedControl::keyPressEvent(QKeyEvent* event) {
    const int key = cell().keySegment();
    const bool isPlain = (event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) == Qt::NoModifier;
    if (isTracking())
        return;
    if (isPlain && platform::isPressKey(*event)) {
        if (event->isAutoRepeat() || key < 0 || !canUse(key))
            return;
        beginTracking(key);
        m_heldKey = event->key();
    } else if (!isPlain || !moveKeySegment(event->key())) {
        CellControl::keyPressEvent(event);
    }
}

void StyledSegmentedControl::keyReleaseEvent(QKeyEvent* event) {
    if (event->isAutoRepeat() || !isTracking() || event->key() != m_heldKey)
        CellControl::keyReleaseEvent(event);
    else
        endTracking(true);
}

void StyledSegmentedControl::focusInEvent(QFocusEvent* event) {
    CellControl::focusInEvent(event);
    const int selected = cell().selectedSegment();
    const int key = cell().keySegment() >= 0 ? cell().keySegment() : selected;
    const bool isUsable = key >= 0 && cell().segment(key).isEnabled;
    cell().setKeySegment(isUsable ? key : cell().enabledSegment(0, 1));
}

void StyledSegmentedControl::focusOutEvent(QFocusEvent* event) {
    if (isTracking() && m_heldKey != 0)
        m_tracking->interrupt(); // the release goes to whoever has the keyboard now
    CellControl::focusOutEvent(event);
}

void StyledSegmentedControl::contextMenuEvent(QContextMenuEvent* event) {
    const bool isKey = event->reason() == QContextMenuEvent::Keyboard;
    const int segment = isKey ? cell().keySegment() : segmentAt(event->pos());
    event->setAccepted(segment >= 0 && cell().segment(segment).menu != nullptr);
    if (isKey && event->isAccepted())
        openMenu(segment);
}

void StyledSegmentedControl::changeEvent(QEvent* event) {
    CellControl::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange)
        updateGeometry();
}

} // namespace tidepool
