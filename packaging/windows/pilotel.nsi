; SPDX-FileCopyrightText: 2026 The Pilotel Developers
; SPDX-License-Identifier: MIT
; The installer for 64-bit Windows.
;
; scripts/parts/windows-installer defines OUTPUT, VERSION, KILOBYTES and FILES, a folder with
;   folder     what is installed
;   library    veltrix.sdk.dll, and what the maker's library brings along
;   files.nsh  the macros EachFile, EachFolder and EachMakerFile, which name all of it
;   side.bmp
; With QUICK nothing is compressed; LIBRARY_SUM is the SHA-256 sum of library/veltrix.sdk.dll, and with MAKER_INCLUDED that
; is the maker's, else the simulated one.
;
; Options: /S silent; /ALLUSERS for all users, started as administrator; /SDK=FILE the camera maker's veltrix.sdk.dll;
; /D=FOLDER where to. In quotes when there is a space in it; a /D without quotes is the last one and takes all that follows.
; The exit codes of both are the ERROR_ below, 0 when all is done, and NSIS's own 1, given up by hand.
;
; Everything is unpacked into a folder beside its place before anything is touched, so an older version stays as it is
; until nothing can be missing any more.
;
; The maker's library is never overwritten and never deleted; a veltrix.sdk.dll beside the program is the maker's unless
; isSimulated says otherwise.
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

; Says what is being done; each step would flash by otherwise.
!macro Say TEXT
    SetDetailsPrint textonly
    DetailPrint "${TEXT}"
    SetDetailsPrint none
!macroend

!define PUBLISHER "Norvane Technologies"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Pilotel"
!define ERROR_HELD 10             ; a file is in use or cannot be written to
!define ERROR_NO_ADMINISTRATOR 11 ; for all users, but not started as administrator
!define ERROR_NO_LIBRARY 12       ; /SDK names no library for 64-bit Windows
!define ERROR_OTHER_FOLDER 13     ; installed in another folder
!define ERROR_OLDER_VERSION 14    ; what is installed could not be removed
!define ERROR_LIBRARY 15          ; the library could not be put in its place
!define ERROR_NOT_WRITTEN 16      ; what is to be installed could not be unpacked
!define ERROR_INCOMPLETE 17       ; something of the installed program is missing

!define TEXT_NOT_UNPACKED "The new version cannot be unpacked in $INSTDIR. Is the disc full? Nothing was touched."

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

Var AllUsers      ; 1: for all users, 0: for this one
Var AllUsersGiven ; /ALLUSERS is there
Var GivenFolder   ; what /D says
Var Installed     ; the folder where it is installed already, else empty
Var Other         ; where it is installed for this user when it is to be for all users, and the other way round
Var Maker         ; the maker's library that the operator names, else empty
Var MakerGiven    ; /SDK is there
Var Unpacked      ; where the new files lie before they go to their places; empty before that
Var NewFolder     ; 1: the folder was made by this installer
Var Held          ; a file that somebody else uses
Var Missing       ; what could not be put in its place
Var Simulated     ; for isSimulated
Var Swapped       ; 1: the library that the operator names lies beside the program
Var NoteOfOther   ; 1: simulated-camera.txt beside the program names the one before it
Var Previous      ; where the one before it went, empty when there was none
Var Entry         ; the entry of the start menu
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

; For EachFile and its like; UN is empty or "un.", as below.
!macro Try UN NAME
    Push "$INSTDIR\${NAME}"
    Call ${UN}try
!macroend
!macro MakeFolder UN NAME
    CreateDirectory "$INSTDIR\${NAME}"
!macroend
!macro Put UN NAME
    Push "$Unpacked\${NAME}"
    Push "$INSTDIR\${NAME}"
    Call put
!macroend
!macro PutMakerFile UN NAME
    ${IfNot} ${FileExists} "$INSTDIR\${NAME}"
        Push "$Unpacked\library\${NAME}"
        Push "$INSTDIR\${NAME}"
        Call put
    ${EndIf}
!macroend
!macro Remove UN NAME
    Push "$INSTDIR\${NAME}"
    Call un.remove
!macroend
!macro RemoveFolder UN NAME
    RMDir "$INSTDIR\${NAME}"
!macroend

!macro Leave UN CODE TEXT
    Push "${TEXT}"
    Push ${CODE}
    Call ${UN}leave
!macroend
!include "${FILES}/files.nsh"

