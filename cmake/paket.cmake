# The Debian package of the game: install layout and CPack.
#   cmake --build build --target package   ->   build/quorvant_<version>_amd64.deb
# The game lives in /usr/games, its data in /usr/share/games/quorvant; the
# program looks there (relative to itself) when nothing lies beside it.
if(NOT QUORVANT_SDL)
  return()
endif()

set(QUORVANT_SPIELE_DATEN share/games/quorvant)
set(QUORVANT_PAKET_ID de.quorvant.Quorvant)

install(TARGETS quorvant RUNTIME DESTINATION games)
install(FILES data/Planetenliste.bin DESTINATION ${QUORVANT_SPIELE_DATEN})
install(DIRECTORY data/Musik data/bilder DESTINATION ${QUORVANT_SPIELE_DATEN}
        FILES_MATCHING PATTERN "*.mid" PATTERN "*.png")
install(FILES packaging/${QUORVANT_PAKET_ID}.desktop DESTINATION share/applications)
install(FILES packaging/${QUORVANT_PAKET_ID}.metainfo.xml DESTINATION share/metainfo)
foreach(groesse 32 48 64 128 256)
  install(FILES packaging/symbole/quorvant-${groesse}.png
          DESTINATION share/icons/hicolor/${groesse}x${groesse}/apps RENAME quorvant.png)
endforeach()

# Debian wants man pages compressed, reproducibly (-n: no name, no time).
find_program(QUORVANT_GZIP gzip REQUIRED)
add_custom_command(OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/quorvant.6.gz
  COMMAND ${QUORVANT_GZIP} -9nc ${CMAKE_CURRENT_SOURCE_DIR}/packaging/quorvant.6 > ${CMAKE_CURRENT_BINARY_DIR}/quorvant.6.gz
  DEPENDS packaging/quorvant.6 VERBATIM)
add_custom_target(quorvant_handbuch ALL DEPENDS ${CMAKE_CURRENT_BINARY_DIR}/quorvant.6.gz)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/quorvant.6.gz DESTINATION share/man/man6)

# The package needs the game, not the tests and benchmarks: "package" builds
# only what it installs (paket.sh builds those targets first).
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY TRUE)
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quorvant)
set(CPACK_PACKAGE_VENDOR "Quorvant")
set(CPACK_PACKAGE_CONTACT "Quorvant <quorvant@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "rundenbasiertes Weltraum-Handelsspiel für 1 bis 6 Spieler")
set(CPACK_PACKAGE_DESCRIPTION
  "Jeder Spieler baut von Sol III aus ein Handelshaus auf: Frachter zu fernen
Sternen schicken, Waren kaufen, heimbringen und auf dem gemeinsamen Markt
verkaufen, Schiffe bauen, Kredite aufnehmen, Forschung bezahlen und sich der
Piraten erwehren. Alle Texte sind deutsch.")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Besides the libraries: the soundfont for the music and the font of the texts.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "timgm6mb-soundfont, fonts-liberation2")
include(CPack)

# Builds the package and checks what it holds; needs no display and no sound.
if(QUORVANT_TESTS)
  add_test(NAME paket_pruefen
           COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/tests/paket_pruefen.sh ${CMAKE_CURRENT_BINARY_DIR})
  set_tests_properties(paket_pruefen PROPERTIES TIMEOUT 600 RUN_SERIAL ON)
endif()
