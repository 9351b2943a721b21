; SPDX-FileCopyrightText: 2026 The Pilotel Developers
; SPDX-License-Identifier: MIT
; The pages on which the installer asks for whom, where and for the maker's library.
Var Dialog
Var ForAll
Var LibraryText

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
        !insertmacro IsLibrary $Maker $0
        ${If} $0 = 0
            MessageBox MB_OK|MB_ICONEXCLAMATION "${TEXT_NO_LIBRARY}"
            Abort
        ${EndIf}
    ${EndIf}
FunctionEnd

Function startProgram
    ; By way of the desktop, so that it does not run as administrator.
    Exec '"$WINDIR\explorer.exe" "$SMPROGRAMS\$Entry.lnk"'
FunctionEnd
