#pragma once

#include "Platform/Graphics/Image.h"

#include <QColor>

namespace platform {

class Bundle;

/// Describes a named colour of a bundle. Constant; the colour is looked up when it is read, and reads give
/// the same object while the appearance stays.
struct ColorResource {
    const char* name;
    const Bundle& (*bundle)();

    const QColor& color() const;

    operator const QColor&() const {
        return color();
    } // NOLINT(google-explicit-constructor): stands for its colour
};

/// Describes a named image of a bundle.
struct ImageResource {
    const char* name;
    const Bundle& (*bundle)();

    const Image& image() const;

    operator const Image&() const {
        return image();
    } // NOLINT(google-explicit-constructor): stands for its image
};

} // namespace platform
