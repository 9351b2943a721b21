; SPDX-FileCopyrightText: 2026 The Pilotel Developers
; SPDX-License-Identifier: MIT
; How installer and uninstaller end when something is wrong: the exit codes, and what is told.
!define ERROR_HELD 10             ; a file is in use or cannot be written to
!define ERROR_NO_ADMINISTRATOR 11 ; for all users, but not started as administrator
!define ERROR_NO_LIBRARY 12       ; /SDK names no library for 64-bit Windows
!define ERROR_OTHER_FOLDER 13     ; installed in another folder
!define ERROR_OLDER_VERSION 14    ; what is installed could not be removed
!define ERROR_LIBRARY 15          ; the library could not be put in its place
!define ERROR_NOT_WRITTEN 16      ; what is to be installed could not be unpacked
!define ERROR_INCOMPLETE 17       ; something of the installed program is missing

!macro Leave UN CODE TEXT
    Push "${TEXT}"
    Push ${CODE}
    Call ${UN}leave
!macroend

; What installer and uninstaller both need; UN is empty or "un.".
!macro LeavingFunctions UN

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

!macroend
!insertmacro LeavingFunctions ""
!insertmacro LeavingFunctions "un."
