; SPDX-FileCopyrightText: 2026 The Pilotel Developers
; SPDX-License-Identifier: MIT
; Files that somebody uses are found before anything is touched.
Var Held ; a file that somebody else uses

!macro Try UN NAME
    Push "$INSTDIR\${NAME}"
    Call ${UN}try
!macroend

; What installer and uninstaller both need; UN is empty or "un.".
!macro HeldFileFunctions UN

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
    !insertmacro Try "" uninstall.exe
!endif
    ${If} $Held == ""
    ${AndIf} ${FileExists} "$INSTDIR\veltrix.sdk.dll"
        !insertmacro SumOf "${UN}" "$INSTDIR\veltrix.sdk.dll" $0
        Call ${UN}isSimulated
        ${If} $0 == ""
            ; Nobody knows whose it is.
            StrCpy $Held "$INSTDIR\veltrix.sdk.dll"
        ${ElseIf} $Simulated > 0
        ${OrIf} $Maker != ""
            !insertmacro Try "${UN}" veltrix.sdk.dll
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

!macroend
!insertmacro HeldFileFunctions ""
!insertmacro HeldFileFunctions "un."
