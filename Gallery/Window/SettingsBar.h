#pragma once

#include "Gallery/GalleryPage.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QLabel;

namespace gallery {

/// Where a person chooses how controls are shown.
class SettingsBar : public QWidget {
    Q_OBJECT

public:
    explicit SettingsBar(QWidget* parent = nullptr);

    GallerySettings settings() const;

    /// Offers what the page heeds.
    void showSettingsOf(const GalleryPage& page);

Q_SIGNALS:
    void settingsChanged();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QCheckBox* addBox(const QString& title);
    QComboBox* addChoice(const QString& title, const QStringList& choices);

    QHBoxLayout* m_row;
    QCheckBox* m_enabled;
    QCheckBox* m_selected;
    QComboBox* m_size;
    QComboBox* m_styleSet;
    QComboBox* m_scale;
    QCheckBox* m_rightToLeft;
};

} // namespace gallery
