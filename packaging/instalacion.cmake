# SPDX-License-Identifier: GPL-3.0-or-later
# cmake --install BUILD --prefix DIR makes a self-contained folder: program, configuration, store.
install(TARGETS vedra_rtn crear_base leer_dj respaldo rar RUNTIME DESTINATION .)
install(FILES ${CMAKE_BINARY_DIR}/manual/manual.pdf DESTINATION .)
install(CODE [[
  set(carpeta "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
  if(NOT EXISTS "${carpeta}/vedra_rtn.cfg")
    file(WRITE "${carpeta}/vedra_rtn.cfg" "vedra_rtn.db\n")
  endif()
]])
install(DIRECTORY store/ DESTINATION textos FILES_MATCHING PATTERN *.sql PATTERN *.csv)
# A store that stands there already holds somebody's work: it stays, and gets the schema of these programs.
install(CODE [[
  if(EXISTS "${carpeta}/vedra_rtn.db")
    execute_process(COMMAND "${carpeta}/crear_base" --actualizar "${carpeta}/vedra_rtn.db" COMMAND_ERROR_IS_FATAL ANY)
  else()
    execute_process(COMMAND "${carpeta}/crear_base" "${carpeta}/vedra_rtn.db" COMMAND_ERROR_IS_FATAL ANY)
  endif()
]])
