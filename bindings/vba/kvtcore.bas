Attribute VB_Name = "kvtcore"
' kvtcore for spreadsheets: water, steam and gas properties from kvtcore6.dll.
' Written from the catalogue of kvtcore.h by bindings/vba/make_vba.py; do not
' edit, generate it again.
'
' Import this file into a workbook (VBA editor, File > Import File) and put
' kvtcore6.dll beside the workbook (or in its x64 or x86 subfolder, or on the path).
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

#If VBA7 Then
Public Declare PtrSafe Function kvtVUSHCVWDERPTPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByRef v As Double, ByRef u As Double, ByRef s As Double, ByRef h As Double, ByRef cv As Double, ByRef w As Double, ByRef dvdpT As Double, ByRef dudpT As Double, ByRef dsdpT As Double, ByRef dhdpT As Double, ByRef dvdTp As Double, ByRef dudTp As Double, ByRef dsdTp As Double, ByRef cp As Double) As Double
Public Declare PtrSafe Function kvtVPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtUPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtHPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtCPPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtCVPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtWPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtJOULETHOMPSONPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtTHERMCONDPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtDYNVISPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtPRANDTLEPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtKINVISPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtKPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtVPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtUPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtSPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtHPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtCPPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtCVPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtWPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtJOULETHOMPSONPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtTHERMCONDPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtDYNVISPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtPRANDTLEPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtKINVISPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtKPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtTPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtUPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtVPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtSPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtCPPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtCVPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtWPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtJOULETHOMPSONPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtDYNVISPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtKINVISPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtPRANDTLEPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtKPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtTHERMCONDPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtXPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtTPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtUPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtVPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtHPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtCPPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtCVPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtWPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtJOULETHOMPSONPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtDYNVISPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtKINVISPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtPRANDTLEPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtKPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtTHERMCONDPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtXPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtPHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtTHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtVHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtUHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtCPHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtCVHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtWHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtJOULETHOMPSONHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtTHERMCONDHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtDYNVISHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtPRANDTLEHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtKINVISHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtKHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtXHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtPTHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double, ByRef p As Double, ByRef T As Double) As Double
Public Declare PtrSafe Function kvtTEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtVEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtUEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtHEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtSEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtCPEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtCVEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtWEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtTHERMCONDEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtKINVISEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtDYNVISEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtPRANDTLEEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtKEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtJOULETHOMPSONEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtXEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtTEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtVEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtUEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtHEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtSEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtCPEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtCVEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtWEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtTHERMCONDEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtKINVISEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtDYNVISEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtPRANDTLEEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtKEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtJOULETHOMPSONEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtXEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare PtrSafe Function kvtVMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtUMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtSMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtHMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtCPMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtCVMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtWMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtTHERMCONDMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtDYNVISMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtPRANDTLEMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtKINVISMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtKMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtJOULETHOMPSONMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtVSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtVSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtUSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtUSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtSSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtSSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtHSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtHSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtCPSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtCPSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtCVSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtCVSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtCVDPSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtCVDPSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtWSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtWSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtJOULETHOMPSONSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtJOULETHOMPSONSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtTHERMCONDSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtTHERMCONDSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtDYNVISSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtDYNVISSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtPRANDTLESST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtPRANDTLESWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtKINVISSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtKINVISSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtKSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtKSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtRST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtVUSHCVWDERPTSWT Lib "kvtcore6.dll" (ByVal T As Double, ByRef v As Double, ByRef u As Double, ByRef s As Double, ByRef h As Double, ByRef cv As Double, ByRef w As Double, ByRef dvdpT As Double, ByRef dudpT As Double, ByRef dsdpT As Double, ByRef dhdpT As Double, ByRef dvdTp As Double, ByRef dudTp As Double, ByRef dsdTp As Double, ByRef cp As Double) As Double
Public Declare PtrSafe Function kvtVUSHCVWDERPTSST Lib "kvtcore6.dll" (ByVal T As Double, ByRef v As Double, ByRef u As Double, ByRef s As Double, ByRef h As Double, ByRef cv As Double, ByRef w As Double, ByRef dvdpT As Double, ByRef dudpT As Double, ByRef dsdpT As Double, ByRef dhdpT As Double, ByRef dvdTp As Double, ByRef dudTp As Double, ByRef dsdTp As Double, ByRef cp As Double) As Double
Public Declare PtrSafe Function kvtVSTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtUSTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtSSTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtHSTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtCPSTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtCVSTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtWSTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtJOULETHOMPSONSTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtTHERMCONDSTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtDYNVISSTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtPRANDTLESTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtKINVISSTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtKSTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare PtrSafe Function kvtXSTV Lib "kvtcore6.dll" (ByVal T As Double, ByVal v As Double) As Double
Public Declare PtrSafe Function kvtXSTU Lib "kvtcore6.dll" (ByVal T As Double, ByVal u As Double) As Double
Public Declare PtrSafe Function kvtXSTS Lib "kvtcore6.dll" (ByVal T As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtXSTH Lib "kvtcore6.dll" (ByVal T As Double, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtXSTCP Lib "kvtcore6.dll" (ByVal T As Double, ByVal cp As Double) As Double
Public Declare PtrSafe Function kvtXSTCV Lib "kvtcore6.dll" (ByVal T As Double, ByVal cv As Double) As Double
Public Declare PtrSafe Function kvtXSTW Lib "kvtcore6.dll" (ByVal T As Double, ByVal w As Double) As Double
Public Declare PtrSafe Function kvtXSTJOULETHOMPSON Lib "kvtcore6.dll" (ByVal T As Double, ByVal muJT As Double) As Double
Public Declare PtrSafe Function kvtXSTTHERMCOND Lib "kvtcore6.dll" (ByVal T As Double, ByVal lambda As Double) As Double
Public Declare PtrSafe Function kvtXSTDYNVIS Lib "kvtcore6.dll" (ByVal T As Double, ByVal eta As Double) As Double
Public Declare PtrSafe Function kvtXSTKINVIS Lib "kvtcore6.dll" (ByVal T As Double, ByVal nu As Double) As Double
Public Declare PtrSafe Function kvtXSTPRANDTLE Lib "kvtcore6.dll" (ByVal T As Double, ByVal Pr As Double) As Double
Public Declare PtrSafe Function kvtXSTK Lib "kvtcore6.dll" (ByVal T As Double, ByVal k As Double) As Double
Public Declare PtrSafe Function kvtROUGHRSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtROUGHRSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtROUGHHSSS Lib "kvtcore6.dll" (ByVal s As Double) As Double
Public Declare PtrSafe Function kvtROUGHHSWS Lib "kvtcore6.dll" (ByVal s As Double) As Double
Public Declare PtrSafe Function kvtWATERSTATEAREAPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Long
Public Declare PtrSafe Function kvtWATERSTATEAREAPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Long
Public Declare PtrSafe Function kvtWATERSTATEAREAHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Long
Public Declare PtrSafe Function kvtTSHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtTXSHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double, ByRef T As Double, ByRef x As Double) As Double
Public Declare PtrSafe Function kvtWATERSTATEAREA Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Long
Public Declare PtrSafe Function kvtWATERSTATEAREA2 Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Long
Public Declare PtrSafe Function kvtPHASESTATEPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Long
Public Declare PtrSafe Function kvtPST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtDPDTST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtTSP Lib "kvtcore6.dll" (ByVal p As Double) As Double
Public Declare PtrSafe Function kvtP23T Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtT23P Lib "kvtcore6.dll" (ByVal p As Double) As Double
Public Declare PtrSafe Function kvtTB23HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtPB23HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtHB13S Lib "kvtcore6.dll" (ByVal s As Double) As Double
Public Declare PtrSafe Function kvtSURFTENT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtTHERMCONDRT Lib "kvtcore6.dll" (ByVal rho As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtDYNVISRT Lib "kvtcore6.dll" (ByVal rho As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtPSUBT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtPMELTIT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare PtrSafe Function kvtV1PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtU1PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtS1PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtH1PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtCP1PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtCV1PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtW1PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtJOULETHOMPSON1PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtVUSHCVWDERPT1PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByRef v As Double, ByRef u As Double, ByRef s As Double, ByRef h As Double, ByRef cv As Double, ByRef w As Double, ByRef dvdpT As Double, ByRef dudpT As Double, ByRef dsdpT As Double, ByRef dhdpT As Double, ByRef dvdTp As Double, ByRef dudTp As Double, ByRef dsdTp As Double, ByRef cp As Double) As Double
Public Declare PtrSafe Function kvtV2PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtU2PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtS2PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtH2PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtCP2PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtCV2PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtW2PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtJOULETHOMPSON2PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtVUSHCVWDERPT2PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByRef v As Double, ByRef u As Double, ByRef s As Double, ByRef h As Double, ByRef cv As Double, ByRef w As Double, ByRef dvdpT As Double, ByRef dudpT As Double, ByRef dsdpT As Double, ByRef dhdpT As Double, ByRef dvdTp As Double, ByRef dudTp As Double, ByRef dsdTp As Double, ByRef cp As Double) As Double
Public Declare PtrSafe Function kvtT1PH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtT1PS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtP1HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtT1HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtPT1HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double, ByRef p As Double, ByRef T As Double) As Double
Public Declare PtrSafe Function kvtPT1RH Lib "kvtcore6.dll" (ByVal rho As Double, ByVal h As Double, ByRef p As Double, ByRef T As Double) As Double
Public Declare PtrSafe Function kvtT2APH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtT2APS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtT2BPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtT2BPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtT2CPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtT2CPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtT2PH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtT2PS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtP2B2CH Lib "kvtcore6.dll" (ByVal h As Double) As Double
Public Declare PtrSafe Function kvtH2B2CP Lib "kvtcore6.dll" (ByVal p As Double) As Double
Public Declare PtrSafe Function kvtP2HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtT2HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtPT2HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double, ByRef p As Double, ByRef T As Double) As Double
Public Declare PtrSafe Function kvtPT2RH Lib "kvtcore6.dll" (ByVal rho As Double, ByVal h As Double, ByRef p As Double, ByRef T As Double) As Double
Public Declare PtrSafe Function kvtP3RT Lib "kvtcore6.dll" (ByVal rho As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtR3PTR0 Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal rhoStart As Double) As Double
Public Declare PtrSafe Function kvtR3PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtU3RT Lib "kvtcore6.dll" (ByVal rho As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtS3RT Lib "kvtcore6.dll" (ByVal rho As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtH3RT Lib "kvtcore6.dll" (ByVal rho As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtCP3RT Lib "kvtcore6.dll" (ByVal rho As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtCV3RT Lib "kvtcore6.dll" (ByVal rho As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtW3RT Lib "kvtcore6.dll" (ByVal rho As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtVUSHCVWDERPT3RT Lib "kvtcore6.dll" (ByVal rho As Double, ByVal T As Double, ByRef v As Double, ByRef u As Double, ByRef s As Double, ByRef h As Double, ByRef cv As Double, ByRef w As Double, ByRef dvdpT As Double, ByRef dudpT As Double, ByRef dsdpT As Double, ByRef dhdpT As Double, ByRef dvdTp As Double, ByRef dudTp As Double, ByRef dsdTp As Double, ByRef cp As Double) As Double
Public Declare PtrSafe Function kvtV3PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtU3PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtS3PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtH3PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtCP3PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtCV3PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtW3PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtJOULETHOMPSON3RT Lib "kvtcore6.dll" (ByVal rho As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtJOULETHOMPSON3PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtVUSHCVWDERPT3PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByRef v As Double, ByRef u As Double, ByRef s As Double, ByRef h As Double, ByRef cv As Double, ByRef w As Double, ByRef dvdpT As Double, ByRef dudpT As Double, ByRef dsdpT As Double, ByRef dhdpT As Double, ByRef dvdTp As Double, ByRef dudTp As Double, ByRef dsdTp As Double, ByRef cp As Double) As Double
Public Declare PtrSafe Function kvtT3PH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtT3PS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtP3HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtT3HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtV3HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtV3PH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtV3PS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtRT3HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double, ByRef rho As Double, ByRef T As Double) As Double
Public Declare PtrSafe Function kvtPT3HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double, ByRef p As Double, ByRef T As Double) As Double
Public Declare PtrSafe Function kvtT3RH Lib "kvtcore6.dll" (ByVal rho As Double, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtV5PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtU5PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtS5PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtH5PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtCP5PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtCV5PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtW5PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtJOULETHOMPSON5PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtVUSHCVWDERPT5PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByRef v As Double, ByRef u As Double, ByRef s As Double, ByRef h As Double, ByRef cv As Double, ByRef w As Double, ByRef dvdpT As Double, ByRef dudpT As Double, ByRef dsdpT As Double, ByRef dhdpT As Double, ByRef dvdTp As Double, ByRef dudTp As Double, ByRef dsdTp As Double, ByRef cp As Double) As Double
Public Declare PtrSafe Function kvtT5PH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtT5PS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtP5HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtT5HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtPT5HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double, ByRef p As Double, ByRef T As Double) As Double
Public Declare PtrSafe Function kvtPT5RH Lib "kvtcore6.dll" (ByVal rho As Double, ByVal h As Double, ByRef p As Double, ByRef T As Double) As Double
Public Declare PtrSafe Function kvtSHOWKVTHELP Lib "kvtcore6.dll" (ByVal window As Long) As Double
Public Declare PtrSafe Function kvtSHOWABOUT Lib "kvtcore6.dll" (ByVal window As Long) As Double
Public Declare PtrSafe Function kvtgSETCALCDISSMODE Lib "kvtcore6.dll" (ByVal mode_ As Long) As Long
Public Declare PtrSafe Function kvtgGETCALCDISSMODE Lib "kvtcore6.dll" () As Long
Public Declare PtrSafe Function kvtgCPIDT Lib "kvtcore6.dll" (ByVal id As Long, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtgCPGST Lib "kvtcore6.dll" (ByVal gs As String, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtgHIDT Lib "kvtcore6.dll" (ByVal id As Long, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtgHGST Lib "kvtcore6.dll" (ByVal gs As String, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtgSIDT Lib "kvtcore6.dll" (ByVal id As Long, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtgSGST Lib "kvtcore6.dll" (ByVal gs As String, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtgSIDPT Lib "kvtcore6.dll" (ByVal id As Long, ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtgSGSPT Lib "kvtcore6.dll" (ByVal gs As String, ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtgCVIDT Lib "kvtcore6.dll" (ByVal id As Long, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtgCVGST Lib "kvtcore6.dll" (ByVal gs As String, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtgUIDT Lib "kvtcore6.dll" (ByVal id As Long, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtgUGST Lib "kvtcore6.dll" (ByVal gs As String, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtgMMID Lib "kvtcore6.dll" (ByVal id As Long) As Double
Public Declare PtrSafe Function kvtgMMGS Lib "kvtcore6.dll" (ByVal gs As String) As Double
Public Declare PtrSafe Function kvtgGCID Lib "kvtcore6.dll" (ByVal id As Long) As Double
Public Declare PtrSafe Function kvtgGCGS Lib "kvtcore6.dll" (ByVal gs As String) As Double
Public Declare PtrSafe Function kvtgVIDT Lib "kvtcore6.dll" (ByVal id As Long, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtgVGST Lib "kvtcore6.dll" (ByVal gs As String, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtgVIDPT Lib "kvtcore6.dll" (ByVal id As Long, ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtgVGSPT Lib "kvtcore6.dll" (ByVal gs As String, ByVal p As Double, ByVal T As Double) As Double
Public Declare PtrSafe Function kvtgTIDH Lib "kvtcore6.dll" (ByVal id As Long, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtgTGSH Lib "kvtcore6.dll" (ByVal gs As String, ByVal h As Double) As Double
Public Declare PtrSafe Function kvtgTIDS Lib "kvtcore6.dll" (ByVal id As Long, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtgTGSS Lib "kvtcore6.dll" (ByVal gs As String, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtgTIDPS Lib "kvtcore6.dll" (ByVal id As Long, ByVal p As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtgTGSPS Lib "kvtcore6.dll" (ByVal gs As String, ByVal p As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtgPIDTS Lib "kvtcore6.dll" (ByVal id As Long, ByVal T As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtgPGSTS Lib "kvtcore6.dll" (ByVal gs As String, ByVal T As Double, ByVal s As Double) As Double
Public Declare PtrSafe Function kvtgVFGSGS Lib "kvtcore6.dll" (ByVal mixture As String, ByVal component As String) As Double
Public Declare PtrSafe Function kvtgMFGSGS Lib "kvtcore6.dll" (ByVal mixture As String, ByVal component As String) As Double
Public Declare PtrSafe Function kvtgVFIDID Lib "kvtcore6.dll" (ByVal mixture As Long, ByVal component As Long) As Double
Public Declare PtrSafe Function kvtgMFIDID Lib "kvtcore6.dll" (ByVal mixture As Long, ByVal component As Long) As Double
Public Declare PtrSafe Function kvtgIDNAME Lib "kvtcore6.dll" (ByVal name_ As String) As Long
Public Declare PtrSafe Function kvtgNEWID Lib "kvtcore6.dll" () As Long
Public Declare PtrSafe Function kvtgNEWIDNAME Lib "kvtcore6.dll" (ByVal name_ As String) As Long
Public Declare PtrSafe Function kvtgNEWIDGS Lib "kvtcore6.dll" (ByVal gs As String) As Long
Public Declare PtrSafe Function kvtgDELETEGASID Lib "kvtcore6.dll" (ByVal id As Long) As Long
Public Declare PtrSafe Function kvtgDELETEGASES Lib "kvtcore6.dll" () As Long
Public Declare PtrSafe Function kvtgGASESCOUNT Lib "kvtcore6.dll" () As Long
Public Declare PtrSafe Function kvtgADDGASM Lib "kvtcore6.dll" (ByVal mixture As Long, ByVal component As Long, ByVal mass As Double) As Long
Public Declare PtrSafe Function kvtgADDGASV Lib "kvtcore6.dll" (ByVal mixture As Long, ByVal component As Long, ByVal parts As Double) As Long
Public Declare PtrSafe Function kvtgGSID Lib "kvtcore6.dll" (ByVal id As Long) As LongPtr
Public Declare PtrSafe Function kvtgGSGS Lib "kvtcore6.dll" (ByVal gs As String) As LongPtr
Public Declare PtrSafe Function kvtgGETGASDATA Lib "kvtcore6.dll" (ByVal a1 As Double, ByVal a2 As Double, ByVal a3 As Double, ByVal a4 As Double, ByVal a5 As Double, ByVal a6 As Double, ByVal a7 As Double, ByVal a8 As Double, ByVal a9 As Double, ByVal a10 As Double, ByVal a11 As Double, ByVal a12 As Double) As Double
Public Declare PtrSafe Function kvtSETTOLERANCE Lib "kvtcore6.dll" (ByVal tolerance As Double) As Double
Public Declare PtrSafe Function kvtGETTOLERANCE Lib "kvtcore6.dll" () As Double
Public Declare PtrSafe Function kvtSETTOLERANCEMODE Lib "kvtcore6.dll" (ByVal mode_ As Long) As Long
Public Declare PtrSafe Function kvtGETTOLERANCEMODE Lib "kvtcore6.dll" () As Long
Public Declare PtrSafe Function kvtSETCHECKRANGEMODE Lib "kvtcore6.dll" (ByVal mode_ As Long) As Long
Public Declare PtrSafe Function kvtGETCHECKRANGEMODE Lib "kvtcore6.dll" () As Long
Public Declare PtrSafe Function kvtSETLASTERROR Lib "kvtcore6.dll" (ByVal code As Long) As Long
Public Declare PtrSafe Function kvtGETLASTERROR Lib "kvtcore6.dll" () As Long
Public Declare PtrSafe Function kvtGETLASTERRORDESCRIPTION Lib "kvtcore6.dll" () As LongPtr
Public Declare PtrSafe Function kvtSETDELTATS Lib "kvtcore6.dll" (ByVal ignored As Double) As Double
Public Declare PtrSafe Function kvtGETDELTATS Lib "kvtcore6.dll" () As Double
Public Declare PtrSafe Function kvtSETMAXITERATION Lib "kvtcore6.dll" (ByVal maxIteration As Long) As Long
Public Declare PtrSafe Function kvtGETMAXITERATION Lib "kvtcore6.dll" () As Long
Public Declare PtrSafe Function kvtSETDELTAPRESSURE Lib "kvtcore6.dll" (ByVal ignored As Double) As Double
Public Declare PtrSafe Function kvtGETDELTAPRESSURE Lib "kvtcore6.dll" () As Double
Public Declare PtrSafe Function kvtSETINITWATERDENSITY Lib "kvtcore6.dll" (ByVal ignored As Double) As Double
Public Declare PtrSafe Function kvtGETINITWATERDENSITY Lib "kvtcore6.dll" () As Double
Public Declare PtrSafe Function kvtSETINITSTEAMDENSITY Lib "kvtcore6.dll" (ByVal ignored As Double) As Double
Public Declare PtrSafe Function kvtGETINITSTEAMDENSITY Lib "kvtcore6.dll" () As Double
Public Declare PtrSafe Function kvtGETKVTVERSION Lib "kvtcore6.dll" () As Double
Public Declare PtrSafe Function kvtGETLASTERRORDESCRIPTIONW Lib "kvtcore6.dll" () As LongPtr
Public Declare PtrSafe Function kvtGETABSOLUTEGASCONSTANT Lib "kvtcore6.dll" () As Double

Private Declare PtrSafe Function kvtLoadLibrary Lib "kernel32" Alias "LoadLibraryA" (ByVal path As String) As LongPtr
Private Declare PtrSafe Function kvtModuleHandle Lib "kernel32" Alias "GetModuleHandleA" (ByVal module As String) As LongPtr
Private Declare PtrSafe Function kvtLengthA Lib "kernel32" Alias "lstrlenA" (ByVal p As LongPtr) As Long
Private Declare PtrSafe Function kvtCopyA Lib "kernel32" Alias "lstrcpynA" (ByVal target As String, ByVal p As LongPtr, ByVal n As Long) As LongPtr
Private Declare PtrSafe Function kvtLengthW Lib "kernel32" Alias "lstrlenW" (ByVal p As LongPtr) As Long
Private Declare PtrSafe Sub kvtCopyMemory Lib "kernel32" Alias "RtlMoveMemory" (ByVal target As LongPtr, ByVal source As LongPtr, ByVal bytes As LongPtr)
#Else
Public Declare Function kvtVUSHCVWDERPTPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByRef v As Double, ByRef u As Double, ByRef s As Double, ByRef h As Double, ByRef cv As Double, ByRef w As Double, ByRef dvdpT As Double, ByRef dudpT As Double, ByRef dsdpT As Double, ByRef dhdpT As Double, ByRef dvdTp As Double, ByRef dudTp As Double, ByRef dsdTp As Double, ByRef cp As Double) As Double
Public Declare Function kvtVPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtUPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtHPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtCPPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtCVPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtWPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtJOULETHOMPSONPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtTHERMCONDPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtDYNVISPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtPRANDTLEPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtKINVISPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtKPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtVPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtUPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtSPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtHPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtCPPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtCVPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtWPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtJOULETHOMPSONPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtTHERMCONDPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtDYNVISPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtPRANDTLEPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtKINVISPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtKPTX Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtTPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare Function kvtUPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare Function kvtVPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare Function kvtSPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare Function kvtCPPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare Function kvtCVPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare Function kvtWPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare Function kvtJOULETHOMPSONPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare Function kvtDYNVISPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare Function kvtKINVISPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare Function kvtPRANDTLEPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare Function kvtKPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare Function kvtTHERMCONDPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare Function kvtXPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare Function kvtTPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare Function kvtUPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare Function kvtVPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare Function kvtHPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare Function kvtCPPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare Function kvtCVPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare Function kvtWPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare Function kvtJOULETHOMPSONPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare Function kvtDYNVISPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare Function kvtKINVISPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare Function kvtPRANDTLEPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare Function kvtKPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare Function kvtTHERMCONDPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare Function kvtXPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare Function kvtPHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtTHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtVHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtUHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtCPHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtCVHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtWHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtJOULETHOMPSONHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtTHERMCONDHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtDYNVISHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtPRANDTLEHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtKINVISHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtKHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtXHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtPTHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double, ByRef p As Double, ByRef T As Double) As Double
Public Declare Function kvtTEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtVEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtUEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtHEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtSEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtCPEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtCVEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtWEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtTHERMCONDEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtKINVISEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtDYNVISEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtPRANDTLEEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtKEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtJOULETHOMPSONEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtXEXPANSIONPTPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtTEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtVEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtUEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtHEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtSEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtCPEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtCVEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtWEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtTHERMCONDEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtKINVISEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtDYNVISEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtPRANDTLEEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtKEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtJOULETHOMPSONEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtXEXPANSIONPTXPEFF Lib "kvtcore6.dll" (ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Double
Public Declare Function kvtVMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtUMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtSMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtHMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtCPMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtCVMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtWMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtTHERMCONDMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtDYNVISMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtPRANDTLEMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtKINVISMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtKMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtJOULETHOMPSONMSPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtVSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtVSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtUSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtUSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtSSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtSSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtHSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtHSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtCPSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtCPSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtCVSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtCVSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtCVDPSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtCVDPSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtWSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtWSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtJOULETHOMPSONSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtJOULETHOMPSONSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtTHERMCONDSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtTHERMCONDSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtDYNVISSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtDYNVISSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtPRANDTLESST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtPRANDTLESWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtKINVISSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtKINVISSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtKSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtKSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtRST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtVUSHCVWDERPTSWT Lib "kvtcore6.dll" (ByVal T As Double, ByRef v As Double, ByRef u As Double, ByRef s As Double, ByRef h As Double, ByRef cv As Double, ByRef w As Double, ByRef dvdpT As Double, ByRef dudpT As Double, ByRef dsdpT As Double, ByRef dhdpT As Double, ByRef dvdTp As Double, ByRef dudTp As Double, ByRef dsdTp As Double, ByRef cp As Double) As Double
Public Declare Function kvtVUSHCVWDERPTSST Lib "kvtcore6.dll" (ByVal T As Double, ByRef v As Double, ByRef u As Double, ByRef s As Double, ByRef h As Double, ByRef cv As Double, ByRef w As Double, ByRef dvdpT As Double, ByRef dudpT As Double, ByRef dsdpT As Double, ByRef dhdpT As Double, ByRef dvdTp As Double, ByRef dudTp As Double, ByRef dsdTp As Double, ByRef cp As Double) As Double
Public Declare Function kvtVSTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtUSTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtSSTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtHSTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtCPSTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtCVSTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtWSTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtJOULETHOMPSONSTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtTHERMCONDSTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtDYNVISSTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtPRANDTLESTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtKINVISSTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtKSTX Lib "kvtcore6.dll" (ByVal T As Double, ByVal x As Double) As Double
Public Declare Function kvtXSTV Lib "kvtcore6.dll" (ByVal T As Double, ByVal v As Double) As Double
Public Declare Function kvtXSTU Lib "kvtcore6.dll" (ByVal T As Double, ByVal u As Double) As Double
Public Declare Function kvtXSTS Lib "kvtcore6.dll" (ByVal T As Double, ByVal s As Double) As Double
Public Declare Function kvtXSTH Lib "kvtcore6.dll" (ByVal T As Double, ByVal h As Double) As Double
Public Declare Function kvtXSTCP Lib "kvtcore6.dll" (ByVal T As Double, ByVal cp As Double) As Double
Public Declare Function kvtXSTCV Lib "kvtcore6.dll" (ByVal T As Double, ByVal cv As Double) As Double
Public Declare Function kvtXSTW Lib "kvtcore6.dll" (ByVal T As Double, ByVal w As Double) As Double
Public Declare Function kvtXSTJOULETHOMPSON Lib "kvtcore6.dll" (ByVal T As Double, ByVal muJT As Double) As Double
Public Declare Function kvtXSTTHERMCOND Lib "kvtcore6.dll" (ByVal T As Double, ByVal lambda As Double) As Double
Public Declare Function kvtXSTDYNVIS Lib "kvtcore6.dll" (ByVal T As Double, ByVal eta As Double) As Double
Public Declare Function kvtXSTKINVIS Lib "kvtcore6.dll" (ByVal T As Double, ByVal nu As Double) As Double
Public Declare Function kvtXSTPRANDTLE Lib "kvtcore6.dll" (ByVal T As Double, ByVal Pr As Double) As Double
Public Declare Function kvtXSTK Lib "kvtcore6.dll" (ByVal T As Double, ByVal k As Double) As Double
Public Declare Function kvtROUGHRSST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtROUGHRSWT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtROUGHHSSS Lib "kvtcore6.dll" (ByVal s As Double) As Double
Public Declare Function kvtROUGHHSWS Lib "kvtcore6.dll" (ByVal s As Double) As Double
Public Declare Function kvtWATERSTATEAREAPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Long
Public Declare Function kvtWATERSTATEAREAPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Long
Public Declare Function kvtWATERSTATEAREAHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Long
Public Declare Function kvtTSHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtTXSHS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double, ByRef T As Double, ByRef x As Double) As Double
Public Declare Function kvtWATERSTATEAREA Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Long
Public Declare Function kvtWATERSTATEAREA2 Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Long
Public Declare Function kvtPHASESTATEPT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Long
Public Declare Function kvtPST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtDPDTST Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtTSP Lib "kvtcore6.dll" (ByVal p As Double) As Double
Public Declare Function kvtP23T Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtT23P Lib "kvtcore6.dll" (ByVal p As Double) As Double
Public Declare Function kvtTB23HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtPB23HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtHB13S Lib "kvtcore6.dll" (ByVal s As Double) As Double
Public Declare Function kvtSURFTENT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtTHERMCONDRT Lib "kvtcore6.dll" (ByVal rho As Double, ByVal T As Double) As Double
Public Declare Function kvtDYNVISRT Lib "kvtcore6.dll" (ByVal rho As Double, ByVal T As Double) As Double
Public Declare Function kvtPSUBT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtPMELTIT Lib "kvtcore6.dll" (ByVal T As Double) As Double
Public Declare Function kvtV1PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtU1PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtS1PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtH1PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtCP1PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtCV1PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtW1PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtJOULETHOMPSON1PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtVUSHCVWDERPT1PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByRef v As Double, ByRef u As Double, ByRef s As Double, ByRef h As Double, ByRef cv As Double, ByRef w As Double, ByRef dvdpT As Double, ByRef dudpT As Double, ByRef dsdpT As Double, ByRef dhdpT As Double, ByRef dvdTp As Double, ByRef dudTp As Double, ByRef dsdTp As Double, ByRef cp As Double) As Double
Public Declare Function kvtV2PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtU2PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtS2PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtH2PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtCP2PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtCV2PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtW2PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtJOULETHOMPSON2PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtVUSHCVWDERPT2PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByRef v As Double, ByRef u As Double, ByRef s As Double, ByRef h As Double, ByRef cv As Double, ByRef w As Double, ByRef dvdpT As Double, ByRef dudpT As Double, ByRef dsdpT As Double, ByRef dhdpT As Double, ByRef dvdTp As Double, ByRef dudTp As Double, ByRef dsdTp As Double, ByRef cp As Double) As Double
Public Declare Function kvtT1PH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare Function kvtT1PS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare Function kvtP1HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtT1HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtPT1HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double, ByRef p As Double, ByRef T As Double) As Double
Public Declare Function kvtPT1RH Lib "kvtcore6.dll" (ByVal rho As Double, ByVal h As Double, ByRef p As Double, ByRef T As Double) As Double
Public Declare Function kvtT2APH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare Function kvtT2APS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare Function kvtT2BPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare Function kvtT2BPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare Function kvtT2CPH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare Function kvtT2CPS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare Function kvtT2PH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare Function kvtT2PS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare Function kvtP2B2CH Lib "kvtcore6.dll" (ByVal h As Double) As Double
Public Declare Function kvtH2B2CP Lib "kvtcore6.dll" (ByVal p As Double) As Double
Public Declare Function kvtP2HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtT2HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtPT2HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double, ByRef p As Double, ByRef T As Double) As Double
Public Declare Function kvtPT2RH Lib "kvtcore6.dll" (ByVal rho As Double, ByVal h As Double, ByRef p As Double, ByRef T As Double) As Double
Public Declare Function kvtP3RT Lib "kvtcore6.dll" (ByVal rho As Double, ByVal T As Double) As Double
Public Declare Function kvtR3PTR0 Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByVal rhoStart As Double) As Double
Public Declare Function kvtR3PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtU3RT Lib "kvtcore6.dll" (ByVal rho As Double, ByVal T As Double) As Double
Public Declare Function kvtS3RT Lib "kvtcore6.dll" (ByVal rho As Double, ByVal T As Double) As Double
Public Declare Function kvtH3RT Lib "kvtcore6.dll" (ByVal rho As Double, ByVal T As Double) As Double
Public Declare Function kvtCP3RT Lib "kvtcore6.dll" (ByVal rho As Double, ByVal T As Double) As Double
Public Declare Function kvtCV3RT Lib "kvtcore6.dll" (ByVal rho As Double, ByVal T As Double) As Double
Public Declare Function kvtW3RT Lib "kvtcore6.dll" (ByVal rho As Double, ByVal T As Double) As Double
Public Declare Function kvtVUSHCVWDERPT3RT Lib "kvtcore6.dll" (ByVal rho As Double, ByVal T As Double, ByRef v As Double, ByRef u As Double, ByRef s As Double, ByRef h As Double, ByRef cv As Double, ByRef w As Double, ByRef dvdpT As Double, ByRef dudpT As Double, ByRef dsdpT As Double, ByRef dhdpT As Double, ByRef dvdTp As Double, ByRef dudTp As Double, ByRef dsdTp As Double, ByRef cp As Double) As Double
Public Declare Function kvtV3PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtU3PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtS3PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtH3PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtCP3PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtCV3PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtW3PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtJOULETHOMPSON3RT Lib "kvtcore6.dll" (ByVal rho As Double, ByVal T As Double) As Double
Public Declare Function kvtJOULETHOMPSON3PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtVUSHCVWDERPT3PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByRef v As Double, ByRef u As Double, ByRef s As Double, ByRef h As Double, ByRef cv As Double, ByRef w As Double, ByRef dvdpT As Double, ByRef dudpT As Double, ByRef dsdpT As Double, ByRef dhdpT As Double, ByRef dvdTp As Double, ByRef dudTp As Double, ByRef dsdTp As Double, ByRef cp As Double) As Double
Public Declare Function kvtT3PH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare Function kvtT3PS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare Function kvtP3HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtT3HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtV3HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtV3PH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare Function kvtV3PS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare Function kvtRT3HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double, ByRef rho As Double, ByRef T As Double) As Double
Public Declare Function kvtPT3HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double, ByRef p As Double, ByRef T As Double) As Double
Public Declare Function kvtT3RH Lib "kvtcore6.dll" (ByVal rho As Double, ByVal h As Double) As Double
Public Declare Function kvtV5PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtU5PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtS5PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtH5PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtCP5PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtCV5PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtW5PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtJOULETHOMPSON5PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtVUSHCVWDERPT5PT Lib "kvtcore6.dll" (ByVal p As Double, ByVal T As Double, ByRef v As Double, ByRef u As Double, ByRef s As Double, ByRef h As Double, ByRef cv As Double, ByRef w As Double, ByRef dvdpT As Double, ByRef dudpT As Double, ByRef dsdpT As Double, ByRef dhdpT As Double, ByRef dvdTp As Double, ByRef dudTp As Double, ByRef dsdTp As Double, ByRef cp As Double) As Double
Public Declare Function kvtT5PH Lib "kvtcore6.dll" (ByVal p As Double, ByVal h As Double) As Double
Public Declare Function kvtT5PS Lib "kvtcore6.dll" (ByVal p As Double, ByVal s As Double) As Double
Public Declare Function kvtP5HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtT5HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double) As Double
Public Declare Function kvtPT5HS Lib "kvtcore6.dll" (ByVal h As Double, ByVal s As Double, ByRef p As Double, ByRef T As Double) As Double
Public Declare Function kvtPT5RH Lib "kvtcore6.dll" (ByVal rho As Double, ByVal h As Double, ByRef p As Double, ByRef T As Double) As Double
Public Declare Function kvtSHOWKVTHELP Lib "kvtcore6.dll" (ByVal window As Long) As Double
Public Declare Function kvtSHOWABOUT Lib "kvtcore6.dll" (ByVal window As Long) As Double
Public Declare Function kvtgSETCALCDISSMODE Lib "kvtcore6.dll" (ByVal mode_ As Long) As Long
Public Declare Function kvtgGETCALCDISSMODE Lib "kvtcore6.dll" () As Long
Public Declare Function kvtgCPIDT Lib "kvtcore6.dll" (ByVal id As Long, ByVal T As Double) As Double
Public Declare Function kvtgCPGST Lib "kvtcore6.dll" (ByVal gs As String, ByVal T As Double) As Double
Public Declare Function kvtgHIDT Lib "kvtcore6.dll" (ByVal id As Long, ByVal T As Double) As Double
Public Declare Function kvtgHGST Lib "kvtcore6.dll" (ByVal gs As String, ByVal T As Double) As Double
Public Declare Function kvtgSIDT Lib "kvtcore6.dll" (ByVal id As Long, ByVal T As Double) As Double
Public Declare Function kvtgSGST Lib "kvtcore6.dll" (ByVal gs As String, ByVal T As Double) As Double
Public Declare Function kvtgSIDPT Lib "kvtcore6.dll" (ByVal id As Long, ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtgSGSPT Lib "kvtcore6.dll" (ByVal gs As String, ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtgCVIDT Lib "kvtcore6.dll" (ByVal id As Long, ByVal T As Double) As Double
Public Declare Function kvtgCVGST Lib "kvtcore6.dll" (ByVal gs As String, ByVal T As Double) As Double
Public Declare Function kvtgUIDT Lib "kvtcore6.dll" (ByVal id As Long, ByVal T As Double) As Double
Public Declare Function kvtgUGST Lib "kvtcore6.dll" (ByVal gs As String, ByVal T As Double) As Double
Public Declare Function kvtgMMID Lib "kvtcore6.dll" (ByVal id As Long) As Double
Public Declare Function kvtgMMGS Lib "kvtcore6.dll" (ByVal gs As String) As Double
Public Declare Function kvtgGCID Lib "kvtcore6.dll" (ByVal id As Long) As Double
Public Declare Function kvtgGCGS Lib "kvtcore6.dll" (ByVal gs As String) As Double
Public Declare Function kvtgVIDT Lib "kvtcore6.dll" (ByVal id As Long, ByVal T As Double) As Double
Public Declare Function kvtgVGST Lib "kvtcore6.dll" (ByVal gs As String, ByVal T As Double) As Double
Public Declare Function kvtgVIDPT Lib "kvtcore6.dll" (ByVal id As Long, ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtgVGSPT Lib "kvtcore6.dll" (ByVal gs As String, ByVal p As Double, ByVal T As Double) As Double
Public Declare Function kvtgTIDH Lib "kvtcore6.dll" (ByVal id As Long, ByVal h As Double) As Double
Public Declare Function kvtgTGSH Lib "kvtcore6.dll" (ByVal gs As String, ByVal h As Double) As Double
Public Declare Function kvtgTIDS Lib "kvtcore6.dll" (ByVal id As Long, ByVal s As Double) As Double
Public Declare Function kvtgTGSS Lib "kvtcore6.dll" (ByVal gs As String, ByVal s As Double) As Double
Public Declare Function kvtgTIDPS Lib "kvtcore6.dll" (ByVal id As Long, ByVal p As Double, ByVal s As Double) As Double
Public Declare Function kvtgTGSPS Lib "kvtcore6.dll" (ByVal gs As String, ByVal p As Double, ByVal s As Double) As Double
Public Declare Function kvtgPIDTS Lib "kvtcore6.dll" (ByVal id As Long, ByVal T As Double, ByVal s As Double) As Double
Public Declare Function kvtgPGSTS Lib "kvtcore6.dll" (ByVal gs As String, ByVal T As Double, ByVal s As Double) As Double
Public Declare Function kvtgVFGSGS Lib "kvtcore6.dll" (ByVal mixture As String, ByVal component As String) As Double
Public Declare Function kvtgMFGSGS Lib "kvtcore6.dll" (ByVal mixture As String, ByVal component As String) As Double
Public Declare Function kvtgVFIDID Lib "kvtcore6.dll" (ByVal mixture As Long, ByVal component As Long) As Double
Public Declare Function kvtgMFIDID Lib "kvtcore6.dll" (ByVal mixture As Long, ByVal component As Long) As Double
Public Declare Function kvtgIDNAME Lib "kvtcore6.dll" (ByVal name_ As String) As Long
Public Declare Function kvtgNEWID Lib "kvtcore6.dll" () As Long
Public Declare Function kvtgNEWIDNAME Lib "kvtcore6.dll" (ByVal name_ As String) As Long
Public Declare Function kvtgNEWIDGS Lib "kvtcore6.dll" (ByVal gs As String) As Long
Public Declare Function kvtgDELETEGASID Lib "kvtcore6.dll" (ByVal id As Long) As Long
Public Declare Function kvtgDELETEGASES Lib "kvtcore6.dll" () As Long
Public Declare Function kvtgGASESCOUNT Lib "kvtcore6.dll" () As Long
Public Declare Function kvtgADDGASM Lib "kvtcore6.dll" (ByVal mixture As Long, ByVal component As Long, ByVal mass As Double) As Long
Public Declare Function kvtgADDGASV Lib "kvtcore6.dll" (ByVal mixture As Long, ByVal component As Long, ByVal parts As Double) As Long
Public Declare Function kvtgGSID Lib "kvtcore6.dll" (ByVal id As Long) As Long
Public Declare Function kvtgGSGS Lib "kvtcore6.dll" (ByVal gs As String) As Long
Public Declare Function kvtgGETGASDATA Lib "kvtcore6.dll" (ByVal a1 As Double, ByVal a2 As Double, ByVal a3 As Double, ByVal a4 As Double, ByVal a5 As Double, ByVal a6 As Double, ByVal a7 As Double, ByVal a8 As Double, ByVal a9 As Double, ByVal a10 As Double, ByVal a11 As Double, ByVal a12 As Double) As Double
Public Declare Function kvtSETTOLERANCE Lib "kvtcore6.dll" (ByVal tolerance As Double) As Double
Public Declare Function kvtGETTOLERANCE Lib "kvtcore6.dll" () As Double
Public Declare Function kvtSETTOLERANCEMODE Lib "kvtcore6.dll" (ByVal mode_ As Long) As Long
Public Declare Function kvtGETTOLERANCEMODE Lib "kvtcore6.dll" () As Long
Public Declare Function kvtSETCHECKRANGEMODE Lib "kvtcore6.dll" (ByVal mode_ As Long) As Long
Public Declare Function kvtGETCHECKRANGEMODE Lib "kvtcore6.dll" () As Long
Public Declare Function kvtSETLASTERROR Lib "kvtcore6.dll" (ByVal code As Long) As Long
Public Declare Function kvtGETLASTERROR Lib "kvtcore6.dll" () As Long
Public Declare Function kvtGETLASTERRORDESCRIPTION Lib "kvtcore6.dll" () As Long
Public Declare Function kvtSETDELTATS Lib "kvtcore6.dll" (ByVal ignored As Double) As Double
Public Declare Function kvtGETDELTATS Lib "kvtcore6.dll" () As Double
Public Declare Function kvtSETMAXITERATION Lib "kvtcore6.dll" (ByVal maxIteration As Long) As Long
Public Declare Function kvtGETMAXITERATION Lib "kvtcore6.dll" () As Long
Public Declare Function kvtSETDELTAPRESSURE Lib "kvtcore6.dll" (ByVal ignored As Double) As Double
Public Declare Function kvtGETDELTAPRESSURE Lib "kvtcore6.dll" () As Double
Public Declare Function kvtSETINITWATERDENSITY Lib "kvtcore6.dll" (ByVal ignored As Double) As Double
Public Declare Function kvtGETINITWATERDENSITY Lib "kvtcore6.dll" () As Double
Public Declare Function kvtSETINITSTEAMDENSITY Lib "kvtcore6.dll" (ByVal ignored As Double) As Double
Public Declare Function kvtGETINITSTEAMDENSITY Lib "kvtcore6.dll" () As Double
Public Declare Function kvtGETKVTVERSION Lib "kvtcore6.dll" () As Double
Public Declare Function kvtGETLASTERRORDESCRIPTIONW Lib "kvtcore6.dll" () As Long
Public Declare Function kvtGETABSOLUTEGASCONSTANT Lib "kvtcore6.dll" () As Double

Private Declare Function kvtLoadLibrary Lib "kernel32" Alias "LoadLibraryA" (ByVal path As String) As Long
Private Declare Function kvtModuleHandle Lib "kernel32" Alias "GetModuleHandleA" (ByVal module As String) As Long
Private Declare Function kvtLengthA Lib "kernel32" Alias "lstrlenA" (ByVal p As Long) As Long
Private Declare Function kvtCopyA Lib "kernel32" Alias "lstrcpynA" (ByVal target As String, ByVal p As Long, ByVal n As Long) As Long
Private Declare Function kvtLengthW Lib "kernel32" Alias "lstrlenW" (ByVal p As Long) As Long
Private Declare Sub kvtCopyMemory Lib "kernel32" Alias "RtlMoveMemory" (ByVal target As Long, ByVal source As Long, ByVal bytes As Long)
#End If

#If VBA7 Then
' A text of the DLL in the host's ANSI code page; Null for a null pointer.
Private Function kvtTextA(ByVal p As LongPtr) As Variant
    Dim n As Long, s As String
    If p = 0 Then kvtTextA = Null: Exit Function
    n = kvtLengthA(p)
    s = String$(n + 1, vbNullChar)
    kvtCopyA s, p, n + 1
    kvtTextA = Left$(s, n)
End Function

' A UTF-16 text of the DLL; Null for a null pointer.
Private Function kvtTextW(ByVal p As LongPtr) As Variant
    Dim n As Long, s As String
    If p = 0 Then kvtTextW = Null: Exit Function
    n = kvtLengthW(p)
    s = String$(n, vbNullChar)
    If n > 0 Then kvtCopyMemory StrPtr(s), p, 2 * n
    kvtTextW = s
End Function
#Else
' A text of the DLL in the host's ANSI code page; Null for a null pointer.
Private Function kvtTextA(ByVal p As Long) As Variant
    Dim n As Long, s As String
    If p = 0 Then kvtTextA = Null: Exit Function
    n = kvtLengthA(p)
    s = String$(n + 1, vbNullChar)
    kvtCopyA s, p, n + 1
    kvtTextA = Left$(s, n)
End Function

' A UTF-16 text of the DLL; Null for a null pointer.
Private Function kvtTextW(ByVal p As Long) As Variant
    Dim n As Long, s As String
    If p = 0 Then kvtTextW = Null: Exit Function
    n = kvtLengthW(p)
    s = String$(n, vbNullChar)
    If n > 0 Then kvtCopyMemory StrPtr(s), p, 2 * n
    kvtTextW = s
End Function
#End If

' Loads kvtcore6.dll from the workbook's folder, or its x64 or x86 subfolder for
' the Office in use, unless it is loaded already; the Declare lines then find
' it by name. Without a workbook folder Windows searches the path as usual.
Public Sub kvtLoad()
    Dim folder As String
    If kvtLoadTried Then Exit Sub
    kvtLoadTried = True
    If kvtModuleHandle("kvtcore6.dll") <> 0 Then Exit Sub
    folder = ThisWorkbook.Path
    If folder = "" Then Exit Sub
    If kvtLoadLibrary(folder & "\kvtcore6.dll") <> 0 Then Exit Sub
#If Win64 Then
    kvtLoadLibrary folder & "\x64\kvtcore6.dll"
#Else
    kvtLoadLibrary folder & "\x86\kvtcore6.dll"
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

' ---- Worksheet functions, one per export ----

' kvtVUSHCVWDERPTPT(p [Pa], T [K]): the 14 outputs as a row: v, u, s, h, cv, w, dvdpT, dudpT, dsdpT, dhdpT, dvdTp, dudTp, dsdTp, cp
Public Function kvt_VUSHCVWDERPTPT(ByVal p As Double, ByVal T As Double) As Variant
    Dim o(1 To 14) As Double
    kvtLoad
    kvt_VUSHCVWDERPTPT = kvtOutputs(kvtVUSHCVWDERPTPT(p, T, o(1), o(2), o(3), o(4), o(5), o(6), o(7), o(8), o(9), o(10), o(11), o(12), o(13), o(14)), o)
End Function

' kvtVPT(p [Pa], T [K]): specific volume [m3/kg]
Public Function kvt_VPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_VPT = kvtResult(kvtVPT(p, T))
End Function

' kvtUPT(p [Pa], T [K]): internal energy [J/kg]
Public Function kvt_UPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_UPT = kvtResult(kvtUPT(p, T))
End Function

' kvtSPT(p [Pa], T [K]): entropy [J/(kg K)]
Public Function kvt_SPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_SPT = kvtResult(kvtSPT(p, T))
End Function

' kvtHPT(p [Pa], T [K]): enthalpy [J/kg]
Public Function kvt_HPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_HPT = kvtResult(kvtHPT(p, T))
End Function

' kvtCPPT(p [Pa], T [K]): cp [J/(kg K)]
Public Function kvt_CPPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_CPPT = kvtResult(kvtCPPT(p, T))
End Function

' kvtCVPT(p [Pa], T [K]): cv [J/(kg K)]
Public Function kvt_CVPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_CVPT = kvtResult(kvtCVPT(p, T))
End Function

' kvtWPT(p [Pa], T [K]): speed of sound [m/s]
Public Function kvt_WPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_WPT = kvtResult(kvtWPT(p, T))
End Function

' kvtJOULETHOMPSONPT(p [Pa], T [K]): Joule-Thomson coefficient [K/Pa]
Public Function kvt_JOULETHOMPSONPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_JOULETHOMPSONPT = kvtResult(kvtJOULETHOMPSONPT(p, T))
End Function

' kvtTHERMCONDPT(p [Pa], T [K]): thermal conductivity [W/(m K)]
Public Function kvt_THERMCONDPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_THERMCONDPT = kvtResult(kvtTHERMCONDPT(p, T))
End Function

' kvtDYNVISPT(p [Pa], T [K]): dynamic viscosity [Pa s]
Public Function kvt_DYNVISPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_DYNVISPT = kvtResult(kvtDYNVISPT(p, T))
End Function

' kvtPRANDTLEPT(p [Pa], T [K]): Prandtl number [-]
Public Function kvt_PRANDTLEPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_PRANDTLEPT = kvtResult(kvtPRANDTLEPT(p, T))
End Function

' kvtKINVISPT(p [Pa], T [K]): kinematic viscosity [m2/s]
Public Function kvt_KINVISPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_KINVISPT = kvtResult(kvtKINVISPT(p, T))
End Function

' kvtKPT(p [Pa], T [K]): isentropic exponent [-]
Public Function kvt_KPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_KPT = kvtResult(kvtKPT(p, T))
End Function

' kvtVPTX(p [Pa], T [K], x [-]): specific volume [m3/kg]
Public Function kvt_VPTX(ByVal p As Double, ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_VPTX = kvtResult(kvtVPTX(p, T, x))
End Function

' kvtUPTX(p [Pa], T [K], x [-]): internal energy [J/kg]
Public Function kvt_UPTX(ByVal p As Double, ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_UPTX = kvtResult(kvtUPTX(p, T, x))
End Function

' kvtSPTX(p [Pa], T [K], x [-]): entropy [J/(kg K)]
Public Function kvt_SPTX(ByVal p As Double, ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_SPTX = kvtResult(kvtSPTX(p, T, x))
End Function

' kvtHPTX(p [Pa], T [K], x [-]): enthalpy [J/kg]
Public Function kvt_HPTX(ByVal p As Double, ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_HPTX = kvtResult(kvtHPTX(p, T, x))
End Function

' kvtCPPTX(p [Pa], T [K], x [-]): cp [J/(kg K)]
Public Function kvt_CPPTX(ByVal p As Double, ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_CPPTX = kvtResult(kvtCPPTX(p, T, x))
End Function

' kvtCVPTX(p [Pa], T [K], x [-]): cv [J/(kg K)]
Public Function kvt_CVPTX(ByVal p As Double, ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_CVPTX = kvtResult(kvtCVPTX(p, T, x))
End Function

' kvtWPTX(p [Pa], T [K], x [-]): speed of sound [m/s]
Public Function kvt_WPTX(ByVal p As Double, ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_WPTX = kvtResult(kvtWPTX(p, T, x))
End Function

' kvtJOULETHOMPSONPTX(p [Pa], T [K], x [-]): Joule-Thomson coefficient [K/Pa]
Public Function kvt_JOULETHOMPSONPTX(ByVal p As Double, ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_JOULETHOMPSONPTX = kvtResult(kvtJOULETHOMPSONPTX(p, T, x))
End Function

' kvtTHERMCONDPTX(p [Pa], T [K], x [-]): thermal conductivity [W/(m K)]
Public Function kvt_THERMCONDPTX(ByVal p As Double, ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_THERMCONDPTX = kvtResult(kvtTHERMCONDPTX(p, T, x))
End Function

' kvtDYNVISPTX(p [Pa], T [K], x [-]): dynamic viscosity [Pa s]
Public Function kvt_DYNVISPTX(ByVal p As Double, ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_DYNVISPTX = kvtResult(kvtDYNVISPTX(p, T, x))
End Function

' kvtPRANDTLEPTX(p [Pa], T [K], x [-]): Prandtl number [-]
Public Function kvt_PRANDTLEPTX(ByVal p As Double, ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_PRANDTLEPTX = kvtResult(kvtPRANDTLEPTX(p, T, x))
End Function

' kvtKINVISPTX(p [Pa], T [K], x [-]): kinematic viscosity [m2/s]
Public Function kvt_KINVISPTX(ByVal p As Double, ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_KINVISPTX = kvtResult(kvtKINVISPTX(p, T, x))
End Function

' kvtKPTX(p [Pa], T [K], x [-]): isentropic exponent [-]
Public Function kvt_KPTX(ByVal p As Double, ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_KPTX = kvtResult(kvtKPTX(p, T, x))
End Function

' kvtTPH(p [Pa], h [J/kg]): temperature [K]
Public Function kvt_TPH(ByVal p As Double, ByVal h As Double) As Variant
    kvtLoad
    kvt_TPH = kvtResult(kvtTPH(p, h))
End Function

' kvtUPH(p [Pa], h [J/kg]): internal energy [J/kg]
Public Function kvt_UPH(ByVal p As Double, ByVal h As Double) As Variant
    kvtLoad
    kvt_UPH = kvtResult(kvtUPH(p, h))
End Function

' kvtVPH(p [Pa], h [J/kg]): specific volume [m3/kg]
Public Function kvt_VPH(ByVal p As Double, ByVal h As Double) As Variant
    kvtLoad
    kvt_VPH = kvtResult(kvtVPH(p, h))
End Function

' kvtSPH(p [Pa], h [J/kg]): entropy [J/(kg K)]
Public Function kvt_SPH(ByVal p As Double, ByVal h As Double) As Variant
    kvtLoad
    kvt_SPH = kvtResult(kvtSPH(p, h))
End Function

' kvtCPPH(p [Pa], h [J/kg]): cp [J/(kg K)]
Public Function kvt_CPPH(ByVal p As Double, ByVal h As Double) As Variant
    kvtLoad
    kvt_CPPH = kvtResult(kvtCPPH(p, h))
End Function

' kvtCVPH(p [Pa], h [J/kg]): cv [J/(kg K)]
Public Function kvt_CVPH(ByVal p As Double, ByVal h As Double) As Variant
    kvtLoad
    kvt_CVPH = kvtResult(kvtCVPH(p, h))
End Function

' kvtWPH(p [Pa], h [J/kg]): speed of sound [m/s]
Public Function kvt_WPH(ByVal p As Double, ByVal h As Double) As Variant
    kvtLoad
    kvt_WPH = kvtResult(kvtWPH(p, h))
End Function

' kvtJOULETHOMPSONPH(p [Pa], h [J/kg]): Joule-Thomson coefficient [K/Pa]
Public Function kvt_JOULETHOMPSONPH(ByVal p As Double, ByVal h As Double) As Variant
    kvtLoad
    kvt_JOULETHOMPSONPH = kvtResult(kvtJOULETHOMPSONPH(p, h))
End Function

' kvtDYNVISPH(p [Pa], h [J/kg]): dynamic viscosity [Pa s]
Public Function kvt_DYNVISPH(ByVal p As Double, ByVal h As Double) As Variant
    kvtLoad
    kvt_DYNVISPH = kvtResult(kvtDYNVISPH(p, h))
End Function

' kvtKINVISPH(p [Pa], h [J/kg]): kinematic viscosity [m2/s]
Public Function kvt_KINVISPH(ByVal p As Double, ByVal h As Double) As Variant
    kvtLoad
    kvt_KINVISPH = kvtResult(kvtKINVISPH(p, h))
End Function

' kvtPRANDTLEPH(p [Pa], h [J/kg]): Prandtl number [-]
Public Function kvt_PRANDTLEPH(ByVal p As Double, ByVal h As Double) As Variant
    kvtLoad
    kvt_PRANDTLEPH = kvtResult(kvtPRANDTLEPH(p, h))
End Function

' kvtKPH(p [Pa], h [J/kg]): isentropic exponent [-]
Public Function kvt_KPH(ByVal p As Double, ByVal h As Double) As Variant
    kvtLoad
    kvt_KPH = kvtResult(kvtKPH(p, h))
End Function

' kvtTHERMCONDPH(p [Pa], h [J/kg]): thermal conductivity [W/(m K)]
Public Function kvt_THERMCONDPH(ByVal p As Double, ByVal h As Double) As Variant
    kvtLoad
    kvt_THERMCONDPH = kvtResult(kvtTHERMCONDPH(p, h))
End Function

' kvtXPH(p [Pa], h [J/kg]): dryness x [-]
Public Function kvt_XPH(ByVal p As Double, ByVal h As Double) As Variant
    kvtLoad
    kvt_XPH = kvtResult(kvtXPH(p, h))
End Function

' kvtTPS(p [Pa], s [J/(kg K)]): temperature [K]
Public Function kvt_TPS(ByVal p As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_TPS = kvtResult(kvtTPS(p, s))
End Function

' kvtUPS(p [Pa], s [J/(kg K)]): internal energy [J/kg]
Public Function kvt_UPS(ByVal p As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_UPS = kvtResult(kvtUPS(p, s))
End Function

' kvtVPS(p [Pa], s [J/(kg K)]): specific volume [m3/kg]
Public Function kvt_VPS(ByVal p As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_VPS = kvtResult(kvtVPS(p, s))
End Function

' kvtHPS(p [Pa], s [J/(kg K)]): enthalpy [J/kg]
Public Function kvt_HPS(ByVal p As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_HPS = kvtResult(kvtHPS(p, s))
End Function

' kvtCPPS(p [Pa], s [J/(kg K)]): cp [J/(kg K)]
Public Function kvt_CPPS(ByVal p As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_CPPS = kvtResult(kvtCPPS(p, s))
End Function

' kvtCVPS(p [Pa], s [J/(kg K)]): cv [J/(kg K)]
Public Function kvt_CVPS(ByVal p As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_CVPS = kvtResult(kvtCVPS(p, s))
End Function

' kvtWPS(p [Pa], s [J/(kg K)]): speed of sound [m/s]
Public Function kvt_WPS(ByVal p As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_WPS = kvtResult(kvtWPS(p, s))
End Function

' kvtJOULETHOMPSONPS(p [Pa], s [J/(kg K)]): Joule-Thomson coefficient [K/Pa]
Public Function kvt_JOULETHOMPSONPS(ByVal p As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_JOULETHOMPSONPS = kvtResult(kvtJOULETHOMPSONPS(p, s))
End Function

' kvtDYNVISPS(p [Pa], s [J/(kg K)]): dynamic viscosity [Pa s]
Public Function kvt_DYNVISPS(ByVal p As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_DYNVISPS = kvtResult(kvtDYNVISPS(p, s))
End Function

' kvtKINVISPS(p [Pa], s [J/(kg K)]): kinematic viscosity [m2/s]
Public Function kvt_KINVISPS(ByVal p As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_KINVISPS = kvtResult(kvtKINVISPS(p, s))
End Function

' kvtPRANDTLEPS(p [Pa], s [J/(kg K)]): Prandtl number [-]
Public Function kvt_PRANDTLEPS(ByVal p As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_PRANDTLEPS = kvtResult(kvtPRANDTLEPS(p, s))
End Function

' kvtKPS(p [Pa], s [J/(kg K)]): isentropic exponent [-]
Public Function kvt_KPS(ByVal p As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_KPS = kvtResult(kvtKPS(p, s))
End Function

' kvtTHERMCONDPS(p [Pa], s [J/(kg K)]): thermal conductivity [W/(m K)]
Public Function kvt_THERMCONDPS(ByVal p As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_THERMCONDPS = kvtResult(kvtTHERMCONDPS(p, s))
End Function

' kvtXPS(p [Pa], s [J/(kg K)]): dryness x [-]
Public Function kvt_XPS(ByVal p As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_XPS = kvtResult(kvtXPS(p, s))
End Function

' kvtPHS(h [J/kg], s [J/(kg K)]): pressure [Pa]
Public Function kvt_PHS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_PHS = kvtResult(kvtPHS(h, s))
End Function

' kvtTHS(h [J/kg], s [J/(kg K)]): temperature [K]
Public Function kvt_THS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_THS = kvtResult(kvtTHS(h, s))
End Function

' kvtVHS(h [J/kg], s [J/(kg K)]): specific volume [m3/kg]
Public Function kvt_VHS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_VHS = kvtResult(kvtVHS(h, s))
End Function

' kvtUHS(h [J/kg], s [J/(kg K)]): internal energy [J/kg]
Public Function kvt_UHS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_UHS = kvtResult(kvtUHS(h, s))
End Function

' kvtCPHS(h [J/kg], s [J/(kg K)]): cp [J/(kg K)]
Public Function kvt_CPHS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_CPHS = kvtResult(kvtCPHS(h, s))
End Function

' kvtCVHS(h [J/kg], s [J/(kg K)]): cv [J/(kg K)]
Public Function kvt_CVHS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_CVHS = kvtResult(kvtCVHS(h, s))
End Function

' kvtWHS(h [J/kg], s [J/(kg K)]): speed of sound [m/s]
Public Function kvt_WHS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_WHS = kvtResult(kvtWHS(h, s))
End Function

' kvtJOULETHOMPSONHS(h [J/kg], s [J/(kg K)]): Joule-Thomson coefficient [K/Pa]
Public Function kvt_JOULETHOMPSONHS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_JOULETHOMPSONHS = kvtResult(kvtJOULETHOMPSONHS(h, s))
End Function

' kvtTHERMCONDHS(h [J/kg], s [J/(kg K)]): thermal conductivity [W/(m K)]
Public Function kvt_THERMCONDHS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_THERMCONDHS = kvtResult(kvtTHERMCONDHS(h, s))
End Function

' kvtDYNVISHS(h [J/kg], s [J/(kg K)]): dynamic viscosity [Pa s]
Public Function kvt_DYNVISHS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_DYNVISHS = kvtResult(kvtDYNVISHS(h, s))
End Function

' kvtPRANDTLEHS(h [J/kg], s [J/(kg K)]): Prandtl number [-]
Public Function kvt_PRANDTLEHS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_PRANDTLEHS = kvtResult(kvtPRANDTLEHS(h, s))
End Function

' kvtKINVISHS(h [J/kg], s [J/(kg K)]): kinematic viscosity [m2/s]
Public Function kvt_KINVISHS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_KINVISHS = kvtResult(kvtKINVISHS(h, s))
End Function

' kvtKHS(h [J/kg], s [J/(kg K)]): isentropic exponent [-]
Public Function kvt_KHS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_KHS = kvtResult(kvtKHS(h, s))
End Function

' kvtXHS(h [J/kg], s [J/(kg K)]): dryness x [-]
Public Function kvt_XHS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_XHS = kvtResult(kvtXHS(h, s))
End Function

' kvtPTHS(h [J/kg], s [J/(kg K)]): 1, with the two outputs written as a row: p, T
Public Function kvt_PTHS(ByVal h As Double, ByVal s As Double) As Variant
    Dim o(1 To 2) As Double
    kvtLoad
    kvt_PTHS = kvtOutputs(kvtPTHS(h, s, o(1), o(2)), o)
End Function

' kvtTEXPANSIONPTPEFF(p1 [Pa], T1 [K], p2 [Pa], efficiency [-]): outlet temperature [K]
Public Function kvt_TEXPANSIONPTPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_TEXPANSIONPTPEFF = kvtResult(kvtTEXPANSIONPTPEFF(p1, T1, p2, efficiency))
End Function

' kvtVEXPANSIONPTPEFF(p1 [Pa], T1 [K], p2 [Pa], efficiency [-]): outlet specific volume [m3/kg]
Public Function kvt_VEXPANSIONPTPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_VEXPANSIONPTPEFF = kvtResult(kvtVEXPANSIONPTPEFF(p1, T1, p2, efficiency))
End Function

' kvtUEXPANSIONPTPEFF(p1 [Pa], T1 [K], p2 [Pa], efficiency [-]): outlet internal energy [J/kg]
Public Function kvt_UEXPANSIONPTPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_UEXPANSIONPTPEFF = kvtResult(kvtUEXPANSIONPTPEFF(p1, T1, p2, efficiency))
End Function

' kvtHEXPANSIONPTPEFF(p1 [Pa], T1 [K], p2 [Pa], efficiency [-]): outlet enthalpy [J/kg]
Public Function kvt_HEXPANSIONPTPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_HEXPANSIONPTPEFF = kvtResult(kvtHEXPANSIONPTPEFF(p1, T1, p2, efficiency))
End Function

' kvtSEXPANSIONPTPEFF(p1 [Pa], T1 [K], p2 [Pa], efficiency [-]): outlet entropy [J/(kg K)]
Public Function kvt_SEXPANSIONPTPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_SEXPANSIONPTPEFF = kvtResult(kvtSEXPANSIONPTPEFF(p1, T1, p2, efficiency))
End Function

' kvtCPEXPANSIONPTPEFF(p1 [Pa], T1 [K], p2 [Pa], efficiency [-]): outlet cp [J/(kg K)]
Public Function kvt_CPEXPANSIONPTPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_CPEXPANSIONPTPEFF = kvtResult(kvtCPEXPANSIONPTPEFF(p1, T1, p2, efficiency))
End Function

' kvtCVEXPANSIONPTPEFF(p1 [Pa], T1 [K], p2 [Pa], efficiency [-]): outlet cv [J/(kg K)]
Public Function kvt_CVEXPANSIONPTPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_CVEXPANSIONPTPEFF = kvtResult(kvtCVEXPANSIONPTPEFF(p1, T1, p2, efficiency))
End Function

' kvtWEXPANSIONPTPEFF(p1 [Pa], T1 [K], p2 [Pa], efficiency [-]): outlet speed of sound [m/s]
Public Function kvt_WEXPANSIONPTPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_WEXPANSIONPTPEFF = kvtResult(kvtWEXPANSIONPTPEFF(p1, T1, p2, efficiency))
End Function

' kvtTHERMCONDEXPANSIONPTPEFF(p1 [Pa], T1 [K], p2 [Pa], efficiency [-]): outlet thermal conductivity [W/(m K)]
Public Function kvt_THERMCONDEXPANSIONPTPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_THERMCONDEXPANSIONPTPEFF = kvtResult(kvtTHERMCONDEXPANSIONPTPEFF(p1, T1, p2, efficiency))
End Function

' kvtKINVISEXPANSIONPTPEFF(p1 [Pa], T1 [K], p2 [Pa], efficiency [-]): outlet kinematic viscosity [m2/s]
Public Function kvt_KINVISEXPANSIONPTPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_KINVISEXPANSIONPTPEFF = kvtResult(kvtKINVISEXPANSIONPTPEFF(p1, T1, p2, efficiency))
End Function

' kvtDYNVISEXPANSIONPTPEFF(p1 [Pa], T1 [K], p2 [Pa], efficiency [-]): outlet dynamic viscosity [Pa s]
Public Function kvt_DYNVISEXPANSIONPTPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_DYNVISEXPANSIONPTPEFF = kvtResult(kvtDYNVISEXPANSIONPTPEFF(p1, T1, p2, efficiency))
End Function

' kvtPRANDTLEEXPANSIONPTPEFF(p1 [Pa], T1 [K], p2 [Pa], efficiency [-]): outlet Prandtl number [-]
Public Function kvt_PRANDTLEEXPANSIONPTPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_PRANDTLEEXPANSIONPTPEFF = kvtResult(kvtPRANDTLEEXPANSIONPTPEFF(p1, T1, p2, efficiency))
End Function

' kvtKEXPANSIONPTPEFF(p1 [Pa], T1 [K], p2 [Pa], efficiency [-]): outlet isentropic exponent [-]
Public Function kvt_KEXPANSIONPTPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_KEXPANSIONPTPEFF = kvtResult(kvtKEXPANSIONPTPEFF(p1, T1, p2, efficiency))
End Function

' kvtJOULETHOMPSONEXPANSIONPTPEFF(p1 [Pa], T1 [K], p2 [Pa], efficiency [-]): outlet Joule-Thomson coefficient [K/Pa]
Public Function kvt_JOULETHOMPSONEXPANSIONPTPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_JOULETHOMPSONEXPANSIONPTPEFF = kvtResult(kvtJOULETHOMPSONEXPANSIONPTPEFF(p1, T1, p2, efficiency))
End Function

' kvtXEXPANSIONPTPEFF(p1 [Pa], T1 [K], p2 [Pa], efficiency [-]): outlet dryness x [-]
Public Function kvt_XEXPANSIONPTPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_XEXPANSIONPTPEFF = kvtResult(kvtXEXPANSIONPTPEFF(p1, T1, p2, efficiency))
End Function

' kvtTEXPANSIONPTXPEFF(p1 [Pa], T1 [K], x1 [-], p2 [Pa], efficiency [-]): outlet temperature [K]
Public Function kvt_TEXPANSIONPTXPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_TEXPANSIONPTXPEFF = kvtResult(kvtTEXPANSIONPTXPEFF(p1, T1, x1, p2, efficiency))
End Function

' kvtVEXPANSIONPTXPEFF(p1 [Pa], T1 [K], x1 [-], p2 [Pa], efficiency [-]): outlet specific volume [m3/kg]
Public Function kvt_VEXPANSIONPTXPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_VEXPANSIONPTXPEFF = kvtResult(kvtVEXPANSIONPTXPEFF(p1, T1, x1, p2, efficiency))
End Function

' kvtUEXPANSIONPTXPEFF(p1 [Pa], T1 [K], x1 [-], p2 [Pa], efficiency [-]): outlet internal energy [J/kg]
Public Function kvt_UEXPANSIONPTXPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_UEXPANSIONPTXPEFF = kvtResult(kvtUEXPANSIONPTXPEFF(p1, T1, x1, p2, efficiency))
End Function

' kvtHEXPANSIONPTXPEFF(p1 [Pa], T1 [K], x1 [-], p2 [Pa], efficiency [-]): outlet enthalpy [J/kg]
Public Function kvt_HEXPANSIONPTXPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_HEXPANSIONPTXPEFF = kvtResult(kvtHEXPANSIONPTXPEFF(p1, T1, x1, p2, efficiency))
End Function

' kvtSEXPANSIONPTXPEFF(p1 [Pa], T1 [K], x1 [-], p2 [Pa], efficiency [-]): outlet entropy [J/(kg K)]
Public Function kvt_SEXPANSIONPTXPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_SEXPANSIONPTXPEFF = kvtResult(kvtSEXPANSIONPTXPEFF(p1, T1, x1, p2, efficiency))
End Function

' kvtCPEXPANSIONPTXPEFF(p1 [Pa], T1 [K], x1 [-], p2 [Pa], efficiency [-]): outlet cp [J/(kg K)]
Public Function kvt_CPEXPANSIONPTXPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_CPEXPANSIONPTXPEFF = kvtResult(kvtCPEXPANSIONPTXPEFF(p1, T1, x1, p2, efficiency))
End Function

' kvtCVEXPANSIONPTXPEFF(p1 [Pa], T1 [K], x1 [-], p2 [Pa], efficiency [-]): outlet cv [J/(kg K)]
Public Function kvt_CVEXPANSIONPTXPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_CVEXPANSIONPTXPEFF = kvtResult(kvtCVEXPANSIONPTXPEFF(p1, T1, x1, p2, efficiency))
End Function

' kvtWEXPANSIONPTXPEFF(p1 [Pa], T1 [K], x1 [-], p2 [Pa], efficiency [-]): outlet speed of sound [m/s]
Public Function kvt_WEXPANSIONPTXPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_WEXPANSIONPTXPEFF = kvtResult(kvtWEXPANSIONPTXPEFF(p1, T1, x1, p2, efficiency))
End Function

' kvtTHERMCONDEXPANSIONPTXPEFF(p1 [Pa], T1 [K], x1 [-], p2 [Pa], efficiency [-]): outlet thermal conductivity [W/(m K)]
Public Function kvt_THERMCONDEXPANSIONPTXPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_THERMCONDEXPANSIONPTXPEFF = kvtResult(kvtTHERMCONDEXPANSIONPTXPEFF(p1, T1, x1, p2, efficiency))
End Function

' kvtKINVISEXPANSIONPTXPEFF(p1 [Pa], T1 [K], x1 [-], p2 [Pa], efficiency [-]): outlet kinematic viscosity [m2/s]
Public Function kvt_KINVISEXPANSIONPTXPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_KINVISEXPANSIONPTXPEFF = kvtResult(kvtKINVISEXPANSIONPTXPEFF(p1, T1, x1, p2, efficiency))
End Function

' kvtDYNVISEXPANSIONPTXPEFF(p1 [Pa], T1 [K], x1 [-], p2 [Pa], efficiency [-]): outlet dynamic viscosity [Pa s]
Public Function kvt_DYNVISEXPANSIONPTXPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_DYNVISEXPANSIONPTXPEFF = kvtResult(kvtDYNVISEXPANSIONPTXPEFF(p1, T1, x1, p2, efficiency))
End Function

' kvtPRANDTLEEXPANSIONPTXPEFF(p1 [Pa], T1 [K], x1 [-], p2 [Pa], efficiency [-]): outlet Prandtl number [-]
Public Function kvt_PRANDTLEEXPANSIONPTXPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_PRANDTLEEXPANSIONPTXPEFF = kvtResult(kvtPRANDTLEEXPANSIONPTXPEFF(p1, T1, x1, p2, efficiency))
End Function

' kvtKEXPANSIONPTXPEFF(p1 [Pa], T1 [K], x1 [-], p2 [Pa], efficiency [-]): outlet isentropic exponent [-]
Public Function kvt_KEXPANSIONPTXPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_KEXPANSIONPTXPEFF = kvtResult(kvtKEXPANSIONPTXPEFF(p1, T1, x1, p2, efficiency))
End Function

' kvtJOULETHOMPSONEXPANSIONPTXPEFF(p1 [Pa], T1 [K], x1 [-], p2 [Pa], efficiency [-]): outlet Joule-Thomson coefficient [K/Pa]
Public Function kvt_JOULETHOMPSONEXPANSIONPTXPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_JOULETHOMPSONEXPANSIONPTXPEFF = kvtResult(kvtJOULETHOMPSONEXPANSIONPTXPEFF(p1, T1, x1, p2, efficiency))
End Function

' kvtXEXPANSIONPTXPEFF(p1 [Pa], T1 [K], x1 [-], p2 [Pa], efficiency [-]): outlet dryness x [-]
Public Function kvt_XEXPANSIONPTXPEFF(ByVal p1 As Double, ByVal T1 As Double, ByVal x1 As Double, ByVal p2 As Double, ByVal efficiency As Double) As Variant
    kvtLoad
    kvt_XEXPANSIONPTXPEFF = kvtResult(kvtXEXPANSIONPTXPEFF(p1, T1, x1, p2, efficiency))
End Function

' kvtVMSPT(p [Pa], T [K]): specific volume [m3/kg] of metastable steam
Public Function kvt_VMSPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_VMSPT = kvtResult(kvtVMSPT(p, T))
End Function

' kvtUMSPT(p [Pa], T [K]): internal energy [J/kg] of metastable steam
Public Function kvt_UMSPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_UMSPT = kvtResult(kvtUMSPT(p, T))
End Function

' kvtSMSPT(p [Pa], T [K]): entropy [J/(kg K)] of metastable steam
Public Function kvt_SMSPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_SMSPT = kvtResult(kvtSMSPT(p, T))
End Function

' kvtHMSPT(p [Pa], T [K]): enthalpy [J/kg] of metastable steam
Public Function kvt_HMSPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_HMSPT = kvtResult(kvtHMSPT(p, T))
End Function

' kvtCPMSPT(p [Pa], T [K]): cp [J/(kg K)] of metastable steam
Public Function kvt_CPMSPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_CPMSPT = kvtResult(kvtCPMSPT(p, T))
End Function

' kvtCVMSPT(p [Pa], T [K]): cv [J/(kg K)] of metastable steam
Public Function kvt_CVMSPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_CVMSPT = kvtResult(kvtCVMSPT(p, T))
End Function

' kvtWMSPT(p [Pa], T [K]): speed of sound [m/s] of metastable steam
Public Function kvt_WMSPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_WMSPT = kvtResult(kvtWMSPT(p, T))
End Function

' kvtTHERMCONDMSPT(p [Pa], T [K]): thermal conductivity [W/(m K)] of metastable steam
Public Function kvt_THERMCONDMSPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_THERMCONDMSPT = kvtResult(kvtTHERMCONDMSPT(p, T))
End Function

' kvtDYNVISMSPT(p [Pa], T [K]): dynamic viscosity [Pa s] of metastable steam
Public Function kvt_DYNVISMSPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_DYNVISMSPT = kvtResult(kvtDYNVISMSPT(p, T))
End Function

' kvtPRANDTLEMSPT(p [Pa], T [K]): Prandtl number [-] of metastable steam
Public Function kvt_PRANDTLEMSPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_PRANDTLEMSPT = kvtResult(kvtPRANDTLEMSPT(p, T))
End Function

' kvtKINVISMSPT(p [Pa], T [K]): kinematic viscosity [m2/s] of metastable steam
Public Function kvt_KINVISMSPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_KINVISMSPT = kvtResult(kvtKINVISMSPT(p, T))
End Function

' kvtKMSPT(p [Pa], T [K]): isentropic exponent [-] of metastable steam
Public Function kvt_KMSPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_KMSPT = kvtResult(kvtKMSPT(p, T))
End Function

' kvtJOULETHOMPSONMSPT(p [Pa], T [K]): Joule-Thomson coefficient [K/Pa] of metastable steam
Public Function kvt_JOULETHOMPSONMSPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_JOULETHOMPSONMSPT = kvtResult(kvtJOULETHOMPSONMSPT(p, T))
End Function

' kvtVSST(T [K]): specific volume [m3/kg] of saturated steam
Public Function kvt_VSST(ByVal T As Double) As Variant
    kvtLoad
    kvt_VSST = kvtResult(kvtVSST(T))
End Function

' kvtVSWT(T [K]): specific volume [m3/kg] of saturated water
Public Function kvt_VSWT(ByVal T As Double) As Variant
    kvtLoad
    kvt_VSWT = kvtResult(kvtVSWT(T))
End Function

' kvtUSST(T [K]): internal energy [J/kg] of saturated steam
Public Function kvt_USST(ByVal T As Double) As Variant
    kvtLoad
    kvt_USST = kvtResult(kvtUSST(T))
End Function

' kvtUSWT(T [K]): internal energy [J/kg] of saturated water
Public Function kvt_USWT(ByVal T As Double) As Variant
    kvtLoad
    kvt_USWT = kvtResult(kvtUSWT(T))
End Function

' kvtSSST(T [K]): entropy [J/(kg K)] of saturated steam
Public Function kvt_SSST(ByVal T As Double) As Variant
    kvtLoad
    kvt_SSST = kvtResult(kvtSSST(T))
End Function

' kvtSSWT(T [K]): entropy [J/(kg K)] of saturated water
Public Function kvt_SSWT(ByVal T As Double) As Variant
    kvtLoad
    kvt_SSWT = kvtResult(kvtSSWT(T))
End Function

' kvtHSST(T [K]): enthalpy [J/kg] of saturated steam
Public Function kvt_HSST(ByVal T As Double) As Variant
    kvtLoad
    kvt_HSST = kvtResult(kvtHSST(T))
End Function

' kvtHSWT(T [K]): enthalpy [J/kg] of saturated water
Public Function kvt_HSWT(ByVal T As Double) As Variant
    kvtLoad
    kvt_HSWT = kvtResult(kvtHSWT(T))
End Function

' kvtCPSST(T [K]): cp [J/(kg K)] of saturated steam
Public Function kvt_CPSST(ByVal T As Double) As Variant
    kvtLoad
    kvt_CPSST = kvtResult(kvtCPSST(T))
End Function

' kvtCPSWT(T [K]): cp [J/(kg K)] of saturated water
Public Function kvt_CPSWT(ByVal T As Double) As Variant
    kvtLoad
    kvt_CPSWT = kvtResult(kvtCPSWT(T))
End Function

' kvtCVSST(T [K]): cv [J/(kg K)] of saturated steam
Public Function kvt_CVSST(ByVal T As Double) As Variant
    kvtLoad
    kvt_CVSST = kvtResult(kvtCVSST(T))
End Function

' kvtCVSWT(T [K]): cv [J/(kg K)] of saturated water
Public Function kvt_CVSWT(ByVal T As Double) As Variant
    kvtLoad
    kvt_CVSWT = kvtResult(kvtCVSWT(T))
End Function

' kvtCVDPSST(T [K]): two-phase cv [J/(kg K)] of saturated steam
Public Function kvt_CVDPSST(ByVal T As Double) As Variant
    kvtLoad
    kvt_CVDPSST = kvtResult(kvtCVDPSST(T))
End Function

' kvtCVDPSWT(T [K]): two-phase cv [J/(kg K)] of saturated water
Public Function kvt_CVDPSWT(ByVal T As Double) As Variant
    kvtLoad
    kvt_CVDPSWT = kvtResult(kvtCVDPSWT(T))
End Function

' kvtWSST(T [K]): speed of sound [m/s] of saturated steam
Public Function kvt_WSST(ByVal T As Double) As Variant
    kvtLoad
    kvt_WSST = kvtResult(kvtWSST(T))
End Function

' kvtWSWT(T [K]): speed of sound [m/s] of saturated water
Public Function kvt_WSWT(ByVal T As Double) As Variant
    kvtLoad
    kvt_WSWT = kvtResult(kvtWSWT(T))
End Function

' kvtJOULETHOMPSONSST(T [K]): Joule-Thomson coefficient [K/Pa] of saturated steam
Public Function kvt_JOULETHOMPSONSST(ByVal T As Double) As Variant
    kvtLoad
    kvt_JOULETHOMPSONSST = kvtResult(kvtJOULETHOMPSONSST(T))
End Function

' kvtJOULETHOMPSONSWT(T [K]): Joule-Thomson coefficient [K/Pa] of saturated water
Public Function kvt_JOULETHOMPSONSWT(ByVal T As Double) As Variant
    kvtLoad
    kvt_JOULETHOMPSONSWT = kvtResult(kvtJOULETHOMPSONSWT(T))
End Function

' kvtTHERMCONDSST(T [K]): thermal conductivity [W/(m K)] of saturated steam
Public Function kvt_THERMCONDSST(ByVal T As Double) As Variant
    kvtLoad
    kvt_THERMCONDSST = kvtResult(kvtTHERMCONDSST(T))
End Function

' kvtTHERMCONDSWT(T [K]): thermal conductivity [W/(m K)] of saturated water
Public Function kvt_THERMCONDSWT(ByVal T As Double) As Variant
    kvtLoad
    kvt_THERMCONDSWT = kvtResult(kvtTHERMCONDSWT(T))
End Function

' kvtDYNVISSST(T [K]): dynamic viscosity [Pa s] of saturated steam
Public Function kvt_DYNVISSST(ByVal T As Double) As Variant
    kvtLoad
    kvt_DYNVISSST = kvtResult(kvtDYNVISSST(T))
End Function

' kvtDYNVISSWT(T [K]): dynamic viscosity [Pa s] of saturated water
Public Function kvt_DYNVISSWT(ByVal T As Double) As Variant
    kvtLoad
    kvt_DYNVISSWT = kvtResult(kvtDYNVISSWT(T))
End Function

' kvtPRANDTLESST(T [K]): Prandtl number [-] of saturated steam
Public Function kvt_PRANDTLESST(ByVal T As Double) As Variant
    kvtLoad
    kvt_PRANDTLESST = kvtResult(kvtPRANDTLESST(T))
End Function

' kvtPRANDTLESWT(T [K]): Prandtl number [-] of saturated water
Public Function kvt_PRANDTLESWT(ByVal T As Double) As Variant
    kvtLoad
    kvt_PRANDTLESWT = kvtResult(kvtPRANDTLESWT(T))
End Function

' kvtKINVISSST(T [K]): kinematic viscosity [m2/s] of saturated steam
Public Function kvt_KINVISSST(ByVal T As Double) As Variant
    kvtLoad
    kvt_KINVISSST = kvtResult(kvtKINVISSST(T))
End Function

' kvtKINVISSWT(T [K]): kinematic viscosity [m2/s] of saturated water
Public Function kvt_KINVISSWT(ByVal T As Double) As Variant
    kvtLoad
    kvt_KINVISSWT = kvtResult(kvtKINVISSWT(T))
End Function

' kvtKSST(T [K]): isentropic exponent [-] of saturated steam
Public Function kvt_KSST(ByVal T As Double) As Variant
    kvtLoad
    kvt_KSST = kvtResult(kvtKSST(T))
End Function

' kvtKSWT(T [K]): isentropic exponent [-] of saturated water
Public Function kvt_KSWT(ByVal T As Double) As Variant
    kvtLoad
    kvt_KSWT = kvtResult(kvtKSWT(T))
End Function

' kvtRST(T [K]): heat of vaporisation [J/kg]
Public Function kvt_RST(ByVal T As Double) As Variant
    kvtLoad
    kvt_RST = kvtResult(kvtRST(T))
End Function

' kvtVUSHCVWDERPTSWT(T [K]): the 14 outputs of saturated water as a row: v, u, s, h, cv, w, dvdpT, dudpT, dsdpT, dhdpT, dvdTp, dudTp, dsdTp, cp
Public Function kvt_VUSHCVWDERPTSWT(ByVal T As Double) As Variant
    Dim o(1 To 14) As Double
    kvtLoad
    kvt_VUSHCVWDERPTSWT = kvtOutputs(kvtVUSHCVWDERPTSWT(T, o(1), o(2), o(3), o(4), o(5), o(6), o(7), o(8), o(9), o(10), o(11), o(12), o(13), o(14)), o)
End Function

' kvtVUSHCVWDERPTSST(T [K]): the 14 outputs of saturated steam as a row: v, u, s, h, cv, w, dvdpT, dudpT, dsdpT, dhdpT, dvdTp, dudTp, dsdTp, cp
Public Function kvt_VUSHCVWDERPTSST(ByVal T As Double) As Variant
    Dim o(1 To 14) As Double
    kvtLoad
    kvt_VUSHCVWDERPTSST = kvtOutputs(kvtVUSHCVWDERPTSST(T, o(1), o(2), o(3), o(4), o(5), o(6), o(7), o(8), o(9), o(10), o(11), o(12), o(13), o(14)), o)
End Function

' kvtVSTX(T [K], x [-]): specific volume [m3/kg] of wet steam
Public Function kvt_VSTX(ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_VSTX = kvtResult(kvtVSTX(T, x))
End Function

' kvtUSTX(T [K], x [-]): internal energy [J/kg] of wet steam
Public Function kvt_USTX(ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_USTX = kvtResult(kvtUSTX(T, x))
End Function

' kvtSSTX(T [K], x [-]): entropy [J/(kg K)] of wet steam
Public Function kvt_SSTX(ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_SSTX = kvtResult(kvtSSTX(T, x))
End Function

' kvtHSTX(T [K], x [-]): enthalpy [J/kg] of wet steam
Public Function kvt_HSTX(ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_HSTX = kvtResult(kvtHSTX(T, x))
End Function

' kvtCPSTX(T [K], x [-]): cp [J/(kg K)] of wet steam
Public Function kvt_CPSTX(ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_CPSTX = kvtResult(kvtCPSTX(T, x))
End Function

' kvtCVSTX(T [K], x [-]): cv [J/(kg K)] of wet steam
Public Function kvt_CVSTX(ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_CVSTX = kvtResult(kvtCVSTX(T, x))
End Function

' kvtWSTX(T [K], x [-]): speed of sound [m/s] of wet steam
Public Function kvt_WSTX(ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_WSTX = kvtResult(kvtWSTX(T, x))
End Function

' kvtJOULETHOMPSONSTX(T [K], x [-]): Joule-Thomson coefficient [K/Pa] of wet steam
Public Function kvt_JOULETHOMPSONSTX(ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_JOULETHOMPSONSTX = kvtResult(kvtJOULETHOMPSONSTX(T, x))
End Function

' kvtTHERMCONDSTX(T [K], x [-]): thermal conductivity [W/(m K)] of wet steam
Public Function kvt_THERMCONDSTX(ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_THERMCONDSTX = kvtResult(kvtTHERMCONDSTX(T, x))
End Function

' kvtDYNVISSTX(T [K], x [-]): dynamic viscosity [Pa s] of wet steam
Public Function kvt_DYNVISSTX(ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_DYNVISSTX = kvtResult(kvtDYNVISSTX(T, x))
End Function

' kvtPRANDTLESTX(T [K], x [-]): Prandtl number [-] of wet steam
Public Function kvt_PRANDTLESTX(ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_PRANDTLESTX = kvtResult(kvtPRANDTLESTX(T, x))
End Function

' kvtKINVISSTX(T [K], x [-]): kinematic viscosity [m2/s] of wet steam
Public Function kvt_KINVISSTX(ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_KINVISSTX = kvtResult(kvtKINVISSTX(T, x))
End Function

' kvtKSTX(T [K], x [-]): isentropic exponent [-] of wet steam
Public Function kvt_KSTX(ByVal T As Double, ByVal x As Double) As Variant
    kvtLoad
    kvt_KSTX = kvtResult(kvtKSTX(T, x))
End Function

' kvtXSTV(T [K], v [m3/kg]): dryness x [-]
Public Function kvt_XSTV(ByVal T As Double, ByVal v As Double) As Variant
    kvtLoad
    kvt_XSTV = kvtResult(kvtXSTV(T, v))
End Function

' kvtXSTU(T [K], u [J/kg]): dryness x [-]
Public Function kvt_XSTU(ByVal T As Double, ByVal u As Double) As Variant
    kvtLoad
    kvt_XSTU = kvtResult(kvtXSTU(T, u))
End Function

' kvtXSTS(T [K], s [J/(kg K)]): dryness x [-]
Public Function kvt_XSTS(ByVal T As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_XSTS = kvtResult(kvtXSTS(T, s))
End Function

' kvtXSTH(T [K], h [J/kg]): dryness x [-]
Public Function kvt_XSTH(ByVal T As Double, ByVal h As Double) As Variant
    kvtLoad
    kvt_XSTH = kvtResult(kvtXSTH(T, h))
End Function

' kvtXSTCP(T [K], cp [J/(kg K)]): dryness x [-]
Public Function kvt_XSTCP(ByVal T As Double, ByVal cp As Double) As Variant
    kvtLoad
    kvt_XSTCP = kvtResult(kvtXSTCP(T, cp))
End Function

' kvtXSTCV(T [K], cv [J/(kg K)]): dryness x [-]
Public Function kvt_XSTCV(ByVal T As Double, ByVal cv As Double) As Variant
    kvtLoad
    kvt_XSTCV = kvtResult(kvtXSTCV(T, cv))
End Function

' kvtXSTW(T [K], w [m/s]): dryness x [-]
Public Function kvt_XSTW(ByVal T As Double, ByVal w As Double) As Variant
    kvtLoad
    kvt_XSTW = kvtResult(kvtXSTW(T, w))
End Function

' kvtXSTJOULETHOMPSON(T [K], muJT [K/Pa]): dryness x [-]
Public Function kvt_XSTJOULETHOMPSON(ByVal T As Double, ByVal muJT As Double) As Variant
    kvtLoad
    kvt_XSTJOULETHOMPSON = kvtResult(kvtXSTJOULETHOMPSON(T, muJT))
End Function

' kvtXSTTHERMCOND(T [K], lambda [W/(m K)]): dryness x [-]
Public Function kvt_XSTTHERMCOND(ByVal T As Double, ByVal lambda As Double) As Variant
    kvtLoad
    kvt_XSTTHERMCOND = kvtResult(kvtXSTTHERMCOND(T, lambda))
End Function

' kvtXSTDYNVIS(T [K], eta [Pa s]): dryness x [-]
Public Function kvt_XSTDYNVIS(ByVal T As Double, ByVal eta As Double) As Variant
    kvtLoad
    kvt_XSTDYNVIS = kvtResult(kvtXSTDYNVIS(T, eta))
End Function

' kvtXSTKINVIS(T [K], nu [m2/s]): dryness x [-]
Public Function kvt_XSTKINVIS(ByVal T As Double, ByVal nu As Double) As Variant
    kvtLoad
    kvt_XSTKINVIS = kvtResult(kvtXSTKINVIS(T, nu))
End Function

' kvtXSTPRANDTLE(T [K], Pr [-]): dryness x [-]
Public Function kvt_XSTPRANDTLE(ByVal T As Double, ByVal Pr As Double) As Variant
    kvtLoad
    kvt_XSTPRANDTLE = kvtResult(kvtXSTPRANDTLE(T, Pr))
End Function

' kvtXSTK(T [K], k [-]): dryness x [-]
Public Function kvt_XSTK(ByVal T As Double, ByVal k As Double) As Variant
    kvtLoad
    kvt_XSTK = kvtResult(kvtXSTK(T, k))
End Function

' kvtROUGHRSST(T [K]): rough saturated steam density [kg/m3]
Public Function kvt_ROUGHRSST(ByVal T As Double) As Variant
    kvtLoad
    kvt_ROUGHRSST = kvtResult(kvtROUGHRSST(T))
End Function

' kvtROUGHRSWT(T [K]): rough saturated water density [kg/m3]
Public Function kvt_ROUGHRSWT(ByVal T As Double) As Variant
    kvtLoad
    kvt_ROUGHRSWT = kvtResult(kvtROUGHRSWT(T))
End Function

' kvtROUGHHSSS(s [J/(kg K)]): rough saturated steam enthalpy [J/kg]
Public Function kvt_ROUGHHSSS(ByVal s As Double) As Variant
    kvtLoad
    kvt_ROUGHHSSS = kvtResult(kvtROUGHHSSS(s))
End Function

' kvtROUGHHSWS(s [J/(kg K)]): rough saturated water enthalpy [J/kg]
Public Function kvt_ROUGHHSWS(ByVal s As Double) As Variant
    kvtLoad
    kvt_ROUGHHSWS = kvtResult(kvtROUGHHSWS(s))
End Function

' kvtWATERSTATEAREAPH(p [Pa], h [J/kg]): area 1..5
Public Function kvt_WATERSTATEAREAPH(ByVal p As Double, ByVal h As Double) As Variant
    kvtLoad
    kvt_WATERSTATEAREAPH = kvtResult(kvtWATERSTATEAREAPH(p, h))
End Function

' kvtWATERSTATEAREAPS(p [Pa], s [J/(kg K)]): area 1..5
Public Function kvt_WATERSTATEAREAPS(ByVal p As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_WATERSTATEAREAPS = kvtResult(kvtWATERSTATEAREAPS(p, s))
End Function

' kvtWATERSTATEAREAHS(h [J/kg], s [J/(kg K)]): area 1..5
Public Function kvt_WATERSTATEAREAHS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_WATERSTATEAREAHS = kvtResult(kvtWATERSTATEAREAHS(h, s))
End Function

' kvtTSHS(h [J/kg], s [J/(kg K)]): temperature of a wet state [K]
Public Function kvt_TSHS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_TSHS = kvtResult(kvtTSHS(h, s))
End Function

' kvtTXSHS(h [J/kg], s [J/(kg K)]): 1, with the two outputs written as a row: T, x
Public Function kvt_TXSHS(ByVal h As Double, ByVal s As Double) As Variant
    Dim o(1 To 2) As Double
    kvtLoad
    kvt_TXSHS = kvtOutputs(kvtTXSHS(h, s, o(1), o(2)), o)
End Function

' kvtWATERSTATEAREA(p [Pa], T [K]): area 1..5 (4 wet within the tolerance band)
Public Function kvt_WATERSTATEAREA(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_WATERSTATEAREA = kvtResult(kvtWATERSTATEAREA(p, T))
End Function

' kvtWATERSTATEAREA2(p [Pa], T [K]): area 1, 2, 3 or 5
Public Function kvt_WATERSTATEAREA2(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_WATERSTATEAREA2 = kvtResult(kvtWATERSTATEAREA2(p, T))
End Function

' kvtPHASESTATEPT(p [Pa], T [K]): phase 1 liquid, 2 vapour, 3 supercritical
Public Function kvt_PHASESTATEPT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_PHASESTATEPT = kvtResult(kvtPHASESTATEPT(p, T))
End Function

' kvtPST(T [K]): saturation pressure [Pa]
Public Function kvt_PST(ByVal T As Double) As Variant
    kvtLoad
    kvt_PST = kvtResult(kvtPST(T))
End Function

' kvtDPDTST(T [K]): slope of the saturation line dp/dT [Pa/K]
Public Function kvt_DPDTST(ByVal T As Double) As Variant
    kvtLoad
    kvt_DPDTST = kvtResult(kvtDPDTST(T))
End Function

' kvtTSP(p [Pa]): saturation temperature [K]
Public Function kvt_TSP(ByVal p As Double) As Variant
    kvtLoad
    kvt_TSP = kvtResult(kvtTSP(p))
End Function

' kvtP23T(T [K]): pressure on the region 2/3 boundary [Pa]
Public Function kvt_P23T(ByVal T As Double) As Variant
    kvtLoad
    kvt_P23T = kvtResult(kvtP23T(T))
End Function

' kvtT23P(p [Pa]): temperature on the region 2/3 boundary [K]
Public Function kvt_T23P(ByVal p As Double) As Variant
    kvtLoad
    kvt_T23P = kvtResult(kvtT23P(p))
End Function

' kvtTB23HS(h [J/kg], s [J/(kg K)]): temperature near the region 2/3 boundary [K]
Public Function kvt_TB23HS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_TB23HS = kvtResult(kvtTB23HS(h, s))
End Function

' kvtPB23HS(h [J/kg], s [J/(kg K)]): pressure near the region 2/3 boundary [Pa]
Public Function kvt_PB23HS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_PB23HS = kvtResult(kvtPB23HS(h, s))
End Function

' kvtHB13S(s [J/(kg K)]): enthalpy on the region 1/3 boundary [J/kg]
Public Function kvt_HB13S(ByVal s As Double) As Variant
    kvtLoad
    kvt_HB13S = kvtResult(kvtHB13S(s))
End Function

' kvtSURFTENT(T [K]): surface tension [N/m]
Public Function kvt_SURFTENT(ByVal T As Double) As Variant
    kvtLoad
    kvt_SURFTENT = kvtResult(kvtSURFTENT(T))
End Function

' kvtTHERMCONDRT(rho [kg/m3], T [K]): thermal conductivity [W/(m K)]
Public Function kvt_THERMCONDRT(ByVal rho As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_THERMCONDRT = kvtResult(kvtTHERMCONDRT(rho, T))
End Function

' kvtDYNVISRT(rho [kg/m3], T [K]): dynamic viscosity [Pa s]
Public Function kvt_DYNVISRT(ByVal rho As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_DYNVISRT = kvtResult(kvtDYNVISRT(rho, T))
End Function

' kvtPSUBT(T [K]): sublimation pressure of ice Ih [Pa]
Public Function kvt_PSUBT(ByVal T As Double) As Variant
    kvtLoad
    kvt_PSUBT = kvtResult(kvtPSUBT(T))
End Function

' kvtPMELTIT(T [K]): melting pressure of ice Ih [Pa]
Public Function kvt_PMELTIT(ByVal T As Double) As Variant
    kvtLoad
    kvt_PMELTIT = kvtResult(kvtPMELTIT(T))
End Function

' kvtV1PT(p [Pa], T [K]): specific volume [m3/kg]
Public Function kvt_V1PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_V1PT = kvtResult(kvtV1PT(p, T))
End Function

' kvtU1PT(p [Pa], T [K]): internal energy [J/kg]
Public Function kvt_U1PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_U1PT = kvtResult(kvtU1PT(p, T))
End Function

' kvtS1PT(p [Pa], T [K]): entropy [J/(kg K)]
Public Function kvt_S1PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_S1PT = kvtResult(kvtS1PT(p, T))
End Function

' kvtH1PT(p [Pa], T [K]): enthalpy [J/kg]
Public Function kvt_H1PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_H1PT = kvtResult(kvtH1PT(p, T))
End Function

' kvtCP1PT(p [Pa], T [K]): cp [J/(kg K)]
Public Function kvt_CP1PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_CP1PT = kvtResult(kvtCP1PT(p, T))
End Function

' kvtCV1PT(p [Pa], T [K]): cv [J/(kg K)]
Public Function kvt_CV1PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_CV1PT = kvtResult(kvtCV1PT(p, T))
End Function

' kvtW1PT(p [Pa], T [K]): speed of sound [m/s]
Public Function kvt_W1PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_W1PT = kvtResult(kvtW1PT(p, T))
End Function

' kvtJOULETHOMPSON1PT(p [Pa], T [K]): Joule-Thomson coefficient [K/Pa]
Public Function kvt_JOULETHOMPSON1PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_JOULETHOMPSON1PT = kvtResult(kvtJOULETHOMPSON1PT(p, T))
End Function

' kvtVUSHCVWDERPT1PT(p [Pa], T [K]): the 14 outputs as a row: v, u, s, h, cv, w, dvdpT, dudpT, dsdpT, dhdpT, dvdTp, dudTp, dsdTp, cp
Public Function kvt_VUSHCVWDERPT1PT(ByVal p As Double, ByVal T As Double) As Variant
    Dim o(1 To 14) As Double
    kvtLoad
    kvt_VUSHCVWDERPT1PT = kvtOutputs(kvtVUSHCVWDERPT1PT(p, T, o(1), o(2), o(3), o(4), o(5), o(6), o(7), o(8), o(9), o(10), o(11), o(12), o(13), o(14)), o)
End Function

' kvtV2PT(p [Pa], T [K]): specific volume [m3/kg]
Public Function kvt_V2PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_V2PT = kvtResult(kvtV2PT(p, T))
End Function

' kvtU2PT(p [Pa], T [K]): internal energy [J/kg]
Public Function kvt_U2PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_U2PT = kvtResult(kvtU2PT(p, T))
End Function

' kvtS2PT(p [Pa], T [K]): entropy [J/(kg K)]
Public Function kvt_S2PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_S2PT = kvtResult(kvtS2PT(p, T))
End Function

' kvtH2PT(p [Pa], T [K]): enthalpy [J/kg]
Public Function kvt_H2PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_H2PT = kvtResult(kvtH2PT(p, T))
End Function

' kvtCP2PT(p [Pa], T [K]): cp [J/(kg K)]
Public Function kvt_CP2PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_CP2PT = kvtResult(kvtCP2PT(p, T))
End Function

' kvtCV2PT(p [Pa], T [K]): cv [J/(kg K)]
Public Function kvt_CV2PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_CV2PT = kvtResult(kvtCV2PT(p, T))
End Function

' kvtW2PT(p [Pa], T [K]): speed of sound [m/s]
Public Function kvt_W2PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_W2PT = kvtResult(kvtW2PT(p, T))
End Function

' kvtJOULETHOMPSON2PT(p [Pa], T [K]): Joule-Thomson coefficient [K/Pa]
Public Function kvt_JOULETHOMPSON2PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_JOULETHOMPSON2PT = kvtResult(kvtJOULETHOMPSON2PT(p, T))
End Function

' kvtVUSHCVWDERPT2PT(p [Pa], T [K]): the 14 outputs as a row: v, u, s, h, cv, w, dvdpT, dudpT, dsdpT, dhdpT, dvdTp, dudTp, dsdTp, cp
Public Function kvt_VUSHCVWDERPT2PT(ByVal p As Double, ByVal T As Double) As Variant
    Dim o(1 To 14) As Double
    kvtLoad
    kvt_VUSHCVWDERPT2PT = kvtOutputs(kvtVUSHCVWDERPT2PT(p, T, o(1), o(2), o(3), o(4), o(5), o(6), o(7), o(8), o(9), o(10), o(11), o(12), o(13), o(14)), o)
End Function

' kvtT1PH(p [Pa], h [J/kg]): temperature in region 1 [K]
Public Function kvt_T1PH(ByVal p As Double, ByVal h As Double) As Variant
    kvtLoad
    kvt_T1PH = kvtResult(kvtT1PH(p, h))
End Function

' kvtT1PS(p [Pa], s [J/(kg K)]): temperature in region 1 [K]
Public Function kvt_T1PS(ByVal p As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_T1PS = kvtResult(kvtT1PS(p, s))
End Function

' kvtP1HS(h [J/kg], s [J/(kg K)]): pressure in region 1 [Pa]
Public Function kvt_P1HS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_P1HS = kvtResult(kvtP1HS(h, s))
End Function

' kvtT1HS(h [J/kg], s [J/(kg K)]): temperature in region 1 [K]
Public Function kvt_T1HS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_T1HS = kvtResult(kvtT1HS(h, s))
End Function

' kvtPT1HS(h [J/kg], s [J/(kg K)]): 1, with the two outputs written as a row: p, T
Public Function kvt_PT1HS(ByVal h As Double, ByVal s As Double) As Variant
    Dim o(1 To 2) As Double
    kvtLoad
    kvt_PT1HS = kvtOutputs(kvtPT1HS(h, s, o(1), o(2)), o)
End Function

' kvtPT1RH(rho [kg/m3], h [J/kg]): 1, with the two outputs written as a row: p, T
Public Function kvt_PT1RH(ByVal rho As Double, ByVal h As Double) As Variant
    Dim o(1 To 2) As Double
    kvtLoad
    kvt_PT1RH = kvtOutputs(kvtPT1RH(rho, h, o(1), o(2)), o)
End Function

' kvtT2APH(p [Pa], h [J/kg]): temperature by the 2a backward equation [K]
Public Function kvt_T2APH(ByVal p As Double, ByVal h As Double) As Variant
    kvtLoad
    kvt_T2APH = kvtResult(kvtT2APH(p, h))
End Function

' kvtT2APS(p [Pa], s [J/(kg K)]): temperature by the 2a backward equation [K]
Public Function kvt_T2APS(ByVal p As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_T2APS = kvtResult(kvtT2APS(p, s))
End Function

' kvtT2BPH(p [Pa], h [J/kg]): temperature by the 2b backward equation [K]
Public Function kvt_T2BPH(ByVal p As Double, ByVal h As Double) As Variant
    kvtLoad
    kvt_T2BPH = kvtResult(kvtT2BPH(p, h))
End Function

' kvtT2BPS(p [Pa], s [J/(kg K)]): temperature by the 2b backward equation [K]
Public Function kvt_T2BPS(ByVal p As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_T2BPS = kvtResult(kvtT2BPS(p, s))
End Function

' kvtT2CPH(p [Pa], h [J/kg]): temperature by the 2c backward equation [K]
Public Function kvt_T2CPH(ByVal p As Double, ByVal h As Double) As Variant
    kvtLoad
    kvt_T2CPH = kvtResult(kvtT2CPH(p, h))
End Function

' kvtT2CPS(p [Pa], s [J/(kg K)]): temperature by the 2c backward equation [K]
Public Function kvt_T2CPS(ByVal p As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_T2CPS = kvtResult(kvtT2CPS(p, s))
End Function

' kvtT2PH(p [Pa], h [J/kg]): temperature in region 2 [K]
Public Function kvt_T2PH(ByVal p As Double, ByVal h As Double) As Variant
    kvtLoad
    kvt_T2PH = kvtResult(kvtT2PH(p, h))
End Function

' kvtT2PS(p [Pa], s [J/(kg K)]): temperature in region 2 [K]
Public Function kvt_T2PS(ByVal p As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_T2PS = kvtResult(kvtT2PS(p, s))
End Function

' kvtP2B2CH(h [J/kg]): pressure on the 2b/2c boundary [Pa]
Public Function kvt_P2B2CH(ByVal h As Double) As Variant
    kvtLoad
    kvt_P2B2CH = kvtResult(kvtP2B2CH(h))
End Function

' kvtH2B2CP(p [Pa]): enthalpy on the 2b/2c boundary [J/kg]
Public Function kvt_H2B2CP(ByVal p As Double) As Variant
    kvtLoad
    kvt_H2B2CP = kvtResult(kvtH2B2CP(p))
End Function

' kvtP2HS(h [J/kg], s [J/(kg K)]): pressure in region 2 [Pa]
Public Function kvt_P2HS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_P2HS = kvtResult(kvtP2HS(h, s))
End Function

' kvtT2HS(h [J/kg], s [J/(kg K)]): temperature in region 2 [K]
Public Function kvt_T2HS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_T2HS = kvtResult(kvtT2HS(h, s))
End Function

' kvtPT2HS(h [J/kg], s [J/(kg K)]): 1, with the two outputs written as a row: p, T
Public Function kvt_PT2HS(ByVal h As Double, ByVal s As Double) As Variant
    Dim o(1 To 2) As Double
    kvtLoad
    kvt_PT2HS = kvtOutputs(kvtPT2HS(h, s, o(1), o(2)), o)
End Function

' kvtPT2RH(rho [kg/m3], h [J/kg]): 1, with the two outputs written as a row: p, T
Public Function kvt_PT2RH(ByVal rho As Double, ByVal h As Double) As Variant
    Dim o(1 To 2) As Double
    kvtLoad
    kvt_PT2RH = kvtOutputs(kvtPT2RH(rho, h, o(1), o(2)), o)
End Function

' kvtP3RT(rho [kg/m3], T [K]): pressure [Pa]
Public Function kvt_P3RT(ByVal rho As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_P3RT = kvtResult(kvtP3RT(rho, T))
End Function

' kvtR3PTR0(p [Pa], T [K], rhoStart [kg/m3]): density [kg/m3]
Public Function kvt_R3PTR0(ByVal p As Double, ByVal T As Double, ByVal rhoStart As Double) As Variant
    kvtLoad
    kvt_R3PTR0 = kvtResult(kvtR3PTR0(p, T, rhoStart))
End Function

' kvtR3PT(p [Pa], T [K]): density [kg/m3]
Public Function kvt_R3PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_R3PT = kvtResult(kvtR3PT(p, T))
End Function

' kvtU3RT(rho [kg/m3], T [K]): internal energy [J/kg]
Public Function kvt_U3RT(ByVal rho As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_U3RT = kvtResult(kvtU3RT(rho, T))
End Function

' kvtS3RT(rho [kg/m3], T [K]): entropy [J/(kg K)]
Public Function kvt_S3RT(ByVal rho As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_S3RT = kvtResult(kvtS3RT(rho, T))
End Function

' kvtH3RT(rho [kg/m3], T [K]): enthalpy [J/kg]
Public Function kvt_H3RT(ByVal rho As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_H3RT = kvtResult(kvtH3RT(rho, T))
End Function

' kvtCP3RT(rho [kg/m3], T [K]): cp [J/(kg K)]
Public Function kvt_CP3RT(ByVal rho As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_CP3RT = kvtResult(kvtCP3RT(rho, T))
End Function

' kvtCV3RT(rho [kg/m3], T [K]): cv [J/(kg K)]
Public Function kvt_CV3RT(ByVal rho As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_CV3RT = kvtResult(kvtCV3RT(rho, T))
End Function

' kvtW3RT(rho [kg/m3], T [K]): speed of sound [m/s]
Public Function kvt_W3RT(ByVal rho As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_W3RT = kvtResult(kvtW3RT(rho, T))
End Function

' kvtVUSHCVWDERPT3RT(rho [kg/m3], T [K]): the 14 outputs as a row: v, u, s, h, cv, w, dvdpT, dudpT, dsdpT, dhdpT, dvdTp, dudTp, dsdTp, cp
Public Function kvt_VUSHCVWDERPT3RT(ByVal rho As Double, ByVal T As Double) As Variant
    Dim o(1 To 14) As Double
    kvtLoad
    kvt_VUSHCVWDERPT3RT = kvtOutputs(kvtVUSHCVWDERPT3RT(rho, T, o(1), o(2), o(3), o(4), o(5), o(6), o(7), o(8), o(9), o(10), o(11), o(12), o(13), o(14)), o)
End Function

' kvtV3PT(p [Pa], T [K]): specific volume [m3/kg]
Public Function kvt_V3PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_V3PT = kvtResult(kvtV3PT(p, T))
End Function

' kvtU3PT(p [Pa], T [K]): internal energy [J/kg]
Public Function kvt_U3PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_U3PT = kvtResult(kvtU3PT(p, T))
End Function

' kvtS3PT(p [Pa], T [K]): entropy [J/(kg K)]
Public Function kvt_S3PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_S3PT = kvtResult(kvtS3PT(p, T))
End Function

' kvtH3PT(p [Pa], T [K]): enthalpy [J/kg]
Public Function kvt_H3PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_H3PT = kvtResult(kvtH3PT(p, T))
End Function

' kvtCP3PT(p [Pa], T [K]): cp [J/(kg K)]
Public Function kvt_CP3PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_CP3PT = kvtResult(kvtCP3PT(p, T))
End Function

' kvtCV3PT(p [Pa], T [K]): cv [J/(kg K)]
Public Function kvt_CV3PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_CV3PT = kvtResult(kvtCV3PT(p, T))
End Function

' kvtW3PT(p [Pa], T [K]): speed of sound [m/s]
Public Function kvt_W3PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_W3PT = kvtResult(kvtW3PT(p, T))
End Function

' kvtJOULETHOMPSON3RT(rho [kg/m3], T [K]): Joule-Thomson coefficient [K/Pa]
Public Function kvt_JOULETHOMPSON3RT(ByVal rho As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_JOULETHOMPSON3RT = kvtResult(kvtJOULETHOMPSON3RT(rho, T))
End Function

' kvtJOULETHOMPSON3PT(p [Pa], T [K]): Joule-Thomson coefficient [K/Pa]
Public Function kvt_JOULETHOMPSON3PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_JOULETHOMPSON3PT = kvtResult(kvtJOULETHOMPSON3PT(p, T))
End Function

' kvtVUSHCVWDERPT3PT(p [Pa], T [K]): the 14 outputs as a row: v, u, s, h, cv, w, dvdpT, dudpT, dsdpT, dhdpT, dvdTp, dudTp, dsdTp, cp
Public Function kvt_VUSHCVWDERPT3PT(ByVal p As Double, ByVal T As Double) As Variant
    Dim o(1 To 14) As Double
    kvtLoad
    kvt_VUSHCVWDERPT3PT = kvtOutputs(kvtVUSHCVWDERPT3PT(p, T, o(1), o(2), o(3), o(4), o(5), o(6), o(7), o(8), o(9), o(10), o(11), o(12), o(13), o(14)), o)
End Function

' kvtT3PH(p [Pa], h [J/kg]): temperature [K]
Public Function kvt_T3PH(ByVal p As Double, ByVal h As Double) As Variant
    kvtLoad
    kvt_T3PH = kvtResult(kvtT3PH(p, h))
End Function

' kvtT3PS(p [Pa], s [J/(kg K)]): temperature [K]
Public Function kvt_T3PS(ByVal p As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_T3PS = kvtResult(kvtT3PS(p, s))
End Function

' kvtP3HS(h [J/kg], s [J/(kg K)]): pressure [Pa]
Public Function kvt_P3HS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_P3HS = kvtResult(kvtP3HS(h, s))
End Function

' kvtT3HS(h [J/kg], s [J/(kg K)]): temperature [K]
Public Function kvt_T3HS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_T3HS = kvtResult(kvtT3HS(h, s))
End Function

' kvtV3HS(h [J/kg], s [J/(kg K)]): specific volume [m3/kg]
Public Function kvt_V3HS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_V3HS = kvtResult(kvtV3HS(h, s))
End Function

' kvtV3PH(p [Pa], h [J/kg]): specific volume [m3/kg]
Public Function kvt_V3PH(ByVal p As Double, ByVal h As Double) As Variant
    kvtLoad
    kvt_V3PH = kvtResult(kvtV3PH(p, h))
End Function

' kvtV3PS(p [Pa], s [J/(kg K)]): specific volume [m3/kg]
Public Function kvt_V3PS(ByVal p As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_V3PS = kvtResult(kvtV3PS(p, s))
End Function

' kvtRT3HS(h [J/kg], s [J/(kg K)]): 1, with the two outputs written as a row: rho, T
Public Function kvt_RT3HS(ByVal h As Double, ByVal s As Double) As Variant
    Dim o(1 To 2) As Double
    kvtLoad
    kvt_RT3HS = kvtOutputs(kvtRT3HS(h, s, o(1), o(2)), o)
End Function

' kvtPT3HS(h [J/kg], s [J/(kg K)]): 1, with the two outputs written as a row: p, T
Public Function kvt_PT3HS(ByVal h As Double, ByVal s As Double) As Variant
    Dim o(1 To 2) As Double
    kvtLoad
    kvt_PT3HS = kvtOutputs(kvtPT3HS(h, s, o(1), o(2)), o)
End Function

' kvtT3RH(rho [kg/m3], h [J/kg]): temperature [K]
Public Function kvt_T3RH(ByVal rho As Double, ByVal h As Double) As Variant
    kvtLoad
    kvt_T3RH = kvtResult(kvtT3RH(rho, h))
End Function

' kvtV5PT(p [Pa], T [K]): specific volume [m3/kg]
Public Function kvt_V5PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_V5PT = kvtResult(kvtV5PT(p, T))
End Function

' kvtU5PT(p [Pa], T [K]): internal energy [J/kg]
Public Function kvt_U5PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_U5PT = kvtResult(kvtU5PT(p, T))
End Function

' kvtS5PT(p [Pa], T [K]): entropy [J/(kg K)]
Public Function kvt_S5PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_S5PT = kvtResult(kvtS5PT(p, T))
End Function

' kvtH5PT(p [Pa], T [K]): enthalpy [J/kg]
Public Function kvt_H5PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_H5PT = kvtResult(kvtH5PT(p, T))
End Function

' kvtCP5PT(p [Pa], T [K]): cp [J/(kg K)]
Public Function kvt_CP5PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_CP5PT = kvtResult(kvtCP5PT(p, T))
End Function

' kvtCV5PT(p [Pa], T [K]): cv [J/(kg K)]
Public Function kvt_CV5PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_CV5PT = kvtResult(kvtCV5PT(p, T))
End Function

' kvtW5PT(p [Pa], T [K]): speed of sound [m/s]
Public Function kvt_W5PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_W5PT = kvtResult(kvtW5PT(p, T))
End Function

' kvtJOULETHOMPSON5PT(p [Pa], T [K]): Joule-Thomson coefficient [K/Pa]
Public Function kvt_JOULETHOMPSON5PT(ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_JOULETHOMPSON5PT = kvtResult(kvtJOULETHOMPSON5PT(p, T))
End Function

' kvtVUSHCVWDERPT5PT(p [Pa], T [K]): the 14 outputs as a row: v, u, s, h, cv, w, dvdpT, dudpT, dsdpT, dhdpT, dvdTp, dudTp, dsdTp, cp
Public Function kvt_VUSHCVWDERPT5PT(ByVal p As Double, ByVal T As Double) As Variant
    Dim o(1 To 14) As Double
    kvtLoad
    kvt_VUSHCVWDERPT5PT = kvtOutputs(kvtVUSHCVWDERPT5PT(p, T, o(1), o(2), o(3), o(4), o(5), o(6), o(7), o(8), o(9), o(10), o(11), o(12), o(13), o(14)), o)
End Function

' kvtT5PH(p [Pa], h [J/kg]): temperature [K]
Public Function kvt_T5PH(ByVal p As Double, ByVal h As Double) As Variant
    kvtLoad
    kvt_T5PH = kvtResult(kvtT5PH(p, h))
End Function

' kvtT5PS(p [Pa], s [J/(kg K)]): temperature [K]
Public Function kvt_T5PS(ByVal p As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_T5PS = kvtResult(kvtT5PS(p, s))
End Function

' kvtP5HS(h [J/kg], s [J/(kg K)]): pressure [Pa]
Public Function kvt_P5HS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_P5HS = kvtResult(kvtP5HS(h, s))
End Function

' kvtT5HS(h [J/kg], s [J/(kg K)]): temperature [K]
Public Function kvt_T5HS(ByVal h As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_T5HS = kvtResult(kvtT5HS(h, s))
End Function

' kvtPT5HS(h [J/kg], s [J/(kg K)]): 1, with the two outputs written as a row: p, T
Public Function kvt_PT5HS(ByVal h As Double, ByVal s As Double) As Variant
    Dim o(1 To 2) As Double
    kvtLoad
    kvt_PT5HS = kvtOutputs(kvtPT5HS(h, s, o(1), o(2)), o)
End Function

' kvtPT5RH(rho [kg/m3], h [J/kg]): 1, with the two outputs written as a row: p, T
Public Function kvt_PT5RH(ByVal rho As Double, ByVal h As Double) As Variant
    Dim o(1 To 2) As Double
    kvtLoad
    kvt_PT5RH = kvtOutputs(kvtPT5RH(rho, h, o(1), o(2)), o)
End Function

' kvtSHOWKVTHELP(window): 1
Public Function kvt_SHOWKVTHELP(ByVal window As Long) As Variant
    kvtLoad
    kvt_SHOWKVTHELP = kvtResult(kvtSHOWKVTHELP(window))
End Function

' kvtSHOWABOUT(window): 1
Public Function kvt_SHOWABOUT(ByVal window As Long) As Variant
    kvtLoad
    kvt_SHOWABOUT = kvtResult(kvtSHOWABOUT(window))
End Function

' kvtgSETCALCDISSMODE(mode): reserved, always error 8
Public Function kvt_gSETCALCDISSMODE(ByVal mode_ As Long) As Variant
    kvtLoad
    kvt_gSETCALCDISSMODE = kvtResult(kvtgSETCALCDISSMODE(mode_))
End Function

' kvtgGETCALCDISSMODE(): dissociation mode, always 0 (none computed)
Public Function kvt_gGETCALCDISSMODE() As Variant
    kvtLoad
    kvt_gGETCALCDISSMODE = kvtResult(kvtgGETCALCDISSMODE())
End Function

' kvtgCPIDT(id, T [K]): cp [J/(kg K)]
Public Function kvt_gCPIDT(ByVal id As Long, ByVal T As Double) As Variant
    kvtLoad
    kvt_gCPIDT = kvtResult(kvtgCPIDT(id, T))
End Function

' kvtgCPGST(gs, T [K]): cp [J/(kg K)]
Public Function kvt_gCPGST(ByVal gs As String, ByVal T As Double) As Variant
    kvtLoad
    kvt_gCPGST = kvtResult(kvtgCPGST(gs, T))
End Function

' kvtgHIDT(id, T [K]): enthalpy [J/kg]
Public Function kvt_gHIDT(ByVal id As Long, ByVal T As Double) As Variant
    kvtLoad
    kvt_gHIDT = kvtResult(kvtgHIDT(id, T))
End Function

' kvtgHGST(gs, T [K]): enthalpy [J/kg]
Public Function kvt_gHGST(ByVal gs As String, ByVal T As Double) As Variant
    kvtLoad
    kvt_gHGST = kvtResult(kvtgHGST(gs, T))
End Function

' kvtgSIDT(id, T [K]): entropy at 100000 Pa [J/(kg K)]
Public Function kvt_gSIDT(ByVal id As Long, ByVal T As Double) As Variant
    kvtLoad
    kvt_gSIDT = kvtResult(kvtgSIDT(id, T))
End Function

' kvtgSGST(gs, T [K]): entropy at 100000 Pa [J/(kg K)]
Public Function kvt_gSGST(ByVal gs As String, ByVal T As Double) As Variant
    kvtLoad
    kvt_gSGST = kvtResult(kvtgSGST(gs, T))
End Function

' kvtgSIDPT(id, p [Pa], T [K]): entropy [J/(kg K)]
Public Function kvt_gSIDPT(ByVal id As Long, ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_gSIDPT = kvtResult(kvtgSIDPT(id, p, T))
End Function

' kvtgSGSPT(gs, p [Pa], T [K]): entropy [J/(kg K)]
Public Function kvt_gSGSPT(ByVal gs As String, ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_gSGSPT = kvtResult(kvtgSGSPT(gs, p, T))
End Function

' kvtgCVIDT(id, T [K]): cv [J/(kg K)]
Public Function kvt_gCVIDT(ByVal id As Long, ByVal T As Double) As Variant
    kvtLoad
    kvt_gCVIDT = kvtResult(kvtgCVIDT(id, T))
End Function

' kvtgCVGST(gs, T [K]): cv [J/(kg K)]
Public Function kvt_gCVGST(ByVal gs As String, ByVal T As Double) As Variant
    kvtLoad
    kvt_gCVGST = kvtResult(kvtgCVGST(gs, T))
End Function

' kvtgUIDT(id, T [K]): internal energy [J/kg]
Public Function kvt_gUIDT(ByVal id As Long, ByVal T As Double) As Variant
    kvtLoad
    kvt_gUIDT = kvtResult(kvtgUIDT(id, T))
End Function

' kvtgUGST(gs, T [K]): internal energy [J/kg]
Public Function kvt_gUGST(ByVal gs As String, ByVal T As Double) As Variant
    kvtLoad
    kvt_gUGST = kvtResult(kvtgUGST(gs, T))
End Function

' kvtgMMID(id): molar mass [kg/mol]
Public Function kvt_gMMID(ByVal id As Long) As Variant
    kvtLoad
    kvt_gMMID = kvtResult(kvtgMMID(id))
End Function

' kvtgMMGS(gs): molar mass [kg/mol]
Public Function kvt_gMMGS(ByVal gs As String) As Variant
    kvtLoad
    kvt_gMMGS = kvtResult(kvtgMMGS(gs))
End Function

' kvtgGCID(id): gas constant [J/(kg K)]
Public Function kvt_gGCID(ByVal id As Long) As Variant
    kvtLoad
    kvt_gGCID = kvtResult(kvtgGCID(id))
End Function

' kvtgGCGS(gs): gas constant [J/(kg K)]
Public Function kvt_gGCGS(ByVal gs As String) As Variant
    kvtLoad
    kvt_gGCGS = kvtResult(kvtgGCGS(gs))
End Function

' kvtgVIDT(id, T [K]): specific volume at 100000 Pa [m3/kg]
Public Function kvt_gVIDT(ByVal id As Long, ByVal T As Double) As Variant
    kvtLoad
    kvt_gVIDT = kvtResult(kvtgVIDT(id, T))
End Function

' kvtgVGST(gs, T [K]): specific volume at 100000 Pa [m3/kg]
Public Function kvt_gVGST(ByVal gs As String, ByVal T As Double) As Variant
    kvtLoad
    kvt_gVGST = kvtResult(kvtgVGST(gs, T))
End Function

' kvtgVIDPT(id, p [Pa], T [K]): specific volume [m3/kg]
Public Function kvt_gVIDPT(ByVal id As Long, ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_gVIDPT = kvtResult(kvtgVIDPT(id, p, T))
End Function

' kvtgVGSPT(gs, p [Pa], T [K]): specific volume [m3/kg]
Public Function kvt_gVGSPT(ByVal gs As String, ByVal p As Double, ByVal T As Double) As Variant
    kvtLoad
    kvt_gVGSPT = kvtResult(kvtgVGSPT(gs, p, T))
End Function

' kvtgTIDH(id, h [J/kg]): temperature [K]
Public Function kvt_gTIDH(ByVal id As Long, ByVal h As Double) As Variant
    kvtLoad
    kvt_gTIDH = kvtResult(kvtgTIDH(id, h))
End Function

' kvtgTGSH(gs, h [J/kg]): temperature [K]
Public Function kvt_gTGSH(ByVal gs As String, ByVal h As Double) As Variant
    kvtLoad
    kvt_gTGSH = kvtResult(kvtgTGSH(gs, h))
End Function

' kvtgTIDS(id, s [J/(kg K)]): temperature at 100000 Pa [K]
Public Function kvt_gTIDS(ByVal id As Long, ByVal s As Double) As Variant
    kvtLoad
    kvt_gTIDS = kvtResult(kvtgTIDS(id, s))
End Function

' kvtgTGSS(gs, s [J/(kg K)]): temperature at 100000 Pa [K]
Public Function kvt_gTGSS(ByVal gs As String, ByVal s As Double) As Variant
    kvtLoad
    kvt_gTGSS = kvtResult(kvtgTGSS(gs, s))
End Function

' kvtgTIDPS(id, p [Pa], s [J/(kg K)]): temperature [K]
Public Function kvt_gTIDPS(ByVal id As Long, ByVal p As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_gTIDPS = kvtResult(kvtgTIDPS(id, p, s))
End Function

' kvtgTGSPS(gs, p [Pa], s [J/(kg K)]): temperature [K]
Public Function kvt_gTGSPS(ByVal gs As String, ByVal p As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_gTGSPS = kvtResult(kvtgTGSPS(gs, p, s))
End Function

' kvtgPIDTS(id, T [K], s [J/(kg K)]): pressure [Pa]
Public Function kvt_gPIDTS(ByVal id As Long, ByVal T As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_gPIDTS = kvtResult(kvtgPIDTS(id, T, s))
End Function

' kvtgPGSTS(gs, T [K], s [J/(kg K)]): pressure [Pa]
Public Function kvt_gPGSTS(ByVal gs As String, ByVal T As Double, ByVal s As Double) As Variant
    kvtLoad
    kvt_gPGSTS = kvtResult(kvtgPGSTS(gs, T, s))
End Function

' kvtgVFGSGS(mixture, component): volume fraction of the second in the first
Public Function kvt_gVFGSGS(ByVal mixture As String, ByVal component As String) As Variant
    kvtLoad
    kvt_gVFGSGS = kvtResult(kvtgVFGSGS(mixture, component))
End Function

' kvtgMFGSGS(mixture, component): mass fraction of the second in the first
Public Function kvt_gMFGSGS(ByVal mixture As String, ByVal component As String) As Variant
    kvtLoad
    kvt_gMFGSGS = kvtResult(kvtgMFGSGS(mixture, component))
End Function

' kvtgVFIDID(mixture, component): volume fraction of the second in the first
Public Function kvt_gVFIDID(ByVal mixture As Long, ByVal component As Long) As Variant
    kvtLoad
    kvt_gVFIDID = kvtResult(kvtgVFIDID(mixture, component))
End Function

' kvtgMFIDID(mixture, component): mass fraction of the second in the first
Public Function kvt_gMFIDID(ByVal mixture As Long, ByVal component As Long) As Variant
    kvtLoad
    kvt_gMFIDID = kvtResult(kvtgMFIDID(mixture, component))
End Function

' kvtgIDNAME(name): gas id
Public Function kvt_gIDNAME(ByVal name_ As String) As Variant
    kvtLoad
    kvt_gIDNAME = kvtResult(kvtgIDNAME(name_))
End Function

' kvtgNEWID(): id of a new empty gas
Public Function kvt_gNEWID() As Variant
    kvtLoad
    kvt_gNEWID = kvtResult(kvtgNEWID())
End Function

' kvtgNEWIDNAME(name): id of a new empty gas of that name
Public Function kvt_gNEWIDNAME(ByVal name_ As String) As Variant
    kvtLoad
    kvt_gNEWIDNAME = kvtResult(kvtgNEWIDNAME(name_))
End Function

' kvtgNEWIDGS(gs): id of the gas registered for the text
Public Function kvt_gNEWIDGS(ByVal gs As String) As Variant
    kvtLoad
    kvt_gNEWIDGS = kvtResult(kvtgNEWIDGS(gs))
End Function

' kvtgDELETEGASID(id): number of gases left
Public Function kvt_gDELETEGASID(ByVal id As Long) As Variant
    kvtLoad
    kvt_gDELETEGASID = kvtResult(kvtgDELETEGASID(id))
End Function

' kvtgDELETEGASES(): number of gases left, 13
Public Function kvt_gDELETEGASES() As Variant
    kvtLoad
    kvt_gDELETEGASES = kvtResult(kvtgDELETEGASES())
End Function

' kvtgGASESCOUNT(): number of registered gases
Public Function kvt_gGASESCOUNT() As Variant
    kvtLoad
    kvt_gGASESCOUNT = kvtResult(kvtgGASESCOUNT())
End Function

' kvtgADDGASM(mixture, component, mass [kg]): number of components
Public Function kvt_gADDGASM(ByVal mixture As Long, ByVal component As Long, ByVal mass As Double) As Variant
    kvtLoad
    kvt_gADDGASM = kvtResult(kvtgADDGASM(mixture, component, mass))
End Function

' kvtgADDGASV(mixture, component, parts [-]): number of components
Public Function kvt_gADDGASV(ByVal mixture As Long, ByVal component As Long, ByVal parts As Double) As Variant
    kvtLoad
    kvt_gADDGASV = kvtResult(kvtgADDGASV(mixture, component, parts))
End Function

' kvtgGSID(id): gas spec text
Public Function kvt_gGSID(ByVal id As Long) As Variant
    kvtLoad
    kvt_gGSID = kvtText(kvtTextA(kvtgGSID(id)))
End Function

' kvtgGSGS(gs): canonical gas spec text
Public Function kvt_gGSGS(ByVal gs As String) As Variant
    kvtLoad
    kvt_gGSGS = kvtText(kvtTextA(kvtgGSGS(gs)))
End Function

' kvtgGETGASDATA(a1, a2, a3, a4, a5, a6, a7, a8, a9, a10, a11, a12): reserved, always -1 with no error
Public Function kvt_gGETGASDATA(ByVal a1 As Double, ByVal a2 As Double, ByVal a3 As Double, ByVal a4 As Double, ByVal a5 As Double, ByVal a6 As Double, ByVal a7 As Double, ByVal a8 As Double, ByVal a9 As Double, ByVal a10 As Double, ByVal a11 As Double, ByVal a12 As Double) As Variant
    kvtLoad
    kvt_gGETGASDATA = kvtResult(kvtgGETGASDATA(a1, a2, a3, a4, a5, a6, a7, a8, a9, a10, a11, a12))
End Function

' kvtSETTOLERANCE(tolerance [-]): the value stored
Public Function kvt_SETTOLERANCE(ByVal tolerance As Double) As Variant
    kvtLoad
    kvt_SETTOLERANCE = kvtResult(kvtSETTOLERANCE(tolerance))
End Function

' kvtGETTOLERANCE(): relative tolerance
Public Function kvt_GETTOLERANCE() As Variant
    kvtLoad
    kvt_GETTOLERANCE = kvtResult(kvtGETTOLERANCE())
End Function

' kvtSETTOLERANCEMODE(mode): the value stored; mode 0: backward equations only, else refined
Public Function kvt_SETTOLERANCEMODE(ByVal mode_ As Long) As Variant
    kvtLoad
    kvt_SETTOLERANCEMODE = kvtResult(kvtSETTOLERANCEMODE(mode_))
End Function

' kvtGETTOLERANCEMODE(): tolerance mode
Public Function kvt_GETTOLERANCEMODE() As Variant
    kvtLoad
    kvt_GETTOLERANCEMODE = kvtResult(kvtGETTOLERANCEMODE())
End Function

' kvtSETCHECKRANGEMODE(mode): the value stored; mode 0: no input range checks, else checked
Public Function kvt_SETCHECKRANGEMODE(ByVal mode_ As Long) As Variant
    kvtLoad
    kvt_SETCHECKRANGEMODE = kvtResult(kvtSETCHECKRANGEMODE(mode_))
End Function

' kvtGETCHECKRANGEMODE(): check-range mode
Public Function kvt_GETCHECKRANGEMODE() As Variant
    kvtLoad
    kvt_GETCHECKRANGEMODE = kvtResult(kvtGETCHECKRANGEMODE())
End Function

' kvtSETLASTERROR(code): the code stored
Public Function kvt_SETLASTERROR(ByVal code As Long) As Variant
    kvtLoad
    kvt_SETLASTERROR = kvtSETLASTERROR(code)
End Function

' kvtGETLASTERROR(): code of the last failure
Public Function kvt_GETLASTERROR() As Variant
    kvtLoad
    kvt_GETLASTERROR = kvtGETLASTERROR()
End Function

' kvtGETLASTERRORDESCRIPTION(): text of the last error (UTF-8)
Public Function kvt_GETLASTERRORDESCRIPTION() As Variant
    kvtLoad
    kvt_GETLASTERRORDESCRIPTION = kvtText(kvtTextA(kvtGETLASTERRORDESCRIPTION()))
End Function

' kvtSETDELTATS(ignored): reserved, always error 8
Public Function kvt_SETDELTATS(ByVal ignored As Double) As Variant
    kvtLoad
    kvt_SETDELTATS = kvtResult(kvtSETDELTATS(ignored))
End Function

' kvtGETDELTATS(): reserved, always error 8
Public Function kvt_GETDELTATS() As Variant
    kvtLoad
    kvt_GETDELTATS = kvtResult(kvtGETDELTATS())
End Function

' kvtSETMAXITERATION(maxIteration): the value stored
Public Function kvt_SETMAXITERATION(ByVal maxIteration As Long) As Variant
    kvtLoad
    kvt_SETMAXITERATION = kvtResult(kvtSETMAXITERATION(maxIteration))
End Function

' kvtGETMAXITERATION(): iteration cap
Public Function kvt_GETMAXITERATION() As Variant
    kvtLoad
    kvt_GETMAXITERATION = kvtResult(kvtGETMAXITERATION())
End Function

' kvtSETDELTAPRESSURE(ignored): reserved, always error 8
Public Function kvt_SETDELTAPRESSURE(ByVal ignored As Double) As Variant
    kvtLoad
    kvt_SETDELTAPRESSURE = kvtResult(kvtSETDELTAPRESSURE(ignored))
End Function

' kvtGETDELTAPRESSURE(): reserved, always error 8
Public Function kvt_GETDELTAPRESSURE() As Variant
    kvtLoad
    kvt_GETDELTAPRESSURE = kvtResult(kvtGETDELTAPRESSURE())
End Function

' kvtSETINITWATERDENSITY(ignored): reserved, always error 8
Public Function kvt_SETINITWATERDENSITY(ByVal ignored As Double) As Variant
    kvtLoad
    kvt_SETINITWATERDENSITY = kvtResult(kvtSETINITWATERDENSITY(ignored))
End Function

' kvtGETINITWATERDENSITY(): reserved, always error 8
Public Function kvt_GETINITWATERDENSITY() As Variant
    kvtLoad
    kvt_GETINITWATERDENSITY = kvtResult(kvtGETINITWATERDENSITY())
End Function

' kvtSETINITSTEAMDENSITY(ignored): reserved, always error 8
Public Function kvt_SETINITSTEAMDENSITY(ByVal ignored As Double) As Variant
    kvtLoad
    kvt_SETINITSTEAMDENSITY = kvtResult(kvtSETINITSTEAMDENSITY(ignored))
End Function

' kvtGETINITSTEAMDENSITY(): reserved, always error 8
Public Function kvt_GETINITSTEAMDENSITY() As Variant
    kvtLoad
    kvt_GETINITSTEAMDENSITY = kvtResult(kvtGETINITSTEAMDENSITY())
End Function

' kvtGETKVTVERSION(): library version, 6.0001
Public Function kvt_GETKVTVERSION() As Variant
    kvtLoad
    kvt_GETKVTVERSION = kvtResult(kvtGETKVTVERSION())
End Function

' kvtGETLASTERRORDESCRIPTIONW(): text of the last error (UTF-16)
Public Function kvt_GETLASTERRORDESCRIPTIONW() As Variant
    kvtLoad
    kvt_GETLASTERRORDESCRIPTIONW = kvtText(kvtTextW(kvtGETLASTERRORDESCRIPTIONW()))
End Function

' kvtGETABSOLUTEGASCONSTANT(): molar gas constant [J/(mol K)]
Public Function kvt_GETABSOLUTEGASCONSTANT() As Variant
    kvtLoad
    kvt_GETABSOLUTEGASCONSTANT = kvtResult(kvtGETABSOLUTEGASCONSTANT())
End Function
