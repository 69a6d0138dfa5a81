#pragma once

#include "Tidepool/Styles/ControlStyle.h"
#include "Tidepool/Styles/StyleSet.h"

#include <QString>

#include <memory>
#include <utility>
#include <vector>

namespace gallery {

struct StyleClass {
    const char* name;
    std::shared_ptr<tidepool::ControlStyle> (*make)(const tidepool::StyleLook& look);
};

/// Every style class of a control.
const std::vector<StyleClass>& styleClasses();

/// The index of a class in that list.
int styleClassIndex(const char* name);

/// The maps of a style from states to images, with what each is called. They are the style's.
using ImageMaps = std::vector<std::pair<QString, const tidepool::StateImages*>>;
ImageMaps imageMaps(const tidepool::ControlStyle& style);

} // namespace gallery
