# Type-checks every file of the macOS layer (`*_mac.mm`, and the tests' `*_mac.cpp`) against
# the stand-in declarations in this folder: a Darwin target, ARC, blocks, the project's
# warnings as errors, and the host's own C++ library headers (the check never reaches a
# library of Apple's).
#   cmake -DDERLEYICI=<clang++> -DKAYNAK=<source dir> -DURETILEN=<generated headers>
#         -DUYARILAR=<the project's warning flags, comma-separated>
#         -DEN_DUSUK_MACOS=<the oldest macOS the application runs on>
#         [-DKUTUPHANE=<libc++ include dir> -DCOKLU_MIMARI=<the host's multiarch name>]
#         [-DHATALI=<folder>] -P <this file>
# With KUTUPHANE, the check runs instead over the portable C++ files (every `*.cpp` under
# src/ but the GTK layer's) against LLVM's C++ library with Apple's availability markup
# switched on, so whatever the oldest macOS's C++ library lacks is refused; the C library
# headers it expects of a Mac are the stand-ins of libc/.
# With HATALI, the check runs instead over the folder's mistakes (`*.mm`, or `*.cpp` with
# KUTUPHANE), each written with one mistake, and passes only when every one of them fails
# with the diagnostic that its first line names after "beklenen: ".
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

if(KUTUPHANE)
  set(uzanti cpp)
else()
  set(uzanti mm)
endif()
if(HATALI)
  file(GLOB dosyalar LIST_DIRECTORIES false "${HATALI}/*.${uzanti}")
elseif(KUTUPHANE)
  file(GLOB_RECURSE dosyalar LIST_DIRECTORIES false "${KAYNAK}/src/*.cpp")
  list(FILTER dosyalar EXCLUDE REGEX "_gtk\\.cpp$")
else()
  file(GLOB_RECURSE dosyalar LIST_DIRECTORIES false "${KAYNAK}/src/*_mac.mm"
       "${KAYNAK}/tests/*_mac.cpp")
endif()
list(SORT dosyalar)
if(NOT dosyalar)
  message(FATAL_ERROR "no file of the macOS layer under ${KAYNAK}")
endif()

# The host's C library expects its own feature macros; the Darwin target predefines
# `__nonnull`, which that library defines for itself.
set(hedef -target x86_64-apple-macos${EN_DUSUK_MACOS} -fsyntax-only -std=c++20 ${UYARILAR} -Werror
    -U__nonnull -D_GNU_SOURCE)
if(KUTUPHANE)
  # The library's own configuration switches Apple's availability markup off; a copy
  # without that line switches it on.
  file(READ "${KUTUPHANE}/__config_site" ayarlar)
  string(REGEX REPLACE "#define _LIBCPP_HAS_NO_VENDOR_AVAILABILITY_ANNOTATIONS[^\n]*\n" ""
         elmali "${ayarlar}")
  if(elmali STREQUAL ayarlar)
    message(FATAL_ERROR "${KUTUPHANE}/__config_site does not switch the availability markup off")
  endif()
  file(WRITE "${URETILEN}/apple-libcxx/__config_site" "${elmali}")
  # glibc's ctype macros would take the place of the functions the library calls.
  set(bayraklar ${hedef} -x c++ -D__NO_CTYPE
      -nostdinc++ -isystem "${URETILEN}/apple-libcxx" -isystem "${KUTUPHANE}"
      -isystem "${KAYNAK}/tests/mac/libc" -isystem "/usr/include/${COKLU_MIMARI}"
      -I "${KAYNAK}/src" -I "${URETILEN}")
else()
  set(bayraklar ${hedef} -x objective-c++ -fobjc-arc -fblocks -Wnullable-to-nonnull-conversion
      -nostdinc -nostdinc++
      -I "${KAYNAK}/tests/mac" -I "${KAYNAK}/src" -I "${KAYNAK}/tests" -I "${URETILEN}"
      ${sistem_dizinleri})
endif()

# Whether the file went as expected: type-checked, or (with HATALI) refused for its reason.
function(denetle dosya sonuc_degiskeni)
  execute_process(COMMAND ${DERLEYICI} ${bayraklar} "${dosya}"
                  RESULT_VARIABLE sonuc OUTPUT_VARIABLE cikti ERROR_VARIABLE cikti)
  if(NOT HATALI)
    set(beklenen_gibi FALSE)
    if(sonuc EQUAL 0)
      set(beklenen_gibi TRUE)
    endif()
  else()
    file(STRINGS "${dosya}" ilk LIMIT_COUNT 1)
    string(REGEX REPLACE "^// beklenen: " "" neden "${ilk}")
    string(FIND "${cikti}" "${neden}" yer)
    set(beklenen_gibi FALSE)
    if(NOT sonuc EQUAL 0 AND NOT neden STREQUAL ilk AND yer GREATER -1)
      set(beklenen_gibi TRUE)
    endif()
  endif()
  set(${sonuc_degiskeni} ${beklenen_gibi} PARENT_SCOPE)
  set(cikti "${cikti}" PARENT_SCOPE)
endfunction()

# A tree that type-checks is checked on every core at once; only when something fails is
# each file checked again alone, to name it.
if(NOT HATALI)
  string(REPLACE ";" "\n" liste "${dosyalar}")
  file(WRITE "${URETILEN}/tur_denetimi_${uzanti}.txt" "${liste}\n")
  cmake_host_system_information(RESULT cekirdekler QUERY NUMBER_OF_LOGICAL_CORES)
  execute_process(COMMAND xargs -d "\n" -n 1 -P ${cekirdekler} ${DERLEYICI} ${bayraklar}
                  INPUT_FILE "${URETILEN}/tur_denetimi_${uzanti}.txt"
                  RESULT_VARIABLE sonuc OUTPUT_QUIET ERROR_QUIET)
  if(sonuc EQUAL 0)
    list(LENGTH dosyalar toplam)
    message(STATUS "${toplam} files type-checked")
    return()
  endif()
endif()

set(hatalilar)
foreach(dosya IN LISTS dosyalar)
  file(RELATIVE_PATH ad "${KAYNAK}" "${dosya}")
  denetle("${dosya}" beklenen_gibi)
  if(beklenen_gibi)
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
if(HATALI)
  message(STATUS "${toplam} mistakes refused")
else()
  message(STATUS "${toplam} files type-checked")
endif()
