# klarvik_library(NAME LINKS target... [PREFIX folder] [FOLDERS folder...])
#
# One layer of the project: a static library of every source in the current folder, in its linux/ folder,
# where it has one, and in FOLDERS. Its headers are seen as "NAME/header.h", and only by those who link
# the layer: each has an include folder of its own, so an include of a layer above does not compile.
function(klarvik_library name)
  cmake_parse_arguments(LAYER "" "PREFIX" "LINKS;FOLDERS" ${ARGN})
  if(NOT LAYER_PREFIX)
    set(LAYER_PREFIX ${name})
  endif()
  foreach(folder . linux ${LAYER_FOLDERS})
    list(APPEND patterns ${folder}/*.cpp ${folder}/*.h)
  endforeach()
  file(GLOB sources CONFIGURE_DEPENDS ${patterns})

  set(include_root ${CMAKE_BINARY_DIR}/include/${name})
  cmake_path(GET LAYER_PREFIX PARENT_PATH prefix_parent)
  file(MAKE_DIRECTORY ${include_root}/${prefix_parent})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${include_root}/${LAYER_PREFIX} SYMBOLIC)

  add_library(${name} STATIC ${sources})
  target_include_directories(${name} PUBLIC ${include_root})
  target_link_libraries(${name} PUBLIC ${LAYER_LINKS} PRIVATE klarvik_warnings)
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
  if("${LAYER_LINKS}" MATCHES "Qt6::")
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    klarvik_precompiled(${name} QT)
  else()
    klarvik_precompiled(${name})
  endif()
endfunction()
