// Uses one thing of each installed module, as a plug-in maker's program would.
#include "Panel.h"

#include <Chorale/Assets.h>
#include <Chorale/RocketFontModifier.h>
#include <Tidepool/Palette/TPColors.h>
#include <Tidepool/Palette/TPImages.h>
#include <VantorShaders/MetalShaderViewController.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>

namespace {

bool panelWorks() {
    Panel panel;
    panel.show();
    const auto buttons = panel.findChildren<QAbstractButton*>();
    buttons[0]->click();
    buttons[1]->click();
    const bool isUsed = panel.applied == 1 && panel.isBypassed;
    buttons[2]->click();
    const QImage off = panel.grab().toImage();
    buttons[3]->click();
    return isUsed && panel.applied == 0 && panel.grab().toImage() != off;
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QLabel label(QStringLiteral("Noteloft"));
    chorale::rocketFont(label, 36);
    const vantor::MetalShaderViewController effect(&label, QStringLiteral("Main"),
                                                   QStringLiteral("audioWaveformVertexShader"),
                                                   QStringLiteral("audioWaveformFragmentShader"));
    label.show();
    const bool complete = tidepool::TPColors::grey85.color().isValid() &&
                          !tidepool::TPImages::button.image().bitmap({60, 24}, 2).isNull() &&
                          chorale::Colors::background.color().isValid() && effect.metalKitView() != nullptr;
    return complete && panelWorks() ? 0 : 1;
}
