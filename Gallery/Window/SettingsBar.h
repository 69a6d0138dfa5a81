#pragma once

#include "Gallery/GalleryPage.h"

#include <QWidget>

class QHBoxLayout;

namespace tidepool {
class StyledCheckBox;
class StyledPopUpButton;
} // namespace tidepool

namespace gallery {

/// Where a person chooses how controls are shown.
class SettingsBar : public QWidget {
    Q_OBJECT

public:
    explicit SettingsBar(QWidget* parent = nullptr);

    GallerySettings settings() const;

    /// Offers what the page heeds, in the look of the settings.
    void showSettingsOf(const GalleryPage& page);

Q_SIGNALS:
    void settingsChanged();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    tidepool::StyledCheckBox* addBox(const QString& title);
    tidepool::StyledPopUpButton* addChoice(const QString& title, const QStringList& choices);

    void noteChange();

    QHBoxLayout* m_row;
    tidepool::StyledCheckBox* m_enabled;
    tidepool::StyledCheckBox* m_selected;
    tidepool::StyledPopUpButton* m_size;
    tidepool::StyledPopUpButton* m_styleSet;
    tidepool::StyledPopUpButton* m_scale;
    tidepool::StyledCheckBox* m_rightToLeft;
    GallerySettings m_noted;
};

} // namespace gallery
