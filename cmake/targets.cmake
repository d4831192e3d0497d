# SPDX-License-Identifier: GPL-2.0-or-later

# What nearly every file includes, read once for all libraries. Release builds go without, so that a file that
# forgets an include is found there.
option(QUORVIN_PRECOMPILE "Read the commonest headers once for the whole build" OFF)
if(QUORVIN_PRECOMPILE)
  file(WRITE ${CMAKE_BINARY_DIR}/precompiled.cpp "")
  add_library(quorvin_precompiled STATIC ${CMAKE_BINARY_DIR}/precompiled.cpp)
  set_target_properties(quorvin_precompiled PROPERTIES AUTOMOC OFF)
  target_link_libraries(quorvin_precompiled PUBLIC Qt6::Core PRIVATE quorvin_warnings)
  target_compile_definitions(quorvin_precompiled PUBLIC
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH)
  target_precompile_headers(quorvin_precompiled PRIVATE
    <algorithm> <cstdint> <functional> <memory> <optional> <span> <string> <string_view> <utility> <vector>
    <QByteArray> <QCoreApplication> <QDateTime> <QDir> <QFile> <QFileInfo> <QLocale> <QObject> <QString>
    <QStringList> <QTimer>)
endif()

function(quorvin_compile_together name)
  if(QUORVIN_UNITY)
    set_target_properties(${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 20)
  endif()
endfunction()

# One library for each folder of src/. Includes are written from src/ on ("state/program_state.h"), so
# that every include names the folder it reaches into; tests/lint holds them against the table of who may
# include whom.
function(quorvin_library name)
  cmake_parse_arguments(ARG "OPTIMISED" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_compile_definitions(${name} PUBLIC QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH)
  target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE quorvin_warnings)
  # The headers were read without optimisation; a library that has it cannot use them.
  if(QUORVIN_PRECOMPILE AND NOT ARG_OPTIMISED)
    target_precompile_headers(${name} REUSE_FROM quorvin_precompiled)
  endif()
  if(NOT ARG_OPTIMISED)
    quorvin_compile_together(${name})
  endif()
  if(ARG_OPTIMISED)
    target_compile_options(${name} PRIVATE $<$<CONFIG:Debug>:-O2>)
  endif()
endfunction()

function(quorvin_program name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} quorvin_warnings)
endfunction()
