; SPDX-FileCopyrightText: 2026 The Pilotel Developers
; SPDX-License-Identifier: MIT
; The installer for 64-bit Windows.
;
; scripts/parts/windows-installer defines OUTPUT, VERSION, KILOBYTES and FILES: a folder with install.nsh and uninstall.nsh,
; which name every file, and side.bmp. With QUICK nothing is compressed; with MAKER_INCLUDED the maker's library is in FILES.
;
; Options: /S silent; /ALLUSERS for all users, started as administrator; /SDK=FILE the camera maker's veltrix.sdk.dll;
; /D=FOLDER where to. In quotes when there is a space in it; a /D without quotes is the last one and takes all that follows.
; Exit codes of both: 0 done; 2 the program runs; 3 for all users, but not started as administrator; 4 /SDK names no library
; for 64-bit Windows; 5 installed in another folder than /D says; 6 the older version could not be removed. With 2 to 5
; nothing was touched.
;
; A veltrix.sdk.dll beside the program is the simulated one when it is the same as simulated\veltrix.sdk.dll, which lies
; there for this comparison. Any other is the maker's: it is never overwritten and never deleted.
Unicode true
Target amd64-unicode
ManifestDPIAware true
!ifdef QUICK
SetCompress off
!else
SetCompressor /SOLID lzma
!endif

!include FileFunc.nsh
!include LogicLib.nsh
!include MUI2.nsh
!include nsDialogs.nsh

!define PUBLISHER "Norvane Technologies"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Pilotel"
!define ERROR_RUNNING 2
!define ERROR_NO_ADMINISTRATOR 3
!define ERROR_NO_LIBRARY 4
!define ERROR_OTHER_FOLDER 5
!define ERROR_OLDER_VERSION 6

Name "Pilotel"
OutFile "${OUTPUT}"
BrandingText "Pilotel ${VERSION}"
RequestExecutionLevel user
AllowSkipFiles off
ShowInstDetails nevershow
ShowUninstDetails nevershow
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "Pilotel"
VIAddVersionKey CompanyName "${PUBLISHER}"
VIAddVersionKey FileDescription "Installer of Pilotel"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey LegalCopyright "2026 The Pilotel Developers; MIT licence"

Var AllUsers    ; 1: for all users, 0: for this one
Var GivenFolder ; what /D says
Var Installed   ; the folder where it is installed already, else empty
Var Maker       ; the maker's library that the operator names, else empty
Var Entry       ; the entry of the start menu
Var FirstFile   ; for isSame
Var SecondFile
Var Same
Var Dialog
Var ForAll
Var LibraryText

!define MUI_ICON "../../resources/picture/camera.ico"
!define MUI_UNICON "../../resources/picture/camera.ico"
Page custom showUsersPage leaveUsersPage
!define MUI_PAGE_CUSTOMFUNCTION_PRE skipWhenInstalled
!insertmacro MUI_PAGE_DIRECTORY
Page custom showLibraryPage leaveLibraryPage
!insertmacro MUI_PAGE_INSTFILES
!define MUI_WELCOMEFINISHPAGE_BITMAP "${FILES}/side.bmp"
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_TEXT "Start Pilotel"
!define MUI_FINISHPAGE_RUN_FUNCTION startProgram
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; What installer and uninstaller both need; UN is empty or "un.".
!macro SharedFunctions UN

; Sets Same to 1 when FirstFile and SecondFile are there and have the same content, else to 0.
Function ${UN}isSame
    StrCpy $Same 0
    Push $FirstFile
    Call ${UN}read
    Pop $1 ; content
    Pop $2 ; bytes
    Push $SecondFile
    Call ${UN}read
    Pop $3
    Pop $4
    ${If} $2 > 0
    ${AndIf} $2 = $4
        System::Call 'ntdll::RtlCompareMemory(p r1, p r3, p r2) p .r5'
        ${If} $5 = $2
            StrCpy $Same 1
        ${EndIf}
    ${EndIf}
    System::Free $1
    System::Free $3
