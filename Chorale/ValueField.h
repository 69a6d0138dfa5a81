#pragma once

#include <QColor>
#include <QLineEdit>

namespace chorale {

/// A field over a label, to type a value into. It is closed until `open`. A press elsewhere or the loss of
/// the keyboard closes it in silence; Return and Escape leave that to whoever hears of them.
class ValueField : public QLineEdit {
    Q_OBJECT

public:
    /// `fontSize` is in points.
    ValueField(const QColor& color, qreal fontSize, QWidget& label);
    ~ValueField() override;

    bool isOpen() const { return m_isOpen; }

    void open();
    void close();

Q_SIGNALS:
    void submitted();
    void abandoned();
    void openChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// True for a key that ends the typing.
    bool handleKey(QKeyEvent& event);

    QWidget& m_label;
    bool m_isOpen = false;
    bool m_labelHadFocus = false; // before the field took it
};

} // namespace chorale
