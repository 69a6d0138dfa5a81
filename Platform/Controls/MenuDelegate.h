#pragma once

#include <QObject>

namespace platform {

class Menu;

/// Fills a menu on demand. Main thread.
class MenuDelegate : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// `menu` is about to be shown; its items may be changed and replaced.
    virtual void menuNeedsUpdate(Menu& menu) = 0;
};

} // namespace platform
