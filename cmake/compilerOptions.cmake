# Options shared by every target of the project.
add_library(sorvikOptions INTERFACE)

# Rounding is part of the results: no fused operations, whatever the processor offers.
target_compile_options(sorvikOptions INTERFACE -ffp-contract=off)
target_compile_options(sorvikOptions INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wdouble-promotion)
if(SORVIK_WERROR)
  target_compile_options(sorvikOptions INTERFACE -Werror)
endif()
