#pragma once

#include <Platform/Publishing/Cancellable.h>

#include <QWidget>

#include <vector>

/// A window that uses the kit as docs/tidepool.md tells.
class Panel : public QWidget {
    Q_OBJECT

public:
    Panel();

    int applied = 0;
    bool isBypassed = false;

public Q_SLOTS:
    void reset(QObject* sender);

private:
    std::vector<platform::AnyCancellable> m_cancellables;
};
