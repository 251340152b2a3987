; The setup program: both widths of the component, for all users or for one.
;
;   makensis -INPUTCHARSET UTF8 -DVERSION=N.N.N.N -DCONTENIDO=FOLDER -DSALIDA=FILE Pincela.nsi
;
; FOLDER holds what is installed, and FOLDER.nsh lists it: the macros QUITAR_LISTA and BUSCAR_LISTA.
; The shipped setup is a 32-bit program; with `-XTarget amd64-unicode` the same script makes one for
; systems that run nothing of 32 bits.
;
;   /S             asks nothing
;   /CurrentUser   for the present user alone; needs no administrator
;   /AllUsers      for all users; the default of an administrator
;   /D=FOLDER      where to (the last argument, without quotes); unless told, where the version is
;                  that this one replaces
;
; The exit code is 0, 1 where the user stopped it, 2 where something was refused, or 3 where a newer
; version is installed, which only a user who is asked may replace.
;
; A setup for all users replaces what was installed for all and for the present user; one for the
; present user, what was installed for him. Nothing is removed that no setup installed.
;
; MultiUser.nsh is not used: it opens a box about missing rights under /S too, tells neither
; /AllUsers from part of a folder's name nor, in the uninstaller, for whom a folder was installed.

Unicode true
SetCompressor /SOLID lzma

!include MUI2.nsh
!include FileFunc.nsh
!include WordFunc.nsh
!include LogicLib.nsh
!include nsDialogs.nsh
!include x64.nsh
!include "${CONTENIDO}.nsh"

!define CLAVE "Software\Microsoft\Windows\CurrentVersion\Uninstall\Pincela"

Name "Pincela ${VERSION}"
OutFile "${SALIDA}"
RequestExecutionLevel highest
AllowSkipFiles off
; The default depends on who it is for: see PorDefecto.
InstallDir ""

Var paraUno   ; 1: for the present user alone
Var deUno     ; the same, of the installation in hand
Var dada      ; the folder given by /D=
Var radioUno
Var empezado  ; 1: files may have been written
Var repuesto  ; 1: this very version was here already
Var previa    ; folder of an installation found

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

; Runs one registrar for one width; a system without that width has none and wants none, and what
; isn't there needs none. The result is 0 when all went well.
!macro CORRER registrar opciones archivo resultado
  StrCpy ${resultado} 0
  ${If} ${FileExists} "${registrar}"
  ${AndIf} ${FileExists} "${archivo}"
    ClearErrors
    ${If} $deUno = 1
      ExecWait '"${registrar}" /s ${opciones} /n /i:user "${archivo}"' ${resultado}
    ${Else}
      ExecWait '"${registrar}" /s ${opciones} "${archivo}"' ${resultado}
    ${EndIf}
    ${If} ${Errors}
      StrCpy ${resultado} 1
    ${EndIf}
  ${EndIf}
!macroend

!macro DESREGISTRAR carpeta resultado32 resultado64
  !insertmacro CORRER "${REGISTRAR32}" "/u" "${carpeta}\win32\Pincela.ocx" ${resultado32}
  !insertmacro CORRER "${REGISTRAR64}" "/u" "${carpeta}\win64\Pincela.ocx" ${resultado64}
!macroend

; The files that a setup may have left, complete or not, and its entry if it is about this folder.
; What else is in the folders stays, and they with it.
!macro QUITAR_ARCHIVOS carpeta
  !insertmacro QUITAR_LISTA "${carpeta}"
  Delete "${carpeta}\desinstalar.exe"
  RMDir "${carpeta}"
  ReadRegStr $0 SHCTX "${CLAVE}" "InstallLocation"
  ${If} $0 == "${carpeta}"
    DeleteRegKey SHCTX "${CLAVE}"
  ${EndIf}
!macroend

; ---- for whom

Function PonerContexto
  StrCpy $deUno $paraUno
  ${If} $paraUno = 1
    SetShellVarContext current
  ${Else}
    SetShellVarContext all
  ${EndIf}
FunctionEnd

