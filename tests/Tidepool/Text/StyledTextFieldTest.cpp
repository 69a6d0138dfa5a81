#include "Platform/Text/FieldEditor.h"
#include "Tidepool/Text/StyledTextLabels.h"
#include "tests/support/ActionCounter.h"
#include "tests/support/Pixels.h"

#include <QAccessible>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <cmath>

using platform::FieldEditor;
using tidepool::StyledTextField;
using tidepool::TextFieldCellStyle;

namespace {

/// A window with a field and something that takes the keyboard from it.
class StyledTextFieldTest : public testing::Test {
protected:
    StyledTextFieldTest() {
        field.setParent(&window);
        field.setGeometry(10, 10, 180, 22);
        other.setParent(&window);
        other.move(10, 40);
        window.resize(260, 90);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        other.setFocus();
    }

    QImage drawn(qreal scale) {
        QImage image(window.size() * scale, QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        image.fill(QColor(20, 20, 30));
        window.render(&image, {}, {}, QWidget::DrawChildren);
        const QRectF part(field.geometry());
        return image.copy(QRectF(part.topLeft() * scale, part.size() * scale).toAlignedRect());
    }

    void type(const char* text) {
        QWidget* const focus = QApplication::focusWidget();
        ASSERT_NE(focus, nullptr);
        QTest::keyClicks(focus, QString::fromUtf8(text));
    }

    QWidget window;
    StyledTextField field{QStringLiteral("Bass")};
    QPushButton other;
};

} // namespace

TEST_F(StyledTextFieldTest, TextStandsOnTheSamePixelsInTheEditor) {
    auto style = std::make_shared<TextFieldCellStyle>();
    style->setBezelImages({});
    style->setFocusRingColor(Qt::transparent);
    field.cell().setStyle(style);
    for (const char16_t* const text : {u"Bass", u"Åjyg (fi), 50 %", u"שלום"})
        for (const auto alignment : {Qt::AlignLeading, Qt::AlignHCenter, Qt::AlignTrailing})
            for (const bool framed : {true, false})
                for (const int width : {153, 180})
                    for (const qreal scale : {1.0, 1.25, 1.5, 2.0, 3.0}) {
                        SCOPED_TRACE(testing::Message()
                                     << QString::fromUtf16(text).toStdString() << ' ' << alignment << ' '
                                     << framed << ' ' << width << ' ' << scale);
                        field.setStringValue(QString::fromUtf16(text));
                        field.cell().setAlignment(alignment);
                        field.cell().setBezeled(framed);
                        field.cell().setBordered(framed);
                        field.resize(width, 25);
                        const QImage shown = drawn(scale);
                        field.setFocus();
                        FieldEditor* const editor = field.currentEditor();
                        ASSERT_NE(editor, nullptr);
                        editor->setReadOnly(true); // without an insertion point
                        editor->deselect();
                        EXPECT_LE(difference(drawn(scale), shown), 40) << "a pixel aside makes 100";
                        editor->setReadOnly(false);
                        other.setFocus();
                        ASSERT_EQ(field.currentEditor(), nullptr);
                    }
}

TEST_F(StyledTextFieldTest, SendsWhatWasTypedOnceAndTakesEscapeBack) {
    ActionCounter counter;
    field.setAction(ActionCounter::first, &counter);
    QStringList typed;
    QObject::connect(&field, &StyledTextField::textChanged, &window,
                     [&](const QString& text) { typed << text; });
    QTest::mouseClick(&field, Qt::LeftButton, {}, {100, 11});
    type("!");
    EXPECT_EQ(field.stringValue(), QStringLiteral("Bass!")) << "the click set the insertion point";
    QTest::keyClick(field.currentEditor(), Qt::Key_Return);
    EXPECT_EQ(counter.count, 1);
    type("Lead");
    EXPECT_EQ(typed.last(), QStringLiteral("Lead")) << "all is selected after Return";
    QTest::keyClick(field.currentEditor(), Qt::Key_Escape);
    EXPECT_EQ(field.stringValue(), QStringLiteral("Bass!"));
    QTest::keyClick(field.currentEditor(), Qt::Key_Tab);
    EXPECT_TRUE(other.hasFocus());
    EXPECT_EQ(counter.count, 1) << "nothing was changed";
    QTest::keyClick(&other, Qt::Key_Backtab);
    ASSERT_NE(field.currentEditor(), nullptr);
    type("Pad");
    field.setEnabled(false);
    EXPECT_EQ(field.currentEditor(), nullptr);
    EXPECT_EQ(field.stringValue(), QStringLiteral("Pad")) << "what was typed is not lost";
    EXPECT_EQ(counter.count, 2);
}

TEST_F(StyledTextFieldTest, TellsWhenTheKeyboardComesAndGoes) {
    QList<bool> statuses;
    const auto token = field.firstResponderPublisher()->sink([&](const auto& change) {
        EXPECT_EQ(change.first, &field);
        statuses << change.second;
    });
    field.setFocus();
    EXPECT_TRUE(field.isFirstResponder());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    EXPECT_TRUE(other.hasFocus()) << "the field is one stop, with its editor";
    field.setFocus();
    field.hide();
    EXPECT_EQ(statuses, QList<bool>({true, false, true, false}));
    EXPECT_FALSE(field.publishedFirstResponderStatus());
}

TEST_F(StyledTextFieldTest, MayBeDestroyedByWhoeverHearsOfIt) {
    for (const bool byAction : {true, false}) {
        auto* const doomed = new StyledTextField({}, &window);
        doomed->show();
        if (byAction)
            QObject::connect(doomed, &StyledTextField::editingEnded, &window, [=] { delete doomed; });
        else
            QObject::connect(doomed, &StyledTextField::textChanged, &window, [=] { delete doomed; });
        const QPointer<StyledTextField> alive(doomed);
        doomed->setFocus();
        type("x");
        if (byAction)
            other.setFocus();
        EXPECT_EQ(alive, nullptr);
    }
}

TEST_F(StyledTextFieldTest, WhatTheProgramSetsIsShownInTheEditor) {
    field.setFocus();
    type("abc");
    field.setStringValue(QStringLiteral("set"));
    EXPECT_EQ(field.currentEditor()->text(), QStringLiteral("set"));
    QAccessibleInterface* const entry = QAccessible::queryAccessibleInterface(&field);
    EXPECT_EQ(entry->role(), QAccessible::EditableText);
    entry->setText(QAccessible::Value, QStringLiteral("spoken"));
    EXPECT_EQ(field.stringValue(), QStringLiteral("spoken"));
    EXPECT_EQ(field.currentEditor()->text(), QStringLiteral("spoken"));
    other.setFocus();
    entry->editableTextInterface()->insertText(2, QStringLiteral("ll"));
    EXPECT_EQ(entry->textInterface()->text(0, 99), QStringLiteral("splloken"));
}

TEST(StyledTextLabels, AreTextsThatTakeNoKeyboard) {
    tidepool::StyledTableRowLabel label(QStringLiteral("R&B & Soul"));
    QWidget& view = label;
    view.show();
    view.setFocus();
    EXPECT_EQ(label.currentEditor(), nullptr);
    EXPECT_TRUE(view.findChildren<QLineEdit*>().isEmpty());
    const double narrow = label.intrinsicContentSize().width();
    label.setStringValue(QStringLiteral("R&B & Soul & Gospel"));
    EXPECT_GT(label.intrinsicContentSize().width(), narrow + 30);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&view)->text(QAccessible::Name), label.stringValue());
}
