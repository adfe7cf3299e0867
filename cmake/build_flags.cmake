# The one place for compiler flags: every target of ours links trassix_flags.
add_library(trassix_flags INTERFACE)

if(MSVC)
  target_compile_options(trassix_flags INTERFACE /W4 /permissive- /utf-8 $<$<BOOL:${TRASSIX_WERROR}>:/WX>)
else()
  target_compile_options(trassix_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion $<$<BOOL:${TRASSIX_WERROR}>:-Werror>)
endif()

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # Optimising, this compiler believes that a small vector kept in place could be longer than its
  # place.
  target_compile_options(trassix_flags INTERFACE -Wno-stringop-overread)
endif()

if(TRASSIX_SANITIZE)
  # Global, so that the test library is instrumented as well.
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # The checks hide from this compiler that the standard library's own values are initialised.
    add_compile_options(-Wno-maybe-uninitialized)
  endif()
endif()
if(TRASSIX_COVERAGE)
  add_compile_options(--coverage)
  add_link_options(--coverage)
endif()
