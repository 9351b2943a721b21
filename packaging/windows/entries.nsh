; SPDX-FileCopyrightText: 2026 The Pilotel Developers
; SPDX-License-Identifier: MIT
; The entries of the start menu and of the list of programs.
Var Entry ; the entry of the start menu

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
