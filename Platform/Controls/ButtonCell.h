#pragma once

#include "Platform/Controls/Cell.h"
#include "Platform/Graphics/PreparedText.h"

namespace platform {

struct CellContent;
struct CellFrames;

/// What a button draws itself with: a bezel, a title and an image. This one draws as the desktop's style
/// does; cells with a look of their own override its steps.
class ButtonCell : public Cell {
public:
    /// By what a pressed button, or one that is on, is told from another.
    enum Mask { none = 0, contents = 1, pushIn = 2, changeGray = 4, changeBackground = 8 };

    enum class ButtonType {
        momentaryLight,
        pushOnPushOff,
        toggle,
        switchButton,
        radio,
        momentaryChange,
        onOff,
        momentaryPushIn
    };

    /// Frames that the desktop knows; a cell that draws its own bezel only carries it.
    enum class BezelStyle { rounded = 1, regularSquare = 2, shadowlessSquare = 6 };

    ButtonCell();

    /// Sets both masks as the type has them.
    void setButtonType(ButtonType type);

    int highlightsBy() const { return m_highlightsBy; }

    void setHighlightsBy(int mask) { m_highlightsBy = mask; }

    /// 0 for a button that shows no state and therefore has none.
    int showsStateBy() const { return m_showsStateBy; }

    void setShowsStateBy(int mask) { m_showsStateBy = mask; }

    BezelStyle bezelStyle() const { return m_bezelStyle; }

    void setBezelStyle(BezelStyle style) { m_bezelStyle = style; }

    bool allowsMixedState() const { return m_allowsMixedState; }

    void setAllowsMixedState(bool allows) { m_allowsMixedState = allows; }

    ImagePosition imagePosition() const { return m_imagePosition; }

    void setImagePosition(ImagePosition position) { m_imagePosition = position; }

    ImageScaling imageScaling() const { return m_imageScaling; }

    void setImageScaling(ImageScaling scaling) { m_imageScaling = scaling; }

    /// What is shown while the button is off, and while it is on if there is one.
    virtual const Image& image() const { return m_image; }

    void setImage(Image image) { m_image = std::move(image); }

    virtual const Image& alternateImage() const { return m_alternateImage; }

    void setAlternateImage(Image image) { m_alternateImage = std::move(image); }

    /// The title without what marks its mnemonic.
    const QString& plainTitle() const { return preparedTitle(titleFont()).text(); }

    /// The state that a click leads to: off, on, off; with mixed off, mixed, on, off.
    virtual ControlState nextState() const;

    QRectF titleRect(const QRectF& bounds) const override;
    QRectF imageRect(const QRectF& bounds) const override;
    QSizeF cellSize() const override;

    void draw(QPainter& painter, const QRectF& frame) const override;
    virtual void drawInterior(QPainter& painter, const QRectF& frame) const;
    virtual void drawBezel(QPainter& painter, const QRectF& frame) const;
    virtual void drawTitle(QPainter& painter, const QRectF& frame) const;
    virtual void drawImage(QPainter& painter, const QRectF& frame) const;

protected:
    /// Where both stand if no subclass says otherwise.
    CellFrames arranged(const QRectF& bounds) const;

    /// Of the image and the alternate image the one that the state shows.
    const Image& shownImage() const;

    /// The title, shaped in `font`.
    const PreparedText& preparedTitle(const QFont& font) const;

    virtual const QFont& titleFont() const { return font(); }

    /// Whether the mnemonic is underlined, as the desktop's style wants it.
    bool showsMnemonic() const;

    virtual QSizeF imageSize() const { return shownImage().size(); }

private:
    CellContent content() const;
    QRectF contentRect(const QRectF& bounds) const;

    int m_highlightsBy = none;
    int m_showsStateBy = none;
    BezelStyle m_bezelStyle = BezelStyle::rounded;
    bool m_allowsMixedState = false;
    ImagePosition m_imagePosition = ImagePosition::imageLeading;
    ImageScaling m_imageScaling = ImageScaling::proportionallyDown;
    Image m_image;
    Image m_alternateImage;
    mutable PreparedText m_preparedTitle;
};

} // namespace platform
