' The selection dialog's Help and then Cancel; ShowTNWizard twice shows one dialog.
Set o = WScript.CreateObject("TNWizard_MAVT.TNW_MAVT", "ev_")
WScript.Echo "created " & TypeName(o)
Dim norix
norix = dir
o.GetCurFileData norix, 3, dir & "\three_cars.mod"
WScript.Echo "NorixDir after GetCurFileData: " & norix
o.ShowTNWizard
o.ShowTNWizard
WaitForUnload
ReleaseAndCheckUnload
