#include "Chorale/ParameterView.h"

#include "Chorale/AudioParameter.h"
#include "Chorale/ParameterAccessibility.h"
#include "Chorale/ParameterSteps.h"

#include "Platform/Display/DisplayPump.h"

#include <QAccessible>
#include <QWidget>

namespace chorale {

QString ParameterView::spokenName() const {
    return parameter()->name();
}

QStringList ParameterView::actionNames() const {
    return {QAccessibleActionInterface::increaseAction(), QAccessibleActionInterface::decreaseAction()};
}

void ParameterView::doAction(const QString& name) {
    const bool goesUp = name == QAccessibleActionInterface::increaseAction();
    ParameterSteps(parameter()).step(goesUp ? 1 : -1, decimalPlaces());
}

void ParameterView::follow(QWidget& view) {
    installParameterAccessibility();
    new platform::ParameterVisibility(view);
    view.setAccessibleName(spokenName());
    QObject::connect(parameter().get(), &AudioParameter::valueChanged, &view, [this, &view] {
        view.update();
        QAccessibleValueChangeEvent change(&view, valueText());
        QAccessible::updateAccessibility(&change);
        QAccessibleEvent description(&view, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&description);
    });
}

} // namespace chorale
