' The direct method from selection to Finish: every event in order with its arguments; the host
' changes the exported arrays in its handler and the dialog's arrays show the change.
changeArrays = True
writeNonNumbers = True
Set o = WScript.CreateObject("TNWizard_MAVT.TNW_MAVT", "ev_")
o.GetCurFileData dir, 5, dir & "\three_cars.mod"
o.ShowTNWizard
WaitForUnload
ReleaseAndCheckUnload
