// Uses one thing of each installed module, as a plug-in maker's program would.
#include <Chorale/AssetResources.h>
#include <Chorale/RocketFontModifier.h>
#include <Tidepool/TPColors.h>
#include <Tidepool/TPImages.h>
#include <VantorShaders/MetalShaderViewController.h>

#include <QApplication>
#include <QLabel>

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
                          chorale::EditorAssets::background.color().isValid() &&
                          effect.metalKitView() != nullptr;
    return complete ? 0 : 1;
}
