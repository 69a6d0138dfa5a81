#pragma once

#include <QColor>
#include <QRect>
#include <QSize>
#include <QString>

class QPainter;
class QPalette;
class QStyleOptionMenuItem;

namespace platform {

/// The look of one item of a menu: mark, icon and title from where lines begin, arrow and keys from their
/// end.
class MenuItemPainter {
public:
    explicit MenuItemPainter(const QStyleOptionMenuItem& item) : m_item(item) {}

    void paint(QPainter& painter) const;

    /// In points; `text` is the size of title and keys.
    QSize size(QSize text) const;

    /// A line between items, at the middle of the height of `rect`.
    static void paintLine(QPainter& painter, const QRect& rect, const QPalette& palette);

    /// The distance of the title from the edge where lines begin.
    static int titleInset(bool hasMarks, bool hasIcons);

    /// The size of an icon, in points.
    static constexpr int iconSize = 16;

    /// Of an item with a title, in points.
    static constexpr int itemHeight = 26;

    /// What the line of a separator keeps free at both ends, in points.
    static constexpr int padding = 10;

private:
    bool isSeparator() const;
    bool isSectionHeader() const;
    bool isEnabled() const;
    bool isSelected() const;
    int titleInset() const;
    QColor titleColor() const;
    QColor quietColor() const;
    QRect place(int left, int width) const;
    void drawLine(QPainter& painter, const QRect& place, Qt::Alignment alignment, const QString& text) const;
    void paintSectionHeader(QPainter& painter) const;
    void paintSelection(QPainter& painter) const;
    void paintMark(QPainter& painter) const;
    void paintIcon(QPainter& painter) const;
    void paintTexts(QPainter& painter) const;
    void paintArrow(QPainter& painter) const;

    const QStyleOptionMenuItem& m_item;
};

} // namespace platform
