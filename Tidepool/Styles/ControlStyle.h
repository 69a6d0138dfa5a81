#pragma once

#include "Tidepool/Styles/BaseStyle.h"
#include "Tidepool/Styles/StateImages.h"

#include <QFont>
#include <QMarginsF>

#include <utility>

namespace tidepool {

/// The look of a control, for every state that it can have. Lengths are points.
class ControlStyle : public BaseStyle {
public:
    using ResizingMode = platform::Image::ResizingMode;
    using BaseStyle::backgroundColor;

    ControlStyle();

    virtual const QFont& font() const { return m_font; }

    void setFont(QFont value) { m_font = std::move(value); }

    virtual const QColor& textColor() const { return m_textColor; }

    void setTextColor(QColor value) { m_textColor = value; }

    virtual const QColor& textBackgroundColor() const { return m_textBackgroundColor; }

    void setTextBackgroundColor(QColor value) { m_textBackgroundColor = value; }

    virtual const QFont& selectedFont() const { return m_selectedFont; }

    void setSelectedFont(QFont value) { m_selectedFont = std::move(value); }

    virtual const QColor& selectedTextColor() const { return m_selectedTextColor; }

    void setSelectedTextColor(QColor value) { m_selectedTextColor = value; }

    virtual const QColor& selectedBackgroundColor() const { return m_selectedBackgroundColor; }

    void setSelectedBackgroundColor(QColor value) { m_selectedBackgroundColor = value; }

    virtual const QColor& disabledTextColor() const { return m_disabledTextColor; }

    void setDisabledTextColor(QColor value) { m_disabledTextColor = value; }

    virtual const QColor& disabledBackgroundColor() const { return m_disabledBackgroundColor; }

    void setDisabledBackgroundColor(QColor value) { m_disabledBackgroundColor = value; }

    virtual const QColor& highlightedTextColor() const { return m_highlightedTextColor; }

    void setHighlightedTextColor(QColor value) { m_highlightedTextColor = value; }

    virtual const QColor& highlightedBackgroundColor() const { return m_highlightedBackgroundColor; }

    void setHighlightedBackgroundColor(QColor value) { m_highlightedBackgroundColor = value; }

    virtual const QColor& invalidTextColor() const { return m_invalidTextColor; }

    void setInvalidTextColor(QColor value) { m_invalidTextColor = value; }

    virtual const QColor& invalidBackgroundColor() const { return m_invalidBackgroundColor; }

    void setInvalidBackgroundColor(QColor value) { m_invalidBackgroundColor = value; }

    virtual const StateImages& bezelImages() const { return m_bezelImages; }

    void setBezelImages(StateImages value) { m_bezelImages = std::move(value); }

    virtual const QMarginsF& bezelImageCapInsets() const { return m_bezelImageCapInsets; }

    void setBezelImageCapInsets(QMarginsF value) { m_bezelImageCapInsets = value; }

    virtual ResizingMode bezelImageResizingMode() const { return m_bezelImageResizingMode; }

    void setBezelImageResizingMode(ResizingMode value) { m_bezelImageResizingMode = value; }

    virtual const StateImages& swiftUIBezelImages() const { return m_swiftUIBezelImages; }

    void setSwiftUIBezelImages(StateImages value) { m_swiftUIBezelImages = std::move(value); }

    virtual const QMarginsF& swiftUIBezelImageCapInsets() const { return m_swiftUIBezelImageCapInsets; }

    void setSwiftUIBezelImageCapInsets(QMarginsF value) { m_swiftUIBezelImageCapInsets = value; }

    virtual ResizingMode swiftUIBezelImageResizingMode() const { return m_swiftUIBezelImageResizingMode; }

    void setSwiftUIBezelImageResizingMode(ResizingMode value) { m_swiftUIBezelImageResizingMode = value; }

    virtual const QMarginsF& alignmentRectInsets() const { return m_alignmentRectInsets; }

    void setAlignmentRectInsets(QMarginsF value) { m_alignmentRectInsets = value; }

    virtual const QMarginsF& edgeInsets() const { return m_edgeInsets; }

    void setEdgeInsets(QMarginsF value) { m_edgeInsets = value; }

    virtual const QColor& focusRingColor() const { return m_focusRingColor; }

    void setFocusRingColor(QColor value) { m_focusRingColor = value; }

    virtual const QColor& invalidFocusRingColor() const { return m_invalidFocusRingColor; }

    void setInvalidFocusRingColor(QColor value) { m_invalidFocusRingColor = value; }

    /// The colours and the bezel of a state. Text and background weigh the flags differently.
    virtual const QColor& focusRingColor(StyledControlState state) const;
    virtual const QColor& textColor(StyledControlState state) const;
    virtual const QColor& backgroundColor(StyledControlState state) const;

    /// Null if there is none.
    virtual const platform::Image* bezelImage(StyledControlState state) const;

private:
    QFont m_font;
    QColor m_textColor;
    QColor m_textBackgroundColor;
    QFont m_selectedFont;
    QColor m_selectedTextColor;
    QColor m_selectedBackgroundColor;
    QColor m_disabledTextColor;
    QColor m_disabledBackgroundColor;
    QColor m_highlightedTextColor;
    QColor m_highlightedBackgroundColor;
    QColor m_invalidTextColor;
    QColor m_invalidBackgroundColor;
    StateImages m_bezelImages;
    QMarginsF m_bezelImageCapInsets;
    ResizingMode m_bezelImageResizingMode = ResizingMode::tile;
    StateImages m_swiftUIBezelImages;
    QMarginsF m_swiftUIBezelImageCapInsets;
    ResizingMode m_swiftUIBezelImageResizingMode = ResizingMode::stretch;
    QMarginsF m_alignmentRectInsets;
    QMarginsF m_edgeInsets;
    QColor m_focusRingColor;
    QColor m_invalidFocusRingColor;
};

} // namespace tidepool
