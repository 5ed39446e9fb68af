# The local agent's resources: `node` (a link to the system's runtime), ajan/ajan.mjs (the
# real agent from NEVO_AJAN_DIZINI, else the development agent) and the optional
# panel-yolu.txt and ajan-ortam.txt. Laid out at configure time in the given directory;
# NEVO_AJAN_DOSYALARI lists the files beside `ajan/`.
find_program(NEVO_NODE NAMES node nodejs DOC "The script runtime the agent runs on")
set(NEVO_PANEL_YOLU "" CACHE PATH
    "A source tree whose ajan/ajan.mjs the shell runs when its resources hold none")
set(NEVO_AJAN_ORTAMI "" CACHE FILEPATH
    "A file of name=value lines laid over the agent's environment (ajan-ortam.txt)")

function(nevo_ajan_kaynaklari hedef)
  if(NEVO_AJAN_DIZINI)
    set(kaynak ${NEVO_AJAN_DIZINI}/ajan)
  else()
    set(kaynak ${CMAKE_SOURCE_DIR}/resources/gelistirme-ajani/ajan)
  endif()
  file(REMOVE_RECURSE ${hedef}/ajan)
  file(COPY ${kaynak} DESTINATION ${hedef})
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${kaynak}/ajan.mjs)
  set(dosyalar "")
  if(NEVO_NODE)
    file(CREATE_LINK ${NEVO_NODE} ${hedef}/node SYMBOLIC)
    list(APPEND dosyalar ${hedef}/node)
  endif()
  if(NEVO_PANEL_YOLU)
    file(WRITE ${hedef}/panel-yolu.txt "${NEVO_PANEL_YOLU}\n")
    list(APPEND dosyalar ${hedef}/panel-yolu.txt)
  else()
    file(REMOVE ${hedef}/panel-yolu.txt)
  endif()
  if(NEVO_AJAN_ORTAMI)
    configure_file(${NEVO_AJAN_ORTAMI} ${hedef}/ajan-ortam.txt COPYONLY)
    list(APPEND dosyalar ${hedef}/ajan-ortam.txt)
  else()
    file(REMOVE ${hedef}/ajan-ortam.txt)
  endif()
  set(NEVO_AJAN_DOSYALARI ${dosyalar} PARENT_SCOPE)
endfunction()
