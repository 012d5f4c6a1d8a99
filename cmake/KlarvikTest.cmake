# klarvik_test(NAME LINKS target... [APPLICATION class] [SHARDS n] [SLOW filter] [SCALE filter]
#              [CONCURRENT filter] [FUZZ_SOURCES file...])
#
# A GoogleTest program of every *_test.cpp in the current folder. Starting a process for each of its
# tests would take longer than the tests, so CTest runs the program as a whole, or as SHARDS processes
# that share its tests out; a failure is told by the name of the test. One test:
# build/dev/bin/NAME --gtest_filter=*Guard*
#
# APPLICATION: the class of the application object that Qt's own classes need, such as
# QCoreApplication; nothing is shown on a display.
#
# SLOW, SCALE: filters of GoogleTest's. Each names tests that run as an entry of their own, of the
# label "slow" or "scale", which ./test --quick leaves out. SCALE is for those of a million rows, files
# or spellings, which no sanitizer has the time for.
#
# CONCURRENT: a filter for the tests that have several threads at work. ThreadSanitizer runs these and
# no others.
#
# Every NAME_fuzz.cpp there (a LLVMFuzzerTestOneInput) becomes a fuzz target in the "fuzz" preset. It
# is run from the samples in the folder NAME_corpus beside it, where there is one, with the same seed
# each time: 5,000 runs as NAME, 50,000 as NAME_long. In every other build the target is compiled as
# well, and handed its samples once, so that it never rots. FUZZ_SOURCES: files that the targets share.
#
# To add one: write NAME_fuzz.cpp in the folder of the tests of what it feeds, and put a few small
# inputs that are worth starting from into NAME_corpus.

# Left to the plain build: tests without file handles, which a sanitizer itself needs.
set(unsanitized_tests *HandlesRunOut* *HandlesThatRunOut* *ShellCannotBeStarted*)
if(KLARVIK_SANITIZE STREQUAL "fuzzer")
  add_custom_target(fuzz_targets)
elseif(KLARVIK_SANITIZE STREQUAL "thread")
  add_custom_target(concurrent_tests)
endif()

function(klarvik_test name)
  cmake_parse_arguments(TEST "" "APPLICATION;SHARDS" "LINKS;SLOW;SCALE;CONCURRENT;FUZZ_SOURCES" ${ARGN})
  klarvik_fuzz_targets("${TEST_LINKS}" "${TEST_FUZZ_SOURCES}")
  if(KLARVIK_SANITIZE STREQUAL "fuzzer")
    return()
  endif()
  file(GLOB sources CONFIGURE_DEPENDS *_test.cpp)
  if(NOT sources)
    return()
  endif()
  klarvik_test_main(main "${TEST_APPLICATION}")
  add_executable(${name} ${sources})
  target_link_libraries(${name} PRIVATE ${main} ${TEST_LINKS} test_support klarvik_warnings)
  target_compile_options(${name} PRIVATE ${klarvik_test_options})
  if(TEST_APPLICATION)
    klarvik_precompiled(${name} QT TESTS)
  else()
    klarvik_precompiled(${name} TESTS)
  endif()

  if(KLARVIK_SANITIZE STREQUAL "thread")
    if(TEST_CONCURRENT)
      add_dependencies(concurrent_tests ${name})
      klarvik_test_entries(${name} "${TEST_CONCURRENT}" LABELS concurrent)
    endif()
    return()
  endif()
  set(apart ${TEST_SLOW} ${TEST_SCALE})
  if(KLARVIK_SANITIZE STREQUAL "address")
    list(APPEND apart ${unsanitized_tests})
  endif()
  list(JOIN apart : apart)
  klarvik_test_entries(${name} "*-${apart}" SHARDS ${TEST_SHARDS})
  if(TEST_SLOW)
    klarvik_test_entries(${name} "${TEST_SLOW}" SUFFIX _slow SHARDS ${TEST_SHARDS} LABELS slow)
  endif()
  if(TEST_SCALE)
    klarvik_test_entries(${name} "${TEST_SCALE}" SUFFIX _scale LABELS scale)
  endif()
endfunction()

