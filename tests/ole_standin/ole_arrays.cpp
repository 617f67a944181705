// The stand-in's one-dimensional safe arrays.

#include "oleauto.h"

// Std
#include <cstdlib>
#include <cstring>

namespace {

// The size of an array element of type; 0 for a type the stand-in's arrays do not hold.
ULONG elementSize(VARTYPE type) {
  switch (type) {
    case VT_VARIANT:
      return sizeof(VARIANT);
    case VT_BSTR:
      return sizeof(BSTR);
    case VT_UI1:
      return 1;
    case VT_I2:
    case VT_BOOL:
      return 2;
    case VT_I4:
      return 4;
    case VT_R8:
      return 8;
    default:
      return 0;
  }
}

void clearElements(SAFEARRAY* array) {
  for (ULONG i = 0; i < array->rgsabound[0].cElements; ++i) {
    if (array->vt == VT_VARIANT) VariantClear(static_cast<VARIANT*>(array->pvData) + i);
    if (array->vt == VT_BSTR) SysFreeString(static_cast<BSTR*>(array->pvData)[i]);
  }
}

}  // namespace

SAFEARRAY* SafeArrayCreateVector(VARTYPE type, LONG lower, ULONG count) {
  const ULONG size = elementSize(type);
  if (size == 0 || count > 0x100000u) return nullptr;
  auto* array = static_cast<SAFEARRAY*>(std::calloc(1, sizeof(SAFEARRAY)));
  if (!array) return nullptr;
  array->pvData = std::calloc(count ? count : 1, size);
  if (!array->pvData) {
    std::free(array);
    return nullptr;
  }
  array->cDims = 1;
  array->cbElements = size;
  array->rgsabound[0] = {count, lower};
  array->vt = type;
  if (type == VT_VARIANT) {
    for (ULONG i = 0; i < count; ++i) VariantInit(static_cast<VARIANT*>(array->pvData) + i);
  }
  return array;
}

HRESULT SafeArrayDestroy(SAFEARRAY* array) {
  if (!array) return S_OK;
  if (array->cLocks > 0) return DISP_E_ARRAYISLOCKED;
  clearElements(array);
  std::free(array->pvData);
  std::free(array);
  return S_OK;
}

HRESULT SafeArrayAccessData(SAFEARRAY* array, void** data) {
  if (!array || !data) return E_INVALIDARG;
  ++array->cLocks;
  *data = array->pvData;
  return S_OK;
}

HRESULT SafeArrayUnaccessData(SAFEARRAY* array) {
  if (!array || array->cLocks == 0) return E_UNEXPECTED;
  --array->cLocks;
  return S_OK;
}

UINT SafeArrayGetDim(SAFEARRAY* array) { return array ? array->cDims : 0; }

HRESULT SafeArrayGetVartype(SAFEARRAY* array, VARTYPE* type) {
  if (!array || !type) return E_INVALIDARG;
  *type = array->vt;
  return S_OK;
}

HRESULT SafeArrayGetLBound(SAFEARRAY* array, UINT dimension, LONG* bound) {
  if (!array || !bound) return E_INVALIDARG;
  if (dimension != 1) return DISP_E_BADINDEX;
  *bound = array->rgsabound[0].lLbound;
  return S_OK;
}

HRESULT SafeArrayGetUBound(SAFEARRAY* array, UINT dimension, LONG* bound) {
  if (!array || !bound) return E_INVALIDARG;
  if (dimension != 1) return DISP_E_BADINDEX;
  *bound = LONG(LONGLONG(array->rgsabound[0].lLbound) + array->rgsabound[0].cElements - 1);
  return S_OK;
}

HRESULT SafeArrayGetElement(SAFEARRAY* array, LONG* index, void* element) {
  if (!array || !index || !element) return E_INVALIDARG;
  const LONGLONG offset = LONGLONG(*index) - array->rgsabound[0].lLbound;
  if (offset < 0 || offset >= LONGLONG(array->rgsabound[0].cElements)) return DISP_E_BADINDEX;
  const auto at = std::size_t(offset);
  if (array->vt == VT_VARIANT) {
    auto* target = static_cast<VARIANT*>(element);
    VariantInit(target);
    return VariantCopy(target, static_cast<VARIANT*>(array->pvData) + at);
  }
  if (array->vt == VT_BSTR) {
    const BSTR text = static_cast<BSTR*>(array->pvData)[at];
    BSTR copy = text ? SysAllocStringByteLen(reinterpret_cast<LPCSTR>(text), SysStringByteLen(text))
                     : nullptr;
    if (text && !copy) return E_OUTOFMEMORY;
    *static_cast<BSTR*>(element) = copy;
    return S_OK;
  }
  std::memcpy(element, static_cast<char*>(array->pvData) + at * array->cbElements,
              array->cbElements);
  return S_OK;
}

HRESULT SafeArrayCopy(SAFEARRAY* source, SAFEARRAY** target) {
  if (!source || !target) return E_INVALIDARG;
  SAFEARRAY* copy = SafeArrayCreateVector(source->vt, source->rgsabound[0].lLbound,
                                          source->rgsabound[0].cElements);
  if (!copy) return E_OUTOFMEMORY;
  const ULONG count = source->rgsabound[0].cElements;
  for (ULONG i = 0; i < count; ++i) {
    if (source->vt == VT_VARIANT) {
      VariantCopy(static_cast<VARIANT*>(copy->pvData) + i,
                  static_cast<const VARIANT*>(source->pvData) + i);
    } else if (source->vt == VT_BSTR) {
      const BSTR text = static_cast<BSTR*>(source->pvData)[i];
      static_cast<BSTR*>(copy->pvData)[i] =
          text ? SysAllocStringByteLen(reinterpret_cast<LPCSTR>(text), SysStringByteLen(text))
               : nullptr;
    }
  }
  if (source->vt != VT_VARIANT && source->vt != VT_BSTR)
    std::memcpy(copy->pvData, source->pvData, std::size_t(count) * source->cbElements);
  *target = copy;
  return S_OK;
}
