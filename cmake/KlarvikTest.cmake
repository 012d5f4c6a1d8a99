# klarvik_test(NAME LINKS target... [ENVIRONMENT NAME=value...] [LABELS label...])
#
# A GoogleTest program of every *_test.cpp in the current folder; each of its tests is one of
# CTest's. LABELS: "concurrent" has the tests run under ThreadSanitizer as well.
#
# Every NAME_fuzz.cpp there (a LLVMFuzzerTestOneInput) becomes a fuzz target in the "fuzz" preset. It
# is run from the samples in the folder NAME_corpus beside it, where there is one, with the same seed
# and for the same number of runs each time.
include(GoogleTest)
if(KLARVIK_SANITIZE STREQUAL "fuzzer")
  add_custom_target(fuzz_targets)
endif()

function(klarvik_test name)
  cmake_parse_arguments(TEST "" "" "LINKS;ENVIRONMENT;LABELS" ${ARGN})
  if(KLARVIK_SANITIZE STREQUAL "fuzzer")
    klarvik_fuzz_targets(${TEST_LINKS})
    return()
  endif()
  file(GLOB sources CONFIGURE_DEPENDS *_test.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(${name} ${sources})
  target_link_libraries(${name} PRIVATE ${TEST_LINKS} test_support GTest::gmock_main klarvik_warnings)
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST
    PROPERTIES TIMEOUT 300 ENVIRONMENT "${TEST_ENVIRONMENT}" LABELS "${TEST_LABELS}")
endfunction()

function(klarvik_fuzz_targets)
  file(GLOB sources CONFIGURE_DEPENDS *_fuzz.cpp)
  foreach(source IN LISTS sources)
    cmake_path(GET source STEM name)
    string(REGEX REPLACE "_fuzz$" "_corpus" corpus ${name})
    set(found ${CMAKE_CURRENT_BINARY_DIR}/${name}_found)
    file(MAKE_DIRECTORY ${found})
    set(samples ${CMAKE_CURRENT_SOURCE_DIR}/${corpus})
    if(NOT EXISTS ${samples})
      set(samples "")
    endif()

    add_executable(${name} ${source})
    target_link_libraries(${name} PRIVATE ${ARGN} klarvik_warnings)
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
    add_dependencies(fuzz_targets ${name})
    add_test(NAME ${name}
      COMMAND ${name} -runs=50000 -seed=1 -max_len=65536 -timeout=10 ${found} ${samples})
    set_tests_properties(${name} PROPERTIES TIMEOUT 300)
  endforeach()
endfunction()
