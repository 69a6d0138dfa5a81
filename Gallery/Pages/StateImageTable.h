#pragma once

#include "Gallery/Pages/StyleClasses.h"

#include <QWidget>

namespace gallery {

/// The states that have an image of their own, by map, with a mark at those that `state` takes.
class StateImageTable : public QWidget {
    Q_OBJECT

public:
    StateImageTable(const ImageMaps& maps, tidepool::StyledControlState state, QWidget* parent = nullptr);
};

} // namespace gallery
