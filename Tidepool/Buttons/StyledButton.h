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

    bool isSelected() const;

    /// Selected beside being on or off, as the chosen one of several is.
    void setSelected(bool selected);

    /// A look of its own, instead of the one of its window; null for none. It must be of the class of the
    /// cell's own style.
    void setButtonStyle(std::shared_ptr<const ButtonCellStyle> style);

    QMarginsF alignmentRectInsets() const override;
    QSizeF intrinsicContentSize() const override;

protected:
    /// For subclasses with a cell of their own.
    StyledButton(const QString& title, std::unique_ptr<StyledButtonCell> cell, QWidget* parent);

    StyledButtonCell& styledCell() const;

    void drawFocus(QPainter& painter) override;

private:
    std::optional<double> m_fixedWidth;
};

} // namespace tidepool
