#include "Chorale/ParameterView.h"

#include "Chorale/AudioParameter.h"
#include "Chorale/ParameterAccessibility.h"

#include "Platform/AudioUnits/DisplayPump.h"

#include <QAccessible>
#include <QWidget>

namespace chorale {

void ParameterView::follow(QWidget& view) {
    installParameterAccessibility();
    new platform::ParameterVisibility(view);
    view.setAccessibleName(parameter()->name());
    QObject::connect(parameter().get(), &AudioParameter::valueChanged, &view, [this, &view] {
        view.update();
        QAccessibleValueChangeEvent change(&view, valueText());
        QAccessible::updateAccessibility(&change);
    });
}

} // namespace chorale