; What installer and uninstaller both need; UN is empty or "un.".
!macro SharedFunctions UN

; Takes the name of a file from the stack and leaves its SHA-256 sum, empty when it cannot be read.
Function ${UN}sumOf
    Pop $R0
    StrCpy $R9 ""
    System::Call 'kernel32::CreateFileW(w R0, i 0x80000000, i 7, p 0, i 3, i 0, p 0) p.R1'
    ${If} $R1 == -1
        Push ""
        Return
    ${EndIf}
    System::Call 'advapi32::CryptAcquireContextW(*p .R2, p 0, p 0, i 24, i 0xF0000000)' ; PROV_RSA_AES, no keys
    System::Call 'advapi32::CryptCreateHash(p R2, i 0x800C, p 0, i 0, *p .R3)' ; CALG_SHA_256
    System::Alloc 65536
    Pop $R4
    ${Do}
        System::Call 'kernel32::ReadFile(p R1, p R4, i 65536, *i .R5, p 0) i.R6'
        ${If} $R6 = 0
        ${OrIf} $R5 = 0
            ${ExitDo}
        ${EndIf}
        System::Call 'advapi32::CryptHashData(p R3, p R4, i R5, i 0)'
    ${Loop}
    ${If} $R6 <> 0
        System::Call 'advapi32::CryptGetHashParam(p R3, i 2, p R4, *i 32, i 0) i.R6' ; HP_HASHVAL
    ${EndIf}
    ${If} $R6 <> 0
        ${For} $R5 0 31
            IntPtrOp $R7 $R4 + $R5
            System::Call '*$R7(&i1 .R8)'
            IntOp $R8 $R8 & 0xFF
            IntFmt $R8 "%02x" $R8
            StrCpy $R9 $R9$R8
        ${Next}
    ${EndIf}
    System::Free $R4
    System::Call 'advapi32::CryptDestroyHash(p R3)'
    System::Call 'advapi32::CryptReleaseContext(p R2, i 0)'
    System::Call 'kernel32::CloseHandle(p R1)'
    Push $R9
FunctionEnd

; Is the library beside the program a simulated one? Sets Simulated to 1, or to 2 when simulated-camera.txt beside it names
; it, as in a folder that comes from the archive; else to 0.
Function ${UN}isSimulated
    StrCpy $Simulated 0
    Push "$INSTDIR\veltrix.sdk.dll"
    Call ${UN}sumOf
    Pop $0
    ${If} $0 == ""
        Return
    ${EndIf}
    Push "$INSTDIR\simulated\veltrix.sdk.dll"
    Call ${UN}sumOf
    Pop $1
    ${If} $0 == $1
        StrCpy $Simulated 1
    ${EndIf}
!ifndef MAKER_INCLUDED
    ${If} $0 == ${LIBRARY_SUM}
        StrCpy $Simulated 1
    ${EndIf}
!endif
    ClearErrors
    FileOpen $2 "$INSTDIR\simulated-camera.txt" r
    ${If} ${Errors}
        Return
    ${EndIf}
    ${Do}
        FileRead $2 $3
        ${If} ${Errors}
            ${ExitDo}
        ${EndIf}
        ; The sum stands alone, four characters into its line.
        StrCpy $3 $3 64 4
        ${If} $3 == $0
            StrCpy $Simulated 2
        ${EndIf}
    ${Loop}
    FileClose $2
FunctionEnd

; Takes the name of a file from the stack. When it is there and somebody else has it open, or it cannot be written to, Held
; is its name, unless it names another one. A running program, or a library in use, cannot be opened for writing.
Function ${UN}try
    Pop $R0
    ${If} $Held != ""
        Return
    ${EndIf}
    System::Call 'kernel32::GetFileAttributesW(w R0) i.R1'
    ${If} $R1 = -1
        Return
    ${EndIf}
    StrCpy $R2 0xC0010000 ; reading, writing, deleting
    IntOp $R1 $R1 & 1
    ${If} $R1 = 1
        StrCpy $R2 0x80010000 ; one that is read-only is deleted none the less
    ${EndIf}
    System::Call 'kernel32::CreateFileW(w R0, i R2, i 0, p 0, i 3, i 0, p 0) p.R1'
    ${If} $R1 == -1
        StrCpy $Held $R0
    ${Else}
        System::Call 'kernel32::CloseHandle(p R1)'
    ${EndIf}
