#pragma once

#include "Platform/Controls/PushButton.h"
#include "Tidepool/Buttons/StyledButtonCell.h"

#include <optional>

namespace tidepool {

/// The kit's push button.
///
///     auto* button = new StyledButton(QStringLiteral("&Apply"), this);
///     connect(button, &StyledButton::clicked, this, &Editor::apply);
class StyledButton : public platform::PushButton {
    Q_OBJECT

public:
    explicit StyledButton(const QString& title = {}, QWidget* parent = nullptr);

    /// A button of `fixedWidth` points.
    StyledButton(const QString& title, double fixedWidth, QWidget* parent = nullptr);

    const std::optional<double>& fixedWidth() const { return m_fixedWidth; }

    void setFixedWidth(std::optional<double> width);

    /// Its setters show the change.
    StyledButtonCell& cell() const { return static_cast<StyledButtonCell&>(PushButton::cell()); }

    bool isSelected() const { return cell().isSelected(); }

    void setSelected(bool selected) { cell().setSelected(selected); }

    QMarginsF alignmentRectInsets() const override;
    QSizeF intrinsicContentSize() const override;

protected:
    /// For subclasses with a cell of their own.
    StyledButton(const QString& title, std::unique_ptr<StyledButtonCell> cell, QWidget* parent);

    /// True for the right button, and for the left one with the Control key.
    static bool asksForMenu(const QMouseEvent& press);

    /// Where a menu opens below the button.
    QPoint menuPosition() const;

private:
    std::optional<double> m_fixedWidth;
};

} // namespace tidepool
