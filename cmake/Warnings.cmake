# One place for what every target of the project is compiled with.
add_library(qm6_flags INTERFACE)
target_compile_options(qm6_flags INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
target_compile_definitions(qm6_flags INTERFACE QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
                                               QT_DISABLE_DEPRECATED_BEFORE=0x060400)
# With it a compiler cache sees which precompiled header was used.
target_compile_options(qm6_flags INTERFACE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
if(QMCHART6_SANITIZE)
  target_compile_options(qm6_flags INTERFACE -fsanitize=${QMCHART6_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(qm6_flags INTERFACE -fsanitize=${QMCHART6_SANITIZE})
endif()
if(QMCHART6_COVERAGE)
  target_compile_options(qm6_flags INTERFACE --coverage)
  target_link_options(qm6_flags INTERFACE --coverage)
endif()
