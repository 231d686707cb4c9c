; The station's installer. `package` lays out what it carries (FILES) and writes the two lists, of
; what is put there and of what is taken away again; the three files that need a thought of their
; own, both parallel libraries and the second name of the station, are in neither.
;
;   /S             asks nothing        /AllUsers, /CurrentUser  for whom
;   /D=FOLDER      where to, last      /LC=0C0A or /LC=0409     in which language
;
; It ends with 0, or: 1 or 2 broken off, 10 the station is running, 11 no right to install for all
; users, 12 Windows is too old, 13 the earlier version could not be removed.

Unicode true
ManifestDPIAware true
SetCompressor /SOLID lzma
SetCompressorDictSize 32
RequestExecutionLevel highest

!define STATION_RUNS 10
!define NO_RIGHT 11
!define TOO_OLD 12
!define EARLIER_STAYS 13

!define PROGID "Torvane.Glidetrak.Program.3"
!define CLASSES "Software\Classes"
!define APP_PATHS "Software\Microsoft\Windows\CurrentVersion\App Paths"
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Glidetrak"
!define UNINSTALLER "glidetrak-uninstall.exe"
; What $INSTDIR is until a folder is chosen; only its last name counts.
!define NO_FOLDER "none\Glidetrak Control"

!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_NOUNINSTALL
!define MULTIUSER_INSTALLMODE_INSTDIR "Glidetrak Control"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${UNINSTALL}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "InstallLocation"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${UNINSTALL}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME "InstallLocation"
!define MULTIUSER_INSTALLMODEPAGE_TEXT_TOP "$(FOR_WHOM)"
!define MULTIUSER_INSTALLMODEPAGE_TEXT_ALLUSERS "$(FOR_ALL)"
!define MULTIUSER_INSTALLMODEPAGE_TEXT_CURRENTUSER "$(FOR_ME)"

!include MultiUser.nsh
!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh
!include WinVer.nsh

Name "Glidetrak Control"
Caption "Glidetrak Control ${VERSION}"
BrandingText "Torvane"
OutFile "${SETUP}"
InstallDir "${NO_FOLDER}"
Icon "${ICON}"
UninstallIcon "${ICON}"
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${SIDE}"
!define MUI_ABORTWARNING

!insertmacro MUI_PAGE_WELCOME
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "SpanishInternational"
!insertmacro MUI_RESERVEFILE_LANGDLL

VIProductVersion "${VERSION}.0"
!macro VERSION_TEXT LANGUAGE NAME TEXT
  VIAddVersionKey /LANG=${LANG_${LANGUAGE}} "${NAME}" "${TEXT}"
!macroend
!macro VERSION_TEXTS LANGUAGE DESCRIPTION
  !insertmacro VERSION_TEXT ${LANGUAGE} "ProductName" "Glidetrak Control"
  !insertmacro VERSION_TEXT ${LANGUAGE} "CompanyName" "Torvane"
  !insertmacro VERSION_TEXT ${LANGUAGE} "LegalCopyright" "Copyright (C) Torvane"
  !insertmacro VERSION_TEXT ${LANGUAGE} "FileDescription" "${DESCRIPTION}"
  !insertmacro VERSION_TEXT ${LANGUAGE} "FileVersion" "${VERSION}"
  !insertmacro VERSION_TEXT ${LANGUAGE} "ProductVersion" "${VERSION}"
!macroend
!insertmacro VERSION_TEXTS ENGLISH "Installer of Glidetrak Control"
!insertmacro VERSION_TEXTS SPANISHINTERNATIONAL "Instalador de Glidetrak Control"

; The names in the start menu: the uninstaller takes away those of both languages, whichever the
; station was installed in.
!define FOLDER_IN_MENU "Glidetrak Control"
!define STATION_EN "Glidetrak Control"
!define STATION_ES "Control del sistema Glidetrak"
!define WITH_RIG_EN "Glidetrak Control with bench rig"
!define WITH_RIG_ES "Control del sistema Glidetrak con banco de pruebas"

