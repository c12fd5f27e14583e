#ifndef TESTS_SUPPORT_ALLOCATION_H
#define TESTS_SUPPORT_ALLOCATION_H

/// @file
/// Allocations that fail on demand, are counted or observed. The test program is linked so that calls of malloc,
/// calloc and realloc, the library's own among them, come here first. Use only one of these at a time, around the call
/// to test: allocations of the test itself count, too.

#include <climits>

/// While it lives, so many allocations are granted and every later one gives null.
class LimitedAllocations {
  public:
    explicit LimitedAllocations(int granted);
    ~LimitedAllocations();
    LimitedAllocations(const LimitedAllocations&) = delete;
    LimitedAllocations& operator=(const LimitedAllocations&) = delete;
};

enum class Failing {
    once,         ///< one allocation alone
    from_then_on, ///< and every later one
};

/// While it lives, the allocation `nth` (the first is 1) gives null.
class FailingAllocation {
  public:
    FailingAllocation(int nth, Failing how);
    ~FailingAllocation();
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;

    /// True when that allocation was requested.
    bool happened() const;

  private:
    int nth_;
};

/// Counts while it lives.
class CountedAllocations {
  public:
    CountedAllocations();
    ~CountedAllocations();
    CountedAllocations(const CountedAllocations&) = delete;
    CountedAllocations& operator=(const CountedAllocations&) = delete;

    int count() const;
};

/// While it lives, every allocation calls the observer first: a way to look at what holds only during a call.
class ObservedAllocations {
  public:
    explicit ObservedAllocations(void (*observer)());
    ~ObservedAllocations();
    ObservedAllocations(const ObservedAllocations&) = delete;
    ObservedAllocations& operator=(const ObservedAllocations&) = delete;
};

#endif