FunctionEnd

; Tries every file that would be replaced or deleted. Sets Held.
Function ${UN}tryAll
    StrCpy $Held ""
    ; The programs first, for they are what the operator knows.
    !insertmacro Try "${UN}" pilotel.exe
    !insertmacro Try "${UN}" pilotel-sdk-check.exe
    !insertmacro EachFile Try "${UN}"
!if "${UN}" == ""
    Push "$INSTDIR\uninstall.exe"
    Call try
!endif
    ${If} $Held == ""
    ${AndIf} ${FileExists} "$INSTDIR\veltrix.sdk.dll"
        Push "$INSTDIR\veltrix.sdk.dll"
        Call ${UN}sumOf
        Pop $0
        Call ${UN}isSimulated
        ${If} $0 == ""
            ; Nobody knows whose it is.
            StrCpy $Held "$INSTDIR\veltrix.sdk.dll"
        ${ElseIf} $Simulated > 0
        ${OrIf} $Maker != ""
            Push "$INSTDIR\veltrix.sdk.dll"
            Call ${UN}try
        ${EndIf}
    ${EndIf}
FunctionEnd

; Leaves with an exit code when one of the files is in use. A virus scanner has them for a moment only.
Function ${UN}leaveWhenHeld
    again:
    ${For} $1 1 5
        Push $1
        Call ${UN}tryAll
        Pop $1
        ${If} $Held == ""
            Return
        ${EndIf}
        Sleep 200
    ${Next}
    ${IfNot} ${Silent}
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
            "$Held is in use, or you may not write to it.$\r$\n$\r$\nClose Pilotel and every other program that uses its files, and try again. Nothing has been changed yet." \
            IDRETRY again
        SetErrorLevel ${ERROR_HELD}
        Quit
    ${EndIf}
    !insertmacro Leave "${UN}" ${ERROR_HELD} "$Held is in use, or you may not write to it. Nothing was touched."
FunctionEnd

; Takes a text and, on top, an exit code from the stack, tells the operator and leaves. A silent one tells whoever has
; redirected standard error.
Function ${UN}leave
    Pop $R1
    Pop $R0
!if "${UN}" == ""
    Call cleanUp
!endif
    Push $R0
    Call ${UN}tell
    SetErrorLevel $R1
    Quit
FunctionEnd

Function ${UN}tell
    Pop $R0
    ${If} ${Silent}
        System::Call 'kernel32::GetStdHandle(i -12) p.R2'
        ${If} $R2 P> 0
            FileWrite $R2 "$R0$\r$\n"
        ${EndIf}
    ${Else}
        MessageBox MB_OK|MB_ICONSTOP "$R0"
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
    ${If} ${Errors}
        StrCpy $MakerGiven 0
    ${Else}
        StrCpy $MakerGiven 1
    ${EndIf}
    Call fullName
    Pop $Maker
    ; NSIS reads the one without quotes.
    StrCpy $GivenFolder $INSTDIR
    ${If} $GivenFolder == ""
        Push "/D="
        Call valueOf
        Pop $GivenFolder
    ${EndIf}
    Push $GivenFolder
    Call fullName
    Pop $GivenFolder
    StrCpy $AllUsersGiven 0
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/ALLUSERS" $1
    ${IfNot} ${Errors}
        StrCpy $AllUsersGiven 1
        Call isAdministrator
        Pop $0
        ${If} $0 = 0
            !insertmacro Leave "" ${ERROR_NO_ADMINISTRATOR} \
                "To install for all users, start the installer as administrator."
        ${EndIf}
    ${EndIf}
    StrCpy $AllUsers $AllUsersGiven
    Call findFolder
    ${If} ${Silent}
        Call leaveWhenElsewhere
        ${If} $MakerGiven = 1
        ${AndIf} $Maker == ""
            ; As in a script with a variable that nobody has set.
            !insertmacro Leave "" ${ERROR_NO_LIBRARY} "/SDK names nothing."
        ${ElseIf} $Maker != ""
            Push $Maker
            Call isLibrary
            Pop $0
            ${If} $0 = 0
                !insertmacro Leave "" ${ERROR_NO_LIBRARY} "$Maker is no library for 64-bit Windows."
            ${EndIf}
        ${EndIf}
    ${EndIf}
FunctionEnd