!macro TEXT NAME ENGLISH SPANISH
  LangString ${NAME} ${LANG_ENGLISH} "${ENGLISH}"
  LangString ${NAME} ${LANG_SPANISHINTERNATIONAL} "${SPANISH}"
!macroend
!insertmacro TEXT STATION "${STATION_EN}" "${STATION_ES}"
!insertmacro TEXT WITH_RIG "${WITH_RIG_EN}" "${WITH_RIG_ES}"
!insertmacro TEXT STATION_TIP "Drives the Glidetrak model track" \
  "Controla la maqueta de vía Glidetrak"
!insertmacro TEXT WITH_RIG_TIP "The station with a model of the track in place of a real one" \
  "El programa con un modelo de la vía en lugar de una real"
!insertmacro TEXT PROGRAM_FILE "Glidetrak Control Program" "Programa de control Glidetrak"
!insertmacro TEXT FOR_WHOM "Who shall be able to use Glidetrak Control on this computer?" \
  "¿Quién podrá usar Glidetrak Control en este equipo?"
!insertmacro TEXT FOR_ALL "&All users of this computer" "&Todos los usuarios de este equipo"
!insertmacro TEXT FOR_ME "Only &me" "Solo &yo"
!insertmacro TEXT CLOSE_FIRST \
  "Glidetrak Control is running.$\r$\n$\r$\nPlease close it, so that it can let go of the rig, \
   and then click Retry." \
  "Glidetrak Control está abierto.$\r$\n$\r$\nCiérrelo para que pueda soltar el equipo y haga \
   clic en Reintentar."
!insertmacro TEXT NEEDS_ADMINISTRATOR \
  "Only an administrator can do this for all users of this computer." \
  "Solo un administrador puede hacer esto para todos los usuarios de este equipo."
!insertmacro TEXT NEEDS_WINDOWS_10 \
  "Glidetrak Control needs Windows 10, version 1809, or a later one." \
  "Glidetrak Control necesita Windows 10, versión 1809, o posterior."
!insertmacro TEXT EARLIER_VERSION_STAYS "The earlier version could not be removed." \
  "No se ha podido quitar la versión anterior."
!insertmacro TEXT LIBRARY_KEPT "Kept, as it is not ours:" "Se conserva, pues no es nuestro:"

!macro END_WITH CODE MESSAGE
  MessageBox MB_OK|MB_ICONSTOP "${MESSAGE}" /SD IDOK
  SetErrorLevel ${CODE}
  Quit
!macroend

; Each function is there twice, for the installer and for the uninstaller.
!macro FUNCTIONS UN

; $0: a program's file. Adds to $R0 when a process runs it, which keeps it from being written.
Function ${UN}CountIfRunning
  System::Call 'kernel32::CreateFileW(w r0, i 0x40000000, i 7, p 0, i 3, i 0, p 0) p.r1 ?e'
  Pop $2
  ${If} $1 <> -1
    System::Call 'kernel32::CloseHandle(p r1)'
  ${ElseIf} $2 = 32
    IntOp $R0 $R0 + 1
  ${EndIf}
FunctionEnd

; $R1: a station's folder. Returns when none runs there. None is ended from here: a station has to
; let go of its rig in order.
Function ${UN}WaitForClose
  look:
  StrCpy $R0 0
  StrCpy $0 "$R1\glidetrak.exe"
  Call ${UN}CountIfRunning
  StrCpy $0 "$R1\bench\glidetrak.exe"
  Call ${UN}CountIfRunning
  StrCpy $0 "$R1\bench\bench-rig.exe"
  Call ${UN}CountIfRunning
  ${If} $R0 = 0
    Return
  ${EndIf}
  MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(CLOSE_FIRST)" /SD IDCANCEL IDRETRY look
  SetErrorLevel ${STATION_RUNS}
  Quit
FunctionEnd

