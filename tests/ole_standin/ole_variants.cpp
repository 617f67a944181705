// The stand-in's Variants: clearing, copying and converting them.

#include "oleauto.h"

// Std
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

bool knownBase(VARTYPE base) {
  switch (base) {
    case VT_EMPTY:
    case VT_NULL:
    case VT_I2:
    case VT_I4:
    case VT_R4:
    case VT_R8:
    case VT_CY:
    case VT_DATE:
    case VT_BSTR:
    case VT_DISPATCH:
    case VT_ERROR:
    case VT_BOOL:
    case VT_VARIANT:
    case VT_UNKNOWN:
    case VT_DECIMAL:
    case VT_I1:
    case VT_UI1:
    case VT_UI2:
    case VT_UI4:
    case VT_I8:
    case VT_UI8:
    case VT_INT:
    case VT_UINT:
    case VT_RECORD:
      return true;
    default:
      return false;
  }
}

// Whether a Variant may hold type, as the platform checks it.
bool validType(VARTYPE type) {
  if (type & ~(VT_TYPEMASK | VT_ARRAY | VT_BYREF)) return false;
  const VARTYPE base = type & VT_TYPEMASK;
  if (!knownBase(base)) return false;
  if ((type & (VT_ARRAY | VT_BYREF)) && (base == VT_EMPTY || base == VT_NULL)) return false;
  if (base == VT_VARIANT && !(type & (VT_ARRAY | VT_BYREF))) return false;
  return true;
}

// What source refers to, as a Variant that owns nothing: references followed as the platform
// follows them (without checking the pointer), one reference to a Variant at most.
HRESULT dereference(const VARIANT& source, VARIANT& value, int depth = 0) {
  if (!validType(source.vt)) return DISP_E_BADVARTYPE;
  value = source;
  if (!(source.vt & VT_BYREF)) return S_OK;
  const auto base = VARTYPE(source.vt & ~VT_BYREF);
  value.vt = base;
  if (base & VT_ARRAY) {
    value.parray = *source.pparray;
    return S_OK;
  }
  switch (base) {
    case VT_VARIANT:
      if (depth > 0 || source.pvarVal->vt == (VT_VARIANT | VT_BYREF)) return E_INVALIDARG;
      return dereference(*source.pvarVal, value, depth + 1);
    case VT_I1:
    case VT_UI1:
      std::memcpy(&value.bVal, source.byref, 1);
      break;
    case VT_I2:
    case VT_UI2:
    case VT_BOOL:
      std::memcpy(&value.iVal, source.byref, 2);
      break;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_R4:
    case VT_ERROR:
      std::memcpy(&value.lVal, source.byref, 4);
      break;
    case VT_R8:
    case VT_DATE:
    case VT_I8:
    case VT_UI8:
    case VT_CY:
      std::memcpy(&value.llVal, source.byref, 8);
      break;
    case VT_BSTR:
      value.bstrVal = *source.pbstrVal;
      break;
    default:
      value.byref = nullptr;
      break;  // objects, records and decimals: not converted here
  }
  return S_OK;
}

std::string numberText(double number, int digits) {
  char text[64];
  std::snprintf(text, sizeof text, "%.*G", digits, number);
  return text;
}

// The text of value (no reference) for VT_BSTR; false when it has none.
bool textOf(const VARIANT& value, USHORT flags, std::string& text) {
  switch (value.vt) {
    case VT_EMPTY:
      text.clear();
      return true;
    case VT_I1:
      text = std::to_string(int(value.cVal));
      return true;
    case VT_UI1:
      text = std::to_string(unsigned(value.bVal));
      return true;
    case VT_I2:
      text = std::to_string(value.iVal);
      return true;
    case VT_UI2:
      text = std::to_string(value.uiVal);
      return true;
    case VT_I4:
    case VT_INT:
      text = std::to_string(value.lVal);
      return true;
    case VT_UI4:
    case VT_UINT:
      text = std::to_string(value.ulVal);
      return true;
    case VT_I8:
      text = std::to_string(value.llVal);
      return true;
    case VT_UI8:
      text = std::to_string(value.ullVal);
      return true;
    case VT_R4:
      text = numberText(value.fltVal, 7);
      return true;
    case VT_R8:
      text = numberText(value.dblVal, 15);
      return true;
    case VT_BOOL:
      if (flags & VARIANT_ALPHABOOL) {
        text = value.boolVal ? "True" : "False";
      } else {
        text = value.boolVal ? "-1" : "0";
      }
      return true;
    default:
      return false;
  }
}

HRESULT toBstr(const VARIANT& value, USHORT flags, BSTR& result) {
  if (value.vt == VT_BSTR) {
    const BSTR text = value.bstrVal;
    result = SysAllocStringByteLen(reinterpret_cast<LPCSTR>(text), SysStringByteLen(text));
    return result ? S_OK : E_OUTOFMEMORY;
  }
  if (value.vt == (VT_ARRAY | VT_UI1)) {  // a byte array becomes a BSTR of those bytes
    if (!value.parray || value.parray->vt != VT_UI1) return DISP_E_TYPEMISMATCH;
    result = SysAllocStringByteLen(static_cast<LPCSTR>(value.parray->pvData),
                                   value.parray->rgsabound[0].cElements);
    return result ? S_OK : E_OUTOFMEMORY;
  }
  std::string text;
  if (!textOf(value, flags, text)) return DISP_E_TYPEMISMATCH;
  result = SysAllocStringByteLen(nullptr, UINT(text.size() * sizeof(OLECHAR)));
  if (!result) return E_OUTOFMEMORY;
  for (std::size_t i = 0; i < text.size(); ++i) result[i] = OLECHAR(text[i]);
  return S_OK;
}

