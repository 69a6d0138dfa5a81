#pragma once

class QWidget;

namespace platform {

/// Which of its two values a named colour has, and how the desktop's own dialogs look.
enum class Appearance { light, dark };

/// Dark until set. Main thread.
Appearance currentAppearance();

/// Sets the appearance of the whole application, with the palette of its standard dialogs and menus, and
/// tells every widget as `notifyStyleChange` does.
void setAppearance(Appearance appearance);

/// Sends `QEvent::StyleChange` to `root` and everything in it, further windows included, since what they draw
/// from may have changed. A widget measures and paints itself anew; what it has handed to others, such as
/// palettes and fonts, it renews in `changeEvent`.
void notifyStyleChange(QWidget& root);

/// Makes look-ups of names use another appearance while it lives; nothing on the screen changes. Main thread.
class AppearanceScope {
public:
    explicit AppearanceScope(Appearance appearance);
    ~AppearanceScope();
    AppearanceScope(const AppearanceScope&) = delete;
    AppearanceScope& operator=(const AppearanceScope&) = delete;

private:
    const Appearance m_before;
};

} // namespace platform