; $0: a parallel library's file. $1: 1 when it is one of ours, which bear a name that no maker
; gives, else 0.
Function ${UN}LibraryIsOurs
  StrCpy $1 0
  System::Call 'version::GetFileVersionInfoSizeW(w r0, p 0) i.r2'
  ${If} $2 = 0
    Return
  ${EndIf}
  System::Alloc $2
  Pop $3
  System::Call 'version::GetFileVersionInfoW(w r0, i 0, i r2, p r3) i.r4'
  System::Call 'version::VerQueryValueW(p r3, w "\StringFileInfo\040904B0\InternalName", \
    *p.r5, *i.r6) i.r4'
  ${If} $4 <> 0
    System::Call '*$5(&w64.r6)'
    ${If} $6 == "glidetrak-trackport32"
      StrCpy $1 1
    ${EndIf}
  ${EndIf}
  System::Free $3
FunctionEnd

!macroend
!insertmacro FUNCTIONS ""
!insertmacro FUNCTIONS "un."

; --- Installing -----------------------------------------------------------------------------------

Function SwitchesForWhom
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/CurrentUser" $1
  ${IfNot} ${Errors}
    Call MultiUser.InstallMode.CurrentUser
  ${EndIf}
  ClearErrors
  ${GetOptions} $0 "/AllUsers" $1
  ${IfNot} ${Errors}
    ${If} $MultiUser.Privileges != "Admin"
      !insertmacro END_WITH ${NO_RIGHT} "$(NEEDS_ADMINISTRATOR)"
    ${EndIf}
    Call MultiUser.InstallMode.AllUsers
  ${EndIf}
FunctionEnd

Function ChooseLanguage
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/LC=" $1
  ${If} ${Errors}
    !insertmacro MUI_LANGDLL_DISPLAY
  ${ElseIf} $1 == "0C0A"
    StrCpy $LANGUAGE ${LANG_SPANISHINTERNATIONAL}
  ${Else}
    StrCpy $LANGUAGE ${LANG_ENGLISH}
  ${EndIf}
FunctionEnd

Function .onInit
  Call ChooseLanguage
  ${IfNot} ${AtLeastBuild} 17763
    !insertmacro END_WITH ${TOO_OLD} "$(NEEDS_WINDOWS_10)"
  ${EndIf}
  StrCpy $R2 $INSTDIR
  !insertmacro MULTIUSER_INIT
  Call SwitchesForWhom
  ; A folder that was asked for by /D stays the one.
  ${If} $R2 != "${NO_FOLDER}"
    StrCpy $INSTDIR $R2
  ${EndIf}
FunctionEnd

; The earlier version knows best what it put where.
Function RemoveEarlier
  ReadRegStr $R1 SHCTX "${UNINSTALL}" "InstallLocation"
  ${If} $R1 == ""
  ${OrIfNot} ${FileExists} "$R1\${UNINSTALLER}"
    Return
  ${EndIf}
  Call WaitForClose
  ; As it runs in its place, its result is told and it cannot take itself away.
  ExecWait '"$R1\${UNINSTALLER}" /S _?=$R1' $0
  ${If} $0 <> 0
    !insertmacro END_WITH ${EARLIER_STAYS} "$(EARLIER_VERSION_STAYS)"
  ${EndIf}
  Delete "$R1\${UNINSTALLER}"
  RMDir "$R1"
FunctionEnd

; A library that is already there and not ours is the adapter maker's: the station then uses it.
!macro INSTALL_LIBRARY FILE
  StrCpy $0 "$INSTDIR\${FILE}"
  Call LibraryIsOurs
  ${If} $1 = 0
  ${AndIf} ${FileExists} "$0"
    DetailPrint "$(LIBRARY_KEPT) $0"
  ${Else}
    File "/oname=$INSTDIR\${FILE}" "${FILES}/${FILE}"
  ${EndIf}
!macroend

; The bench's station is the same file under a second name, where the disk has such.
Function NameStationTwice
  Delete "$INSTDIR\bench\glidetrak.exe"
  System::Call 'kernel32::CreateHardLinkW(w "$INSTDIR\bench\glidetrak.exe", \
    w "$INSTDIR\glidetrak.exe", p 0) i.r0'
  ${If} $0 = 0
    CopyFiles /SILENT "$INSTDIR\glidetrak.exe" "$INSTDIR\bench\glidetrak.exe"
  ${EndIf}
