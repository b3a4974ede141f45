# The fuzz build: the game libraries instrumented for libFuzzer, ASan and
# UBSan, and the target that feeds the loader any bytes. Only with clang and
# in a build folder of its own (build-fuzz), e.g.
#   CC=clang-14 CXX=clang++-14 cmake -S . -B build-fuzz -DQUORVANT_FUZZ=ON \
#     -DQUORVANT_TESTS=OFF -DQUORVANT_BENCH=OFF -DQUORVANT_SDL=OFF
option(QUORVANT_FUZZ "Build the libFuzzer target over the saved-game loader (clang only)" OFF)
if(NOT QUORVANT_FUZZ)
  return()
endif()
if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  message(FATAL_ERROR "QUORVANT_FUZZ needs clang (CXX=clang++-14)")
endif()

# The tables' bound checks stay on: a saved value that reaches past a table
# must stop the run, not read the neighbouring field.
set(QUORVANT_FUZZ_FLAGS -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined
    -fno-omit-frame-pointer -gline-tables-only -UNDEBUG)
foreach(ziel quorvant_state quorvant_leinwand quorvant_screen quorvant_orders quorvant_year
             quorvant_economy quorvant_views quorvant_flow quorvant_headless quorvant-headless)
  target_compile_options(${ziel} PRIVATE ${QUORVANT_FUZZ_FLAGS})
endforeach()
# The driver makes the seed corpus; it and any other program of this build
# folder link the instrumented libraries and so the sanitizers' runtime.
foreach(programm quorvant-headless quorvant quorvant_tests quorvant_sdl_tests quorvant_bench)
  if(TARGET ${programm})
    target_link_options(${programm} PRIVATE -fsanitize=address,undefined)
  endif()
endforeach()

add_executable(quorvant_fuzz_spielstand tests/fuzz/spielstand_fuzz.cpp)
target_compile_options(quorvant_fuzz_spielstand PRIVATE ${QUORVANT_FUZZ_FLAGS})
target_link_options(quorvant_fuzz_spielstand PRIVATE -fsanitize=fuzzer,address,undefined)
target_link_libraries(quorvant_fuzz_spielstand PRIVATE quorvant_headless quorvant_kern)

# Seed corpus: real saved games that the driver plays, made fresh at build time.
set(QUORVANT_FUZZ_KORPUS ${CMAKE_BINARY_DIR}/fuzz-korpus)
add_custom_command(
  OUTPUT ${CMAKE_BINARY_DIR}/fuzz-korpus.fertig
  COMMAND bash ${CMAKE_SOURCE_DIR}/tests/fuzz/korpus.sh $<TARGET_FILE:quorvant-headless> ${QUORVANT_FUZZ_KORPUS}
  COMMAND ${CMAKE_COMMAND} -E touch ${CMAKE_BINARY_DIR}/fuzz-korpus.fertig
  DEPENDS quorvant-headless ${CMAKE_SOURCE_DIR}/tests/fuzz/korpus.sh
  COMMENT "Saved games for the fuzz corpus")
add_custom_target(quorvant_fuzz_korpus ALL DEPENDS ${CMAKE_BINARY_DIR}/fuzz-korpus.fertig)
