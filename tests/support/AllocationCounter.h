#pragma once

/// Counts the allocations of this thread between its making and the question.
class AllocationCounter {
public:
    AllocationCounter();
    long allocations() const;

private:
    long m_before;
};
