# Installs the desktop entry with the absolute path of the installed program in its Exec
# line: the desktop ignores an entry whose program is not on PATH. The path is computed at
# install time, so `cmake --install --prefix` and DESTDIR are honoured; the desktop
# database is refreshed where the tool exists and the install is not a staged one.
#   NEVO_GIRDI_SABLONU  the entry with @NEVO_KURULU_PROGRAM@ for the program's path
#   NEVO_GIRDI_ADI      the installed file name
#   NEVO_BIN_DIZINI / NEVO_UYGULAMALAR_DIZINI  install directories, relative to the prefix
#                       or absolute
function(nevo_dizin sonuc dizin)
  if(IS_ABSOLUTE "${dizin}")
    set(${sonuc} "${dizin}" PARENT_SCOPE)
  else()
    set(${sonuc} "${CMAKE_INSTALL_PREFIX}/${dizin}" PARENT_SCOPE)
  endif()
endfunction()

nevo_dizin(bin "${NEVO_BIN_DIZINI}")
nevo_dizin(uygulamalar "${NEVO_UYGULAMALAR_DIZINI}")
set(program "${bin}/nevo")
# A path with a space or another reserved character is quoted as the Exec key wants.
if(program MATCHES "[ \t\n\"'\\\\><~|&;$*?#()`]")
  string(REGEX REPLACE "([\"`$\\\\])" "\\\\\\1" program "${program}")
  set(program "\"${program}\"")
endif()
string(REPLACE "%" "%%" program "${program}")

file(READ "${NEVO_GIRDI_SABLONU}" girdi)
string(REPLACE "@NEVO_KURULU_PROGRAM@" "${program}" girdi "${girdi}")
get_filename_component(gecici "${NEVO_GIRDI_SABLONU}" DIRECTORY)
set(gecici "${gecici}/kurulum/${NEVO_GIRDI_ADI}")
file(WRITE "${gecici}" "${girdi}")
file(INSTALL DESTINATION "${uygulamalar}" TYPE FILE FILES "${gecici}")

find_program(NEVO_MASAUSTU_VERITABANI update-desktop-database)
if(NEVO_MASAUSTU_VERITABANI AND "$ENV{DESTDIR}" STREQUAL "")
  execute_process(COMMAND "${NEVO_MASAUSTU_VERITABANI}" -q "${uygulamalar}")
endif()
