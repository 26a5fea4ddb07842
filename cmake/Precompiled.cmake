# What most sources of a target include is compiled once, for it or for one that is compiled with the same flags:
# either a header of cmake/precompiled or the target to be like. A source still includes what it uses: the debug presets
# and tools/lint compile each alone. The check of the headers never sees a precompiled one.
function(qm6_precompile target header like)
  if(header)
    target_precompile_headers(${target} PRIVATE "${PROJECT_SOURCE_DIR}/cmake/precompiled/${header}.h")
  else()
    target_precompile_headers(${target} REUSE_FROM ${like})
  endif()
endfunction()
