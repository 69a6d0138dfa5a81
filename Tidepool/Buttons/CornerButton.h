#pragma once

#include "Tidepool/Buttons/StyledButton.h"
#include "Tidepool/Styles/ToolButtonCellStyles.h"

namespace tidepool {

/// The push button's bezel with insets of its own.
using CornerButtonCell = RestyledCell<CornerButtonCellStyle, StyledButtonCell>;

/// A button in the corner of a view that can open a menu under itself.
class CornerButton : public StyledButton {
    Q_OBJECT

public:
    explicit CornerButton(const QString& title = {}, QWidget* parent = nullptr);

    CornerButtonCell& cell() const { return static_cast<CornerButtonCell&>(StyledButton::cell()); }

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
