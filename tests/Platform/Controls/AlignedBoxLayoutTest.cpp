#include "Platform/Controls/AlignedBoxLayout.h"
#include "Platform/Controls/PushButton.h"
#include "tests/support/Pixels.h"

#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

using platform::AlignedBoxLayout;
using platform::PushButton;

namespace {

/// A button that reaches beyond what aligns with its neighbours.
class Overhanging : public PushButton {
public:
    using PushButton::PushButton;

    QMarginsF alignmentRectInsets() const override { return insets; }

    QMarginsF insets;
};

/// The lowest row of `widget`, in its parent's coordinates, in which a letter is darker than what it is on.
int footOfText(QWidget& widget) {
    const QImage image = picture(widget);
    int foot = -1;
    for (int y = 4; y < image.height() - 4; ++y)
        for (int x = 4; x < image.width() - 4; ++x)
            if (qGray(image.pixel(x, y)) > 160)
                foot = y;
    return foot + widget.y();
}

} // namespace

TEST(AlignedBoxLayout, TextsOfARowStandOnOneLine) {
    QWidget window;
    QPalette palette = window.palette();
    for (const auto role : {QPalette::ButtonText, QPalette::WindowText})
        palette.setColor(role, Qt::white);
    for (const auto role : {QPalette::Button, QPalette::Window})
        palette.setColor(role, Qt::black);
    window.setPalette(palette);
    auto* const row = new AlignedBoxLayout(QBoxLayout::LeftToRight, &window);
    auto* const usual = new PushButton(QStringLiteral("HHH"));
    auto* const below = new Overhanging(QStringLiteral("HHH"));
    below->insets = {0, 12, 0, 0};
    auto* const large = new PushButton(QStringLiteral("HHH"));
    QFont font = large->font();
    font.setPixelSize(40);
    large->setFont(font);
    large->setBordered(false);
    auto* const label = new QLabel(QStringLiteral("HHH"));
    auto* const box = new QWidget;
    box->setFixedSize(10, 10);
    for (QWidget* const widget : std::initializer_list<QWidget*>{usual, below, large, label, box})
        row->addWidget(widget);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    for (const int height : {window.height(), window.height() + 31}) {
        window.resize(window.width(), height);
        QCoreApplication::processEvents();
        const int line = footOfText(*usual);
        EXPECT_NEAR(footOfText(*below), line, 1);
        EXPECT_NEAR(footOfText(*large), line, 1);
        EXPECT_NEAR(footOfText(*label), line, 1);
        EXPECT_EQ(usual->height(), usual->sizeHint().height()) << "no control grows with its row";
        EXPECT_NEAR(box->geometry().center().y(), window.height() / 2, 1) << "what has no text is centred";
        for (const QWidget* const widget : std::initializer_list<QWidget*>{usual, below, large, label})
            EXPECT_TRUE(window.rect().contains(widget->geometry()));
    }
}

TEST(AlignedBoxLayout, NeighboursTouchAtTheirAlignmentRectangles) {
    for (const auto direction : {QBoxLayout::LeftToRight, QBoxLayout::TopToBottom}) {
        QWidget window;
        auto* const layout = new AlignedBoxLayout(direction, &window);
        layout->setContentsMargins({});
        layout->setSpacing(0);
        auto* const first = new Overhanging(QStringLiteral("A"));
        auto* const second = new Overhanging(QStringLiteral("B"));
        first->insets = second->insets = {3, 4, 5, 6};
        layout->addWidget(first);
        layout->addWidget(second);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        const QRect upper = first->geometry() - first->insets.toMargins();
        const QRect lower = second->geometry() - second->insets.toMargins();
        EXPECT_EQ(upper.topLeft(), QPoint(0, 0));
        if (direction == QBoxLayout::LeftToRight)
            EXPECT_EQ(lower.topLeft(), upper.topRight() + QPoint(1, 0));
        else
            EXPECT_EQ(lower.topLeft(), upper.bottomLeft() + QPoint(0, 1));
        EXPECT_EQ(window.size(), layout->sizeHint());
        EXPECT_EQ(QRect(QPoint(), window.size()).bottomRight(), lower.bottomRight());
    }
}
