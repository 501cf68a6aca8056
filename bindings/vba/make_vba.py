"""Writes kvtcore.bas, the spreadsheet module of kvtcore6.dll, from the catalogue.

    python3 bindings/vba/make_vba.py OUTPUT.bas

The module has two parts:

- a Declare line for every export, once for VBA7 (Office 2010 and later,
  32- and 64-bit, PtrSafe and LongPtr) and once for older 32-bit Office;
- a worksheet function kvt_NAME beside each export (kvt_HPT beside kvtHPT)
  that turns a failure into an Excel error value instead of -1, returns the
  pair and fourteen-output rows as a row of cells and the texts as strings,
  and loads the DLL from the workbook's own folder when it is not on the path.
"""
import os
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "tools"))
import catalogue  # noqa: E402

DLL = "kvtcore6.dll"

# Names VBA keeps for itself that a catalogue argument might carry.
RESERVED = {"name", "mode", "open", "close", "get", "put", "print", "input", "len", "lock",
            "seek", "step", "to", "type", "end", "error", "string", "date", "time", "text"}

# The C type of an argument, as VBA passes it.
ARG = {"double": "ByVal {} As Double", "double*": "ByRef {} As Double",
       "int32_t": "ByVal {} As Long", "const char*": "ByVal {} As String"}


def vba_name(name):
    return name + "_" if name.lower() in RESERVED else name


def result_type(ctype, ptr):
    return {"double": "Double", "int32_t": "Long"}.get(ctype, ptr)


def declaration(row, vba7):
    ptr = "LongPtr" if vba7 else "Long"
    params = ", ".join(ARG[a.ctype].format(vba_name(a.name)) for a in row.args)
    safe = "PtrSafe " if vba7 else ""
    return (f'Public Declare {safe}Function {row.name} Lib "{DLL}" ({params}) '
            f"As {result_type(row.ctype, ptr)}")


def worksheet_function(row):
    """kvt_NAME: the export with Excel errors, pair and 14 outputs as a row."""
    inputs = [a for a in row.args if not a.output]
    params = ", ".join(ARG[a.ctype].format(vba_name(a.name)) for a in inputs)
    fn = "kvt_" + row.short
    given = ", ".join(f"{a.name} [{a.unit}]" if a.unit else a.name for a in inputs)
    outs = f" as a row: {', '.join(a.name for a in row.outputs)}" if row.outputs else ""
    lines = [f"' {row.name}({given}): {row.result}{outs}", f"Public Function {fn}({params}) As Variant"]
    call_args = [vba_name(a.name) for a in inputs]
    if row.outputs:
        lines.append(f"    Dim o(1 To {len(row.outputs)}) As Double")
        call_args += [f"o({i + 1})" for i in range(len(row.outputs))]
    call = f"{row.name}({', '.join(call_args)})"
    lines.append("    kvtLoad")
    if row.outputs:
        lines.append(f"    {fn} = kvtOutputs({call}, o)")
    elif row.ctype == "const char*":
        lines.append(f"    {fn} = kvtText(kvtTextA({call}))")
    elif row.ctype == "const char16_t*":
        lines.append(f"    {fn} = kvtText(kvtTextW({call}))")
    elif row.rule == "Plain":
        lines.append(f"    {fn} = {call}")  # the last-error functions: -1 is no failure here
    else:
        lines.append(f"    {fn} = kvtResult({call})")
    lines.append("End Function")
    return lines


HEAD = """Attribute VB_Name = "kvtcore"
' kvtcore for spreadsheets: water, steam and gas properties from {dll}.
' Written from the catalogue of kvtcore.h by bindings/vba/make_vba.py; do not
' edit, generate it again.
'
' Import this file into a workbook (VBA editor, File > Import File) and put
' {dll} beside the workbook (or in its x64 or x86 subfolder, or on the path).
'
' In a cell:  =kvt_HPT(3E6, 300)          enthalpy of water at 3 MPa, 300 K, J/kg
'             =kvt_gCPGST("N2:0.79;O2:0.21", 500)
' A failed call gives #NUM! (outside the range, no convergence, unknown state)
' or #VALUE! (bad arguments, gas text, not available), never a silent -1.
' kvtLastErrorText() gives the text of the last failure.
'
' In VBA code the exports are declared under their own names (kvtHPT, ...):
' they return -1 on failure, and kvtGETLASTERROR() gives the code.
Option Explicit

Private Const kvtErrValue As Long = 2015   ' xlErrValue, #VALUE!
Private Const kvtErrNum As Long = 2036     ' xlErrNum, #NUM!
Private kvtLoadTried As Boolean
"""

# The parts written once per branch: pointers are LongPtr in VBA7, Long
# before. VBA wants every Declare of a module before its first procedure.
KERNEL = """Private Declare {safe}Function kvtLoadLibrary Lib "kernel32" Alias "LoadLibraryA" (ByVal path As String) As {ptr}
Private Declare {safe}Function kvtModuleHandle Lib "kernel32" Alias "GetModuleHandleA" (ByVal module As String) As {ptr}
Private Declare {safe}Function kvtLengthA Lib "kernel32" Alias "lstrlenA" (ByVal p As {ptr}) As Long
Private Declare {safe}Function kvtCopyA Lib "kernel32" Alias "lstrcpynA" (ByVal target As String, ByVal p As {ptr}, ByVal n As Long) As {ptr}
Private Declare {safe}Function kvtLengthW Lib "kernel32" Alias "lstrlenW" (ByVal p As {ptr}) As Long
Private Declare {safe}Sub kvtCopyMemory Lib "kernel32" Alias "RtlMoveMemory" (ByVal target As {ptr}, ByVal source As {ptr}, ByVal bytes As {ptr})
"""

