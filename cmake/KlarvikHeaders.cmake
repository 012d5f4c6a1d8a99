# klarvik_precompiled(NAME [QT] [TESTS])
#
# Has the target take the headers that most sources include from a file that the compiler has already
# read, which halves the time of a build. Each source still includes what it uses: clang-tidy, in
# ./check, reads them without that file. QT: the target uses Qt. TESTS: it is a test program.
set(klarvik_headers_std
  <algorithm> <array> <chrono> <cstdint> <filesystem> <functional> <map> <memory> <mutex> <optional>
  <ranges> <set> <stop_token> <string> <string_view> <thread> <unordered_map> <utility> <variant>
  <vector>)
set(klarvik_headers_qt <QAbstractListModel> <QCoreApplication> <QHash> <QObject> <QString>
  <QStringList> <QTimer> <QUrl> <QVariant> <QCoro/QCoroTask>)
set(klarvik_headers_tests <gmock/gmock.h> <gtest/gtest.h>)
set(klarvik_headers_qt_tests <QGuiApplication> <QQuickItem> <QQuickWindow> <QSignalSpy> <QTest>)

# Optimising a test, and writing down for a debugger what it consists of, takes longer than either
# saves. The sanitizers name the lines of their findings.
set(klarvik_test_options -O0)
if(NOT KLARVIK_SANITIZE)
  list(APPEND klarvik_test_options -g0)
endif()

function(klarvik_precompiled name)
  cmake_parse_arguments(HEADERS "QT;TESTS" "" "" ${ARGN})
  set(set_name klarvik_headers)
  set(headers ${klarvik_headers_std})
  set(links klarvik_warnings)
  if(HEADERS_QT)
    string(APPEND set_name _qt)
    list(APPEND headers ${klarvik_headers_qt})
    list(APPEND links Qt6::Core QCoro6::Core)
  endif()
  if(HEADERS_TESTS)
    string(APPEND set_name _tests)
    list(APPEND headers ${klarvik_headers_tests})
    list(APPEND links GTest::gmock)
    if(HEADERS_QT)
      list(APPEND headers ${klarvik_headers_qt_tests})
      list(APPEND links Qt6::Test Qt6::Quick Qt6::Widgets)
    endif()
  endif()
  if(NOT TARGET ${set_name})
    file(GENERATE OUTPUT ${CMAKE_BINARY_DIR}/${set_name}.cpp CONTENT "")
    add_library(${set_name} OBJECT ${CMAKE_BINARY_DIR}/${set_name}.cpp)
    target_link_libraries(${set_name} PRIVATE ${links})
    target_precompile_headers(${set_name} PRIVATE ${headers})
    if(HEADERS_TESTS)
      target_compile_options(${set_name} PRIVATE ${klarvik_test_options})
    endif()
  endif()
  target_precompile_headers(${name} REUSE_FROM ${set_name})
endfunction()
