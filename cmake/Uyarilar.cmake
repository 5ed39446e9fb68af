# Warnings for every target of the project; errors under NEVO_WERROR (CI). The type check of
# the macOS layer uses the same list.
set(NEVO_UYARILAR -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
                  -Wnon-virtual-dtor -Wold-style-cast)
function(nevo_uyarilar hedef)
  target_compile_options(${hedef} PRIVATE ${NEVO_UYARILAR})
  if(NEVO_WERROR)
    target_compile_options(${hedef} PRIVATE -Werror)
  endif()
endfunction()

if(NEVO_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
                      -fno-omit-frame-pointer -g)
  add_link_options(-fsanitize=address,undefined)
endif()

# An executable of the project keeps its symbols to itself (see semboller.map).
function(nevo_semboller_gizli hedef)
  target_link_options(${hedef} PRIVATE
                      "LINKER:--version-script=${PROJECT_SOURCE_DIR}/cmake/semboller.map")
  set_property(TARGET ${hedef} APPEND PROPERTY LINK_DEPENDS
               ${PROJECT_SOURCE_DIR}/cmake/semboller.map)
endfunction()
