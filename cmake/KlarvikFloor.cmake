# klarvik_floor(NAME LINKS target... [PREFIX folder] [FOLDERS folder...])
#
# One floor of the house: a static library of every source in the current folder, in its linux/ folder,
# where it has one, and in FOLDERS. Its headers are seen as "NAME/header.h", and only by those who link
# the floor: each has an include folder of its own, so an include of a floor above does not compile.
function(klarvik_floor name)
  cmake_parse_arguments(FLOOR "" "PREFIX" "LINKS;FOLDERS" ${ARGN})
  if(NOT FLOOR_PREFIX)
    set(FLOOR_PREFIX ${name})
  endif()
  foreach(folder . linux ${FLOOR_FOLDERS})
    list(APPEND patterns ${folder}/*.cpp ${folder}/*.h)
  endforeach()
  file(GLOB sources CONFIGURE_DEPENDS ${patterns})

  set(include_root ${CMAKE_BINARY_DIR}/include/${name})
  cmake_path(GET FLOOR_PREFIX PARENT_PATH prefix_parent)
  file(MAKE_DIRECTORY ${include_root}/${prefix_parent})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${include_root}/${FLOOR_PREFIX} SYMBOLIC)

  add_library(${name} STATIC ${sources})
  target_include_directories(${name} PUBLIC ${include_root})
  target_link_libraries(${name} PUBLIC ${FLOOR_LINKS} PRIVATE klarvik_warnings)
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
  if("${FLOOR_LINKS}" MATCHES "Qt6::")
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    klarvik_precompiled(${name} QT)
  else()
    klarvik_precompiled(${name})
  endif()
endfunction()
