#pragma once

// Windows
#include <oaidl.h>
#include <windows.h>

// Std
#include <string>
#include <vector>

namespace tnw {

// Conversions between the component's values and OLE Automation's. The component keeps text in
// UTF-8 and weights as doubles; a host sees BSTRs and one-dimensional arrays of Variants.

// A new BSTR holding text (UTF-8); null only when out of memory.
BSTR toBstr(const std::string& text);
// The UTF-8 form of a BSTR (null reads as empty).
std::string fromBstr(const BSTR text);
// Converts any Variant (by reference or not) to text as the host language's CStr does.
HRESULT variantToText(const VARIANT& value, std::string& text);
// A new array of Variants (each a Double), index 0 to values.size() - 1, in *array.
HRESULT toVariantArray(const std::vector<double>& values, SAFEARRAY** array);
// Writes what a host left in array back into values: every element that both have and that
// converts to a finite number replaces the one in values; values keeps its size.
void readVariantArray(SAFEARRAY* array, std::vector<double>& values);

}  // namespace tnw
