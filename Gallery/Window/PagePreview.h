#pragma once

#include "Gallery/GalleryPage.h"

#include <QWidget>

class QAbstractScrollArea;

namespace gallery {

/// Shows one page, with scroll bars, and marks it while the keyboard scrolls it.
class PagePreview : public QWidget {
    Q_OBJECT

public:
    explicit PagePreview(QWidget* parent = nullptr);

    /// Makes the page anew and sets the appearance that its settings ask for. The same page stays where it
    /// was scrolled to.
    void show(const GalleryPage& page, const GallerySettings& settings);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QAbstractScrollArea* m_area = nullptr;
    QString m_title;
};

} // namespace gallery
