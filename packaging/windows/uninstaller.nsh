; SPDX-FileCopyrightText: 2026 The Pilotel Developers
; SPDX-License-Identifier: MIT
; The uninstaller.
Function un.onInit
    SetRegView 64
    ; It may have been started by a short name, PROGRA~1, say.
    !insertmacro FullName "un." $INSTDIR
    ${IfNot} ${FileExists} "$INSTDIR\uninstall.exe"
        ; As with a mistyped _?=FOLDER.
        !insertmacro Leave "un." ${ERROR_OTHER_FOLDER} "Pilotel is not installed in $INSTDIR."
    ${EndIf}
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
    ; They may be those of an installation in another folder.
    ReadRegStr $0 SHCTX "${UNINSTALL_KEY}" InstallLocation
    ${If} $0 == $INSTDIR
        !insertmacro DeleteMenuEntries
        DeleteRegKey SHCTX "${UNINSTALL_KEY}"
    ${EndIf}
SectionEnd
