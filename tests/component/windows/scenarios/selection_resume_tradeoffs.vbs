' A model with an earlier trade-off result preselects "TradeOffs"; Cancel ends the wizard, and
' the host unloads after the event rather than inside it.
unloadInEvent = False
Set o = WScript.CreateObject("TNWizard_MAVT.TNW_MAVT", "ev_")
o.GetCurFileData dir, -2, dir & "\three_cars_tradeoffs.mod"
o.ShowTNWizard
WaitForUnload
o.UnloadTNWizard
WScript.Echo "unloaded after the event"
o.ShowTNWizard
WScript.Echo "shown again"
o.UnloadTNWizard
ReleaseAndCheckUnload
