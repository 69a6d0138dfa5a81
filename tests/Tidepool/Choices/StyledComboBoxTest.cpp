#include "Tidepool/Choices/StyledComboBox.h"

#include "Platform/Controls/ListPopup.h"
#include "Platform/Controls/ListView.h"
#include "Platform/Text/FieldEditor.h"
#include "tests/support/ActionCounter.h"
#include "tests/support/Pixels.h"

#include <QAccessible>
#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QStringListModel>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>

using namespace tidepool;
using platform::FieldEditor;
using platform::ListPopup;

namespace {

class StyledComboBoxTest : public testing::Test {
protected:
    StyledComboBoxTest() : m_other(&m_window) {
        m_window.resize(400, 300);
        m_window.move(100, 100);
        m_other.setGeometry(0, 250, 100, 20);
        m_box->setGeometry(20, 20, 124, 24);
        m_box->setObjectValues({QStringLiteral("Bass"), QStringLiteral("Bassoon"), QStringLiteral("cello"),
                                QStringLiteral("Cellos & more"), 12, 2.5});
        m_box->setAction(ActionCounter::first, &m_target);
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
        m_other.setFocus();
    }

    ListPopup& list() { return *m_box->findChild<ListPopup*>(); }

    FieldEditor& editor() { return *m_box->currentEditor(); }

    QPoint arrow() {
        return m_box->cell().arrowRect(QRectF(m_box->rect()), m_box->context()).center().toPoint();
    }

    void press(QPoint position) { QTest::mousePress(m_box, Qt::LeftButton, {}, position); }

    /// What gets the keys from the desktop.
    QWidget* keyboard() {
        return QApplication::activePopupWidget() != nullptr ? QApplication::activePopupWidget()
                                                            : QApplication::focusWidget();
    }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(keyboard(), key, modifiers);
        QCoreApplication::processEvents();
    }

    void type(const QString& text) {
        for (const QChar letter : text)
            QTest::sendKeyEvent(QTest::Click, keyboard(), Qt::Key_unknown, QString(letter), {});
    }

    void clickRow(int row) {
        auto& view = *list().findChild<platform::ListView*>();
        const QPoint center = view.visualRect(view.model()->index(row, 0)).center();
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, center);
        QCoreApplication::processEvents();
    }

    QWidget m_window;
    QLineEdit m_other;
    ActionCounter m_target;
    QPointer<StyledComboBox> m_box = new StyledComboBox(&m_window);
};

} // namespace

TEST_F(StyledComboBoxTest, TheArrowTurnsEachTimeThatTheListOpensAndCloses) {
    const QRect plate = m_box->cell().arrowRect(QRectF(m_box->rect()), m_box->context()).toRect();
    const auto shown = [&] { return picture(*m_box).copy(plate.adjusted(5, 6, -5, -6)); };
    const QImage closed = shown();
    const std::pair<std::function<void()>, std::function<void()>> ways[]{
        {[this] { press(arrow()); }, [this] { key(Qt::Key_Escape); }},
        {[this] { key(Qt::Key_Down); }, [this] { key(Qt::Key_F4); }},
        {[this] { key(Qt::Key_Down, Qt::AltModifier); }, [this] { key(Qt::Key_Up, Qt::AltModifier); }},
        {[this] { key(Qt::Key_F4); },
         [this] {
             QTest::mousePress(&list(), Qt::LeftButton, {}, {-9, -9});
         }},
        {[this] { m_box->openList(); }, [this] { m_box->hide(); }},
    };
    for (const auto& [open, close] : ways) {
        open();
        QCoreApplication::processEvents();
        ASSERT_TRUE(m_box->isListOpen());
        EXPECT_TRUE(m_box->cell().isPopupOpen());
        EXPECT_GT(difference(shown(), closed), 50);
        EXPECT_TRUE(editor().hasFocus());
        EXPECT_GE(list().y(), m_box->mapToGlobal(QPoint(0, 21)).y());
        close();
        EXPECT_FALSE(m_box->isListOpen());
        EXPECT_FALSE(m_box->cell().isPopupOpen());
        m_box->show();
        m_other.setFocus();
        EXPECT_EQ(shown(), closed);
        m_box->setFocus();
    }
    EXPECT_EQ(m_target.count, 0);
    m_box->setEnabled(false);
    m_box->openList();
    EXPECT_FALSE(m_box->isListOpen());
}

