' Failures reach the script as errors with a description, never as a crash.
Set o = WScript.CreateObject("TNWizard_MAVT.TNW_MAVT", "ev_")
On Error Resume Next
o.GetCurFileData Null, 1, dir & "\three_cars.mod"
WScript.Echo "GetCurFileData(Null): error " & Hex(Err.Number) & " """ & Err.Description & _
  """ from " & Err.Source
Err.Clear
o.GetCurFileData dir, 1, dir & "\missing.mod"
WScript.Echo "GetCurFileData(missing file): error " & Err.Number
Err.Clear
o.NoSuchMethod
WScript.Echo "NoSuchMethod: error " & Err.Number
Err.Clear
o.GetCurFileData dir, 40000, dir & "\three_cars.mod"
WScript.Echo "GetCurFileData(FileIndex 40000): error " & Hex(Err.Number)
Err.Clear
On Error GoTo 0
o.UnloadTNWizard
WScript.Echo "UnloadTNWizard with no dialog: done"
ReleaseAndCheckUnload
