#include "tests/hosts/ChildProcess.h"

#include <QTest>

#include <csignal>
#include <sys/prctl.h>

ChildProcess::ChildProcess() {
    setProcessChannelMode(MergedChannels);
    setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

ChildProcess::~ChildProcess() {
    end();
}

void ChildProcess::end() {
    constexpr int politeness = 10000; // milliseconds
    if (state() == NotRunning)
        return;
    closeWriteChannel();
    terminate();
    if (waitForFinished(politeness))
        return;
    kill();
    waitForFinished();
}

bool ChildProcess::waitUntil(const std::function<bool()>& condition) const {
    bool holds = false;
    const auto isOver = [&] { return (holds = condition()) || state() == NotRunning; };
    return QTest::qWaitFor(isOver, patience) && holds;
}