HELPERS = """' A text of the DLL in the host's ANSI code page; Null for a null pointer.
Private Function kvtTextA(ByVal p As {ptr}) As Variant
    Dim n As Long, s As String
    If p = 0 Then kvtTextA = Null: Exit Function
    n = kvtLengthA(p)
    s = String$(n + 1, vbNullChar)
    kvtCopyA s, p, n + 1
    kvtTextA = Left$(s, n)
End Function

' A UTF-16 text of the DLL; Null for a null pointer.
Private Function kvtTextW(ByVal p As {ptr}) As Variant
    Dim n As Long, s As String
    If p = 0 Then kvtTextW = Null: Exit Function
    n = kvtLengthW(p)
    s = String$(n, vbNullChar)
    If n > 0 Then kvtCopyMemory StrPtr(s), p, 2 * n
    kvtTextW = s
End Function
"""

TAIL = """
' Loads {dll} from the workbook's folder, or its x64 or x86 subfolder for
' the Office in use, unless it is loaded already; the Declare lines then find
' it by name. Without a workbook folder Windows searches the path as usual.
Public Sub kvtLoad()
    Dim folder As String
    If kvtLoadTried Then Exit Sub
    kvtLoadTried = True
    If kvtModuleHandle("{dll}") <> 0 Then Exit Sub
    folder = ThisWorkbook.Path
    If folder = "" Then Exit Sub
    If kvtLoadLibrary(folder & "\\{dll}") <> 0 Then Exit Sub
#If Win64 Then
    kvtLoadLibrary folder & "\\x64\\{dll}"
#Else
    kvtLoadLibrary folder & "\\x86\\{dll}"
#End If
End Sub

' The Excel error of a failure code: #NUM! where the numbers have no answer
' (1 a non-finite result, 2 outside the range, 3 no convergence, 4 unknown
' state area), #VALUE! for the rest (8 not available, 11 a bad gas text).
Public Function kvtExcelError(ByVal code As Long) As Variant
    Select Case code
        Case 1 To 4: kvtExcelError = CVErr(kvtErrNum)
        Case Else: kvtExcelError = CVErr(kvtErrValue)
    End Select
End Function

' The result of a call, or the Excel error when it failed. -1 can be a true
' answer, so the code decides.
Private Function kvtResult(ByVal r As Double) As Variant
    Dim code As Long
    If r = -1 Then
        code = kvtGETLASTERROR()
        If code <> 0 Then kvtResult = kvtExcelError(code): Exit Function
    End If
    kvtResult = r
End Function

' The outputs of a pair or fourteen-output call as a row of cells.
Private Function kvtOutputs(ByVal r As Double, o() As Double) As Variant
    Dim code As Long
    If r = -1 Then
        code = kvtGETLASTERROR()
        If code <> 0 Then kvtOutputs = kvtExcelError(code): Exit Function
    End If
    kvtOutputs = o
End Function

' A text result, or the Excel error when the DLL gave none.
Private Function kvtText(ByVal t As Variant) As Variant
    If IsNull(t) Then kvtText = kvtExcelError(kvtGETLASTERROR()) Else kvtText = t
End Function

' The text of the last failure (the DLL's description of kvtGETLASTERROR()),
' as a string; it does not clear the code.
Public Function kvtLastErrorText() As String
    kvtLoad
    Dim t As Variant
    t = kvtTextW(kvtGETLASTERRORDESCRIPTIONW())
    If Not IsNull(t) Then kvtLastErrorText = t
End Function
"""


def branches(part):
    """A part of the module in its two forms, VBA7 and older."""
    out = ["#If VBA7 Then"]
    for vba7 in (True, False):
        if not vba7:
            out.append("#Else")
        out += part(vba7, "PtrSafe " if vba7 else "", "LongPtr" if vba7 else "Long")
    return out + ["#End If"]


def module(rows):
    out = HEAD.format(dll=DLL).rstrip("\n").split("\n") + [""]
    out += branches(lambda vba7, safe, ptr: [declaration(r, vba7) for r in rows] + [""] +
                    KERNEL.format(safe=safe, ptr=ptr).rstrip("\n").split("\n"))
    out.append("")
    out += branches(lambda vba7, safe, ptr: HELPERS.format(ptr=ptr).rstrip("\n").split("\n"))
    out += TAIL.format(dll=DLL).rstrip("\n").split("\n")
    out.append("")
    out.append("' ---- Worksheet functions, one per export ----")
    for r in rows:
        out.append("")
        out += worksheet_function(r)
    # VBA files are read in the ANSI code page with CR LF line ends.
    return "\r\n".join(out) + "\r\n"


def main():
    if len(sys.argv) != 2:
        sys.exit("usage: make_vba.py OUTPUT.bas")
    text = module(catalogue.read())
    with open(sys.argv[1], "w", encoding="ascii", newline="") as f:
        f.write(text)


if __name__ == "__main__":
    main()
