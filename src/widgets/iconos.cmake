# SPDX-License-Identifier: GPL-3.0-or-later
# The icons as two resources of the widgets: those for light desktops, and from them, color by color, those for dark ones.
# Where the toolkit draws no SVG they are pictures in the sizes of buttons at 100 to 200 %: iconos/NAME/SIDE.png.
set(oscuros "#4a5568=#cbd5e0" "#e2e8f0=#4a5568" "#2b6cb0=#90cdf4" "#2f855a=#68d391" "#c53030=#fc8181" "#b7791f=#f6e05e"
  "#ebf4ff=#2a4365" "#f0fff4=#22543d" "#f7fafc=#2d3748" "#fefcbf=#744210" "#fff=#1a202c")
set(lados 16 24 32 48 64)
set(carpeta ${CMAKE_CURRENT_BINARY_DIR}/iconos)
file(GLOB iconos CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/iconos/*.svg)

# One icon: its lines in the resource file of its colours, and what they name.
macro(poner_icono tema raiz nombre dibujo)
  if(WIN32)
    set(pngs "")
    foreach(lado IN LISTS lados)
      string(APPEND recursos_${tema} "<file alias=\"${raiz}/${nombre}/${lado}.png\">${carpeta}/${tema}/${nombre}/${lado}.png</file>\n")
      list(APPEND pngs ${carpeta}/${tema}/${nombre}/${lado}.png)
    endforeach()
    add_custom_command(OUTPUT ${pngs} COMMAND ${CMAKE_COMMAND} -E make_directory ${carpeta}/${tema}/${nombre}
      COMMAND ${RTN_HERRAMIENTAS}/iconos ${dibujo} ${carpeta}/${tema}/${nombre} ${lados}
      DEPENDS ${RTN_HERRAMIENTAS}/iconos ${dibujo} VERBATIM)
    list(APPEND archivos_${tema} ${pngs})
  else()
    string(APPEND recursos_${tema} "<file alias=\"${raiz}/${nombre}.svg\">${dibujo}</file>\n")
    list(APPEND archivos_${tema} ${dibujo})
  endif()
endmacro()

foreach(icono IN LISTS iconos)
  get_filename_component(nombre ${icono} NAME_WE)
  file(READ ${icono} dibujo)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${icono})
  foreach(par IN LISTS oscuros)
    string(REPLACE "=" ";" par ${par})
    list(GET par 0 claro)
    list(GET par 1 oscuro)
    string(REPLACE "\"${claro}\"" "\"${oscuro}\"" dibujo "${dibujo}")
  endforeach()
  file(CONFIGURE OUTPUT ${carpeta}/oscuro/${nombre}.svg CONTENT "${dibujo}" @ONLY)
  poner_icono(claro iconos ${nombre} ${icono})
  poner_icono(oscuro iconos/oscuro ${nombre} ${carpeta}/oscuro/${nombre}.svg)
endforeach()

foreach(tema claro oscuro)
  set(lista ${carpeta}/iconos_${tema}.qrc)
  file(CONFIGURE OUTPUT ${lista} CONTENT "<RCC><qresource prefix=\"/\">\n${recursos_${tema}}</qresource></RCC>\n" @ONLY)
  add_custom_command(OUTPUT ${carpeta}/qrc_iconos_${tema}.cpp
    COMMAND ${RTN_RCC} --name iconos_${tema} ${lista} -o ${carpeta}/qrc_iconos_${tema}.cpp
    DEPENDS ${lista} ${archivos_${tema}} VERBATIM)
  target_sources(rtn_widgets_screens PRIVATE ${carpeta}/qrc_iconos_${tema}.cpp)
  set_source_files_properties(${carpeta}/qrc_iconos_${tema}.cpp PROPERTIES SKIP_AUTOGEN ON SKIP_PRECOMPILE_HEADERS ON)
endforeach()
