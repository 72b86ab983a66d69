; The installer: for one player, without administrator's rights, into a folder that the game may
; write to. setup.cmake names what goes in.
Target amd64-unicode  ; as the game: 32-bit programs need not run everywhere
Unicode true
ManifestDPIAware true
ManifestSupportedOS Win10
RequestExecutionLevel user
SetCompressor /SOLID lzma
Name "Duskmarch"
BrandingText "Duskmarch ${VERSION}"
OutFile "${OUTPUT}"
Icon "${ICON}"
UninstallIcon "${ICON}"
VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
VIAddVersionKey ProductName "Duskmarch"
VIAddVersionKey FileDescription "Duskmarch setup"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey LegalCopyright "GNU General Public License, version 3 or later"
InstallDir "$LOCALAPPDATA\Programs\Duskmarch"
InstallDirRegKey HKCU "Software\Duskmarch" "Folder"

; The plain pages, of standard controls in reading order, which screen readers read.
Page directory
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles
AutoCloseWindow true
ShowInstDetails nevershow
ShowUninstDetails nevershow

!define LISTED "Software\Microsoft\Windows\CurrentVersion\Uninstall\Duskmarch"

; A program that runs can be neither replaced nor removed, and then nothing is to be.
!macro awaittheend
  retry:
  IfFileExists "$INSTDIR\duskmarch.exe" 0 gone
  ClearErrors
  FileOpen $0 "$INSTDIR\duskmarch.exe" a
  IfErrors runs
  FileClose $0
  Goto gone
  runs:
  MessageBox MB_RETRYCANCEL "Duskmarch is running.  Please close it first." /SD IDCANCEL IDRETRY retry
  SetErrorLevel 2
  Quit
  gone:
!macroend

Section
  !insertmacro awaittheend
  SetOutPath "$INSTDIR"
  SetOverwrite on
  File /r "${FOLDER}/*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortCut "$SMPROGRAMS\Duskmarch.lnk" "$INSTDIR\duskmarch.exe"
  WriteRegStr HKCU "Software\Duskmarch" "Folder" "$INSTDIR"
  WriteRegStr HKCU "${LISTED}" "DisplayName" "Duskmarch"
  WriteRegStr HKCU "${LISTED}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${LISTED}" "DisplayIcon" "$INSTDIR\duskmarch.exe"
  WriteRegStr HKCU "${LISTED}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${LISTED}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${LISTED}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${LISTED}" "NoModify" 1
  WriteRegDWORD HKCU "${LISTED}" "NoRepair" 1
SectionEnd

; A page that merely closes would tell a listener nothing.
Function .onInstSuccess
  MessageBox MB_YESNO "Duskmarch is installed, and in the Start menu.  Start it now?" /SD IDNO IDNO no
  Exec '"$INSTDIR\duskmarch.exe"'
  no:
FunctionEnd

Section Uninstall
  !insertmacro awaittheend
  !include "${REMOVAL}"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Duskmarch.lnk"
  DeleteRegKey HKCU "${LISTED}"
  DeleteRegKey HKCU "Software\Duskmarch"
SectionEnd

Function un.onUninstSuccess
  IfFileExists "$INSTDIR\*.*" 0 gone
  MessageBox MB_OK "Duskmarch is removed.  Your own files stay in $INSTDIR." /SD IDOK
  Return
  gone:
  MessageBox MB_OK "Duskmarch is removed." /SD IDOK
FunctionEnd
