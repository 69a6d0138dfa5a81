#include "Gallery/Pages/ListPicture.h"

#include "Platform/Controls/ListPopup.h"
#include "Platform/Graphics/DevicePixels.h"

#include <QPainter>

namespace gallery {

namespace {

constexpr QSize listSize(220, 10 + 9 * 26);

} // namespace

ListPicture::ListPicture(QWidget* parent) : QWidget(parent), m_rows(std::make_unique<QStandardItemModel>()) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName(tr("An open list"));
    for (const char16_t* const title :
         {u"Strings", u"Bass", u"Cello", u"Viola", u"Violin", u"Bassoon", u"Harp"})
        m_rows->appendRow(new QStandardItem(QString::fromUtf16(title)));
    for (int number = 1; number <= 12; ++number)
        m_rows->appendRow(new QStandardItem(QStringLiteral("Sample %1").arg(number)));
    m_rows->item(0)->setData(true, platform::ListPopup::isHeader);
    m_rows->item(0)->setEnabled(false);
    m_rows->item(2)->setData(Qt::Checked, Qt::CheckStateRole);
    m_rows->item(4)->setEnabled(false);
    m_rows->item(5)->setData(true, platform::ListPopup::beginsGroup);
    m_list = std::make_unique<platform::ListPopup>(*m_rows, *this);
    m_list->setHasMarks(true);
    m_list->resize(listSize);
    m_list->grab(); // lays it out, so that the row is in sight
    m_list->setCurrentRow(3);
}

ListPicture::~ListPicture() = default;

QSize ListPicture::sizeHint() const {
    return listSize;
}

void ListPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    m_list->setAttribute(Qt::WA_TranslucentBackground); // round, whatever the desktop can show
    m_list->setPalette(palette());
    m_list->setLayoutDirection(layoutDirection());
    m_list->resize(listSize);
    const qreal scale = platform::pixelsPerPoint(painter);
    QImage image((QSizeF(listSize) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    m_list->render(&image, {}, {}, QWidget::DrawChildren);
    platform::drawPixels(painter, {}, image);
}

} // namespace gallery
