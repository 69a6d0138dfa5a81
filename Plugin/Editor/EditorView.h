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
    void paintEvent(QPaintEvent* event) override;
};

} // namespace noteloft::plugin