; Takes the name of a file or folder from the stack and leaves it in full, without a backslash at its end.
Function fullName
    Pop $R0
    ${If} $R0 != ""
        System::Call 'kernel32::GetFullPathNameW(w R0, i ${NSIS_MAX_STRLEN}, w .R1, p 0) i.R2'
        ${If} $R2 > 0
        ${AndIf} $R2 < ${NSIS_MAX_STRLEN}
            StrCpy $R0 $R1
        ${EndIf}
        ; PROGRA~1, say; fails for what is not there yet.
        System::Call 'kernel32::GetLongPathNameW(w R0, w .R1, i ${NSIS_MAX_STRLEN}) i.R2'
        ${If} $R2 > 0
        ${AndIf} $R2 < ${NSIS_MAX_STRLEN}
            StrCpy $R0 $R1
        ${EndIf}
        StrLen $R2 $R0
        StrCpy $R1 $R0 1 -1
        ${If} $R1 == "\"
        ${AndIf} $R2 > 3
            StrCpy $R0 $R0 -1
        ${EndIf}
    ${EndIf}
    Push $R0
FunctionEnd

; Takes the name of an option from the stack and leaves its value; empty, with the error flag, when it is not on the command
; line. The option as a whole, or its value, may be in quotes.
Function valueOf
    Pop $0
    StrLen $1 $0
    StrCpy $2 0 ; the place in the command line
    StrCpy $3 "" ; the character before it
    StrCpy $5 "" ; the value
    ClearErrors
    ${Do}
        StrCpy $4 $CMDLINE $1 $2
        ${If} $4 == ""
            Push ""
            SetErrors
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
    ReadRegStr $0 HKCU "${UNINSTALL_KEY}" InstallLocation
    ${IfNot} ${FileExists} "$0\uninstall.exe"
        StrCpy $0 ""
    ${EndIf}
    ReadRegStr $1 HKLM "${UNINSTALL_KEY}" InstallLocation
    ${IfNot} ${FileExists} "$1\uninstall.exe"
        StrCpy $1 ""
    ${EndIf}
    ${If} $AllUsers = 1
        SetShellVarContext all
        StrCpy $INSTDIR "$PROGRAMFILES64\Pilotel"
        StrCpy $Installed $1
        StrCpy $Other $0
    ${Else}
        SetShellVarContext current
        StrCpy $INSTDIR "$LOCALAPPDATA\Programs\Pilotel"
        StrCpy $Installed $0
        StrCpy $Other $1
    ${EndIf}
    ${If} $Installed != ""
        StrCpy $INSTDIR $Installed
    ${ElseIf} $GivenFolder != ""
        StrCpy $INSTDIR $GivenFolder
    ${EndIf}
FunctionEnd

; Leaves the stack with what speaks against this folder, else with an empty text: there would be two of them.
Function elsewhere
    StrCpy $0 ""
    ${If} $Installed != ""
        ; Windows does not tell small letters from capital ones, nor does this comparison.
        ${If} $GivenFolder != ""
        ${AndIf} $GivenFolder != $Installed
            StrCpy $0 "Pilotel is installed in $Installed. Uninstall it there first."
        ${EndIf}
    ${ElseIf} $Other != ""
        ${If} $AllUsers = 1
            StrCpy $0 "Pilotel is installed in $Other for one user alone. Uninstall it there first, or install for that \
                user alone."
        ${Else}
            StrCpy $0 "Pilotel is installed in $Other for all users. Install for all users, or uninstall it there first."
        ${EndIf}
    ${EndIf}
    Push $0
FunctionEnd

Function leaveWhenElsewhere
    Call elsewhere
    Pop $0
    ${If} $0 != ""
        !insertmacro Leave "" ${ERROR_OTHER_FOLDER} "$0"
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
    ${If} $AllUsersGiven = 1
        Call leaveWhenElsewhere
        Abort
    ${EndIf}
    StrCpy $AllUsers 0
    Call findFolder
    !insertmacro MUI_HEADER_TEXT "Who is it for?" "Pilotel ${VERSION}"
    nsDialogs::Create 1018
    Pop $Dialog
    ${NSD_CreateFirstRadioButton} 0 10u 100% 12u "Only for &me; no administrator is needed"
    Pop $1
    ${NSD_CreateAdditionalRadioButton} 0 30u 100% 12u "For &everyone who uses this computer; Windows asks for an administrator"
    Pop $ForAll
    ; Whoever has it for everyone goes on so.
    ${If} $Other != ""
    ${AndIf} $Installed == ""
        ${NSD_Check} $ForAll
    ${Else}
        ${NSD_Check} $1
    ${EndIf}
    nsDialogs::Show
