#include "Gallery/Pages/ColorsPage.h"

#include "Gallery/Layout/PageBody.h"
#include "Gallery/Layout/Section.h"
#include "Gallery/Pages/ColorCard.h"
#include "Gallery/Pages/ContrastTable.h"

#include <QGridLayout>

namespace gallery {

namespace {

struct Family {
    const char16_t* title;
    const char16_t* note;
    /// What the names of its colours begin with.
    QStringList prefixes;
};

const QList<Family>& families() {
    static const QList<Family> list{
        {u"Grounds",
         u"Depth is told by the ground: content lies on darker ones, headers on the darkest.",
         {QStringLiteral("Background/")}},
        {u"Greys",
         u"Named by how much they stand out, so that a name means the same in both appearances.",
         {QStringLiteral("Grey ")}},
        {u"Accents",
         u"For values, parts of a drawing and one emphasis at a time.",
         {QStringLiteral("Vantor/")}},
        {u"Signals",
         u"They mean something: keep them for it.",
         {QStringLiteral("Error"), QStringLiteral("Highlight/")}},
    };
    return list;
}

QStringList namesOf(const Family& family) {
    QStringList names;
    for (const KitAsset& color : kitColors())
        if (color.nameBeginsWithOneOf(family.prefixes))
            names << color.name;
    return names;
}

QWidget* makeCards(const Family& family) {
    constexpr int columns = 4;
    auto* const cards = new QWidget;
    auto* const grid = new QGridLayout(cards);
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(12);
    for (const KitAsset& color : kitColors())
        if (color.nameBeginsWithOneOf(family.prefixes))
            grid->addWidget(new ColorCard(color), grid->count() / columns, grid->count() % columns);
    grid->setColumnStretch(columns, 1);
    return cards;
}

QWidget* makePage(const GallerySettings&) {
    auto* const page = new PageBody;
    for (const Family& family : families())
        page->addSection(QString::fromUtf16(family.title), QString::fromUtf16(family.note))
            .add(makeCards(family));
    const QStringList texts = namesOf(families()[1]) + namesOf(families()[2]) + namesOf(families()[3]);
    page->addSection(
            QStringLiteral("Contrast"),
            QStringLiteral("Text needs a contrast of 4.5 to its ground, large text and the parts of a "
                           "control 3. What is disabled may have less."))
        .add(new ContrastTable(texts, namesOf(families()[0])));
    return page;
}

} // namespace

GalleryPage colorsPage() {
    return {.group = QStringLiteral("Foundations"),
            .title = QStringLiteral("Colours"),
            .summary =
                QStringLiteral("Every named colour of the kit, with its value in the dark and in the light "
                               "appearance."),
            .keywords = {QStringLiteral("palette"), QStringLiteral("TPColors"), QStringLiteral("TPColorsAK"),
                         QStringLiteral("accent"), QStringLiteral("grey"), QStringLiteral("background"),
                         QStringLiteral("contrast")},
            .make = makePage};
}

} // namespace gallery
