#pragma once

#include <QProcess>

#include <functional>

/// A program that ends with the test, however the test ends.
class ChildProcess : public QProcess {
public:
    ChildProcess();

    ~ChildProcess() override;

    /// Asks the program to end, and ends it if it does not.
    void end();

    /// Lets things happen until `condition` holds; false if the program has ended, or after a minute, which
    /// is far more than a busy machine needs.
    bool waitUntil(const std::function<bool()>& condition) const;

private:
    static constexpr int patience = 60000; // milliseconds
};
