# SPDX-License-Identifier: GPL-3.0-or-later
# The Debian package: `cmake --build build/release --target package`. Its files are a component of their own, which
# `cmake --install BUILD` leaves out; `cmake --install BUILD --component paquete --prefix DIR` lays them out below DIR.
include(GNUInstallDirs)
set(RTN_IMAGENES "https://vedra-rtn.example/imagenes" CACHE STRING "Where the pictures of docs/ are published")
string(TIMESTAMP RTN_FECHA "%Y-%m-%d" UTC)
set(empaque ${CMAKE_BINARY_DIR}/paquete)
set(lib lib/vedra-rtn)
set(doc share/doc/vedra-rtn)

function(instalar)
  install(${ARGN} COMPONENT paquete EXCLUDE_FROM_ALL)
endfunction()

# Programs and texts.
instalar(TARGETS vedra_rtn crear_base leer_dj respaldo rar asistente RUNTIME DESTINATION ${lib})
instalar(FILES store/esquema.sql store/vistas.sql DESTINATION ${lib}/textos)
instalar(DIRECTORY store/pasos store/datos store/muestra DESTINATION ${lib}/textos)
file(WRITE ${empaque}/version "${PROJECT_VERSION}\n")
instalar(FILES ${empaque}/version DESTINATION ${lib})
instalar(PROGRAMS packaging/vedra-rtn DESTINATION bin)

# Menu, icons, metadata, completion.
configure_file(packaging/vedra-rtn.metainfo.xml.in ${empaque}/ar.marven.vedra_rtn.metainfo.xml @ONLY)
instalar(FILES packaging/vedra-rtn.desktop DESTINATION share/applications)
instalar(FILES ${empaque}/ar.marven.vedra_rtn.metainfo.xml DESTINATION share/metainfo)
instalar(FILES packaging/completado DESTINATION share/bash-completion/completions RENAME vedra-rtn)
set(dibujo ${CMAKE_SOURCE_DIR}/src/widgets/iconos/programa.svg)
set(lados 16 22 24 32 48 64 128 256)
list(TRANSFORM lados REPLACE "(.+)" "${empaque}/\\1.png" OUTPUT_VARIABLE iconos_png)
add_custom_command(OUTPUT ${iconos_png} COMMAND iconos ${dibujo} ${empaque} ${lados} DEPENDS iconos ${dibujo} VERBATIM)
set(iconos share/icons/hicolor)
instalar(FILES ${dibujo} DESTINATION ${iconos}/scalable/apps RENAME vedra-rtn.svg)
foreach(lado IN LISTS lados)
  instalar(FILES ${empaque}/${lado}.png DESTINATION ${iconos}/${lado}x${lado}/apps RENAME vedra-rtn.png)
endforeach()

# Pages of the manual, in Spanish whatever the reader's language is, and what Debian asks of a package's documents.
file(GLOB paginas CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/packaging/man/*.1)
set(comprimidos "")
file(MAKE_DIRECTORY ${empaque}/man1)
foreach(pagina IN LISTS paginas)
  get_filename_component(nombre ${pagina} NAME)
  add_custom_command(OUTPUT ${empaque}/${nombre}.gz COMMAND gzip -9nc ${pagina} > ${empaque}/${nombre}.gz
    DEPENDS ${pagina} VERBATIM)
  list(APPEND comprimidos ${empaque}/${nombre}.gz)
  file(CREATE_LINK ../es/man1/${nombre}.gz ${empaque}/man1/${nombre}.gz SYMBOLIC)
  instalar(FILES ${empaque}/${nombre}.gz DESTINATION share/man/es/man1)
  instalar(FILES ${empaque}/man1/${nombre}.gz DESTINATION share/man/man1)
endforeach()
string(TIMESTAMP fecha_debian "%a, %d %b %Y %H:%M:%S +0000" UTC)
file(CONFIGURE OUTPUT ${empaque}/changelog.Debian CONTENT
"vedra-rtn (${PROJECT_VERSION}-1) unstable; urgency=medium

  * Lo que cambió está en changelog.gz.

 -- VEDRA-RTN <mantenimiento@vedra-rtn.example>  ${fecha_debian}
")
foreach(par "${empaque}/changelog.Debian" "${CMAKE_SOURCE_DIR}/CHANGELOG.md")
  string(REGEX REPLACE ".*CHANGELOG\\.md" "${empaque}/changelog" salida ${par})
  add_custom_command(OUTPUT ${salida}.gz COMMAND gzip -9nc ${par} > ${salida}.gz DEPENDS ${par} VERBATIM)
  list(APPEND comprimidos ${salida}.gz)
  instalar(FILES ${salida}.gz DESTINATION ${doc})
endforeach()
instalar(FILES packaging/copyright docs/RESPALDOS.md ${CMAKE_BINARY_DIR}/manual/manual.pdf DESTINATION ${doc})
file(GLOB imagenes CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/docs/*.png)
instalar(FILES ${imagenes} docs/manual/imagenes/ventana.png docs/manual/imagenes/subconcepto-general.png
  DESTINATION ${doc}/imagenes)
add_custom_target(archivos_paquete ALL DEPENDS ${iconos_png} ${comprimidos})
add_dependencies(archivos_paquete manual_pdf)

set(CPACK_GENERATOR DEB)
set(CPACK_INSTALL_CMAKE_PROJECTS "${CMAKE_BINARY_DIR};vedra_rtn;paquete;/")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_NAME vedra-rtn)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "VEDRA-RTN <mantenimiento@vedra-rtn.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "declaraciones juradas del Impuesto de Sellos, para Escribanos")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Con VEDRA-RTN los Escribanos Públicos, agentes de retención del Impuesto de
Sellos, llevan las escrituras del mes, calculan el impuesto, emiten
comprobantes y boletas de depósito, y presentan la declaración jurada.
.
Cada usuario tiene su carpeta, con el programa, su configuración y su base de
datos, que quedan cuando se desinstala el paquete.")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
  WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The letter of the printed forms, the plugin of the pictures on the buttons, the toolkit's own dialogs in Spanish.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-dejavu-core, libqt6svg6, qt6-translations-l10n")
include(CPack)
