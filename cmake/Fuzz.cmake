# The fuzz targets need clang's libFuzzer: they are built as a project of their own with
# clang (fuzz/CMakeLists.txt) and each runs for a bounded time as a test. Without clang
# the fuzz tests are not added, and the configure step says so.
include(ExternalProject)
find_program(NEVO_CLANG NAMES clang-14 clang)
find_program(NEVO_CLANGXX NAMES clang++-14 clang++)
set(NEVO_FUZZ_SURESI 30 CACHE STRING "Seconds each fuzz target runs as a test")

if(NOT NEVO_CLANG OR NOT NEVO_CLANGXX)
  message(WARNING "clang not found: the fuzz targets are not built")
  return()
endif()

set(NEVO_FUZZ_DIZINI ${CMAKE_BINARY_DIR}/fuzz)
ExternalProject_Add(nevo_fuzz
  SOURCE_DIR ${PROJECT_SOURCE_DIR}/fuzz
  BINARY_DIR ${NEVO_FUZZ_DIZINI}
  CMAKE_ARGS -G Ninja -DCMAKE_BUILD_TYPE=Debug
             -DCMAKE_C_COMPILER=${NEVO_CLANG} -DCMAKE_CXX_COMPILER=${NEVO_CLANGXX}
             -DCMAKE_C_COMPILER_LAUNCHER=${CMAKE_C_COMPILER_LAUNCHER}
             -DCMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER}
             -DURETILEN=${CMAKE_BINARY_DIR}/uretilen
  BUILD_ALWAYS ON
  INSTALL_COMMAND "")

include(${PROJECT_SOURCE_DIR}/fuzz/hedefler.cmake)
set(NEVO_FUZZ_ORTAMI
  ASAN_OPTIONS=detect_leaks=1
  UBSAN_OPTIONS=print_stacktrace=1
  LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/fuzz/sizinti.supp)
foreach(ad ${NEVO_FUZZ_HEDEFLERI})
  # New inputs go to a corpus in the build tree; the seeds in the repository are only read.
  set(derlem ${NEVO_FUZZ_DIZINI}/derlem/${ad})
  file(MAKE_DIRECTORY ${derlem})
  add_test(NAME fuzz.${ad}
           COMMAND ${NEVO_FUZZ_DIZINI}/fuzz_${ad} -max_total_time=${NEVO_FUZZ_SURESI}
                   -timeout=10 -rss_limit_mb=2048 -print_final_stats=1
                   -artifact_prefix=${NEVO_FUZZ_DIZINI}/bulgu-${ad}-
                   ${derlem} ${PROJECT_SOURCE_DIR}/fuzz/tohumlar/${ad})
  set_tests_properties(fuzz.${ad} PROPERTIES TIMEOUT 300 ENVIRONMENT "${NEVO_FUZZ_ORTAMI}")
endforeach()
