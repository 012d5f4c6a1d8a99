# klarvik_qml_module(NAME URI uri [DEPENDENCIES uri...] [RESOURCES file...])
#
# Makes the floor NAME a QML module of every *.qml in the current folder, linked into the program:
# whoever installs it calls its qml_register_types_<URI>(). All modules are described in one folder,
# so that they and qmllint find one another. The QML is compiled to bytecode here:
# where it runs, that would slow down the first start and leave a cache in the user's home. Only what
# is built for a sanitizer, and has less time for it, does so. What Qt generates is not held to the
# house's warnings.
function(klarvik_qml_module name)
  cmake_parse_arguments(MODULE "" "URI" "DEPENDENCIES;RESOURCES" ${ARGN})
  file(GLOB qml_files CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} *.qml)
  string(REPLACE "." "/" module_folder ${MODULE_URI})
  target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
  set_target_properties(${name} PROPERTIES QT_QMLCACHEGEN_ARGUMENTS --only-bytecode)
  if(KLARVIK_SANITIZE)
    set(compiled_later NO_CACHEGEN)
  endif()
  qt_add_qml_module(${name}
    URI ${MODULE_URI}
    VERSION 1.0
    NO_PLUGIN
    ${compiled_later}
    OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/qml/${module_folder}
    IMPORT_PATH ${CMAKE_BINARY_DIR}/qml
    DEPENDENCIES QtQuick ${MODULE_DEPENDENCIES}
    QML_FILES ${qml_files}
    RESOURCES ${MODULE_RESOURCES})

  get_target_property(generated ${name} SOURCES)
  list(FILTER generated INCLUDE REGEX "qmltyperegistrations|qmlcache")
  set_source_files_properties(${generated} PROPERTIES COMPILE_OPTIONS "-w")
endfunction()
