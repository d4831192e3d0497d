# SPDX-License-Identifier: GPL-2.0-or-later
if(QUORVIN_SANITIZE)
  # Without vptr: to look at an object it opens a pipe, and where that fails, as in a test with too few descriptors,
  # it calls the object wrong.
  add_compile_options(-fsanitize=address,undefined -fno-sanitize=vptr -fno-sanitize-recover=all -fno-omit-frame-pointer)
  # With the checks in the code the compiler sees ways through it that are not there, and warns of them.
  add_compile_options(-Wno-array-bounds -Wno-maybe-uninitialized -Wno-stringop-overflow)
  add_link_options(-fsanitize=address,undefined)
endif()

if(QUORVIN_SANITIZE_THREADS)
  add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
  # It knows no fences, which the standard library uses in a place or two, and sees ways that are not there.
  add_compile_options(-Wno-tsan -Wno-array-bounds -Wno-maybe-uninitialized -Wno-stringop-overflow)
  add_link_options(-fsanitize=thread)
endif()