FunctionEnd

; Takes the name of a file from the stack and leaves its size and, on top, its content; both 0 when it cannot be read.
Function ${UN}read
    Pop $R0
    StrCpy $R2 0 ; content
    StrCpy $R3 0 ; bytes
    ClearErrors
    FileOpen $R1 "$R0" r
    ${IfNot} ${Errors}
        FileSeek $R1 0 END $R3
        FileSeek $R1 0 SET
        System::Alloc $R3
        Pop $R2
        System::Call 'kernel32::ReadFile(p R1, p R2, i R3, *i .R4, p 0)'
        FileClose $R1
        ${If} $R4 <> $R3
            StrCpy $R3 0
        ${EndIf}
    ${EndIf}
    Push $R3
    Push $R2
FunctionEnd

; Is the library beside the program the simulated one? Sets Same.
Function ${UN}isSimulated
    StrCpy $FirstFile "$INSTDIR\veltrix.sdk.dll"
    StrCpy $SecondFile "$INSTDIR\simulated\veltrix.sdk.dll"
    Call ${UN}isSame
FunctionEnd

; Leaves with an exit code when a program of this folder runs: Windows refuses to open such a file for writing.
Function ${UN}leaveWhenRunning
    again:
    StrCpy $0 ""
    ${For} $1 1 2
        ${If} $1 = 1
            StrCpy $2 pilotel.exe
        ${Else}
            StrCpy $2 pilotel-sdk-check.exe
        ${EndIf}
        ${If} ${FileExists} "$INSTDIR\$2"
            ClearErrors
            FileOpen $3 "$INSTDIR\$2" a
            ${If} ${Errors}
                StrCpy $0 $2
            ${Else}
                FileClose $3
            ${EndIf}
        ${EndIf}
    ${Next}
    ${If} $0 != ""
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
            "$0 is running, or you may not write to $INSTDIR.$\r$\n$\r$\nClose the program and try again. Nothing has been changed yet." \
            /SD IDCANCEL IDRETRY again
        SetErrorLevel ${ERROR_RUNNING}
        Quit
    ${EndIf}
FunctionEnd

; Leaves the stack with 1 for an administrator, else 0.
Function ${UN}isAdministrator
    UserInfo::GetAccountType
    Pop $0
    ${If} $0 == "Admin"
        Push 1
    ${Else}
        Push 0
    ${EndIf}
FunctionEnd

!macroend
!insertmacro SharedFunctions ""
!insertmacro SharedFunctions "un."

Function .onInit
    SetRegView 64
    Push "/SDK="
    Call valueOf
    Pop $Maker
    ; NSIS reads the one without quotes.
    StrCpy $GivenFolder $INSTDIR
    ${If} $GivenFolder == ""
        Push "/D="
        Call valueOf
        Pop $GivenFolder
        ${Do}
            StrCpy $0 $GivenFolder 1 -1
            ${If} $0 != "\"
                ${ExitDo}
            ${EndIf}
            StrCpy $GivenFolder $GivenFolder -1
        ${Loop}
    ${EndIf}
    StrCpy $AllUsers 0
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/ALLUSERS" $1
    ${IfNot} ${Errors}
        StrCpy $AllUsers 1
        Call isAdministrator
        Pop $0
        ${If} $0 = 0
            MessageBox MB_OK|MB_ICONSTOP "To install for all users, start the installer as administrator." /SD IDOK
            SetErrorLevel ${ERROR_NO_ADMINISTRATOR}
            Quit
        ${EndIf}
    ${EndIf}
    Call findFolder
    ${If} ${Silent}
        Call leaveWhenElsewhere
        ${If} $Maker != ""
            Push $Maker
            Call isLibrary
            Pop $0
            ${If} $0 = 0
                SetErrorLevel ${ERROR_NO_LIBRARY}
                Quit
            ${EndIf}
        ${EndIf}
    ${EndIf}
FunctionEnd

