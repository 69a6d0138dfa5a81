#pragma once

#include "Gallery/GalleryPage.h"
#include "Gallery/Layout/PageBody.h"
#include "Tidepool/Styles/StyledControlState.h"

#include <memory>

class QVBoxLayout;

namespace tidepool {
class ControlStyle;
}

namespace gallery {

/// The style system: what a style class gives for a state.
GalleryPage statesPage();

/// A style class and the flags of a state, chosen with a pop-up and check boxes, and what they resolve to.
class StatesPage : public PageBody {
    Q_OBJECT

public:
    struct Selection {
        int styleClass = 0;
        tidepool::StyledControlState state;
    };

    /// Changes `selection`, so that a page made later can show it again.
    StatesPage(const GallerySettings& settings, std::shared_ptr<Selection> selection);
    ~StatesPage() override;

    void setStyleClass(int index);
    void setFlags(tidepool::StyledControlState flags, bool isSet);

private:
    QWidget* makeChoice();
    QWidget* makeFlags();
    void makeStyle();
    void show();

    GallerySettings m_settings;
    std::shared_ptr<Selection> m_selection;
    std::shared_ptr<const tidepool::ControlStyle> m_style;
    QVBoxLayout* m_result;
    QVBoxLayout* m_images;
};

} // namespace gallery
