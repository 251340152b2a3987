; The setup program: both widths of the component, for all users or for one.
;
;   makensis -INPUTCHARSET UTF8 -DVERSION=N.N.N.N -DCONTENIDO=FOLDER -DSALIDA=FILE Pincela.nsi
;
; FOLDER holds what is installed. The shipped setup is a 32-bit program; with `-XTarget amd64-unicode`
; the same script makes one for systems that run nothing of 32 bits.
;
;   /S             asks nothing
;   /CurrentUser   for the present user alone; needs no administrator
;   /AllUsers      for all users; the default of an administrator
;   /D=FOLDER      where to (the last argument, without quotes)
;
; The exit code is 0, or 2 where something was refused.

Unicode true
SetCompressor /SOLID lzma

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include nsDialogs.nsh
!include x64.nsh

!define CLAVE "Software\Microsoft\Windows\CurrentVersion\Uninstall\Pincela"

Name "Pincela ${VERSION}"
OutFile "${SALIDA}"
RequestExecutionLevel highest
AllowSkipFiles off
; The default depends on who it is for: see PorDefecto.
InstallDir ""

Var paraUno   ; 1: for the present user alone
Var dada      ; the folder given by /D=
Var radioUno

!define MUI_ABORTWARNING
!insertmacro MUI_PAGE_LICENSE "${CONTENIDO}\LICENSE.txt"
Page custom PreguntarParaQuien GuardarParaQuien
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Spanish"

VIProductVersion "${VERSION}"
VIAddVersionKey "ProductName" "Pincela"
VIAddVersionKey "FileDescription" "Instalación de Pincela"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "Licencia MIT"

; ---- which registrar serves which width

; For a program of 32 bits the system's own folder of 64 has another name, and the other way round.
!if "${NSIS_PTR_SIZE}" == 8
  !define REGISTRAR32 "$WINDIR\SysWOW64\regsvr32.exe"
  !define REGISTRAR64 "$WINDIR\System32\regsvr32.exe"
!else
  !define REGISTRAR32 "$SYSDIR\regsvr32.exe"
  !define REGISTRAR64 "$WINDIR\sysnative\regsvr32.exe"
!endif

; Runs one registrar for one width; a system without that width has none and wants none. The result
; is 0 when all went well.
!macro CORRER registrar opciones carpeta resultado
  StrCpy ${resultado} 0
  ${If} ${FileExists} "${registrar}"
    ${If} $paraUno = 1
      ExecWait '"${registrar}" /s ${opciones} /n /i:user "$INSTDIR\${carpeta}\Pincela.ocx"' ${resultado}
    ${Else}
      ExecWait '"${registrar}" /s ${opciones} "$INSTDIR\${carpeta}\Pincela.ocx"' ${resultado}
    ${EndIf}
    ${If} ${Errors}
      StrCpy ${resultado} 1
    ${EndIf}
  ${EndIf}
!macroend

; Everything the setup may have left, complete or not.
!macro QUITAR_TODO
  !insertmacro CORRER "${REGISTRAR32}" "/u" "win32" $0
  !insertmacro CORRER "${REGISTRAR64}" "/u" "win64" $0
  Delete "$INSTDIR\LICENSE.txt"
  Delete "$INSTDIR\LEAME.md"
  RMDir /r "$INSTDIR\win32"
  RMDir /r "$INSTDIR\win64"
  RMDir /r "$INSTDIR\docs"
  RMDir /r "$INSTDIR\ejemplos"
  Delete "$INSTDIR\desinstalar.exe"
  RMDir "$INSTDIR" ; stays where somebody put something else in it
  DeleteRegKey SHCTX "${CLAVE}"
!macroend

; ---- for whom

Function PorDefecto
  ${If} $paraUno = 1
    SetShellVarContext current
  ${Else}
    SetShellVarContext all
  ${EndIf}
  ${If} $dada != ""
    StrCpy $INSTDIR $dada
  ${ElseIf} $paraUno = 1
    StrCpy $INSTDIR "$LOCALAPPDATA\Programs\Pincela"
  ${Else}
    StrCpy $INSTDIR "$PROGRAMFILES\Pincela"
  ${EndIf}
