#pragma once

#include <QColor>
#include <QSize>

class QPainter;
class QStyleOptionMenuItem;

namespace platform {

/// The look of one item of a menu. From the left: mark, icon, title; from the right: arrow, keys.
class MenuItemPainter {
public:
    explicit MenuItemPainter(const QStyleOptionMenuItem& item) : m_item(item) {}

    void paint(QPainter& painter) const;

    /// In points; `text` is the size of title and keys.
    QSize size(QSize text) const;

    /// The distance of the title from the left edge of the item.
    static int titleInset(bool hasMarks, bool hasIcons);

    /// The size of an icon, in points.
    static constexpr int iconSize = 16;

private:
    bool isSeparator() const;
    bool isSectionHeader() const;
    bool isEnabled() const;
    bool isSelected() const;
    int titleInset() const;
    QColor titleColor() const;
    QColor quietColor() const;
    void paintSeparator(QPainter& painter) const;
    void paintSectionHeader(QPainter& painter) const;
    void paintSelection(QPainter& painter) const;
    void paintMark(QPainter& painter) const;
    void paintIcon(QPainter& painter) const;
    void paintTexts(QPainter& painter) const;
    void paintArrow(QPainter& painter) const;

    const QStyleOptionMenuItem& m_item;
};

} // namespace platform
