#pragma once

#include "Platform/Updates/KnownUpdate.h"

#include <QWidget>

#include <memory>

class QStackedWidget;

namespace chorale {
class AudioParameter;
class PluginHeaderView;
} // namespace chorale

namespace noteloft::plugin {

class EditorParameters;

/// The editor: the header with a tab for each page, the dials of the page, and the button that holds notes.
class EditorView : public QWidget {
    Q_OBJECT

public:
    /// `scale` is how many of the desktop's points a point of the view is; `parameters` outlive it.
    explicit EditorView(const EditorParameters& parameters, qreal scale = 1);

    /// Makes all controls anew; what was being typed or dragged ends.
    void setScale(qreal scale);

protected:
    /// Takes the focus that no control has, so that none shows its ring before the user goes to it.
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QWidget* makeContent();
    void showPage();
    void showUpdate();

    const EditorParameters& m_parameters;
    const std::shared_ptr<chorale::AudioParameter> m_page;
    QWidget* m_content = nullptr;                  // a child
    chorale::PluginHeaderView* m_header = nullptr; // in it
    QStackedWidget* m_pages = nullptr;             // likewise
    platform::KnownUpdate m_update;
};

} // namespace noteloft::plugin
