#pragma once

#include "Tidepool/Styles/BaseStyle.h"
#include "Tidepool/Styles/StateImages.h"

#include <QFont>
#include <QMarginsF>

namespace tidepool {

/// The look of a control, for every state that it can have. Lengths are points.
class ControlStyle : public BaseStyle {
public:
    using ResizingMode = platform::Image::ResizingMode;
    using BaseStyle::backgroundColor;

    TP_STYLE_FIELD(QFont, font, setFont, Styles::Control::font())
    TP_STYLE_FIELD(QColor, textColor, setTextColor, Styles::Control::text)
    TP_STYLE_FIELD(QColor, textBackgroundColor, setTextBackgroundColor, Styles::BaseStyles::clear)
    TP_STYLE_FIELD(QFont, selectedFont, setSelectedFont, Styles::Control::font())
    TP_STYLE_FIELD(QColor, selectedTextColor, setSelectedTextColor, Styles::Control::selectedText)
    TP_STYLE_FIELD(QColor, selectedBackgroundColor, setSelectedBackgroundColor, Styles::Control::selection)
    TP_STYLE_FIELD(QColor, disabledTextColor, setDisabledTextColor, Styles::Control::disabledText)
    TP_STYLE_FIELD(QColor, disabledBackgroundColor, setDisabledBackgroundColor, Styles::BaseStyles::clear)
    TP_STYLE_FIELD(QColor, highlightedTextColor, setHighlightedTextColor, Styles::Control::highlightedText)
    TP_STYLE_FIELD(QColor, highlightedBackgroundColor, setHighlightedBackgroundColor,
                   Styles::BaseStyles::clear)
    TP_STYLE_FIELD(QColor, invalidTextColor, setInvalidTextColor, Styles::Control::selectedText)
    TP_STYLE_FIELD(QColor, invalidBackgroundColor, setInvalidBackgroundColor, Styles::Control::error)
    TP_STYLE_FIELD(StateImages, bezelImages, setBezelImages)
    TP_STYLE_FIELD(QMarginsF, bezelImageCapInsets, setBezelImageCapInsets)
    TP_STYLE_FIELD(ResizingMode, bezelImageResizingMode, setBezelImageResizingMode, ResizingMode::tile)
    TP_STYLE_FIELD(StateImages, swiftUIBezelImages, setSwiftUIBezelImages)
    TP_STYLE_FIELD(QMarginsF, swiftUIBezelImageCapInsets, setSwiftUIBezelImageCapInsets)
    TP_STYLE_FIELD(ResizingMode, swiftUIBezelImageResizingMode, setSwiftUIBezelImageResizingMode,
                   ResizingMode::stretch)
    TP_STYLE_FIELD(QMarginsF, alignmentRectInsets, setAlignmentRectInsets)
    TP_STYLE_FIELD(QMarginsF, edgeInsets, setEdgeInsets)
    TP_STYLE_FIELD(QColor, focusRingColor, setFocusRingColor, Styles::Control::selection)
    TP_STYLE_FIELD(QColor, invalidFocusRingColor, setInvalidFocusRingColor, Styles::Control::error)

    /// The colours and the bezel of a state. Text and background weigh the flags differently.
    virtual const QColor& focusRingColor(StyledControlState state) const;
    virtual const QColor& textColor(StyledControlState state) const;
    virtual const QColor& backgroundColor(StyledControlState state) const;

    /// Null if there is none.
    virtual const platform::Image* bezelImage(StyledControlState state) const;

    void applyAccent(const QColor& accent) override;

protected:
    /// Copies with the accent in place of the kit's blue.
    static StateImages accented(const StateImages& images, const QColor& accent);
};

} // namespace tidepool
