#include "Gallery/Pages/ImagesPage.h"

#include "Gallery/Layout/PageBody.h"
#include "Gallery/Layout/Section.h"
#include "Gallery/Pages/ImageSpecimen.h"

#include <QVBoxLayout>

namespace gallery {

namespace {

struct Family {
    const char16_t* title;
    /// What the names of its images begin with.
    QStringList prefixes;
};

const QList<Family>& families() {
    static const QList<Family> list{
        {u"Buttons", {QStringLiteral("tpk-button"), QStringLiteral("organiser-navbar")}},
        {u"Tool buttons", {QStringLiteral("corner-tool")}},
        {u"Check boxes", {QStringLiteral("tpk-checkbox"), QStringLiteral("organiser-icon-star")}},
        {u"Pop-up and pop-down buttons", {QStringLiteral("tpk-popup"), QStringLiteral("tpk-popdown")}},
        {u"Combo boxes", {QStringLiteral("tpk-combobox")}},
        {u"Sliders", {QStringLiteral("tpk-slider"), QStringLiteral("tpk-customslider")}},
        {u"Text and search fields", {QStringLiteral("tpk-textfield"), QStringLiteral("tpk-searchfield")}},
        {u"Segments and tabs", {QStringLiteral("tpk-window-tab")}},
        {u"Tables and outlines", {QStringLiteral("properties-"), QStringLiteral("organiser-icon-disclose")}},
    };
    return list;
}

QWidget* makeSpecimens(const QList<KitAsset>& images) {
    auto* const specimens = new QWidget;
    auto* const stack = new QVBoxLayout(specimens);
    stack->setContentsMargins({});
    stack->setSpacing(0);
    stack->addWidget(ImageSpecimen::makeHeadings());
    stack->addSpacing(8);
    for (const KitAsset& image : images)
        stack->addWidget(new ImageSpecimen(image));
    return specimens;
}

/// Moves the images of the family from `images` to the result.
QList<KitAsset> takeFamily(const Family& family, QList<KitAsset>& images) {
    QList<KitAsset> taken;
    images.removeIf([&](const KitAsset& image) {
        const bool isTaken = image.nameBeginsWithOneOf(family.prefixes);
        if (isTaken)
            taken.append(image);
        return isTaken;
    });
    return taken;
}

QWidget* makePage(const GallerySettings&) {
    auto* const page = new PageBody;
    QList<KitAsset> images = kitImages();
    for (const Family& family : families())
        page->addSection(QString::fromUtf16(family.title)).add(makeSpecimens(takeFamily(family, images)));
    page->addSection(QStringLiteral("Pointers and backdrops")).add(makeSpecimens(images));
    return page;
}

} // namespace

GalleryPage imagesPage() {
    return {.group = QStringLiteral("Foundations"),
            .title = QStringLiteral("Images"),
            .summary =
                QStringLiteral("Every drawing of the kit. Those with caps keep their corners at any size, "
                               "templates take any colour."),
            .keywords = {QStringLiteral("TPImages"), QStringLiteral("TPImagesAK"), QStringLiteral("bezel"),
                         QStringLiteral("icon"), QStringLiteral("asset"), QStringLiteral("drawing"),
                         QStringLiteral("nine-slice"), QStringLiteral("template")},
            .make = makePage};
}

} // namespace gallery
