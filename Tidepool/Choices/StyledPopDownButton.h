#pragma once

#include "Tidepool/Choices/StyledMenuButton.h"

#include <QTimer>

namespace tidepool {

/// A button that pulls a menu of commands down. With an action a click sends that, and the menu opens when
/// the button is held, by a right click, by Down, F4 and the menu key.
///
///     auto* add = new StyledPopDownButton(this);
///     add->setTitle(tr("Add"));
///     add->addItem(tr("Note"));
class StyledPopDownButton : public StyledMenuButton {
    Q_OBJECT

public:
    explicit StyledPopDownButton(QWidget* parent = nullptr);

    StyledPopDownButtonCell& cell() const {
        return static_cast<StyledPopDownButtonCell&>(StyledMenuButton::cell());
    }

    /// A title that stays, beside all items of the menu; until it is set, the first item is the title.
    void setTitle(const QString& title) { setStandingTitle(title); }

protected:
    bool pressOpensMenu() const override { return !action(); }

    void beginTracking(QMouseEvent& event) override;
    void endTracking() override;
    bool popUpMenu(const QMouseEvent& press) override;

private:
    QTimer m_hold;
};

} // namespace tidepool
