#include "Platform/Controls/MenuStyle.h"
#include "Platform/Text/FieldEditor.h"
#include "Tidepool/Text/StyledSearchField.h"
#include "tests/desktop/Desktop.h"
#include "tests/support/ActionCounter.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QMenu>
#include <QTest>

#include <gtest/gtest.h>

using tidepool::StyledSearchField;
using tidepool::StyledTextField;

namespace {

/// Two fields and a search field, used with a real keyboard and pointer.
class TextTest : public testing::Test {
protected:
    TextTest() {
        m_first.setGeometry(20, 20, 200, 22);
        m_second.setGeometry(20, 60, 200, 22);
        m_search.setGeometry(20, 100, 200, 24);
        m_second.setAction(ActionCounter::first, &m_counter);
        m_window.resize(260, 150);
        m_window.show();
        EXPECT_TRUE(Desktop::waitUntil([this] { return m_window.isActiveWindow(); }));
    }

    static QPoint at(const QWidget& view, int x) { return view.mapToGlobal(QPoint(x, view.height() / 2)); }

    bool has(const StyledTextField& field, const char16_t* text) {
        return Desktop::waitUntil([&] { return field.stringValue() == QString::fromUtf16(text); });
    }

    Desktop m_desktop;
    ActionCounter m_counter;
    QWidget m_window;
    StyledTextField m_first{QStringLiteral("mmmm"), &m_window};
    StyledTextField m_second{QStringLiteral("other words"), &m_window};
    StyledSearchField m_search{&m_window};
};

} // namespace

TEST_F(TextTest, ThePointerSetsTheInsertionPointAndSelects) {
    m_desktop.click(at(m_first, 180));
    m_desktop.press(Key::q);
    EXPECT_TRUE(has(m_first, u"mmmmq"));
    m_desktop.click(at(m_first, 9));
    m_desktop.press(Key::w);
    EXPECT_TRUE(has(m_first, u"wmmmmq"));
    m_desktop.drag(at(m_second, 8), at(m_second, 150));
    m_desktop.press(Key::m);
    EXPECT_TRUE(has(m_second, u"m"));
    m_desktop.movePointer(at(m_first, 100));
    Desktop::wait(50);
    EXPECT_EQ(m_second.currentEditor()->selectedText().size(), 0) << "the drag is over";
    EXPECT_EQ(m_first.stringValue(), QStringLiteral("wmmmmq"));
}

TEST_F(TextTest, TheKeyboardGoesThroughTheFieldsAndSendsOnce) {
    m_first.setFocus();
    m_desktop.press(Key::tab);
    EXPECT_TRUE(Desktop::waitUntil([&] { return m_second.isFirstResponder(); }));
    m_desktop.press(Key::q);
    EXPECT_TRUE(has(m_second, u"q")) << "Tab selects all";
    m_desktop.press(Key::escape);
    EXPECT_TRUE(has(m_second, u"other words"));
    m_desktop.press(Key::w);
    m_desktop.press(Key::enter);
    EXPECT_TRUE(Desktop::waitUntil([&] { return m_counter.count == 1; }));
    m_desktop.press(Key::tab);
    EXPECT_TRUE(Desktop::waitUntil([&] { return m_search.isFirstResponder(); }));
    EXPECT_EQ(m_counter.count, 1);
    m_desktop.press(Key::q);
    EXPECT_TRUE(has(m_search, u"q"));
    m_desktop.click(at(m_search, 188));
    EXPECT_TRUE(has(m_search, u""));
}

TEST_F(TextTest, AnotherWindowEndsNoEditingAndComposingIsNoText) {
    m_desktop.click(at(m_first, 180));
    const QPointer<platform::FieldEditor> editor = m_first.currentEditor();
    ASSERT_NE(editor, nullptr);
    QInputMethodEvent composing(QStringLiteral("に"), {});
    QApplication::sendEvent(editor, &composing);
    EXPECT_EQ(m_first.stringValue(), QStringLiteral("mmmm"));
    QInputMethodEvent committing;
    committing.setCommitString(QStringLiteral("日"));
    QApplication::sendEvent(editor, &committing);
    EXPECT_EQ(m_first.stringValue(), QStringLiteral("mmmm日"));
    {
        QWidget other;
        other.show();
        EXPECT_TRUE(Desktop::waitUntil([&] { return other.isActiveWindow(); }));
        EXPECT_EQ(m_first.currentEditor(), editor);
    }
    EXPECT_TRUE(Desktop::waitUntil([&] { return m_window.isActiveWindow(); }));
    m_desktop.press(Key::q);
    EXPECT_TRUE(has(m_first, u"mmmm日q"));
}

TEST_F(TextTest, TheContextMenuIsOursAndKeepsTheSelection) {
    m_desktop.click(at(m_first, 180));
    m_first.currentEditor()->selectAll();
    m_desktop.clickSecondary(at(m_first, 30));
    ASSERT_TRUE(Desktop::waitUntil([] { return QApplication::activePopupWidget() != nullptr; }));
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_NE(qobject_cast<platform::MenuStyle*>(menu->style()), nullptr) << "not the desktop's look";
    m_desktop.press(Key::escape);
    EXPECT_TRUE(Desktop::waitUntil([] { return QApplication::activePopupWidget() == nullptr; }));
    EXPECT_TRUE(m_first.isFirstResponder());
    m_desktop.press(Key::control, Key::w);
    m_desktop.press(Key::q);
    EXPECT_TRUE(has(m_first, u"q")) << "what was selected is replaced";
}