FunctionEnd

Function leaveUsersPage
    ${NSD_GetState} $ForAll $AllUsers ; 1 when it is checked
    Call findFolder
    Call elsewhere
    Pop $0
    ${If} $0 != ""
        MessageBox MB_OK|MB_ICONEXCLAMATION "$0"
        Abort
    ${EndIf}
    Call isAdministrator
    Pop $0
    ${If} $AllUsers = 1
    ${AndIf} $0 = 0
        ; The same again as administrator, which skips this page.
        StrCpy $1 "/ALLUSERS"
        ${If} $Maker != ""
            StrCpy $1 '$1 "/SDK=$Maker"'
        ${EndIf}
        ${If} $GivenFolder != ""
            StrCpy $1 "$1 /D=$GivenFolder"
        ${EndIf}
        ClearErrors
        ExecShell runas "$EXEPATH" "$1"
        ${If} ${Errors}
            Abort
        ${EndIf}
        Quit
    ${EndIf}
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
    ${AndIf} $Simulated = 0
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
    AddSize ${KILOBYTES}
    ; While it unpacks, NSIS itself may give up.
    SetErrorLevel ${ERROR_NOT_WRITTEN}
    StrCpy $Missing ""
    Push $INSTDIR
    Call fullName
    Pop $INSTDIR
    ; Two at once would unpack into the same folder.
    System::Call 'kernel32::CreateMutexW(p 0, i 0, w "Pilotel installer") p .r0 ?e'
    Pop $0
    ${If} $0 = 183 ; ERROR_ALREADY_EXISTS
        !insertmacro Leave "" ${ERROR_HELD} "Another installer of Pilotel is at work. Nothing was touched."
    ${EndIf}
    !insertmacro Say "Looking whether files are in use"
    Call leaveWhenHeld
    !insertmacro Say "Unpacking"
    Call unpack
    Call swapLibrary
    !insertmacro Say "Putting the new version in its place"
    Call removeOlder
    !insertmacro EachFolder MakeFolder ""
    !insertmacro EachFile Put ""
    Push "$Unpacked\uninstall.exe"
    Push "$INSTDIR\uninstall.exe"
    Call put
    Call putLibrary
    Call makeEntries
    Call cleanUp
    ${If} $Missing != ""
        !insertmacro Leave "" ${ERROR_INCOMPLETE} \
            "$Missing could not be written. Pilotel is not complete; start the installer once more."
    ${EndIf}
    SetErrorLevel 0
SectionEnd

; NSIS gave up while it unpacked, and told why in a box if it may.
Function .onInstFailed
    Call cleanUp
    ${If} ${Silent}
        Push "${TEXT_NOT_UNPACKED}"
        Call tell
    ${EndIf}
FunctionEnd

; Everything into a folder of its own on the same disc.
Function unpack
    StrCpy $NewFolder 0
    ${IfNot} ${FileExists} "$INSTDIR\*.*"
        StrCpy $NewFolder 1
    ${EndIf}
    StrCpy $Unpacked "$INSTDIR\installing.tmp"
    RMDir /r "$Unpacked"
    ClearErrors
    CreateDirectory "$Unpacked\operator"
    ${If} ${Errors}
        !insertmacro Leave "" ${ERROR_HELD} "You may not write to $INSTDIR. Nothing was touched."
    ${EndIf}
    ${If} $Maker != ""
        Push $Maker
        Call sumOf
        Pop $8
        ${If} $8 == ""
            !insertmacro Leave "" ${ERROR_NO_LIBRARY} "$Maker cannot be read. Nothing was touched."
        ${EndIf}
        CopyFiles /SILENT "$Maker" "$Unpacked\operator\veltrix.sdk.dll"
        Push "$Unpacked\operator\veltrix.sdk.dll"
        Call sumOf
        Pop $9
        ${If} $8 != $9
            !insertmacro Leave "" ${ERROR_LIBRARY} "$Maker cannot be copied to $INSTDIR. Nothing was touched."
        ${EndIf}
    ${EndIf}
    ClearErrors
    SetOutPath "$Unpacked"
    File /r "${FILES}/folder/*"
    SetOutPath "$Unpacked\library"
    File "${FILES}/library/*"
    WriteUninstaller "$Unpacked\uninstall.exe"
    ; No folder can be removed that is somebody's working directory.
    SetOutPath "$TEMP"
    ${If} ${Errors}
        !insertmacro Leave "" ${ERROR_NOT_WRITTEN} "${TEXT_NOT_UNPACKED}"
    ${EndIf}
