#include "Gallery/Window/GalleryWindow.h"
#include "Gallery/AllPages.h"
#include "Gallery/Layout/PageView.h"
#include "Gallery/PagePicture.h"
#include "Gallery/Window/PageList.h"
#include "Gallery/Window/SettingsBar.h"
#include "Platform/Controls/PopUpButton.h"
#include "Platform/Graphics/Appearance.h"
#include "Tidepool/Buttons/StyledCheckBox.h"
#include "tests/support/PictureComparison.h"

#include <QCheckBox>
#include <QGraphicsProxyWidget>
#include <QGraphicsView>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

using gallery::GalleryPage;
using gallery::GallerySettings;
using gallery::GalleryWindow;
using gallery::PageView;

namespace {

/// A tall page with one button, which the fixture sees made.
class GalleryWindowTest : public testing::Test {
protected:
    GalleryWindowTest() {
        m_window.show();
        m_window.activateWindow();
        QApplication::processEvents();
    }

    ~GalleryWindowTest() override { platform::setAppearance(platform::Appearance::dark); }

    GalleryPage page(const QString& group, const QString& title, const QStringList& keywords) {
        return {.group = group,
                .title = title,
                .summary = QStringLiteral("A summary."),
                .keywords = keywords,
                .make = [this](const GallerySettings& settings) { return make(settings); },
                .hasStates = title == u"Buttons"};
    }

    QWidget* make(const GallerySettings& settings) {
        m_made = settings;
        auto* const body = new QWidget;
        body->setFixedSize(400, 3000);
        auto* const box = new QCheckBox(QStringLiteral("box"), body);
        box->setGeometry(20, 20, 100, 20);
        QObject::connect(box, &QCheckBox::toggled, box, [this] { ++m_toggled; });
        return body;
    }

    template <class Widget>
    Widget* find(const char* accessibleName) {
        const auto widgets = m_window.findChildren<Widget*>();
        for (Widget* widget : widgets)
            if (widget->accessibleName() == QLatin1StringView(accessibleName))
                return widget;
        ADD_FAILURE() << "nothing is named " << accessibleName;
        return nullptr;
    }

    void choose(const char* setting, int index) {
        find<platform::PopUpButton>(setting)->itemArray()[index]->trigger();
    }

    std::vector<GalleryPage> m_pages{
        page(QStringLiteral("Foundations"), QStringLiteral("Colours"), {QStringLiteral("palette")}),
        page(QStringLiteral("Controls"), QStringLiteral("Buttons"), {QStringLiteral("StyledButton")}),
        page(QStringLiteral("Controls"), QStringLiteral("Boxes"),
             {QStringLiteral("StyledCheckBox"), QStringLiteral("FavouriteCheckBox")})};
    GallerySettings m_made;
    int m_toggled = 0;
    GalleryWindow m_window{m_pages};
};

} // namespace

TEST_F(GalleryWindowTest, SettingsReachThePageAtOnceAndKeepItsPlace) {
    m_window.showPage(QStringLiteral("Buttons"));
    auto* const bar = m_window.findChild<gallery::SettingsBar*>();
    const auto boxes = bar->findChildren<tidepool::StyledCheckBox*>();
    for (tidepool::StyledCheckBox* box : boxes)
        box->click();
    m_window.findChild<QScrollArea*>()->verticalScrollBar()->setValue(700);
    choose("Style", 1);
    const GallerySettings expected{.isEnabled = false,
                                   .isSelected = true,
                                   .styleSet = GallerySettings::StyleSet::light,
                                   .isRightToLeft = true};
    EXPECT_EQ(m_made, expected);
    EXPECT_EQ(platform::currentAppearance(), platform::Appearance::light);
    EXPECT_EQ(m_window.findChild<PageView*>()->layoutDirection(), Qt::RightToLeft);
    EXPECT_EQ(m_window.findChild<QScrollArea*>()->verticalScrollBar()->value(), 700);
    m_window.showPage(QStringLiteral("Boxes"));
    EXPECT_EQ(m_window.findChild<QScrollArea*>()->verticalScrollBar()->value(), 0) << "of another page";
    for (const tidepool::StyledCheckBox* box : boxes)
        EXPECT_EQ(box->isEnabled(), box->text() == u"Right to left") << "what the page does not heed";
}

TEST_F(GalleryWindowTest, MagnifiedPagesStayAlive) {
    choose("Scale", 1);
    auto* const view = m_window.findChild<QGraphicsView*>();
    ASSERT_NE(view, nullptr);
    QApplication::processEvents();
    const QImage shown = view->viewport()->grab().toImage();
    const QImage page = gallery::pagePicture(m_pages.front(), {.scale = 2}).copy(shown.rect());
    EXPECT_TRUE(PictureComparison(shown, page).isSame()) << "from its beginning, with the pixels of 2x";
    const auto* const proxy = qgraphicsitem_cast<QGraphicsProxyWidget*>(view->scene()->items().first());
    auto* const box = proxy->widget()->findChild<QCheckBox*>();
    const QPointF middle = box->mapTo(proxy->widget(), QPoint(8, 10));
    const QPoint onScreen = view->mapFromScene(proxy->mapToScene(middle));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, onScreen);
    EXPECT_EQ(m_toggled, 1);
    EXPECT_TRUE(box->isChecked());
}

TEST(GalleryPages, CanBeMadeWithAllSettings) {
    using StyleSet = GallerySettings::StyleSet;
    for (const GalleryPage& page : gallery::allPages()) {
        const QImage usual = gallery::pagePicture(page, {});
        for (const auto styleSet : {StyleSet::dark, StyleSet::light, StyleSet::accent})
            for (const auto size :
                 {GallerySettings::ControlSize::small, GallerySettings::ControlSize::large}) {
                const QImage picture = gallery::pagePicture(page, {.isEnabled = false,
                                                                   .isSelected = true,
                                                                   .size = size,
                                                                   .styleSet = styleSet,
                                                                   .isRightToLeft = true});
                EXPECT_EQ(picture.width(), PageView::pageWidth) << page.title.toStdString();
                EXPECT_NE(picture, usual) << page.title.toStdString();
            }
        EXPECT_EQ(gallery::pagePicture(page, {}), usual) << "drawing a page changes nothing";
    }
    platform::setAppearance(platform::Appearance::dark);
}
