' Direct, Back to selection, Direct again: the second frmDirectA is a new one, centred again, and
' the selection dialog is the first one; then Cancel.
Set o = WScript.CreateObject("TNWizard_MAVT.TNW_MAVT", "ev_")
o.GetCurFileData dir, 1, dir & "\three_cars.mod"
o.ShowTNWizard
WaitForUnload
ReleaseAndCheckUnload
