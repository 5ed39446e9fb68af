# What the macOS bundle's Info.plist (resources/Info.plist.in) says of the application, as
# the directory-wide variables CMake configures that template with.
set(MACOSX_BUNDLE_GUI_IDENTIFIER ${NEVO_UYGULAMA_KIMLIGI})
set(MACOSX_BUNDLE_BUNDLE_NAME Nevo)
set(MACOSX_BUNDLE_ICON_FILE AppIcon)
set(MACOSX_BUNDLE_BUNDLE_VERSION ${PROJECT_VERSION})
set(MACOSX_BUNDLE_SHORT_VERSION_STRING ${PROJECT_VERSION})
