// misaligned WIDTH OFFSET: reads a number of so many bytes (2, 4 or 8) in the way that no code of the project may, as
// if it were aligned, so many bytes behind an address that is, and prints it. Processors that cannot do so kill the
// program.

#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>

int main(int argc, char** argv)
{
    static _Alignas(8) const unsigned char bytes[16] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};
    if (argc != 3) {
        return EXIT_FAILURE;
    }
    const unsigned long width = strtoul(argv[1], NULL, 10);
    const unsigned long offset = strtoul(argv[2], NULL, 10);
    if (width > 8 || offset > 8) {
        return EXIT_FAILURE;
    }

    const void* const place = bytes + offset;
    const volatile uint16_t* const of_2_bytes = place;
    const volatile uint32_t* const of_4_bytes = place;
    const volatile uint64_t* const of_8_bytes = place;
    unsigned long long number = 0;
    switch (width) {
    case 2:
        number = *of_2_bytes;
        break;
    case 4:
        number = *of_4_bytes;
        break;
    case 8:
        number = *of_8_bytes;
        break;
    default:
        return EXIT_FAILURE;
    }
    printf("%0*llx\n", (int)(2 * width), number);
    return EXIT_SUCCESS;
}
