# Given as CMAKE_PROJECT_pondiff_INCLUDE by scripts/coverage: everything counts what it runs. Nothing is inlined, optimized
# or joined, so that each line and branch is that of the source. The counts are written when a program ends and not,
# besides, when it becomes another one.
add_compile_options(--coverage -O0 -g1 -fno-builtin-fork -fno-builtin-execv)
add_link_options(--coverage)

# Functions of the library's headers that nobody calls count as not run, rather than not at all. What its tests make of
# its headers has no branches for exceptions either: those of code that never runs could not be told from others.
cmake_language(DEFER CALL target_compile_options pondiff-objects PRIVATE -fkeep-inline-functions -fkeep-static-functions)
cmake_language(DEFER CALL target_compile_options library-tests PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-fno-exceptions>)
