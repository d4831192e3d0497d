# Warnings are errors: a warning that is let stand hides the next one.
add_library(quorvin_warnings INTERFACE)
target_compile_options(quorvin_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Werror
  -Wconversion -Wsign-conversion -Wshadow -Wnon-virtual-dtor -Wold-style-cast
  -Woverloaded-virtual -Wcast-qual -Wformat=2 -Wimplicit-fallthrough)