FunctionEnd

Function EsAdministrador
  UserInfo::GetAccountType
  Pop $0
  ${If} $0 == "Admin"
    StrCpy $0 1
  ${Else}
    StrCpy $0 0
  ${EndIf}
FunctionEnd

Function .onInit
  StrCpy $dada $INSTDIR
  Call EsAdministrador
  IntOp $paraUno 1 - $0
  ${GetParameters} $1
  ClearErrors
  ${GetOptions} $1 "/CurrentUser" $2
  ${IfNot} ${Errors}
    StrCpy $paraUno 1
  ${EndIf}
  ClearErrors
  ${GetOptions} $1 "/AllUsers" $2
  ${IfNot} ${Errors}
    ${If} $0 = 0
      MessageBox MB_OK|MB_ICONSTOP "Para instalar Pincela para todos los usuarios hace falta ser administrador." /SD IDOK
      SetErrorLevel 2
      Quit
    ${EndIf}
    StrCpy $paraUno 0
  ${EndIf}
  ClearErrors
  Call PorDefecto
FunctionEnd

Function PreguntarParaQuien
  Call EsAdministrador
  ${If} $0 = 0
    Abort ; nothing to choose
  ${EndIf}
  !insertmacro MUI_HEADER_TEXT "Para quién" "Elija quién va a usar los controles."
  nsDialogs::Create 1018
  Pop $1
  ${NSD_CreateRadioButton} 0 10u 100% 12u "Para todos los usuarios de este equipo"
  Pop $1
  ${NSD_CreateRadioButton} 0 28u 100% 12u "Solo para mí"
  Pop $radioUno
  ${If} $paraUno = 1
    ${NSD_Check} $radioUno
  ${Else}
    ${NSD_Check} $1
  ${EndIf}
  nsDialogs::Show
FunctionEnd

Function GuardarParaQuien
  ${NSD_GetState} $radioUno $paraUno
  Call PorDefecto
FunctionEnd

; ---- the work

Section "Pincela"
  SetOutPath "$INSTDIR"
  File /r "${CONTENIDO}\*"
  ClearErrors
  !insertmacro CORRER "${REGISTRAR32}" "" "win32" $3
  !insertmacro CORRER "${REGISTRAR64}" "" "win64" $4
  ${If} $3 <> 0
  ${OrIf} $4 <> 0
    SetOutPath "$TEMP"
    !insertmacro QUITAR_TODO
    MessageBox MB_OK|MB_ICONSTOP "No se pudieron registrar los controles (códigos $3 y $4). No se instaló nada." /SD IDOK
    SetErrorLevel 2
    Abort
  ${EndIf}
  WriteUninstaller "$INSTDIR\desinstalar.exe"
  WriteRegStr SHCTX "${CLAVE}" "DisplayName" "Pincela ${VERSION}"
  WriteRegStr SHCTX "${CLAVE}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${CLAVE}" "Publisher" "Pincela"
  WriteRegStr SHCTX "${CLAVE}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${CLAVE}" "UninstallString" '"$INSTDIR\desinstalar.exe"'
  WriteRegStr SHCTX "${CLAVE}" "QuietUninstallString" '"$INSTDIR\desinstalar.exe" /S'
  WriteRegDWORD SHCTX "${CLAVE}" "NoModify" 1
  WriteRegDWORD SHCTX "${CLAVE}" "NoRepair" 1
SectionEnd

Function un.onInit
  ; This folder's own entry tells for whom it was installed.
  ReadRegStr $0 HKCU "${CLAVE}" "InstallLocation"
  ${If} $0 == $INSTDIR
    StrCpy $paraUno 1
    SetShellVarContext current
  ${Else}
    StrCpy $paraUno 0
    SetShellVarContext all
  ${EndIf}
FunctionEnd

Section "Uninstall"
  SetOutPath "$TEMP"
  !insertmacro QUITAR_TODO
SectionEnd
