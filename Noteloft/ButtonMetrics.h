#pragma once

namespace noteloft {

/// What the application's two button styles share, in points.
struct ButtonMetrics {
    static constexpr double height = 24;
    /// The padding is negative: the background reaches out of the button's place in the layout.
    static constexpr double overhang = 2;
    static constexpr double focusRadius = 7;
};

} // namespace noteloft
