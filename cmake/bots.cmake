# The computer players of the headless driver: they press keys like a
# person, so they sit on top of the whole game and go into the driver only
# (and into the tests and the benchmark that watch them).
quorvant_wurzel(bots)
file(GLOB BOT_QUELLEN CONFIGURE_DEPENDS src/bots/*.cpp)
add_library(quorvant_bots STATIC ${BOT_QUELLEN})
target_include_directories(quorvant_bots PUBLIC ${QUORVANT_INC}/bots ${QUORVANT_INC}/flow)
target_link_libraries(quorvant_bots PUBLIC quorvant_headless quorvant_kern)
target_link_libraries(quorvant-headless PRIVATE quorvant_bots)
# In the window they are the opponents of a person who plays alone.
if(TARGET quorvant)
  target_link_libraries(quorvant PRIVATE quorvant_bots)
endif()
if(TARGET quorvant_sdl_tests)
  target_link_libraries(quorvant_sdl_tests PRIVATE quorvant_bots)
endif()

if(TARGET quorvant_tests)
  target_link_libraries(quorvant_tests PRIVATE quorvant_bots)
  # Two hundred years of six computer players in the largest galaxy, the
  # tables checked after every year.
  add_test(NAME Computerspieler.ZweihundertJahreSechsSpieler
           COMMAND quorvant-headless --bots 6 --years 200 --systems 400 --check --seed 3)
  set_tests_properties(Computerspieler.ZweihundertJahreSechsSpieler PROPERTIES
                       TIMEOUT 600 PASS_REGULAR_EXPRESSION "200 Jahre, 6 Spieler: in Ordnung")
endif()
if(TARGET quorvant_bench)
  target_link_libraries(quorvant_bench PRIVATE quorvant_bots)
endif()
