#include "Tidepool/Styles/CheckBoxCellStyle.h"

#include "Tidepool/Assets.h"
#include "Tidepool/Palette/TPImages.h"
#include "Tidepool/Styles/StyleValues.h"

namespace tidepool {

CheckBoxCellStyle::CheckBoxCellStyle() {
    setHighlightedTextColor(textColor());
    setHighlightedBackgroundColor(textBackgroundColor());
    setSelectedBackgroundColor(textBackgroundColor());
    setButtonImages({{normal, TPImages::checkbox},
                     {on, TPImages::checkboxOn},
                     {mixed, Images::tpkCheckboxMixed},
                     {highlighted, TPImages::checkboxDown},
                     {on | highlighted, TPImages::checkboxOnDown},
                     {mixed | highlighted, Images::tpkCheckboxMixedDown},
                     {selected, TPImages::checkboxDown},
                     {selected | on, TPImages::checkboxOnDown},
                     {selected | mixed, Images::tpkCheckboxMixedDown}});
}

void CheckBoxCellStyle::applyAccent(const QColor& accent) {
    ButtonCellStyle::applyAccent(accent);
    setButtonImages(accented(buttonImages(), accent));
}

FavouriteCheckBoxCellStyle::FavouriteCheckBoxCellStyle() {
    setButtonImages({{normal, Images::organiserIconStarEmpty}, {on, Images::organiserIconStar}});
}

} // namespace tidepool