; Takes the name of an option from the stack and leaves its value; empty when it is not on the command line. The option as a
; whole, or its value, may be in quotes.
Function valueOf
    Pop $0
    StrLen $1 $0
    StrCpy $2 0 ; the place in the command line
    StrCpy $3 "" ; the character before it
    StrCpy $5 "" ; the value
    ${Do}
        StrCpy $4 $CMDLINE $1 $2
        ${If} $4 == ""
            Push ""
            Return
        ${EndIf}
        ${If} $4 == $0
            ${ExitDo}
        ${EndIf}
        StrCpy $3 $4 1
        IntOp $2 $2 + 1
    ${Loop}
    IntOp $2 $2 + $1
    StrCpy $4 $CMDLINE 1 $2
    ${If} $4 == '"'
        StrCpy $3 '"'
        IntOp $2 $2 + 1
    ${ElseIf} $3 != '"'
        StrCpy $3 " "
    ${EndIf}
    ${Do}
        StrCpy $4 $CMDLINE 1 $2
        ${If} $4 == ""
        ${OrIf} $4 == $3
            ${ExitDo}
        ${EndIf}
        StrCpy $5 $5$4
        IntOp $2 $2 + 1
    ${Loop}
    Push $5
FunctionEnd

; Where it goes: where it is installed already, else where /D says, else where programs go.
Function findFolder
    ${If} $AllUsers = 1
        SetShellVarContext all
        StrCpy $INSTDIR "$PROGRAMFILES64\Pilotel"
    ${Else}
        SetShellVarContext current
        StrCpy $INSTDIR "$LOCALAPPDATA\Programs\Pilotel"
    ${EndIf}
    ReadRegStr $Installed SHCTX "${UNINSTALL_KEY}" InstallLocation
    ${IfNot} ${FileExists} "$Installed\uninstall.exe"
        StrCpy $Installed ""
    ${EndIf}
    ${If} $Installed != ""
        StrCpy $INSTDIR $Installed
    ${ElseIf} $GivenFolder != ""
        StrCpy $INSTDIR $GivenFolder
    ${EndIf}
FunctionEnd

Function leaveWhenElsewhere
    ${If} $Installed != ""
    ${AndIf} $GivenFolder != ""
    ${AndIf} $GivenFolder != $Installed
        MessageBox MB_OK|MB_ICONSTOP "Pilotel is installed in $Installed. Uninstall it there first." /SD IDOK
        SetErrorLevel ${ERROR_OTHER_FOLDER}
        Quit
    ${EndIf}
FunctionEnd

; Takes the name of a file from the stack and leaves 1 when it is a program or library for 64-bit Windows, else 0.
Function isLibrary
    Pop $0
    StrCpy $1 0
    ClearErrors
    FileOpen $2 "$0" r
    ${IfNot} ${Errors}
        FileReadWord $2 $3
        ${If} $3 = 0x5A4D
            FileSeek $2 60 SET
            FileReadWord $2 $3
            FileSeek $2 $3 SET
            FileReadWord $2 $3
            FileReadWord $2 $4
            FileReadWord $2 $5
            ${If} $3 = 0x4550
            ${AndIf} $4 = 0
            ${AndIf} $5 = 0x8664
                StrCpy $1 1
            ${EndIf}
        ${EndIf}
        FileClose $2
    ${EndIf}
    Push $1
FunctionEnd

Function showUsersPage
    Call leaveWhenElsewhere
    ${If} $AllUsers = 1
        Abort
    ${EndIf}
    !insertmacro MUI_HEADER_TEXT "Who is it for?" "Pilotel ${VERSION}"
    nsDialogs::Create 1018
    Pop $Dialog
    ${NSD_CreateRadioButton} 0 10u 100% 12u "Only for &me; no administrator is needed"
    Pop $0
    ${NSD_CreateRadioButton} 0 30u 100% 12u "For &everyone who uses this computer; Windows asks for an administrator"
    Pop $ForAll
    ; Whoever has it for everyone goes on so.
    ReadRegStr $1 HKLM "${UNINSTALL_KEY}" InstallLocation
    ${If} $1 != ""
    ${AndIf} $Installed == ""
        ${NSD_Check} $ForAll
    ${Else}
        ${NSD_Check} $0
    ${EndIf}
    nsDialogs::Show
