' Paths with characters outside ASCII and outside the ANSI code page: the model file is read from
' them, and the help call names the help file in the host's directory by a name WinHelpA takes.
Dim greek
greek = dir & "\Ωμέγα"
Set o = WScript.CreateObject("TNWizard_MAVT.TNW_MAVT", "ev_")
o.GetCurFileData greek, 7, greek & "\Präferenz.mod"
o.GetCurFileData greek, 7, dir & "\Präferenz.mod"
o.ShowTNWizard
WaitForUnload
ReleaseAndCheckUnload
