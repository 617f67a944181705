' ---- the real dialogs, driven from outside by run-wine-dialog-tests with xdotool
' Three rounds on one object: the direct method to Finish, a cancelled selection, the trade-off
' method to Finish. Each round waits for UnloadTNWizard while WScript.Sleep runs the message
' loop, which is all that keeps the Qt dialogs alive: the host has no other.
Sub WaitForRound(name)
  Dim n
  n = 0
  Do While Not done And n < 12000
    WScript.Sleep 10
    n = n + 1
  Loop
  If Not done Then WScript.Echo "timed out waiting for UnloadTNWizard in round " & name
  done = False
End Sub

Set o = WScript.CreateObject("TNWizard_MAVT.TNW_MAVT", "ev_")
o.GetCurFileData dir, 5, dir & "\three_cars.mod"
WScript.Echo "round direct"
o.ShowTNWizard
WaitForRound "direct"
WScript.Echo "round cancel"
o.ShowTNWizard
WaitForRound "cancel"
WScript.Echo "round tradeoffs"
o.ShowTNWizard
WaitForRound "tradeoffs"
WScript.DisconnectObject o
Set o = Nothing
WScript.Echo "rounds done"
