#pragma once

#include "Platform/Controls/PopoverPlacement.h"

#include <QBitmap>
#include <QImage>
#include <QVariantAnimation>
#include <QWidget>

namespace platform {

/// The bubble of a popover: a window of its own that never takes the keyboard. It is opaque and cut to its
/// shape where no compositor runs.
class PopoverWindow : public QWidget {
    Q_OBJECT

public:
    PopoverWindow();

    /// Takes the view, and shows it in the bubble.
    void setContent(QWidget* view);

    QWidget* content() const { return m_content; }

    void setColors(const QColor& background, const QColor& edge);

    /// Takes its place, in the coordinates of what it is in: the screen.
    void place(const PopoverPlacement& placement);

    /// Goes to its place, and appears there if it was hidden. `owner` is a window.
    void present(const PopoverPlacement& placement, QWidget& owner, bool animates);

    void dismiss(bool animates);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool isTranslucent() const { return testAttribute(Qt::WA_TranslucentBackground); }

    QBitmap shape() const;
    void animate(bool appears);
    void endAnimation();
    void takeSnapshot();
    void drawFrame(QPainter& painter);
    QImage makeFrame(qreal scale) const;

    QWidget* m_content = nullptr;
    PopoverPlacement m_placement; // in its own coordinates
    QColor m_background;
    QColor m_edge;
    QVariantAnimation m_animation;
    QImage m_frame;    // as it is drawn
    QImage m_snapshot; // frame and content while they move
    bool m_isLeaving = false;
};

} // namespace platform
