#include "component/windows/automation_values.h"

// Std
#include <cmath>

namespace tnw {

BSTR toBstr(const std::string& text) {
  if (text.empty()) return SysAllocStringLen(L"", 0);
  const int size = static_cast<int>(text.size());
  const int wide = MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0);
  if (wide <= 0) return SysAllocStringLen(L"", 0);
  BSTR result = SysAllocStringLen(nullptr, UINT(wide));
  if (result) MultiByteToWideChar(CP_UTF8, 0, text.data(), size, result, wide);
  return result;
}

std::string fromBstr(const BSTR text) {
  const UINT length = SysStringLen(text);
  if (length == 0) return {};
  const int size = static_cast<int>(length);
  const int narrow = WideCharToMultiByte(CP_UTF8, 0, text, size, nullptr, 0, nullptr, nullptr);
  if (narrow <= 0) return {};
  std::string result(std::size_t(narrow), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text, size, result.data(), narrow, nullptr, nullptr);
  return result;
}

HRESULT variantToText(const VARIANT& value, std::string& text) {
  VARIANT converted;
  VariantInit(&converted);
  // VARIANT_ALPHABOOL gives "True"/"False" for Booleans, as CStr does.
  const HRESULT hr =
      VariantChangeType(&converted, const_cast<VARIANT*>(&value), VARIANT_ALPHABOOL, VT_BSTR);
  if (FAILED(hr)) return hr;
  text = fromBstr(V_BSTR(&converted));
  VariantClear(&converted);
  return S_OK;
}

HRESULT toVariantArray(const std::vector<double>& values, SAFEARRAY** array) {
  if (!array) return E_POINTER;
  *array = SafeArrayCreateVector(VT_VARIANT, 0, ULONG(values.size()));
  if (!*array) return E_OUTOFMEMORY;
  VARIANT* data = nullptr;
  HRESULT hr = SafeArrayAccessData(*array, reinterpret_cast<void**>(&data));
  if (FAILED(hr)) {
    SafeArrayDestroy(*array);
    *array = nullptr;
    return hr;
  }
  for (std::size_t i = 0; i < values.size(); ++i) {
    V_VT(&data[i]) = VT_R8;
    V_R8(&data[i]) = values[i];
  }
  SafeArrayUnaccessData(*array);
  return S_OK;
}

void readVariantArray(SAFEARRAY* array, std::vector<double>& values) {
  if (!array || SafeArrayGetDim(array) != 1) return;
  VARTYPE type = VT_EMPTY;
  if (FAILED(SafeArrayGetVartype(array, &type)) || type != VT_VARIANT) return;
  LONG lower = 0;
  LONG upper = -1;
  if (FAILED(SafeArrayGetLBound(array, 1, &lower)) || FAILED(SafeArrayGetUBound(array, 1, &upper)))
    return;
  // Positions count from the array's lower bound, whatever a host re-dimensioned it to.
  for (LONG index = lower; index <= upper; ++index) {
    const auto offset = std::size_t(index - lower);
    if (offset >= values.size()) break;
    VARIANT element;
    VariantInit(&element);
    if (FAILED(SafeArrayGetElement(array, &index, &element))) continue;
    VARIANT number;
    VariantInit(&number);
    if (SUCCEEDED(VariantChangeType(&number, &element, 0, VT_R8)) && std::isfinite(V_R8(&number)))
      values[offset] = V_R8(&number);
    VariantClear(&element);
  }
}

}  // namespace tnw
