# The Linux layer: GTK 3 + WebKitGTK 4.1.
pkg_check_modules(GTK REQUIRED IMPORTED_TARGET gtk+-3.0)
pkg_check_modules(WEBKIT REQUIRED IMPORTED_TARGET webkit2gtk-4.1)
pkg_check_modules(GIO_UNIX REQUIRED IMPORTED_TARGET gio-unix-2.0)
pkg_check_modules(X11 REQUIRED IMPORTED_TARGET x11)
pkg_check_modules(CANBERRA REQUIRED IMPORTED_TARGET libcanberra-gtk3)

add_library(nevo_gtk STATIC
  src/temel/ana_kuyruk_gtk.cpp
  src/temel/kaynaklar_gtk.cpp
  src/temel/sistem_gtk.cpp
  src/temel/gsettings_gtk.cpp
  src/app/pencere/menu_kurucu_gtk.cpp
  src/app/pencere/ust_cerceve_betigi_gtk.cpp
  src/app/pencere/ust_gezinme_gtk.cpp
  src/app/pencere/web_baglami_gtk.cpp
  src/app/pencere/yazim_denetimi_gtk.cpp
  src/app/pencere/web_gorunum_gtk.cpp
  src/app/pencere/izin_istekleri_gtk.cpp
  src/app/indirme/indirme_gtk.cpp
  src/app/pencere/yapistirma_gtk.cpp
  src/app/pencere/perde_gtk.cpp
  src/app/pencere/donen_gtk.cpp
  src/temel/canlandirma_gtk.cpp
  src/app/pencere/kap_yerlesimi_gtk.cpp
  src/app/pencere/dugmeler_gtk.cpp
  src/app/pencere/serit_gtk.cpp
  src/app/pencere/pencere_gtk.cpp
  src/app/pencere/pencere_kurucu_gtk.cpp
  src/app/pencere/acilis_izi_gtk.cpp
  src/app/pencere/tus_sirasi_gtk.cpp
  src/app/pencere/tus_komutlari_gtk.cpp
  src/app/pencere/baglam_menusu_gtk.cpp
  src/app/pencere/kenarlar_gtk.cpp
  src/desktop/tercih_deposu_gtk.cpp
  src/desktop/guc_kilidi_gtk.cpp
  src/desktop/masaustu_portali_gtk.cpp
  src/desktop/giris_ogesi_gtk.cpp
  src/desktop/kisayol/tus_cevirisi_gtk.cpp
  src/desktop/kisayol/sicak_tus_gtk.cpp
  src/desktop/kisayol/gnome_kisayolu_gtk.cpp
  src/desktop/kisayol/portal_kisayolu_gtk.cpp
  src/desktop/kisayol/sistem_kisayollari_gtk.cpp
  src/desktop/hizli_gorunum_gtk.cpp
  src/desktop/kisayol/kisayol_levhasi_gtk.cpp
  src/desktop/durum_ogesi_gtk.cpp
  src/desktop/dbus_menusu_gtk.cpp
  src/desktop/renk_semasi_gtk.cpp
  src/temel/dbus_nesnesi_gtk.cpp
  src/bridge/bildirim_merkezi_gtk.cpp
  src/bridge/bildirim_sesi_gtk.cpp
  src/bridge/kayit_paneli_gtk.cpp
  src/agent/ajan_yerleri_gtk.cpp
  src/agent/surec_platformu_gtk.cpp
)
target_link_libraries(nevo_gtk PUBLIC nevo_core PkgConfig::GTK PkgConfig::WEBKIT
                      PkgConfig::GIO_UNIX PkgConfig::X11 PkgConfig::CANBERRA)
nevo_uyarilar(nevo_gtk)

add_executable(nevo src/app/main_gtk.cpp src/app/kabuk.cpp)
target_link_libraries(nevo PRIVATE nevo_gtk)
nevo_uyarilar(nevo)
nevo_semboller_gizli(nevo)

