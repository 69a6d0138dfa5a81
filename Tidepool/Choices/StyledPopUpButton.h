#pragma once

#include "Tidepool/Choices/StyledMenuButton.h"

namespace tidepool {

/// The kit's pop-up button: it shows the chosen one of the items of its menu.
///
///     auto* wave = new StyledPopUpButton(false, this);
///     wave->setLabel(tr("Wave"));
///     wave->addItem(tr("Sine"));
///     connect(wave, &StyledPopUpButton::itemChosen, this, &Editor::setWave);
class StyledPopUpButton : public StyledMenuButton {
    Q_OBJECT

public:
    explicit StyledPopUpButton(bool pullsDown = false, QWidget* parent = nullptr);

    StyledPopUpButtonCell& cell() const {
        return static_cast<StyledPopUpButtonCell&>(StyledMenuButton::cell());
    }

    const std::optional<double>& fixedWidth() const { return m_fixedWidth; }

    /// In points, of what lines up with its neighbours; absent for the width of the longest title.
    void setFixedWidth(std::optional<double> width);

    QSizeF intrinsicContentSize() const override;

protected:
    /// For subclasses with a cell of their own.
    StyledPopUpButton(std::unique_ptr<StyledPopUpButtonCell> cell, QWidget* parent);

private:
    std::optional<double> m_fixedWidth;
};

/// A small pop-up button for tool bars.
class ToolPopUpButton : public StyledPopUpButton {
    Q_OBJECT

public:
    explicit ToolPopUpButton(bool pullsDown = false, QWidget* parent = nullptr);

    ToolPopUpButtonCell& cell() const { return static_cast<ToolPopUpButtonCell&>(StyledPopUpButton::cell()); }
};

} // namespace tidepool
