# What keeps a mistake from being more than a crash; sanitizers bring checks of their own.
if(NOT QMCHART6_SANITIZE)
  target_compile_options(qm6_flags INTERFACE -fstack-protector-strong)
  target_compile_definitions(qm6_flags INTERFACE $<$<CONFIG:Release,RelWithDebInfo>:_FORTIFY_SOURCE=2>)
  # Everything is bound at the start, and read only from then on.
  target_link_options(qm6_flags INTERFACE LINKER:-z,relro LINKER:-z,now)
endif()
