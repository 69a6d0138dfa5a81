#pragma once

#include <QStringList>
#include <QWidget>

class QVBoxLayout;

namespace gallery {

class StateGrid;

/// A titled part of a page.
class Section : public QWidget {
    Q_OBJECT

public:
    /// `note` is a sentence under the title, or empty.
    Section(const QString& title, const QString& note, QWidget* parent = nullptr);

    /// Takes the widget and puts it under what is there.
    void add(QWidget* content);

    /// Adds a grid of variants by states.
    StateGrid& addGrid(const QStringList& states);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QVBoxLayout* m_stack;
};

} // namespace gallery
