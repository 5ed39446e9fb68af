# Type-checks every file of the macOS layer (`*_mac.mm`, and the tests' `*_mac.cpp`) against
# the stand-in declarations in this folder: a Darwin target, ARC, blocks, the project's
# warnings as errors, and the host's own C++ library headers (the check never reaches a
# library of Apple's).
#   cmake -DDERLEYICI=<clang++> -DKAYNAK=<source dir> -DURETILEN=<generated headers>
#         -DUYARILAR=<the project's warning flags, comma-separated>
#         -DEN_DUSUK_MACOS=<the oldest macOS the application runs on> -P <this file>
foreach(gerekli DERLEYICI KAYNAK URETILEN UYARILAR EN_DUSUK_MACOS)
  if(NOT ${gerekli})
    message(FATAL_ERROR "${gerekli} is not set")
  endif()
endforeach()

# The host's C++ and C include directories, in the order the host compiler searches them.
execute_process(COMMAND ${DERLEYICI} -E -x c++ - -v INPUT_FILE /dev/null
                OUTPUT_QUIET ERROR_VARIABLE arama RESULT_VARIABLE sonuc)
if(NOT sonuc EQUAL 0)
  message(FATAL_ERROR "${DERLEYICI} could not list its include directories:\n${arama}")
endif()
string(REGEX MATCH "#include <\\.\\.\\.> search starts here:\n(.*)\nEnd of search list"
       _ "${arama}")
string(REPLACE "\n" ";" dizinler "${CMAKE_MATCH_1}")
set(sistem_dizinleri)
foreach(dizin IN LISTS dizinler)
  string(STRIP "${dizin}" dizin)
  list(APPEND sistem_dizinleri -isystem "${dizin}")
endforeach()
if(NOT sistem_dizinleri)
  message(FATAL_ERROR "no include directories found in:\n${arama}")
endif()

string(REPLACE "," ";" UYARILAR "${UYARILAR}")

file(GLOB_RECURSE dosyalar LIST_DIRECTORIES false "${KAYNAK}/src/*_mac.mm"
     "${KAYNAK}/tests/*_mac.cpp")
list(SORT dosyalar)
if(NOT dosyalar)
  message(FATAL_ERROR "no file of the macOS layer under ${KAYNAK}")
endif()

# The host's C library expects its own feature macros; the Darwin target predefines
# `__nonnull`, which that library defines for itself.
set(bayraklar
    -target x86_64-apple-macos${EN_DUSUK_MACOS} -fsyntax-only -x objective-c++ -std=c++20
    -fobjc-arc -fblocks
    ${UYARILAR} -Wnullable-to-nonnull-conversion -Werror
    -nostdinc -nostdinc++ -U__nonnull -D_GNU_SOURCE
    -I "${KAYNAK}/tests/mac" -I "${KAYNAK}/src" -I "${KAYNAK}/tests" -I "${URETILEN}"
    ${sistem_dizinleri})

set(hatalilar)
foreach(dosya IN LISTS dosyalar)
  file(RELATIVE_PATH ad "${KAYNAK}" "${dosya}")
  execute_process(COMMAND ${DERLEYICI} ${bayraklar} "${dosya}"
                  RESULT_VARIABLE sonuc OUTPUT_VARIABLE cikti ERROR_VARIABLE cikti)
  if(sonuc EQUAL 0)
    message(STATUS "ok      ${ad}")
  else()
    message(STATUS "FAILED  ${ad}\n${cikti}")
    list(APPEND hatalilar "${ad}")
  endif()
endforeach()

list(LENGTH dosyalar toplam)
if(hatalilar)
  list(JOIN hatalilar "\n  " liste)
  message(FATAL_ERROR "type check failed:\n  ${liste}")
endif()
message(STATUS "${toplam} files type-checked")
