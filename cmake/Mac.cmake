# The macOS layer: AppKit + WebKit, Objective-C++ with ARC. Not built on Linux.
enable_language(OBJCXX)

add_library(nevo_mac STATIC
  src/temel/ana_kuyruk_mac.mm
  src/temel/sistem_mac.mm
  src/app/menu_kurucu_mac.mm
  src/app/serit_mac.mm
  src/app/perde_mac.mm
  src/app/web_gorunum_mac.mm
  src/app/pencere_mac.mm
  src/desktop/tercih_deposu_mac.mm
  src/desktop/guc_kilidi_mac.mm
  src/desktop/giris_ogesi_mac.mm
  src/bridge/bildirim_merkezi_mac.mm
  src/bridge/kayit_paneli_mac.mm
  src/agent/ajan_yerleri_mac.mm
)
target_compile_options(nevo_mac PUBLIC -fobjc-arc)
target_link_libraries(nevo_mac PUBLIC nevo_core "-framework Cocoa" "-framework WebKit"
                      "-framework QuartzCore" "-framework IOKit" "-framework ServiceManagement"
                      "-framework UserNotifications")

# The agent's resources go into the bundle's Contents/Resources.
include(cmake/Ajan.cmake)
set(NEVO_AJAN_YERLESIMI ${CMAKE_BINARY_DIR}/ajan-kaynaklari)
nevo_ajan_kaynaklari(${NEVO_AJAN_YERLESIMI})
file(GLOB_RECURSE NEVO_AJAN_BETIKLERI ${NEVO_AJAN_YERLESIMI}/ajan/*)
set_source_files_properties(${NEVO_AJAN_DOSYALARI} PROPERTIES
  MACOSX_PACKAGE_LOCATION Resources)
set_source_files_properties(${NEVO_AJAN_BETIKLERI} PROPERTIES
  MACOSX_PACKAGE_LOCATION Resources/ajan)

add_executable(nevo MACOSX_BUNDLE src/app/main_mac.mm src/app/kabuk.cpp
               ${NEVO_AJAN_DOSYALARI} ${NEVO_AJAN_BETIKLERI})
target_link_libraries(nevo PRIVATE nevo_mac)
set_target_properties(nevo PROPERTIES
  OUTPUT_NAME Nevo
  MACOSX_BUNDLE_INFO_PLIST ${CMAKE_SOURCE_DIR}/resources/Info.plist.in
  MACOSX_BUNDLE_GUI_IDENTIFIER ${NEVO_UYGULAMA_KIMLIGI}
  MACOSX_BUNDLE_BUNDLE_NAME Nevo
  MACOSX_BUNDLE_BUNDLE_VERSION ${PROJECT_VERSION}
  MACOSX_BUNDLE_SHORT_VERSION_STRING ${PROJECT_VERSION})
