#include "Platform/Text/FieldEditor.h"
#include "Tidepool/Formatters/ConstantNameFormatter.h"
#include "Tidepool/Formatters/ExpressionFormatter.h"
#include "Tidepool/Text/StyledTextField.h"
#include "tests/support/ActionCounter.h"

#include <QApplication>
#include <QClipboard>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

using tidepool::StyledTextField;

namespace {

/// Reads "bad" as nothing, and everything as `whileReading` wants.
class TestFormatter : public platform::Formatter {
public:
    std::function<void()> whileReading = [] {};

    std::optional<QString> stringForObjectValue(const QVariant& object) const override {
        return u'<' + object.toString() + u'>';
    }

    std::optional<QString> editingStringForObjectValue(const QVariant& object) const override {
        return object.toString();
    }

    ObjectValue getObjectValue(const QString& text) const override {
        whileReading();
        if (text == u"bad")
            return {{}, QStringLiteral("Not bad, please")};
        return {text, {}};
    }
};

class FormattedTextFieldTest : public testing::Test {
protected:
    FormattedTextFieldTest() {
        field->setAction(ActionCounter::first, &counter);
        other.move(0, 40);
        window.resize(200, 80);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        other.setFocus();
    }

    std::string shown() const { return field->stringValue().toStdString(); }

    void edit(const char* text) {
        field->setFocus(Qt::TabFocusReason);
        QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(text));
    }

    QWidget window;
    ActionCounter counter;
    QPointer<StyledTextField> field{new StyledTextField({}, &window)};
    QPushButton other{&window};
};

} // namespace

TEST_F(FormattedTextFieldTest, ShowsOneTextAndGivesAnotherToEdit) {
    field->setFormatter(std::make_shared<tidepool::ConstantNameFormatter>());
    field->setObjectValue(QStringLiteral("gain"));
    EXPECT_EQ(shown(), "$gain");
    field->setFocus();
    EXPECT_EQ(shown(), "gain");
    other.setFocus();
    EXPECT_EQ(shown(), "$gain");
    EXPECT_EQ(counter.count, 0);
    edit("level");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(field->objectValue().toString().toStdString(), "level");
    EXPECT_EQ(shown(), "level") << "it is still edited";
    other.setFocus();
    EXPECT_EQ(shown(), "$level");
    EXPECT_EQ(counter.count, 1);
}

TEST_F(FormattedTextFieldTest, RefusesAKeyWhereverTheInsertionPointStands) {
    field->setFormatter(std::make_shared<tidepool::ConstantNameFormatter>());
    field->setObjectValue(QStringLiteral("gain"));
    QStringList reasons;
    QObject::connect(field, &StyledTextField::refused, [&](const QString& reason) { reasons << reason; });
    field->setFocus();
    platform::FieldEditor* const editor = field->currentEditor();
    editor->setCursorPosition(2);
    QTest::keyClick(editor, Qt::Key_Space);
    EXPECT_EQ(editor->cursorPosition(), 2);
    editor->setSelection(1, 2);
    QApplication::clipboard()->setText(QStringLiteral("a b"));
    editor->paste();
    EXPECT_EQ(editor->text().toStdString(), "gain");
    EXPECT_EQ(editor->selectedText().toStdString(), "ai");
    QTest::keyClicks(editor, QStringLiteral("x_"));
    EXPECT_EQ(shown(), "gx_n");
    ASSERT_EQ(reasons.size(), 2);
    EXPECT_TRUE(reasons.first().startsWith(u"Constant names must"));
}

TEST_F(FormattedTextFieldTest, ATextThatCannotBeReadStaysAndSendsNothing) {
    field->setFormatter(std::make_shared<TestFormatter>());
    field->setObjectValue(QStringLiteral("good"));
    edit("bad");
    other.setFocus();
    EXPECT_EQ(shown(), "bad");
    EXPECT_EQ(field->formattingError(), QStringLiteral("Not bad, please"));
    EXPECT_TRUE(field->context().state.contains(platform::StyledControlState::invalid));
    EXPECT_EQ(field->objectValue().toString().toStdString(), "good");
    EXPECT_EQ(counter.count, 0);
    field->setFocus();
    EXPECT_EQ(shown(), "bad") << "to be mended";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(shown(), "good");
    EXPECT_FALSE(field->formattingError());
    edit("bad");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(field->formattingError());
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("ly"));
    EXPECT_FALSE(field->formattingError()) << "already mended";
    other.setFocus();
    EXPECT_EQ(shown(), "<badly>");
    EXPECT_EQ(counter.count, 1);
}

TEST_F(FormattedTextFieldTest, AFormatterMayThrowChangeTheFieldOrDestroyIt) {
    const auto formatter = std::make_shared<TestFormatter>();
    field->setFormatter(formatter);
    formatter->whileReading = [] { throw std::runtime_error("Thrown"); };
    edit("a");
    other.setFocus();
    EXPECT_EQ(field->formattingError(), QStringLiteral("Thrown"));
    formatter->whileReading = [&] { field->setObjectValue(7); };
    edit("b");
    other.setFocus();
    EXPECT_EQ(shown(), "<7>") << "set while the mended text was looked at";
    formatter->whileReading = [&] { field->setFormatter(nullptr); };
    edit("c");
    other.setFocus();
    EXPECT_EQ(field->formatter(), nullptr);
    field->setFormatter(formatter);
    formatter->whileReading = [&] { delete field; };
    edit("d");
    other.setFocus();
    EXPECT_EQ(field, nullptr);
}

TEST_F(FormattedTextFieldTest, TakesWhatIsStrangeAndWhatIsLong) {
    const QString strange = QStringLiteral("a") + QString(20'000, QChar(0x301)) + QChar(0xd800) +
                            QChar(0xdc00 - 1) + QStringLiteral("\u202e\u2066x");
    QApplication::clipboard()->setText(strange);
    field->setFocus();
    field->currentEditor()->paste();
    window.grab();
    other.setFocus();
    window.grab();
    EXPECT_EQ(field->stringValue(), strange);
    const QString megabytes(1'000'000, u'w');
    field->setStringValue(megabytes);
    field->setFocus();
    other.setFocus();
    EXPECT_EQ(field->stringValue().size(), megabytes.size()) << "nothing is cut off";
}
