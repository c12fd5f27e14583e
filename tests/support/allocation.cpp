#include "tests/support/allocation.h"

#include <cstddef>

namespace {

bool limited;
int left;
void (*observe)();

bool granted()
{
    if (observe)
        observe();
    return !limited || left-- > 0;
}

} // namespace

LimitedAllocations::LimitedAllocations(int granted)
{
    left = granted;
    limited = true;
}

LimitedAllocations::~LimitedAllocations()
{
    limited = false;
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
