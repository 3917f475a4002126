; SPDX-License-Identifier: GPL-3.0-or-later
; The installer: for one user, without an administrator. makensis is given VERSION, PROGRAMAS, FUENTES, LICENCIAS and SALIDA.
; /S installs without a window, /MUESTRA the sample store where there is none yet, /D=FOLDER (last, without quotes) elsewhere.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user

!include "MUI2.nsh"
!include "FileFunc.nsh"
!include "LogicLib.nsh"

!define NOMBRE "VEDRA-RTN"
!define REGISTRO "Software\Microsoft\Windows\CurrentVersion\Uninstall\VEDRA-RTN"

Name "${NOMBRE} ${VERSION}"
OutFile "${SALIDA}"
InstallDir "$LOCALAPPDATA\Programs\${NOMBRE}"
InstallDirRegKey HKCU "${REGISTRO}" "InstallLocation"
BrandingText "${NOMBRE}"
ShowInstDetails nevershow
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "${NOMBRE}"
VIAddVersionKey "FileDescription" "Instalador de ${NOMBRE}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "GPL-3.0-or-later"

!define MUI_ICON "${PROGRAMAS}\..\windows\programa.ico"
!define MUI_UNICON "${PROGRAMAS}\..\windows\programa.ico"
!define MUI_ABORTWARNING
!define MUI_COMPONENTSPAGE_SMALLDESC
!define MUI_COMPONENTSPAGE_TEXT_TOP "Elija con qué base de datos empieza. Después puede instalar otra vez en otra carpeta."
!define MUI_COMPONENTSPAGE_TEXT_COMPLIST "Una de las dos:"
!define MUI_WELCOMEPAGE_TEXT "Este programa instala ${NOMBRE} ${VERSION} para su usuario. No hace falta un administrador.$\r$\n$\r$\n\
Si ${NOMBRE} está abierto, ciérrelo antes de seguir: su base de datos y lo emitido quedan como están.$\r$\n$\r$\n\
Presione Siguiente para continuar."
!define MUI_FINISHPAGE_RUN "$INSTDIR\vedra_rtn.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Abrir ${NOMBRE}"
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_DIRECTORY
!define MUI_PAGE_HEADER_TEXT "Base de datos"
!define MUI_PAGE_HEADER_SUBTEXT "Empezar con una vacía o con la de muestra."
!define MUI_PAGE_CUSTOMFUNCTION_PRE solo_sin_base
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Spanish"

; A program that runs keeps its file.
!macro EXIGIR_CERRADO
  ${If} ${FileExists} "$INSTDIR\vedra_rtn.exe"
    ClearErrors
    FileOpen $0 "$INSTDIR\vedra_rtn.exe" a
    ${If} ${Errors}
      MessageBox MB_OK|MB_ICONEXCLAMATION "${NOMBRE} está abierto. Ciérrelo y vuelva a intentar." /SD IDOK
      SetErrorLevel 3
      Quit
    ${EndIf}
    FileClose $0
  ${EndIf}
!macroend

; Runs a program beside the others; what it says goes to the details, and a failure ends the installation.
!macro CORRER ORDEN
  nsExec::ExecToStack `${ORDEN}`
  Pop $0
  Pop $1
  ${If} $0 != 0
    MessageBox MB_OK|MB_ICONSTOP "No se pudo preparar la base de datos.$\r$\n$\r$\n$1" /SD IDOK
    SetErrorLevel 4
    Quit
  ${EndIf}
!macroend

Section "-Programa"
  !insertmacro EXIGIR_CERRADO
  SetOutPath "$INSTDIR"
  File "${PROGRAMAS}\vedra_rtn.exe"
  File "${PROGRAMAS}\crear_base.exe"
  File "${PROGRAMAS}\rar.exe"
  File "${PROGRAMAS}\leer_dj.exe"
  File "${PROGRAMAS}\respaldo.exe"
  File "${PROGRAMAS}\..\manual\manual.pdf"
  File "${FUENTES}\LICENSE"
  File /r "${LICENCIAS}\licencias"
  RMDir /r "$INSTDIR\textos"
  SetOutPath "$INSTDIR\textos"
  File "${FUENTES}\store\*.sql"
  SetOutPath "$INSTDIR\textos\pasos"
  File "${FUENTES}\store\pasos\*.sql"
  SetOutPath "$INSTDIR\textos\datos"
  File "${FUENTES}\store\datos\*.csv"
  SetOutPath "$INSTDIR\textos\muestra"
  File "${FUENTES}\store\muestra\*.csv"
  SetOutPath "$INSTDIR"
  ${IfNot} ${FileExists} "$INSTDIR\vedra_rtn.cfg"
    FileOpen $0 "$INSTDIR\vedra_rtn.cfg" w
    FileWrite $0 "vedra_rtn.db$\r$\n"
    FileClose $0
  ${EndIf}
