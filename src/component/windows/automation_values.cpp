#include "component/windows/automation_values.h"

// Std
#include <cmath>

namespace tnw {
namespace {

// Whether value is a reference with a null pointer, or a reference to a Variant that is one: the
// system's conversions would follow it.
bool pointsNowhere(const VARIANT& value) {
  if (!V_ISBYREF(&value)) return false;
  if (!V_BYREF(&value)) return true;
  if (V_VT(&value) != (VT_BYREF | VT_VARIANT)) return false;
  const VARIANT& referenced = *V_VARIANTREF(&value);
  return V_ISBYREF(&referenced) && !V_BYREF(&referenced);
}

}  // namespace

BSTR toBstr(const std::string& text) {
  if (text.empty()) return SysAllocStringLen(nullptr, 0);
  const int size = static_cast<int>(text.size());
  const int wide = MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0);
  if (wide <= 0) return SysAllocStringLen(nullptr, 0);
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
  if (pointsNowhere(value)) return E_POINTER;
  VARIANT converted;
  VariantInit(&converted);
  // VARIANT_ALPHABOOL gives "True"/"False" for Booleans, as CStr does.
  const HRESULT hr =
      VariantChangeType(&converted, const_cast<VARIANT*>(&value), VARIANT_ALPHABOOL, VT_BSTR);
  if (FAILED(hr)) return hr;
  try {
    text = fromBstr(V_BSTR(&converted));
  } catch (...) {
    VariantClear(&converted);
    throw;
  }
  VariantClear(&converted);
  return S_OK;
}

HRESULT setVariantText(VARIANT& value, const std::string& text) {
  VARIANT* target = &value;
  if (V_VT(target) == (VT_BYREF | VT_VARIANT)) target = V_VARIANTREF(target);
  if (!target) return E_POINTER;
  if (V_VT(target) == (VT_BYREF | VT_BSTR) && !V_BSTRREF(target)) return E_POINTER;
  BSTR changed = toBstr(text);
  if (!changed) return E_OUTOFMEMORY;
  if (V_VT(target) == (VT_BYREF | VT_BSTR)) {
    SysFreeString(*V_BSTRREF(target));
    *V_BSTRREF(target) = changed;
    return S_OK;
  }
  const HRESULT hr = VariantClear(target);
  if (FAILED(hr)) {
    SysFreeString(changed);
    return hr;
  }
  V_VT(target) = VT_BSTR;
  V_BSTR(target) = changed;
  return S_OK;
}

HRESULT readCurFileDataArgs(const VARIANT* NorixDir, short FileIndex, BSTR PathAndFileName,
                            CurFileDataArgs& args, const wchar_t*& problem) {
  problem = nullptr;
  if (!NorixDir) {
    problem = L"NorixDir is missing.";
    return E_POINTER;
  }
  const HRESULT hr = variantToText(*NorixDir, args.NorixDir);
  if (hr == E_POINTER) {
    problem = L"NorixDir is missing.";
    return E_POINTER;
  }
  if (FAILED(hr)) {
    problem = L"Type mismatch: NorixDir is not a text.";
    return DISP_E_TYPEMISMATCH;
  }
  args.FileIndex = std::int16_t(FileIndex);
  args.PathAndFileName = fromBstr(PathAndFileName);
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
    if (!pointsNowhere(element) && SUCCEEDED(VariantChangeType(&number, &element, 0, VT_R8)) &&
        std::isfinite(V_R8(&number)))
      values[offset] = V_R8(&number);
    VariantClear(&element);
  }
}

}  // namespace tnw
