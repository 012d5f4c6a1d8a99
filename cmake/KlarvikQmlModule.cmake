# klarvik_qml_module(NAME URI uri [FOLDERS folder...] [DEPENDENCIES uri...])
#
# Makes the layer NAME a QML module of every *.qml in FOLDERS, the current folder where none is named,
# linked into the program: whoever installs it calls its qml_register_types_<URI>(). In the module all
# files lie in one folder, so that each finds the others. All modules are described in one folder, so
# that they and qmllint find one another. The QML is compiled to bytecode here: where it runs, that
# would slow down the first start and leave a cache in the user's home. Only what is built for a
# sanitizer, and has less time for it, does so. What Qt generates is not compiled with the project's warnings.
function(klarvik_qml_module name)
  cmake_parse_arguments(MODULE "" "URI" "FOLDERS;DEPENDENCIES" ${ARGN})
  if(NOT MODULE_FOLDERS)
    set(MODULE_FOLDERS .)
  endif()
  list(TRANSFORM MODULE_FOLDERS APPEND /*.qml OUTPUT_VARIABLE patterns)
  file(GLOB qml_files CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} ${patterns})
  foreach(file IN LISTS qml_files)
    cmake_path(GET file FILENAME alias)
    set_source_files_properties(${file} PROPERTIES QT_RESOURCE_ALIAS ${alias})
  endforeach()
  # The generated registration includes headers by their names alone.
  list(TRANSFORM MODULE_FOLDERS PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ OUTPUT_VARIABLE header_folders)
  target_include_directories(${name} PRIVATE ${header_folders})
  string(REPLACE "." "/" module_folder ${MODULE_URI})
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
    QML_FILES ${qml_files})

  # Bytecode is an array a file behind long includes: one compilation for all files of a module takes
  # little more time than one for each.
  get_target_property(generated ${name} SOURCES)
  set(bytecode ${generated})
  list(FILTER bytecode INCLUDE REGEX "qmlcache")
  set_source_files_properties(${bytecode} PROPERTIES UNITY_GROUP bytecode)
  set_target_properties(${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
  list(FILTER generated INCLUDE REGEX "qmltyperegistrations")
  set_source_files_properties(${generated} PROPERTIES COMPILE_OPTIONS -w)
endfunction()
