#include <Chorale/AudioParameter.h>
#include <Chorale/DialLabel.h>
#include <Chorale/ParameterDial.h>

#include <QApplication>
#include <QVBoxLayout>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const auto cutoff = platform::makeMainThreadShared<chorale::AudioParameter>(
        0, QStringLiteral("cutoff"), QStringLiteral("Cutoff"), platform::AudioUnitParameterUnit::hertz,
        chorale::ClosedRange<float>(20, 2000), 880.F);
    QWidget editor;
    auto* const column = new QVBoxLayout(&editor);
    column->addWidget(new chorale::ParameterDial(cutoff, 72, Qt::darkCyan));
    column->addWidget(
        new chorale::DialLabel(cutoff, Qt::darkGray, Qt::black, 13, 18, 18, 76, true, true, 0, {}));
    editor.show();
    return QApplication::exec();
}