FunctionEnd

Function MakeShortcuts
  CreateDirectory "$SMPROGRAMS\${FOLDER_IN_MENU}"
  ; A shortcut's working folder is the one that is set.
  SetOutPath "$INSTDIR"
  CreateShortcut "$SMPROGRAMS\${FOLDER_IN_MENU}\$(STATION).lnk" "$INSTDIR\glidetrak.exe" "" \
    "$INSTDIR\glidetrak.exe" 0 SW_SHOWNORMAL "" "$(STATION_TIP)"
  SetOutPath "$INSTDIR\bench"
  CreateShortcut "$SMPROGRAMS\${FOLDER_IN_MENU}\$(WITH_RIG).lnk" "$INSTDIR\bench\bench-rig.exe" \
    "run glidetrak.exe" "$INSTDIR\glidetrak.exe" 0 SW_SHOWMINIMIZED "" "$(WITH_RIG_TIP)"
  SetOutPath "$INSTDIR"
FunctionEnd

!define ASSOCIATIONS_CHANGED "System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'"

!macro WRITE_OPENING KEY
  WriteRegStr SHCTX "${KEY}\DefaultIcon" "" "$INSTDIR\glidetrak.exe,0"
  WriteRegStr SHCTX "${KEY}\shell\open\command" "" '"$INSTDIR\glidetrak.exe" "%1"'
!macroend

Function Associate
  WriteRegStr SHCTX "${CLASSES}\${PROGID}" "" "$(PROGRAM_FILE)"
  !insertmacro WRITE_OPENING "${CLASSES}\${PROGID}"
  WriteRegStr SHCTX "${CLASSES}\Applications\glidetrak.exe" "FriendlyAppName" "Glidetrak Control"
  WriteRegStr SHCTX "${CLASSES}\Applications\glidetrak.exe\SupportedTypes" ".GTP" ""
  !insertmacro WRITE_OPENING "${CLASSES}\Applications\glidetrak.exe"
  WriteRegStr SHCTX "${CLASSES}\.GTP\OpenWithProgids" "${PROGID}" ""
  ; Whoever owns the files already, for this user or for all, goes on owning them.
  ReadRegStr $0 SHCTX "${CLASSES}\.GTP" ""
  ReadRegStr $1 HKLM "${CLASSES}\.GTP" ""
  ${If} "$0$1" == ""
    WriteRegStr SHCTX "${CLASSES}\.GTP" "" "${PROGID}"
  ${EndIf}
  ${ASSOCIATIONS_CHANGED}
FunctionEnd

Function WriteUninstallEntry
  WriteRegStr SHCTX "${UNINSTALL}" "DisplayName" "Glidetrak Control"
  WriteRegStr SHCTX "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL}" "Publisher" "Torvane"
  WriteRegStr SHCTX "${UNINSTALL}" "DisplayIcon" "$INSTDIR\glidetrak.exe,0"
  WriteRegStr SHCTX "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${UNINSTALL}" "UninstallString" '"$INSTDIR\${UNINSTALLER}"'
  WriteRegStr SHCTX "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\${UNINSTALLER}" /S'
  WriteRegStr SHCTX "${UNINSTALL}" "Language" "$LANGUAGE"
  WriteRegDWORD SHCTX "${UNINSTALL}" "EstimatedSize" ${KILOBYTES}
  WriteRegDWORD SHCTX "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD SHCTX "${UNINSTALL}" "NoRepair" 1
FunctionEnd

