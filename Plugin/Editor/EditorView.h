#pragma once

#include <QWidget>

#include <memory>

class QStackedWidget;

namespace chorale {
class AudioParameter;
}

namespace noteloft::plugin {

class EditorParameters;

/// The editor: the header with a tab for each page, the dials of the page, and the button that holds notes.
class EditorView : public QWidget {
    Q_OBJECT

public:
    explicit EditorView(const EditorParameters& parameters);

protected:
    /// Takes the focus that no control has, so that none shows its ring before the user goes to it.
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void showPage();

    const std::shared_ptr<chorale::AudioParameter> m_page;
    QStackedWidget* const m_pages; // a child
};

} // namespace noteloft::plugin
