; SPDX-FileCopyrightText: 2026 The Pilotel Developers
; SPDX-License-Identifier: MIT
; For whom the program is installed, and in which folder.
Var AllUsers  ; 1: for all users, 0: for this one
Var Installed ; the folder where it is installed already, else empty
Var Other     ; where it is installed for this user when it is to be for all users, and the other way round

; What installer and uninstaller both need; UN is empty or "un.".
!macro UserFunctions UN

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
!insertmacro UserFunctions ""
!insertmacro UserFunctions "un."

; RESULT is the folder that the list of programs in ROOT names, empty when it is not there.
!macro InstalledIn ROOT RESULT
    ReadRegStr ${RESULT} ${ROOT} "${UNINSTALL_KEY}" InstallLocation
    ${IfNot} ${FileExists} "${RESULT}\uninstall.exe"
        StrCpy ${RESULT} ""
    ${EndIf}
!macroend

; Where it goes: where it is installed already, else where /D says, else where programs go.
Function findFolder
    !insertmacro InstalledIn HKCU $0
    !insertmacro InstalledIn HKLM $1
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
