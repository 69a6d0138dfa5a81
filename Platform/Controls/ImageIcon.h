#pragma once

#include <QIcon>

namespace platform {

class Image;

/// `image` for the platform's own controls, sharp at every scale. A template takes the colour of the text
/// beside it: normal, disabled or selected.
QIcon imageIcon(const Image& image);

} // namespace platform
