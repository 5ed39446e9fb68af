# The macOS layer: AppKit + WebKit, Objective-C++ with ARC. Built on Apple only; elsewhere the
# CTest entry mac_tur_denetimi type-checks it.
enable_language(OBJCXX)

add_library(nevo_mac STATIC
  src/temel/ana_kuyruk_mac.mm
  src/temel/metin_mac.mm
  src/temel/json_mac.mm
  src/temel/sistem_mac.mm
  src/app/pencere/menu_kurucu_mac.mm
  src/app/pencere/serit_mac.mm
  src/app/pencere/perde_mac.mm
  src/app/pencere/web_gorunum_mac.mm
  src/app/indirme/indirme_mac.mm
  src/app/pencere/pencere_mac.mm
  src/desktop/tercih_deposu_mac.mm
  src/desktop/guc_kilidi_mac.mm
  src/desktop/giris_ogesi_mac.mm
  src/desktop/kisayol/sicak_tus_mac.mm
  src/desktop/kisayol/sistem_kisayollari_mac.mm
  src/desktop/kisayol/kisayol_levhasi_mac.mm
  src/desktop/hizli_gorunum_mac.mm
  src/desktop/durum_ogesi_mac.mm
  src/bridge/bildirim_merkezi_mac.mm
  src/bridge/kayit_paneli_mac.mm
  src/agent/ajan_yerleri_mac.mm
  src/agent/surec_platformu_mac.mm
)
# ARC for the layer's own files and the entry point; a C++ target that links the layer is
# not compiled as Objective-C.
target_compile_options(nevo_mac PRIVATE -fobjc-arc)
nevo_uyarilar(nevo_mac)
target_compile_options(nevo_mac PRIVATE -Wnullable-to-nonnull-conversion)
target_link_libraries(nevo_mac PUBLIC nevo_core "-framework Cocoa" "-framework WebKit"
                      "-framework QuartzCore" "-framework IOKit" "-framework ServiceManagement"
                      "-framework UserNotifications" "-framework Carbon")

# Everything the bundle carries in Contents/Resources: the icon, and the agent's script and
# optional text files (ajan/ in a folder of its own).
include(cmake/Ajan.cmake)
nevo_ajan_kaynaklari(${CMAKE_BINARY_DIR}/ajan-kaynaklari)
file(GLOB_RECURSE NEVO_AJAN_BETIKLERI ${CMAKE_BINARY_DIR}/ajan-kaynaklari/ajan/*)
set(ajan_dosyalari ${NEVO_AJAN_DOSYALARI})
list(FILTER ajan_dosyalari EXCLUDE REGEX "/node$")
set(NEVO_PAKET_KAYNAKLARI ${CMAKE_SOURCE_DIR}/resources/AppIcon.icns ${ajan_dosyalari})
set_source_files_properties(${NEVO_PAKET_KAYNAKLARI} PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
set_source_files_properties(${NEVO_AJAN_BETIKLERI} PROPERTIES
  MACOSX_PACKAGE_LOCATION Resources/ajan)

# The agent's runtime is code: the file itself in Contents/Helpers, signed with the bundle,
# and Contents/Resources/node a relative link to it, where the agent looks it up.
set(NEVO_CALISMA_ORTAMI)
if(NEVO_NODE)
  file(REAL_PATH ${NEVO_NODE} node_dosyasi)
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/calisma-ortami)
  file(COPY_FILE ${node_dosyasi} ${CMAKE_BINARY_DIR}/calisma-ortami/node ONLY_IF_DIFFERENT)
  set(NEVO_CALISMA_ORTAMI ${CMAKE_BINARY_DIR}/calisma-ortami/node)
  set_source_files_properties(${NEVO_CALISMA_ORTAMI} PROPERTIES MACOSX_PACKAGE_LOCATION Helpers)
endif()

add_executable(nevo MACOSX_BUNDLE src/app/main_mac.mm src/app/kabuk.cpp
                                  ${NEVO_PAKET_KAYNAKLARI} ${NEVO_AJAN_BETIKLERI}
                                  ${NEVO_CALISMA_ORTAMI})
target_link_libraries(nevo PRIVATE nevo_mac)
target_compile_options(nevo PRIVATE -fobjc-arc)
nevo_uyarilar(nevo)
# Info.plist.in reads CMAKE_OSX_DEPLOYMENT_TARGET for LSMinimumSystemVersion, so the binary's
# minimum macOS and the bundle's are one value.
include(cmake/PaketBilgisi.cmake)
set_target_properties(nevo PROPERTIES
  OUTPUT_NAME Nevo
  MACOSX_BUNDLE_INFO_PLIST ${CMAKE_SOURCE_DIR}/resources/Info.plist.in)
if(NEVO_NODE)
  add_custom_command(TARGET nevo POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E rm -f $<TARGET_BUNDLE_CONTENT_DIR:nevo>/Resources/node
    COMMAND ${CMAKE_COMMAND} -E create_symlink ../Helpers/node
            $<TARGET_BUNDLE_CONTENT_DIR:nevo>/Resources/node
    VERBATIM)
endif()
