#pragma once

#include "Platform/Controls/Cell.h"
#include "Platform/Graphics/Image.h"

namespace platform {

struct CellContent;
struct CellFrames;

/// What a button draws itself with: a bezel, a title and an image. This one draws as the desktop's style
/// does; cells with a look of their own override its steps.
class ButtonCell : public Cell {
public:
    /// By what a pressed button, or one that is on, is told from another.
    enum Mask { none = 0, contents = 1, pushIn = 2, changeGray = 4, changeBackground = 8 };
    Q_DECLARE_FLAGS(Masks, Mask)

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

    /// With `contents` a pressed button shows its alternate image.
    Masks highlightsBy() const { return m_highlightsBy; }

    void setHighlightsBy(Masks masks) { set(m_highlightsBy, masks); }

    /// Empty for a button that shows no state and therefore has none.
    Masks showsStateBy() const { return m_showsStateBy; }

    void setShowsStateBy(Masks masks) { set(m_showsStateBy, masks); }

    BezelStyle bezelStyle() const { return m_bezelStyle; }

    void setBezelStyle(BezelStyle style) { set(m_bezelStyle, style); }

    bool allowsMixedState() const { return m_allowsMixedState; }

    void setAllowsMixedState(bool allows) { m_allowsMixedState = allows; }

    ImagePosition imagePosition() const { return m_imagePosition; }

    void setImagePosition(ImagePosition position) { set(m_imagePosition, position); }

    ImageScaling imageScaling() const { return m_imageScaling; }

    void setImageScaling(ImageScaling scaling) { set(m_imageScaling, scaling); }

    /// What is shown while the button is off, and while it is on if there is one.
    virtual const Image& image(const CellStyle&) const { return m_image; }

    void setImage(Image image);

    virtual const Image& alternateImage(const CellStyle&) const { return m_alternateImage; }

    void setAlternateImage(Image image);

    /// The state that a click leads to: off, on, off; with mixed off, mixed, on, off.
    virtual ControlState nextState(ControlState state) const;

    /// Where the title and the image stand.
    virtual QRectF titleRect(const QRectF& bounds, const CellContext& context) const;
    virtual QRectF imageRect(const QRectF& bounds, const CellContext& context) const;

    /// The y of the line that the title stands on; absent without one.
    std::optional<qreal> baseline(const QRectF& bounds, const CellContext& context) const;

    QSizeF cellSize(const CellContext& context) const override;

    void draw(QPainter& painter, const QRectF& frame, const CellContext& context) const override;
    virtual void drawInterior(QPainter& painter, const QRectF& frame, const CellContext& context) const;
    virtual void drawBezel(QPainter& painter, const QRectF& frame, const CellContext& context) const;
    virtual void drawTitle(QPainter& painter, const QRectF& frame, const CellContext& context) const;
    virtual void drawImage(QPainter& painter, const QRectF& frame, const CellContext& context) const;

protected:
    /// Where both stand if no subclass says otherwise.
    CellFrames arranged(const QRectF& bounds, const CellContext& context) const;

    /// Of the image and the alternate image the one that the state shows.
    const Image& shownImage(const CellContext& context) const;

    virtual QSizeF imageSize(const CellContext& context) const { return shownImage(context).size(); }

    /// Whether the mnemonic is underlined, as the desktop's style wants it.
    bool showsMnemonic(const CellContext& context) const;

private:
    CellContent content(const CellContext& context) const;

    Masks m_highlightsBy;
    Masks m_showsStateBy;
    BezelStyle m_bezelStyle = BezelStyle::rounded;
    bool m_allowsMixedState = false;
    ImagePosition m_imagePosition = ImagePosition::imageLeading;
    ImageScaling m_imageScaling = ImageScaling::proportionallyDown;
    Image m_image;
    Image m_alternateImage;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ButtonCell::Masks)

} // namespace platform
