' The trade-off method from selection to Finish: every event in order with its arguments (the
' middle estimates go out as both Weights and WeightsL); the host changes the exported arrays and
' the dialog's arrays show the change.
changeArrays = True
Set o = WScript.CreateObject("TNWizard_MAVT.TNW_MAVT", "ev_")
o.GetCurFileData dir, 9, dir & "\three_cars.mod"
o.ShowTNWizard
WaitForUnload
ReleaseAndCheckUnload
