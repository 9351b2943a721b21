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
; The exit codes of both are the ERROR_ of leaving.nsh, 0 when all is done, and NSIS's own 1, given up by hand.
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

!define PUBLISHER "Norvane Technologies"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Pilotel"

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

; Says what is being done; each step would flash by otherwise.
!macro Say TEXT
    SetDetailsPrint textonly
    DetailPrint "${TEXT}"
    SetDetailsPrint none
!macroend

; Each uses variables and macros of those before it.
!include "${FILES}/files.nsh"
!include leaving.nsh
!include one-file.nsh
!include command-line.nsh
!include folder.nsh
!include new-version.nsh
!include library.nsh
!include entries.nsh
!include held-files.nsh
!include questions.nsh
!include uninstaller.nsh

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
    !insertmacro FullName "" $GivenFolder
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
            !insertmacro IsLibrary $Maker $0
            ${If} $0 = 0
                !insertmacro Leave "" ${ERROR_NO_LIBRARY} "${TEXT_NO_LIBRARY}"
            ${EndIf}
        ${EndIf}
    ${EndIf}
FunctionEnd

Section
    AddSize ${KILOBYTES}
    ; While it unpacks, NSIS itself may give up.
    SetErrorLevel ${ERROR_NOT_WRITTEN}
    StrCpy $Missing ""
    !insertmacro FullName "" $INSTDIR
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
    !insertmacro Put "" uninstall.exe
    Call putLibrary
    Call makeEntries
    Call cleanUp
    ${If} $Missing != ""
        !insertmacro Leave "" ${ERROR_INCOMPLETE} \
            "$Missing could not be written. Pilotel is not complete; start the installer once more."
    ${EndIf}
    SetErrorLevel 0
SectionEnd
