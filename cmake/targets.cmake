# One library for each folder of src/. Includes are written from src/ on ("state/program_state.h"), so
# that every include names the folder it reaches into; tests/lint holds them against the table of who may
# include whom.
function(quorvin_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_compile_definitions(${name} PUBLIC QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH)
  target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE quorvin_warnings)
endfunction()

function(quorvin_program name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} quorvin_warnings)
endfunction()
