# What the Debian package carries besides the program, its resources and the desktop entry:
# the icon in the hicolor theme at every size (drawn from the one SVG at build time), the
# AppStream metainfo, the manual page, the copyright and the changelog; then how
# `cpack -G DEB` builds nevo_<version>_<arch>.deb. A plain `cmake --install` installs the
# same files under its prefix.
set(NEVO_SURUM_TARIHI 2026-11-24 CACHE STRING "Release date of this version (YYYY-MM-DD)")
find_program(NEVO_GZIP gzip REQUIRED)

set(paket ${CMAKE_BINARY_DIR}/paket)
set(simge ${CMAKE_SOURCE_DIR}/resources/AppIcon.svg)
set(uretilenler "")
foreach(olcu 16 24 32 48 64 128 256 512)
  set(dizin ${paket}/simgeler/${olcu}x${olcu})
  set(png ${dizin}/${NEVO_UYGULAMA_KIMLIGI}.png)
  add_custom_command(OUTPUT ${png}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${dizin}
    COMMAND ${NEVO_RSVG_CONVERT} --width ${olcu} --height ${olcu} --output ${png} ${simge}
    DEPENDS ${simge} VERBATIM)
  list(APPEND uretilenler ${png})
  install(FILES ${png} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${olcu}x${olcu}/apps)
endforeach()

# The changelog's date in the form Debian's tools read ("Tue, 24 Nov 2026 00:00:00 +0000").
if(NOT NEVO_SURUM_TARIHI MATCHES "^([0-9][0-9][0-9][0-9])-([0-9][0-9])-([0-9][0-9])$")
  message(FATAL_ERROR "NEVO_SURUM_TARIHI is not YYYY-MM-DD: ${NEVO_SURUM_TARIHI}")
endif()
set(yil ${CMAKE_MATCH_1})
set(ay_metni ${CMAKE_MATCH_2})
set(gun_metni ${CMAKE_MATCH_3})
string(REGEX REPLACE "^0" "" ay "${ay_metni}")
string(REGEX REPLACE "^0" "" gun "${gun_metni}")
set(kaydirma 0 3 2 5 0 3 5 1 4 6 2 4)
set(y ${yil})
if(ay LESS 3)
  math(EXPR y "${yil} - 1")
endif()
math(EXPR ay_sira "${ay} - 1")
list(GET kaydirma ${ay_sira} k)
math(EXPR hafta_gunu "(${y} + ${y} / 4 - ${y} / 100 + ${y} / 400 + ${k} + ${gun}) % 7")
set(gunler Sun Mon Tue Wed Thu Fri Sat)
set(aylar Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec)
list(GET gunler ${hafta_gunu} gun_adi)
list(GET aylar ${ay_sira} ay_adi)
set(NEVO_DEGISIKLIK_TARIHI "${gun_adi}, ${gun_metni} ${ay_adi} ${yil} 00:00:00 +0000")

configure_file(resources/paket/nevo.1.in ${paket}/nevo.1 @ONLY)
configure_file(resources/paket/changelog.in ${paket}/changelog @ONLY)
configure_file(resources/paket/metainfo.xml.in
               ${paket}/${NEVO_UYGULAMA_KIMLIGI}.metainfo.xml @ONLY)
# Compressed without a name or a time, so two builds of one version give the same bytes.
foreach(metin nevo.1 changelog)
  add_custom_command(OUTPUT ${paket}/${metin}.gz
    COMMAND ${NEVO_GZIP} -9nkf ${paket}/${metin}
    DEPENDS ${paket}/${metin} VERBATIM)
  list(APPEND uretilenler ${paket}/${metin}.gz)
endforeach()
add_custom_target(nevo_paket_dosyalari DEPENDS ${uretilenler})
add_dependencies(nevo nevo_paket_dosyalari)

install(FILES ${paket}/${NEVO_UYGULAMA_KIMLIGI}.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${paket}/nevo.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${paket}/changelog.gz resources/paket/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME nevo)
set(CPACK_PACKAGE_VENDOR Nevo)
set(CPACK_PACKAGE_CONTACT "Nevo <destek@nevo.ai>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "desktop shell of the Nevo web application")
set(CPACK_PACKAGE_DESCRIPTION [[
Nevo desktop shows the hosted Nevo web application in a window of its own
and adds what a browser tab cannot offer: a compact sign-in window and a
resizable main window, desktop notifications, saving files, keeping the
computer awake while long jobs run, a global shortcut that opens a
quick-entry panel, a menu-bar item, launching at login, a local agent
paired with the user's account, and nevo:// links that bring sign-ins
back to the application.]])
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION web)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://nevo.ai/)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# The libraries the program links come from the binary itself (dpkg-shlibdeps); the agent's
# runtime, a link to the system's, is named here when the package ships that link.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
if(NEVO_NODE)
  set(CPACK_DEBIAN_PACKAGE_DEPENDS nodejs)
endif()
# Spelling in Turkish and English, the codecs the page's media needs, the desktop portal
# (file dialogs, the global shortcut and keep-awake on Wayland desktops), and the sound
# theme and sound server bridge that a notification's sound plays through.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "hunspell-tr, hunspell-en-us, gstreamer1.0-plugins-good, gstreamer1.0-plugins-bad, \
gstreamer1.0-libav, xdg-desktop-portal, xdg-desktop-portal-gtk | xdg-desktop-portal-backend, \
sound-theme-freedesktop, libcanberra-pulse")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
    GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
include(CPack)
