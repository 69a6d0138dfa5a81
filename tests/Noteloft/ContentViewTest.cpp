#include "Noteloft/ContentView.h"

#include "Noteloft/Assets.h"
#include "Noteloft/ContentViewModel.h"
#include "Noteloft/ContentViewShader.h"
#include "Noteloft/ResourceBundle.h"
#include "Platform/Controls/ImageView.h"
#include "Platform/Controls/PushButton.h"
#include "Platform/Controls/ShadowedLabel.h"
#include "Platform/Core/Bundle.h"
#include "Platform/Gpu/GpuDevice.h"
#include "VantorShaders/resource_bundle_accessor.h"
#include "tests/support/Browser.h"
#include "tests/support/Find.h"
#include "tests/support/Pixels.h"

#include <QAccessible>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using noteloft::Colors;
using noteloft::ContentView;
using noteloft::ContentViewModel;
using platform::Bundle;
using Button = platform::PushButton;

namespace {

const QString notFound = QStringLiteral(
    "Dev Only Debugging: Failed to find component with type: aumi, subtype: mdfx, manufacturer: Quil)");

class ContentViewTest : public testing::Test {
protected:
    ContentViewTest() {
        qputenv("LV2_PATH", "");
        // Found for good before a test changes the main bundle.
        noteloft::resourceBundle();
        vantor::resourceBundle();
    }

    ~ContentViewTest() override {
        Bundle::setMainDirectory(m_mainDirectory);
        qunsetenv("LV2_PATH");
    }

    ContentView& show(bool debugMode = false, qreal buttonWidth = 180) {
        m_model = new ContentViewModel;
        m_view = std::make_unique<ContentView>(m_model, debugMode, buttonWidth);
        m_view->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(m_view.get()));
        return *m_view;
    }

    /// The texts from top to bottom, with the title first.
    QStringList texts() const {
        QMultiMap<int, QString> texts;
        const auto labels = m_view->findChildren<QLabel*>();
        for (const QLabel* label : labels)
            if (!label->text().isEmpty())
                texts.insert(label->mapTo(m_view.get(), QPoint()).y(), label->text());
        return texts.values();
    }

    QLabel* label(const QString& text) const { return withText(m_view->findChildren<QLabel*>(), text); }

    QRect place(const QWidget* widget) const {
        return {widget->mapTo(m_view.get(), QPoint()), widget->size()};
    }

    Button* button(const QString& text) const { return withText(m_view->findChildren<Button*>(), text); }

