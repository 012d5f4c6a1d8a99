# klarvik_floor(NAME LINKS target... [PREFIX folder])
#
# One floor of the house: a static library of every source in the current folder (and in its linux/
# folder, where it has one). Its headers are seen as "NAME/header.h", and only by those who link the
# floor: each has an include folder of its own, so an include of a floor above does not compile.
function(klarvik_floor name)
  cmake_parse_arguments(FLOOR "" "PREFIX" "LINKS" ${ARGN})
  if(NOT FLOOR_PREFIX)
    set(FLOOR_PREFIX ${name})
  endif()
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h linux/*.cpp linux/*.h)

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