Function PorDefecto
  Call PonerContexto
  ReadRegStr $previa SHCTX "${CLAVE}" "InstallLocation"
  ${If} $dada != ""
    StrCpy $INSTDIR $dada
  ${ElseIf} $previa != ""
    StrCpy $INSTDIR $previa
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

; ---- what is installed already

!if "${NSIS_PTR_SIZE}" == 8
  !define ANCHO 64
!else
  !define ANCHO 32
!endif

; Calls a function for each installation that this one is to replace: $previa is its folder, $8 its
; version, $9 whether its uninstaller removes only what it installed, $7 where its entry is.
!macro CON_CADA_PREVIA funcion
  ${If} $paraUno = 0
    !insertmacro CON_PREVIA HKLM 32 all 0 "${funcion}"
    !if "${NSIS_PTR_SIZE}" == 8
      !insertmacro CON_PREVIA HKLM 64 all 0 "${funcion}"
    !else
      ${If} ${RunningX64}
        !insertmacro CON_PREVIA HKLM 64 all 0 "${funcion}"
      ${EndIf}
    !endif
  ${EndIf}
  !insertmacro CON_PREVIA HKCU default current 1 "${funcion}"
!macroend
!macro CON_PREVIA raiz vista contexto uno funcion
  SetRegView ${vista}
  SetShellVarContext ${contexto}
  StrCpy $deUno ${uno}
  StrCpy $7 "${contexto} ${vista}"
  ReadRegStr $previa ${raiz} "${CLAVE}" "InstallLocation"
  ReadRegStr $8 ${raiz} "${CLAVE}" "DisplayVersion"
  ReadRegDWORD $9 ${raiz} "${CLAVE}" "QuitaPorLista"
  ${If} $previa != ""
    Call ${funcion}
  ${EndIf}
  SetRegView default
  Call PonerContexto
!macroend

Function NoBajar
  ${VersionCompare} "$8" "${VERSION}" $0
  ${If} $0 = 1
    MessageBox MB_YESNO|MB_ICONQUESTION "Está instalada la versión $8 de Pincela, que es más nueva. ¿Quiere reemplazarla por la ${VERSION}?" /SD IDNO IDYES seguir
    SetErrorLevel 3
    Abort
  ${EndIf}
  seguir:
FunctionEnd

Function Reemplazar
  StrCpy $0 "all ${ANCHO}"
  ${If} $paraUno = 1
    StrCpy $0 "current default"
  ${EndIf}
  ${If} $previa == $INSTDIR
  ${AndIf} $8 == "${VERSION}"
  ${AndIf} $7 == $0
    StrCpy $repuesto 1 ; it is this one, or its beginning
    Return
  ${EndIf}
  DetailPrint "Quitando la versión $8 de $previa"
  StrCpy $0 0
  ClearErrors
  ${If} $9 = 1
    ExecWait '"$previa\desinstalar.exe" /S _?=$previa' $0
    ${If} $0 <> 0
      MessageBox MB_OK|MB_ICONSTOP "No se pudo quitar la versión $8 de $previa (código $0). No se instaló nada." /SD IDOK
      SetErrorLevel 2
      Abort
    ${EndIf}
  ${EndIf}
  ${If} ${Errors}
  ${OrIf} $9 <> 1
    ; One that is missing or broken leaves its work to us, and so does one of those that took folders
    ; away with all that was in them.
    !insertmacro DESREGISTRAR "$previa" $0 $1
    !insertmacro QUITAR_ARCHIVOS "$previa"
  ${Else}
    Delete "$previa\desinstalar.exe" ; it can't take itself away when it is waited for
    RMDir "$previa"
  ${EndIf}
FunctionEnd

; A folder that is somebody else's may hold files with our names.
Function NoPisar
  ${If} $repuesto = 1
  ${OrIf} ${FileExists} "$INSTDIR\win32\Pincela.ocx"
  ${OrIf} ${FileExists} "$INSTDIR\win64\Pincela.ocx"
    Return
  ${EndIf}
  StrCpy $0 ""
  !insertmacro BUSCAR_LISTA "$INSTDIR" $0
  ${If} $0 != ""
    MessageBox MB_OK|MB_ICONSTOP "$0 ya existe y no es de Pincela. Elija otra carpeta." /SD IDOK
    SetErrorLevel 2
    Abort
  ${EndIf}
