#pragma once

#include "Platform/Core/Action.h"

#include <QMarginsF>
#include <QPointer>
#include <QRectF>

#include <optional>

class QWidget;

namespace platform {

/// What all controls have: a place among their neighbours, how opaque they are, and an action that they send
/// to a target when the user has used them. Mixed into a widget. Lengths are points. Main thread.
class Control {
public:
    virtual ~Control() = default;

    const std::optional<Selector>& action() const { return m_action; }

    void setAction(std::optional<Selector> action) { m_action = action; }

    /// Null for the first responder that answers.
    QObject* target() const { return m_target; }

    /// Not owned; a target that has gone is none.
    void setTarget(QObject* target) { m_target = target; }

    /// Both at once.
    void setAction(std::optional<Selector> action, QObject* target);

    /// Sends `action` from this control. False if there is none, or nobody answers.
    virtual bool sendAction(std::optional<Selector> action, QObject* target);

    /// Sends the control's own action to its own target.
    bool sendAction();

    /// The value as a number; 0 for a control without one.
    virtual double doubleValue() const { return 0; }

    /// How far the control reaches beyond the rectangle that layouts align with its neighbours.
    virtual QMarginsF alignmentRectInsets() const { return {}; }

    /// The natural size of the alignment rectangle.
    virtual QSizeF intrinsicContentSize() const = 0;

    /// The y of the line that the text of the control stands on when it is `height` points high; absent for
    /// one without text.
    virtual std::optional<qreal> baseline(qreal /*height*/) const { return std::nullopt; }

    /// What the keyboard's focus is drawn within.
    virtual QRectF focusRingMaskBounds() const;

    /// How opaque the control is drawn, from 0 to 1.
    qreal alphaValue() const { return m_alphaValue; }

    virtual void setAlphaValue(qreal alpha);

    /// Whether the click that activates its window is meant for the control as well. Where the desktop passes
    /// that click on to every widget, the answer makes no difference.
    virtual bool acceptsFirstMouse() const { return false; }

    /// The widget that this is mixed into.
    virtual QWidget& view() = 0;

    const QWidget& view() const { return const_cast<Control*>(this)->view(); }

protected:
    /// The widget's own size around the intrinsic one: what its `sizeHint` gives.
    QSize naturalSize() const;

private:
    std::optional<Selector> m_action;
    QPointer<QObject> m_target;
    qreal m_alphaValue = 1;
};

} // namespace platform
