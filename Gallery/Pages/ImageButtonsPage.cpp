#include "Gallery/Pages/ImageButtonsPage.h"

#include "Gallery/Layout/ButtonStates.h"
#include "Gallery/Layout/LiveRow.h"
#include "Gallery/Layout/PageBody.h"
#include "Gallery/Layout/Section.h"
#include "Platform/Controls/PopUpButton.h"
#include "Tidepool/Assets.h"
#include "Tidepool/Buttons/DarkHighlightButton.h"
#include "Tidepool/Buttons/PopUpCyclingButton.h"
#include "Tidepool/Palette/TPImages.h"
#include "Tidepool/Views/ClickableImageView.h"

namespace gallery {

namespace {

using tidepool::ClickableImageView;
using tidepool::CursorButton;
using tidepool::DarkHighlightButton;
using tidepool::PopUpCyclingButton;

using tidepool::Images;

QWidget* makeLiveRow(const GallerySettings& settings) {
    auto* const row = new LiveRow(
        QStringLiteral("Move over the star, step through the pop-up with the arrow (back with Shift)."));
    CursorButton& cursor = row->add(new CursorButton);
    cursor.setImage(Images::organiserIconStar);
    cursor.setAccessibleName(QStringLiteral("Star"));
    cursor.setCursorImage(tidepool::TPImagesAK::cursorTrackingSlider);
    cursor.setCursorHotSpot({3, 4});
    QObject::connect(&cursor, &CursorButton::clicked, row,
                     [row] { row->say(QStringLiteral("Star clicked")); });

    auto& popUp = row->add(new platform::PopUpButton);
    for (const char16_t* const title : {u"Up", u"Down", u"Random"})
        popUp.addItem(QString::fromUtf16(title));
    PopUpCyclingButton& cycle = row->add(new PopUpCyclingButton);
    cycle.setImage(Images::organiserIconDisclose);
    cycle.setAccessibleName(QStringLiteral("Next"));
    cycle.setTarget(&popUp);

    auto& picture =
        row->add(new ClickableImageView(Images::organiserIconStarEmpty, QStringLiteral("Picture")));
    static_cast<void>(picture);
    for (platform::PushButton* const button : row->findChildren<platform::PushButton*>())
        button->setEnabled(settings.isEnabled);
    return row;
}

template <typename Button>
void addStates(PageBody& page, const char16_t* title, const platform::Image& image,
               const GallerySettings& settings) {
    const ButtonStates states{.hasState = false};
    states.addRow<Button>(page.addSection(QString::fromUtf16(title)).addGrid(states.titles()),
                          QStringLiteral("Image"), settings, [&](Button& button) { button.setImage(image); });
}

QWidget* makePage(const GallerySettings& settings) {
    auto* const page = new PageBody;
    page->addSection(QStringLiteral("Live")).add(makeLiveRow(settings));
    addStates<CursorButton>(*page, u"CursorButton", Images::organiserIconStar, settings);
    addStates<DarkHighlightButton>(*page, u"DarkHighlightButton", Images::organiserIconDisclose, settings);
    addStates<PopUpCyclingButton>(*page, u"PopUpCyclingButton", Images::organiserIconDiscloseOpen, settings);
    return page;
}

} // namespace

GalleryPage imageButtonsPage() {
    return {.group = QStringLiteral("Buttons"),
            .title = QStringLiteral("Image buttons"),
            .summary =
                QStringLiteral("An image to press, without a bezel. Some show a pointer of their own."),
            .keywords = {QStringLiteral("CursorButton"), QStringLiteral("DarkHighlightButton"),
                         QStringLiteral("PopUpCyclingButton"), QStringLiteral("ClickableImageView"),
                         QStringLiteral("cursor"), QStringLiteral("pointer"), QStringLiteral("cycle"),
                         QStringLiteral("image")},
            .make = makePage,
            .hasStates = true};
}

} // namespace gallery