# klarvik_test_entries(NAME filters [SUFFIX suffix] [SHARDS n] [LABELS label])
#
# CTest's entries for the tests of the program NAME that answer to the filters: one, or one for each
# shard. A filter that no test answers to any more fails.
function(klarvik_test_entries name filters)
  cmake_parse_arguments(ENTRY "" "SUFFIX;SHARDS;LABELS" "" ${ARGN})
  list(JOIN filters : filter)
  if(NOT ENTRY_SHARDS)
    set(ENTRY_SHARDS 1)
  endif()
  foreach(shard RANGE 1 ${ENTRY_SHARDS})
    set(entry ${name}${ENTRY_SUFFIX})
    if(ENTRY_SHARDS GREATER 1)
      string(APPEND entry _${shard}of${ENTRY_SHARDS})
    endif()
    math(EXPR index "${shard} - 1")
    add_test(NAME ${entry} COMMAND ${name} --gtest_brief=1 --gtest_filter=${filter})
    set_tests_properties(${entry} PROPERTIES
      TIMEOUT 1800 FAIL_REGULAR_EXPRESSION " 0 tests from"
      ENVIRONMENT "GTEST_TOTAL_SHARDS=${ENTRY_SHARDS};GTEST_SHARD_INDEX=${index}")
    if(ENTRY_LABELS)
      set_tests_properties(${entry} PROPERTIES LABELS ${ENTRY_LABELS})
    endif()
  endforeach()
endfunction()

# klarvik_test_main(VARIABLE class): sets VARIABLE to the entry of all test programs that have an
# application object of this class, or none. It is compiled once for each class.
function(klarvik_test_main variable class)
  set(target test_main_${class})
  set(${variable} ${target} PARENT_SCOPE)
  if(TARGET ${target})
    return()
  endif()
  add_library(${target} OBJECT ${PROJECT_SOURCE_DIR}/tests/support/application/test_main.cpp)
  target_link_libraries(${target} PUBLIC GTest::gmock PRIVATE klarvik_warnings)
  if(class)
    target_link_libraries(${target} PUBLIC Qt6::Test Qt6::Quick Qt6::Widgets QCoro6::Core)
    target_compile_definitions(${target} PRIVATE
      TEST_APPLICATION=${class} TEST_APPLICATION_HEADER="${class}")
  endif()
endfunction()

function(klarvik_fuzz_targets links shared_sources)
  file(GLOB sources CONFIGURE_DEPENDS *_fuzz.cpp)
  foreach(source IN LISTS sources)
    cmake_path(GET source STEM name)
    string(REGEX REPLACE "_fuzz$" "_corpus" corpus ${name})
    add_executable(${name} ${source} ${shared_sources})
    target_link_libraries(${name} PRIVATE ${links} klarvik_warnings)
    if(KLARVIK_SANITIZE STREQUAL "fuzzer")
      target_link_options(${name} PRIVATE -fsanitize=fuzzer)
      add_dependencies(fuzz_targets ${name})
      klarvik_fuzz(${name} ${name} 5000 fuzz_short ${CMAKE_CURRENT_SOURCE_DIR}/${corpus})
      klarvik_fuzz(${name}_long ${name} 50000 fuzz_long ${CMAKE_CURRENT_SOURCE_DIR}/${corpus})
    else()
      target_sources(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests/fuzz/run_samples.cpp)
      file(GLOB samples CONFIGURE_DEPENDS ${corpus}/*)
      add_test(NAME ${name} COMMAND ${name} ${samples})
      set_tests_properties(${name} PROPERTIES TIMEOUT 300)
    endif()
  endforeach()
endfunction()

function(klarvik_fuzz entry program runs label samples)
  set(found ${CMAKE_CURRENT_BINARY_DIR}/${program}_found)
  file(MAKE_DIRECTORY ${found})
  if(NOT EXISTS ${samples})
    set(samples "")
  endif()
  add_test(NAME ${entry}
    COMMAND ${program} -runs=${runs} -seed=1 -max_len=65536 -timeout=10 ${found} ${samples})
  set_tests_properties(${entry} PROPERTIES TIMEOUT 600 LABELS ${label})
endfunction()
