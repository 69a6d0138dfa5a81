#pragma once

namespace platform {

/// The value of a control that can be on.
enum class ControlState { mixed = -1, off = 0, on = 1 };

/// Where the image stands beside the title. Leading and trailing follow the direction of the layout.
enum class ImagePosition {
    noImage,
    imageOnly,
    imageLeft,
    imageRight,
    imageBelow,
    imageAbove,
    imageOverlaps,
    imageLeading,
    imageTrailing
};

/// How an image is fitted into its place.
enum class ImageScaling { proportionallyDown, axesIndependently, none, proportionallyUpOrDown };

} // namespace platform
