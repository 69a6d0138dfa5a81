#pragma once

#include "Platform/Controls/CellControl.h"
#include "Platform/Controls/PointerTracking.h"
#include "Tidepool/Choices/StyledSegmentedCell.h"

#include <QStringList>
#include <QTimer>

namespace tidepool {

/// A row of segments of which the user selects one, or several, or which are commands; the cell has what they
/// show. Pressed by the pointer, or by Space and Return on the segment that the arrow keys go to. A segment
/// with a menu opens it when it is held, by a right click and by the menu key.
///
///     auto* view = new StyledSegmentedControl({QStringLiteral("Keys"), QStringLiteral("List")}, this);
///     view->setSelectedSegment(0);
///     connect(view, &StyledSegmentedControl::segmentClicked, this, &Editor::showView);
class StyledSegmentedControl : public platform::CellControl<QWidget, StyledSegmentedCell> {
    Q_OBJECT

public:
    explicit StyledSegmentedControl(const QStringList& labels = {}, QWidget* parent = nullptr);
    ~StyledSegmentedControl() override;

    int selectedSegment() const { return cell().selectedSegment(); }

    void setSelectedSegment(int segment) { cell().setSelectedSegment(segment); }

    double doubleValue() const override { return selectedSegment(); }

    /// Where the segment is, in the control's coordinates.
    QRectF segmentFrame(int segment) const;

    int segmentAt(QPointF point) const;

    /// As if the user had clicked: selects and sends the action. A segment that is not enabled does nothing.
    void click(int segment);

    /// Opens the menu of the segment, if it has one and is enabled.
    void openMenu(int segment);

    /// True if a click can have no other effect than to open the segment's menu.
    bool onlyOpensMenu(int segment) const;

    bool canUse(int segment) const { return isEnabled() && cell().segment(segment).isEnabled; }

    /// As high as the bezel, and at least as wide.
    QSizeF intrinsicContentSize() const override;
    std::optional<qreal> baseline(qreal height) const override;

    QRectF focusRingMaskBounds() const override { return cell().focusRingMaskBounds(context()); }

Q_SIGNALS:
    /// Comes before the action; a receiver may destroy the control.
    void segmentClicked(int segment);

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    bool isTracking() const { return m_tracking && m_tracking->isActive(); }

    void beginTracking(int segment);
    void endTracking(bool isInside);
    bool moveKeySegment(int key);
    void menuClosed();

    QTimer m_hold;
    QPointer<QMenu> m_openMenu; // while it is open
    int m_pressed = -1;
    int m_heldKey = 0;
    std::unique_ptr<platform::PointerTracking> m_tracking; // while the pointer or a key holds a segment
};

} // namespace tidepool
