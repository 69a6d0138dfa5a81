#include "Tidepool/Styles/CheckBoxCellStyle.h"

#include "Tidepool/Palette/ControlAssets.h"
#include "Tidepool/Palette/TPImages.h"
#include "Tidepool/Styles/StyleValues.h"

namespace tidepool {

CheckBoxCellStyle::CheckBoxCellStyle() {
    setHighlightedTextColor(textColor());
    setHighlightedBackgroundColor(textBackgroundColor());
    setSelectedBackgroundColor(textBackgroundColor());
    setButtonImages({{normal, TPImages::checkbox},
                     {on, TPImages::checkboxOn},
                     {mixed, CheckBoxImages::mixed},
                     {highlighted, TPImages::checkboxDown},
                     {on | highlighted, TPImages::checkboxOnDown},
                     {mixed | highlighted, CheckBoxImages::mixedDown},
                     {selected, TPImages::checkboxDown},
                     {selected | on, TPImages::checkboxOnDown},
                     {selected | mixed, CheckBoxImages::mixedDown}});
}

void CheckBoxCellStyle::applyAccent(const QColor& accent) {
    ButtonCellStyle::applyAccent(accent);
    setButtonImages(accented(buttonImages(), accent));
}

FavouriteCheckBoxCellStyle::FavouriteCheckBoxCellStyle() {
    setButtonImages({{normal, OrganiserImages::iconStarEmpty}, {on, OrganiserImages::iconStar}});
}

} // namespace tidepool
