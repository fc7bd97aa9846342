; The installer: for one user, without an administrator, in Japanese and English; with /S without a word.
; /D=FOLDER, as the last argument, installs elsewhere. Exit code 0 installed, 1 cancelled, 2 not installed.
!include MUI2.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Nelvo"
; The shortcuts' names, in both languages, since the uninstaller may run in the other one.
!define MENU "$SMPROGRAMS\Nelvo"
!define STATION_JA "Nelvo (日本語).lnk"
!define STATION_EN "Nelvo (English).lnk"
!define SIMULATOR_JA "Nelvo 模擬成長室.lnk"
!define SIMULATOR_EN "Nelvo simulated chamber.lnk"
!define MANUAL_JA "Nelvo マニュアル.lnk"
!define MANUAL_EN "Nelvo manual.lnk"

Name "Nelvo ${VERSION}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Nelvo"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
RequestExecutionLevel user
SetCompressor /SOLID lzma
ManifestDPIAware true
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "Nelvo"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Nelvo setup"
VIAddVersionKey LegalCopyright ""

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_FUNCTION StartStation
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
; The first one is for systems of all other languages.
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "Japanese"

LangString StationRuns ${LANG_ENGLISH} "Nelvo is running. Close its window, then try again."
LangString StationRuns ${LANG_JAPANESE} "Nelvo が起動しています。ウィンドウを閉じてからもう一度実行してください。"
LangString Simulator ${LANG_ENGLISH} "${SIMULATOR_EN}"
LangString Simulator ${LANG_JAPANESE} "${SIMULATOR_JA}"
LangString Manual ${LANG_ENGLISH} "${MANUAL_EN}"
LangString Manual ${LANG_JAPANESE} "${MANUAL_JA}"

; A program that runs cannot be written to: whoever runs one is told, before anything is touched.
!macro STOP_WHILE_RUNNING PREFIX
Function ${PREFIX}stopWhileRunning
  Exch $0
  IfFileExists "$INSTDIR\$0" 0 done
  ClearErrors
  FileOpen $1 "$INSTDIR\$0" a
  IfErrors 0 close
    MessageBox MB_ICONEXCLAMATION "$(StationRuns)" /SD IDOK
    SetErrorLevel 2
    Quit
  close:
    FileClose $1
  done:
  Pop $0
FunctionEnd

Function ${PREFIX}stopWhileAnyRuns
  Push "Nelvo.exe"
  Call ${PREFIX}stopWhileRunning
  Push "Nelvoe.exe"
  Call ${PREFIX}stopWhileRunning
  Push "chambersim.exe"
  Call ${PREFIX}stopWhileRunning
  Push "growthcheck.exe"
  Call ${PREFIX}stopWhileRunning
FunctionEnd
!macroend
!insertmacro STOP_WHILE_RUNNING ""
!insertmacro STOP_WHILE_RUNNING "un."

Function StartStation
  SetOutPath "$DOCUMENTS\Nelvo"
  StrCmp $LANGUAGE ${LANG_JAPANESE} 0 +3
    Exec '"$INSTDIR\Nelvo.exe"'
    Return
  Exec '"$INSTDIR\Nelvo.exe" -e'
FunctionEnd

Section
  Call stopWhileAnyRuns
  ; An older version goes with all its files; nelvo.ini is not one of them.
  IfFileExists "$INSTDIR\uninstall.exe" 0 +2
    ExecWait '"$INSTDIR\uninstall.exe" /S _?=$INSTDIR'

  SetOutPath "$INSTDIR"
  ClearErrors
  File /r "${FILES}/*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  IfErrors 0 +3
    SetErrorLevel 2
    Abort

  ; A shortcut's working folder is the one that is set here: the station's files lie in it.
  CreateDirectory "${MENU}"
  SetOutPath "$DOCUMENTS\Nelvo"
  CreateShortCut "${MENU}\${STATION_JA}" "$INSTDIR\Nelvo.exe" "-j"
  CreateShortCut "${MENU}\${STATION_EN}" "$INSTDIR\Nelvo.exe" "-e"
  CreateShortCut "${MENU}\$(Simulator)" "$INSTDIR\chambersim.exe"
  CreateShortCut "${MENU}\$(Manual)" "$INSTDIR\manual\index.html"

  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Nelvo"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\Nelvo.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

; What was installed and nothing else: a folder goes only when it is empty.
Section "Uninstall"
  Call un.stopWhileAnyRuns
  !insertmacro DELETE_WHAT_WAS_INSTALLED
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "${MENU}\${STATION_JA}"
  Delete "${MENU}\${STATION_EN}"
  Delete "${MENU}\${SIMULATOR_JA}"
  Delete "${MENU}\${SIMULATOR_EN}"
  Delete "${MENU}\${MANUAL_JA}"
  Delete "${MENU}\${MANUAL_EN}"
  RMDir "${MENU}"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
SectionEnd