FunctionEnd

Function leaveUsersPage
    ${NSD_GetState} $ForAll $0
    ${If} $0 = ${BST_CHECKED}
        Call isAdministrator
        Pop $0
        ${If} $0 = 0
            ; The same again as administrator, which skips this page.
            ClearErrors
            ExecShell runas "$EXEPATH" '/ALLUSERS /SDK="$Maker"'
            ${If} ${Errors}
                Abort
            ${EndIf}
            Quit
        ${EndIf}
        StrCpy $AllUsers 1
    ${EndIf}
    Call findFolder
FunctionEnd

Function skipWhenInstalled
    ${If} $Installed != ""
        Abort
    ${EndIf}
FunctionEnd

Function showLibraryPage
    !insertmacro MUI_HEADER_TEXT "The camera maker's library" "veltrix.sdk.dll drives the camera."
    nsDialogs::Create 1018
    Pop $Dialog
    Call isSimulated
    ${If} ${FileExists} "$INSTDIR\veltrix.sdk.dll"
    ${AndIf} $Same = 0
        StrCpy $0 "The maker's library that is installed stays. Name another one only if it is to take its place; the old one \
            is kept under another name."
    ${Else}
!ifdef MAKER_INCLUDED
        StrCpy $0 "This installer brings the maker's library along. Name another one only if it is to be used instead."
!else
        StrCpy $0 "Name the file veltrix.sdk.dll that came with the camera. Without it the program drives a simulated camera \
            only; you can start this installer again later and name it then."
!endif
    ${EndIf}
    ${NSD_CreateLabel} 0 0 100% 36u "$0"
    Pop $1
    ${NSD_CreateFileRequest} 0 42u 80% 13u "$Maker"
    Pop $LibraryText
    ${NSD_CreateBrowseButton} 82% 41u 18% 15u "&Browse..."
    Pop $1
    ${NSD_OnClick} $1 browseForLibrary
    nsDialogs::Show
FunctionEnd

Function browseForLibrary
    Pop $0
    nsDialogs::SelectFileDialog open "" "veltrix.sdk.dll|veltrix.sdk.dll|Libraries|*.dll"
    Pop $0
    ${If} $0 != ""
        ${NSD_SetText} $LibraryText $0
    ${EndIf}
FunctionEnd

Function leaveLibraryPage
    ${NSD_GetText} $LibraryText $Maker
    ${If} $Maker != ""
        Push $Maker
        Call isLibrary
        Pop $0
        ${If} $0 = 0
            MessageBox MB_OK|MB_ICONEXCLAMATION "$Maker is no library for 64-bit Windows."
            Abort
        ${EndIf}
    ${EndIf}
FunctionEnd

Function startProgram
    ; By way of the desktop, so that it does not run as administrator.
    Exec '"$WINDIR\explorer.exe" "$SMPROGRAMS\$Entry.lnk"'
FunctionEnd