Section
  Call RemoveEarlier
  StrCpy $R1 $INSTDIR
  Call WaitForClose
  !include "${PUT_FILES}"
  SetOutPath "$INSTDIR"
  !insertmacro INSTALL_LIBRARY "trackport32.dll"
  !insertmacro INSTALL_LIBRARY "bench\trackport32.dll"
  Call NameStationTwice
  WriteUninstaller "$INSTDIR\${UNINSTALLER}"
  Call MakeShortcuts
  Call Associate
  WriteRegStr SHCTX "${APP_PATHS}\glidetrak.exe" "" "$INSTDIR\glidetrak.exe"
  WriteRegStr SHCTX "${APP_PATHS}\glidetrak.exe" "Path" "$INSTDIR"
  Call WriteUninstallEntry
SectionEnd

; --- Uninstalling ---------------------------------------------------------------------------------

; For whom it was installed is told by whose entry names this folder.
Function un.onInit
  ReadRegStr $0 HKCU "${UNINSTALL}" "InstallLocation"
  ${If} $0 == $INSTDIR
    SetShellVarContext current
  ${Else}
    SetShellVarContext all
    UserInfo::GetAccountType
    Pop $1
    ${If} $1 != "Admin"
      !insertmacro END_WITH ${NO_RIGHT} "$(NEEDS_ADMINISTRATOR)"
    ${EndIf}
  ${EndIf}
  ReadRegStr $0 SHCTX "${UNINSTALL}" "Language"
  ${If} $0 != ""
    StrCpy $LANGUAGE $0
  ${EndIf}
FunctionEnd

!macro REMOVE_LIBRARY FILE
  StrCpy $0 "$INSTDIR\${FILE}"
  Call un.LibraryIsOurs
  ${If} $1 = 1
    Delete "$0"
  ${ElseIf} ${FileExists} "$0"
    DetailPrint "$(LIBRARY_KEPT) $0"
  ${EndIf}
!macroend

Function un.RemoveShortcuts
  Delete "$SMPROGRAMS\${FOLDER_IN_MENU}\${STATION_EN}.lnk"
  Delete "$SMPROGRAMS\${FOLDER_IN_MENU}\${STATION_ES}.lnk"
  Delete "$SMPROGRAMS\${FOLDER_IN_MENU}\${WITH_RIG_EN}.lnk"
  Delete "$SMPROGRAMS\${FOLDER_IN_MENU}\${WITH_RIG_ES}.lnk"
  RMDir "$SMPROGRAMS\${FOLDER_IN_MENU}"
FunctionEnd

Function un.Dissociate
  ReadRegStr $0 SHCTX "${CLASSES}\.GTP" ""
  ${If} $0 == "${PROGID}"
    DeleteRegValue SHCTX "${CLASSES}\.GTP" ""
  ${EndIf}
  DeleteRegValue SHCTX "${CLASSES}\.GTP\OpenWithProgids" "${PROGID}"
  DeleteRegKey /ifempty SHCTX "${CLASSES}\.GTP\OpenWithProgids"
  DeleteRegKey /ifempty SHCTX "${CLASSES}\.GTP"
  DeleteRegKey SHCTX "${CLASSES}\${PROGID}"
  DeleteRegKey SHCTX "${CLASSES}\Applications\glidetrak.exe"
  DeleteRegKey /ifempty SHCTX "${CLASSES}\Applications"
  ${ASSOCIATIONS_CHANGED}
FunctionEnd

; Settings under Software\Torvane and whatever a user put into the folders stay.
Section "un."
  StrCpy $R1 $INSTDIR
  Call un.WaitForClose
  SetOutPath "$TEMP"
  !insertmacro REMOVE_LIBRARY "trackport32.dll"
  !insertmacro REMOVE_LIBRARY "bench\trackport32.dll"
  Delete "$INSTDIR\bench\glidetrak.exe"
  !include "${TAKE_FILES}"
  Call un.RemoveShortcuts
  Call un.Dissociate
  DeleteRegKey SHCTX "${APP_PATHS}\glidetrak.exe"
  DeleteRegKey /ifempty SHCTX "${APP_PATHS}"
  DeleteRegKey SHCTX "${UNINSTALL}"
  ; Last, so that what was broken off can be done again.
  Delete "$INSTDIR\${UNINSTALLER}"
  RMDir "$INSTDIR"
SectionEnd
