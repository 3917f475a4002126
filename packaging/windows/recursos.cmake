# SPDX-License-Identifier: GPL-3.0-or-later
# What the programs have within them on Windows: version, icon and manifest, and those with windows also the letters of the
# printed forms, the toolkit's Spanish and its configuration.
set(aqui ${CMAKE_CURRENT_LIST_DIR})
set(recursos ${CMAKE_BINARY_DIR}/windows)
string(REPLACE "." "," RTN_VERSION_COMAS ${PROJECT_VERSION})

set(icono ${recursos}/programa.ico)
set(dibujo ${CMAKE_SOURCE_DIR}/src/widgets/iconos/programa.svg)
add_custom_command(OUTPUT ${icono} COMMAND ${RTN_HERRAMIENTAS}/iconos ${dibujo} ${icono} 16 20 24 32 40 48 64 256
  DEPENDS ${RTN_HERRAMIENTAS}/iconos ${dibujo} VERBATIM)
configure_file(${aqui}/manifiesto.xml.in ${recursos}/manifiesto.xml @ONLY)

set(letras /usr/share/fonts/truetype/dejavu)
file(CONFIGURE OUTPUT ${recursos}/propios.qrc @ONLY CONTENT "<RCC>
<qresource prefix=\"/letras\">
<file alias=\"DejaVuSans.ttf\">${letras}/DejaVuSans.ttf</file>
<file alias=\"DejaVuSans-Bold.ttf\">${letras}/DejaVuSans-Bold.ttf</file>
</qresource>
<qresource prefix=\"/traducciones\">
<file alias=\"qtbase_es.qm\">/usr/share/qt6/translations/qtbase_es.qm</file>
</qresource>
<qresource prefix=\"/qt/etc\">
<file alias=\"qt.conf\">${aqui}/qt.conf</file>
</qresource>
</RCC>
")
add_custom_command(OUTPUT ${recursos}/qrc_propios.cpp
  COMMAND ${RTN_RCC} --name propios ${recursos}/propios.qrc -o ${recursos}/qrc_propios.cpp
  DEPENDS ${recursos}/propios.qrc ${aqui}/qt.conf VERBATIM)

add_custom_target(recursos_windows DEPENDS ${icono} ${recursos}/qrc_propios.cpp)

# herramienta_de_windows(TARGET DESCRIPTION): a program of the command line.
function(herramienta_de_windows programa RTN_DESCRIPCION)
  set(RTN_PROGRAMA ${programa})
  set(rc ${recursos}/${programa}.rc)
  configure_file(${aqui}/programa.rc.in ${rc} @ONLY)
  set_property(SOURCE ${rc} TARGET_DIRECTORY ${programa} PROPERTY OBJECT_DEPENDS ${recursos}/manifiesto.xml)
  target_sources(${programa} PRIVATE ${rc})
  add_dependencies(${programa} recursos_windows)
endfunction()

# programa_de_windows(TARGET): one with windows; a platform without a screen is for those that are tested on one.
function(programa_de_windows programa)
  herramienta_de_windows(${programa} "VEDRA-RTN")
  target_sources(${programa} PRIVATE ${recursos}/qrc_propios.cpp)
  set_source_files_properties(${recursos}/qrc_propios.cpp TARGET_DIRECTORY ${programa} PROPERTIES GENERATED ON
    SKIP_AUTOGEN ON SKIP_PRECOMPILE_HEADERS ON)
  qt6_import_plugins(${programa} INCLUDE Qt6::QOffscreenIntegrationPlugin)
endfunction()
