' Trade-off method, Back to selection, trade-off method again: the second frmTradeOffsA is a new
' one, centred again, and the selection dialog is the one made first; then Cancel.
Set o = WScript.CreateObject("TNWizard_MAVT.TNW_MAVT", "ev_")
o.GetCurFileData dir, 2, dir & "\three_cars.mod"
o.ShowTNWizard
WaitForUnload
ReleaseAndCheckUnload
