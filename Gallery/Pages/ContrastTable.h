#pragma once

#include <QStringList>
#include <QWidget>

namespace gallery {

/// The colours of text on the kit's grounds, in both appearances, with their contrast.
class ContrastTable : public QWidget {
    Q_OBJECT

public:
    ContrastTable(const QStringList& texts, const QStringList& grounds, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintRow(QPainter& painter, int y, const QString& text) const;

    QStringList m_texts;
    QStringList m_grounds;
};

} // namespace gallery
