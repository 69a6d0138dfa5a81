#pragma once

#include <QAccessible>
#include <QString>
#include <QStringList>

#include <memory>

class QWidget;

namespace chorale {

class AudioParameter;

/// A widget that shows one parameter. Assistive technology sees its name, its value as people read it, and
/// can change it by steps.
class ParameterView {
public:
    virtual ~ParameterView() = default;

    virtual const std::shared_ptr<AudioParameter>& parameter() const = 0;

    /// The value as the widget shows it, with its unit.
    virtual QString valueText() const = 0;

    /// How many fractional digits the value is shown with.
    virtual int decimalPlaces() const { return 0; }

    /// What assistive technology calls the widget.
    virtual QAccessible::Role role() const { return QAccessible::Dial; }

    /// What tells it from other views of the parameter, too. Asked once.
    virtual QString spokenName() const;

    /// What assistive technology can do with it while it is enabled: go a step up or down.
    virtual QStringList actionNames() const;
    virtual void doAction(const QString& name);

    /// Whether it is a button that is down.
    virtual bool isPressed() const { return false; }

protected:
    /// To be called by the constructor of the widget that this is mixed into. Repaints it and tells assistive
    /// technology when the value changes.
    void follow(QWidget& view);
};

} // namespace chorale
