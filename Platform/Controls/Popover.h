#pragma once

#include "Platform/Controls/PopoverPlacement.h"

#include <QColor>
#include <QObject>
#include <QPointer>
#include <QSize>

#include <memory>

class QWidget;

namespace platform {

class PopoverWindow;

/// A bubble with an arrow that stands beside a view and goes with it: it follows the view, hides while the
/// view is scrolled out of sight or the application is in the background, and closes when the view is hidden
/// or destroyed. It never takes the keyboard, and closes by itself for no other reason. Main thread.
class Popover : public QObject {
    Q_OBJECT

public:
    explicit Popover(QObject* parent = nullptr);
    ~Popover() override;

    /// Between the call of `show` and that of `close`, or the view's end.
    bool isShown() const { return m_isShown; }

    /// Takes the view, in place of the former.
    void setContentView(QWidget* view);

    /// In points; never smaller than the content view can be.
    QSize contentSize() const { return m_contentSize; }

    void setContentSize(QSize size);

    /// Whether it grows and fades, unless the desktop asks for less motion. On at first.
    bool animates() const { return m_animates; }

    void setAnimates(bool animates) { m_animates = animates; }

    void setColors(const QColor& background, const QColor& edge);

    /// What assistive technology tells when the popover appears.
    void setAccessibleText(const QString& text);

    /// What it stands beside while it is shown, else null.
    QWidget* positioningView() const { return m_view; }

    /// Shows it beside `rect` of `view`, in points of the view; an empty one is the whole view. What is shown
    /// already goes there.
    virtual void show(const QRect& rect, QWidget& view, RectEdge preferredEdge);

    /// Does nothing if it is not shown.
    virtual void close();

Q_SIGNALS:
    /// Also when the view has gone.
    void closed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void watch(QWidget& view);
    void ignore();
    void reposition();
    QRect visibleAnchor() const;
    QWidget& outermost() const;

    std::unique_ptr<PopoverWindow> m_window;
    QPointer<QWidget> m_view;
    QList<QPointer<QWidget>> m_watched;
    std::unique_ptr<QObject> m_watching; // lives as long as what it hears of is watched
    QRect m_rect;
    QSize m_contentSize;
    RectEdge m_preferredEdge = RectEdge::maxY;
    bool m_animates = true;
    bool m_isShown = false;
};

} // namespace platform
