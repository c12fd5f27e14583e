/*
 * Prints the commands that turn one configuration into another, both given as files of the packed record.
 *
 *     cc -std=c11 -o print_script print_script.c $(pkg-config --cflags --libs pondiff) \
 *         -Wl,-rpath,$(pkg-config --variable=libdir pondiff)
 *     ./print_script running.bin wanted.bin
 *
 * The second line is for a library outside the loader's folders.
 */
#include <pondiff.h>
#include <stdio.h>
#include <stdlib.h>

/* The whole record, or nothing when the file holds anything else. */
static GCfg* read_record(const char* path)
{
    GCfg* record = malloc(sizeof *record);
    FILE* file = fopen(path, "rb");
    const int whole = record && file && fread(record, sizeof *record, 1, file) == 1 && fgetc(file) == EOF;

    if (file) {
        fclose(file);
    }
    if (whole) {
        return record;
    }
    fprintf(stderr, "%s: not a record of %zu bytes\n", path, sizeof *record);
    free(record);
    return NULL;
}

/* Returns whether the script could be had. */
static int print_script(GCfg* running, GCfg* wanted)
{
    char* script = NULL;

    if (initiate_diff_c(running, wanted, 0, 0) == 0) {
        script = GetDiff_c(running, wanted);
    }
    finalize_diff_c();
    if (!script) {
        fputs("out of memory\n", stderr);
        return 0;
    }
    fputs(script, stdout);
    free(script);
    return 1;
}

int main(int argc, char** argv)
{
    if (argc != 3) {
        fprintf(stderr, "usage: %s RUNNING WANTED\n", argv[0]);
        return EXIT_FAILURE;
    }
    GCfg* running = read_record(argv[1]);
    GCfg* wanted = read_record(argv[2]);
    const int printed = running && wanted && print_script(running, wanted);

    free(running);
    free(wanted);
    return printed ? EXIT_SUCCESS : EXIT_FAILURE;
}
