# klarvik_test(NAME LINKS target... [ENVIRONMENT NAME=value...] [LABELS label...])
#
# A GoogleTest program of every *_test.cpp in the current folder; each of its tests is one of
# CTest's.
include(GoogleTest)
function(klarvik_test name)
  cmake_parse_arguments(TEST "" "" "LINKS;ENVIRONMENT;LABELS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *_test.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(${name} ${sources})
  target_link_libraries(${name} PRIVATE ${TEST_LINKS} test_support GTest::gmock_main klarvik_warnings)
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST
    PROPERTIES TIMEOUT 300 ENVIRONMENT "${TEST_ENVIRONMENT}" LABELS "${TEST_LABELS}")
endfunction()
