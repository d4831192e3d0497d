# SPDX-License-Identifier: GPL-2.0-or-later

# Compiles several files of a target as one: most of the time goes into headers that they share, so that a whole build
# takes half as long, and a build after a change somewhat longer. A file still has to name all that it includes: the
# other builds compile it alone.
option(QUORVIN_UNITY "Compile several files as one" OFF)

# In our own presets warnings are errors: a warning that is let stand hides the next one. Who builds the program with
# another compiler is not to be stopped by what that one finds.
option(QUORVIN_WERROR "Treat warnings as errors" OFF)
add_library(quorvin_warnings INTERFACE)
target_compile_options(quorvin_warnings INTERFACE
  -Wall -Wextra -Wpedantic $<$<BOOL:${QUORVIN_WERROR}>:-Werror>
  -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Wold-style-cast
  -Woverloaded-virtual -Wcast-qual -Wformat=2 -Wimplicit-fallthrough)
# Where files are compiled as one, a name in a function may be that of another file's private constant.
if(QUORVIN_UNITY)
  # Nor can the compiler see that it has one file before it and not a header.
  target_compile_options(quorvin_warnings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
else()
  target_compile_options(quorvin_warnings INTERFACE -Wshadow)
endif()
