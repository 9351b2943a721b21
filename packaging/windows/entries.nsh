; SPDX-FileCopyrightText: 2026 The Pilotel Developers
; SPDX-License-Identifier: MIT
; The entries of the start menu and of the list of programs.
Var Entry ; the entry of the start menu

; Whichever of the two there is.
!macro DeleteMenuEntries
    Delete "$SMPROGRAMS\Pilotel.lnk"
    Delete "$SMPROGRAMS\Pilotel (simulated camera).lnk"
!macroend

; A value of the entry of the list of programs.
!macro ListText NAME TEXT
    WriteRegStr SHCTX "${UNINSTALL_KEY}" ${NAME} '${TEXT}'
!macroend
!macro ListNumber NAME NUMBER
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" ${NAME} ${NUMBER}
!macroend

; The start menu and the list of programs.
Function makeEntries
    StrCpy $Entry "Pilotel"
    Call isSimulated
    ${If} $Simulated > 0
        StrCpy $Entry "Pilotel (simulated camera)"
    ${EndIf}
    !insertmacro DeleteMenuEntries
    ClearErrors
    ; It starts in the folder of documents: what the library writes goes to its working directory.
    SetOutPath "$DOCUMENTS"
    ClearErrors
    CreateShortcut "$SMPROGRAMS\$Entry.lnk" "$INSTDIR\pilotel.exe"
    ${If} ${Errors}
        StrCpy $Missing "The entry of the start menu"
    ${EndIf}

    ClearErrors
    !insertmacro ListText DisplayName "Pilotel"
    !insertmacro ListText DisplayVersion "${VERSION}"
    !insertmacro ListText Publisher "${PUBLISHER}"
    !insertmacro ListText DisplayIcon "$INSTDIR\pilotel.exe"
    !insertmacro ListText InstallLocation "$INSTDIR"
    !insertmacro ListText UninstallString '"$INSTDIR\uninstall.exe"'
    !insertmacro ListText QuietUninstallString '"$INSTDIR\uninstall.exe" /S'
    !insertmacro ListNumber EstimatedSize ${KILOBYTES}
    !insertmacro ListNumber NoModify 1
    !insertmacro ListNumber NoRepair 1
    ${If} ${Errors}
        StrCpy $Missing "The entry of the list of programs"
    ${EndIf}
FunctionEnd
