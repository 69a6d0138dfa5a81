#pragma once

#include "Platform/Controls/Button.h"

namespace chorale {

/// One tab of the header.
class TabButton : public platform::Button {
    Q_OBJECT

public:
    explicit TabButton(const QString& title, QWidget* parent = nullptr);

    bool isSelected() const { return m_isSelected; }

    void setSelected(bool isSelected);

protected:
    /// Only the parameter selects.
    void nextCheckState() override {}

private:
    bool m_isSelected = false;
};

} // namespace chorale
