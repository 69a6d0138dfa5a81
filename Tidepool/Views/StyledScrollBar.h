#pragma once

#include "Tidepool/Styles/StyleReference.h"

#include <QScrollBar>
#include <QTimer>
#include <QVariantAnimation>

class QAbstractScrollArea;

namespace tidepool {

/// The kit's scroll bar. It shows while the view scrolls and while the pointer is on it or near; a second
/// later it fades. Its place stays free, so that nothing ever lies below it. A click into its slot moves a
/// page, one with Shift or the middle button to that place. Main thread.
class StyledScrollBar : public QScrollBar {
    Q_OBJECT

public:
    /// What it takes from the view beside it, in points.
    static constexpr int thickness = 12;

    explicit StyledScrollBar(Qt::Orientation orientation, QWidget* parent = nullptr);

    /// How visible it is, from 0 to 1.
    qreal visibility() const { return m_visibility; }

    /// Shows it for a moment.
    void flash();

    /// Also shows when the pointer comes near within `view`.
    void watch(QWidget& view);

    QSize sizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void sliderChange(SliderChange change) override;

private:
    bool isInUse() const;
    void hideLater();
    void fade();
    void setVisibility(qreal visibility);

    StyleReference m_style;
    QTimer m_idle;
    QVariantAnimation m_fading;
    qreal m_visibility = 0;
};

/// Gives the area scroll bars of the kit.
void setStyledScrollBars(QAbstractScrollArea& area);

} // namespace tidepool