FunctionEnd

; Removes what was unpacked, and the folder when it is as empty as it came.
Function cleanUp
    ${If} $Unpacked != ""
        SetOutPath "$TEMP"
        RMDir /r "$Unpacked"
        ${If} $NewFolder = 1
            RMDir "$INSTDIR"
        ${EndIf}
        StrCpy $Unpacked ""
    ${EndIf}
FunctionEnd

; Takes two names from the stack, from and, on top, to. Moves the file, over one that is there, and leaves 1 when it is
; done, else 0. A virus scanner has new files for a moment.
Function move
    Pop $R1
    Pop $R0
    System::Call 'kernel32::SetFileAttributesW(w R1, i 128)' ; no longer read-only
    ${For} $R3 1 20
        System::Call 'kernel32::MoveFileExW(w R0, w R1, i 3) i.R2' ; replaces, copies to another disc
        ${If} $R2 <> 0
            ${ExitFor}
        ${EndIf}
        Sleep 100
    ${Next}
    Push $R2
FunctionEnd

; The same; Missing is the name when it is not done.
Function put
    Call move
    Pop $R2
    ${If} $R2 = 0
        StrCpy $Missing $R1
    ${EndIf}
FunctionEnd

; Puts the library that the operator names beside the program. The maker's that was there gets another name.
Function swapLibrary
    StrCpy $Swapped 0
    StrCpy $NoteOfOther 0
    StrCpy $Previous ""
    ${If} $Maker == ""
        Return
    ${EndIf}
    Push "$INSTDIR\veltrix.sdk.dll"
    Call sumOf
    Pop $8
    Push "$Unpacked\operator\veltrix.sdk.dll"
    Call sumOf
    Pop $9
    ${If} $8 == $9
        Return
    ${EndIf}
    ${If} ${FileExists} "$INSTDIR\veltrix.sdk.dll"
        Call isSimulated
        ${If} $Simulated > 0
            StrCpy $Previous "$Unpacked\replaced.dll"
            ${If} $Simulated = 2
                StrCpy $NoteOfOther 1
            ${EndIf}
        ${Else}
            StrCpy $0 1
            ${While} ${FileExists} "$INSTDIR\veltrix.sdk.dll.previous-$0"
                IntOp $0 $0 + 1
            ${EndWhile}
            StrCpy $Previous "$INSTDIR\veltrix.sdk.dll.previous-$0"
        ${EndIf}
        Push "$INSTDIR\veltrix.sdk.dll"
        Push $Previous
        Call move
        Pop $0
        ${If} $0 = 0
            !insertmacro Leave "" ${ERROR_LIBRARY} \
                "$INSTDIR\veltrix.sdk.dll cannot be renamed. Nothing was touched."
        ${EndIf}
    ${EndIf}
    StrCpy $Swapped 1
    Push "$Unpacked\operator\veltrix.sdk.dll"
    Push "$INSTDIR\veltrix.sdk.dll"
    Call move
    Pop $0
    ${If} $0 = 0
        Call swapBack
        !insertmacro Leave "" ${ERROR_LIBRARY} \
            "The library cannot be put in its place in $INSTDIR. The one that was there stays."
    ${EndIf}
FunctionEnd

Function swapBack
    ${If} $Swapped = 1
        ${If} $Previous != ""
            Push $Previous
            Push "$INSTDIR\veltrix.sdk.dll"
            Call move
            Pop $0
        ${Else}
            Delete "$INSTDIR\veltrix.sdk.dll"
        ${EndIf}
    ${EndIf}
FunctionEnd

