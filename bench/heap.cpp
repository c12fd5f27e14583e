/// The library's use of the heap: `bench-heap` prints a line for each figure.
///
/// The functions below replace those of libc for the whole process, including the library.

#include "bench/configurations.h"
#include "pon/command_file_generator.h"

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <malloc.h>

extern "C" {
// libc's own, by their internal names.
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void __libc_free(void* block);
}

namespace {

/// Blocks count with the size that the heap allocates. A block that is reallocated counts once, never both with its old
/// and its new size.
struct Heap {
    bool counting;
    std::size_t allocations;
    std::size_t held;
    std::size_t peak;

    void change(std::size_t released, std::size_t taken)
    {
        if (!counting) {
            return;
        }
        held += taken - released;
        if (held > peak) {
            peak = held;
        }
    }
};

Heap heap;

std::size_t size_of(void* block)
{
    return block ? malloc_usable_size(block) : 0;
}

void* counted(void* block, std::size_t released)
{
    if (heap.counting) {
        ++heap.allocations;
    }
    heap.change(released, size_of(block));
    return block;
}

} // namespace

extern "C" {

void* malloc(std::size_t size)
{
    return counted(__libc_malloc(size), 0);
}

void* calloc(std::size_t count, std::size_t size)
{
    return counted(__libc_calloc(count, size), 0);
}

void* realloc(void* block, std::size_t size)
{
    const std::size_t before = size_of(block);
    return counted(__libc_realloc(block, size), before);
}

void free(void* block)
{
    heap.change(size_of(block), 0);
    __libc_free(block);
}
}

namespace {

using namespace pondiff::bench;

/// What a session over two records and one GetDiff in it take.
struct Taken {
    std::size_t allocations; ///< of GetDiff, that of its text included
    std::size_t peak;        ///< bytes of both together
    std::size_t text;        ///< bytes of the text
};

Taken measure(GCfg* orig, GCfg* cfg)
{
    heap = {true, 0, 0, 0};
    if (initiate_diff(orig, cfg, 0, 0) != 0) {
        std::exit(EXIT_FAILURE);
    }
    heap.allocations = 0;
    char* const text = GetDiff(orig, cfg);
    heap.counting = false;
    const Taken taken{heap.allocations, heap.peak, text ? std::strlen(text) + 1 : 0};
    if (taken.text == 0 || taken.allocations == 0 || taken.peak < taken.text) {
        std::fputs("bench-heap: what the library allocates is not seen here\n", stderr);
        std::exit(EXIT_FAILURE);
    }
    std::free(text);
    finalize_diff();
    return taken;
}

} // namespace

int main()
{
    const Configuration empty = blank();
    const Configuration everything = full();
    const Taken script = measure(empty.get(), everything.get());
    const Taken equal = measure(empty.get(), empty.get());
    std::printf("allocations %zu\n", script.allocations);
    std::printf("heap_per_text %.3f\n", static_cast<double>(script.peak) / static_cast<double>(script.text));
    std::printf("text_bytes %zu\n", script.text);
    std::printf("allocations_equal %zu\n", equal.allocations);
}
