#pragma once

#include "Tidepool/Text/StyledTextFieldCell.h"

#include <optional>

namespace tidepool {

/// How a search field looks: a glass, the text, and while there is one a cross that takes it away.
class StyledSearchFieldCell : public RestyledCell<SearchFieldCellStyle, StyledTextFieldCell> {
public:
    /// What the pointer can be on.
    enum class Part { text, searchButton, cancelButton };

    /// Whether there is a glass; on at first.
    bool showsSearchIcon() const { return m_showsSearchIcon; }

    void setShowsSearchIcon(bool shows) { set(m_showsSearchIcon, shows); }

    /// Whether the glass has a mark of a menu.
    void setShowsMenuMark(bool shows) { set(m_showsMenuMark, shows); }

    /// As it was set; the base class draws it.
    const std::optional<QString>& internalPlaceholderString() const { return m_internalPlaceholder; }

    /// None takes away what is remembered, not what is drawn.
    void setPlaceholderString(const std::optional<QString>& text);

    /// The button that the pointer holds down.
    void setPressedPart(Part part) { set(m_pressed, part); }

    /// The parts in `bounds`; empty for those that are not there. They change sides with the direction.
    QRectF searchButtonRect(const QRectF& bounds, const platform::CellContext& context) const;
    QRectF cancelButtonRect(const QRectF& bounds, const platform::CellContext& context) const;
    QRectF searchTextRect(const QRectF& bounds, const platform::CellContext& context) const;

    Part partAt(QPointF point, const QRectF& bounds, const platform::CellContext& context) const;

    QRectF titleRect(const QRectF& bounds, const platform::CellContext& context) const override;

protected:
    void drawFrame(QPainter& painter, const QRectF& frame,
                   const platform::CellContext& context) const override;

private:
    qreal searchButtonRight() const;

    std::optional<QString> m_internalPlaceholder;
    Part m_pressed = Part::text;
    bool m_showsSearchIcon = true;
    bool m_showsMenuMark = false;
};

} // namespace tidepool
