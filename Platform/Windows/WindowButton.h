#pragma once

#include "Platform/Controls/BaseButton.h"

namespace platform {

/// A small round button of a window without a title bar.
class WindowButton : public BaseButton {
    Q_OBJECT

public:
    enum class Kind { menu, minimize, close };

    WindowButton(Kind kind, const QString& name, QWidget* parent = nullptr);

    /// 0 is invisible, 1 is shown.
    void setPresence(qreal presence);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void paintGlyph(QPainter& painter) const;

    Kind m_kind;
    qreal m_presence = 0;
};

} // namespace platform
