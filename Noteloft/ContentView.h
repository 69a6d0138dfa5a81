#pragma once

#include <QUrl>
#include <QWidget>

class QBoxLayout;
class QLabel;

namespace platform {
class Button;
}

namespace noteloft {

class ContentViewModel;
class ContentViewShader;

/// The content of the welcome window, 400 by 572 points.
class ContentView : public QWidget {
    Q_OBJECT

public:
    /// Takes the model. In debug mode the view validates the plug-in when it appears, and shows the status in
    /// a line at the bottom. `buttonWidth` is the width of a link button, in points.
    ContentView(ContentViewModel* model, bool debugMode, qreal buttonWidth);

    /// The page that "Help" opens.
    static const QUrl& helpURL();

    static void openHelp();
    static void openWebsite();

    ContentViewShader& waveform() { return *m_waveform; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QWidget* makeHeader();
    QBoxLayout* makeInstructions();
    QBoxLayout* makeButtonRow(qreal buttonWidth);
    QLabel* makeStatusLine();
    void showStatus();

    ContentViewModel* m_model;
    bool m_debugMode;
    ContentViewShader* m_waveform = nullptr;
    QLabel* m_statusLine = nullptr;
};

} // namespace noteloft
