# klarvik_test(NAME LINKS target... [APPLICATION class] [CONCURRENT filter] [FUZZ_SOURCES file...])
#
# A GoogleTest program of every *_test.cpp in the current folder; each of its tests is one of
# CTest's. APPLICATION: the class of the application object that Qt's own classes need, such as
# QCoreApplication; nothing is shown on a display. Under AddressSanitizer, where a start takes longer
# than most tests, the whole program is one of CTest's.
#
# CONCURRENT: a filter of GoogleTest's for the tests that have several threads at work. ThreadSanitizer
# runs these and no others, all of a program as one of CTest's.
#
# Every NAME_fuzz.cpp there (a LLVMFuzzerTestOneInput) becomes a fuzz target in the "fuzz" preset. It
# is run from the samples in the folder NAME_corpus beside it, where there is one, with the same seed
# and for the same number of runs each time. In every other build the target is compiled as well, and
# handed its samples once, so that it never rots. FUZZ_SOURCES: files that the targets share.
#
# To add one: write NAME_fuzz.cpp in the folder of the tests of what it feeds, and put a few small
# inputs that are worth starting from into NAME_corpus.
include(GoogleTest)
# Left to the plain build: millions of rows, millions of spellings, which the guard's fuzz target does
# as well, and tests without file handles, which the sanitizer itself needs.
set(unsanitized_tests
  AMillionReviewedItems.* AMillionLargeFiles.* DuplicateRowsTest.OfAMillionCopies*
  DeletionGuardSpellings.* *HandlesRunOut* *HandlesThatRunOut* *ShellCannotBeStarted*)
if(KLARVIK_SANITIZE STREQUAL "fuzzer")
  add_custom_target(fuzz_targets)
elseif(KLARVIK_SANITIZE STREQUAL "thread")
  add_custom_target(concurrent_tests)
endif()

function(klarvik_test name)
  cmake_parse_arguments(TEST "" "APPLICATION;CONCURRENT" "LINKS;FUZZ_SOURCES" ${ARGN})
  klarvik_fuzz_targets("${TEST_LINKS}" "${TEST_FUZZ_SOURCES}")
  if(KLARVIK_SANITIZE STREQUAL "fuzzer")
    return()
  endif()
  file(GLOB sources CONFIGURE_DEPENDS *_test.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(${name} ${sources})
  target_link_libraries(${name} PRIVATE ${TEST_LINKS} test_support GTest::gmock_main klarvik_warnings)
  if(TEST_APPLICATION)
    target_sources(${name} PRIVATE
      ${PROJECT_SOURCE_DIR}/tests/support/application/test_application.cpp)
    target_compile_definitions(${name} PRIVATE
      TEST_APPLICATION=${TEST_APPLICATION} TEST_APPLICATION_HEADER="${TEST_APPLICATION}")
    klarvik_precompiled(${name} QT TESTS)
  else()
    klarvik_precompiled(${name} TESTS)
  endif()
  # The discovery takes the properties apart at every space between them: one value each, and none
  # that is empty.
  set(properties TIMEOUT 300 ENVIRONMENT QT_QPA_PLATFORM=offscreen)
  if(KLARVIK_SANITIZE STREQUAL "address")
    list(JOIN unsanitized_tests : excluded)
    add_test(NAME ${name} COMMAND ${name} --gtest_brief=1 --gtest_filter=-${excluded})
    set_tests_properties(${name} PROPERTIES ${properties} TIMEOUT 1800)
    return()
  endif()
  if(KLARVIK_SANITIZE STREQUAL "thread")
    if(TEST_CONCURRENT)
      klarvik_concurrent(${name} ${TEST_CONCURRENT})
      set_tests_properties(${name} PROPERTIES ${properties} LABELS concurrent)
    endif()
    return()
  endif()
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST NO_PRETTY_VALUES PROPERTIES ${properties})
endfunction()

# A filter that no test answers to any more fails.
function(klarvik_concurrent name filter)
  add_dependencies(concurrent_tests ${name})
  add_test(NAME ${name} COMMAND ${name} --gtest_brief=1 --gtest_filter=${filter})
  set_tests_properties(${name} PROPERTIES FAIL_REGULAR_EXPRESSION " 0 tests from")
endfunction()

function(klarvik_fuzz_targets links shared_sources)
  file(GLOB sources CONFIGURE_DEPENDS *_fuzz.cpp)
  foreach(source IN LISTS sources)
    cmake_path(GET source STEM name)
    string(REGEX REPLACE "_fuzz$" "_corpus" corpus ${name})
    add_executable(${name} ${source} ${shared_sources})
    target_link_libraries(${name} PRIVATE ${links} klarvik_warnings)
    if(KLARVIK_SANITIZE STREQUAL "fuzzer")
      klarvik_fuzz(${name} ${CMAKE_CURRENT_SOURCE_DIR}/${corpus})
    else()
      target_sources(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests/fuzz/run_samples.cpp)
      file(GLOB samples CONFIGURE_DEPENDS ${corpus}/*)
      add_test(NAME ${name} COMMAND ${name} ${samples})
    endif()
    set_tests_properties(${name} PROPERTIES TIMEOUT 300)
  endforeach()
endfunction()

function(klarvik_fuzz name samples)
  set(found ${CMAKE_CURRENT_BINARY_DIR}/${name}_found)
  file(MAKE_DIRECTORY ${found})
  if(NOT EXISTS ${samples})
    set(samples "")
  endif()
  target_link_options(${name} PRIVATE -fsanitize=fuzzer)
  add_dependencies(fuzz_targets ${name})
  add_test(NAME ${name}
    COMMAND ${name} -runs=50000 -seed=1 -max_len=65536 -timeout=10 ${found} ${samples})
endfunction()