TEST_F(StyledComboBoxTest, CompletesWhatIsTypedAtTheEnd) {
    m_box->setFocus();
    QStringList heard;
    QObject::connect(m_box, &StyledComboBox::textChanged, m_box, [&](const QString& text) { heard << text; });
    type(QStringLiteral("b"));
    EXPECT_EQ(editor().text(), QStringLiteral("Bass"));
    EXPECT_EQ(editor().selectedText(), QStringLiteral("ass"));
    EXPECT_EQ(heard.last(), QStringLiteral("Bass")) << "what is heard last is what is there";
    type(QStringLiteral("asso"));
    EXPECT_EQ(m_box->stringValue(), QStringLiteral("Bassoon"));
    key(Qt::Key_Backspace);
    EXPECT_EQ(m_box->stringValue(), QStringLiteral("Basso")) << "taking away completes nothing";
    editor().setCursorPosition(0);
    type(QStringLiteral("B"));
    EXPECT_EQ(m_box->stringValue(), QStringLiteral("BBasso"));
    m_box->setCompletes(false);
    editor().clear();
    type(QStringLiteral("ba"));
    EXPECT_EQ(m_box->stringValue(), QStringLiteral("ba"));
    key(Qt::Key_Return);
    EXPECT_EQ(m_target.count, 1);
    EXPECT_EQ(m_box->indexOfSelectedItem(), -1);
}

TEST_F(StyledComboBoxTest, KeysOfTheOpenListShowValuesUntilOneIsChosen) {
    m_box->setStringValue(QStringLiteral("Own"));
    m_box->setFocus();
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    EXPECT_EQ(editor().text(), QStringLiteral("Bassoon"));
    EXPECT_EQ(m_box->stringValue(), QStringLiteral("Own")) << "not chosen yet";
    key(Qt::Key_Escape);
    EXPECT_EQ(editor().text(), QStringLiteral("Own"));
    EXPECT_FALSE(m_box->isListOpen());
    key(Qt::Key_F4);
    type(QStringLiteral("x"));
    key(Qt::Key_Down);
    key(Qt::Key_Escape);
    EXPECT_EQ(editor().text(), QStringLiteral("Ownx")) << "what was typed meanwhile stays";
    editor().selectAll();
    key(Qt::Key_F4);
    type(QStringLiteral("ce"));
    EXPECT_EQ(list().currentRow(), 2) << "the list goes along";
    EXPECT_EQ(m_target.count, 0);
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ(m_box->stringValue(), QStringLiteral("Cellos & more"));
    EXPECT_EQ(m_box->indexOfSelectedItem(), 3);
    EXPECT_EQ(m_target.count, 1);
    EXPECT_TRUE(editor().hasFocus());
    key(Qt::Key_F4);
    EXPECT_EQ(list().currentRow(), 3);
    key(Qt::Key_Up);
    key(Qt::Key_Tab);
    EXPECT_EQ(m_box->stringValue(), QStringLiteral("cello")) << "Tab takes what is shown";
    EXPECT_EQ(m_box->currentEditor(), nullptr);
    EXPECT_EQ(m_target.count, 2);
}

TEST_F(StyledComboBoxTest, AChosenNumberIsItsDoubleValue) {
    m_box->openList();
    clickRow(4);
    EXPECT_EQ(m_box->doubleValue(), 12);
    EXPECT_EQ(m_box->stringValue(), QStringLiteral("12"));
    EXPECT_EQ(m_target.count, 1);
    m_box->openList();
    clickRow(5);
    EXPECT_EQ(m_box->doubleValue(), 2.5);
    EXPECT_EQ(m_target.lastSender, m_box);
    m_box->openList();
    clickRow(5);
    EXPECT_EQ(m_target.count, 3) << "also the same again";
    m_other.setFocus();
    EXPECT_EQ(m_target.count, 3) << "leaving adds none";
    m_box->selectItem(0);
    m_box->setDoubleValue(0.1);
    EXPECT_EQ(m_box->stringValue(), QStringLiteral("0.1"));
    EXPECT_EQ(m_target.count, 3);
}

