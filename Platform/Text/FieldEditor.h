#pragma once

#include <QLineEdit>

#include <memory>

namespace platform {

class FormattedValue;
class TextField;

/// The editor that a text field brings up over its text while the keyboard is on it.
class FieldEditor : public QLineEdit {
    Q_OBJECT

public:
    /// What it keeps free on both sides of its line, in points.
    static constexpr int margin = 2;
    /// What a line edit keeps free above its line.
    static constexpr int marginAbove = 1;

    /// How far a text that fits lies from the left edge of its line, in points. `alignment` is the visual
    /// one.
    static int offsetInLine(qreal textWidth, int lineWidth, Qt::Alignment alignment);

    explicit FieldEditor(TextField& field);

    /// Puts the line there, as exactly as the screen's pixels allow, in points of the field.
    void setLine(const QRectF& line);

    /// Deletes it, if it is just handling an event once it has done so.
    void dispose();

    /// Takes the text, as one that nobody has edited.
    void begin(const QString& text);

    /// What is typed must be acceptable to it. Null for no restriction.
    void setFormattedValue(std::shared_ptr<const FormattedValue> value);

Q_SIGNALS:
    /// The keyboard has gone elsewhere.
    void left();
    /// What was typed or pasted was not taken, and why, for people.
    void refused(const QString& reason);

protected:
    bool event(QEvent* event) override;
    void initPainter(QPainter* painter) const override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void tellRefusal();

    TextField& m_field;
    std::shared_ptr<const FormattedValue> m_value;
    QString m_refusal;
    qreal m_shift = 0;
    int m_events = 0; // that it is handling
};

} // namespace platform
