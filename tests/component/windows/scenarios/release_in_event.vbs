' The host unloads the wizard and lets go of the object inside UnloadTNWizard: the object goes
' once the event is over, from the message loop, and the DLL can then be unloaded.
releaseInEvent = True
Set o = WScript.CreateObject("TNWizard_MAVT.TNW_MAVT", "ev_")
o.GetCurFileData dir, 6, dir & "\three_cars.mod"
o.ShowTNWizard
WaitForUnload
WScript.Sleep 50
WScript.Echo "DllCanUnloadNow " & Host.DllCanUnloadNow("TNWizard_MAVT_Test.dll")