FunctionEnd

; Two installations in one folder could not be removed apart.
Function NoCompartir
  ${If} $paraUno = 1
    SetRegView 32
    ReadRegStr $0 HKLM "${CLAVE}" "InstallLocation"
    SetRegView 64
    ReadRegStr $1 HKLM "${CLAVE}" "InstallLocation"
    SetRegView default
    ${If} $0 == $INSTDIR
    ${OrIf} $1 == $INSTDIR
      MessageBox MB_OK|MB_ICONSTOP "En $INSTDIR está Pincela para todos los usuarios. Elija otra carpeta." /SD IDOK
      SetErrorLevel 2
      Abort
    ${EndIf}
  ${EndIf}
FunctionEnd

; ---- the work

Section "Pincela"
  Call PonerContexto
  !insertmacro CON_CADA_PREVIA NoBajar
  Call NoCompartir
  !insertmacro CON_CADA_PREVIA Reemplazar
  Call NoPisar
  ; The uninstaller and its entry go first: what is interrupted can be removed, or begun again.
  StrCpy $empezado 1
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\desinstalar.exe"
  WriteRegStr SHCTX "${CLAVE}" "DisplayName" "Pincela ${VERSION}"
  WriteRegStr SHCTX "${CLAVE}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${CLAVE}" "Publisher" "Pincela"
  WriteRegStr SHCTX "${CLAVE}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${CLAVE}" "UninstallString" '"$INSTDIR\desinstalar.exe"'
  WriteRegStr SHCTX "${CLAVE}" "QuietUninstallString" '"$INSTDIR\desinstalar.exe" /S'
  WriteRegDWORD SHCTX "${CLAVE}" "QuitaPorLista" 1
  WriteRegDWORD SHCTX "${CLAVE}" "NoModify" 1
  WriteRegDWORD SHCTX "${CLAVE}" "NoRepair" 1
  File /r "${CONTENIDO}\*"
  !insertmacro CORRER "${REGISTRAR32}" "" "$INSTDIR\win32\Pincela.ocx" $3
  !insertmacro CORRER "${REGISTRAR64}" "" "$INSTDIR\win64\Pincela.ocx" $4
  ${If} $3 <> 0
  ${OrIf} $4 <> 0
    MessageBox MB_OK|MB_ICONSTOP "No se pudieron registrar los controles (códigos $3 y $4)." /SD IDOK
    SetErrorLevel 2
    Abort
  ${EndIf}
SectionEnd

; What could not be completed is taken back; but not an installation that was there before.
Function .onInstFailed
  ${If} $empezado = 1
  ${AndIf} $repuesto <> 1
    SetOutPath "$TEMP"
    !insertmacro DESREGISTRAR "$INSTDIR" $0 $1
    !insertmacro QUITAR_ARCHIVOS "$INSTDIR"
  ${EndIf}
FunctionEnd

Function un.onInit
  ; This folder's own entry tells for whom it was installed.
  ReadRegStr $0 HKCU "${CLAVE}" "InstallLocation"
  ${If} $0 == $INSTDIR
    StrCpy $deUno 1
    SetShellVarContext current
    Return
  ${EndIf}
  StrCpy $deUno 0
  SetShellVarContext all
  UserInfo::GetAccountType
  Pop $0
  ${If} $0 != "Admin"
    MessageBox MB_OK|MB_ICONSTOP "Pincela está instalada para todos los usuarios: para quitarla hace falta ser administrador." /SD IDOK
    SetErrorLevel 2
    Quit
  ${EndIf}
FunctionEnd

Section "Uninstall"
  SetOutPath "$TEMP"
  !insertmacro DESREGISTRAR "$INSTDIR" $3 $4
  ${If} $3 <> 0
  ${OrIf} $4 <> 0
    ; Without the files nobody could take the rest out of the registry.
    MessageBox MB_OK|MB_ICONSTOP "No se pudieron quitar los controles del registro (códigos $3 y $4). No se borró nada." /SD IDOK
    SetErrorLevel 2
    Abort
  ${EndIf}
  !insertmacro QUITAR_ARCHIVOS "$INSTDIR"
SectionEnd
