#ifndef TESTS_SUPPORT_ALLOCATION_H
#define TESTS_SUPPORT_ALLOCATION_H

/// @file
/// Allocations that fail on demand or are looked at. The test program is linked so that calls of malloc, calloc and
/// realloc, the library's own among them, come here first.

/// While it lives, so many allocations are granted and every later one gives null.
class LimitedAllocations {
  public:
    explicit LimitedAllocations(int granted);
    ~LimitedAllocations();
    LimitedAllocations(const LimitedAllocations&) = delete;
    LimitedAllocations& operator=(const LimitedAllocations&) = delete;
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
