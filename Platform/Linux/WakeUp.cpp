#include "Platform/Core/WakeUp.h"

#include <sys/eventfd.h>
#include <unistd.h>

namespace platform {

WakeUp::WakeUp() : m_descriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

WakeUp::~WakeUp() {
    if (m_descriptor >= 0)
        close(m_descriptor);
}

void WakeUp::signal() {
    eventfd_write(m_descriptor, 1);
}

void WakeUp::clear() {
    eventfd_t count = 0;
    eventfd_read(m_descriptor, &count);
}

} // namespace platform