SectionEnd

SectionGroup /e "La base de datos"
  Section "Una base vacía, para trabajar" SEC_VACIA
  SectionEnd
  Section /o "La base de muestra, para probar" SEC_MUESTRA
  SectionEnd
SectionGroupEnd

Section "-Base"
  ${If} ${FileExists} "$INSTDIR\vedra_rtn.db"
    !insertmacro CORRER '"$INSTDIR\crear_base.exe" --actualizar "$INSTDIR\vedra_rtn.db"'
  ${ElseIf} ${SectionIsSelected} ${SEC_MUESTRA}
    !insertmacro CORRER '"$INSTDIR\crear_base.exe" --muestra "$INSTDIR\vedra_rtn.db"'
  ${Else}
    !insertmacro CORRER '"$INSTDIR\crear_base.exe" "$INSTDIR\vedra_rtn.db"'
  ${EndIf}
SectionEnd

Section "-Menú"
  WriteUninstaller "$INSTDIR\desinstalar.exe"
  CreateDirectory "$SMPROGRAMS\${NOMBRE}"
  CreateShortcut "$SMPROGRAMS\${NOMBRE}\${NOMBRE}.lnk" "$INSTDIR\vedra_rtn.exe"
  CreateShortcut "$SMPROGRAMS\${NOMBRE}\Manual.lnk" "$INSTDIR\manual.pdf"
  CreateShortcut "$SMPROGRAMS\${NOMBRE}\Desinstalar ${NOMBRE}.lnk" "$INSTDIR\desinstalar.exe"
  WriteRegStr HKCU "${REGISTRO}" "DisplayName" "${NOMBRE}"
  WriteRegStr HKCU "${REGISTRO}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${REGISTRO}" "DisplayIcon" "$INSTDIR\vedra_rtn.exe"
  WriteRegStr HKCU "${REGISTRO}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${REGISTRO}" "UninstallString" '"$INSTDIR\desinstalar.exe"'
  WriteRegStr HKCU "${REGISTRO}" "QuietUninstallString" '"$INSTDIR\desinstalar.exe" /S'
  WriteRegDWORD HKCU "${REGISTRO}" "NoModify" 1
  WriteRegDWORD HKCU "${REGISTRO}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K /G=0" $0 $1 $2
  WriteRegDWORD HKCU "${REGISTRO}" "EstimatedSize" $0
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${SEC_VACIA} "Las leyes y el catálogo, y ningún agente."
  !insertmacro MUI_DESCRIPTION_TEXT ${SEC_MUESTRA} "Además agentes y meses inventados. Lo que cargue en ella no es para presentar."
!insertmacro MUI_FUNCTION_DESCRIPTION_END

Function .onInit
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/MUESTRA" $1
  ${IfNot} ${Errors}
    !insertmacro SelectSection ${SEC_MUESTRA}
    !insertmacro UnselectSection ${SEC_VACIA}
  ${EndIf}
FunctionEnd

; One of the two; the group itself stands for the first.
Function .onSelChange
  ${If} $0 = ${SEC_MUESTRA}
    !insertmacro SelectSection ${SEC_MUESTRA}
    !insertmacro UnselectSection ${SEC_VACIA}
  ${Else}
    !insertmacro SelectSection ${SEC_VACIA}
    !insertmacro UnselectSection ${SEC_MUESTRA}
  ${EndIf}
FunctionEnd

; A store that is there stays.
Function solo_sin_base
  ${If} ${FileExists} "$INSTDIR\vedra_rtn.db"
    Abort
  ${EndIf}
FunctionEnd

; What the program has made stays: store, copies, configuration, data.
Section "Uninstall"
  !insertmacro EXIGIR_CERRADO
  Delete "$INSTDIR\vedra_rtn.exe"
  Delete "$INSTDIR\crear_base.exe"
  Delete "$INSTDIR\rar.exe"
  Delete "$INSTDIR\leer_dj.exe"
  Delete "$INSTDIR\respaldo.exe"
  Delete "$INSTDIR\manual.pdf"
  Delete "$INSTDIR\LICENSE"
  RMDir /r "$INSTDIR\licencias"
  RMDir /r "$INSTDIR\textos"
  Delete "$INSTDIR\desinstalar.exe"
  RMDir "$INSTDIR"
  RMDir /r "$SMPROGRAMS\${NOMBRE}"
  DeleteRegKey HKCU "${REGISTRO}"
SectionEnd
