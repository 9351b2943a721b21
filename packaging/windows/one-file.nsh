; SPDX-FileCopyrightText: 2026 The Pilotel Developers
; SPDX-License-Identifier: MIT
; What is done with one file or folder, and the macros that EachFile and its like do for each one.
Var Missing ; what could not be put in its place

; NAME is that in the installed folder, UN is empty or "un.".
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
        !insertmacro PutFrom library "${NAME}"
    ${EndIf}
!macroend
!macro Remove UN NAME
    Push "$INSTDIR\${NAME}"
    Call un.remove
!macroend
!macro RemoveFolder UN NAME
    RMDir "$INSTDIR\${NAME}"
!macroend

; As Put, from a folder of what is unpacked.
!macro PutFrom FOLDER NAME
    Push "$Unpacked\${FOLDER}\${NAME}"
    Push "$INSTDIR\${NAME}"
    Call put
!macroend

; The functions below, with names in and results in variables.
!macro SumOf UN FILE RESULT
    Push "${FILE}"
    Call ${UN}sumOf
    Pop ${RESULT}
!macroend
!macro FullName UN VARIABLE
    Push ${VARIABLE}
    Call ${UN}fullName
    Pop ${VARIABLE}
!macroend
!macro Move FROM TO RESULT
    Push "${FROM}"
    Push "${TO}"
    Call move
    Pop ${RESULT}
!macroend

; What installer and uninstaller both need; UN is empty or "un.".
!macro FileFunctions UN

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

; Takes the name of a file or folder from the stack and leaves it in full, without a backslash at its end.
Function ${UN}fullName
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

!macroend
!insertmacro FileFunctions ""
!insertmacro FileFunctions "un."

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
