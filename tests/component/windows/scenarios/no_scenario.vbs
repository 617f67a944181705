' The test server without a scenario shows nothing: ShowTNWizard fails with a description, no
' event is raised, and the object stays usable and goes cleanly.
Set o = WScript.CreateObject("TNWizard_MAVT.TNW_MAVT", "ev_")
o.GetCurFileData dir, 2, dir & "\three_cars.mod"
On Error Resume Next
o.ShowTNWizard
WScript.Echo "ShowTNWizard: error " & Hex(Err.Number) & " """ & Err.Description & """ from " & _
  Err.Source
Err.Clear
On Error GoTo 0
o.UnloadTNWizard
WScript.Echo "UnloadTNWizard after the failed show: done"
ReleaseAndCheckUnload
