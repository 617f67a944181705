#pragma once

// Windows, in this order (a native build of the conversions puts a stand-in for these two on
// the include path)
#include <windows.h>
//
#include <oleauto.h>

// Std
#include <cstdint>
#include <string>
#include <vector>

namespace tnw {

// Conversions between the component's values and OLE Automation's. The component keeps text in
// UTF-8 and weights as doubles; a host sees BSTRs and one-dimensional arrays of Variants.

// A new BSTR holding text (UTF-8); null only when out of memory.
BSTR toBstr(const std::string& text);
// The UTF-8 form of a BSTR (null reads as empty).
std::string fromBstr(const BSTR text);
// Converts any Variant (by reference or not) to text as the host language's CStr does;
// E_POINTER for a reference that points nowhere.
HRESULT variantToText(const VARIANT& value, std::string& text);
// Puts text (UTF-8) into value: through a reference to a Variant or to a String, where the
// host's variable is; otherwise value becomes a String.
HRESULT setVariantText(VARIANT& value, const std::string& text);

// GetCurFileData's arguments in the component's terms.
struct CurFileDataArgs {
  std::string NorixDir;         // NorixDir as text
  std::int16_t FileIndex = 0;   // FileIndex as given
  std::string PathAndFileName;  // PathAndFileName in UTF-8
};
// Converts GetCurFileData's arguments into args. On failure the HRESULT for the host and, in
// problem, the error description to go with it.
HRESULT readCurFileDataArgs(const VARIANT* NorixDir, short FileIndex, BSTR PathAndFileName,
                            CurFileDataArgs& args, const wchar_t*& problem);
// A new array of Variants (each a Double), index 0 to values.size() - 1, in *array.
HRESULT toVariantArray(const std::vector<double>& values, SAFEARRAY** array);
// Writes what a host left in array back into values: every element that both have and that
// converts to a finite number replaces the one in values (a reference that points nowhere does
// not); values keeps its size.
void readVariantArray(SAFEARRAY* array, std::vector<double>& values);

}  // namespace tnw
