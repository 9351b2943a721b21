; SPDX-FileCopyrightText: 2026 The Pilotel Developers
; SPDX-License-Identifier: MIT
; The library beside the program: whose it is, and how another one takes its place.
Var Simulated   ; for isSimulated
Var Swapped     ; 1: the library that the operator names lies beside the program
Var NoteOfOther ; 1: simulated-camera.txt beside the program names the one before it
Var Previous    ; where the one before it went, empty when there was none

; What installer and uninstaller both need; UN is empty or "un.".
!macro LibraryFunctions UN

; Is the library beside the program a simulated one? Sets Simulated to 1, or to 2 when simulated-camera.txt beside it names
; it, as in a folder that comes from the archive; else to 0.
Function ${UN}isSimulated
    StrCpy $Simulated 0
    !insertmacro SumOf "${UN}" "$INSTDIR\veltrix.sdk.dll" $0
    ${If} $0 == ""
        Return
    ${EndIf}
    !insertmacro SumOf "${UN}" "$INSTDIR\simulated\veltrix.sdk.dll" $1
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

!macroend
!insertmacro LibraryFunctions ""
!insertmacro LibraryFunctions "un."

; RESULT is 1 when FILE is a library.
!macro IsLibrary FILE RESULT
    Push "${FILE}"
    Call isLibrary
    Pop ${RESULT}
!macroend

!define TEXT_NO_LIBRARY "$Maker is no library for 64-bit Windows."

; Takes the name of a file from the stack and leaves 1 when it is a library for 64-bit Windows, else 0.
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
            FileSeek $2 16 CUR
            FileReadWord $2 $6
            IntOp $6 $6 & 0x2000 ; IMAGE_FILE_DLL
            ${If} $3 = 0x4550
            ${AndIf} $4 = 0
            ${AndIf} $5 = 0x8664
            ${AndIf} $6 = 0x2000
                StrCpy $1 1
            ${EndIf}
        ${EndIf}
        FileClose $2
    ${EndIf}
    Push $1
FunctionEnd

; Puts the library that the operator names beside the program. The maker's that was there gets another name.
Function swapLibrary
    StrCpy $Swapped 0
    StrCpy $NoteOfOther 0
    StrCpy $Previous ""
    ${If} $Maker == ""
        Return
    ${EndIf}
    !insertmacro SumOf "" "$INSTDIR\veltrix.sdk.dll" $8
    !insertmacro SumOf "" "$Unpacked\operator\veltrix.sdk.dll" $9
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
        !insertmacro Move "$INSTDIR\veltrix.sdk.dll" $Previous $0
        ${If} $0 = 0
            !insertmacro Leave "" ${ERROR_LIBRARY} \
                "$INSTDIR\veltrix.sdk.dll cannot be renamed. Nothing was touched."
        ${EndIf}
    ${EndIf}
    StrCpy $Swapped 1
    !insertmacro Move "$Unpacked\operator\veltrix.sdk.dll" "$INSTDIR\veltrix.sdk.dll" $0
    ${If} $0 = 0
        Call swapBack
        !insertmacro Leave "" ${ERROR_LIBRARY} \
            "The library cannot be put in its place in $INSTDIR. The one that was there stays."
    ${EndIf}
FunctionEnd

Function swapBack
    ${If} $Swapped = 1
        ${If} $Previous != ""
            !insertmacro Move $Previous "$INSTDIR\veltrix.sdk.dll" $0
        ${Else}
            Delete "$INSTDIR\veltrix.sdk.dll"
        ${EndIf}
    ${EndIf}
FunctionEnd

; The library that the installer brings goes where none is, or a simulated one.
Function putLibrary
    Call isSimulated
    ${If} $Simulated > 0
    ${OrIfNot} ${FileExists} "$INSTDIR\veltrix.sdk.dll"
        !insertmacro PutFrom library veltrix.sdk.dll
        ${If} $Simulated = 2
            StrCpy $NoteOfOther 1
        ${EndIf}
    ${EndIf}
    ${If} $NoteOfOther = 1
        Delete "$INSTDIR\simulated-camera.txt"
    ${EndIf}
!ifdef MAKER_INCLUDED
    ; What the maker's library needs is for that one alone; where another is, the operator has seen to it.
    !insertmacro SumOf "" "$INSTDIR\veltrix.sdk.dll" $0
    ${If} $0 == ${LIBRARY_SUM}
        !insertmacro EachMakerFile PutMakerFile ""
    ${EndIf}
!endif
FunctionEnd
