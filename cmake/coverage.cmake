# Given as CMAKE_PROJECT_pondiff_INCLUDE by scripts/coverage: instruments everything. Nothing is inlined, optimized or merged,
# so that lines and branches are those of the source. The counts are written when a program ends, but not when it calls exec.
add_compile_options(--coverage -O0 -g1 -fno-builtin-fork -fno-builtin-execv)
add_link_options(--coverage)

# Uncalled functions of the library's headers count as not run; otherwise they would not be counted at all. Without
# exceptions, since the branches for exceptions in code that never runs cannot be recognized.
cmake_language(DEFER CALL target_compile_options pondiff-objects PRIVATE -fkeep-inline-functions -fkeep-static-functions)
cmake_language(DEFER CALL target_compile_options library-tests PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-fno-exceptions>)
