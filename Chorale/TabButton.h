#pragma once

#include "Platform/Controls/PushButton.h"

namespace chorale {

/// One tab of the header, on while it is the chosen one.
class TabButton : public platform::PushButton {
    Q_OBJECT

public:
    explicit TabButton(const QString& title, QWidget* parent = nullptr);

protected:
    /// Only the parameter selects.
    void nextCheckState() override {}
};

} // namespace chorale
