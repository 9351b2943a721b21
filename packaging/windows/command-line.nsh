; SPDX-FileCopyrightText: 2026 The Pilotel Developers
; SPDX-License-Identifier: MIT
; What the command line of the installer says.
Var AllUsersGiven ; /ALLUSERS is there
Var GivenFolder   ; what /D says
Var Maker         ; the maker's library that the operator names, else empty
Var MakerGiven    ; /SDK is there

; Takes the name of an option from the stack and leaves its value; empty, with the error flag, when it is not on the command
; line. The option as a whole, or its value, may be in quotes.
Function valueOf
    Pop $0
    StrLen $1 $0
    StrCpy $2 0 ; the place in the command line
    StrCpy $3 "" ; the character before it
    StrCpy $5 "" ; the value
    ClearErrors
    ${Do}
        StrCpy $4 $CMDLINE $1 $2
        ${If} $4 == ""
            Push ""
            SetErrors
            Return
        ${EndIf}
        ${If} $4 == $0
            ${ExitDo}
        ${EndIf}
        StrCpy $3 $4 1
        IntOp $2 $2 + 1
    ${Loop}
    IntOp $2 $2 + $1
    StrCpy $4 $CMDLINE 1 $2
    ${If} $4 == '"'
        StrCpy $3 '"'
        IntOp $2 $2 + 1
    ${ElseIf} $3 != '"'
        StrCpy $3 " "
    ${EndIf}
    ${Do}
        StrCpy $4 $CMDLINE 1 $2
        ${If} $4 == ""
        ${OrIf} $4 == $3
            ${ExitDo}
        ${EndIf}
        StrCpy $5 $5$4
        IntOp $2 $2 + 1
    ${Loop}
    Push $5
FunctionEnd