# The resource directory beside bin/, in the build tree as under an install prefix. The
# window, the curtain and the about box show the icon drawn at build time, so the program
# loads no SVG renderer to start; the menu-bar item hands the SVG to its host.
find_program(NEVO_RSVG_CONVERT rsvg-convert REQUIRED DOC "Draws the icon's sizes (librsvg2-bin)")
set(NEVO_KAYNAKLAR ${CMAKE_SOURCE_DIR}/resources/AppIcon.svg)
set(simge_resimleri "")
foreach(olcu 84 256)
  set(png ${CMAKE_BINARY_DIR}/simge/AppIcon-${olcu}.png)
  add_custom_command(OUTPUT ${png}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/simge
    COMMAND ${NEVO_RSVG_CONVERT} --width ${olcu} --height ${olcu} --output ${png}
            ${CMAKE_SOURCE_DIR}/resources/AppIcon.svg
    DEPENDS ${CMAKE_SOURCE_DIR}/resources/AppIcon.svg VERBATIM)
  list(APPEND simge_resimleri ${png})
endforeach()
add_custom_target(nevo_simge_resimleri DEPENDS ${simge_resimleri})
add_dependencies(nevo nevo_simge_resimleri)
list(APPEND NEVO_KAYNAKLAR ${simge_resimleri})
add_custom_command(TARGET nevo POST_BUILD
  COMMAND ${CMAKE_COMMAND} -E make_directory ${NEVO_KAYNAK_DIZINI}
  COMMAND ${CMAKE_COMMAND} -E copy_if_different ${NEVO_KAYNAKLAR} ${NEVO_KAYNAK_DIZINI}/
  VERBATIM)

include(cmake/Ajan.cmake)
nevo_ajan_kaynaklari(${NEVO_KAYNAK_DIZINI})
install(DIRECTORY ${NEVO_KAYNAK_DIZINI}/ajan DESTINATION ${CMAKE_INSTALL_DATADIR}/nevo)
set(ajan_dosyalari ${NEVO_AJAN_DOSYALARI})
list(FILTER ajan_dosyalari EXCLUDE REGEX "/node$")
install(FILES ${ajan_dosyalari} DESTINATION ${CMAKE_INSTALL_DATADIR}/nevo)
if(NEVO_NODE)
  install(CODE "
    set(NEVO_NODE \"${NEVO_NODE}\")
    set(NEVO_KAYNAK_HEDEFI \"${CMAKE_INSTALL_DATADIR}/nevo\")
    include(\"${CMAKE_SOURCE_DIR}/cmake/CalismaOrtamiBagi.cmake\")")
endif()

# The program's installed path goes into the entry at install time (MasaustuGirdisi.cmake).
set(NEVO_KURULU_PROGRAM "@NEVO_KURULU_PROGRAM@")
set(NEVO_GIRDI_SABLONU ${CMAKE_BINARY_DIR}/${NEVO_UYGULAMA_KIMLIGI}.desktop.in)
configure_file(resources/nevo.desktop.in ${NEVO_GIRDI_SABLONU} @ONLY)
install(TARGETS nevo RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${NEVO_KAYNAKLAR} DESTINATION ${CMAKE_INSTALL_DATADIR}/nevo)
install(CODE "
  set(NEVO_GIRDI_SABLONU \"${NEVO_GIRDI_SABLONU}\")
  set(NEVO_GIRDI_ADI \"${NEVO_UYGULAMA_KIMLIGI}.desktop\")
  set(NEVO_BIN_DIZINI \"${CMAKE_INSTALL_BINDIR}\")
  set(NEVO_UYGULAMALAR_DIZINI \"${CMAKE_INSTALL_DATADIR}/applications\")
  include(\"${CMAKE_SOURCE_DIR}/cmake/MasaustuGirdisi.cmake\")")
install(FILES resources/AppIcon.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
        RENAME ${NEVO_UYGULAMA_KIMLIGI}.svg)
include(cmake/Paket.cmake)
