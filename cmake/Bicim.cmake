# The layout check as a test: `ctest -R bicim` fails when a tracked C++ source is not laid
# out as clang-format-14 writes it (.clang-format) or a source, build or script line is
# over 100 columns. `scripts/bicim_denetle.sh --duzelt` formats the tree in place.
find_program(NEVO_BASH bash REQUIRED)
add_test(NAME bicim
         COMMAND ${NEVO_BASH} ${PROJECT_SOURCE_DIR}/scripts/bicim_denetle.sh
         WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
set_tests_properties(bicim PROPERTIES LABELS bicim TIMEOUT 600)
