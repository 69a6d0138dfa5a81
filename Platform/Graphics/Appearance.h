#pragma once

namespace platform {

/// Which of its two values a named colour has, and how the desktop's own dialogs look.
enum class Appearance { light, dark };

/// Dark until set. Main thread.
Appearance currentAppearance();

/// Sets the appearance of the whole application, with the palette of its standard dialogs and menus.
void setAppearance(Appearance appearance);

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
