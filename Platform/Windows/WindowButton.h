#pragma once

#include "Platform/Controls/PushButton.h"

namespace platform {

/// A small round button of a window without a title bar.
class WindowButton : public PushButton {
    Q_OBJECT

public:
    enum class Kind { menu, minimize, close };

    WindowButton(Kind kind, const QString& name, QWidget* parent = nullptr);

    QSizeF intrinsicContentSize() const override;

protected:
    void draw(QPainter& painter) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void paintGlyph(QPainter& painter) const;

    Kind m_kind;
};

} // namespace platform
