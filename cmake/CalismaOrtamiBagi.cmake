# Installs share/nevo/node, the link to the agent's runtime, at install time. The link is
# relative when the runtime and the resource directory share their top folder (a package
# under /usr: the packaging rules want such links relative, and the link then holds wherever
# the tree is unpacked); otherwise it names the runtime by its absolute path.
#   NEVO_NODE               the runtime's absolute path
#   NEVO_KAYNAK_HEDEFI      the resource directory, relative to the prefix or absolute
if(IS_ABSOLUTE "${NEVO_KAYNAK_HEDEFI}")
  set(dizin "${NEVO_KAYNAK_HEDEFI}")
else()
  set(dizin "${CMAKE_INSTALL_PREFIX}/${NEVO_KAYNAK_HEDEFI}")
endif()
string(REGEX MATCH "^/[^/]+" dizin_ustu "${dizin}")
string(REGEX MATCH "^/[^/]+" node_ustu "${NEVO_NODE}")
if(dizin_ustu STREQUAL node_ustu)
  file(RELATIVE_PATH hedef "${dizin}" "${NEVO_NODE}")
else()
  set(hedef "${NEVO_NODE}")
endif()
set(bag "$ENV{DESTDIR}${dizin}/node")
message(STATUS "Installing: ${bag} -> ${hedef}")
file(MAKE_DIRECTORY "$ENV{DESTDIR}${dizin}")
file(REMOVE "${bag}")
file(CREATE_LINK "${hedef}" "${bag}" SYMBOLIC)
