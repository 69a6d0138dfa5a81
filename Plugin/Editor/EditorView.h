#pragma once

#include <QWidget>

namespace noteloft::plugin {

class EditorParameters;

/// The editor: the header, a dial and a label for each value, and the button that holds notes.
class EditorView : public QWidget {
    Q_OBJECT

public:
    explicit EditorView(const EditorParameters& parameters);

protected:
    /// Takes the focus that no control has, so that none shows its ring before the user goes to it.
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace noteloft::plugin
