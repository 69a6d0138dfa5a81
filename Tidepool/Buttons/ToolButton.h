#pragma once

#include "Tidepool/Buttons/StyledButton.h"
#include "Tidepool/Buttons/ToolButtonCell.h"

#include <QTimer>

namespace tidepool {

/// A button of a tool bar. Pressed and held it sends its secondary action instead of its action; so does the
/// menu key if it has no menu.
class ToolButton : public StyledButton {
    Q_OBJECT

public:
    explicit ToolButton(const QString& title = {}, QWidget* parent = nullptr);

    ToolButtonCell& cell() const { return static_cast<ToolButtonCell&>(StyledButton::cell()); }

    /// A small mark which says that there is more behind the button.
    bool showMoreIcon() const { return cell().showMoreIcon(); }

    void setShowMoreIcon(bool shows) { cell().setShowMoreIcon(shows); }

    QObject* secondaryTarget() const { return m_secondaryTarget; }

    /// Not owned. Null for the first responder that answers.
    void setSecondaryTarget(QObject* target) { m_secondaryTarget = target; }

    const std::optional<platform::Selector>& secondaryAction() const { return m_secondaryAction; }

    void setSecondaryAction(std::optional<platform::Selector> action) { m_secondaryAction = action; }

    QSizeF intrinsicContentSize() const override;

    bool answersMenuKey() const override {
        return StyledButton::answersMenuKey() || m_secondaryAction.has_value();
    }

protected:
    void beginTracking(QMouseEvent& event) override;
    bool popUpMenu(const QMouseEvent& press) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void sendSecondaryAction();

    QPointer<QObject> m_secondaryTarget;
    std::optional<platform::Selector> m_secondaryAction;
    QTimer m_hold;
};

} // namespace tidepool
