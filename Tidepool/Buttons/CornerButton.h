#pragma once

#include "Tidepool/Buttons/CornerButtonCell.h"
#include "Tidepool/Buttons/StyledButton.h"

namespace tidepool {

/// A button in the corner of a view that can open a menu under itself.
class CornerButton : public StyledButton {
    Q_OBJECT

public:
    explicit CornerButton(const QString& title = {}, QWidget* parent = nullptr);

    /// What a click, Space, Return and a right click open; without one the button is an ordinary button. Not
    /// owned.
    QMenu* alternateMenu() const;
    void setAlternateMenu(QMenu* menu);

    QMenu* offeredMenu() const override;

protected:
    void performClick() override;
    void beginTracking(QMouseEvent& event) override;
    bool popUpMenu(const QMouseEvent& press) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QPointer<QMenu> m_alternateMenu;
};

} // namespace tidepool
