if(QUORVIN_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  # With the checks in the code the compiler sees ways through it that are not there, and warns of them.
  add_compile_options(-Wno-array-bounds -Wno-maybe-uninitialized -Wno-stringop-overflow)
  add_link_options(-fsanitize=address,undefined)
endif()
