; Installs Usmira for one user, who needs no rights of an administrator. Takes -DVERSION=,
; -DFILES= (the folder with all files), -DREMOVALS= (what removes them), -DICON= and -DOUTPUT=.
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
Name "Usmira"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Usmira"
InstallDirRegKey HKCU "Software\Usmira" "Folder"
BrandingText "Usmira ${VERSION}"

!include MUI2.nsh
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\usmira.exe"
!insertmacro MUI_PAGE_LICENSE "${FILES}/LICENSE.txt"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "French"
!insertmacro MUI_LANGUAGE "English"

!define CLASSES "Software\Classes"
!define REMOVAL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Usmira"
!define ASSOCIATIONS_CHANGED 0x08000000

!macro TellExplorer
    System::Call 'shell32::SHChangeNotify(i ${ASSOCIATIONS_CHANGED}, i 0, p 0, p 0)'
!macroend

LangString AdventureType ${LANG_FRENCH} "Aventure Usmira"
LangString AdventureType ${LANG_ENGLISH} "Usmira adventure"
LangString InUse ${LANG_FRENCH} "Usmira est ouvert. Fermez-le, puis recommencez."
LangString InUse ${LANG_ENGLISH} "Usmira is open. Close it, then try again."

; A program that runs cannot be replaced, and half of an old one beside half of a new one is none.
!macro StopWhileOpen folder
    IfFileExists "${folder}\usmira.exe" 0 +6
    ClearErrors
    FileOpen $0 "${folder}\usmira.exe" a
    IfErrors 0 +3
    MessageBox MB_OK|MB_ICONEXCLAMATION "$(InUse)" /SD IDOK
    Abort
    FileClose $0
!macroend

Section
    !insertmacro StopWhileOpen "$INSTDIR"
    SetOutPath "$INSTDIR"
    File /r "${FILES}/*"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortcut "$SMPROGRAMS\Usmira.lnk" "$INSTDIR\usmira.exe"

    WriteRegStr HKCU "Software\Usmira" "Folder" "$INSTDIR"
    WriteRegStr HKCU "${CLASSES}\.usm\OpenWithProgids" "Usmira.Adventure" ""
    ReadRegStr $0 HKCU "${CLASSES}\.usm" ""
    StrCmp $0 "" 0 +2
    WriteRegStr HKCU "${CLASSES}\.usm" "" "Usmira.Adventure"
    WriteRegStr HKCU "${CLASSES}\Usmira.Adventure" "" "$(AdventureType)"
    WriteRegStr HKCU "${CLASSES}\Usmira.Adventure\DefaultIcon" "" "$INSTDIR\usmira.exe,0"
    WriteRegStr HKCU "${CLASSES}\Usmira.Adventure\shell\open\command" "" '"$INSTDIR\usmira.exe" "%1"'
    WriteRegStr HKCU "${REMOVAL}" "DisplayName" "Usmira"
    WriteRegStr HKCU "${REMOVAL}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${REMOVAL}" "DisplayIcon" "$INSTDIR\usmira.exe,0"
    WriteRegStr HKCU "${REMOVAL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegDWORD HKCU "${REMOVAL}" "NoModify" 1
    WriteRegDWORD HKCU "${REMOVAL}" "NoRepair" 1
    !insertmacro TellExplorer
SectionEnd

; Only what was installed goes. A folder with anything of the author's in it stays.
Section "Uninstall"
    !insertmacro StopWhileOpen "$INSTDIR"
    !include "${REMOVALS}"
    Delete "$INSTDIR\uninstall.exe"
    Delete "$SMPROGRAMS\Usmira.lnk"
    RMDir "$INSTDIR"
    ReadRegStr $0 HKCU "${CLASSES}\.usm" ""
    StrCmp $0 "Usmira.Adventure" 0 +2
    DeleteRegValue HKCU "${CLASSES}\.usm" ""
    DeleteRegValue HKCU "${CLASSES}\.usm\OpenWithProgids" "Usmira.Adventure"
    DeleteRegKey /ifempty HKCU "${CLASSES}\.usm\OpenWithProgids"
    DeleteRegKey /ifempty HKCU "${CLASSES}\.usm"
    DeleteRegKey HKCU "${CLASSES}\Usmira.Adventure"
    DeleteRegKey HKCU "${REMOVAL}"
    DeleteRegKey HKCU "Software\Usmira"
    !insertmacro TellExplorer
SectionEnd