    void useInformation(const QByteArray& information) {
        QFile file(m_root.filePath(QStringLiteral("Info.json")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(information);
        file.close();
        QFile::link(Bundle::main().resourceDirectory(), m_root.filePath(QStringLiteral("Resources")));
        Bundle::setMainDirectory(m_root.path());
    }

    const QString m_mainDirectory = Bundle::main().directory();
    QTemporaryDir m_root;
    Browser m_browser;
    ContentViewModel* m_model = nullptr;
    std::unique_ptr<ContentView> m_view;
};

} // namespace

TEST_F(ContentViewTest, MissingInformationIsEmpty) {
    useInformation(R"({"version": "1.0"})");
    show();
    EXPECT_TRUE(texts().contains(QStringLiteral("1.0 ()")));
    useInformation("{}");
    show();
    EXPECT_TRUE(texts().contains(QStringLiteral(" ()")));
}

TEST_F(ContentViewTest, LayoutIsToThePoint) {
    useInformation(R"({"version": "1.2", "build": "45"})");
    auto& view = show();
    EXPECT_EQ(view.size(), QSize(400, 572));
    EXPECT_EQ(view.minimumSize(), view.maximumSize());
    EXPECT_EQ(place(&view.waveform()), QRect(0, 0, 400, 300));
    EXPECT_LE((place(label(QStringLiteral("Noteloft"))).center() - QPoint(199, 149)).manhattanLength(), 2);

    // Each is laid out 176 wide, with 16 between, and drawn 2 wider on each side.
    EXPECT_EQ(place(button(QStringLiteral("Help"))), QRect(14, 534, 180, 24));
    EXPECT_EQ(place(button(QStringLiteral("Quillfen Website"))), QRect(206, 534, 180, 24));

    const std::array lines{u"Noteloft is now available as an Audio Unit.",
                           u"Keep this app in your applications folder.", u"To use Noteloft, insert it as",
                           u"a MIDI plugin on an instrument track.", u"1.2 (45)"};
    const std::array gaps{1, 16, 1, 16};
    const auto line = [&](std::size_t i) { return place(label(QString::fromUtf16(lines.at(i)))); };
    for (std::size_t i = 0; i < gaps.size(); ++i)
        EXPECT_EQ(line(i + 1).top(), line(i).bottom() + 1 + gaps.at(i)) << i;

    const QRect logo = place(view.findChild<platform::ImageView*>());
    EXPECT_EQ(logo.size(), QSize(116, 32));
    EXPECT_EQ(logo.left(), 142);
    EXPECT_EQ(logo.top(), line(4).bottom() + 1 + 16);
    const int above = line(0).top() - 16 - 300;
    const int below = 534 - (logo.bottom() + 1);
    EXPECT_GE(above, 0);
    EXPECT_LE(std::abs(above - below), 1) << "both spacers share what is left";
}

TEST_F(ContentViewTest, DrawsItsBackgroundAndItsLogo) {
    auto& view = show();
    const QImage image = picture(view);
    const qreal scale = image.devicePixelRatio();
    const auto at = [&](QPoint point) { return image.pixel((QPointF(point) * scale).toPoint()); };
    for (const QPoint point :
         {QPoint(2, 302), QPoint(397, 320), QPoint(2, 569), QPoint(397, 569), QPoint(200, 546)})
        EXPECT_LE(difference(at(point), Colors::background.color().rgba()), 1)
            << point.x() << ", " << point.y();
    const QRect logo = place(view.findChild<platform::ImageView*>());
    int ink = 0;
    for (int y = logo.top(); y <= logo.bottom(); ++y)
        for (int x = logo.left(); x <= logo.right(); ++x)
            ink += difference(at({x, y}), Colors::buttonText.color().rgba()) < 8 ? 1 : 0;
    EXPECT_GT(ink, 50) << "the logo has the colour of the text";
}

TEST_F(ContentViewTest, TitleIsWhiteOnThreeShadows) {
    show();
    auto& title = *m_view->findChild<platform::ShadowedLabel*>();
    title.setText(QStringLiteral("\u2588")); // a block, whose lower edge shows what falls below it
    title.setAttribute(Qt::WA_TranslucentBackground);
    title.resize(title.sizeHint());
    const QImage image = picture(title);
    const qreal scale = image.devicePixelRatio();
    const int column = image.width() / 2;
    int edge = image.height() / 2;
    EXPECT_EQ(image.pixel(column, edge), 0xffffffff);
    while (image.pixel(column, edge) == 0xffffffff)
        ++edge;
    const auto alphaBelow = [&](qreal points) {
        const QRgb pixel = image.pixel(column, edge + static_cast<int>(points * scale));
        EXPECT_TRUE(qBlue(pixel) >= qRed(pixel) && qRed(pixel) >= qGreen(pixel));
        return qAlpha(pixel) / 255.0;
    };
    // Where all three lie, where the sharp one has ended, and where only the widest reaches.
    EXPECT_NEAR(alphaBelow(0.5), 0.77, 0.08);
    EXPECT_NEAR(alphaBelow(1.5), 0.58, 0.08);
    EXPECT_NEAR(alphaBelow(5), 0.15, 0.06);
}

TEST_F(ContentViewTest, ButtonLooksPressedWhilePressed) {
    show();
    auto& help = *button(QStringLiteral("Help"));
    const QImage released = picture(help);
    QTest::mousePress(&help, Qt::LeftButton);
    EXPECT_GT(difference(released, picture(help)), 8);
    QTest::mouseRelease(&help, Qt::LeftButton, {}, {-20, -20});
    EXPECT_EQ(difference(released, picture(help)), 0);
    EXPECT_TRUE(m_browser.opened.isEmpty());
}

TEST_F(ContentViewTest, StatusLineFollowsTheModelInDebugMode) {
    m_model = new ContentViewModel;
    m_view = std::make_unique<ContentView>(m_model, true, 180);
    EXPECT_TRUE(texts().contains(QStringLiteral("Dev Only Debugging: Validating..."))) << "before it appears";
    m_view->show();
    EXPECT_TRUE(QTest::qWaitFor([this] { return texts().constLast() == notFound; }));
    QCoreApplication::processEvents();
    const auto* const status = label(notFound);
    EXPECT_EQ(place(button(QStringLiteral("Help"))).bottom() + 1 + 14, place(status).top());
    EXPECT_TRUE(m_view->rect().contains(place(status)));
    const QRect needed = status->fontMetrics().boundingRect(QRect(0, 0, status->contentsRect().width(), 1000),
                                                            Qt::TextWordWrap, notFound);
    EXPECT_LE(needed.width(), status->contentsRect().width());
    EXPECT_LE(needed.height(), status->contentsRect().height());
}

TEST_F(ContentViewTest, EveryPartSpeaksToAssistiveTechnology) {
    useInformation(R"({"version": "1.2", "build": "45"})");
    show();
    const auto describe = [](QWidget* widget) {
        const auto* const accessible = QAccessible::queryAccessibleInterface(widget);
        return std::pair(accessible->role(), accessible->text(QAccessible::Name).toStdString());
    };
    const auto all = texts();
    for (const QString& text : all)
        EXPECT_EQ(describe(label(text)), std::pair(QAccessible::StaticText, text.toStdString()));
    EXPECT_EQ(describe(m_view->findChild<platform::ImageView*>()),
              std::pair(QAccessible::Graphic, std::string("Quillfen")));
    for (const auto* name : {"Help", "Quillfen Website"}) {
        auto* const each = button(QString::fromLatin1(name));
        EXPECT_EQ(describe(each), std::pair(QAccessible::Button, std::string(name)));
        auto* const actions = QAccessible::queryAccessibleInterface(each)->actionInterface();
        ASSERT_NE(actions, nullptr);
        actions->doAction(QAccessibleActionInterface::pressAction());
    }
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_browser.opened.size() == 2; })) << "they can be pressed";
}
