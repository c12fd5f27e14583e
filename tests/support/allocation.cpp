#include "tests/support/allocation.h"

#include <cstddef>

namespace {

constexpr int never = INT_MAX;
int asked;                 // since one of the guards began
int first_failure = never; // allocations that give null, by their number: from this one ...
int last_failure = never;  // ... to this one
void (*observe)();

bool granted()
{
    if (observe) {
        observe();
    }
    ++asked;
    return asked < first_failure || asked > last_failure;
}

void begin(int first, int last)
{
    asked = 0;
    first_failure = first;
    last_failure = last;
}

void end()
{
    first_failure = last_failure = never;
}

} // namespace

LimitedAllocations::LimitedAllocations(int granted)
{
    begin(granted + 1, never);
}

LimitedAllocations::~LimitedAllocations()
{
    end();
}

FailingAllocation::FailingAllocation(int nth, Failing how) : nth_(nth)
{
    begin(nth, how == Failing::once ? nth : never);
}

FailingAllocation::~FailingAllocation()
{
    end();
}

bool FailingAllocation::happened() const
{
    return asked >= nth_;
}

CountedAllocations::CountedAllocations()
{
    begin(never, never);
}

CountedAllocations::~CountedAllocations() = default;

int CountedAllocations::count() const
{
    return asked;
}

ObservedAllocations::ObservedAllocations(void (*observer)())
{
    observe = observer;
}

ObservedAllocations::~ObservedAllocations()
{
    observe = nullptr;
}

extern "C" {

void* __real_malloc(std::size_t size);
void* __real_calloc(std::size_t count, std::size_t size);
void* __real_realloc(void* block, std::size_t size);
void* __wrap_malloc(std::size_t size);
void* __wrap_calloc(std::size_t count, std::size_t size);
void* __wrap_realloc(void* block, std::size_t size);

void* __wrap_malloc(std::size_t size)
{
    return granted() ? __real_malloc(size) : nullptr;
}

void* __wrap_calloc(std::size_t count, std::size_t size)
{
    return granted() ? __real_calloc(count, size) : nullptr;
}

void* __wrap_realloc(void* block, std::size_t size)
{
    return granted() ? __real_realloc(block, size) : nullptr;
}
}