Section
    Call leaveWhenRunning
    InitPluginsDir
    ${If} $Maker != ""
        ; Before anything is removed, for it may be the one in the folder.
        ClearErrors
        CopyFiles /SILENT "$Maker" "$PLUGINSDIR\veltrix.sdk.dll"
        ${If} ${Errors}
            MessageBox MB_OK|MB_ICONSTOP "$Maker cannot be read." /SD IDOK
            SetErrorLevel ${ERROR_NO_LIBRARY}
            Quit
        ${EndIf}
    ${EndIf}

    ; An installed version knows best what it consists of. The maker's library outlives it.
    ${If} ${FileExists} "$INSTDIR\uninstall.exe"
        ClearErrors
        ExecWait '"$INSTDIR\uninstall.exe" /S _?=$INSTDIR' $0
        ${If} ${Errors}
        ${OrIf} $0 <> 0
            MessageBox MB_OK|MB_ICONSTOP "The version in $INSTDIR cannot be removed." /SD IDOK
            SetErrorLevel ${ERROR_OLDER_VERSION}
            Quit
        ${EndIf}
    ${EndIf}

    !include "${FILES}/install.nsh"
    SetOutPath "$INSTDIR"
    WriteUninstaller "$INSTDIR\uninstall.exe"

    ${If} $Maker != ""
        StrCpy $FirstFile "$PLUGINSDIR\veltrix.sdk.dll"
        StrCpy $SecondFile "$INSTDIR\veltrix.sdk.dll"
        Call isSame
        ${If} $Same = 0
            ${If} ${FileExists} "$INSTDIR\veltrix.sdk.dll"
                StrCpy $0 1
                ${While} ${FileExists} "$INSTDIR\veltrix.sdk.dll.previous-$0"
                    IntOp $0 $0 + 1
                ${EndWhile}
                Rename "$INSTDIR\veltrix.sdk.dll" "$INSTDIR\veltrix.sdk.dll.previous-$0"
            ${EndIf}
            CopyFiles /SILENT "$PLUGINSDIR\veltrix.sdk.dll" "$INSTDIR\veltrix.sdk.dll"
        ${EndIf}
    ${ElseIfNot} ${FileExists} "$INSTDIR\veltrix.sdk.dll"
!ifdef MAKER_INCLUDED
        File "${FILES}/veltrix.sdk.dll"
!else
        CopyFiles /SILENT "$INSTDIR\simulated\veltrix.sdk.dll" "$INSTDIR\veltrix.sdk.dll"
!endif
    ${EndIf}

    StrCpy $Entry "Pilotel"
    Call isSimulated
    ${If} $Same = 1
        StrCpy $Entry "Pilotel (simulated camera)"
    ${EndIf}
    ; It starts in the folder of documents: what the library writes goes to its working directory.
    SetOutPath "$DOCUMENTS"
    CreateShortcut "$SMPROGRAMS\$Entry.lnk" "$INSTDIR\pilotel.exe"

    WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayName "Pilotel"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayVersion "${VERSION}"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" Publisher "${PUBLISHER}"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayIcon "$INSTDIR\pilotel.exe"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" InstallLocation "$INSTDIR"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" UninstallString '"$INSTDIR\uninstall.exe"'
    WriteRegStr SHCTX "${UNINSTALL_KEY}" QuietUninstallString '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" EstimatedSize ${KILOBYTES}
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" NoModify 1
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" NoRepair 1
SectionEnd

Function un.onInit
    SetRegView 64
    StrCpy $AllUsers 0
    ReadRegStr $0 HKCU "${UNINSTALL_KEY}" InstallLocation
    ReadRegStr $1 HKLM "${UNINSTALL_KEY}" InstallLocation
    ${If} $0 != $INSTDIR
    ${AndIf} $1 == $INSTDIR
        StrCpy $AllUsers 1
    ${EndIf}
    ${If} $AllUsers = 0
        SetShellVarContext current
        Return
    ${EndIf}
    SetShellVarContext all
    Call un.isAdministrator
    Pop $0
    ${If} $0 = 0
        ${IfNot} ${Silent}
            ExecShell runas "$INSTDIR\uninstall.exe"
        ${EndIf}
        SetErrorLevel ${ERROR_NO_ADMINISTRATOR}
        Quit
    ${EndIf}
FunctionEnd

Section Uninstall
    Call un.leaveWhenRunning
    Call un.isSimulated
    ${If} $Same = 1
        Delete "$INSTDIR\veltrix.sdk.dll"
    ${EndIf}
    ; File by file: what others put here is theirs.
    SetOutPath "$TEMP"
    !include "${FILES}/uninstall.nsh"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\Pilotel.lnk"
    Delete "$SMPROGRAMS\Pilotel (simulated camera).lnk"
    DeleteRegKey SHCTX "${UNINSTALL_KEY}"
SectionEnd
