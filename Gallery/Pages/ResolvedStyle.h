#pragma once

#include "Tidepool/Styles/ControlStyle.h"

#include <QWidget>

namespace gallery {

/// What a style gives for a state: a sketch of a control that draws with it, and the colours and images by
/// name.
class ResolvedStyle : public QWidget {
    Q_OBJECT

public:
    ResolvedStyle(const tidepool::ControlStyle& style, tidepool::StyledControlState state,
                  QWidget* parent = nullptr);
};

} // namespace gallery