HRESULT toDouble(const VARIANT& value, double& number) {
  switch (value.vt) {
    case VT_EMPTY:
      number = 0;
      return S_OK;
    case VT_I1:
      number = value.cVal;
      return S_OK;
    case VT_UI1:
      number = value.bVal;
      return S_OK;
    case VT_I2:
    case VT_BOOL:
      number = value.iVal;
      return S_OK;
    case VT_UI2:
      number = value.uiVal;
      return S_OK;
    case VT_I4:
    case VT_INT:
      number = value.lVal;
      return S_OK;
    case VT_UI4:
    case VT_UINT:
      number = value.ulVal;
      return S_OK;
    case VT_I8:
      number = double(value.llVal);
      return S_OK;
    case VT_UI8:
      number = double(value.ullVal);
      return S_OK;
    case VT_R4:
      number = value.fltVal;
      return S_OK;
    case VT_R8:
      number = value.dblVal;
      return S_OK;
    case VT_BSTR: {
      const UINT length = SysStringLen(value.bstrVal);
      std::string text;
      // Plain decimal numbers only: the platform's own forms (hexadecimal, currency) are not
      // modelled, nor are "inf" and "nan", which it does not accept.
      for (UINT i = 0; i < length; ++i) {
        const OLECHAR c = value.bstrVal[i];
        if (c > 0x7F || !std::strchr("0123456789+-.eE ", char(c)) || c == 0)
          return DISP_E_TYPEMISMATCH;
        text += char(c);
      }
      char* end = nullptr;
      errno = 0;
      number = std::strtod(text.c_str(), &end);
      while (end && *end == ' ') ++end;
      if (text.empty() || !end || *end != '\0' || std::isnan(number)) return DISP_E_TYPEMISMATCH;
      if (errno == ERANGE && std::isinf(number)) return DISP_E_OVERFLOW;
      return S_OK;
    }
    default:
      return DISP_E_TYPEMISMATCH;
  }
}

}  // namespace

void VariantInit(VARIANTARG* value) { value->vt = VT_EMPTY; }

HRESULT VariantClear(VARIANTARG* value) {
  if (!validType(value->vt)) return DISP_E_BADVARTYPE;
  if (!(value->vt & VT_BYREF)) {
    if (value->vt & VT_ARRAY) {
      const HRESULT hr = SafeArrayDestroy(value->parray);
      if (FAILED(hr)) return hr;
    } else if (value->vt == VT_BSTR) {
      SysFreeString(value->bstrVal);
    } else if ((value->vt == VT_DISPATCH || value->vt == VT_UNKNOWN) && value->punkVal) {
      std::abort();  // the stand-in has no objects to release: a caller made one up
    }
  }
  value->vt = VT_EMPTY;
  return S_OK;
}

HRESULT VariantCopy(VARIANTARG* target, const VARIANTARG* source) {
  HRESULT hr = VariantClear(target);
  if (FAILED(hr)) return hr;
  if (!validType(source->vt)) return DISP_E_BADVARTYPE;
  VARIANT copy = *source;
  if (!(source->vt & VT_BYREF)) {
    if ((source->vt & VT_ARRAY) && source->parray) {
      hr = SafeArrayCopy(source->parray, &copy.parray);
      if (FAILED(hr)) return hr;
    } else if (source->vt == VT_BSTR && source->bstrVal) {
      copy.bstrVal = SysAllocStringByteLen(reinterpret_cast<LPCSTR>(source->bstrVal),
                                           SysStringByteLen(source->bstrVal));
      if (!copy.bstrVal) return E_OUTOFMEMORY;
    } else if ((source->vt == VT_DISPATCH || source->vt == VT_UNKNOWN) && source->punkVal) {
      return E_INVALIDARG;  // no objects in the stand-in
    }
  }
  *target = copy;
  return S_OK;
}

HRESULT VariantChangeType(VARIANTARG* target, const VARIANTARG* source, USHORT flags,
                          VARTYPE type) {
  VARIANT value;
  HRESULT hr = dereference(*source, value);
  if (FAILED(hr)) return hr;
  VARIANT result;
  VariantInit(&result);
  if (type == VT_BSTR) {
    hr = toBstr(value, flags, result.bstrVal);
  } else if (type == VT_R8) {
    hr = toDouble(value, result.dblVal);
  } else {
    hr = DISP_E_TYPEMISMATCH;
  }
  if (FAILED(hr)) return hr;
  result.vt = type;
  if (target != source) {
    hr = VariantClear(target);
    if (FAILED(hr)) {
      VariantClear(&result);
      return hr;
    }
  }
  *target = result;
  return S_OK;
}