; An installed version knows best what it consists of. The maker's library outlives it.
Function removeOlder
    ${IfNot} ${FileExists} "$INSTDIR\uninstall.exe"
        Return
    ${EndIf}
    ClearErrors
    ExecWait '"$INSTDIR\uninstall.exe" /S _?=$INSTDIR' $0
    ${If} ${Errors}
        StrCpy $0 ${ERROR_OLDER_VERSION}
    ${EndIf}
    ${If} $0 = 0
        Return
    ${EndIf}
    ${IfNot} ${FileExists} "$INSTDIR\pilotel.exe"
    ${OrIfNot} ${FileExists} "$INSTDIR\qt.conf"
        ; It came to a halt on the way. The new version repairs that.
        Return
    ${EndIf}
    Push $0
    Call swapBack
    Pop $0
    ${If} $0 = ${ERROR_HELD}
        !insertmacro Leave "" ${ERROR_HELD} "A file in $INSTDIR is in use, or you may not write to it. Nothing was touched."
    ${EndIf}
    !insertmacro Leave "" ${ERROR_OLDER_VERSION} "The version in $INSTDIR cannot be removed."
FunctionEnd

; The library that the installer brings goes where none is, or a simulated one.
Function putLibrary
    Call isSimulated
    ${If} $Simulated > 0
    ${OrIfNot} ${FileExists} "$INSTDIR\veltrix.sdk.dll"
        Push "$Unpacked\library\veltrix.sdk.dll"
        Push "$INSTDIR\veltrix.sdk.dll"
        Call put
        ${If} $Simulated = 2
            StrCpy $NoteOfOther 1
        ${EndIf}
    ${EndIf}
    ${If} $NoteOfOther = 1
        Delete "$INSTDIR\simulated-camera.txt"
    ${EndIf}
!ifdef MAKER_INCLUDED
    ; What the maker's library needs is for that one alone; where another is, the operator has seen to it.
    Push "$INSTDIR\veltrix.sdk.dll"
    Call sumOf
    Pop $0
    ${If} $0 == ${LIBRARY_SUM}
        !insertmacro EachMakerFile PutMakerFile ""
    ${EndIf}
!endif
FunctionEnd

; The start menu and the list of programs.
Function makeEntries
    StrCpy $Entry "Pilotel"
    Call isSimulated
    ${If} $Simulated > 0
        StrCpy $Entry "Pilotel (simulated camera)"
    ${EndIf}
    Delete "$SMPROGRAMS\Pilotel.lnk"
    Delete "$SMPROGRAMS\Pilotel (simulated camera).lnk"
    ClearErrors
    ; It starts in the folder of documents: what the library writes goes to its working directory.
    SetOutPath "$DOCUMENTS"
    ClearErrors
    CreateShortcut "$SMPROGRAMS\$Entry.lnk" "$INSTDIR\pilotel.exe"
    ${If} ${Errors}
        StrCpy $Missing "The entry of the start menu"
    ${EndIf}

    ClearErrors
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
    ${If} ${Errors}
        StrCpy $Missing "The entry of the list of programs"
    ${EndIf}
FunctionEnd

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
            SetErrorLevel ${ERROR_NO_ADMINISTRATOR}
            Quit
        ${EndIf}
        !insertmacro Leave "un." ${ERROR_NO_ADMINISTRATOR} "Pilotel is there for all users: start this as administrator."
    ${EndIf}
FunctionEnd

; Takes the name of a file from the stack and deletes it. Missing is its name when that fails.
Function un.remove
    Pop $R0
    ${For} $R1 1 20
        ClearErrors
        Delete "$R0"
        ${IfNot} ${Errors}
            Return
        ${EndIf}
        Sleep 100
    ${Next}
    StrCpy $Missing $R0
FunctionEnd

Section Uninstall
    !insertmacro Say "Looking whether files are in use"
    Call un.leaveWhenHeld
    !insertmacro Say "Removing"
    StrCpy $Missing ""
    Call un.isSimulated
    ${If} $Simulated > 0
        !insertmacro Remove "un." veltrix.sdk.dll
    ${EndIf}
    ${If} $Simulated = 2
        !insertmacro Remove "un." simulated-camera.txt
    ${EndIf}
    ; File by file: what others put here is theirs.
    SetOutPath "$TEMP"
    !insertmacro EachFile Remove "un."
    ${If} $Missing != ""
        ; The rest stays, so that it can be tried again.
        !insertmacro Leave "un." ${ERROR_OLDER_VERSION} "$Missing cannot be deleted. Close what uses it and uninstall again."
    ${EndIf}
    !insertmacro EachFolder RemoveFolder "un."
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\Pilotel.lnk"
    Delete "$SMPROGRAMS\Pilotel (simulated camera).lnk"
    DeleteRegKey SHCTX "${UNINSTALL_KEY}"
SectionEnd