TEST_F(StyledComboBoxTest, MirrorsItselfAndDimsFieldAndArrowAlike) {
    const QImage normal = picture(*m_box);
    m_box->setLayoutDirection(Qt::RightToLeft);
    EXPECT_LE(difference(picture(*m_box), normal.mirrored(true, false)), 1);
    press({8, 12});
    EXPECT_TRUE(m_box->isListOpen()) << "the arrow is on the left";
    m_box->closeList();
    m_other.setFocus();
    m_box->setLayoutDirection(Qt::LeftToRight);
    m_box->setEnabled(false);
    const QImage disabled = picture(*m_box);
    const QRgb ground = normal.pixel(0, 0);
    for (const int x : {30, 112}) {
        const QRgb full = normal.pixel(x, 8);
        EXPECT_NEAR(qBlue(disabled.pixel(x, 8)), (qBlue(full) + qBlue(ground)) / 2, 3) << x;
    }
}

TEST_F(StyledComboBoxTest, OpensLongListsAtOnce) {
    for (const auto& [count, limit] : {std::pair{1000, 50}, std::pair{100'000, 200}}) {
        QStringList titles;
        for (int i = 0; i < count; ++i)
            titles << QStringLiteral("Sample %1").arg(i);
        QStringListModel model(titles);
        m_box->setModel(&model);
        m_box->setStringValue(titles.last());
        qint64 fastest = std::numeric_limits<qint64>::max();
        for (int i = 0; i < 3; ++i) {
            QElapsedTimer timer;
            timer.start();
            m_box->openList();
            list().repaint();
            fastest = std::min(fastest, timer.elapsed());
            EXPECT_EQ(list().currentRow(), count - 1);
            m_box->closeList();
        }
        EXPECT_LE(fastest, limit) << count;
        RecordProperty("milliseconds" + std::to_string(count), static_cast<int>(fastest));
    }
    EXPECT_EQ(m_box->model(), nullptr) << "it has gone";
    m_box->openList();
    EXPECT_FALSE(m_box->isListOpen());
}

TEST_F(StyledComboBoxTest, ValuesMayChangeAndItMayGoWhileTheListIsOpen) {
    QStringListModel model({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    m_box->setModel(&model);
    m_box->openList();
    const int high = list().height();
    model.removeRows(0, 2);
    EXPECT_TRUE(QTest::qWaitFor([&] { return list().height() < high; }));
    model.setStringList({});
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_box->isListOpen(); }));
    model.setStringList({QStringLiteral("Ab")});
    m_box->openList();
    QObject::connect(m_box, &StyledComboBox::itemChosen, &m_window, [this] { delete m_box; });
    clickRow(0);
    EXPECT_EQ(m_box, nullptr);
    EXPECT_EQ(m_target.count, 0);

    m_box = new StyledComboBox(&m_window);
    m_box->setModel(&model);
    m_box->show();
    m_box->openList();
    QObject::connect(m_box, &StyledComboBox::textChanged, &m_window, [this](const QString& text) {
        if (text.size() > 1)
            delete m_box; // by the completion
    });
    type(QStringLiteral("a"));
    EXPECT_EQ(m_box, nullptr);
}

TEST_F(StyledComboBoxTest, AssistiveTechnologySeesAnEditableComboBox) {
    m_box->setAccessibleName(QStringLiteral("Instrument"));
    auto* const spoken = QAccessible::queryAccessibleInterface(m_box);
    EXPECT_EQ(spoken->role(), QAccessible::ComboBox);
    EXPECT_TRUE(spoken->state().editable);
    EXPECT_TRUE(spoken->state().collapsed);
    spoken->setText(QAccessible::Value, QStringLiteral("Harp"));
    EXPECT_EQ(spoken->text(QAccessible::Value), QStringLiteral("Harp"));
    EXPECT_EQ(m_target.count, 1);
    spoken->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_TRUE(m_box->isListOpen());
    EXPECT_TRUE(spoken->state().expanded);
}
