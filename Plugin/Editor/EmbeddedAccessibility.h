#pragma once

class QWidget;

namespace noteloft::plugin {

/// Lets assistive technology find an editor for as long as this lives. A window inside another program's is
/// none of the application's windows to Qt, which would leave it out. Main thread.
class EmbeddedAccessibility {
public:
    explicit EmbeddedAccessibility(QWidget& editor);
    ~EmbeddedAccessibility();
    EmbeddedAccessibility(const EmbeddedAccessibility&) = delete;
    EmbeddedAccessibility& operator=(const EmbeddedAccessibility&) = delete;

    /// To be called before the application object is asked for its interface.
    static void install();

private:
    QWidget& m_editor;
};

} // namespace noteloft::plugin
