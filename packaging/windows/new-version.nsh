; SPDX-FileCopyrightText: 2026 The Pilotel Developers
; SPDX-License-Identifier: MIT
; The new version is unpacked beside the older one and takes its place.
!define TEXT_NOT_UNPACKED "The new version cannot be unpacked in $INSTDIR. Is the disc full? Nothing was touched."

Var Unpacked  ; where the new files lie before they go to their places; empty before that
Var NewFolder ; 1: the folder was made by this installer

; NSIS gave up while it unpacked, and told why in a box if it may.
Function .onInstFailed
    Call cleanUp
    ${If} ${Silent}
        Push "${TEXT_NOT_UNPACKED}"
        Call tell
    ${EndIf}
FunctionEnd

; Everything into a folder of its own on the same disc.
Function unpack
    StrCpy $NewFolder 0
    ${IfNot} ${FileExists} "$INSTDIR\*.*"
        StrCpy $NewFolder 1
    ${EndIf}
    StrCpy $Unpacked "$INSTDIR\installing.tmp"
    RMDir /r "$Unpacked"
    ClearErrors
    CreateDirectory "$Unpacked\operator"
    ${If} ${Errors}
        !insertmacro Leave "" ${ERROR_HELD} "You may not write to $INSTDIR. Nothing was touched."
    ${EndIf}
    ${If} $Maker != ""
        !insertmacro SumOf "" $Maker $8
        ${If} $8 == ""
            !insertmacro Leave "" ${ERROR_NO_LIBRARY} "$Maker cannot be read. Nothing was touched."
        ${EndIf}
        CopyFiles /SILENT "$Maker" "$Unpacked\operator\veltrix.sdk.dll"
        !insertmacro SumOf "" "$Unpacked\operator\veltrix.sdk.dll" $9
        ${If} $8 != $9
            !insertmacro Leave "" ${ERROR_LIBRARY} "$Maker cannot be copied to $INSTDIR. Nothing was touched."
        ${EndIf}
    ${EndIf}
    ClearErrors
    SetOutPath "$Unpacked"
    File /r "${FILES}/folder/*"
    SetOutPath "$Unpacked\library"
    File "${FILES}/library/*"
    WriteUninstaller "$Unpacked\uninstall.exe"
    ; No folder can be removed that is somebody's working directory.
    SetOutPath "$TEMP"
    ${If} ${Errors}
        !insertmacro Leave "" ${ERROR_NOT_WRITTEN} "${TEXT_NOT_UNPACKED}"
    ${EndIf}
FunctionEnd

; Removes what was unpacked, and the folder when it is as empty as it came.
Function cleanUp
    ${If} $Unpacked != ""
        SetOutPath "$TEMP"
        RMDir /r "$Unpacked"
        ${If} $NewFolder = 1
            RMDir "$INSTDIR"
        ${EndIf}
        StrCpy $Unpacked ""
    ${EndIf}
FunctionEnd

; An installed version knows best what it consists of. The maker's library outlives it.
Function removeOlder
    ${IfNot} ${FileExists} "$INSTDIR\uninstall.exe"
        Return
    ${EndIf}
    ClearErrors
    ExecWait '"$INSTDIR\uninstall.exe" /S _?=$INSTDIR' $0
    ${If} ${Errors}
        StrCpy $0 ${ERROR_OLDER_VERSION}
    ${EndIf}
    ${If} $0 = 0
        Return
    ${EndIf}
    ${IfNot} ${FileExists} "$INSTDIR\pilotel.exe"
    ${OrIfNot} ${FileExists} "$INSTDIR\qt.conf"
        ; It came to a halt on the way. The new version repairs that.
        Return
    ${EndIf}
    Push $0
    Call swapBack
    Pop $0
    ${If} $0 = ${ERROR_HELD}
        !insertmacro Leave "" ${ERROR_HELD} "A file in $INSTDIR is in use, or you may not write to it. Nothing was touched."
    ${EndIf}
    !insertmacro Leave "" ${ERROR_OLDER_VERSION} "The version in $INSTDIR cannot be removed."
FunctionEnd
