#pragma once

#include "Platform/Controls/Cell.h"
#include "Platform/Controls/Control.h"

#include <QPainter>
#include <QWidget>

#include <concepts>
#include <memory>
#include <utility>

namespace platform {

/// A control on Qt's `Widget` that a cell measures and draws. Main thread.
template <std::derived_from<QWidget> Widget, std::derived_from<Cell> CellType>
class CellControl : public Widget, public Control {
public:
    /// How the control looks. Owned.
    CellType& cell() const { return *m_cell; }

    /// What the control tells its cell, until either changes.
    CellContext context() const {
        const CellStyle& style = m_cell->style();
        m_title.set(cellTitle(), m_cell->titleFont(this->font(), style), ampersands());
        return {m_cell->controlState(controlFlags()), m_title, this->layoutDirection(), style};
    }

    QSizeF intrinsicContentSize() const override { return m_cell->cellSize(context()); }

    QWidget& view() override { return *this; }

    QSize sizeHint() const override { return naturalSize(); }

    QSize minimumSizeHint() const override { return this->sizeHint(); }

protected:
    CellControl(std::unique_ptr<CellType> cell, QWidget* parent) : Widget(parent), m_cell(std::move(cell)) {
        this->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        m_cell->setControlView(this);
    }

    /// The text that the cell draws.
    virtual QString cellTitle() const { return {}; }

    /// Whether the text may have a mnemonic.
    virtual PreparedText::Ampersands ampersands() const { return PreparedText::Ampersands::markMnemonic; }

    /// The flags that the control knows; an override adds its own to these.
    virtual StyledControlState controlFlags() const {
        return StyledControlState()
            .with(StyledControlState::disabled, !this->isEnabled())
            .with(StyledControlState::focused, showsFocus());
    }

    /// Whether the focus is drawn: the keyboard is on the control, in the window that has it.
    virtual bool showsFocus() const { return this->hasFocus() && this->isActiveWindow(); }

    /// Draws the control but for its focus. The painter is as new: it has neither font nor colours.
    virtual void draw(QPainter& painter) { m_cell->draw(painter, QRectF(this->rect()), context()); }

    void paintEvent(QPaintEvent*) override {
        if (alphaValue() <= 0) // buttons over an animation are painted with each of its frames
            return;
        m_isMakingPainter = true;
        QPainter painter(this);
        m_isMakingPainter = false;
        painter.setOpacity(alphaValue());
        draw(painter);
        if (showsFocus())
            m_cell->drawFocus(painter, focusRingMaskBounds(), context());
    }

    // The view's font and colours would cost a fourteenth of a repaint, and no cell asks for them.
    void initPainter(QPainter* painter) const override {
        if (!m_isMakingPainter)
            Widget::initPainter(painter);
    }

private:
    const std::unique_ptr<CellType> m_cell;
    mutable PreparedText m_title;
    bool m_isMakingPainter = false;
};

} // namespace platform
