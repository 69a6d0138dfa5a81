#pragma once

#include "Platform/Controls/ButtonCell.h"

namespace tidepool {

/// An image alone. A template takes the text colour of the push buttons around it.
class ImageButtonCell : public platform::ButtonCell {
public:
    ImageButtonCell();

    QColor controlTextColor() const override;
};

} // namespace tidepool
