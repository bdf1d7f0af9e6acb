# What watches a build while it runs. It holds for everything that is built, GoogleTest too.
if(QEL_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  add_compile_definitions(_GLIBCXX_ASSERTIONS)
endif()
if(QEL_FUZZ)
  # What libFuzzer steers by: which branches an input takes.
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
