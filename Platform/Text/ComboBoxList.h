#pragma once

#include "Platform/Controls/ListPopup.h"
#include "Platform/Text/ComboBox.h"

namespace platform {

/// Keys that are not for the list go to the editor, which has the keyboard all the time.
class ComboBox::List : public ListPopup {
public:
    explicit List(ComboBox& box) : ListPopup(*box.m_model, box), m_box(box) {}

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool isOnlyClosedBy(QPoint press) const override;

private:
    void passOn(QKeyEvent& event);

    ComboBox& m_box;
};

} // namespace platform
