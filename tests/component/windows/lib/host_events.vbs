' Shared by every scenario script (run-wine-tests puts it in front of each): the host's event
' handlers, which print every event with its arguments' types and values, and a wait that runs
' the message loop until the wizard asks to be unloaded.
Option Explicit
Dim o, dir, done, unloadInEvent, releaseInEvent, changeArrays, writeNonNumbers
dir = Host.Argument(0)
done = False
unloadInEvent = True
releaseInEvent = False
changeArrays = False
writeNonNumbers = False

Function ArrayText(a)
  Dim i, s
  s = TypeName(a) & " " & LBound(a) & " To " & UBound(a) & ":"
  For i = LBound(a) To UBound(a)
    s = s & " " & TypeName(a(i)) & " " & FormatNumber(a(i), 6, True, False, False)
  Next
  ArrayText = s
End Function

Sub ev_SendMasseges(Msg)
  WScript.Echo "event SendMasseges " & TypeName(Msg) & " """ & Msg & """"
End Sub

Sub ev_UnloadTNWizard(fIndex, WeightsDone)
  WScript.Echo "event UnloadTNWizard " & TypeName(fIndex) & " " & fIndex & " " & _
    TypeName(WeightsDone) & " " & WeightsDone
  ' A host ends the wizard from inside this event.
  If unloadInEvent Then o.UnloadTNWizard
  ' A host may even let go of the object here.
  If releaseInEvent Then
    WScript.DisconnectObject o
    Set o = Nothing
    WScript.Echo "released the object inside the event"
  End If
  done = True
End Sub

Sub ShowArrays(Weights, WeightsH, WeightsL)
  WScript.Echo "  Weights  " & ArrayText(Weights)
  WScript.Echo "  WeightsH " & ArrayText(WeightsH)
  WScript.Echo "  WeightsL " & ArrayText(WeightsL)
End Sub

' The host's changes to the arrays must reach the dialog's own arrays (the trace shows them).
' They are made in the event sub itself: Wine's VBScript cannot index an array argument that is
' passed on by reference a second time.
Sub ReportChange(weight0)
  WScript.Echo "  host changed Weights(0), WeightsH(last) and WeightsL(0); Weights(0) is now " & _
    TypeName(weight0) & " " & weight0
End Sub

Sub ev_ExportDirectAW(TNType, RefAttID, Weights, WeightsH, WeightsL)
  WScript.Echo "event ExportDirectAW " & TypeName(TNType) & " """ & TNType & """ " & _
    TypeName(RefAttID) & " " & RefAttID
  ShowArrays Weights, WeightsH, WeightsL
  If changeArrays Then
    Weights(0) = 0.125
    WeightsH(UBound(WeightsH)) = 0.875
    WeightsL(0) = "0.0625"
    ReportChange Weights(0)
  End If
  ' What is not a finite number never reaches the dialog: it keeps its own values there.
  If writeNonNumbers Then
    WeightsH(0) = "not a number"
    WeightsH(1) = Null
    WScript.Echo "  host wrote a text and Null into WeightsH(0) and WeightsH(1)"
  End If
End Sub

Sub ev_ExportTradeOffsW(TNType, Weights, WeightsH, WeightsL)
  WScript.Echo "event ExportTradeOffsW " & TypeName(TNType) & " """ & TNType & """"
  ShowArrays Weights, WeightsH, WeightsL
  If changeArrays Then
    Weights(0) = 0.125
    WeightsH(UBound(WeightsH)) = 0.875
    WeightsL(0) = "0.0625"
    ReportChange Weights(0)
  End If
  ' What is not a finite number never reaches the dialog: it keeps its own values there.
  If writeNonNumbers Then
    WeightsH(0) = "not a number"
    WeightsH(1) = Null
    WScript.Echo "  host wrote a text and Null into WeightsH(0) and WeightsH(1)"
  End If
End Sub

Sub WaitForUnload()
  Dim n
  n = 0
  Do While Not done And n < 3000
    WScript.Sleep 10
    n = n + 1
  Loop
  If Not done Then WScript.Echo "timed out waiting for UnloadTNWizard"
End Sub

Sub ReleaseAndCheckUnload()
  WScript.DisconnectObject o
  Set o = Nothing
  WScript.Echo "DllCanUnloadNow " & Host.DllCanUnloadNow("TNWizard_MAVT_Test.dll")
End Sub

' ---- scenario
